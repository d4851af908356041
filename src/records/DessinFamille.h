#pragma once

#include "records/ModeleFamille.h"

#include <array>
#include <string>
#include <vector>

namespace dorvane::storage {
class Base;
}

namespace dorvane::records {

/// Measures of one presentation, in pixels at scale 1.
struct MesuresGraphe {
    double largeur;    ///< of a box
    double hauteur;    ///< of a box
    double ecart;      ///< between two boxes of a generation
    double gouttiere;  ///< between two generations
    int tailleNom;     ///< pixels
    int tailleDates;   ///< pixels
    bool uneLigne;     ///< dates stand behind the name instead of below it
    bool vignette;     ///< a box has room for a picture
};

/// The measures of `presentation` 1 to 4; others count as 2.
[[nodiscard]] const MesuresGraphe& MesuresDe(int presentation);

/// A place on the drawing; y grows downward.
struct Point {
    double x = 0;
    double y = 0;
};

struct Rectangle {
    double gauche = 0;
    double haut = 0;
    double largeur = 0;
    double hauteur = 0;

    [[nodiscard]] double Droite() const { return gauche + largeur; }
    [[nodiscard]] double Bas() const { return haut + hauteur; }
    [[nodiscard]] Point Milieu() const { return {gauche + largeur / 2, haut + hauteur / 2}; }
};

/// A line between two boxes: from a side, along the middle between generations, to a side.
using Trait = std::array<Point, 4>;

/// The year of a union, in the middle of `centre`.
struct EtiquetteUnion {
    Point centre;
    std::string annee;  ///< in code page 1252; empty when it is not known
};

/// Where everything stands, on a screen as on paper. Descendants are on the left, ascendants on the
/// right of the current person, whose box has its middle at the origin.
struct DessinFamille {
    std::vector<Rectangle> boites;  ///< one for each box of the model
    std::vector<Trait> traits;
    std::vector<EtiquetteUnion> unions;
    Rectangle cadre;  ///< around all boxes
};

[[nodiscard]] DessinFamille DessinerFamille(storage::Base& base, const ModeleFamille& modele,
                                            const MesuresGraphe& mesures);

}  // namespace dorvane::records

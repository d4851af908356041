#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include "records/ModeleFamille.h"

#include <array>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

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

/// `presentation` 1 to 4; others count as 2.
[[nodiscard]] const MesuresGraphe& MesuresDe(int presentation);

/// A line between two boxes: from a side, along the middle between generations, to a side.
using Trait = std::array<QPointF, 4>;

/// The year of a union, in the middle of `centre`.
struct EtiquetteUnion {
    QPointF centre;
    QString annee;
};

/// Where everything stands. Descendants are on the left, ascendants on the right of the current
/// person, whose box has its middle at the origin.
struct DessinFamille {
    std::vector<QRectF> boites;  ///< one for each box of the model
    std::vector<Trait> traits;
    std::vector<EtiquetteUnion> unions;
    QRectF cadre;  ///< around all boxes
};

[[nodiscard]] DessinFamille DessinerFamille(storage::Base& base,
                                            const records::ModeleFamille& modele,
                                            const MesuresGraphe& mesures);

}  // namespace dorvane::windows

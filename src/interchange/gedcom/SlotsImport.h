#pragma once

#include "interchange/gedcom/DatesGedcom.h"
#include "storage/Base.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// The keywords of an import: which marker stands in front of the values of a tag. A tag that is a
/// keyword of every base keeps its marker; others take, in order of appearance, the free markers
/// that no text of the file holds: "£200" in a note would become a value of its own.
class MarqueursImport {
public:
    /// A character, in code page 1252, stands in a text of the file.
    using Occupe = std::function<bool(char)>;

    /// The keywords of `base`, which outlives the object, are known from the beginning.
    MarqueursImport(storage::Base& base, Occupe occupe);

    /// Marker of a tag, entered as a keyword at its first sight; 0 when no marker is left.
    [[nodiscard]] char Marqueur(std::string_view etiquette);

private:
    struct Entree {
        std::string etiquette;
        char marqueur;
    };
    storage::Base& base_;
    Occupe occupe_;
    std::vector<Entree> entrees_;
};

/// The ten rows of further events and attributes of a sheet. Which tag has which row is settled at
/// first sight for the whole import; the values are those of one record.
class SlotsImport {
public:
    static constexpr std::size_t Nombre = 10;
    static constexpr std::size_t Aucun = Nombre;

    struct Valeur {
        bool utilise = false;
        DateLue date;
        std::string valeur;  ///< place, or place and word
    };

    /// `marqueurs` outlives the object.
    explicit SlotsImport(MarqueursImport& marqueurs) : marqueurs_{marqueurs} {}

    /// The row of a tag, made at its first sight; `Aucun` when all ten are taken. `libelle`: the
    /// tag that labels its lines. `evenement`: the row holds a date even where none is given.
    [[nodiscard]] std::size_t Trouver(std::string_view etiquette, std::string_view libelle,
                                      bool evenement);

    [[nodiscard]] Valeur& At(std::size_t rang) { return valeurs_[rang]; }
    /// A date was given under the row.
    void Dater(std::size_t rang) { definitions_[rang].date = true; }
    /// Empties the values, for the next record.
    void Vider();

    /// Appends one line of text for each row in use.
    void Composer(std::string& texte) const;

    /// The rows as the header of the base keeps them, the missing ones of `initiaux` behind.
    [[nodiscard]] storage::Slots PourEnTete(const storage::Slots& initiaux) const;

private:
    struct Definition {
        std::string etiquette;
        std::string libelle;
        char marqueur = ' ';
        bool date = false;
    };
    MarqueursImport& marqueurs_;
    std::array<Definition, Nombre> definitions_;
    std::array<Valeur, Nombre> valeurs_;
    std::size_t nb_ = 0;
};

}  // namespace dorvane::interchange

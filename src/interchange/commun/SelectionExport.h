#pragma once

#include "interchange/commun/Export.h"
#include "values/Numeros.h"

#include <cstdint>
#include <span>
#include <string>

namespace dorvane::storage {
class Base;
}

namespace dorvane::interchange {

/// Which way a selection walks from its starting person.
enum class SensExport : std::uint8_t { Ascendants, Descendants };

/// What is ticked when an export starts.
struct ReglagesSelection {
    bool collateraux = false;  ///< near kin goes with the persons selected
    bool complet = false;      ///< events and documents of nobody selected as well
    bool ecarter1900 = false;  ///< persons born after 1900 are left out, and then `complet` is not
};

/// Generations that a selection goes when nobody says how many: more than any family has.
inline constexpr std::uint32_t GenerationsParDefaut = 100;

/// The choice of persons for an export: a mark on each.
///
/// A walk sets "1" on those that it passes, "3" on their partners, "2" on near kin where it does
/// not go; at its end "1" and "3" are "3", "2" and "4" are "4". A blank is not selected. Several
/// walks add up until `Vider`. Linear in the persons reached; no recursion.
class SelectionExport {
public:
    /// `base` outlives the object; persons made after it are not selected.
    explicit SelectionExport(storage::Base& base);

    /// Nobody is selected.
    void Vider();
    /// The whole base.
    void MarquerTous();
    /// These persons; numbers that the base does not have are passed over.
    void MarquerListe(std::span<const NoOrdre> individus);
    /// From `depart` up or down: 1 generation is `depart` alone, with his near kin as such. Neither
    /// for 0 generations nor for a person whom the base does not have is anybody marked.
    void MarquerParente(NoOrdre depart, SensExport sens, std::uint32_t generations);

    /// "3", "4" or a blank; "1" and "2" stand only while a walk runs.
    [[nodiscard]] char Marque(NoOrdre n) const;
    /// Persons that an export without near kin writes.
    [[nodiscard]] std::uint32_t NbRetenus() const { return nbRetenus_; }
    /// Persons that an export with near kin writes.
    [[nodiscard]] std::uint32_t NbMarques() const { return nbMarques_; }

    /// What is written, for the writers of all formats. Of a whole base that is every event and
    /// document. `choisis` is never empty: number 0 is in it, as false.
    [[nodiscard]] ChoixExport Choix(const ReglagesSelection& reglages) const;

private:
    void Parcourir(NoOrdre depart, SensExport sens, std::uint32_t generations);
    void FixerMarques();
    [[nodiscard]] bool Existe(NoOrdre n) const { return n && n.valeur < marques_.size(); }

    storage::Base& base_;
    std::string marques_;   ///< by person number
    bool entiere_ = false;  ///< the whole base was selected
    std::uint32_t nbRetenus_ = 0;
    std::uint32_t nbMarques_ = 0;
};

}  // namespace dorvane::interchange

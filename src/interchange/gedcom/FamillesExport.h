#pragma once

#include "values/Numeros.h"

#include <cstdint>
#include <vector>

namespace dorvane::storage {
class Base;
}

namespace dorvane::interchange {

/// A family of a GEDCOM file: a union of the base, or the parents of one child who have none.
struct FamilleExport {
    NoOrdre epoux{};
    NoOrdre epouse{};
    std::vector<NoOrdre> enfants;
};

/// The families of a base. Number 1 to the highest union are the unions, what follows are extra
/// families, one for each child whose parents share no union or of whom one parent is known: no
/// earlier extra family of the same parents is looked for.
struct FamillesExport {
    std::vector<FamilleExport> familles;          ///< from index 1
    std::vector<std::uint32_t> familleDeLEnfant;  ///< by person number: the family, 0 for none
    std::uint32_t derniereUnion = 0;

    [[nodiscard]] bool EstUnion(std::uint32_t famille) const { return famille <= derniereUnion; }
    /// The union exists and `n` is one of its two partners.
    [[nodiscard]] bool EstPartenaire(NoOrdre n, NoMariage m) const {
        return m && EstUnion(m.valeur) &&
               (familles[m.valeur].epoux == n || familles[m.valeur].epouse == n);
    }
    /// The family of `n` as a child; 0 for none.
    [[nodiscard]] std::uint32_t FamilleDe(NoOrdre n) const {
        return n.valeur < familleDeLEnfant.size() ? familleDeLEnfant[n.valeur] : 0;
    }
};

[[nodiscard]] FamillesExport FormerFamilles(storage::Base& base);

}  // namespace dorvane::interchange

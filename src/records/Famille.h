#pragma once

#include "storage/Famille.h"
#include "values/Numeros.h"

namespace dorvane::records {

/// The kernel that walks a family, for `records` and all that stands above it: parents, couples in
/// their order, the walk. Children in their order are `R_ENFANT`. Below, `storage/Famille.h` itself
/// is called.
using storage::Couple;
using storage::CouplesDe;
using storage::LireParent;
using storage::ParcourirFamille;
using storage::ParentsDe;
using storage::PartenaireDe;

/// The union of two persons: the first one in the list of `a` whose partner is `b`; 0 for none.
[[nodiscard]] NoMariage UnionDe(storage::Base& base, NoOrdre a, NoOrdre b);

/// A person of the base: its number has been given and it stands in the sort table.
[[nodiscard]] bool Existe(storage::Base& base, NoOrdre individu);

/// `MnuPrécédent` (-1) and `MnuSuivant` (1): the neighbour of a person in the sort order; 0 at the
/// ends and for who is not in it.
[[nodiscard]] NoOrdre VoisinDansLOrdre(const storage::Base& base, NoOrdre individu, int pas);

}  // namespace dorvane::records

#pragma once

#include "storage/R_TRI.h"
#include "values/Noms.h"

#include <span>

namespace dorvane::interchange {

/// Persons who stand in this order are sorted under `typeTri`: by their keys, and under "0" by
/// their numbers.
[[nodiscard]] bool SontTries(storage::FournisseurNoms& noms, std::span<const NoOrdre> ordre,
                             TypeTri typeTri, const ReglesNoms& regles);

}  // namespace dorvane::interchange

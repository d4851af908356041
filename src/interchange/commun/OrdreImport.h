#pragma once

#include "storage/ConstruireIndex.h"
#include "storage/R_TRI.h"
#include "values/Noms.h"

#include <span>

namespace dorvane::shell {
class Session;
}

namespace dorvane::storage {
class Base;
}

namespace dorvane::interchange {

/// Persons who stand in this order are sorted under `typeTri`: by their keys, and under "0" by
/// their numbers.
[[nodiscard]] bool SontTries(storage::FournisseurNoms& noms, std::span<const NoOrdre> ordre,
                             TypeTri typeTri, const ReglesNoms& regles);

/// Sorts the persons of the base under its `TypeTri`, as one more phase of the frame that shows.
/// False when the user gave up.
[[nodiscard]] bool TrierImport(shell::Session& session, storage::Base& base,
                               storage::FournisseurNoms& noms);

/// Builds the word lists of `types`, as one more phase of the frame that shows. False when the user
/// gave up.
[[nodiscard]] bool IndexerImport(shell::Session& session, storage::Base& base,
                                 std::span<const NoMotCle> types,
                                 storage::FournisseurTextes& textes);

}  // namespace dorvane::interchange

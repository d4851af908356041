#pragma once

#include "storage/Base.h"
#include "values/Numeros.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::records {

/// Where a person stands in the sort table. It is found by the key that the person has: taken
/// before a name or a year is written.
struct PlaceTri {
    std::uint32_t rang = 0;  ///< 0: not in the table
    std::string cle;
};
[[nodiscard]] PlaceTri LirePlaceTri(storage::Base& base, NoOrdre n);

/// Moves a person whose key is no longer that of `place`.
void ReplacerDansTri(storage::Base& base, NoOrdre n, const PlaceTri& place);

/// After another birth year: moves a person in the lists of children of both parents and in the
/// list of every word of its text and of the texts of its unions.
void ReclasserParAnnee(storage::Base& base, NoOrdre n);

}  // namespace dorvane::records

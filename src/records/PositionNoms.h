#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace dorvane::storage {
class Base;
}

namespace dorvane::records {

/// Index in `personnes`, which stand in the order of the sort table, of the first one at or after
/// `texte`: a name or its beginning in a table by names, a year in one by years of birth. The last
/// one when all come before. 0 for an empty text, an empty list, and a table by creation, which has
/// no key.
[[nodiscard]] std::size_t PositionDans(storage::Base& base, const std::vector<NoOrdre>& personnes,
                                       std::string_view texte);

}  // namespace dorvane::records

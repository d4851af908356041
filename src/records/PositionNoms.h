#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace dorvane::storage {
class Base;
}

namespace dorvane::records {

/// Index, from 0, among `nombre` persons that stand in the order of the sort table, of the first
/// one at or after `texte`: a name or its beginning in a table by names, a year in one by years of
/// birth. The last one when all come before. 0 for an empty text, no persons, and a table by
/// creation, which has no key. `personne` tells who stands at an index; few of them are asked for.
[[nodiscard]] std::size_t PositionDans(storage::Base& base, std::size_t nombre,
                                       const std::function<NoOrdre(std::size_t)>& personne,
                                       std::string_view texte);

}  // namespace dorvane::records

#pragma once

#include "values/Numeros.h"

#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// What tells a person from another of the same name, in one line of code page 1252: number,
/// father, mother, spouses. Empty for person 0, for who is not in the base and without a base.
[[nodiscard]] std::string ApercuDe(shell::Session& session, NoOrdre individu);

}  // namespace dorvane::records

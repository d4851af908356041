#pragma once

#include <string>
#include <string_view>

namespace dorvane {

/// Phonetic key of a surname, 4 bytes, built for French spelling and used to propose duplicates
/// only: "DUPONT" and "DUPOND" give "DBM0". A name without letters gives "0000".
[[nodiscard]] std::string ClePhonetique(std::string_view nom);

/// True when two keys may stand for one name: equal, three letters in common, or one letter more in
/// either. "0000" is close to every key.
[[nodiscard]] bool ClesProches(std::string_view a, std::string_view b);

}  // namespace dorvane

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::shell {

/// The value of a key in the text of an old settings file; nothing when the key is not there. The
/// first line that starts with the key behind the first line that holds "[section]" counts, so a
/// key that begins like a longer one finds whichever comes first. The next line that begins with
/// "[" ends the search. `section` and `cle` are UTF-8; the text is in code page 1252 and so is the
/// answer.
[[nodiscard]] std::optional<std::string> LireIniTexte(std::string_view texte,
                                                      std::string_view section,
                                                      std::string_view cle);

/// All lines with "=" of a section, in order, in code page 1252.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> LireSectionIni(
    std::string_view texte, std::string_view section);

}  // namespace dorvane::shell

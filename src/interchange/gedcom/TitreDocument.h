#pragma once

#include <string>
#include <string_view>

namespace dorvane::interchange {

/// The title of a note that has none of its own, as GEDCOM knows them: the beginning of its first
/// line, at most 60 bytes, cut between two words and then ended by "...".
[[nodiscard]] std::string TitreDocument(std::string_view note);

}  // namespace dorvane::interchange

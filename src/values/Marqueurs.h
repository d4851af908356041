#pragma once

#include "values/Texte1252.h"

#include <string_view>

namespace dorvane {

/// Every marker of a keyword, in the order in which free ones are given; the first five belong to
/// names and places.
[[nodiscard]] inline std::string_view ListeMarqueurs() {
    return "|¶$@~\\°^%¤²µ£§¬±¹»×÷‡ˆ‹•›"_1252;
}

}  // namespace dorvane

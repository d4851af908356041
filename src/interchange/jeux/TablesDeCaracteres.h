#pragma once

#include <string_view>

namespace dorvane::interchange {

/// Unicode value of a byte of IBM code page 437.
[[nodiscard]] char32_t CodeDe437(unsigned char octet);

/// Unicode value of a byte of the Macintosh Roman set.
[[nodiscard]] char32_t CodeDeMacintosh(unsigned char octet);

/// Unicode value of a byte of ANSEL (ANSI Z39.47, with the additions of GEDCOM 5.5); 0 when the
/// byte has none. Values U+0300 to U+036F are marks, which ANSEL writes before their letter.
[[nodiscard]] char32_t CodeDeAnsel(unsigned char octet);

/// Unicode value of a named entity of HTML 4, without "&" and ";" ("eacute"); 0 when unknown.
[[nodiscard]] char32_t CodeDeEntite(std::string_view nom);

}  // namespace dorvane::interchange

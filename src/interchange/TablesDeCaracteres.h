#pragma once

#include <string_view>

namespace dorvane::interchange {

/// What stands for a Unicode character that code page 1252 lacks: for a Latin letter the nearest
/// that it has, for punctuation the usual typewriter form. Empty for "no equivalent".
[[nodiscard]] std::string_view EquivalentDans1252(char32_t code);

/// The letter of code page 1252 that a letter and a combining mark (U+0300 to U+032F) make
/// together; byte 0 when the code page has none.
[[nodiscard]] char ComposerDans1252(char lettre, char32_t marque);

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

#pragma once

#include <string_view>

namespace dorvane {

/// An accent that stands as a character of its own behind its letter (U+0300 to U+036F).
[[nodiscard]] constexpr bool EstMarque(char32_t code) {
    return code >= 0x300 && code < 0x370;
}

/// A character without a shape: joiners, marks of direction, byte order mark, variants.
[[nodiscard]] constexpr bool EstInvisible(char32_t code) {
    return (code >= 0x200B && code <= 0x200F) || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2060 && code <= 0x206F) || code == 0xFEFF ||
           (code >= 0xFE00 && code <= 0xFE0F);
}

/// What stands for a Unicode character that code page 1252 lacks: for a Latin letter the nearest
/// that it has, for punctuation the usual typewriter form. Empty for "no equivalent".
[[nodiscard]] std::string_view EquivalentDans1252(char32_t code);

/// The letter of code page 1252 that a letter and a combining mark (U+0300 to U+032F) make
/// together; byte 0 when the code page has none.
[[nodiscard]] char ComposerDans1252(char lettre, char32_t marque);

}  // namespace dorvane

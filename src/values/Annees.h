#pragma once

#include <array>
#include <string_view>

namespace dorvane {

/// Four bytes of code page 1252, as a year cell and its comparison form hold them.
using QuatreOctets = std::array<char, 4>;

/// The text of four bytes; lives as long as `octets`.
[[nodiscard]] constexpr std::string_view TexteDe(const QuatreOctets& octets) {
    return {octets.data(), octets.size()};
}

/// The cell that a year typed as `annee` is kept in: blanks on the left up to 4 characters, or the
/// first 4 of a longer text. A year is free text ("18?", "-44"); nothing forces digits.
[[nodiscard]] QuatreOctets CelluleAnnee(std::string_view annee);

/// Comparison form of a birth year or of the years of a union: blanks of the cell become "0", and
/// a "-" becomes "0" while the first character becomes "-". An empty year gives "0000". Compared as
/// text: "-044" comes before "-100", on purpose.
[[nodiscard]] QuatreOctets AnneeTri(std::string_view annee);

/// The same for a death year, except that one whose first 3 characters are no number gives
/// "Z   ", so that an unreadable death stands after all others.
[[nodiscard]] QuatreOctets AnneeTriDeces(std::string_view annee);

}  // namespace dorvane

#pragma once

#include "values/Texte1252.h"

#include <string_view>

namespace dorvane {

/// The characters that stand in front of the words of a keyword, in code page 1252. The first five
/// belong to names and places in every base; the others are what a new base starts with.
namespace marqueur {
inline constexpr char Nom = '|';
inline constexpr char Prenom = u'¶'_1252;
inline constexpr char LieuNaissance = '$';
inline constexpr char LieuMariage = '@';
inline constexpr char LieuDeces = '~';
inline constexpr char Profession = '\\';
inline constexpr char Bapteme = u'°'_1252;
inline constexpr char Inhumation = '^';
inline constexpr char Residence = '%';
inline constexpr char Divorce = u'¤'_1252;
inline constexpr char Autre = u'²'_1252;
}  // namespace marqueur

/// The five of names and places.
inline constexpr char MarqueursFixes[] = {marqueur::Nom, marqueur::Prenom, marqueur::LieuNaissance,
                                          marqueur::LieuMariage, marqueur::LieuDeces};

[[nodiscard]] constexpr bool EstMarqueurFixe(char marqueur) {
    return std::string_view{MarqueursFixes, sizeof MarqueursFixes}.find(marqueur) !=
           std::string_view::npos;
}

/// Every marker of a keyword, in the order in which free ones are given; the first five belong to
/// names and places.
[[nodiscard]] inline std::string_view ListeMarqueurs() {
    return "|¶$@~\\°^%¤²µ£§¬±¹»×÷‡ˆ‹•›"_1252;
}

}  // namespace dorvane

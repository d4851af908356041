#pragma once

#include <string>
#include <string_view>

namespace dorvane::interchange {

/// A date as an exchange text holds it, cut in what a base keeps.
struct DateLgr {
    std::string jourMois;
    std::string annee;  ///< at most 4 characters
    friend bool operator==(const DateLgr&, const DateLgr&) = default;
};

/// "12/3/1820" for a whole day; else the words, a blank and the year padded to 4, "ABT  1820". A
/// year alone stands alone; nothing is empty.
[[nodiscard]] std::string EcrireDateLgr(std::string_view jourMois, std::string_view annee);

/// Reads what `EcrireDateLgr` writes, and texts whose trailing blanks were lost on the way.
[[nodiscard]] DateLgr LireDateLgr(std::string_view texte);

/// The dates of a union: the beginning, then " - " and the year of the end when there is one.
struct DatesUnionLgr {
    DateLgr debut;
    std::string fin;
    friend bool operator==(const DatesUnionLgr&, const DatesUnionLgr&) = default;
};
[[nodiscard]] std::string EcrireDatesUnionLgr(const DatesUnionLgr& dates);
[[nodiscard]] DatesUnionLgr LireDatesUnionLgr(std::string_view texte);

/// 1 to 4 digits, "-" and "?": what older files hold in the place of a place.
[[nodiscard]] bool EstAnneeSeule(std::string_view texte);

}  // namespace dorvane::interchange

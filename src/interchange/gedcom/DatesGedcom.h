#pragma once

#include <string>
#include <string_view>

namespace dorvane::interchange {

/// A date as persons, unions and slots keep it: two texts.
struct DateLue {
    std::string jourMois;  ///< "12/5", "ABT", "BET 1800 AND"...; empty for a year alone
    std::string annee;     ///< at most 4 characters, "-44" before our era

    [[nodiscard]] bool EstVide() const { return jourMois.empty() && annee.empty(); }
    friend bool operator==(const DateLue&, const DateLue&) = default;
};

/// The date of a DATE line: words of French and English become tokens, "BC" a minus; the last 4
/// characters are the year, what stands before them day and month; a day with its month becomes
/// "d/m". With fewer than 4 characters all is the year. A ";" becomes ",".
///
/// A French Republican date ("@#DFRENCH R@ 13 VEND 4") comes back as the Gregorian one; an escape
/// of the Gregorian calendar is passed over, those of other calendars stay in the text.
[[nodiscard]] DateLue LireDateGedcom(std::string_view valeur);

/// The whole date as one text that the date check reads, "12/5/1800"; empty when it is not a full
/// day.
[[nodiscard]] std::string DateEntiere(const DateLue& date);

/// The value of a DATE line for a stored date: "12/5" and "1800" give "12 MAY 1800", tokens stay,
/// "-44" gives "44 BC". Empty without either part.
[[nodiscard]] std::string EcrireDateGedcom(std::string_view jourMois, std::string_view annee);

/// A day as a DATE line holds it: "1 MAR 1820".
[[nodiscard]] std::string EcrireJourGedcom(int jour, int mois, int annee);

}  // namespace dorvane::interchange

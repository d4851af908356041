#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dorvane {

/// In which order the system writes the three parts of a date. "dd/mm/yyyy" is the one for which
/// all paths work.
enum class OrdreDate { JourMoisAnnee, MoisJourAnnee, AnneeMoisJour, AnneeJourMois, MoisAnneeJour };

/// Reads "dd/mm/yyyy", "mm/dd/yyyy", "yyyy/mm/dd", "yyyy/dd/mm" or "mm/yyyy/dd"; nothing for any
/// other text.
[[nodiscard]] std::optional<OrdreDate> LireOrdreDate(std::string_view texte);

/// An existing day of the proleptic Gregorian calendar, year 100 to 9999.
struct DateCivile {
    int jour = 1;
    int mois = 1;
    int annee = 100;
    friend bool operator==(const DateCivile&, const DateCivile&) = default;
};

/// Days since 30 December 1899, negative before it.
using Serie = std::int32_t;

/// The one check of dates: what day `texte` names when read in `ordre`, or nothing. Three parts
/// between "/" or between blanks (any number of them), never both. The month is a number, a token,
/// or a French or English name or its first three letters. A year of one or two digits falls in
/// 1930 to 2029; others go from 100 to 9999.
[[nodiscard]] std::optional<DateCivile> LireDate(std::string_view texte, OrdreDate ordre);

[[nodiscard]] inline bool EstDate(std::string_view texte, OrdreDate ordre) {
    return LireDate(texte, ordre).has_value();
}

/// The conversions between a day and its serial.
[[nodiscard]] Serie DateVersSerie(const DateCivile& date);

/// Nothing outside 1 January 100 to 31 December 9999.
[[nodiscard]] std::optional<DateCivile> SerieVersDate(Serie serie);

/// 0 for Sunday to 6 for Saturday.
[[nodiscard]] int JourDeSemaine(const DateCivile& date);

/// Puts a stored pair "day/month" in the system's order; a text without "/" stays. Empty for the
/// order month, year, day, which has no place for a pair.
[[nodiscard]] std::string PermuteJourMois(std::string_view texte, OrdreDate ordre);

/// `jourMois`, in the system's order, and a year as one text with "/"; empty for the order month,
/// year, day.
[[nodiscard]] std::string JoindreAnnee(std::string_view jourMois, std::string_view annee,
                                       OrdreDate ordre);

/// Whether a day-month-year text (parts between "/" or blanks, day first whatever the order) is a
/// date. With a month-first order nothing is, on purpose.
[[nodiscard]] bool DateValide(std::string_view texte, OrdreDate ordre);

/// The serial of what `DateValide` accepts; nothing for any other text.
[[nodiscard]] std::optional<Serie> DateVersSerie(std::string_view texte, OrdreDate ordre);

}  // namespace dorvane

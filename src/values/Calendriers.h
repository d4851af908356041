#pragma once

#include "values/Numeros.h"

#include <array>
#include <string_view>

namespace dorvane {

/// The Republican months in their order, the last being the complementary days.
inline constexpr int NbMoisRepublicains = 13;
[[nodiscard]] std::string_view MoisRepublicain(int position);

/// The Republican years "I" to "XIV" and the Gregorian years "1792" to "1805", by position 1 to 14;
/// empty outside.
inline constexpr int NbAnneesRepublicaines = 14;
[[nodiscard]] std::string_view AnneeRepublicaine(int position);
[[nodiscard]] std::string_view AnneeGregorienne(int position);

/// A day, and the 1-based positions of its month and year in the lists. The year of a result may
/// be 0 or 15: it stands in no list.
struct DateDeListe {
    int jour = 0;
    int mois = 0;
    int annee = 0;
    friend bool operator==(const DateDeListe&, const DateDeListe&) = default;
};

/// What came of a conversion: a date, or the message that refuses it.
struct DateConvertie {
    NoMessage refus;  ///< 0 = converted
    DateDeListe date;
};

/// The two conversions hold by tables for 1792 to 1805 and take 1800 for a leap year. A day of
/// 1792 before September is not shifted and gives nothing sensible.
[[nodiscard]] DateConvertie RepublicainVersGregorien(const DateDeListe& date);
[[nodiscard]] DateConvertie GregorienVersRepublicain(const DateDeListe& date);

}  // namespace dorvane

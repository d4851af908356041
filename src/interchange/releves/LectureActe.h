#pragma once

#include "interchange/gedcom/DatesGedcom.h"
#include "values/Dates.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace dorvane::interchange {

/// The date of an act as its three columns give it.
struct DateActe {
    std::optional<Serie> serie;  ///< day of the event; nothing when the year is not understood
    DateLue date;                ///< as a person keeps it, as far as it is known
    bool approchee = false;      ///< a day or month was given and not understood
};

/// The day as typed; if that is no date, the 1st of the month; else the 1st of January. Months are
/// numbers or names. A year has three or four digits.
[[nodiscard]] DateActe LireDateActe(std::string_view annee, std::string_view mois,
                                    std::string_view jour);

/// A date in one column: "12/03/1780", "12 mars 1780", "vers 1780", "1780".
[[nodiscard]] DateLue LireDateLibre(std::string_view texte);

/// An age as registers give it.
struct Age {
    int ans = 0;
    int mois = 0;
    int jours = 0;
    bool enAns = false;  ///< years alone were given
};

/// "45 ans", "3 mois", "2 sem", "1 an 6 mois", or a bare number of years. Nothing for other texts.
[[nodiscard]] std::optional<Age> LireAge(std::string_view texte);

/// The birth of somebody who has this age on a day: between two years for an age in years, else
/// the calculated day. Empty for a day that is not known.
[[nodiscard]] DateLue NaissanceSelonAge(const Age& age, const std::optional<Serie>& jour);
/// The calculated year of birth alone.
[[nodiscard]] DateLue AnneeSelonAge(const Age& age, const std::optional<Serie>& jour);

/// The names of a parent, and whether one of them begins with the words of a dead one: "feu Jean",
/// "feue Anne".
struct ParentActe {
    std::string_view nom;
    std::string_view prenoms;
    bool decede = false;
};
[[nodiscard]] ParentActe LireParent(std::string_view nom, std::string_view prenoms);

}  // namespace dorvane::interchange

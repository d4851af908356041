#pragma once

#include "values/MotsDates.h"

#include <string>
#include <string_view>

namespace dorvane {

// What stands in a field while the language changes. Texts in code page 1252.

/// A day-month text written in the words of another language: "12 mars" becomes "12 March". What is
/// stored for the result is what would have been stored before. A text without words of dates, or
/// one that is no date yet, stays as typed.
[[nodiscard]] std::string TraduireJourMois(std::string_view saisie, OrdreDate ordre,
                                           const MotsDates& avant, const MotsDates& apres);

/// The same for the date of an event, which is whole: "12 mars 1820".
[[nodiscard]] std::string TraduireDateEvenement(std::string_view saisie, OrdreDate ordre,
                                                const MotsDates& avant, const MotsDates& apres);

}  // namespace dorvane

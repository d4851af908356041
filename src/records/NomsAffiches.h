#pragma once

#include "shell/Session.h"
#include "values/Numeros.h"
#include "values/Sexe.h"

#include <string>
#include <string_view>

namespace dorvane::records {

/// How persons are shown. All texts are in code page 1252, and empty for person 0, for a number out
/// of reach and when no base is open.

/// The display name by the template of the settings; empty for a person without names. The numbers
/// of the two `De Cujus` stand where the template holds "NUMB", computed again first if they are
/// stale.
[[nodiscard]] std::string NomAffiche(shell::Session& session, NoOrdre n);

/// The display name, a blank, and the life dates in parentheses; the name and its blank alone when
/// there are none.
[[nodiscard]] std::string NomEtDates(shell::Session& session, NoOrdre n);

/// "1820-~1890", "o1820" or "+<1890".
[[nodiscard]] std::string DatesDeVie(shell::Session& session, NoOrdre n);

/// The numbers of a person for the two `De Cujus`: "[5] {.1a2}"; empty when there is none.
[[nodiscard]] std::string NumerosAffiches(shell::Session& session, NoOrdre n);

/// A stored day-month text and a year as the user reads them: "12 mars 1820", "vers 1820".
[[nodiscard]] std::string DateAffichee(const shell::Session& session, std::string_view jourMois,
                                       std::string_view annee);

/// The word for a sex; that for an undetermined one for all that is not known.
[[nodiscard]] NoMessage MessageDuSexe(Sexe sexe);

[[nodiscard]] std::string DateNaissance(shell::Session& session, NoOrdre n);
[[nodiscard]] std::string DateDeces(shell::Session& session, NoOrdre n);

/// The beginning of a union, with its day and month.
[[nodiscard]] std::string DateMariage(shell::Session& session, NoMariage m);

}  // namespace dorvane::records

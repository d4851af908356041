#pragma once

#include "records/SaisieFiche.h"
#include "shell/Session.h"

#include <string>
#include <string_view>

namespace dorvane::records {

/// What the sheet makes of its fields and of what is stored. All texts in code page 1252. A date
/// field that shows what its stored text shows keeps that text: persons and unions with a number
/// are looked up.

/// The text record of a person: keyword line, slot lines, note.
[[nodiscard]] std::string ComposerTexteIndividu(shell::Session& session, const SaisieFiche& saisie);

/// The text record of a union: date and place, slot lines, note.
[[nodiscard]] std::string ComposerTexteMariage(shell::Session& session, const SaisieUnion& saisie);

/// The name line. The names have been spread (`RepartirNoms`).
[[nodiscard]] std::string ComposerLigneNom(shell::Session& session, const SaisieFiche& saisie);

/// Moves what stands behind the first ";" of a name in front of the next one. A ";" of the last
/// name stays: it begins the next field of the line.
void RepartirNoms(SaisieFiche& saisie);

/// A day-month text as it is stored, without what would shift the fields of a name line.
[[nodiscard]] std::string SaisirJourMois(const shell::Session& session, std::string_view saisie);
/// A stored day-month text as its field shows it: "12 mars".
[[nodiscard]] std::string MontrerJourMois(const shell::Session& session, std::string_view jourMois);

/// The weekday of a date as its two fields show it, in the user's language; empty when it is none.
[[nodiscard]] std::string JourDeLaSemaine(const shell::Session& session, std::string_view jourMois,
                                          std::string_view annee);

/// Which case option of the base a field follows.
enum class Casse { Nom, Prenom, Lieu };
/// What a name or place becomes when it loses the focus.
[[nodiscard]] std::string AppliquerCasse(const shell::Session& session, std::string_view texte,
                                         Casse casse);

/// What is odd about a date, told beside its fields while it is typed; nothing of it blocks.
enum class AvisDate {
    Bon,
    AnneeManque,     ///< day and month without a year
    AnneeIllisible,  ///< will not sort: no number of at most 4 digits
    DateIllisible,   ///< day and month that are neither a date nor words of dates
    AvantNaissance,  ///< before the year of birth
    ApresDeces,      ///< after the year of death
    VieTropLongue,   ///< more than 120 years after the birth
};
/// The bounds are years of life as typed; empty or unreadable ones are no bounds.
[[nodiscard]] AvisDate AviserDate(const shell::Session& session, std::string_view jourMois,
                                  std::string_view annee, std::string_view naissance,
                                  std::string_view deces);

}  // namespace dorvane::records

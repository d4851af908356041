#pragma once

#include "records/SaisieFiche.h"
#include "shell/Session.h"
#include "values/Numeros.h"

#include <string_view>

namespace dorvane::records {

/// Operations on one person that keep sort table, word index and lists of children in step. They
/// need an open base; numbers given are those of persons and unions of it.

/// Makes a person of what was typed: names, sex, dates, places, slots, note. A sex that is not
/// determined leaves the cell blank. `saisie` comes back with its names spread over their fields.
/// `Refusee`: nothing was written and the message has been shown. The first person of a base
/// becomes the current one.
[[nodiscard]] IssueFiche CreerIndividu(shell::Session& session, SaisieFiche& saisie);

/// Gives a birth year, at most 4 characters, empty for none: the cell, the sort table, the lists of
/// children of both parents and the word lists follow. Nothing when it is the same.
void ChangerAnneeNaissance(shell::Session& session, NoOrdre n, std::string_view annee);

/// Gives a death year.
void ChangerAnneeDeces(shell::Session& session, NoOrdre n, std::string_view annee);

/// Gives a person a text: word index, then the record. Nothing when it is the same.
void EcrireTexteIndividu(shell::Session& session, NoOrdre n, std::string_view texte);

/// The same for a union: the index of the husband, of the wife, then the record.
void EcrireTexteMariage(shell::Session& session, NoMariage m, std::string_view texte);

/// The action of the sheet: refuses a person with family, links, documents or events, asks, then
/// empties the person and takes it out of the table. The neighbour in the sort order becomes the
/// current person. True when the person is gone.
bool SupprimerIndividu(shell::Session& session, NoOrdre n);

}  // namespace dorvane::records

#pragma once

#include "records/SaisieFiche.h"
#include "shell/Session.h"
#include "values/Numeros.h"

#include <string>
#include <vector>

namespace dorvane::records {

/// The rules of the person sheet: what it shows of a person, and how it is written back.

/// The fields of a person, without union and link. Empty fields for person 0 and when no base is
/// open. A sex cell that is blank shows as not determined.
[[nodiscard]] SaisieFiche ChargerFiche(shell::Session& session, NoOrdre individu);

/// The fields of a union.
[[nodiscard]] SaisieUnion ChargerUnion(shell::Session& session, NoMariage mariage);

/// The link at a rank of the list of a person, with its label in the user's language.
[[nodiscard]] SaisieLien ChargerLien(shell::Session& session, NoOrdre individu, std::size_t rang);

/// Whether the fields say anything else than what is stored; of a new person, whether anything was
/// typed.
[[nodiscard]] bool FicheModifiee(shell::Session& session, const SaisieFiche& saisie);

/// Writes what differs, in a fixed order. A new person is made first. `saisie` comes back with its
/// names spread over their fields and the number of a new person. After a refusal the fields are as
/// they were; what had been written before it stays.
[[nodiscard]] IssueFiche EcrireFiche(shell::Session& session, SaisieFiche& saisie);

/// Brothers and sisters: the other children of father and mother, by year of birth.
struct Fratrie {
    NoOrdre individu{};
    bool memePere = false;
    bool memeMere = false;
    friend bool operator==(const Fratrie&, const Fratrie&) = default;
};
[[nodiscard]] std::vector<Fratrie> FratrieDe(shell::Session& session, NoOrdre individu);

}  // namespace dorvane::records

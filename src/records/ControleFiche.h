#pragma once

#include "records/SaisieFiche.h"
#include "shell/Session.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::records {

/// Most bytes of a name line: more would not be read back whole.
inline constexpr std::size_t MaxLigneNom = 1000;

/// What the fields must hold before anything is written, told in the order of the rules: a birth
/// year that is missing is only said (`AnneeNaissance`), a person without a name and names too long
/// for their record stop (`Nom` or the longest name or date). `Aucun` when all is well.
[[nodiscard]] Champ ControlerFiche(shell::Session& session, const SaisieFiche& saisie);

/// A year as its cell is compared and written: trimmed, at most 4 characters.
[[nodiscard]] std::string CelluleDe(std::string_view annee);

}  // namespace dorvane::records

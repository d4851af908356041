#pragma once

#include "interchange/EcrivainReleve.h"
#include "interchange/ImportReleve.h"

namespace dorvane::interchange {

/// Writes the acts of a survey line by line; what is not understood goes to the report. False when
/// the user gives up.
[[nodiscard]] bool EcrireActes(shell::Session& session, EcrivainReleve& ecrivain,
                               const Releve& releve, RapportReleve& rapport);

}  // namespace dorvane::interchange

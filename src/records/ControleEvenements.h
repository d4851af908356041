#pragma once

#include "records/SorteConstat.h"
#include "shell/Session.h"

#include <functional>

namespace dorvane::records {

/// Compares the events of a person with what the sheet repeats of them: birth, death, christening,
/// burial, unions. `dire` is given the kind of each finding.
void ControlerEvenements(shell::Session& session, NoOrdre individu,
                         const std::function<void(SorteConstat)>& dire);

}  // namespace dorvane::records

#pragma once

#include "shell/Session.h"

namespace dorvane::shell {

/// Rebuilds the numbers and the menu caption of `De Cujus` `k`, 1 or 2, and clears its stale mark.
/// Without a base or a reference person the tables are empty and the caption is "[...]" or
/// "{...}".
void NumeroterDeCujus(Session& session, int k);

/// The menu command: asks for the person and numbers the family again. False when the user gives
/// up.
bool MnuDeCujus(Session& session, int k);

/// Lets the tables follow the highest person number; contents stay.
void AgrandirNumerotations(Session& session);

}  // namespace dorvane::shell

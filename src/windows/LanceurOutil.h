#pragma once

#include "interchange/RemiseGeneanet.h"

namespace dorvane::windows {

/// Runs a program of the system with its arguments as they are and waits for its end behind the
/// progress frame, whose button ends the program. False when it could not be started, was ended,
/// or crashed.
[[nodiscard]] bool LancerEtAttendre(shell::Session& session, const interchange::AppelOutil& appel);

}  // namespace dorvane::windows

#pragma once

#include "interchange/releves/RemiseGeneanet.h"

namespace dorvane::windows {

/// Runs a program of the system with its arguments as they are and waits for its end behind the
/// progress frame, whose button ends the program. False when it could not be started or crashed;
/// the user knows of the program that he has ended.
[[nodiscard]] bool LancerEtAttendre(shell::Session& session, const interchange::AppelOutil& appel);

}  // namespace dorvane::windows

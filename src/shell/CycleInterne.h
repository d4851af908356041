#pragma once

#include "shell/Session.h"

#include <cstdint>
#include <filesystem>

// What the commands of the life of a base share.

namespace dorvane::shell {

/// Tells a message with a path in it.
void Dire(Session& session, NoMessage message, const std::filesystem::path& chemin);

/// Takes the four paths of a base over, or none for an empty path.
void PoserChemins(Session& session, const std::filesystem::path& chemin);

/// Forgets all that belongs to a base.
void Oublier(Session& session);

}  // namespace dorvane::shell

#pragma once

#include "shell/Dialogue.h"
#include "shell/Session.h"

#include <cstdint>
#include <filesystem>

// What the commands of the life of a base share.

namespace dorvane::shell {

/// A message with a path in it.
[[nodiscard]] Phrase MsgChemin(NoMessage message, const std::filesystem::path& chemin);

/// Takes the four paths of a base over, or none for an empty path.
void PoserChemins(Session& session, const std::filesystem::path& chemin);

/// Forgets all that belongs to a base.
void Oublier(Session& session);

}  // namespace dorvane::shell

#pragma once

#include "values/Numeros.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

/// The "key=value" lines of the settings of the open base, each ended by CR LF, in code page 1252.
/// Persons that `estEcrit` denies are left out.
[[nodiscard]] std::string ComposerReglagesLgr(const shell::Session& session,
                                              const std::function<bool(NoOrdre)>& estEcrit);

/// Takes such lines over as the settings of the base at `chemin` and saves them. Keys that no base
/// has are passed over. False when the system refuses.
[[nodiscard]] bool PrendreReglagesLgr(shell::Session& session, const std::filesystem::path& chemin,
                                      std::span<const std::string_view> lignes);

}  // namespace dorvane::interchange

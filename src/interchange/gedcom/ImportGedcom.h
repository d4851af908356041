#pragma once

#include "interchange/commun/FaireBase.h"
#include "interchange/commun/RapportImport.h"
#include "shell/Session.h"

#include <filesystem>
#include <string>

namespace dorvane::interchange {

/// Reads a GEDCOM file and makes a new base of it at `base`, which replaces a base of that name.
/// Nothing stands under that name before the whole is written. The session's own base is closed or
/// another one. `rapport` tells what was done and what could not be. Refused when nothing in the
/// file says how it is to be read.
///
/// Past 64000 persons, 32000 events or documents the further records are left out and counted.
[[nodiscard]] shell::Issue ImporterGedcom(shell::Session& session,
                                          const std::filesystem::path& fichier,
                                          const std::filesystem::path& base,
                                          RapportImport& rapport);

/// The same from the bytes of a file.
[[nodiscard]] shell::Issue ImporterTexte(shell::Session& session, std::string octets,
                                         const std::filesystem::path& base, RapportImport& rapport);

}  // namespace dorvane::interchange

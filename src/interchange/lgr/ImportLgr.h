#pragma once

#include "interchange/commun/FaireBase.h"
#include "interchange/commun/RapportImport.h"
#include "interchange/lgr/ContenuLgr.h"
#include "shell/Session.h"

#include <filesystem>
#include <string>

namespace dorvane::interchange {

/// Reads an exchange text of any version and makes a new base of it at `base`, which replaces a
/// base of that name; numbers stay. The settings of the file become those of the base. Nothing
/// stands under that name before the whole is written. `rapport` tells what was done and what
/// could not be. Refused when the file is no exchange text.
///
/// Persons past 64000, events and documents past 32000 are left out and counted.
[[nodiscard]] shell::Issue ImporterLgr(shell::Session& session,
                                       const std::filesystem::path& fichier,
                                       const std::filesystem::path& base, RapportImport& rapport);

/// The same from the bytes of a file; `nom` is what the user knows it by, in code page 1252.
[[nodiscard]] shell::Issue ImporterOctetsLgr(shell::Session& session, std::string octets,
                                             const std::string& nom,
                                             const std::filesystem::path& base,
                                             RapportImport& rapport);

/// Reads the bytes, which outlive `contenu`, under the frame that is shown, and notes what they are
/// in `rapport`. `nom` as above.
[[nodiscard]] shell::Issue LireContenuLgr(shell::Session& session, std::string& octets,
                                          const std::string& nom, ContenuLgr& contenu,
                                          RapportImport& rapport);

}  // namespace dorvane::interchange

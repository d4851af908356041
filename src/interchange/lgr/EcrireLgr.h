#pragma once

#include "interchange/commun/Export.h"

#include <filesystem>
#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

/// Writes the open base, or a selection of it, as an exchange text. Persons, events and documents
/// keep their numbers; unions are numbered by their place in the file. The file is written beside
/// and renamed.
[[nodiscard]] ResultatExport ExporterLgr(shell::Session& session,
                                         const std::filesystem::path& chemin,
                                         const ChoixExport& choix);

/// The bytes of such a file. False when the user gave up: they end where the writer had come.
[[nodiscard]] bool ComposerLgr(shell::Session& session, const ChoixExport& choix,
                               std::string& octets, ComptesExport& comptes);

}  // namespace dorvane::interchange

#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/releves/ImportReleve.h"
#include "shell/Session.h"

#include <filesystem>
#include <string>

namespace dorvane::interchange {

/// The menu command: asks for the file, then as `ImporterFichier`.
shell::Issue MnuImporter(shell::Session& session);

/// Imports a file into a new base of its name beside it, asks before it replaces one, opens the
/// base, writes the report to the working folder and shows it. ".ged" is read as GEDCOM, any other
/// extension as an exchange text; a base is not taken for one.
shell::Issue ImporterFichier(shell::Session& session, const std::filesystem::path& fichier);

/// How an import into a named base ended. Nothing is asked.
struct Importation {
    shell::Issue issue{};  ///< told
    RapportImport rapport;
    RapportReleve releve;                  ///< of a survey, in place of `rapport`
    std::string texte;                     ///< the report; empty when nothing was read
    std::filesystem::path fichierRapport;  ///< where it was written; empty when it could not be
};

/// Imports `fichier` into `base`, which is replaced, tells what went wrong, and writes the report
/// to the working folder. The session's base is closed or another one.
[[nodiscard]] Importation ImporterVers(shell::Session& session,
                                       const std::filesystem::path& fichier,
                                       const std::filesystem::path& base);

/// Imports a survey as `ImporterFichier` does a file: into a new base of its name, which is opened,
/// with a report of what was not understood.
shell::Issue ImporterActes(shell::Session& session, const Releve& releve,
                           const std::filesystem::path& fichier);

/// The same into a named base; nothing is asked.
[[nodiscard]] Importation ImporterActesVers(shell::Session& session, const Releve& releve,
                                            const std::filesystem::path& fichier,
                                            const std::filesystem::path& base);

}  // namespace dorvane::interchange

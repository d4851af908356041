#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/releves/ImportReleve.h"
#include "shell/Session.h"

#include <filesystem>
#include <functional>
#include <string>

namespace dorvane::interchange {

/// Shows the report of an import; set by the floor above. Texts are in code page 1252.
using MontrerRapport = std::function<void(const std::string& titre, const std::string& texte)>;

/// The menu command: asks for the file, then as `ImporterFichier`.
void MnuImporter(shell::Session& session, const MontrerRapport& montrer);

/// Imports a file into a new base of its name beside it, asks before it replaces one, opens the
/// base, writes the report to the working folder and shows it. ".ged" is read as GEDCOM, any other
/// extension as an exchange text; a base is not taken for one.
void ImporterFichier(shell::Session& session, const std::filesystem::path& fichier,
                     const MontrerRapport& montrer);

/// How an import into a named base goes on. Nothing is asked.
struct Importation {
    bool faite = false;
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
void ImporterActes(shell::Session& session, const Releve& releve,
                   const std::filesystem::path& fichier, const MontrerRapport& montrer);

/// The same into a named base; nothing is asked.
[[nodiscard]] Importation ImporterActesVers(shell::Session& session, const Releve& releve,
                                            const std::filesystem::path& fichier,
                                            const std::filesystem::path& base);

}  // namespace dorvane::interchange

#pragma once

#include "interchange/commandes/Importer.h"
#include "interchange/commun/FaireBase.h"
#include "interchange/commun/RapportImport.h"
#include "shell/Session.h"

#include <filesystem>
#include <string>

namespace dorvane::interchange {

enum class IssueIntegration : std::uint8_t {
    Faite,
    Illisible,     ///< the file cannot be opened or read
    PasUnEchange,  ///< it is no exchange text
    Abandonnee,    ///< the user has given up
    TropGrande,    ///< the base cannot hold the records besides its own
};

/// How a merging into the open base ended. Everything but `Faite` leaves the base as it was.
struct Integration {
    IssueIntegration issue = IssueIntegration::Illisible;
    RapportImport rapport;
    std::string texte;  ///< the report; empty when nothing was written
};

/// Merges an exchange text of any version into the open base: its persons, unions, events and
/// documents come behind those that are there, each number raised by the highest one given. Tells
/// what went wrong. The user may give up while the file is read, not any more once it is written.
/// Nothing is committed.
[[nodiscard]] Integration IntegrerLgr(shell::Session& session,
                                      const std::filesystem::path& fichier);

/// The menu command: asks for the file, says what it would add, offers a backup first, merges it in
/// and shows the report. A backup that fails leaves the base closed and merges nothing.
void MnuIntegrer(shell::Session& session, const MontrerRapport& montrer);
/// The same for a file that is known.
void IntegrerFichier(shell::Session& session, const std::filesystem::path& fichier,
                     const MontrerRapport& montrer);

}  // namespace dorvane::interchange

#pragma once

#include "interchange/commun/RapportImport.h"
#include "shell/Issue.h"
#include "shell/Session.h"

#include <filesystem>
#include <string>

namespace dorvane::interchange {

/// How a merging into the open base ended, which was told. What is not done leaves the base as it
/// was.
struct Integration {
    shell::Issue issue{};
    RapportImport rapport;
    std::string texte;  ///< the report; empty when nothing was written
};

/// Merges an exchange text into the open base, after a question when the file is not complete.
[[nodiscard]] Integration IntegrerLgr(shell::Session& session,
                                      const std::filesystem::path& fichier);

/// The menu command: asks for the file, says what it would add, offers a backup first, merges it in
/// and shows the report. A backup that fails leaves the base closed and merges nothing.
shell::Issue MnuIntegrer(shell::Session& session);
/// The same for a file that is known.
shell::Issue IntegrerFichier(shell::Session& session, const std::filesystem::path& fichier);

}  // namespace dorvane::interchange

#pragma once

#include "interchange/commun/Export.h"
#include "interchange/jeux/EncoderJeu.h"

#include <filesystem>
#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

/// What is written, and how.
struct OptionsGedcom {
    ChoixExport choix{};
    JeuExport jeu = JeuExport::Ansi;
    bool reduit = false;  ///< header without file, language and submitter
};

/// Writes the open base, or a selection of it, as a GEDCOM 5.5 file. The file is written beside and
/// renamed. Persons, families, events and documents keep the numbers of the base.
[[nodiscard]] ResultatExport ExporterGedcom(shell::Session& session,
                                            const std::filesystem::path& chemin,
                                            const OptionsGedcom& options);

/// The bytes of such a file. False when the user gave up: they end where the writer had come.
[[nodiscard]] bool ComposerGedcom(shell::Session& session, const std::string& nomFichier,
                                  const OptionsGedcom& options, std::string& octets,
                                  ComptesExport& comptes);

}  // namespace dorvane::interchange

#pragma once

#include "interchange/commun/IssueExport.h"
#include "interchange/jeux/EncoderJeu.h"
#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

struct OptionsExport {
    JeuExport jeu = JeuExport::Ansi;
    bool reduit = false;  ///< header without file, language and submitter
    /// By person number: who is written. Empty: everybody.
    std::vector<bool> choisis{};
    /// Every event and document is written, not only those of the persons chosen.
    bool complet = true;
};

struct ComptesExport {
    std::uint32_t individus = 0;
    std::uint32_t familles = 0;
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
    /// Characters that the set has no form of: they have lost their accent or become "?".
    std::size_t perdus = 0;
};

struct ResultatExport {
    IssueExport issue = IssueExport::Refus;
    ComptesExport comptes;
};

/// Writes the open base, or a selection of it, as a GEDCOM 5.5 file. The file is written beside and
/// renamed. Persons, families, events and documents keep the numbers of the base.
[[nodiscard]] ResultatExport ExporterGedcom(shell::Session& session,
                                            const std::filesystem::path& chemin,
                                            const OptionsExport& options);

/// The bytes of such a file. False when the user gave up: they end where the writer had come.
[[nodiscard]] bool ComposerGedcom(shell::Session& session, const std::string& nomFichier,
                                  const OptionsExport& options, std::string& octets,
                                  ComptesExport& comptes);

}  // namespace dorvane::interchange

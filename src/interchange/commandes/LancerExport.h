#pragma once

#include "interchange/commun/Export.h"
#include "interchange/commun/SelectionExport.h"
#include "interchange/jeux/EncoderJeu.h"
#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

enum class FormatExport : std::uint8_t { Gedcom, Dorvane };

/// One walk of a selection.
struct ParcoursExport {
    NoOrdre depart{};
    SensExport sens = SensExport::Ascendants;
    std::uint32_t generations = GenerationsParDefaut;  ///< 1: the person alone
    friend bool operator==(const ParcoursExport&, const ParcoursExport&) = default;
};

/// What is to be exported, and how.
struct DemandeExport {
    FormatExport format = FormatExport::Gedcom;
    JeuExport jeu = JeuExport::Ansi;  ///< of a GEDCOM file
    bool reduit = false;              ///< header of a GEDCOM file without its writer
    bool entiere = true;              ///< the whole base; else the list and the walks
    ReglagesSelection reglages{};
    std::vector<NoOrdre> liste{};
    std::vector<ParcoursExport> parcours{};
};

/// What is ticked when the window opens: as it was last left, the set as the settings say unless
/// another one was taken since they were changed. `parcours` holds one walk without a person, which
/// says the direction and the generations.
[[nodiscard]] DemandeExport DernierExport(const shell::Session& session);
/// Keeps them; of the walks the last one counts.
void RetenirExport(shell::Session& session, const DemandeExport& demande);

/// How much a file would hold.
struct ComptesSelection {
    std::uint32_t retenus = 0;  ///< persons selected
    std::uint32_t marques = 0;  ///< the same and their near kin
    std::uint32_t individus = 0;
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
};

/// A base is open. Linear in the persons selected and in what hangs on them.
[[nodiscard]] ComptesSelection CompterExport(shell::Session& session, const DemandeExport& demande);

struct Lancement {
    shell::Issue issue{};
    bool vide = false;                ///< refused because nobody would be written
    std::filesystem::path fichier{};  ///< what was written; empty unless it is done
    ComptesExport comptes{};
};

/// Asks for the file, writes it and tells how it ended. A name without the extension of the format
/// gets it; the files of the open base are refused.
[[nodiscard]] Lancement LancerExport(shell::Session& session, const DemandeExport& demande);

/// Writes a file that is known from the open base, without a question; how it ended is not told.
/// Stopped, it leaves what it has written at `shell::CheminPartiel`.
[[nodiscard]] ResultatExport ExporterVers(shell::Session& session, const DemandeExport& demande,
                                          const std::filesystem::path& fichier);

/// The bytes that it would write, for a file called `nom`. False when the user gave up.
[[nodiscard]] bool ComposerExport(shell::Session& session, const DemandeExport& demande,
                                  const std::string& nom, std::string& octets,
                                  ComptesExport& comptes);

}  // namespace dorvane::interchange

#pragma once

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

enum class IssueLancement : std::uint8_t {
    Fait,
    Refuse,      ///< not now: no base, a long job, an unsaved sheet
    Vide,        ///< nobody would be written
    Renonce,     ///< no file was chosen
    Interrompu,  ///< stopped while it was written
    Echec,       ///< the system refuses to write
};

struct Lancement {
    IssueLancement issue = IssueLancement::Refuse;
    std::filesystem::path fichier{};  ///< what was written; empty unless `Fait`
    std::uint32_t individus = 0;
    std::uint32_t unions = 0;
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
    std::size_t perdus = 0;  ///< characters that the set has no form of
    std::uint32_t omis = 0;  ///< unions and list entries that the format has no place for
};

/// Asks for the file, writes it and tells how it ended. A name without the extension of the format
/// gets it; the files of the open base are refused.
[[nodiscard]] Lancement LancerExport(shell::Session& session, const DemandeExport& demande);

}  // namespace dorvane::interchange

#pragma once

#include "interchange/commun/FaireBase.h"
#include "interchange/releves/Releve.h"
#include "shell/Session.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace dorvane::interchange {

/// What a survey gave and what of it was not understood.
struct RapportReleve {
    struct Constat {
        std::uint32_t ligne = 0;  ///< in the file, from 1
        NoMessage message{};
    };
    std::vector<Constat> constats;  ///< in the order of the lines
    std::uint32_t lignes = 0;       ///< taken over
    std::uint32_t individus = 0;
    std::uint32_t evenements = 0;
    std::uint32_t unions = 0;
};

/// What a survey would give, without a base: for the preview.
[[nodiscard]] RapportReleve ExaminerReleve(const shell::Session& session, const Releve& releve);

/// Fills a new base from a survey: one event and the persons of each line, or one person a line
/// for ascendants. `fichier`: the name that document 1 gets. False when the user gives up.
[[nodiscard]] bool RemplirReleve(shell::Session& session, storage::Base& base, const Releve& releve,
                                 const std::filesystem::path& fichier, RapportReleve& rapport);

/// Makes a new base of a survey, which replaces one of that name. The session's own base is closed
/// or another one.
[[nodiscard]] shell::Issue ImporterReleve(shell::Session& session, const Releve& releve,
                                          const std::filesystem::path& fichier,
                                          const std::filesystem::path& base,
                                          RapportReleve& rapport);

/// The kind of a survey in the user's language: "Baptême".
[[nodiscard]] std::string NomReleve(const shell::Session& session, SorteReleve sorte);

/// The report as lines of text in code page 1252, ended by line feeds.
[[nodiscard]] std::string ComposerRapport(const RapportReleve& rapport, const Releve& releve,
                                          const shell::Session& session);

}  // namespace dorvane::interchange

#pragma once

#include "shell/Catalogue.h"
#include "shell/Dialogue.h"

#include <filesystem>
#include <optional>
#include <string>

namespace dorvane::outil {

/// The user of the command line: messages go to standard error, questions are answered by the
/// options of the command, and by the terminal where there is one.
class DialogueTerminal final : public shell::Dialogue {
public:
    using Dialogue::Informer;

    /// The texts come from here; it outlives the object. Set once the session is there.
    const shell::Catalogue* catalogue = nullptr;
    /// What every question is answered; nothing: the terminal is asked, and without a terminal the
    /// answer is the one that changes least, which is told.
    std::optional<shell::Reponse> reponse;
    /// What a command that asks for a file is given.
    std::filesystem::path fichier;

    void Informer(const shell::Phrase& texte, const shell::Phrase& titre) override;
    void Annoncer(const shell::Phrase& texte) override;
    [[nodiscard]] shell::Reponse Demander(const shell::Question& question) override;
    [[nodiscard]] NoOrdre ChoisirPersonne(const shell::DemandePersonne& demande) override;
    [[nodiscard]] std::optional<std::filesystem::path> ChoisirFichier(
        const shell::DemandeFichier& demande) override;

private:
    [[nodiscard]] std::string EnClair(const shell::Phrase& phrase) const;
};

}  // namespace dorvane::outil

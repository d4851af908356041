#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>

#include "shell/Dialogue.h"

class QWidget;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class MDIForm1;

/// Questions and messages in boxes over the window in use.
class DialogueQt final : public shell::Dialogue {
public:
    using Dialogue::Informer;

    /// Before the first message; both outlive it.
    void Attacher(shell::Session& session, MDIForm1& fenetre);

    void Informer(const shell::Phrase& texte, const shell::Phrase& titre) override;
    void Annoncer(const shell::Phrase& texte) override;
    [[nodiscard]] shell::Reponse Demander(const shell::Question& question) override;
    [[nodiscard]] NoOrdre ChoisirPersonne(const shell::DemandePersonne& demande) override;
    [[nodiscard]] std::optional<std::filesystem::path> ChoisirFichier(
        const shell::DemandeFichier& demande) override;

private:
    [[nodiscard]] QWidget* Dessous() const;
    [[nodiscard]] QString Composer(const shell::Phrase& texte) const;
    [[nodiscard]] QString Titre(const shell::Phrase& titre) const;

    shell::Session* session_ = nullptr;
    QPointer<MDIForm1> fenetre_;
};

/// The filters of a file dialog from "description|pattern;pattern" pairs, each pattern in small
/// and in capital letters: names of files tell them apart.
[[nodiscard]] QStringList FiltresFichiers(const std::string& filtre);

}  // namespace dorvane::windows

#pragma once

#include <QDialog>

#include "records/FicheDocument.h"
#include "windows/controles/FenetreFille.h"

#include <filesystem>
#include <memory>

namespace Ui {
class FrmDesImage;
}

namespace dorvane::windows {

/// One document: title, file, kind, comment. Modal: shown by `exec`, which answers `Accepted` once
/// it is saved. A file may be dropped on it.
class FrmDesImage final : public FenetreFille {
    Q_OBJECT

public:
    /// `document` 0: a new one.
    FrmDesImage(shell::Session& session, NoDocument document, QWidget* parent);
    ~FrmDesImage() override;

    /// Names a file, and gives a title to a document without one.
    void ProposerFichier(const std::filesystem::path& fichier);

    /// The document; 0 for a new one that was given up.
    [[nodiscard]] NoDocument Document() const { return saisie_.document; }

    void Traduire() override;

    /// Escape and the closing of the window ask first when something is not saved.
    void reject() override;

protected:
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    void RemplirTypes();
    [[nodiscard]] std::size_t Lire();
    void CmdFichierClique();
    void CmdValiderClique();
    void BasculerLien(bool lien);
    void NommerFichier(const std::filesystem::path& chemin);
    void SuivreFichier();
    void MontrerApercu();

    std::unique_ptr<Ui::FrmDesImage> ui_;
    records::SaisieDocument saisie_;
};

}  // namespace dorvane::windows

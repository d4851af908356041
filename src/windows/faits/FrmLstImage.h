#pragma once

#include <QDialog>

#include "storage/Documents.h"
#include "values/Numeros.h"
#include "windows/faits/FenetreListe.h"

#include <filesystem>
#include <memory>
#include <vector>

class QMimeData;

namespace Ui {
class FrmLstImage;
}

namespace dorvane::windows {

class ModeleDocuments;

/// All documents of the base by title. Files that are dropped become documents; a person that is
/// dropped on a row gets that document.
class FrmLstImage final : public FenetreListe {
    Q_OBJECT

public:
    FrmLstImage(shell::Session& session, QWidget* parent);
    ~FrmLstImage() override;

    /// Runs the list as a chooser, in which a new document can be made; 0 when the user gives up.
    [[nodiscard]] static NoDocument Choisir(shell::Session& session, QWidget* parent);

    [[nodiscard]] NoDocument Choisi() const;

protected:
    [[nodiscard]] std::vector<std::uint32_t> Numeros() const override;
    void OuvrirChoisi() override;
    void Ajouter() override;
    [[nodiscard]] bool SupprimerChoisi() override;
    void PoserBoutons() override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;

private:
    void AjouterFichiers(const std::vector<std::filesystem::path>& fichiers);
    void Modifier(NoDocument document);
    void MontrerUsages();
    void PoserTitre(bool pose);
    void Deposer(const QMimeData* donnees, NoDocument sur);

    std::unique_ptr<Ui::FrmLstImage> ui_;
    ModeleDocuments* modele_;
};

}  // namespace dorvane::windows

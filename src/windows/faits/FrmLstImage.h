#pragma once

#include <QDialog>

#include "storage/Documents.h"
#include "values/Numeros.h"
#include "windows/controles/FenetreFille.h"

#include <filesystem>
#include <memory>
#include <vector>

class QMimeData;

namespace Ui {
class FrmLstImage;
}

namespace dorvane::windows {

class ListeFiltree;
class ModeleDocuments;

/// All documents of the base by title. Files that are dropped become documents; a person that is
/// dropped on a row gets that document.
class FrmLstImage final : public FenetreFille {
    Q_OBJECT

public:
    FrmLstImage(shell::Session& session, QWidget* parent);
    ~FrmLstImage() override;

    /// Runs the list as a chooser, in which a new document can be made; 0 when the user gives up.
    [[nodiscard]] static NoDocument Choisir(shell::Session& session, QWidget* parent);

    [[nodiscard]] NoDocument Choisi() const;

    void Traduire() override;
    void Recharger() override;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void done(int resultat) override;

private:
    void Ajouter(const std::vector<std::filesystem::path>& fichiers);
    void MettreAJour();
    void Modifier(NoDocument document);
    void Supprimer();
    void MontrerUsages();
    void PoserTitre(bool pose);
    void PoserBoutons();
    void Deposer(const QMimeData* donnees, NoDocument sur);

    std::unique_ptr<Ui::FrmLstImage> ui_;
    ModeleDocuments* modele_;
    ListeFiltree* liste_;
    bool choix_ = false;  ///< runs as a chooser
};

}  // namespace dorvane::windows

#pragma once

#include <QDialog>

#include "values/Numeros.h"
#include "windows/controles/FenetreFille.h"

#include <memory>

namespace Ui {
class FrmLstEvt;
}

namespace dorvane::windows {

class ListeFiltree;
class ModeleEvenements;

/// All events of the base by date. A person that is dropped on a row joins that event; beside the
/// rows, it begins a new one.
class FrmLstEvt final : public FenetreFille {
    Q_OBJECT

public:
    FrmLstEvt(shell::Session& session, QWidget* parent);
    ~FrmLstEvt() override;

    /// Runs the list as a chooser; 0 when the user gives up.
    [[nodiscard]] static NoEvenement Choisir(shell::Session& session, QWidget* parent);

    [[nodiscard]] NoEvenement Choisi() const;

    void Traduire() override;
    void Recharger() override;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void done(int resultat) override;

private:
    void Ouvrir(NoEvenement evenement, NoOrdre pour);
    void Supprimer();
    void PoserBoutons();

    std::unique_ptr<Ui::FrmLstEvt> ui_;
    ModeleEvenements* modele_;
    ListeFiltree* liste_;
    bool choix_ = false;  ///< runs as a chooser
};

}  // namespace dorvane::windows

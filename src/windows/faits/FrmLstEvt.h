#pragma once

#include <QDialog>

#include "values/Numeros.h"
#include "windows/faits/FenetreListe.h"

#include <memory>

namespace Ui {
class FrmLstEvt;
}

namespace dorvane::windows {

class ModeleEvenements;

/// All events of the base by date. A person that is dropped on a row joins that event; beside the
/// rows, it begins a new one.
class FrmLstEvt final : public FenetreListe {
    Q_OBJECT

public:
    FrmLstEvt(shell::Session& session, QWidget* parent);
    ~FrmLstEvt() override;

    /// Runs the list as a chooser; 0 when the user gives up.
    [[nodiscard]] static NoEvenement Choisir(shell::Session& session, QWidget* parent);

    [[nodiscard]] NoEvenement Choisi() const;

protected:
    [[nodiscard]] std::vector<std::uint32_t> Numeros() const override;
    void OuvrirChoisi() override;
    void Ajouter() override;
    [[nodiscard]] bool SupprimerChoisi() override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;

private:
    void Ouvrir(NoEvenement evenement, NoOrdre pour);

    std::unique_ptr<Ui::FrmLstEvt> ui_;
    ModeleEvenements* modele_;
};

}  // namespace dorvane::windows

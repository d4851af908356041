#pragma once

#include <QDialog>

#include "records/SaisieEvenement.h"
#include "windows/FenetreFille.h"

#include <memory>
#include <string>

class QAbstractItemView;
class QLineEdit;

namespace Ui {
class FrmDesEvt;
}

namespace dorvane::windows {

class ModeleDocuments;
class ModeleLiens;

/// One event: date, kind, place, label, comment, persons with their roles, documents. Modal: shown
/// by `exec`. All of it is written by `CmdMaj`, nothing before.
class FrmDesEvt final : public FenetreFille {
public:
    /// `evenement` 0: a new event, to which `pour` (0 for nobody) is linked with `role`, in its
    /// stored form; an empty role is chosen once the kind is known.
    FrmDesEvt(shell::Session& session, NoEvenement evenement, NoOrdre pour, const std::string& role,
              QWidget* parent);
    ~FrmDesEvt() override;

    /// The event; 0 for a new one that was given up.
    [[nodiscard]] NoEvenement Evenement() const { return saisie_.evenement; }
    /// Something was written to the base.
    [[nodiscard]] bool Ecrit() const { return ecrit_; }

    void Traduire() override;

    /// Escape and the closing of the window ask first when something is not saved.
    void reject() override;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    std::unique_ptr<Ui::FrmDesEvt> ui_;
    records::SaisieEvenement saisie_;
    bool ecrit_ = false;
};

}  // namespace dorvane::windows

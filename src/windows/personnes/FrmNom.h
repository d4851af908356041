#pragma once

#include <QDialog>

#include "shell/Dialogue.h"
#include "windows/controles/FenetreFille.h"

#include <memory>

namespace Ui {
class FrmNom;
}

namespace dorvane::windows {

class ModeleNoms;

/// The chooser behind every question for a person: all names, narrowed while typing.
class FrmNom final : public FenetreFille {
    Q_OBJECT

public:
    FrmNom(shell::Session& session, const shell::DemandePersonne& demande, QWidget* parent);
    ~FrmNom() override;

    /// The person of the selected row; 0 when there is none.
    [[nodiscard]] NoOrdre Choisie() const;

    void Traduire() override;

protected:
    void done(int resultat) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void PreparerListe(NoOrdre depart);
    void Filtrer();
    void Positionner();
    void Compter();
    void Choisir(int rangee);

    shell::DemandePersonne demande_;
    std::unique_ptr<Ui::FrmNom> ui_;
    ModeleNoms* modele_;
};

}  // namespace dorvane::windows

#pragma once

#include <QDialog>

#include "interchange/commandes/LancerExport.h"
#include "interchange/commandes/PreparationExport.h"
#include "values/Numeros.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <vector>

namespace Ui {
class FrmExporter;
}

namespace dorvane::windows {

/// Writes the base, or the persons that are selected here, to a file. What is selected adds up:
/// a list that another window hands over, and walks from a person.
class FrmExporter final : public FenetreFille {
    Q_OBJECT

public:
    FrmExporter(shell::Session& session, QWidget* parent);
    ~FrmExporter() override;

    /// The persons of a list are what is selected, in place of what was; persons whom the base does
    /// not have are left out. An empty list selects nobody.
    void Selectionner(const std::vector<NoOrdre>& liste);

    /// How far the export is; `total` 0: not known.
    void DireAvancement(const QString& texte, quint32 fait, quint32 total);

    void Traduire() override;
    void Recharger() override;
    /// While an export runs it is stopped, and the window stays.
    void reject() override;

Q_SIGNALS:
    /// The user wants the export that runs to be stopped.
    void annulationDemandee();

protected:
    void showEvent(QShowEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void done(int resultat) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void Relier();
    void Proposer();
    void PoserDepart(NoOrdre individu);
    void ChoisirDepart();
    void AjouterParcours();
    void RetirerLigne();
    void Vider();
    void Lancer();
    void Retenir();
    void MontrerResultat(const interchange::Lancement& lancement);
    void MontrerSelection();
    void Compter();
    void PoserEtats();
    void Occuper(bool enCours);
    void BornerHauteur();
    [[nodiscard]] bool Vide() const;
    [[nodiscard]] interchange::ParcoursExport ParcoursMontre() const;
    [[nodiscard]] interchange::DemandeExport Demande() const;

    std::unique_ptr<Ui::FrmExporter> ui_;
    interchange::PreparationExport preparation_;
    interchange::Lancement dernier_;  ///< what `PnlResultat` shows
    bool enCours_ = false;
};

}  // namespace dorvane::windows

#pragma once

#include <QDialog>

#include "records/SaisieEvenement.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

class QComboBox;

namespace Ui {
class FrmDesEvt;
}

namespace dorvane::windows {

class ModeleDocuments;
class ModeleLiens;

/// One event: date, kind, place, label, comment, persons with their roles, documents. Modal: shown
/// by `exec`. All of it is written by `CmdMaj`, nothing before but persons and documents made on
/// the way.
class FrmDesEvt final : public FenetreFille {
    Q_OBJECT

public:
    /// `evenement` 0: a new event. `pour` (0 for nobody) is linked with `role`, in its stored form;
    /// an empty role is chosen once the kind is known.
    FrmDesEvt(shell::Session& session, NoEvenement evenement, NoOrdre pour, const std::string& role,
              QWidget* parent);
    ~FrmDesEvt() override;

    /// The event; 0 for a new one that was given up.
    [[nodiscard]] NoEvenement Evenement() const { return saisie_.evenement; }
    /// Something was written to the base.
    [[nodiscard]] bool Ecrit() const { return ecrit_; }

    void Traduire() override;
    void ChangerLangue(const MotsDeLangue& avant) override;

    /// Escape and the closing of the window ask first when something is not saved.
    void reject() override;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void done(int resultat) override;
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    void PreparerListes();
    void Connecter();
    void RemplirTypes();
    void TraduireListe(QComboBox& liste, const MotsDeLangue& avant);
    void RemplirRoles();
    void Montrer();
    [[nodiscard]] std::size_t Lire();
    [[nodiscard]] std::string TagDe(const QComboBox& liste) const;
    void SuivreDate();
    void SuivreType();
    void PoserBoutons();
    void MontrerLiens(int rangee);
    void MontrerDocuments(NoDocument choisi);

    void CmdMajClique();
    void AjouterLien(NoOrdre individu, bool cree);
    void ChercherPersonne();
    void CreerPersonne();
    void RetirerLien();
    void DeplacerLien(int pas);
    void ChangerRole(int rangee, const QString& role);
    void SaisirMots();
    void AjouterDocument(NoDocument document);
    void RetirerDocument();
    void DeplacerDocument(int pas);
    [[nodiscard]] NoDocument DocumentChoisi() const;

    std::unique_ptr<Ui::FrmDesEvt> ui_;
    records::SaisieEvenement saisie_;
    ModeleLiens* liens_;
    ModeleDocuments* documents_;
    bool ecrit_ = false;
};

}  // namespace dorvane::windows

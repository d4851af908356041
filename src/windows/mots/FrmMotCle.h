#pragma once

#include <QDialog>

#include "records/FicheMotsCles.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <optional>
#include <vector>

class QListWidget;
class QToolButton;

namespace Ui {
class FrmMotCle;
}

namespace dorvane::windows {

/// The keywords of the base, and which of them are lines of the sheets of persons and unions.
class FrmMotCle final : public FenetreFille {
    Q_OBJECT

public:
    FrmMotCle(shell::Session& session, QWidget* parent);
    ~FrmMotCle() override;

    void Traduire() override;
    void Recharger() override;
    [[nodiscard]] bool ConfirmerFermeture() override;
    /// Escape and the closing of the window ask first when something is not saved.
    void reject() override;

protected:
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    /// The list of one sheet with its buttons.
    struct Panneau {
        records::TableLignes table;
        QListWidget* liste;
        QToolButton* ajouter;
        QToolButton* retirer;
        QToolButton* monter;
        QToolButton* descendre;
    };

    void Relier(const Panneau& panneau);
    [[nodiscard]] records::LigneMotCle Choisi() const;
    [[nodiscard]] std::optional<records::SaisieMotCle> Saisie() const;
    /// `garder`: what is typed for the keyword that was shown stays.
    void Relire(bool garder);
    void ListerMots(NoMotCle choisi, bool garder = false);
    void ListerLignes(const Panneau& panneau, int rang);
    void MontrerMot(bool garder = false);
    [[nodiscard]] bool Modifie() const;
    [[nodiscard]] bool CodeChange() const;
    /// Adds the keyword when its code is another one, else changes it. False when refused.
    bool Enregistrer();
    void ActiverBoutons();
    bool Ajouter();
    bool Modifier();
    void Supprimer();
    void Deplacer(int sens);
    void Changer(bool change);

    std::unique_ptr<Ui::FrmMotCle> ui_;
    std::vector<Panneau> panneaux_;
    std::vector<records::LigneMotCle> mots_;
    records::LigneMotCle montre_;  ///< the keyword in the fields, as it is stored
};

}  // namespace dorvane::windows

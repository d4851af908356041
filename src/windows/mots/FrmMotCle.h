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
    void ListerMots(NoMotCle choisi);
    void ListerLignes(const Panneau& panneau, int rang);
    void MontrerMot();
    void ActiverBoutons();
    void Ajouter();
    void Modifier();
    void Supprimer();
    void Deplacer(int sens);
    void Changer(bool change);

    std::unique_ptr<Ui::FrmMotCle> ui_;
    std::vector<Panneau> panneaux_;
    std::vector<records::LigneMotCle> mots_;
};

}  // namespace dorvane::windows

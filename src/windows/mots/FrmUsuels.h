#pragma once

#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

class QLineEdit;

namespace Ui {
class FrmUsuels;
}

namespace dorvane::windows {

/// The words that the user types often, by rubriques.
class FrmUsuels final : public FenetreFille {
    Q_OBJECT

public:
    FrmUsuels(shell::Session& session, QWidget* parent);
    ~FrmUsuels() override;

    void Traduire() override;
    [[nodiscard]] bool ConfirmerFermeture() override;
    /// Escape and the closing of the window ask first when a word is typed and not added.
    void reject() override;

protected:
    [[nodiscard]] bool EnregistrerSaisie() override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    [[nodiscard]] std::string Rubrique() const;
    void ListerRubriques(const QString& choisie);
    void ListerMots();
    void ActiverBoutons();
    void AjouterMot();
    void SupprimerMot();
    void AjouterRubrique();
    /// Adds what is typed in one of the two fields; false when it still stands there.
    bool Verser(const QLineEdit& champ);
    void SupprimerRubrique();

    std::unique_ptr<Ui::FrmUsuels> ui_;
};

}  // namespace dorvane::windows

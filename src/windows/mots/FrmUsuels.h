#pragma once

#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

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

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    [[nodiscard]] std::string Rubrique() const;
    void ListerRubriques(const QString& choisie);
    void ListerMots();
    void ActiverBoutons();
    void AjouterMot();
    void SupprimerMot();
    void AjouterRubrique();
    void SupprimerRubrique();

    std::unique_ptr<Ui::FrmUsuels> ui_;
};

}  // namespace dorvane::windows

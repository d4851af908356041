#pragma once

#include <QDialog>

#include "records/Choix.h"
#include "shell/Dialogue.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

namespace Ui {
class FenetreChoix;
}

namespace dorvane::windows {

class ModelePersonnes;

/// What the four choosers of a relative share: persons whose years fit, 20 at a time, narrowed by
/// name. Modal: shown by `exec`, which answers `Accepted` once a person was chosen.
class FenetreChoix : public FenetreFille {
public:
    ~FenetreChoix() override;

    /// The person of the selected row; 0 when there is none.
    [[nodiscard]] NoOrdre Choisie() const;

    void Traduire() override;
    void Recharger() override;

protected:
    /// `nom` is the name of the window. `filtre`: what `TxtNom` starts with, in code page 1252.
    FenetreChoix(shell::Session& session, const QString& nom, const records::DemandeChoix& demande,
                 const std::string& filtre, QWidget* parent);

    /// What choosing does; the window closes on true.
    [[nodiscard]] virtual bool Prendre(NoOrdre individu);

    void done(int resultat) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void PreparerListe();
    void Valider();
    void Appliquer();
    /// Shows the page in use, with its first or its last row selected.
    void Montrer(bool fin = false);
    void MontrerApercu();
    void Tourner(int pas);
    void Dire();
    [[nodiscard]] bool ToucheListe(int touche, bool dansListe);

    std::unique_ptr<Ui::FenetreChoix> ui_;
    records::Choix choix_;
    ModelePersonnes* modele_;
};

}  // namespace dorvane::windows

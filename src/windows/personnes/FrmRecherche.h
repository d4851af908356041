#pragma once

#include <QDialog>

#include "records/RechercheNoms.h"
#include "windows/controles/FenetreFille.h"

#include <memory>

namespace Ui {
class FrmRecherche;
}

namespace dorvane::windows {

class ModelePersonnes;

/// The search for a text in all names. The list can be completed by further searches and by hand,
/// and every person of it shown in the chart or in the sheet. It lives until the window closes.
class FrmRecherche final : public FenetreFille {
    Q_OBJECT

public:
    FrmRecherche(shell::Session& session, QWidget* parent);
    ~FrmRecherche() override;

    void Traduire() override;
    void Recharger() override;

    /// The person of the row in use; 0 when there is none.
    [[nodiscard]] NoOrdre Choisie() const;

protected:
    void showEvent(QShowEvent* evenement) override;
    void done(int resultat) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void PreparerListe();
    void Rechercher();
    void Afficher();
    void OuvrirFiche();
    void Ajouter(NoOrdre individu);
    void Ecarter();
    void Montrer();
    void PoserBoutons();

    std::unique_ptr<Ui::FrmRecherche> ui_;
    records::RechercheNoms recherche_;
    ModelePersonnes* modele_;
    QString cherche_;  ///< the text of the last search
};

}  // namespace dorvane::windows

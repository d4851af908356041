#pragma once

#include <QDialog>

#include "records/ControleBase.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <optional>
#include <vector>

namespace Ui {
class FrmControle;
}

namespace dorvane::windows {

class ListeFiltree;
class ModeleAnomalies;
class ModeleSortes;

/// What looks wrong in the base, found while the window is open and can be used.
class FrmControle final : public FenetreFille {
    Q_OBJECT

public:
    FrmControle(shell::Session& session, QWidget* parent);
    ~FrmControle() override;

    /// Scans the base; what an earlier scan has found goes. Returns at the end of the scan, or once
    /// it is stopped. Nothing while one runs. `CommandePermise` is the caller's.
    void Controler();

    void Traduire() override;
    void Recharger() override;

protected:
    /// The first Escape, or the first press of the close button, only stops the scan.
    void reject() override;
    void done(int resultat) override;

private:
    enum class Etat { Neuf, EnCours, Complet, Interrompu };

    void PreparerListes();
    /// Shows the findings that have come in.
    void Verser(std::vector<records::Constat>& recus);
    void MontrerSorte();
    void MontrerFiche();
    void PoserEtat();
    void PoserBoutons();
    [[nodiscard]] NoOrdre Choisie() const;
    /// False, and told, while a long job runs.
    [[nodiscard]] bool Libre() const;
    void OuvrirFiche(NoOrdre individu);
    void Aller();
    void CmdTexteClique();
    void Relancer();
    void MontrerMenu(const QPoint& point);

    std::unique_ptr<Ui::FrmControle> ui_;
    ModeleAnomalies* modele_;
    ModeleSortes* sortes_;
    ListeFiltree* liste_;
    Etat etat_ = Etat::Neuf;
    bool arret_ = false;                          ///< the user has stopped the scan
    std::optional<records::SorteConstat> sorte_;  ///< the kind shown; none: all kinds
};

}  // namespace dorvane::windows

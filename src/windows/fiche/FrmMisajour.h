#pragma once

#include <QDialog>

#include "records/SaisieFiche.h"
#include "values/Numeros.h"
#include "values/Sexe.h"
#include "windows/controles/FenetreFille.h"
#include "windows/fiche/PageFiche.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Ui {
class FrmMisajour;
}

namespace dorvane::windows {

class PageFaits;
class PageLiens;

/// The person sheet: one person with all that belongs to it. What is typed is kept in the fields
/// until `C_Maj`; what the buttons of relatives, events and documents do is written at once.
class FrmMisajour final : public FenetreFille, private ServicesFiche {
    Q_OBJECT

public:
    FrmMisajour(shell::Session& session, QWidget* parent);
    ~FrmMisajour() override;

    /// Shows a person, 0 for a new one that is to be typed, after the question for what is not
    /// saved. False when the user stays, and for a number that is no person.
    bool Ouvrir(NoOrdre individu);
    /// The person shown; 0 for a new one.
    [[nodiscard]] NoOrdre Individu() const { return individu_; }

    void Traduire() override;
    void Recharger() override;
    [[nodiscard]] bool ConfirmerFermeture() override;
    /// Escape and the closing of the window ask first when something is not saved.
    void reject() override;

protected:
    void done(int resultat) override;
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    enum Onglet { Faits, Unions, Liens };

    [[nodiscard]] bool Preparer() override;
    void Ecrit(bool valider) override;
    void Montrer(NoOrdre individu) override;
    void Changer() override;
    [[nodiscard]] bool Demander() override;

    void FairePages();
    void AllerALaPage(int page);
    void RelierParents();
    void Charger(bool garder = false);
    void MontrerParents();
    void MontrerTitres();
    void EnchainerPages();
    [[nodiscard]] records::SaisieFiche Lire(std::size_t& remplaces) const;
    [[nodiscard]] bool Modifiee() const;
    bool Valider();
    void AllerAuChamp(records::Champ champ);
    void Supprimer();
    void Voisin(int pas);
    void ChercherParent(Cote cote);
    void CreerParent(Cote cote);
    void RetirerParent(Cote cote);
    void DeposerParent(Cote cote, NoOrdre parent);
    void AllerAuParent(Cote cote);

    std::unique_ptr<Ui::FrmMisajour> ui_;
    std::vector<PageFiche*> pages_;
    PageFaits* faits_ = nullptr;
    PageLiens* liens_ = nullptr;
    NoOrdre individu_{};
    bool charge_ = false;  ///< fields are being filled
    bool ecrite_ = false;  ///< the last commit changed something
};

}  // namespace dorvane::windows

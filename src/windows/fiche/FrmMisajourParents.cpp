// Father and mother of the sheet: what the buttons show, and the operations behind them.
#include "ui_FrmMisajour.h"

#include "messages/Fiche.h"
#include "records/Famille.h"
#include "records/Filiation.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Legendes.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmPere.h"

namespace dorvane::windows {

void FrmMisajour::RelierParents() {
    ui_->N_Père->Attacher(S());
    ui_->N_Mère->Attacher(S());
    for (BoutonPersonne* bouton : {ui_->N_Père, ui_->N_Mère}) {
        const Cote cote = bouton == ui_->N_Père ? Cote::Pere : Cote::Mere;
        connect(bouton, &QToolButton::clicked, this, [this, bouton, cote] {
            if (bouton->Individu())
                Ouvrir(bouton->Individu());
            else
                ChercherParent(cote);
        });
        connect(bouton, &BoutonPersonne::deposee, this,
                [this, cote](quint32 n) { DeposerParent(cote, NoOrdre{n}); });
    }
    const auto relier = [this](QToolButton& bouton, void (FrmMisajour::*action)(Cote), Cote cote) {
        connect(&bouton, &QToolButton::clicked, this,
                [this, action, cote] { (this->*action)(cote); });
    };
    relier(*ui_->C_Rechpère, &FrmMisajour::ChercherParent, Cote::Pere);
    relier(*ui_->C_Rechmère, &FrmMisajour::ChercherParent, Cote::Mere);
    relier(*ui_->CmdCréPère, &FrmMisajour::CreerParent, Cote::Pere);
    relier(*ui_->CmdCréMère, &FrmMisajour::CreerParent, Cote::Mere);
    relier(*ui_->C_Spère, &FrmMisajour::RetirerParent, Cote::Pere);
    relier(*ui_->C_Smère, &FrmMisajour::RetirerParent, Cote::Mere);
}

void FrmMisajour::MontrerParents() {
    const auto lire = [this](Cote cote) {
        return S().base && individu_ ? records::LireParent(*S().base, individu_, cote) : NoOrdre{};
    };
    const NoOrdre pere = lire(Cote::Pere);
    const NoOrdre mere = lire(Cote::Mere);
    ui_->N_Père->Poser(pere, TexteEcran(S(), message::PereInconnu));
    ui_->N_Mère->Poser(mere, TexteEcran(S(), message::MereInconnue));
    ui_->C_Spère->setEnabled(static_cast<bool>(pere));
    ui_->C_Rechpère->setEnabled(!pere);
    ui_->CmdCréPère->setEnabled(!pere);
    ui_->C_Smère->setEnabled(static_cast<bool>(mere));
    ui_->C_Rechmère->setEnabled(!mere);
    ui_->CmdCréMère->setEnabled(!mere);
}

void FrmMisajour::ChercherParent(Cote cote) {
    if (!Preparer()) return;
    FrmPere fenetre{S(), individu_, cote, this};
    if (fenetre.exec() != QDialog::Accepted) return;
    Ecrit(true);
    AllerAuParent(cote);
}

void FrmMisajour::CreerParent(Cote cote) {
    if (!Preparer()) return;
    const NoOrdre parent =
        FrmCreation::Creer(S(), DepartDeParent(S().base->R_NOM.NomDe(individu_), cote), this);
    if (!parent) return;
    const bool lie = records::ParentCree(S(), individu_, cote, parent);
    Ecrit(lie);
    AllerAuParent(cote);
}

/// The buttons that were pressed are off now: the focus must not fall on the one that takes the
/// parent away.
void FrmMisajour::AllerAuParent(Cote cote) {
    (cote == Cote::Pere ? ui_->N_Père : ui_->N_Mère)->setFocus();
}

void FrmMisajour::RetirerParent(Cote cote) {
    if (Preparer() && records::RetirerParent(S(), individu_, cote)) Ecrit(true);
}

void FrmMisajour::DeposerParent(Cote cote, NoOrdre parent) {
    if (Preparer() && records::PeutEtreParent(S(), individu_, cote, parent) &&
        records::ConfirmerRemplacement(S(), individu_, cote, parent) &&
        records::DonnerParent(S(), individu_, cote, parent))
        Ecrit(true);
}

}  // namespace dorvane::windows

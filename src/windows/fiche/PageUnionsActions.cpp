// The buttons of the page: each asks whether it may, lets the user choose or make a person, and
// calls the operation. The rules and the questions are those of the operations.
#include "ui_PageUnions.h"

#include "records/Filiation.h"
#include "records/Unions.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/fiche/PageUnions.h"
#include "windows/personnes/FrmConjoints.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmEnfants.h"

#include <optional>

namespace dorvane::windows {

void PageUnions::RelierUnions() {
    connect(ui_->C_Rechconjoint, &QToolButton::clicked, this, &PageUnions::ChercherConjoint);
    connect(ui_->CmdCréConjoint, &QToolButton::clicked, this, &PageUnions::CreerConjoint);
    connect(ui_->C_Smar, &QToolButton::clicked, this, &PageUnions::RetirerUnion);
    connect(ui_->L_Conjoint, &TableFiche::suppressionDemandee, this, &PageUnions::RetirerUnion);
    connect(ui_->CmdMarUp, &QToolButton::clicked, this, [this] { Ranger(-1); });
    connect(ui_->CmdMarDown, &QToolButton::clicked, this, [this] { Ranger(1); });
    connect(ui_->L_Conjoint, &TableFiche::deposee, this, [this](quint32 n) {
        if (Fiche().Preparer() &&
            records::PeutAvoirConjoint(S(), Individu(), records::Provenance::Cherche))
            Unir(NoOrdre{n});
    });
}

void PageUnions::RelierEnfants() {
    connect(ui_->CmdRechEnft, &QToolButton::clicked, this, &PageUnions::ChercherEnfant);
    connect(ui_->CmdCréEnfant, &QToolButton::clicked, this, &PageUnions::CreerEnfant);
    connect(ui_->CmdSupEnft, &QToolButton::clicked, this, &PageUnions::RetirerEnfant);
    connect(ui_->L_Enfants, &TableFiche::suppressionDemandee, this, &PageUnions::RetirerEnfant);
    connect(ui_->L_Enfants, &TableFiche::deposee, this, [this](quint32 n) {
        if (Fiche().Preparer() && records::PeutAvoirEnfant(S(), Individu())) Attacher(NoOrdre{n});
    });
}

void PageUnions::Unir(NoOrdre partenaire) {
    const NoMariage mariage = records::CreerUnion(S(), Individu(), partenaire);
    // The new union, with its empty fields, is the one to go on with.
    if (mariage) mariage_ = mariage;
    Fiche().Ecrit(static_cast<bool>(mariage));
    if (mariage) AllerALaDate();
}

/// Date and place of the union are what comes next.
void PageUnions::AllerALaDate() {
    ui_->TxtJMar->setFocus();
}

void PageUnions::ChercherConjoint() {
    if (!Fiche().Preparer()) return;
    if (!records::PeutAvoirConjoint(S(), Individu(), records::Provenance::Cherche)) return;
    FrmConjoints fenetre{S(), Individu(), window()};
    if (fenetre.exec() == QDialog::Accepted && fenetre.Choisie()) Unir(fenetre.Choisie());
}

void PageUnions::CreerConjoint() {
    if (!Fiche().Preparer()) return;
    if (!records::PeutAvoirConjoint(S(), Individu(), records::Provenance::Cree)) return;
    const std::optional<Cote> sien = CoteDuSexe(S().base->R_SEXE.LireCellule(Individu()));
    // `PeutAvoirConjoint` has asked for a known sex.
    if (!sien) return;
    const Sexe sexe = SexeDuCote(AutreCote(*sien));
    const NoOrdre partenaire = FrmCreation::Creer(S(), {.nom = {}, .sexe = sexe}, window());
    if (partenaire) Unir(partenaire);
}

void PageUnions::RetirerUnion() {
    if (!mariage_ || !Fiche().Preparer()) return;
    if (records::RetirerUnion(S(), mariage_)) Fiche().Ecrit(true);
}

void PageUnions::Ranger(int pas) {
    const int rangee = ui_->L_Conjoint->currentIndex().row();
    if (rangee < 0 || !Fiche().Preparer()) return;
    if (records::ReordonnerUnion(S(), Individu(), static_cast<std::size_t>(rangee) + 1, pas) != 0)
        Fiche().Ecrit(false);
}

void PageUnions::Attacher(NoOrdre enfant) {
    if (records::AttacherEnfant(S(), Individu(), enfant)) Fiche().Ecrit(false);
}

void PageUnions::ChercherEnfant() {
    if (!Fiche().Preparer() || !records::PeutAvoirEnfant(S(), Individu())) return;
    FrmEnfants fenetre{S(), Individu(), window()};
    if (fenetre.exec() == QDialog::Accepted && fenetre.Choisie()) Attacher(fenetre.Choisie());
}

void PageUnions::CreerEnfant() {
    if (!Fiche().Preparer() || !records::PeutAvoirEnfant(S(), Individu(), mariage_)) return;
    // The child of a woman bears another name as a rule: it is typed over.
    SaisieDepart depart;
    depart.nom = S().base->R_NOM.NomDe(Individu());
    depart.nomIncertain = S().base->R_SEXE.LireCellule(Individu()) == Sexe::Femme;
    const NoOrdre enfant = FrmCreation::Creer(S(), depart, window());
    if (!enfant) return;
    // The person is there, even when the link was refused in the end.
    static_cast<void>(records::EnfantCree(S(), Individu(), enfant, mariage_));
    Fiche().Ecrit(false);
}

void PageUnions::RetirerEnfant() {
    const LigneFiche* ligne = ui_->L_Enfants->Courante();
    if (ligne == nullptr) return;
    const NoOrdre enfant = ligne->individu;
    if (Fiche().Preparer() && records::RetirerEnfant(S(), Individu(), enfant)) Fiche().Ecrit(false);
}

}  // namespace dorvane::windows

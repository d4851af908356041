#include "windows/fiche/PageUnions.h"

#include "ui_PageUnions.h"

#include "messages/Fiche.h"
#include "records/Famille.h"
#include "records/Fiche.h"
#include "records/NomsAffiches.h"
#include "records/TexteFiche.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Completeur.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/personnes/ChampsFiche.h"

namespace dorvane::windows {

PageUnions::PageUnions(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
    : PageFiche{session, fiche, parent}, ui_{std::make_unique<Ui::PageUnions>()} {
    ui_->setupUi(this);
    ui_->L_Conjoint->Attacher(session, "PageUnions", 2, 0);
    ui_->L_Enfants->Attacher(session, "PageUnions", 3, 0);
    ui_->L_Conjoint->Prendre(TableFiche::Depot::Personnes);
    ui_->L_Enfants->Prendre(TableFiche::Depot::Personnes);
    RelierPersonnes(*ui_->L_Conjoint);
    RelierPersonnes(*ui_->L_Enfants);
    RelierUnions();
    RelierEnfants();
    RelierChamps();
}

PageUnions::~PageUnions() = default;

void PageUnions::RelierChamps() {
    ui_->Rangées->Attacher(S(), RangeesFiche::Sorte::Mariage);
    for (QLineEdit* champ : {ui_->TxtJMar, ui_->T_Dmar, ui_->T_Fmar, ui_->TxtLieuMar})
        connect(champ, &QLineEdit::textChanged, this, &PageUnions::Changer);
    connect(ui_->Rangées, &RangeesFiche::change, this, &PageUnions::Changer);
    connect(ui_->TxtMar, &QTextEdit::textChanged, this, &PageUnions::Changer);
    SuivreJourMois(*ui_->TxtJMar, S());
    SuivreCasse(*ui_->TxtLieuMar, S(), records::Casse::Lieu);
    new Completeur{*ui_->TxtLieuMar, S(), records::mots::Lieux};
    connect(ui_->C_TexteMar, &QPushButton::clicked, this,
            [this] { EditerNote(*ui_->TxtMar, SansMnemonique(ui_->LblTxtMar->text())); });
    connect(ui_->L_Conjoint, &TableFiche::choisie, this, &PageUnions::ChoisirUnion);
    connect(ui_->L_Enfants, &TableFiche::choisie, this, &PageUnions::PoserBoutons);
}

void PageUnions::Charger(NoOrdre individu, bool garder) {
    if (individu != Individu()) mariage_ = {};
    PoserIndividu(individu);
    charge_ = true;
    ListerUnions();
    ListerEnfants();
    charge_ = false;
    const LigneFiche* ligne = ui_->L_Conjoint->Courante();
    const NoMariage choisi{ligne != nullptr ? ligne->numero : 0};
    MontrerUnion(choisi, garder && choisi == mariage_);
    PoserBoutons();
}

void PageUnions::ListerUnions() {
    std::vector<LigneFiche> lignes;
    if (Individu()) {
        storage::Base& base = *S().base;
        for (const NoMariage m : base.R_MARIAG.Elements(Individu())) {
            const NoOrdre partenaire = records::PartenaireDe(base, Individu(), m);
            LigneFiche ligne;
            ligne.numero = m.valeur;
            ligne.individu = partenaire;
            const QString nom = TexteVersQt(records::NomEtDates(S(), partenaire)).trimmed();
            ligne.textes << (partenaire ? nom : TexteEcran(S(), message::ConjointInconnu))
                         << TexteVersQt(base.R_DEBMAR.LireCellule(m)).trimmed();
            if (partenaire) ligne.icone = IconeSexe(base.R_SEXE.LireCellule(partenaire));
            lignes.push_back(std::move(ligne));
        }
    }
    ui_->L_Conjoint->Poser(std::move(lignes));
    if (mariage_) ui_->L_Conjoint->Choisir(mariage_.valeur);
}

void PageUnions::ListerEnfants() {
    std::vector<LigneFiche> lignes;
    if (Individu()) {
        storage::Base& base = *S().base;
        for (const NoOrdre enfant : base.R_ENFANT.Elements(Individu())) {
            const NoOrdre pere = base.R_PERE.LireCellule(enfant);
            const NoOrdre autre = pere == Individu() ? base.R_MERE.LireCellule(enfant) : pere;
            LigneFiche ligne;
            ligne.numero = enfant.valeur;
            ligne.individu = enfant;
            ligne.textes << TexteVersQt(records::NomAffiche(S(), enfant))
                         << TexteVersQt(records::DatesDeVie(S(), enfant))
                         << TexteVersQt(records::NomAffiche(S(), autre));
            ligne.icone = IconeSexe(base.R_SEXE.LireCellule(enfant));
            lignes.push_back(std::move(ligne));
        }
    }
    ui_->L_Enfants->Poser(std::move(lignes));
}

/// Another union is selected: what was typed for the one before is saved or given up first.
void PageUnions::ChoisirUnion() {
    if (charge_) return;
    const LigneFiche* ligne = ui_->L_Conjoint->Courante();
    const NoMariage choisi{ligne != nullptr ? ligne->numero : 0};
    if (choisi == mariage_) {
        PoserBoutons();
        return;
    }
    if (UnionModifiee()) {
        charge_ = true;
        ui_->L_Conjoint->Choisir(mariage_.valeur);
        charge_ = false;
        if (!Fiche().Demander()) return;
        charge_ = true;
        ui_->L_Conjoint->Choisir(choisi.valeur);
        charge_ = false;
    }
    MontrerUnion(choisi);
    Fiche().Changer();
}

void PageUnions::MontrerUnion(NoMariage mariage, bool garder) {
    mariage_ = mariage;
    const records::SaisieUnion fiche = records::ChargerUnion(S(), mariage);
    charge_ = true;
    RelireChamp(*ui_->TxtJMar, fiche.jourMois, garder);
    RelireChamp(*ui_->T_Dmar, fiche.debut, garder);
    RelireChamp(*ui_->T_Fmar, fiche.fin, garder);
    RelireChamp(*ui_->TxtLieuMar, fiche.lieu, garder);
    ui_->Rangées->Reconstruire(fiche.slots);
    ui_->Rangées->Montrer(fiche.slots, garder);
    RelireNote(*ui_->TxtMar, fiche.note, note_, garder);
    charge_ = false;
    Changer();
    PoserBoutons();
}

void PageUnions::PoserBoutons() {
    const int rangee = ui_->L_Conjoint->currentIndex().row();
    const int nombre = static_cast<int>(ui_->L_Conjoint->Lignes().size());
    ui_->CdrUnion->setEnabled(static_cast<bool>(mariage_));
    ui_->C_Smar->setEnabled(static_cast<bool>(mariage_));
    ui_->CmdMarUp->setEnabled(rangee > 0);
    ui_->CmdMarDown->setEnabled(rangee >= 0 && rangee + 1 < nombre);
    ui_->CmdSupEnft->setEnabled(ui_->L_Enfants->Courante() != nullptr);
}

void PageUnions::Changer() {
    if (charge_) return;
    for (QLineEdit* champ : {ui_->TxtJMar, ui_->T_Dmar, ui_->T_Fmar, ui_->TxtLieuMar})
        MarquerChamp(*champ, S());
    MarquerModifie(*ui_->TxtMar, ui_->TxtMar->Note() != note_, S());
    std::size_t remplaces = 0;
    const records::SaisieUnion fiche = LireUnion(remplaces);
    const records::SaisieFiche vie = records::ChargerFiche(S(), Individu());
    const records::AvisDate avis =
        records::AviserDate(S(), fiche.jourMois, fiche.debut, vie.anneeNaissance, vie.anneeDeces);
    ui_->LblAvisMar->Dire(TexteAvis(S(), avis));
    ui_->LblAvisMar->setVisible(avis != records::AvisDate::Bon);
    Avertir(*ui_->LblAvisMar);
    ui_->Rangées->PoserVie(vie.anneeNaissance, vie.anneeDeces);
    Fiche().Changer();
}

records::SaisieUnion PageUnions::LireUnion(std::size_t& remplaces) const {
    records::SaisieUnion fiche;
    fiche.mariage = mariage_;
    fiche.jourMois = LireChamp(ui_->TxtJMar->text(), remplaces);
    fiche.debut = LireChamp(ui_->T_Dmar->text(), remplaces);
    fiche.fin = LireChamp(ui_->T_Fmar->text(), remplaces);
    fiche.lieu = LireChamp(ui_->TxtLieuMar->text(), remplaces);
    ui_->Rangées->Lire(fiche.slots, remplaces);
    fiche.note = ui_->TxtMar->Note();
    remplaces += ui_->TxtMar->Remplaces();
    return fiche;
}

void PageUnions::Lire(records::SaisieFiche& saisie, std::size_t& remplaces) const {
    if (mariage_) saisie.mariage = LireUnion(remplaces);
}

bool PageUnions::UnionModifiee() const {
    if (!mariage_) return false;
    std::size_t remplaces = 0;
    records::SaisieFiche fiche = records::ChargerFiche(S(), Individu());
    fiche.mariage = LireUnion(remplaces);
    return records::FicheModifiee(S(), fiche);
}

void PageUnions::Traduire() {
    TraduireFenetre(*this, S());
    ui_->Rangées->Traduire();
    Habiller(*ui_->C_Rechconjoint, "Chercher", message::BulleUnirAPersonneDeLaBase);
    Habiller(*ui_->CmdCréConjoint, "Ajouter", message::BulleCreerConjoint);
    Habiller(*ui_->C_Smar, "Abandonner", message::BulleSupprimerUnion);
    Habiller(*ui_->CmdMarUp, "Monter", message::BulleMonterUnion);
    Habiller(*ui_->CmdMarDown, "Descendre", message::BulleDescendreUnion);
    Habiller(*ui_->CmdRechEnft, "Chercher", message::BulleRattacherEnfant);
    Habiller(*ui_->CmdCréEnfant, "Ajouter", message::BulleCreerEnfant);
    Habiller(*ui_->CmdSupEnft, "Abandonner", message::BulleRetirerEnfant);
    ui_->L_Conjoint->DireVide(TexteEcran(S(), message::AucuneUnionFiche));
    ui_->L_Enfants->DireVide(TexteEcran(S(), message::AucunEnfantFiche));
    Changer();
}

QString PageUnions::Compte() const {
    const auto unions = ui_->L_Conjoint->Lignes().size();
    const auto enfants = ui_->L_Enfants->Lignes().size();
    if (unions == 0 && enfants == 0) return {};
    return QStringLiteral("%1, %2").arg(unions).arg(enfants);
}

QList<QWidget*> PageUnions::Ordre() const {
    return QList<QWidget*>{ui_->L_Conjoint, ui_->C_Rechconjoint, ui_->CmdCréConjoint, ui_->C_Smar,
                           ui_->CmdMarUp,   ui_->CmdMarDown,     ui_->TxtJMar,        ui_->T_Dmar,
                           ui_->T_Fmar,     ui_->TxtLieuMar} +
           ui_->Rangées->Controles() +
           QList<QWidget*>{ui_->C_TexteMar,  ui_->TxtMar,       ui_->L_Enfants,
                           ui_->CmdRechEnft, ui_->CmdCréEnfant, ui_->CmdSupEnft};
}

}  // namespace dorvane::windows

#include "windows/fiche/PageLiens.h"

#include "ui_PageLiens.h"
#include <QCompleter>

#include "messages/Fiche.h"
#include "records/Fiche.h"
#include "records/Liens.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Icones.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/personnes/FrmLiens.h"
#include "windows/personnes/FrmNouveauLien.h"

namespace dorvane::windows {

PageLiens::PageLiens(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
    : PageFiche{session, fiche, parent}, ui_{std::make_unique<Ui::PageLiens>()} {
    ui_->setupUi(this);
    ui_->GrdLiens->Attacher(session, "PageLiens", 2, 0);
    ui_->GrdLiens->Prendre(TableFiche::Depot::Personnes);
    RelierPersonnes(*ui_->GrdLiens);
    connect(ui_->GrdLiens, &TableFiche::choisie, this, &PageLiens::ChoisirLien);
    connect(ui_->GrdLiens, &TableFiche::suppressionDemandee, this, &PageLiens::Retirer);
    connect(ui_->GrdLiens, &TableFiche::deposee, this, [this](quint32 n) {
        if (Fiche().Preparer()) Lier(NoOrdre{n});
    });
    connect(ui_->CmdLienAjout, &QPushButton::clicked, this, &PageLiens::Ajouter);
    connect(ui_->CmdLienSup, &QPushButton::clicked, this, &PageLiens::Retirer);
    SuivreLangue(*ui_->TxtLien, SorteSaisie::Libelle);
    connect(ui_->TxtLien, &QLineEdit::textChanged, this, [this] {
        if (charge_) return;
        MarquerChamp(*ui_->TxtLien, S());
        Fiche().Changer();
    });
}

PageLiens::~PageLiens() = default;

void PageLiens::Charger(NoOrdre individu, bool garder) {
    if (individu != Individu()) rang_ = 0;
    PoserIndividu(individu);
    charge_ = true;
    Lister();
    charge_ = false;
    const LigneFiche* ligne = ui_->GrdLiens->Courante();
    const std::size_t rang = ligne != nullptr ? ligne->numero : 0;
    MontrerLien(rang, garder && rang == rang_);
}

void PageLiens::Lister() {
    std::vector<LigneFiche> lignes;
    if (Individu())
        for (const records::LienAffiche& lien : records::ListerLiens(S(), Individu())) {
            LigneFiche ligne;
            ligne.numero = static_cast<std::uint32_t>(lien.rang);
            ligne.individu = lien.autre;
            ligne.textes << TexteVersQt(records::NomEtDates(S(), lien.autre)).trimmed()
                         << TexteVersQt(lien.libelle);
            ligne.icone = IconeSexe(S().base->R_SEXE.LireCellule(lien.autre));
            lignes.push_back(std::move(ligne));
        }
    ui_->GrdLiens->Poser(std::move(lignes));
    if (rang_ != 0) ui_->GrdLiens->Choisir(static_cast<std::uint32_t>(rang_));
}

/// Another link is selected: a label typed for the one before is saved or given up first.
void PageLiens::ChoisirLien() {
    if (charge_) return;
    const LigneFiche* ligne = ui_->GrdLiens->Courante();
    const std::uint32_t rang = ligne != nullptr ? ligne->numero : 0;
    if (rang == rang_) return;
    if (LienModifie()) {
        charge_ = true;
        ui_->GrdLiens->Choisir(static_cast<std::uint32_t>(rang_));
        charge_ = false;
        if (!Fiche().Demander()) return;
        charge_ = true;
        ui_->GrdLiens->Choisir(rang);
        charge_ = false;
    }
    MontrerLien(rang);
    Fiche().Changer();
}

void PageLiens::MontrerLien(std::size_t rang, bool garder) {
    rang_ = rang;
    charge_ = true;
    RelireChamp(*ui_->TxtLien,
                rang != 0 ? records::ChargerLien(S(), Individu(), rang).libelle : std::string{},
                garder);
    charge_ = false;
    MarquerChamp(*ui_->TxtLien, S());
    ui_->TxtLien->setEnabled(rang != 0);
    ui_->CmdLienSup->setEnabled(rang != 0);
}

bool PageLiens::LienModifie() const {
    records::SaisieFiche fiche = records::ChargerFiche(S(), Individu());
    std::size_t remplaces = 0;
    Lire(fiche, remplaces);
    return records::FicheModifiee(S(), fiche);
}

void PageLiens::Lire(records::SaisieFiche& saisie, std::size_t& remplaces) const {
    if (rang_ != 0)
        saisie.lien = records::SaisieLien{rang_, LireChamp(ui_->TxtLien->text(), remplaces)};
}

void PageLiens::AllerAuLibelle() {
    ui_->TxtLien->setFocus();
}

void PageLiens::Ajouter() {
    if (!Fiche().Preparer()) return;
    FrmLiens fenetre{S(), Individu(), window()};
    if (fenetre.exec() == QDialog::Accepted && fenetre.Choisie()) Lier(fenetre.Choisie());
}

void PageLiens::Lier(NoOrdre autre) {
    if (FrmNouveauLien::Lier(S(), Individu(), autre, window())) Fiche().Ecrit(false);
}

void PageLiens::Retirer() {
    if (rang_ == 0 || !Fiche().Preparer()) return;
    if (records::RetirerLien(S(), Individu(), rang_)) Fiche().Ecrit(false);
}

void PageLiens::Traduire() {
    TraduireFenetre(*this, S());
    auto* mots = new QCompleter{MotsDeLiens(S()), ui_->TxtLien};
    mots->setCaseSensitivity(Qt::CaseInsensitive);
    delete ui_->TxtLien->completer();
    ui_->TxtLien->setCompleter(mots);
    ui_->GrdLiens->DireVide(TexteEcran(S(), message::AucunLienFiche));
}

QString PageLiens::Compte() const {
    const auto nombre = ui_->GrdLiens->Lignes().size();
    return nombre == 0 ? QString{} : QString::number(nombre);
}

QList<QWidget*> PageLiens::Ordre() const {
    return {ui_->GrdLiens, ui_->TxtLien, ui_->CmdLienAjout, ui_->CmdLienSup};
}

}  // namespace dorvane::windows

#include "windows/fiche/PageEvts.h"

#include "ui_PageEvts.h"

#include "messages/Fiche.h"
#include "records/FicheEvenement.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/TableFiche.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesEvt.h"

namespace dorvane::windows {

PageEvts::PageEvts(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
    : PageFiche{session, fiche, parent}, ui_{std::make_unique<Ui::PageEvts>()} {
    ui_->setupUi(this);
    ui_->GrdEvts->Attacher(session, "PageEvts", 5, 4);
    connect(ui_->GrdEvts, &TableFiche::ouverte, this, &PageEvts::Modifier);
    connect(ui_->GrdEvts, &TableFiche::suppressionDemandee, this, &PageEvts::Retirer);
    connect(ui_->GrdEvts, &TableFiche::choisie, this, [this] {
        const bool choisi = ui_->GrdEvts->Courante() != nullptr;
        ui_->CmdEvtMaj->setEnabled(choisi);
        ui_->CmdEvtSup->setEnabled(choisi);
    });
    connect(ui_->CmdEvtAjout, &QPushButton::clicked, this, &PageEvts::Ajouter);
    connect(ui_->CmdEvtMaj, &QPushButton::clicked, this, &PageEvts::Modifier);
    connect(ui_->CmdEvtSup, &QPushButton::clicked, this, &PageEvts::Retirer);
}

PageEvts::~PageEvts() = default;

void PageEvts::Charger(NoOrdre individu, bool /*garder*/) {
    PoserIndividu(individu);
    std::vector<LigneFiche> lignes;
    roles_.clear();
    if (individu)
        for (const records::LigneEvenement& evenement : records::EvenementsDe(S(), individu)) {
            LigneFiche ligne;
            ligne.numero = evenement.evenement.valeur;
            ligne.textes << TexteVersQt(evenement.date) << TexteVersQt(evenement.type)
                         << TexteVersQt(shell::LibelleDeTag(S().catalogue, evenement.role))
                         << TexteVersQt(evenement.lieu) << TexteVersQt(evenement.libelle);
            lignes.push_back(std::move(ligne));
            roles_.push_back(evenement.role);
        }
    ui_->GrdEvts->Poser(std::move(lignes));
}

void PageEvts::Editer(NoEvenement evenement) {
    FrmDesEvt fenetre{S(), evenement, evenement ? NoOrdre{} : Individu(), {}, window()};
    fenetre.exec();
    if (fenetre.Ecrit()) Fiche().Ecrit(false);
}

void PageEvts::Ajouter() {
    if (Fiche().Preparer()) Editer({});
}

void PageEvts::Modifier() {
    const LigneFiche* ligne = ui_->GrdEvts->Courante();
    if (ligne == nullptr) return;
    const NoEvenement evenement{ligne->numero};
    if (Fiche().Preparer()) Editer(evenement);
}

void PageEvts::Retirer() {
    const int rangee = ui_->GrdEvts->currentIndex().row();
    const LigneFiche* ligne = ui_->GrdEvts->Courante();
    if (ligne == nullptr) return;
    const NoEvenement evenement{ligne->numero};
    const std::string role = roles_[static_cast<std::size_t>(rangee)];
    if (Fiche().Preparer() && records::DelierPersonne(S(), evenement, Individu(), role))
        Fiche().Ecrit(false);
}

void PageEvts::Traduire() {
    TraduireFenetre(*this, S());
    ui_->GrdEvts->DireVide(TexteEcran(S(), message::AucunEvenementFiche));
}

QString PageEvts::Compte() const {
    const auto nombre = ui_->GrdEvts->Lignes().size();
    return nombre == 0 ? QString{} : QString::number(nombre);
}

QList<QWidget*> PageEvts::Ordre() const {
    return {ui_->GrdEvts, ui_->CmdEvtAjout, ui_->CmdEvtMaj, ui_->CmdEvtSup};
}

}  // namespace dorvane::windows

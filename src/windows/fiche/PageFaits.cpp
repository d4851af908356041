#include "windows/fiche/PageFaits.h"

#include "ui_PageFaits.h"

#include "records/Fiche.h"
#include "shell/Session.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Legendes.h"

namespace dorvane::windows {

PageFaits::PageFaits(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
    : PageFiche{session, fiche, parent}, ui_{std::make_unique<Ui::PageFaits>()} {
    ui_->setupUi(this);
    ui_->Rangées->Attacher(session, RangeesFiche::Sorte::Individu);
    connect(ui_->Rangées, &RangeesFiche::change, this, [this] { Fiche().Changer(); });
    connect(ui_->TxtInd, &QTextEdit::textChanged, this, [this] {
        Marquer();
        Fiche().Changer();
    });
    connect(ui_->C_Texte, &QPushButton::clicked, this,
            [this] { EditerNote(*ui_->TxtInd, SansMnemonique(ui_->LblNote->text())); });
}

PageFaits::~PageFaits() = default;

void PageFaits::Charger(NoOrdre individu, bool garder) {
    PoserIndividu(individu);
    const records::SaisieFiche fiche = records::ChargerFiche(S(), individu);
    ui_->Rangées->Reconstruire(fiche.slots);
    ui_->LblFaits->setVisible(!ui_->Rangées->EstVide());
    ui_->Rangées->Montrer(fiche.slots, garder);
    RelireNote(*ui_->TxtInd, fiche.note, note_, garder);
    Marquer();
}

void PageFaits::Lire(records::SaisieFiche& saisie, std::size_t& remplaces) const {
    ui_->Rangées->Lire(saisie.slots, remplaces);
    saisie.note = ui_->TxtInd->Note();
    remplaces += ui_->TxtInd->Remplaces();
}

void PageFaits::Traduire() {
    TraduireFenetre(*this, S());
    ui_->Rangées->Traduire();
}

void PageFaits::PoserVie(const records::SaisieFiche& saisie) {
    ui_->Rangées->PoserVie(saisie.anneeNaissance, saisie.anneeDeces);
}

void PageFaits::AllerALaNote() {
    ui_->TxtInd->setFocus();
}

void PageFaits::Marquer() {
    MarquerModifie(*ui_->TxtInd, ui_->TxtInd->Note() != note_, S());
}

QList<QWidget*> PageFaits::Ordre() const {
    return ui_->Rangées->Controles() << ui_->C_Texte << ui_->TxtInd;
}

}  // namespace dorvane::windows

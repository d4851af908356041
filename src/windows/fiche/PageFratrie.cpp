#include "windows/fiche/PageFratrie.h"

#include "ui_PageFratrie.h"

#include "messages/Fiche.h"
#include "records/Fiche.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/TableFiche.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

PageFratrie::PageFratrie(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
    : PageFiche{session, fiche, parent}, ui_{std::make_unique<Ui::PageFratrie>()} {
    ui_->setupUi(this);
    ui_->GrdFratrie->Attacher(session, "PageFratrie", 3, 0);
    RelierPersonnes(*ui_->GrdFratrie);
}

PageFratrie::~PageFratrie() = default;

void PageFratrie::Charger(NoOrdre individu, bool /*garder*/) {
    PoserIndividu(individu);
    std::vector<LigneFiche> lignes;
    for (const records::Fratrie& membre : records::FratrieDe(S(), individu)) {
        LigneFiche ligne;
        ligne.numero = membre.individu.valeur;
        ligne.individu = membre.individu;
        const NoMessage parents = membre.memePere && membre.memeMere ? message::FratrieDePereEtMere
                                  : membre.memePere                  ? message::FratrieDePere
                                                                     : message::FratrieDeMere;
        ligne.textes << TexteVersQt(records::NomAffiche(S(), membre.individu))
                     << TexteVersQt(records::DatesDeVie(S(), membre.individu))
                     << TexteEcran(S(), parents);
        ligne.icone = IconeSexe(S().base->R_SEXE.LireCellule(membre.individu));
        lignes.push_back(std::move(ligne));
    }
    ui_->GrdFratrie->Poser(std::move(lignes));
}

void PageFratrie::Traduire() {
    TraduireFenetre(*this, S());
    ui_->GrdFratrie->DireVide(TexteEcran(S(), message::AucuneFratrieFiche));
}

QString PageFratrie::Compte() const {
    const auto nombre = ui_->GrdFratrie->Lignes().size();
    return nombre == 0 ? QString{} : QString::number(nombre);
}

QList<QWidget*> PageFratrie::Ordre() const {
    return {ui_->GrdFratrie};
}

}  // namespace dorvane::windows

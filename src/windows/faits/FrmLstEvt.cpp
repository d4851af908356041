#include "windows/faits/FrmLstEvt.h"

#include "ui_FrmLstEvt.h"
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>

#include "messages/Faits.h"
#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/ModeleEvenements.h"

namespace dorvane::windows {

FrmLstEvt::FrmLstEvt(shell::Session& session, QWidget* parent)
    : FenetreListe{session, QStringLiteral("FrmLstEvt"), parent},
      ui_{std::make_unique<Ui::FrmLstEvt>()},
      modele_{new ModeleEvenements{session, this}} {
    ui_->setupUi(this);
    ui_->GrdEvts->setModel(modele_);
    const int cadratin = fontMetrics().averageCharWidth();
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Date, 22 * cadratin);
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Type, 18 * cadratin);
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Libelle, 22 * cadratin);
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Lieu, 22 * cadratin);
    Monter({ui_->TxtFiltre, ui_->GrdEvts, ui_->LblNombre, ui_->Pages, ui_->LblVide},
           {message::NombreEvenements, message::NombreEvenementsFiltres,
            message::AucunEvenementNeContient, message::BaseSansEvenement},
           *modele_, {ui_->CmdAjout, ui_->CmdMaj, ui_->CmdSupp, ui_->CmdChoisir, ui_->CmdFermer});
}

FrmLstEvt::~FrmLstEvt() = default;

NoEvenement FrmLstEvt::Choisir(shell::Session& session, QWidget* parent) {
    FrmLstEvt fenetre{session, parent};
    return NoEvenement{fenetre.FenetreListe::Choisir({fenetre.ui_->CmdSupp})};
}

NoEvenement FrmLstEvt::Choisi() const {
    return NoEvenement{NumeroChoisi()};
}

std::vector<std::uint32_t> FrmLstEvt::Numeros() const {
    return ModeleEvenements::Numeros(S());
}

void FrmLstEvt::OuvrirChoisi() {
    Ouvrir(Choisi(), {});
}

/// In a chooser the new event is nobody's.
void FrmLstEvt::Ajouter() {
    Ouvrir({}, PourChoisir() ? NoOrdre{} : S().PersonneEnCours);
}

bool FrmLstEvt::SupprimerChoisi() {
    return records::SupprimerEvenement(S(), Choisi());
}

void FrmLstEvt::Ouvrir(NoEvenement evenement, NoOrdre pour) {
    if (!S().base) return;
    FrmDesEvt fenetre{S(), evenement, pour, {}, this};
    fenetre.exec();
    if (fenetre.Ecrit()) Ecrite(fenetre.Evenement().valeur);
}

/// From an event to its persons.
void FrmLstEvt::contextMenuEvent(QContextMenuEvent* evenement) {
    if (PourChoisir() || !S().base || !Choisi()) return;
    auto* menu = new QMenu{this};
    menu->setObjectName(QStringLiteral("MnuPersonnes"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const storage::LienEvenement& lien : S().base->R_EVT.Liens(Choisi())) {
        const quint32 individu = lien.individu.valeur;
        const std::string nom = records::NomEtDates(S(), lien.individu);
        QMenu* personne =
            menu->addMenu(TexteVersQt(SansBlancs(nom)).replace(u'&', QStringLiteral("&&")));
        personne->addAction(TexteEcran(S(), message::BoutonAller), this,
                            [this, individu] { Q_EMIT allerDemande(individu); });
        personne->addAction(TexteEcran(S(), message::BoutonOuvrirFiche), this,
                            [this, individu] { Q_EMIT ficheDemandee(individu); });
    }
    if (menu->isEmpty()) return menu->deleteLater();
    menu->popup(evenement->globalPos());
}

/// Persons come from the lists and the chart.
bool FrmLstEvt::eventFilter(QObject* objet, QEvent* evenement) {
    const QEvent::Type type = evenement->type();
    if (type == QEvent::DragEnter || type == QEvent::DragMove) {
        auto* glisse = static_cast<QDropEvent*>(evenement);
        glisse->setAccepted(bool{PersonneDeMime(S(), glisse->mimeData())});
        return true;
    }
    if (type == QEvent::Drop) {
        auto* depose = static_cast<QDropEvent*>(evenement);
        const NoOrdre individu = PersonneDeMime(S(), depose->mimeData());
        const NoEvenement sur{Sous(objet, *depose)};
        depose->acceptProposedAction();
        // The list that the person comes from waits until the drop has ended.
        if (individu)
            QMetaObject::invokeMethod(
                this, [this, sur, individu] { Ouvrir(sur, individu); }, Qt::QueuedConnection);
        return true;
    }
    return FenetreListe::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows

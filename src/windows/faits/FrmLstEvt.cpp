#include "windows/faits/FrmLstEvt.h"

#include "ui_FrmLstEvt.h"
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenu>

#include "messages/Faits.h"
#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeFiltree.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/ModeleEvenements.h"

namespace dorvane::windows {

FrmLstEvt::FrmLstEvt(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmLstEvt"), parent},
      ui_{std::make_unique<Ui::FrmLstEvt>()},
      modele_{new ModeleEvenements{session, this}} {
    ui_->setupUi(this);
    QHeaderView& entete = *ui_->GrdEvts->horizontalHeader();
    ui_->GrdEvts->setModel(modele_);
    const int cadratin = fontMetrics().averageCharWidth();
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Date, 22 * cadratin);
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Type, 18 * cadratin);
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Libelle, 22 * cadratin);
    ui_->GrdEvts->setColumnWidth(ModeleEvenements::Lieu, 22 * cadratin);
    entete.setStretchLastSection(true);
    liste_ =
        new ListeFiltree{session,
                         {ui_->TxtFiltre, ui_->GrdEvts, ui_->LblNombre, ui_->Pages, ui_->LblVide},
                         {message::NombreEvenements, message::NombreEvenementsFiltres,
                          message::AucunEvenementNeContient, message::BaseSansEvenement},
                         *modele_,
                         QStringLiteral("FrmLstEvt"),
                         this};
    connect(liste_, &ListeFiltree::choisi, this, &FrmLstEvt::PoserBoutons);
    connect(liste_, &ListeFiltree::ouvert, this, [this](quint32 numero) {
        if (choix_)
            accept();
        else
            Ouvrir(NoEvenement{numero}, {});
    });
    connect(ui_->CmdAjout, &QPushButton::clicked, this,
            [this] { Ouvrir({}, choix_ ? NoOrdre{} : S().PersonneEnCours); });
    connect(ui_->CmdMaj, &QPushButton::clicked, this, [this] { Ouvrir(Choisi(), {}); });
    connect(ui_->CmdSupp, &QPushButton::clicked, this, &FrmLstEvt::Supprimer);
    connect(ui_->CmdChoisir, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::reject);
    connect(liste_, &ListeFiltree::retire, this, &FrmLstEvt::Supprimer);
    for (QWidget* cible : {static_cast<QWidget*>(this), ui_->GrdEvts->viewport()}) {
        cible->setAcceptDrops(true);
        cible->installEventFilter(this);
    }
    ui_->CmdChoisir->hide();
    Traduire();
    Recharger();
    ui_->TxtFiltre->setFocus();
}

FrmLstEvt::~FrmLstEvt() = default;

NoEvenement FrmLstEvt::Choisir(shell::Session& session, QWidget* parent) {
    FrmLstEvt fenetre{session, parent};
    fenetre.choix_ = true;
    fenetre.ui_->CmdChoisir->show();
    fenetre.ui_->CmdChoisir->setDefault(true);
    fenetre.ui_->CmdSupp->hide();
    return fenetre.exec() == QDialog::Accepted ? fenetre.Choisi() : NoEvenement{};
}

NoEvenement FrmLstEvt::Choisi() const {
    return NoEvenement{liste_->Choisi()};
}

void FrmLstEvt::Traduire() {
    FenetreFille::Traduire();
    liste_->Traduire();
}

void FrmLstEvt::Recharger() {
    liste_->Poser(ModeleEvenements::Numeros(S()));
    PoserBoutons();
}

void FrmLstEvt::PoserBoutons() {
    const bool choisi{Choisi()};
    for (QPushButton* bouton : {ui_->CmdMaj, ui_->CmdSupp, ui_->CmdChoisir})
        bouton->setEnabled(choisi);
    ui_->CmdAjout->setEnabled(S().BaseOuverte());
}

void FrmLstEvt::Ouvrir(NoEvenement evenement, NoOrdre pour) {
    if (!S().base) return;
    FrmDesEvt fenetre{S(), evenement, pour, {}, this};
    fenetre.exec();
    if (!fenetre.Ecrit()) return;
    Recharger();
    liste_->Choisir(fenetre.Evenement().valeur);
    Q_EMIT baseChangee();
}

void FrmLstEvt::Supprimer() {
    if (choix_ || !records::SupprimerEvenement(S(), Choisi())) return;
    Recharger();
    Q_EMIT baseChangee();
}

/// From an event to its persons.
void FrmLstEvt::contextMenuEvent(QContextMenuEvent* evenement) {
    if (choix_ || !S().base || !Choisi()) return;
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
        const QModelIndex index = objet == ui_->GrdEvts->viewport()
                                      ? ui_->GrdEvts->indexAt(depose->position().toPoint())
                                      : QModelIndex{};
        const NoEvenement sur{modele_->Numero(index.isValid() ? index.row() : -1)};
        depose->acceptProposedAction();
        // The list that the person comes from waits until the drop has ended.
        if (individu)
            QMetaObject::invokeMethod(
                this, [this, sur, individu] { Ouvrir(sur, individu); }, Qt::QueuedConnection);
        return true;
    }
    return FenetreFille::eventFilter(objet, evenement);
}

void FrmLstEvt::done(int resultat) {
    liste_->Memoriser();
    FenetreFille::done(resultat);
}

}  // namespace dorvane::windows

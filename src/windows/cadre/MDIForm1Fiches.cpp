// The windows in which records are edited, and what the chart offers to do with its persons.
#include <QMenu>
#include <QToolBar>

#include "messages/Dorvane.h"
#include "records/Filiation.h"
#include "records/Individus.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/communes/FrmCommune.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/graphe/FrmDebut.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmPere.h"
#include "windows/reglages/FrmParametre.h"

namespace dorvane::windows {

void MDIForm1::Accueillir(FenetreFille& fille) {
    connect(&fille, &FenetreFille::allerDemande, this,
            [this](quint32 individu) { AllerA(NoOrdre{individu}); });
    connect(&fille, &FenetreFille::ficheDemandee, this,
            [this](quint32 individu) { OuvrirFiche(NoOrdre{individu}); });
    connect(&fille, &FenetreFille::baseChangee, this, [this, &fille] { RelireTout(&fille); });
    connect(&fille, &QDialog::finished, this, &MDIForm1::SuivreFenetres);
}

void MDIForm1::OuvrirFiche(NoOrdre individu) {
    if (!session_.base || !individu || session_.progression.EnCours()) return;
    auto* fiche = findChild<FrmMisajour*>(QString{}, Qt::FindDirectChildrenOnly);
    // A sheet that holds unsaved entries of another person asks before it turns the page.
    if (fiche != nullptr && fiche->isVisible() && fiche->Individu() != individu &&
        !fiche->ConfirmerFermeture())
        return;
    Montrer<FrmMisajour>().Ouvrir(individu);
    SuivreFenetres();
}

void MDIForm1::Modifier() {
    OuvrirFiche(session_.PersonneEnCours);
}

void MDIForm1::NouvelIndividu() {
    const NoOrdre nouveau = FrmCreation::Creer(session_, {}, this);
    if (!nouveau) return;
    AllerA(nouveau);
    RelireTout(nullptr);
}

void MDIForm1::SupprimerIndividu() {
    if (records::SupprimerIndividu(session_, session_.PersonneEnCours)) RelireTout(nullptr);
}

void MDIForm1::Communes() {
    auto& communes = Montrer<FrmCommune>();
    // Without its file the window has nothing to show.
    if (!communes.Ouvrir()) communes.close();
}

void MDIForm1::Reglages() {
    FrmParametre reglages{session_, BoutonsIcones(), this};
    if (reglages.exec() != QDialog::Accepted) return;
    graphe_->AppliquerPresentation();
    icones_->setVisible(session_.parametres.generaux.barreMenus);
    PoserIcones();
    SuivreFenetres();
    Actualiser();
    RelireTout(nullptr);
}

/// A box of a parent who is not known: the parent is created, or looked for.
void MDIForm1::MenuParent(NoOrdre enfant, Cote cote, const QPoint& point) {
    if (!session_.base) return;
    auto* menu = new QMenu{this};
    menu->setObjectName(QStringLiteral("MnuParent"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool pere = cote == Cote::Pere;
    QAction* creer = menu->addAction(
        Icone("MnuNouvInd"),
        TexteEcran(session_, pere ? message::MenuCreerPere : message::MenuCreerMere));
    creer->setObjectName(QStringLiteral("CréerParent"));
    QAction* chercher = menu->addAction(
        Icone("Chercher"),
        TexteEcran(session_, pere ? message::MenuChercherPere : message::MenuChercherMere));
    chercher->setObjectName(QStringLiteral("ChercherParent"));
    connect(creer, &QAction::triggered, this, [this, enfant, cote] { CreerParent(enfant, cote); });
    connect(chercher, &QAction::triggered, this,
            [this, enfant, cote] { ChercherParent(enfant, cote); });
    menu->popup(point);
}

void MDIForm1::CreerParent(NoOrdre enfant, Cote cote) {
    if (!shell::CommandePermise(session_) || !session_.base) return;
    const NoOrdre parent = FrmCreation::Creer(
        session_, DepartDeParent(session_.base->R_NOM.NomDe(enfant), cote), this);
    if (parent) static_cast<void>(records::ParentCree(session_, enfant, cote, parent));
    RelireTout(nullptr);
}

void MDIForm1::ChercherParent(NoOrdre enfant, Cote cote) {
    if (!shell::CommandePermise(session_) || !session_.base) return;
    FrmPere choix{session_, enfant, cote, this};
    choix.exec();
    RelireTout(nullptr);
}

/// A person was dropped on the box of a parent who is not known.
void MDIForm1::DeposerParent(NoOrdre enfant, Cote cote, NoOrdre parent) {
    if (!shell::CommandePermise(session_) || !session_.base) return;
    if (records::DonnerParent(session_, enfant, cote, parent)) RelireTout(nullptr);
}

}  // namespace dorvane::windows

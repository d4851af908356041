#include <QAction>
#include <QMenu>
#include <QScreen>
#include <QToolBar>

#include "interchange/commandes/Importer.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/Numerotation.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/graphe/FrmDebut.h"

namespace dorvane::windows {

namespace {

/// The section title of a group of relatives; none for the person, who needs none.
NoMessage TitreGroupe(records::EntreeFamille::Groupe groupe) {
    using Groupe = records::EntreeFamille::Groupe;
    switch (groupe) {
        case Groupe::Personne:
            return {};
        case Groupe::Parents:
            return message::PereEtMere;
        case Groupe::Conjoints:
            return message::Conjoints;
        case Groupe::Enfants:
            return message::Enfants;
        case Groupe::Lies:
            break;
    }
    return message::Liens;
}

}  // namespace

void MDIForm1::Nouveau() {
    shell::MnuNouveau(session_);
}

void MDIForm1::Ouvrir() {
    shell::MnuOuvrir(session_);
}

void MDIForm1::Fermer() {
    shell::MnuFermer(session_);
}

void MDIForm1::Enregistrer() {
    if (shell::MnuEnregistrer(session_))
        session_.dialogue.Annoncer(shell::Msg(message::EtatBaseEnregistree));
}

void MDIForm1::Sauvegarde() {
    shell::MnuSauvegarde(session_);
}

void MDIForm1::Restauration() {
    shell::MnuRestauration(session_);
}

void MDIForm1::Importer() {
    interchange::MnuImporter(session_);
}

void MDIForm1::Quitter() {
    close();
}

void MDIForm1::Histo(int rang) {
    shell::MnuHisto(session_, rang);
}

void MDIForm1::AllerA(NoOrdre individu) {
    if (!session_.base || individu == session_.PersonneEnCours) return;
    if (!records::Existe(*session_.base, individu) || !shell::CommandePermise(session_)) return;
    session_.PersonneEnCours = individu;
    conjointPrecedent_ = NoOrdre{};
    ActualiserEtat();
}

void MDIForm1::Precedent() {
    if (session_.base)
        AllerA(records::VoisinDansLOrdre(*session_.base, session_.PersonneEnCours, -1));
}

void MDIForm1::Suivant() {
    if (session_.base)
        AllerA(records::VoisinDansLOrdre(*session_.base, session_.PersonneEnCours, 1));
}

void MDIForm1::Noms() {
    AllerA(session_.dialogue.ChoisirPersonne({session_.PersonneEnCours, {}, {}}));
}

void MDIForm1::AllerDeCujus(int k) {
    AllerA(session_.deCujus[static_cast<std::size_t>(k - 1)].individu);
}

void MDIForm1::ChoisirDeCujus(int k) {
    shell::MnuDeCujus(session_, k);
}

void MDIForm1::PasVers(records::Parente parente) {
    if (!session_.base) return;
    const NoOrdre avant = session_.PersonneEnCours;
    AllerA(records::ParentDe(*session_.base, avant, parente, conjointPrecedent_));
    // A person with several spouses shows the next one at each return.
    if (parente == records::Parente::ConjointSuivant && session_.PersonneEnCours != avant)
        conjointPrecedent_ = avant;
}

void MDIForm1::Agrandir() {
    if (!graphe_->Agrandir())
        session_.dialogue.Annoncer(shell::Msg(message::EtatGrapheAuPlusGrand));
}

void MDIForm1::Diminuer() {
    graphe_->Diminuer();
}

void MDIForm1::Ajuster() {
    graphe_->Ajuster();
}

void MDIForm1::Gauche() {
    graphe_->ChangerGenerations(records::VersLaGauche(graphe_->Generations()));
    DireGenerations();
}

void MDIForm1::Droite() {
    graphe_->ChangerGenerations(records::VersLaDroite(graphe_->Generations()));
    DireGenerations();
}

void MDIForm1::DireGenerations() {
    const records::ModeleFamille& modele = graphe_->Modele();
    const bool toutes = modele.demandees == modele.montrees;
    session_.dialogue.Annoncer(shell::Msg(
        toutes ? message::EtatGenerationsMontrees : message::EtatFamilleTropGrandePourGraphe,
        std::to_string(modele.montrees.ascendantes), std::to_string(modele.montrees.descendantes)));
}

void MDIForm1::Presentation(int presentation) {
    session_.parametres.base.affichage.typePresentation = presentation;
    graphe_->AppliquerPresentation();
    DireGenerations();
}

void MDIForm1::PoserPalette(Palette palette) {
    MemoriserPalette(session_, palette);
    PoserCoches();
    graphe_->PoserPalette(palette);
}

void MDIForm1::BarreIcones() {
    bool& montree = session_.parametres.generaux.barreMenus;
    montree = !montree;
    icones_->setVisible(montree);
}

void MDIForm1::BarreFenetres() {
    bool& montree = session_.parametres.generaux.barreFenetres;
    montree = !montree;
    SuivreFenetres();
}

/// The relatives of a person; choosing one moves there.
void MDIForm1::MenuIndividu(NoOrdre individu, const QPoint& point) {
    if (!session_.base) return;
    auto* menu = new QMenu{this};
    menu->setObjectName(QStringLiteral("MnuIndividu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto groupe = records::EntreeFamille::Groupe::Personne;
    for (const records::EntreeFamille& entree : records::EntreesFamille(*session_.base, individu)) {
        if (entree.groupe != groupe)
            menu->addSection(TexteEcran(session_, TitreGroupe(entree.groupe)));
        groupe = entree.groupe;
        const std::string texte = records::NomEtDates(session_, entree.individu) + "* ";
        QAction* action = menu->addAction(TexteVersQt(texte).replace(u'&', QStringLiteral("&&")));
        action->setData(entree.individu.valeur);
        const NoOrdre vers = entree.individu;
        connect(action, &QAction::triggered, this, [this, vers] { AllerA(vers); });
    }
    menu->addSeparator();
    QAction* fiche =
        menu->addAction(Icone("MnuModif"), TexteEcran(session_, message::MenuOuvrirFiche));
    fiche->setObjectName(QStringLiteral("OuvrirFiche"));
    connect(fiche, &QAction::triggered, this, [this, individu] { OuvrirFiche(individu); });
    menu->popup(point);
}

}  // namespace dorvane::windows

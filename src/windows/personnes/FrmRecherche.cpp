#include "windows/personnes/FrmRecherche.h"

#include "ui_FrmRecherche.h"
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include "messages/Famille.h"
#include "records/Apercu.h"
#include "shell/Session.h"
#include "windows/controles/ChampReplie.h"
#include "windows/controles/EnTeteListe.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ModelePersonnes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <vector>

namespace dorvane::windows {

FrmRecherche::FrmRecherche(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmRecherche"), parent},
      ui_{std::make_unique<Ui::FrmRecherche>()},
      recherche_{session},
      modele_{new ModelePersonnes{session, "FrmRecherche", this}} {
    ui_->setupUi(this);
    // Their windows do not exist yet.
    for (QWidget* bouton : {ui_->CmdParenté, ui_->CmdStats, ui_->CmdImprimer})
        bouton->hide();
    PreparerListe();
    setAcceptDrops(true);
    PlierChamp(*ui_->T_Recherche);
    connect(ui_->T_Recherche, &QLineEdit::textChanged, this, &FrmRecherche::PoserBoutons);
    connect(ui_->C_Recherche, &QPushButton::clicked, this, &FrmRecherche::Rechercher);
    connect(ui_->C_Affichage, &QPushButton::clicked, this, &FrmRecherche::Afficher);
    connect(ui_->C_Maj, &QPushButton::clicked, this, &FrmRecherche::OuvrirFiche);
    connect(ui_->CmdAjouter, &QPushButton::clicked, this, [this] { Ajouter(S().PersonneEnCours); });
    connect(ui_->CmdEcarter, &QPushButton::clicked, this, &FrmRecherche::Ecarter);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::reject);
    ui_->Grille1->installEventFilter(this);
    FrmRecherche::Traduire();
}

FrmRecherche::~FrmRecherche() = default;

void FrmRecherche::PreparerListe() {
    QTableView& liste = *ui_->Grille1;
    liste.setModel(modele_);
    liste.verticalHeader()->hide();
    liste.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    liste.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    liste.horizontalHeader()->setHighlightSections(false);
    liste.horizontalHeader()->setSectionResizeMode(ModelePersonnes::Nom, QHeaderView::Stretch);
    const int marge = 4 * fontMetrics().averageCharWidth();
    liste.setColumnWidth(
        ModelePersonnes::Marque,
        std::max(70, fontMetrics().horizontalAdvance(QStringLiteral("**")) + marge));
    liste.setColumnWidth(
        ModelePersonnes::Dates,
        fontMetrics().horizontalAdvance(QStringLiteral("999999999999999")) + marge);
    PreparerEntete(liste, S(), objectName());
    connect(&liste, &QTableView::doubleClicked, this, &FrmRecherche::Afficher);
    connect(liste.selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FrmRecherche::PoserBoutons);
    connect(liste.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmRecherche::PoserBoutons);
}

void FrmRecherche::Traduire() {
    FenetreFille::Traduire();
    modele_->Relire();
    PoserBoutons();
}

void FrmRecherche::Recharger() {
    recherche_.Relire();
    modele_->Relire();
    Montrer();
}

NoOrdre FrmRecherche::Choisie() const {
    return modele_->Individu(ui_->Grille1->currentIndex().row());
}

void FrmRecherche::showEvent(QShowEvent* evenement) {
    FenetreFille::showEvent(evenement);
    PoserBoutons();
    ui_->T_Recherche->setFocus();
    ui_->T_Recherche->selectAll();
}

void FrmRecherche::done(int resultat) {
    MemoriserEntete(*ui_->Grille1, S(), objectName());
    FenetreFille::done(resultat);
    recherche_.Vider();
    cherche_.clear();
    Montrer();
}

void FrmRecherche::Rechercher() {
    const QString texte = ui_->T_Recherche->text();
    if (texte.isEmpty()) return;
    cherche_ = texte;
    const bool cumul = ui_->ChxCumul->isChecked();
    ui_->C_Recherche->setEnabled(false);
    if (!cumul) modele_->Remplacer({});
    records::Rechercher(recherche_, S(), QtVersTexte(texte).octets, cumul, [this] { Montrer(); });
    Montrer();
    if (modele_->rowCount({}) == 0) return;
    if (!Choisie()) ui_->Grille1->setCurrentIndex(modele_->index(0, ModelePersonnes::Nom));
    ui_->Grille1->setFocus();
}

void FrmRecherche::Afficher() {
    if (const NoOrdre choisie = Choisie()) Q_EMIT allerDemande(choisie.valeur);
}

void FrmRecherche::OuvrirFiche() {
    if (const NoOrdre choisie = Choisie()) Q_EMIT ficheDemandee(choisie.valeur);
}

void FrmRecherche::dragEnterEvent(QDragEnterEvent* evenement) {
    if (PersonneDeMime(S(), evenement->mimeData())) evenement->acceptProposedAction();
}

void FrmRecherche::dropEvent(QDropEvent* evenement) {
    const NoOrdre individu = PersonneDeMime(S(), evenement->mimeData());
    if (!individu) return;
    Ajouter(individu);
    evenement->acceptProposedAction();
}

void FrmRecherche::Ajouter(NoOrdre individu) {
    recherche_.Ajouter(individu);
    Montrer();
    const int rangee = modele_->Rangee(individu);
    ui_->Grille1->setCurrentIndex(modele_->index(rangee, ModelePersonnes::Nom));
}

void FrmRecherche::Ecarter() {
    std::vector<NoOrdre> ecartees;
    for (const QModelIndex& index : ui_->Grille1->selectionModel()->selectedRows())
        ecartees.push_back(modele_->Individu(index.row()));
    for (const NoOrdre n : ecartees)
        recherche_.Ecarter(n);
    Montrer();
    // What was behind moves up to the place in use: the next press takes that.
    ui_->Grille1->setCurrentIndex(ui_->Grille1->currentIndex());
}

void FrmRecherche::Montrer() {
    modele_->Remplacer(recherche_.Resultat());
    PoserBoutons();
}

void FrmRecherche::PoserBoutons() {
    const int nombre = modele_->rowCount({});
    const bool choisie = nombre > 0 && Choisie();
    const bool ouverte = S().BaseOuverte();
    ui_->C_Recherche->setEnabled(ouverte && !ui_->T_Recherche->text().isEmpty());
    ui_->C_Affichage->setEnabled(choisie);
    ui_->C_Maj->setEnabled(choisie);
    ui_->CmdEcarter->setEnabled(choisie && ui_->Grille1->selectionModel()->hasSelection());
    ui_->CmdAjouter->setEnabled(ouverte && S().PersonneEnCours);
    ui_->Pages->setCurrentIndex(nombre > 0 ? 0 : 1);
    ui_->LblApercu->setText(TexteEcran(records::ApercuDe(S(), Choisie())));
    const auto texte = [this](const shell::Phrase& phrase) {
        return TexteEcran(S().catalogue.Composer(phrase));
    };
    ui_->LblNombre->setText(
        texte(shell::Msg(message::NombrePersonnesRecherche, std::to_string(nombre))));
    ui_->LblVide->setText(cherche_.isEmpty() ? texte(shell::Msg(message::AideRechercheParNom))
                                             : texte(shell::Msg(message::RechercheSansResultat,
                                                                QtVersTexte(cherche_).octets)));
}

/// In the list Enter shows the person, and Delete takes the row away.
bool FrmRecherche::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui_->Grille1 && evenement->type() == QEvent::KeyPress) {
        const int touche = static_cast<QKeyEvent*>(evenement)->key();
        if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
            Afficher();
            return true;
        }
        if (touche == Qt::Key_Delete) {
            Ecarter();
            return true;
        }
    }
    return FenetreFille::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows

#include "windows/personnes/FenetreChoix.h"

#include "ui_FenetreChoix.h"
#include <QHeaderView>
#include <QKeyEvent>

#include "messages/Famille.h"
#include "records/Apercu.h"
#include "records/TextesChoix.h"
#include "shell/Session.h"
#include "windows/controles/ChampReplie.h"
#include "windows/controles/EnTeteListe.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ModelePersonnes.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

using shell::Msg;

constexpr int LargeurMarque = 70;
constexpr int LargeurDates = 130;

}  // namespace

FenetreChoix::FenetreChoix(shell::Session& session, const QString& nom,
                           const records::DemandeChoix& demande, const std::string& filtre,
                           QWidget* parent)
    : FenetreFille{session, nom, parent},
      ui_{std::make_unique<Ui::FenetreChoix>()},
      choix_{session, demande},
      modele_{new ModelePersonnes{session, nom.toStdString(), this}} {
    ui_->setupUi(this);
    // The form is that of four windows, each under its own name.
    setObjectName(nom);
    PreparerListe();
    PlierChamp(*ui_->TxtNom);
    ui_->TxtNom->setText(TexteVersQt(filtre));
    connect(ui_->TxtNom, &QLineEdit::textChanged, this, &FenetreChoix::Appliquer);
    connect(ui_->Commande1, &QPushButton::clicked, this, &FenetreChoix::Appliquer);
    connect(ui_->ChkAnnees, &QCheckBox::toggled, this, [this](bool toutes) {
        choix_.LeverFenetre(toutes);
        Montrer();
    });
    connect(ui_->C_Préc, &QPushButton::clicked, this, [this] { Tourner(-1); });
    connect(ui_->C_Suiv, &QPushButton::clicked, this, [this] { Tourner(1); });
    connect(ui_->CmdChoisir, &QPushButton::clicked, this, &FenetreChoix::Valider);
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->Grille1, &QTableView::doubleClicked, this, &FenetreChoix::Valider);
    connect(ui_->Grille1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FenetreChoix::MontrerApercu);
    ui_->TxtNom->installEventFilter(this);
    ui_->Grille1->installEventFilter(this);
    FenetreChoix::Traduire();
    Appliquer();
    ui_->TxtNom->setFocus();
    ui_->TxtNom->selectAll();
}

FenetreChoix::~FenetreChoix() = default;

void FenetreChoix::PreparerListe() {
    QTableView& liste = *ui_->Grille1;
    liste.setModel(modele_);
    liste.verticalHeader()->hide();
    liste.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    liste.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    liste.horizontalHeader()->setHighlightSections(false);
    liste.horizontalHeader()->setSectionResizeMode(ModelePersonnes::Nom, QHeaderView::Stretch);
    liste.setColumnWidth(ModelePersonnes::Marque, LargeurMarque);
    liste.setColumnWidth(ModelePersonnes::Dates, LargeurDates);
    PreparerEntete(liste, S(), objectName());
}

void FenetreChoix::done(int resultat) {
    MemoriserEntete(*ui_->Grille1, S(), objectName());
    FenetreFille::done(resultat);
}

void FenetreChoix::Traduire() {
    FenetreFille::Traduire();
    modele_->Relire();
    Dire();
}

void FenetreChoix::Recharger() {
    choix_.Recommencer();
    Montrer();
}

NoOrdre FenetreChoix::Choisie() const {
    return modele_->Individu(ui_->Grille1->currentIndex().row());
}

bool FenetreChoix::Prendre(NoOrdre /*individu*/) {
    return true;
}

void FenetreChoix::Valider() {
    if (const NoOrdre choisie = Choisie(); choisie && Prendre(choisie)) accept();
}

void FenetreChoix::Appliquer() {
    choix_.Filtrer(QtVersTexte(ui_->TxtNom->text()).octets);
    Montrer();
}

void FenetreChoix::Montrer(bool fin) {
    modele_->Remplacer(choix_.Page());
    const int rangees = modele_->rowCount({});
    ui_->Grille1->setCurrentIndex(modele_->index(fin ? rangees - 1 : 0, ModelePersonnes::Nom));
    Dire();
}

/// Who has homonyms is told from them below the list.
void FenetreChoix::MontrerApercu() {
    ui_->LblApercu->setText(TexteEcran(records::ApercuDe(S(), Choisie())));
}

void FenetreChoix::Tourner(int pas) {
    if (pas < 0 ? choix_.Precedente() : choix_.Suivante()) Montrer(pas < 0);
}

void FenetreChoix::Dire() {
    const auto texte = [this](const shell::Phrase& phrase) {
        return TexteEcran(S().catalogue.Composer(phrase));
    };
    setWindowTitle(texte(records::TexteTitre(S(), choix_)));
    ui_->LblFenetre->setText(texte(records::TexteFenetre(S(), choix_)));
    ui_->LblVide->setText(texte(records::TexteVide(choix_)));
    ui_->LblPage->setText(
        texte(Msg(message::NombrePersonnesEtPage, std::to_string(choix_.Nombre()),
                  std::to_string(choix_.NoPage()) + '/' + std::to_string(choix_.NbPages()))));
    ui_->Pages->setCurrentIndex(choix_.Page().empty() ? 1 : 0);
    ui_->CmdChoisir->setEnabled(!choix_.Page().empty());
    // A button that loses its sense under the finger passes the focus to the list.
    if ((ui_->C_Préc->hasFocus() && !choix_.APrecedente()) ||
        (ui_->C_Suiv->hasFocus() && !choix_.ASuivante()))
        ui_->Grille1->setFocus();
    ui_->C_Préc->setEnabled(choix_.APrecedente());
    ui_->C_Suiv->setEnabled(choix_.ASuivante());
    MontrerApercu();
}

/// The arrows go on to the neighbour page at the ends of the list, the page keys at once.
bool FenetreChoix::ToucheListe(int touche, bool dansListe) {
    const int rangee = ui_->Grille1->currentIndex().row();
    switch (touche) {
        case Qt::Key_PageUp:
            Tourner(-1);
            return true;
        case Qt::Key_PageDown:
            Tourner(1);
            return true;
        case Qt::Key_Up:
            if (rangee > 0) break;
            Tourner(-1);
            return true;
        case Qt::Key_Down:
            if (rangee + 1 < modele_->rowCount({})) break;
            Tourner(1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!dansListe) return false;
            Valider();
            return true;
        default:
            return false;
    }
    if (dansListe) return false;
    ui_->Grille1->setCurrentIndex(
        modele_->index(touche == Qt::Key_Up ? rangee - 1 : rangee + 1, ModelePersonnes::Nom));
    return true;
}

bool FenetreChoix::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::KeyPress && (objet == ui_->TxtNom || objet == ui_->Grille1) &&
        ToucheListe(static_cast<QKeyEvent*>(evenement)->key(), objet == ui_->Grille1))
        return true;
    return FenetreFille::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows

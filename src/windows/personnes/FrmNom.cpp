#include "windows/personnes/FrmNom.h"

#include "ui_FrmNom.h"
#include <QHeaderView>
#include <QKeyEvent>

#include "messages/Dorvane.h"
#include "messages/Famille.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/EnTeteListe.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/personnes/ModeleNoms.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

constexpr int LargeurDates = 110;
constexpr int LargeurMarque = 76;

}  // namespace

FrmNom::FrmNom(shell::Session& session, const shell::DemandePersonne& demande, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmNom"), parent},
      demande_{demande},
      ui_{std::make_unique<Ui::FrmNom>()},
      modele_{new ModeleNoms{session, demande.parmi, this}} {
    ui_->setupUi(this);
    PreparerListe(demande.depart);
    connect(ui_->TxtFiltre, &QLineEdit::textChanged, this, &FrmNom::Filtrer);
    connect(ui_->TxPosition, &QLineEdit::textChanged, this, &FrmNom::Positionner);
    connect(ui_->LstNoms, &QTableView::doubleClicked, this, &QDialog::accept);
    connect(ui_->CmdChoisir, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &QDialog::reject);
    ui_->TxtFiltre->installEventFilter(this);
    ui_->TxPosition->installEventFilter(this);
    ui_->LstNoms->installEventFilter(this);
    Traduire();
    ui_->TxtFiltre->setFocus();
}

FrmNom::~FrmNom() = default;

void FrmNom::PreparerListe(NoOrdre depart) {
    QTableView& liste = *ui_->LstNoms;
    liste.setModel(modele_);
    liste.verticalHeader()->hide();
    // One height for all rows: measuring 64000 of them would take longer than reading them.
    liste.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    liste.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    liste.horizontalHeader()->setHighlightSections(false);
    liste.horizontalHeader()->setStretchLastSection(false);
    liste.horizontalHeader()->setSectionResizeMode(ModeleNoms::Nom, QHeaderView::Stretch);
    liste.setColumnWidth(ModeleNoms::Dates, LargeurDates);
    for (const int colonne : {ModeleNoms::Parents, ModeleNoms::Sexe, ModeleNoms::Famille})
        liste.setColumnWidth(colonne, LargeurMarque);
    PreparerEntete(liste, S(), objectName());
    liste.horizontalHeader()->setSortIndicatorClearable(true);
    liste.setSortingEnabled(true);
    for (QWidget* champ :
         {static_cast<QWidget*>(ui_->LblPosition), static_cast<QWidget*>(ui_->TxPosition)})
        champ->setVisible(modele_->Positionnable());
    Choisir(std::max(0, modele_->Rangee(depart.valeur)));
}

void FrmNom::Traduire() {
    FenetreFille::Traduire();
    if (!demande_.titre.EstVide())
        setWindowTitle(TexteEcran(S().catalogue.Composer(demande_.titre)));
    const bool parAnnee = S().BaseOuverte() && S().base->entete.TypeTri == TypeTri::Naissance;
    ui_->LblPosition->setText(
        TexteEcran(S(), parAnnee ? message::AllerALAnnee : message::AllerAuNom));
    ui_->TxPosition->setPlaceholderText(
        TexteEcran(S(), parAnnee ? message::InviteAnneeNaissance : message::InviteDebutDuNom));
    Compter();
}

NoOrdre FrmNom::Choisie() const {
    return modele_->Individu(ui_->LstNoms->currentIndex().row());
}

void FrmNom::Choisir(int rangee) {
    const QModelIndex index = modele_->index(rangee, ModeleNoms::Nom);
    ui_->LstNoms->setCurrentIndex(index);
    ui_->LstNoms->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void FrmNom::Filtrer() {
    const NoOrdre choisie = Choisie();
    modele_->Filtrer(ui_->TxtFiltre->text());
    Choisir(std::max(0, modele_->Rangee(choisie.valeur)));
    Compter();
}

/// The list goes to the name or year, in the order of the base.
void FrmNom::Positionner() {
    ui_->LstNoms->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    if (ui_->TxPosition->text().isEmpty()) return;
    const QModelIndex place =
        modele_->index(modele_->Position(ui_->TxPosition->text()), ModeleNoms::Nom);
    ui_->LstNoms->setCurrentIndex(place);
    ui_->LstNoms->scrollTo(place, QAbstractItemView::PositionAtTop);
}

void FrmNom::done(int resultat) {
    MemoriserEntete(*ui_->LstNoms, S(), objectName());
    FenetreFille::done(resultat);
}

void FrmNom::Compter() {
    const int montres = modele_->rowCount({});
    const std::string total = std::to_string(modele_->Total());
    const shell::Phrase nombre =
        montres == modele_->Total()
            ? shell::Msg(message::NombrePersonnes, total)
            : shell::Msg(message::NombrePersonnesFiltrees, std::to_string(montres), total);
    ui_->LblNombre->setText(TexteEcran(S().catalogue.Composer(nombre)));
    ui_->CmdChoisir->setEnabled(montres > 0);
    ui_->Pages->setCurrentIndex(montres > 0 ? 0 : 1);
    const shell::Phrase vide =
        modele_->Total() == 0
            ? shell::Msg(message::BaseSansPersonne)
            : shell::Msg(message::AucunNomNeContient, QtVersTexte(ui_->TxtFiltre->text()).octets);
    ui_->LblVide->setText(TexteEcran(S().catalogue.Composer(vide)));
}

/// The arrows move in the list while the filter has the focus.
bool FrmNom::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::KeyPress) return FenetreFille::eventFilter(objet, evenement);
    const int touche = static_cast<QKeyEvent*>(evenement)->key();
    const bool deplacement = touche == Qt::Key_Up || touche == Qt::Key_Down ||
                             touche == Qt::Key_PageUp || touche == Qt::Key_PageDown;
    if ((objet == ui_->TxtFiltre || objet == ui_->TxPosition) && deplacement) {
        QCoreApplication::sendEvent(ui_->LstNoms, evenement);
        return true;
    }
    if (objet == ui_->LstNoms && (touche == Qt::Key_Return || touche == Qt::Key_Enter)) {
        if (Choisie()) accept();
        return true;
    }
    return FenetreFille::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows

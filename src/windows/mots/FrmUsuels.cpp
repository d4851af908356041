#include "windows/mots/FrmUsuels.h"

#include "ui_FrmUsuels.h"
#include <QKeyEvent>
#include <QSignalBlocker>

#include "messages/Dorvane.h"
#include "messages/Mots.h"
#include "records/MotsUsuels.h"
#include "shell/Session.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

/// What is typed; empty when the user does not want it without the characters that are lost.
std::string TexteDe(const QLineEdit& champ, shell::Session& session) {
    std::size_t remplaces = 0;
    std::string texte = LireChamp(champ.text(), remplaces);
    return AccepterRemplaces(session, remplaces) ? texte : std::string{};
}

bool EstEntree(const QEvent& evenement) {
    if (evenement.type() != QEvent::KeyPress) return false;
    const int touche = static_cast<const QKeyEvent&>(evenement).key();
    return touche == Qt::Key_Return || touche == Qt::Key_Enter;
}

}  // namespace

FrmUsuels::FrmUsuels(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmUsuels"), parent},
      ui_{std::make_unique<Ui::FrmUsuels>()} {
    setAttribute(Qt::WA_DeleteOnClose);
    ui_->setupUi(this);
    connect(ui_->CboRubrique, &QComboBox::currentIndexChanged, this, &FrmUsuels::ListerMots);
    connect(ui_->LstMot, &QListWidget::currentRowChanged, this, &FrmUsuels::ActiverBoutons);
    connect(ui_->TxtMot, &QLineEdit::textChanged, this, &FrmUsuels::ActiverBoutons);
    connect(ui_->TxtRubrique, &QLineEdit::textChanged, this, &FrmUsuels::ActiverBoutons);
    connect(ui_->CmdMotNouveau, &QPushButton::clicked, this, &FrmUsuels::AjouterMot);
    connect(ui_->CmdMotSup, &QPushButton::clicked, this, &FrmUsuels::SupprimerMot);
    connect(ui_->CmdNouvRubr, &QPushButton::clicked, this, &FrmUsuels::AjouterRubrique);
    connect(ui_->CmdSupRub, &QPushButton::clicked, this, &FrmUsuels::SupprimerRubrique);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::close);
    for (QWidget* champ :
         {static_cast<QWidget*>(ui_->TxtMot), static_cast<QWidget*>(ui_->TxtRubrique),
          static_cast<QWidget*>(ui_->LstMot)})
        champ->installEventFilter(this);
    for (QLineEdit* champ : {ui_->TxtMot, ui_->TxtRubrique})
        SuivreLangue(*champ, SorteSaisie::Libelle);
    Traduire();
    ui_->TxtMot->setFocus();
}

FrmUsuels::~FrmUsuels() = default;

void FrmUsuels::Traduire() {
    FenetreFille::Traduire();
    ui_->LblVide->setText(TexteEcran(S(), message::RubriqueSansMot));
    const int rang = std::max(0, ui_->CboRubrique->currentIndex());
    ListerRubriques({});
    ui_->CboRubrique->setCurrentIndex(std::min(rang, ui_->CboRubrique->count() - 1));
}

std::string FrmUsuels::Rubrique() const {
    return QtVersTexte(ui_->CboRubrique->currentText()).octets;
}

void FrmUsuels::ListerRubriques(const QString& choisie) {
    {
        const QSignalBlocker silence{ui_->CboRubrique};
        ui_->CboRubrique->clear();
        for (const std::string& rubrique : records::ListerRubriques(S()))
            ui_->CboRubrique->addItem(TexteVersQt(rubrique));
        ui_->CboRubrique->setCurrentIndex(std::max(0, ui_->CboRubrique->findText(choisie)));
    }
    ListerMots();
}

void FrmUsuels::ListerMots() {
    ui_->LstMot->clear();
    for (const std::string& mot : records::ListerMotsUsuels(S(), Rubrique()))
        ui_->LstMot->addItem(TexteVersQt(mot));
    ui_->Pages->setCurrentIndex(ui_->LstMot->count() > 0 ? 0 : 1);
    ActiverBoutons();
}

void FrmUsuels::ActiverBoutons() {
    const bool rubrique = ui_->CboRubrique->count() > 0;
    ui_->CmdSupRub->setEnabled(rubrique);
    ui_->CmdMotSup->setEnabled(ui_->LstMot->currentItem() != nullptr);
    ui_->CmdMotNouveau->setEnabled(rubrique && !ui_->TxtMot->text().trimmed().isEmpty());
    ui_->CmdNouvRubr->setEnabled(!ui_->TxtRubrique->text().trimmed().isEmpty());
}

void FrmUsuels::AjouterMot() {
    const QString mot = ui_->TxtMot->text().trimmed();
    if (!records::AjouterMotUsuel(S(), Rubrique(), TexteDe(*ui_->TxtMot, S()))) {
        ui_->TxtMot->selectAll();
    } else {
        ui_->TxtMot->clear();
        ListerMots();
    }
    // A word that is there already is shown.
    const auto trouves = ui_->LstMot->findItems(mot, Qt::MatchExactly);
    if (!trouves.isEmpty()) ui_->LstMot->setCurrentItem(trouves.first());
    ui_->TxtMot->setFocus();
}

void FrmUsuels::SupprimerMot() {
    const QListWidgetItem* mot = ui_->LstMot->currentItem();
    if (mot == nullptr) return;
    const int rang = ui_->LstMot->currentRow();
    if (!records::SupprimerMotUsuel(S(), Rubrique(), QtVersTexte(mot->text()).octets)) return;
    ListerMots();
    ui_->LstMot->setCurrentRow(std::min(rang, ui_->LstMot->count() - 1));
}

void FrmUsuels::AjouterRubrique() {
    const QString rubrique = ui_->TxtRubrique->text().trimmed();
    if (records::AjouterRubrique(S(), TexteDe(*ui_->TxtRubrique, S()))) ui_->TxtRubrique->clear();
    ListerRubriques(rubrique);
    ui_->TxtMot->setFocus();
}

void FrmUsuels::SupprimerRubrique() {
    if (records::SupprimerRubrique(S(), Rubrique())) ListerRubriques({});
}

bool FrmUsuels::Verser(const QLineEdit& champ) {
    if (&champ == ui_->TxtMot)
        AjouterMot();
    else
        AjouterRubrique();
    return champ.text().trimmed().isEmpty();
}

bool FrmUsuels::ConfirmerFermeture() {
    for (QLineEdit* champ : {ui_->TxtMot, ui_->TxtRubrique}) {
        const QString saisi = champ->text().trimmed();
        if (saisi.isEmpty()) continue;
        if (!QuitterSaisie(
                shell::Msg(message::ProposerAjouterMotUsuel, QtVersTexte(saisi).octets),
                [this, champ] { return Verser(*champ); }, [champ] { champ->clear(); }))
            return false;
    }
    return true;
}

void FrmUsuels::reject() {
    if (ConfirmerFermeture()) FenetreFille::reject();
}

bool FrmUsuels::EnregistrerSaisie() {
    for (const QLineEdit* champ : {ui_->TxtMot, ui_->TxtRubrique})
        if (!champ->text().trimmed().isEmpty() && !Verser(*champ)) return false;
    return true;
}

/// Enter does what the button beside the field does; Delete takes the selected word away.
bool FrmUsuels::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui_->TxtMot && EstEntree(*evenement)) {
        ui_->CmdMotNouveau->click();
        return true;
    }
    if (objet == ui_->TxtRubrique && EstEntree(*evenement)) {
        ui_->CmdNouvRubr->click();
        return true;
    }
    if (objet == ui_->LstMot && evenement->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evenement)->key() == Qt::Key_Delete) {
        SupprimerMot();
        return true;
    }
    return FenetreFille::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows

#include "windows/cadre/FrmCalendrier.h"

#include "ui_FrmCalendrier.h"
#include <QSignalBlocker>

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/Session.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <array>

namespace dorvane::windows {

namespace {

constexpr int NbMoisGregoriens = 12;
constexpr int LargeurInitiale = 480;  ///< has room for what is told beside a field

void Souligner(QLabel& etiquette) {
    // A warning colour that can be read on light and dark windows alike, beside the words.
    const bool sombre = etiquette.palette().color(QPalette::Window).lightness() < 128;
    QPalette palette = etiquette.palette();
    palette.setColor(QPalette::WindowText,
                     sombre ? QColor{0xFF, 0xA0, 0x90} : QColor{0xA8, 0x1C, 0x0C});
    etiquette.setPalette(palette);
}

}  // namespace

FrmCalendrier::FrmCalendrier(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmCalendrier"), parent},
      ui_{std::make_unique<Ui::FrmCalendrier>()} {
    setAttribute(Qt::WA_DeleteOnClose);
    ui_->setupUi(this);
    gregorien_ = {ui_->T_JourG,       ui_->LstMoisG,      ui_->LstAnnéeG,
                  ui_->LblRefusJourG, ui_->LblRefusMoisG, ui_->LblRefusAnnéeG};
    republicain_ = {ui_->T_JourR,       ui_->LstMoisR,      ui_->LstAnnéeR,
                    ui_->LblRefusJourR, ui_->LblRefusMoisR, ui_->LblRefusAnnéeR};
    for (int i = 0; i < NbMoisGregoriens; ++i)
        ui_->LstMoisG->addItem({});
    for (int i = 1; i <= NbMoisRepublicains; ++i)
        ui_->LstMoisR->addItem(TexteVersQt(MoisRepublicain(i)));
    for (int i = 1; i <= NbAnneesRepublicaines; ++i) {
        ui_->LstAnnéeR->addItem(TexteVersQt(AnneeRepublicaine(i)));
        ui_->LstAnnéeG->addItem(TexteVersQt(AnneeGregorienne(i)));
    }
    for (QComboBox* liste : {ui_->LstMoisG, ui_->LstMoisR, ui_->LstAnnéeG, ui_->LstAnnéeR}) {
        liste->setMaxVisibleItems(NbAnneesRepublicaines);
        liste->setCurrentIndex(-1);
    }
    for (const Champs& champs : {gregorien_, republicain_}) {
        for (QLabel* refus : {champs.refusJour, champs.refusMois, champs.refusAnnee})
            Souligner(*refus);
    }
    Relier(gregorien_, &FrmCalendrier::CmdGRClique);
    Relier(republicain_, &FrmCalendrier::CmdRGClique);
    connect(ui_->CmdGR, &QPushButton::clicked, this, &FrmCalendrier::CmdGRClique);
    connect(ui_->CmdRG, &QPushButton::clicked, this, &FrmCalendrier::CmdRGClique);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::close);
    Traduire();
    resize(LargeurInitiale, sizeHint().height());
    ui_->T_JourG->setFocus();
}

FrmCalendrier::~FrmCalendrier() = default;

void FrmCalendrier::Traduire() {
    FenetreFille::Traduire();
    EffacerRefus(gregorien_);
    EffacerRefus(republicain_);
    // The two forms line up, whatever the language.
    const std::array<QLabel*, 6> etiquettes{ui_->LblJourG, ui_->LblMoisG, ui_->LblAnnéeG,
                                            ui_->LblJourR, ui_->LblMoisR, ui_->LblAnnéeR};
    int largeur = 0;
    for (const QLabel* etiquette : etiquettes)
        largeur = std::max(largeur, etiquette->sizeHint().width());
    for (QLabel* etiquette : etiquettes)
        etiquette->setMinimumWidth(largeur);
}

/// The other date follows as soon as all three fields are filled; what is wrong is told at once,
/// but not that something is still to come.
void FrmCalendrier::Relier(const Champs& champs, void (FrmCalendrier::*convertir)()) {
    const auto suivre = [this, champs, convertir] {
        const bool complet = !champs.jour->text().trimmed().isEmpty() &&
                             champs.mois->currentIndex() >= 0 && champs.annee->currentIndex() >= 0;
        EffacerRefus(champs);
        if (complet) (this->*convertir)();
    };
    connect(champs.jour, &QLineEdit::textChanged, this, suivre);
    connect(champs.mois, &QComboBox::currentIndexChanged, this, suivre);
    connect(champs.annee, &QComboBox::currentIndexChanged, this, suivre);
    connect(champs.jour, &QLineEdit::returnPressed, this, convertir);
}

void FrmCalendrier::CmdGRClique() {
    Convertir(gregorien_, republicain_, &GregorienVersRepublicain);
}

void FrmCalendrier::CmdRGClique() {
    Convertir(republicain_, gregorien_, &RepublicainVersGregorien);
}

void FrmCalendrier::Convertir(const Champs& de, const Champs& vers, Conversion conversion) {
    EffacerRefus(de);
    EffacerRefus(vers);
    const DateConvertie resultat = conversion(Lire(de));
    if (resultat.refus) {
        Refuser(de, resultat.refus);
        return;
    }
    Montrer(vers, resultat.date);
    if (vers.annee->currentIndex() < 0)
        vers.refusAnnee->setText(TexteEcran(S(), message::AnneeHorsDesListes));
}

DateDeListe FrmCalendrier::Lire(const Champs& champs) {
    bool nombre = false;
    const int jour = champs.jour->text().trimmed().toInt(&nombre);
    return {nombre ? jour : 0, champs.mois->currentIndex() + 1, champs.annee->currentIndex() + 1};
}

void FrmCalendrier::Montrer(const Champs& champs, const DateDeListe& date) {
    const QSignalBlocker jour{champs.jour};
    const QSignalBlocker mois{champs.mois};
    const QSignalBlocker annee{champs.annee};
    champs.jour->setText(QString::number(date.jour));
    champs.mois->setCurrentIndex(date.mois - 1);
    // A year outside its list leaves the list without a choice.
    const bool dansLaListe = date.annee >= 1 && date.annee <= champs.annee->count();
    champs.annee->setCurrentIndex(dansLaListe ? date.annee - 1 : -1);
}

void FrmCalendrier::EffacerRefus(const Champs& champs) {
    for (QLabel* refus : {champs.refusJour, champs.refusMois, champs.refusAnnee})
        refus->clear();
}

void FrmCalendrier::Refuser(const Champs& champs, NoMessage refus) {
    QLabel* etiquette = refus == message::MoisNonChoisi     ? champs.refusMois
                        : refus == message::AnneeNonChoisie ? champs.refusAnnee
                                                            : champs.refusJour;
    QWidget* champ = refus == message::MoisNonChoisi     ? static_cast<QWidget*>(champs.mois)
                     : refus == message::AnneeNonChoisie ? static_cast<QWidget*>(champs.annee)
                                                         : champs.jour;
    etiquette->setText(TexteEcran(S(), refus));
    champ->setFocus();
}

}  // namespace dorvane::windows

#include "windows/mots/FrmMot.h"

#include "ui_FrmMot.h"
#include <QLineEdit>

#include "messages/Faits.h"
#include "records/AccordEvenements.h"
#include "records/Fiche.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Completeur.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"

#include <optional>

namespace dorvane::windows {

namespace {

constexpr int TailleAnnee = 4;

}  // namespace

FrmMot::FrmMot(shell::Session& session, NoOrdre individu, const records::SaisieEvenement& evenement,
               QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmMot"), parent},
      ui_{std::make_unique<Ui::FrmMot>()},
      individu_{individu},
      evenement_{evenement},
      slots_{records::ChargerFiche(session, individu).slots} {
    ui_->setupUi(this);
    setModal(true);
    Traduire();
    ui_->LblPersonne->setText(TexteVersQt(records::NomEtDates(session, individu)));
    FaireRangees();
    connect(ui_->CmdReprendre, &QPushButton::clicked, this, &FrmMot::Reprendre);
    connect(ui_->CmdValider, &QPushButton::clicked, this, &FrmMot::Valider);
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &FrmMot::reject);
}

FrmMot::~FrmMot() = default;

QLineEdit* FrmMot::FaireChamp(const char* nom, std::size_t k, std::string_view texte,
                              NoMessage acces, const QString& rubrique) {
    auto* champ = new QLineEdit{this};
    champ->setObjectName(QStringLiteral("%1(%2)").arg(QString::fromUtf8(nom)).arg(k));
    champ->setAccessibleName(rubrique + u' ' + TexteEcran(S(), acces));
    champ->setPlaceholderText(TexteEcran(S(), acces));
    PoserChamp(*champ, texte);
    champ->installEventFilter(this);
    connect(champ, &QLineEdit::textChanged, this, [this, champ] { MarquerChamp(*champ, S()); });
    return champ;
}

void FrmMot::FaireRangees() {
    const storage::DefinitionSlots definition = S().base->DefinitionIndividu();
    const std::size_t nombre = storage::NbSlots(definition.slots);
    QWidget* avant = nullptr;
    const auto suivre = [&](QWidget* champ) {
        if (avant != nullptr) setTabOrder(avant, champ);
        avant = champ;
    };
    for (std::size_t k = 0; k < nombre; ++k) {
        const int ligne = static_cast<int>(k);
        const QString rubrique =
            TexteVersQt(shell::LibelleDeTag(S().catalogue, definition.libelles[k]));
        auto* etiquette = new QLabel{rubrique, this};
        ui_->Rangees->addWidget(etiquette, ligne, 0);
        Rangee& rangee = rangees_[k];
        if (definition.slots[k].drapeau == '1') {
            rangee.jourMois = FaireChamp("TxtIndJ", k, slots_[k].jourMois,
                                         message::InviteJourEtMoisRubrique, rubrique);
            SuivreLangue(*rangee.jourMois, SorteSaisie::JourMois);
            rangee.annee =
                FaireChamp("TxtIndA", k, slots_[k].annee, message::InviteAnneeRubrique, rubrique);
            rangee.annee->setMaxLength(TailleAnnee);
            rangee.annee->setMaximumWidth(9 * fontMetrics().averageCharWidth());
            rangee.jourMois->setMaximumWidth(26 * fontMetrics().averageCharWidth());
            ui_->Rangees->addWidget(rangee.jourMois, ligne, 1);
            ui_->Rangees->addWidget(rangee.annee, ligne, 2);
            suivre(rangee.jourMois);
            suivre(rangee.annee);
        }
        const bool date = rangee.jourMois != nullptr;
        rangee.lieu =
            FaireChamp("TxtIndL", k, slots_[k].lieu,
                       date ? message::InviteLieuRubrique : message::InviteMotRubrique, rubrique);
        new Completeur{*rangee.lieu, S(), std::string_view{&definition.slots[k].symbole, 1}};
        ui_->Rangees->addWidget(rangee.lieu, ligne, date ? 3 : 1, 1, date ? 1 : 3);
        etiquette->setBuddy(date ? rangee.jourMois : rangee.lieu);
        suivre(rangee.lieu);
    }
    ui_->Rangees->setColumnStretch(3, 1);
    ui_->LblVide->setVisible(nombre == 0);
    ui_->CmdReprendre->setEnabled(nombre != 0);
    ui_->CmdValider->setEnabled(nombre != 0);
    if (avant != nullptr) setTabOrder(avant, ui_->CmdReprendre);
    if (nombre != 0)
        (rangees_[0].jourMois != nullptr ? rangees_[0].jourMois : rangees_[0].lieu)->setFocus();
}

bool FrmMot::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusIn)
        for (std::size_t k = 0; k < rangees_.size(); ++k)
            for (const QLineEdit* champ :
                 {rangees_[k].jourMois, rangees_[k].annee, rangees_[k].lieu})
                if (champ != nullptr && champ == objet) courante_ = k;
    return FenetreFille::eventFilter(objet, evenement);
}

/// Date and place of the event go to the row in which the user stands.
void FrmMot::Reprendre() {
    const Rangee& rangee = rangees_[courante_];
    if (rangee.jourMois != nullptr) {
        const std::optional<Serie> serie =
            SaisirDateEvenement(evenement_.date, S().Ordre(), S().Mots());
        records::DateCoupee date;
        if (serie) date = records::CouperDate(AfficherDateEvenement(*serie, S().Mots()));
        rangee.jourMois->setText(TexteVersQt(date.jourMois));
        rangee.annee->setText(TexteVersQt(date.annee));
        rangee.lieu->setText(TexteVersQt(evenement_.lieu));
    } else {
        rangee.lieu->setText(TexteVersQt(evenement_.libelle));
    }
}

void FrmMot::ChangerLangue(const MotsDeLangue& avant) {
    FenetreFille::ChangerLangue(avant);
    // As the fields show it now.
    slots_ = records::ChargerFiche(S(), individu_).slots;
}

bool FrmMot::EnregistrerSaisie() {
    Valider();
    return !isVisible();
}

records::RangeesSlots FrmMot::Lire(std::size_t& remplaces) const {
    records::RangeesSlots valeurs = slots_;
    for (std::size_t k = 0; k < rangees_.size() && rangees_[k].lieu != nullptr; ++k) {
        if (rangees_[k].jourMois != nullptr) {
            valeurs[k].jourMois = LireChamp(rangees_[k].jourMois->text(), remplaces);
            valeurs[k].annee = LireChamp(rangees_[k].annee->text(), remplaces);
        }
        valeurs[k].lieu = LireChamp(rangees_[k].lieu->text(), remplaces);
    }
    return valeurs;
}

void FrmMot::Valider() {
    std::size_t remplaces = 0;
    const records::RangeesSlots valeurs = Lire(remplaces);
    if (!AccepterRemplaces(S(), remplaces)) return;
    if (records::EcrireRangees(S(), individu_, valeurs))
        accept();
    else
        FenetreFille::reject();
}

void FrmMot::reject() {
    std::size_t remplaces = 0;
    if (Lire(remplaces) == slots_) return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerEnregistrerRubriques), [this] { Valider(); });
}

}  // namespace dorvane::windows

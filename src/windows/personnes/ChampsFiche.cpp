#include "windows/personnes/ChampsFiche.h"

#include "ui_ChampsFiche.h"
#include <QLabel>

#include "messages/Fiche.h"
#include "records/TexteFiche.h"
#include "shell/Session.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Completeur.h"
#include "windows/controles/Icones.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <array>

namespace dorvane::windows {

using records::AvisDate;
using records::Casse;
using records::Champ;

QString TexteAvis(const shell::Session& session, AvisDate avis) {
    switch (avis) {
        case AvisDate::AnneeManque:
            return TexteEcran(session, message::AvisAnneeManque);
        case AvisDate::AnneeIllisible:
            return TexteEcran(session, message::AvisAnneeNonTriable);
        case AvisDate::DateIllisible:
            return TexteEcran(session, message::AvisDateNonReconnue);
        case AvisDate::AvantNaissance:
            return TexteEcran(session, message::AvisAvantNaissance);
        case AvisDate::ApresDeces:
            return TexteEcran(session, message::AvisApresDeces);
        case AvisDate::VieTropLongue:
            return TexteEcran(session, message::AvisPlusDe120Ans);
        case AvisDate::Bon:
            break;
    }
    return {};
}

void SuivreJourMois(QLineEdit& champ, const shell::Session& session) {
    SuivreLangue(champ, SorteSaisie::JourMois);
    QObject::connect(&champ, &QLineEdit::editingFinished, &champ, [&champ, &session] {
        const std::string saisi = QtVersTexte(champ.text()).octets;
        const std::string ecrit = QuitterJourMois(saisi, session.Ordre(), session.Mots());
        if (ecrit != saisi) champ.setText(TexteVersQt(ecrit));
    });
}

void SuivreCasse(QLineEdit& champ, const shell::Session& session, Casse casse) {
    QObject::connect(&champ, &QLineEdit::editingFinished, &champ, [&champ, &session, casse] {
        const std::string saisi = QtVersTexte(champ.text()).octets;
        const std::string ecrit = records::AppliquerCasse(session, saisi, casse);
        if (ecrit != saisi) champ.setText(TexteVersQt(ecrit));
    });
}

void QuitterChamp(const QWidget& fenetre) {
    if (auto* champ = qobject_cast<QLineEdit*>(fenetre.focusWidget()))
        Q_EMIT champ->editingFinished();
}

ChampsFiche::ChampsFiche(QWidget* parent)
    : QWidget{parent}, ui_{std::make_unique<Ui::ChampsFiche>()} {
    ui_->setupUi(this);
    ui_->O_Sexe_0->setObjectName(QStringLiteral("O_Sexe(0)"));
    ui_->O_Sexe_1->setObjectName(QStringLiteral("O_Sexe(1)"));
    ui_->O_Sexe_2->setObjectName(QStringLiteral("O_Sexe(2)"));
}

ChampsFiche::~ChampsFiche() = default;

void ChampsFiche::Attacher(shell::Session& session) {
    session_ = &session;
    // The form around it has named it in its own way; the captions are found by this name.
    setObjectName(QStringLiteral("ChampsFiche"));
    for (QLineEdit* champ : findChildren<QLineEdit*>())
        connect(champ, &QLineEdit::textChanged, this, &ChampsFiche::Changer);
    for (QRadioButton* option : {ui_->O_Sexe_0, ui_->O_Sexe_1, ui_->O_Sexe_2})
        connect(option, &QRadioButton::toggled, this, &ChampsFiche::Changer);
    for (QLineEdit* champ : {ui_->TxtJNaiss, ui_->TxtJDécès})
        SuivreJourMois(*champ, session);
    SuivreCasse(*ui_->T_Nom, session, Casse::Nom);
    for (QLineEdit* champ : {ui_->T_Prénom, ui_->Tx_PrénomAutres})
        SuivreCasse(*champ, session, Casse::Prenom);
    for (QLineEdit* champ : {ui_->TxtLieuNaiss, ui_->TxtLieuDécès}) {
        SuivreCasse(*champ, session, Casse::Lieu);
        new Completeur{*champ, session, records::mots::Lieux};
    }
    new Completeur{*ui_->T_Nom, session, records::mots::Noms};
    for (QLineEdit* champ : {ui_->T_Prénom, ui_->Tx_PrénomAutres})
        new Completeur{*champ, session, records::mots::Prenoms};
    ui_->O_Sexe_0->setIcon(IconeSexe(Sexe::Homme));
    ui_->O_Sexe_1->setIcon(IconeSexe(Sexe::Femme));
    ui_->O_Sexe_2->setIcon(IconeSexe(Sexe::Indetermine));
}

void ChampsFiche::Montrer(const records::SaisieFiche& fiche, bool garder) {
    montre_ = true;
    RelireChamp(*ui_->T_Nom, fiche.nom, garder);
    RelireChamp(*ui_->T_Prénom, fiche.prenom, garder);
    RelireChamp(*ui_->Tx_PrénomAutres, fiche.autrePrenom, garder);
    RelireChamp(*ui_->TxtJNaiss, fiche.jourMoisNaissance, garder);
    RelireChamp(*ui_->T_Naiss, fiche.anneeNaissance, garder);
    RelireChamp(*ui_->TxtLieuNaiss, fiche.lieuNaissance, garder);
    RelireChamp(*ui_->TxtJDécès, fiche.jourMoisDeces, garder);
    RelireChamp(*ui_->T_Décès, fiche.anneeDeces, garder);
    RelireChamp(*ui_->TxtLieuDécès, fiche.lieuDeces, garder);
    const bool sexeChange = garder && SexeChoisi() != sexeStocke_;
    sexeStocke_ = fiche.sexe;
    if (!sexeChange) PoserSexe(fiche.sexe);
    montre_ = false;
    Changer();
}

void ChampsFiche::Lire(records::SaisieFiche& fiche, std::size_t& remplaces) const {
    fiche.nom = LireChamp(ui_->T_Nom->text(), remplaces);
    fiche.prenom = LireChamp(ui_->T_Prénom->text(), remplaces);
    fiche.autrePrenom = LireChamp(ui_->Tx_PrénomAutres->text(), remplaces);
    fiche.sexe = SexeChoisi();
    fiche.jourMoisNaissance = LireChamp(ui_->TxtJNaiss->text(), remplaces);
    fiche.anneeNaissance = LireChamp(ui_->T_Naiss->text(), remplaces);
    fiche.lieuNaissance = LireChamp(ui_->TxtLieuNaiss->text(), remplaces);
    fiche.jourMoisDeces = LireChamp(ui_->TxtJDécès->text(), remplaces);
    fiche.anneeDeces = LireChamp(ui_->T_Décès->text(), remplaces);
    fiche.lieuDeces = LireChamp(ui_->TxtLieuDécès->text(), remplaces);
}

void ChampsFiche::AllerAuChamp(Champ champ) {
    QWidget* widget = nullptr;
    switch (champ) {
        case Champ::Nom:
            widget = ui_->T_Nom;
            break;
        case Champ::Prenom:
            widget = ui_->T_Prénom;
            break;
        case Champ::AutrePrenom:
            widget = ui_->Tx_PrénomAutres;
            break;
        case Champ::Sexe:
            widget = SexeChoisi() == Sexe::Homme   ? ui_->O_Sexe_0
                     : SexeChoisi() == Sexe::Femme ? ui_->O_Sexe_1
                                                   : ui_->O_Sexe_2;
            break;
        case Champ::JourMoisNaissance:
            widget = ui_->TxtJNaiss;
            break;
        case Champ::AnneeNaissance:
            widget = ui_->T_Naiss;
            break;
        case Champ::JourMoisDeces:
            widget = ui_->TxtJDécès;
            break;
        case Champ::Lien:
        case Champ::Aucun:
            return;
    }
    widget->setFocus();
    if (auto* texte = qobject_cast<QLineEdit*>(widget)) texte->selectAll();
}

void ChampsFiche::PoserSexe(Sexe sexe) {
    (sexe == Sexe::Homme   ? ui_->O_Sexe_0
     : sexe == Sexe::Femme ? ui_->O_Sexe_1
                           : ui_->O_Sexe_2)
        ->setChecked(true);
}

void ChampsFiche::LibererSexe(bool libre) {
    for (QRadioButton* option : {ui_->O_Sexe_0, ui_->O_Sexe_1, ui_->O_Sexe_2})
        option->setEnabled(libre || option->isChecked());
}

void ChampsFiche::Traduire() {
    TraduireFenetre(*this, *session_);
    Changer();
}

QWidget& ChampsFiche::DernierChamp() const {
    return *ui_->TxtLieuDécès;
}

Sexe ChampsFiche::SexeChoisi() const {
    return ui_->O_Sexe_0->isChecked()   ? Sexe::Homme
           : ui_->O_Sexe_1->isChecked() ? Sexe::Femme
                                        : Sexe::Indetermine;
}

void ChampsFiche::Changer() {
    if (montre_) return;
    for (QLineEdit* champ : findChildren<QLineEdit*>())
        MarquerChamp(*champ, *session_);
    for (QRadioButton* option : {ui_->O_Sexe_0, ui_->O_Sexe_1, ui_->O_Sexe_2})
        MarquerModifie(*option, option->isChecked() && SexeChoisi() != sexeStocke_, *session_);
    AviserDates();
    Q_EMIT change();
}

/// Weekdays and what is odd, while it is typed.
void ChampsFiche::AviserDates() {
    records::SaisieFiche fiche;
    std::size_t remplaces = 0;
    Lire(fiche, remplaces);
    const shell::Session& session = *session_;
    ui_->LblJourNaiss->setText(TexteVersQt(
        records::JourDeLaSemaine(session, fiche.jourMoisNaissance, fiche.anneeNaissance)));
    ui_->LblJDécès->setText(
        TexteVersQt(records::JourDeLaSemaine(session, fiche.jourMoisDeces, fiche.anneeDeces)));
    const auto montrer = [&session](EtiquetteElidee& etiquette, AvisDate avis, bool manque) {
        const QString texte = manque ? TexteEcran(session, message::AnneeNaissanceManquante)
                                     : TexteAvis(session, avis);
        etiquette.Dire(texte);
        etiquette.setPalette({});
        if (manque)
            etiquette.setForegroundRole(QPalette::PlaceholderText);
        else
            etiquette.setForegroundRole(QPalette::WindowText);
        if (!manque) Avertir(etiquette);
    };
    // A birth year that is missing is only a quiet mark; a death that is not known is none.
    const bool manque = fiche.anneeNaissance.empty() && fiche.jourMoisNaissance.empty();
    montrer(*ui_->LblAvisNaiss,
            records::AviserDate(session, fiche.jourMoisNaissance, fiche.anneeNaissance, {}, {}),
            manque);
    montrer(*ui_->LblAvisDécès,
            records::AviserDate(session, fiche.jourMoisDeces, fiche.anneeDeces,
                                fiche.anneeNaissance, {}),
            false);
}

}  // namespace dorvane::windows

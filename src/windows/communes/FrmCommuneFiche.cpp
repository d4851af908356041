// The sheet of one commune in the window of the communes.
#include "ui_FrmCommune.h"
#include <QAbstractItemView>
#include <QCompleter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QStringListModel>

#include "messages/Communes.h"
#include "shell/Session.h"
#include "values/Comparaison.h"
#include "windows/communes/FrmCommune.h"
#include "windows/communes/ModeleCommunes.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <string>

namespace dorvane::windows {

namespace {

using storage::Commune;
using storage::NoCommune;

constexpr qsizetype MaxProposees = 12;
constexpr std::size_t MaxHomonymes = 200;
constexpr std::size_t ChiffresCode = 5;
constexpr std::size_t ChiffresAutreCode = 4;

/// Says beside a field of digits that it holds something else; it may.
void AviserCode(QLabel& avis, const QLineEdit& champ, std::size_t chiffres, const QString& texte) {
    const std::string code = QtVersTexte(champ.text().trimmed()).octets;
    const bool bon = code.size() <= chiffres && std::all_of(code.begin(), code.end(), EstChiffre);
    avis.setText(bon ? QString{} : texte);
}

}  // namespace

Commune FrmCommune::Lire(std::size_t& remplaces) const {
    Commune c;
    c.nom = LireChamp(ui_->TxtNom->text(), remplaces);
    c.rattachement = LireChamp(ui_->TxtRattachement->text(), remplaces);
    c.precision = LireChamp(ui_->TxtPrecision->text(), remplaces);
    c.code = LireChamp(ui_->TxtCode->text(), remplaces);
    c.autreCode = LireChamp(ui_->TxtAutreCode->text(), remplaces);
    c.commentaire = LireChamp(ui_->TxtCommentaire->toPlainText(), remplaces);
    return c;
}

bool FrmCommune::Modifiee() const {
    std::size_t remplaces = 0;
    return Lire(remplaces) != montree_;
}

void FrmCommune::Montrer(NoCommune n) {
    numero_ = n;
    lue_ = n ? communes_.Base().LireCommune(n) : Commune{};
    remplit_ = true;
    PoserChamp(*ui_->TxtNom, lue_.nom);
    PoserChamp(*ui_->TxtRattachement, lue_.rattachement);
    PoserChamp(*ui_->TxtPrecision, lue_.precision);
    PoserChamp(*ui_->TxtCode, lue_.code);
    PoserChamp(*ui_->TxtAutreCode, lue_.autreCode);
    ui_->TxtCommentaire->setPlainText(TexteVersQt(lue_.commentaire));
    remplit_ = false;
    // As the fields give it back: they have line ends of their own.
    std::size_t remplaces = 0;
    montree_ = Lire(remplaces);
    SuivreFiche();
}

void FrmCommune::PoserMasques() {
    const auto poser = [this](QLineEdit& champ, std::size_t chiffres) {
        const QRegularExpression masque{QStringLiteral("[0-9]{0,%1}").arg(chiffres)};
        champ.setValidator(new QRegularExpressionValidator{masque, this});
    };
    poser(*ui_->TxtCode, ChiffresCode);
    poser(*ui_->TxtAutreCode, ChiffresAutreCode);
}

void FrmCommune::SuivreFiche() {
    if (remplit_) return;
    std::size_t remplaces = 0;
    const Commune saisie = Lire(remplaces);
    for (QLineEdit* champ : Champs())
        MarquerChamp(*champ, S());
    MarquerModifie(*ui_->TxtCommentaire, saisie.commentaire != montree_.commentaire, S());
    ui_->LblFiche->setText(TexteEcran(S().catalogue.Composer(
        numero_ ? shell::Msg(message::NumeroDeCommune, std::to_string(numero_.valeur))
                : shell::Msg(message::NouvelleCommune))));
    AviserCode(*ui_->LblAvisCode, *ui_->TxtCode, ChiffresCode,
               TexteEcran(S(), message::CodeDePlusDe5Chiffres));
    AviserCode(*ui_->LblAvisAutreCode, *ui_->TxtAutreCode, ChiffresAutreCode,
               TexteEcran(S(), message::AutreCodeDePlusDe4Chiffres));
    const bool rattachee = !SansBlancs(saisie.rattachement).empty();
    const bool connue =
        rattachee && ouverte_ && !communes_.Base().ChercherCommune(saisie.rattachement).empty();
    ui_->LblAvisRattachement->setText(
        rattachee && !connue ? TexteEcran(S(), message::CommuneDeRattachementInconnue) : QString{});
    ui_->LblAvisRattachement->setVisible(rattachee && !connue);
    ui_->CmdRattachement->setEnabled(connue);
    ui_->MnuMaj->setEnabled(saisie != montree_);
    ui_->CmdSupprimer->setEnabled(static_cast<bool>(numero_));
    ui_->CmdUtiliser->setEnabled(!SansBlancs(saisie.nom).empty());
}

bool FrmCommune::Enregistrer() {
    std::size_t remplaces = 0;
    const Commune saisie = Lire(remplaces);
    if (!AccepterRemplaces(S(), remplaces)) return false;
    const NoCommune n = communes_.Enregistrer(numero_, saisie);
    if (n) {
        Montrer(n);
        AllerA(n);
        return true;
    }
    // The base may have been read again: a number that now means another commune is no longer
    // that of the sheet.
    if (numero_ && communes_.Base().LireCommune(numero_) != lue_) numero_ = {};
    Chercher({});
    SuivreFiche();
    ui_->TxtNom->setFocus();
    return false;
}

/// A name that was looked for in vain is the one to add.
void FrmCommune::Nouvelle() {
    if (!ConfirmerFermeture()) return;
    const QString cherche = ui_->TxtCherche->text().trimmed();
    const bool vaine = modele_->Total() == 0;
    ui_->LstCommunes->setCurrentIndex({});
    Montrer({});
    if (vaine) ui_->TxtNom->setText(cherche);
    ui_->TxtNom->setFocus();
}

void FrmCommune::Supprimer() {
    if (!numero_) return;
    // The row that comes in the place of the one that goes.
    const std::uint32_t ensuite = modele_->Numero(modele_->Rangee(numero_.valeur) + 1);
    if (communes_.Supprimer(numero_)) {
        Montrer({});
        Chercher(NoCommune{ensuite});
    } else if (communes_.Base().LireCommune(numero_) != lue_) {
        // The base was read again.
        Montrer({});
        Chercher({});
    }
}

void FrmCommune::AllerAuRattachement() {
    const auto trouvees =
        communes_.Base().ChercherCommune(QtVersTexte(ui_->TxtRattachement->text()).octets);
    if (!trouvees.empty() && ConfirmerFermeture()) AllerA(trouvees.front());
}

/// The commune that another belongs to is one of the base: its names are proposed.
void FrmCommune::CompleterRattachement() {
    auto* noms = new QStringListModel{this};
    auto* mots = new QCompleter{noms, this};
    // The names are already those that fit, whatever their accents.
    mots->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    ui_->TxtRattachement->setCompleter(mots);
    connect(ui_->TxtRattachement, &QLineEdit::textEdited, this,
            [this, noms, mots](const QString& t) {
                QStringList proposes;
                if (ouverte_ && !t.trimmed().isEmpty())
                    for (const NoCommune n :
                         communes_.Base().ChercherDebut(QtVersTexte(t).octets, MaxHomonymes)) {
                        const QString nom = TexteVersQt(communes_.Base().LireCommune(n).nom);
                        if (!proposes.contains(nom)) proposes << nom;
                        if (proposes.size() == MaxProposees) break;
                    }
                if (proposes == QStringList{t.trimmed()}) proposes.clear();
                noms->setStringList(proposes);
                if (proposes.isEmpty()) mots->popup()->hide();
            });
}

}  // namespace dorvane::windows

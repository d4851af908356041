#include "windows/personnes/RangeesFiche.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "messages/Fiche.h"
#include "records/TexteFiche.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Completeur.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/personnes/ChampsFiche.h"

#include <map>

namespace dorvane::windows {

namespace {

constexpr int Espace = 6;
constexpr int LargeurJourMois = 110;
constexpr int LargeurAnnee = 60;
constexpr int LargeurLieu = 90;  ///< at least, in a narrow window
constexpr int TailleAnnee = 4;
constexpr int ColonneAvis = 5;

bool Indexe(storage::Base& base, char symbole) {
    const NoMotCle k = base.motsCles.TypeDuSymbole(symbole);
    return k && base.motsCles.PosMotsType(k);
}

}  // namespace

void EnchainerTab(QWidget& avant, const QList<QWidget*>& suite) {
    QWidget* precedent = &avant;
    for (QWidget* controle : suite) {
        QWidget::setTabOrder(precedent, controle);
        precedent = controle;
    }
}

RangeesFiche::RangeesFiche(QWidget* parent) : QWidget{parent}, grille_{new QGridLayout{this}} {
    grille_->setContentsMargins(0, 0, 0, 0);
    grille_->setSpacing(Espace);
    grille_->setColumnStretch(3, 1);
}

void RangeesFiche::Attacher(shell::Session& session, Sorte sorte) {
    session_ = &session;
    sorte_ = sorte;
    static_cast<void>(Construire());
}

void RangeesFiche::Reconstruire(const records::RangeesSlots& stockees) {
    records::RangeesSlots tapees;
    std::size_t remplaces = 0;
    Lire(tapees, remplaces);
    std::map<std::string, storage::ValeurSlot> parLibelle;
    for (std::size_t k = 0; k < rangees_.size(); ++k)
        parLibelle[definition_.libelles[k]] = tapees[k];
    if (!Construire()) return;
    Montrer(stockees);
    for (std::size_t k = 0; k < rangees_.size(); ++k) {
        const auto valeur = parLibelle.find(definition_.libelles[k]);
        if (valeur == parLibelle.end()) continue;
        rangees_[k].jourMois->setText(TexteVersQt(valeur->second.jourMois));
        rangees_[k].annee->setText(TexteVersQt(valeur->second.annee));
        rangees_[k].lieu->setText(TexteVersQt(valeur->second.lieu));
    }
}

bool RangeesFiche::Construire() {
    storage::DefinitionSlots definition;
    if (session_->base)
        definition = sorte_ == Sorte::Individu ? session_->base->DefinitionIndividu()
                                               : session_->base->DefinitionMariage();
    if (definition.slots == definition_.slots && definition.libelles == definition_.libelles)
        return false;
    definition_ = definition;
    rangees_.clear();
    while (QLayoutItem* element = grille_->takeAt(0)) {
        delete element->widget();
        delete element;
    }
    for (std::size_t k = 0; k < storage::NbSlots(definition_.slots); ++k)
        AjouterRangee(k);
    Traduire();
    return true;
}

void RangeesFiche::AjouterRangee(std::size_t k) {
    const char* debut = sorte_ == Sorte::Individu ? "Ind" : "Mar";
    const auto nommer = [debut, k](QWidget& controle, const char* type, const char* fin) {
        controle.setObjectName(QString::fromLatin1(type) + QString::fromLatin1(debut) +
                               QString::fromLatin1(fin) + u'(' + QString::number(k) + u')');
    };
    const storage::Slot slot = definition_.slots[k];
    const bool datee = slot.drapeau == '1';
    const int rangee = static_cast<int>(k);
    Rangee r{new QLabel{this},
             new QLineEdit{this},
             new QLineEdit{this},
             new QLineEdit{this},
             new QToolButton{this},
             new QLabel{this},
             nullptr};
    nommer(*r.etiquette, "Lbl", "");
    nommer(*r.jourMois, "Txt", "J");
    nommer(*r.annee, "Txt", "A");
    nommer(*r.lieu, "Txt", "L");
    nommer(*r.choix, "Cmd", "Sel");
    nommer(*r.avis, "Lbl", "Avis");
    r.jourMois->setMinimumWidth(LargeurJourMois);
    r.jourMois->setMaximumWidth(LargeurJourMois);
    r.annee->setMaximumWidth(LargeurAnnee);
    r.lieu->setMinimumWidth(LargeurLieu);
    r.annee->setMaxLength(TailleAnnee);
    r.jourMois->setVisible(datee);
    r.annee->setVisible(datee);
    r.etiquette->setBuddy(datee ? r.jourMois : r.lieu);
    r.choix->setIcon(Icone("Choix"));
    r.choix->setAutoRaise(true);
    r.choix->setEnabled(Indexe(*session_->base, slot.symbole));

    std::string symboles{slot.symbole};
    if (datee) symboles.append(records::mots::Lieux);
    // The button lists the words of this keyword alone.
    r.mots = new Completeur{*r.lieu, *session_, symboles, {&slot.symbole, 1}};
    connect(r.choix, &QToolButton::clicked, this, [mots = r.mots] { mots->MontrerTout(); });
    SuivreJourMois(*r.jourMois, *session_);
    SuivreCasse(*r.lieu, *session_, records::Casse::Lieu);
    for (QLineEdit* champ : {r.jourMois, r.annee, r.lieu})
        connect(champ, &QLineEdit::textChanged, this, &RangeesFiche::Changer);

    grille_->addWidget(r.etiquette, rangee, 0);
    grille_->addWidget(r.jourMois, rangee, 1);
    grille_->addWidget(r.annee, rangee, 2);
    if (datee)
        grille_->addWidget(r.lieu, rangee, 3);
    else
        grille_->addWidget(r.lieu, rangee, 1, 1, 3);
    grille_->addWidget(r.choix, rangee, 4);
    grille_->addWidget(r.avis, rangee, ColonneAvis);
    rangees_.push_back(r);
}

void RangeesFiche::Montrer(const records::RangeesSlots& rangees, bool garder) {
    montre_ = true;
    for (std::size_t k = 0; k < rangees_.size(); ++k) {
        RelireChamp(*rangees_[k].jourMois, rangees[k].jourMois, garder);
        RelireChamp(*rangees_[k].annee, rangees[k].annee, garder);
        RelireChamp(*rangees_[k].lieu, rangees[k].lieu, garder);
    }
    montre_ = false;
    Changer();
}

void RangeesFiche::Lire(records::RangeesSlots& rangees, std::size_t& remplaces) const {
    for (std::size_t k = 0; k < rangees_.size(); ++k)
        rangees[k] = {LireChamp(rangees_[k].jourMois->text(), remplaces),
                      LireChamp(rangees_[k].annee->text(), remplaces),
                      LireChamp(rangees_[k].lieu->text(), remplaces)};
}

void RangeesFiche::PoserVie(const std::string& naissance, const std::string& deces) {
    if (naissance == naissance_ && deces == deces_) return;
    naissance_ = naissance;
    deces_ = deces;
    Aviser();
}

void RangeesFiche::Traduire() {
    for (std::size_t k = 0; k < rangees_.size(); ++k) {
        const Rangee& r = rangees_[k];
        const QString libelle =
            TexteEcran(shell::LibelleDeTag(session_->catalogue, definition_.libelles[k]));
        // An ampersand in the word of a user is no mnemonic.
        r.etiquette->setText(QString{libelle}.replace(u'&', QStringLiteral("&&")));
        const auto nommer = [this, &libelle](QWidget& champ, NoMessage message) {
            champ.setAccessibleName(libelle + QStringLiteral(", ") +
                                    TexteEcran(*session_, message));
        };
        const bool datee = definition_.slots[k].drapeau == '1';
        nommer(*r.jourMois, message::InviteJourEtMoisFiche);
        nommer(*r.annee, message::InviteAnneeFiche);
        nommer(*r.lieu, datee ? message::InviteLieuFiche : message::InviteMotsFiche);
        nommer(*r.choix, message::BulleChoisirParmiLesMots);
        r.choix->setToolTip(TexteEcran(*session_, message::BulleChoisirParmiLesMots));
        r.jourMois->setPlaceholderText(TexteEcran(*session_, message::InviteJourEtMoisFiche));
        r.annee->setPlaceholderText(TexteEcran(*session_, message::InviteAnneeFiche));
        if (datee) r.lieu->setPlaceholderText(TexteEcran(*session_, message::InviteLieuFiche));
    }
    Aviser();
}

QList<QWidget*> RangeesFiche::Controles() const {
    QList<QWidget*> controles;
    for (const Rangee& r : rangees_)
        controles << r.jourMois << r.annee << r.lieu << r.choix;
    return controles;
}

void RangeesFiche::Changer() {
    if (montre_) return;
    for (const Rangee& r : rangees_)
        for (QLineEdit* champ : {r.jourMois, r.annee, r.lieu})
            MarquerChamp(*champ, *session_);
    Aviser();
    Q_EMIT change();
}

void RangeesFiche::Aviser() {
    records::RangeesSlots valeurs;
    std::size_t remplaces = 0;
    Lire(valeurs, remplaces);
    for (std::size_t k = 0; k < rangees_.size(); ++k) {
        QLabel& avis = *rangees_[k].avis;
        const bool datee = definition_.slots[k].drapeau == '1';
        const records::AvisDate dit =
            datee ? records::AviserDate(*session_, valeurs[k].jourMois, valeurs[k].annee,
                                        naissance_, deces_)
                  : records::AvisDate::Bon;
        avis.setText(TexteAvis(*session_, dit));
        avis.setVisible(dit != records::AvisDate::Bon);
        if (dit != records::AvisDate::Bon) Avertir(avis);
    }
}

}  // namespace dorvane::windows

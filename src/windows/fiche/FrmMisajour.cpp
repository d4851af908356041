#include "windows/fiche/FrmMisajour.h"

#include "ui_FrmMisajour.h"
#include <QShortcut>
#include <QTabBar>

#include "messages/Fiche.h"
#include "messages/Messages.h"
#include "records/AccordEvenements.h"
#include "records/Famille.h"
#include "records/Fiche.h"
#include "records/Individus.h"
#include "records/NomsAffiches.h"
#include "shell/Progression.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"
#include "windows/fiche/PageDocuments.h"
#include "windows/fiche/PageEvts.h"
#include "windows/fiche/PageFaits.h"
#include "windows/fiche/PageFratrie.h"
#include "windows/fiche/PageLiens.h"
#include "windows/fiche/PageUnions.h"
#include "windows/personnes/RangeesFiche.h"

namespace dorvane::windows {

using records::Champ;

namespace {

constexpr QSize TailleInitiale{1240, 640};
/// In the order of the pages.
constexpr NoMessage TitresPages[] = {message::TitrePageFaits,     message::TitrePageUnions,
                                     message::TitrePageLiens,     message::TitrePageEvenements,
                                     message::TitrePageDocuments, message::TitrePageFratrie};

}  // namespace

FrmMisajour::FrmMisajour(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmMisajour"), parent},
      ui_{std::make_unique<Ui::FrmMisajour>()} {
    ui_->setupUi(this);
    ui_->Champs->Attacher(session);
    FairePages();
    RelierParents();
    connect(ui_->Champs, &ChampsFiche::change, this, [this] { Changer(); });
    connect(ui_->C_Maj, &QPushButton::clicked, this, [this] { Valider(); });
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &FrmMisajour::reject);
    connect(ui_->CmdSupprimer, &QPushButton::clicked, this, &FrmMisajour::Supprimer);
    connect(ui_->CmdPrécédent, &QToolButton::clicked, this, [this] { Voisin(-1); });
    connect(ui_->CmdSuivant, &QToolButton::clicked, this, [this] { Voisin(1); });
    connect(ui_->CmdGraphe, &QToolButton::clicked, this, [this] {
        if (individu_) Q_EMIT allerDemande(individu_.valeur);
    });
    ui_->CmdPrécédent->setShortcut(QKeySequence{Qt::CTRL | Qt::SHIFT | Qt::Key_Left});
    ui_->CmdSuivant->setShortcut(QKeySequence{Qt::CTRL | Qt::SHIFT | Qt::Key_Right});
    resize(TailleInitiale);
    Traduire();
    Charger();
}

FrmMisajour::~FrmMisajour() = default;

void FrmMisajour::FairePages() {
    faits_ = new PageFaits{S(), *this, this};
    liens_ = new PageLiens{S(), *this, this};
    pages_ = {faits_,
              new PageUnions{S(), *this, this},
              liens_,
              new PageEvts{S(), *this, this},
              new PageDocuments{S(), *this, this},
              new PageFratrie{S(), *this, this}};
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        ui_->SSTab1->addTab(pages_[i], {});
        const auto touche = static_cast<int>(Qt::Key_1) + static_cast<int>(i);
        auto* raccourci =
            new QShortcut{QKeySequence{Qt::CTRL | static_cast<Qt::Key>(touche)}, this};
        connect(raccourci, &QShortcut::activated, this,
                [this, i] { AllerALaPage(static_cast<int>(i)); });
    }
    // Enter in a list or a note is theirs.
    auto* enregistrer = new QShortcut{QKeySequence{Qt::CTRL | Qt::Key_Return}, this};
    connect(enregistrer, &QShortcut::activated, ui_->C_Maj, &QPushButton::click);
}

/// Who comes by the keyboard goes on in the page, at its first field.
void FrmMisajour::AllerALaPage(int page) {
    ui_->SSTab1->setCurrentIndex(page);
    QWidget& cible = *pages_[static_cast<std::size_t>(page)];
    for (QWidget* champ = cible.nextInFocusChain(); champ != &cible;
         champ = champ->nextInFocusChain()) {
        if (!cible.isAncestorOf(champ) || !champ->isVisible() || !champ->isEnabled() ||
            (champ->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        champ->setFocus(Qt::ShortcutFocusReason);
        return;
    }
}

bool FrmMisajour::Ouvrir(NoOrdre individu) {
    if (!S().base || (individu && !records::Existe(*S().base, individu))) return false;
    if (individu != individu_ && !ConfirmerFermeture()) return false;
    if (individu != individu_ || !Modifiee()) {
        individu_ = individu;
        ecrite_ = false;
        Charger();
    }
    S().PersonneFiche = individu_;
    ui_->Champs->AllerAuChamp(Champ::Nom);
    return true;
}

void FrmMisajour::Traduire() {
    FenetreFille::Traduire();
    ui_->Champs->Traduire();
    const auto habiller = [this](QAbstractButton& bouton, const char* icone, NoMessage message) {
        bouton.setIcon(Icone(icone));
        const QString texte = TexteEcran(S(), message);
        const QString touches = bouton.shortcut().toString(QKeySequence::NativeText);
        bouton.setToolTip(touches.isEmpty() ? texte
                                            : texte + QStringLiteral(" (") + touches + u')');
        bouton.setAccessibleName(texte);
    };
    habiller(*ui_->C_Rechpère, "Chercher", message::BulleChercherPere);
    habiller(*ui_->CmdCréPère, "Ajouter", message::BulleCreerPere);
    habiller(*ui_->C_Spère, "Abandonner", message::BulleRetirerPere);
    habiller(*ui_->C_Rechmère, "Chercher", message::BulleChercherMere);
    habiller(*ui_->CmdCréMère, "Ajouter", message::BulleCreerMere);
    habiller(*ui_->C_Smère, "Abandonner", message::BulleRetirerMere);
    habiller(*ui_->CmdPrécédent, "MnuPrécédent", message::BullePersonnePrecedente);
    habiller(*ui_->CmdSuivant, "MnuSuivant", message::BullePersonneSuivante);
    habiller(*ui_->CmdGraphe, "Famille", message::BulleMontrerDansGraphe);
    for (PageFiche* page : pages_)
        page->Traduire();
    MontrerParents();
    MontrerTitres();
    Changer();
}

void FrmMisajour::Recharger() {
    if (!S().base || !isVisible()) return;
    if (individu_ && !records::Existe(*S().base, individu_)) {
        // Another window has taken the person away: the sheet follows the chart.
        individu_ = S().PersonneEnCours;
        S().PersonneFiche = individu_;
        Charger();
        if (!individu_) FenetreFille::reject();
        return;
    }
    Charger(true);
}

/// Reads the person again; without `garder` what is typed is given up.
void FrmMisajour::Charger(bool garder) {
    charge_ = true;
    ui_->Champs->Montrer(records::ChargerFiche(S(), individu_), garder);
    for (PageFiche* page : pages_)
        page->Charger(individu_, garder);
    charge_ = false;
    EnchainerPages();
    MontrerParents();
    MontrerTitres();
    Changer();
}

/// What stands on the pages comes behind their titles and in front of the buttons below.
void FrmMisajour::EnchainerPages() {
    QList<QWidget*> ordre;
    for (const PageFiche* page : pages_)
        ordre << page->Ordre();
    EnchainerTab(*ui_->SSTab1->tabBar(), ordre);
}

void FrmMisajour::MontrerTitres() {
    const QString nom = TexteVersQt(records::NomEtDates(S(), individu_)).trimmed();
    setWindowTitle(TexteEcran(S(), message::TitreFiche) + QStringLiteral(" – ") +
                   (individu_ ? nom : TexteEcran(S(), message::TitreNouvellePersonne)) +
                   QStringLiteral("[*]"));
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        const QString titre = TexteEcran(S(), TitresPages[i]);
        const QString compte = pages_[i]->Compte();
        const int onglet = static_cast<int>(i);
        ui_->SSTab1->setTabText(
            onglet, compte.isEmpty() ? titre : titre + QStringLiteral(" (") + compte + u')');
        ui_->SSTab1->setTabToolTip(
            onglet, titre + QStringLiteral(" (Ctrl+") + QString::number(i + 1) + u')');
    }
    const bool base = static_cast<bool>(S().base);
    ui_->CmdPrécédent->setEnabled(
        base && static_cast<bool>(records::VoisinDansLOrdre(*S().base, individu_, -1)));
    ui_->CmdSuivant->setEnabled(
        base && static_cast<bool>(records::VoisinDansLOrdre(*S().base, individu_, 1)));
    ui_->CmdGraphe->setEnabled(static_cast<bool>(individu_));
    ui_->CmdSupprimer->setEnabled(static_cast<bool>(individu_));
}

records::SaisieFiche FrmMisajour::Lire(std::size_t& remplaces) const {
    records::SaisieFiche fiche;
    fiche.individu = individu_;
    ui_->Champs->Lire(fiche, remplaces);
    for (const PageFiche* page : pages_)
        page->Lire(fiche, remplaces);
    return fiche;
}

bool FrmMisajour::Modifiee() const {
    if (!S().base) return false;
    std::size_t remplaces = 0;
    return records::FicheModifiee(S(), Lire(remplaces));
}

void FrmMisajour::Changer() {
    if (charge_ || pages_.empty()) return;
    std::size_t remplaces = 0;
    faits_->PoserVie(Lire(remplaces));
    const bool modifiee = Modifiee();
    if (modifiee) ecrite_ = false;
    // Texts wait to be written anew after a change of the flags of the base.
    ui_->C_Maj->setEnabled(modifiee || (individu_ && !S().indexationFaite));
    ui_->C_Maj->setText(
        TexteEcran(S(), ecrite_ ? message::MisAJour : message::BoutonEnregistrerFiche));
    ui_->LblEtat->setText(modifiee ? TexteEcran(S(), message::ModificationsNonEnregistrees)
                                   : QString{});
    setWindowModified(modifiee);
}

bool FrmMisajour::Valider() {
    if (!S().base) return false;
    QuitterChamp(*this);
    std::size_t remplaces = 0;
    records::SaisieFiche fiche = Lire(remplaces);
    if (!AccepterRemplaces(S(), remplaces)) return false;
    records::IssueFiche issue;
    {
        const shell::Attente attente{S().progression};
        issue = records::ValiderFiche(S(), fiche);
    }
    if (issue.EstRefusee()) {
        // What stands in front of the refusal may have been written; the old sex is set again.
        if (issue.champ == Champ::Sexe) ui_->Champs->PoserSexe(fiche.sexe);
        AllerAuChamp(issue.champ);
        if (issue.champ == Champ::Lien) Q_EMIT baseChangee();
        return false;
    }
    individu_ = issue.individu;
    S().PersonneFiche = individu_;
    ecrite_ = issue.etat == records::IssueFiche::Etat::Ecrite;
    Charger();
    AllerAuChamp(issue.champ);
    Q_EMIT baseChangee();
    // Who was changed is the person of the chart from now on.
    if (individu_ != S().PersonneEnCours) Q_EMIT allerDemande(individu_.valeur);
    return true;
}

void FrmMisajour::AllerAuChamp(Champ champ) {
    if (champ == Champ::Lien) {
        ui_->SSTab1->setCurrentIndex(Liens);
        liens_->AllerAuLibelle();
    } else {
        ui_->Champs->AllerAuChamp(champ);
    }
}

bool FrmMisajour::Demander() {
    if (!Modifiee()) return true;
    return QuitterSaisie(
        shell::Msg(message::ProposerEnregistrerFiche), [this] { return Valider(); },
        [this] { Charger(); });
}

bool FrmMisajour::ConfirmerFermeture() {
    return !isVisible() || Demander();
}

bool FrmMisajour::EnregistrerSaisie() {
    return !Modifiee() || Valider();
}

void FrmMisajour::reject() {
    if (Demander()) FenetreFille::reject();
}

/// A closed sheet holds nothing that could be asked about.
void FrmMisajour::done(int resultat) {
    FenetreFille::done(resultat);
    individu_ = {};
    ecrite_ = false;
    S().PersonneFiche = {};
    Charger();
}

bool FrmMisajour::Preparer() {
    return individu_ && !Modifiee() ? true : Valider();
}

void FrmMisajour::Ecrit(bool valider) {
    Charger();
    if (!valider || !Valider()) Q_EMIT baseChangee();
}

void FrmMisajour::Montrer(NoOrdre individu) {
    Ouvrir(individu);
}

void FrmMisajour::Supprimer() {
    if (!individu_ || !records::SupprimerIndividu(S(), individu_)) return;
    individu_ = S().PersonneEnCours;
    S().PersonneFiche = individu_;
    Charger();
    Q_EMIT baseChangee();
    if (!individu_) FenetreFille::reject();
}

void FrmMisajour::Voisin(int pas) {
    const NoOrdre voisin = records::VoisinDansLOrdre(*S().base, individu_, pas);
    if (voisin) Ouvrir(voisin);
}

}  // namespace dorvane::windows

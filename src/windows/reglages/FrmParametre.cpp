#include "windows/reglages/FrmParametre.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>

#include "messages/Reglages.h"
#include "shell/Reglages.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/reglages/PagesParametre.h"

#include <algorithm>
#include <array>

namespace dorvane::windows {

namespace {

constexpr int Marge = 12;
constexpr int Espace = 6;
constexpr int LargeurListe = 180;
constexpr int EspaceListe = 3;
/// The titles of the pages, in their order.
constexpr std::array<NoMessage, 6> Titres{
    message::PageReglagesNoms,   message::PageReglagesParticules,
    message::PageReglagesGraphe, message::PageReglagesEvenements,
    message::PageReglagesBase,   message::PageReglagesProgramme};
constexpr int PageDesEvenements = 3;
constexpr int PageDuProgramme = 5;

}  // namespace

FrmParametre::FrmParametre(shell::Session& session, const std::vector<BoutonIcone>& boutons,
                           QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmParametre"), parent},
      liste_{new QListWidget{this}},
      pages_{new QStackedWidget{this}},
      valider_{new QPushButton{this}},
      annuler_{new QPushButton{this}},
      ouverture_{shell::LireReglages(session)} {
    liste_->setObjectName(QStringLiteral("LstPages"));
    liste_->setMaximumWidth(LargeurListe);
    liste_->setSpacing(EspaceListe);
    pages_->setObjectName(QStringLiteral("Pages"));
    valider_->setObjectName(QStringLiteral("CmdValider"));
    valider_->setDefault(true);
    annuler_->setObjectName(QStringLiteral("CmdAnnuler"));
    annuler_->setAutoDefault(false);
    auto* corps = new QHBoxLayout;
    corps->setSpacing(Marge);
    corps->addWidget(liste_);
    corps->addWidget(pages_, 1);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(Espace);
    pied->addStretch();
    pied->addWidget(valider_);
    pied->addWidget(annuler_);
    auto* colonne = new QVBoxLayout{this};
    colonne->setContentsMargins(Marge, Marge, Marge, Marge);
    colonne->setSpacing(Marge);
    colonne->addLayout(corps, 1);
    colonne->addLayout(pied);
    Ajouter(new ParametreNoms{session, this});
    Ajouter(new ParametreParticules{session, this});
    Ajouter(new ParametreGraphe{session, this});
    Ajouter(new ParametreEvenements{session, this});
    Ajouter(new ParametreBase{session, this});
    Ajouter(new ParametreProgramme{session, boutons, this});
    connect(liste_, &QListWidget::currentRowChanged, pages_, &QStackedWidget::setCurrentIndex);
    connect(valider_, &QPushButton::clicked, this, &FrmParametre::Valider);
    connect(annuler_, &QPushButton::clicked, this, &FrmParametre::reject);
    resize(860, 640);
    Traduire();
    for (PageParametre* page : findChildren<PageParametre*>())
        page->Charger(ouverture_);
    std::size_t remplaces = 0;
    montres_ = Lire(remplaces);
    liste_->setCurrentRow(0);
    liste_->setFocus();
}

/// A page that is higher than the screen scrolls.
void FrmParametre::Ajouter(PageParametre* page) {
    auto* defilement = new QScrollArea{this};
    defilement->setWidget(page);
    defilement->setWidgetResizable(true);
    defilement->setFrameShape(QFrame::NoFrame);
    pages_->addWidget(defilement);
}

void FrmParametre::Traduire() {
    FenetreFille::Traduire();
    const int rang = liste_->currentRow();
    liste_->clear();
    for (const NoMessage titre : Titres)
        liste_->addItem(TexteEcran(S(), titre));
    liste_->setCurrentRow(rang);
    for (PageParametre* page : findChildren<PageParametre*>())
        page->Traduire();
}

shell::Reglages FrmParametre::Lire(std::size_t& remplaces) const {
    shell::Reglages reglages = ouverture_;
    for (PageParametre* page : findChildren<PageParametre*>())
        remplaces += page->Lire(reglages);
    return reglages;
}

void FrmParametre::reject() {
    std::size_t remplaces = 0;
    const QList<PageParametre*> pages = findChildren<PageParametre*>();
    const bool enAttente = std::ranges::any_of(pages, &PageParametre::MotEnAttente);
    if (!enAttente && shell::MemesReglages(Lire(remplaces), montres_))
        return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerEnregistrerReglages), [this] { Valider(); });
}

bool FrmParametre::EnregistrerSaisie() {
    Valider();
    return !isVisible();
}

void FrmParametre::Valider() {
    for (PageParametre* page : findChildren<PageParametre*>())
        if (page->MotEnAttente()) page->VerserMot();
    std::size_t remplaces = 0;
    shell::Reglages reglages = Lire(remplaces);
    if (!AccepterRemplaces(S(), remplaces)) return;
    switch (shell::ValiderReglages(S(), reglages)) {
        case shell::ChampReglage::Aucun:
            Q_EMIT baseChangee();
            return accept();
        case shell::ChampReglage::Travail:
        case shell::ChampReglage::Frequence:
            return liste_->setCurrentRow(PageDuProgramme);
        case shell::ChampReglage::Evenements:
            return liste_->setCurrentRow(PageDesEvenements);
    }
}

}  // namespace dorvane::windows

#include "windows/cadre/MDIForm1.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QTranslator>

#include "interchange/commandes/Importer.h"
#include "messages/Dorvane.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/Numerotation.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/CadreAvancement.h"
#include "windows/controles/FenetreFille.h"
#include "windows/controles/FrmRapport.h"
#include "windows/controles/Icones.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/SuiviLieu.h"
#include "windows/controles/Unicode.h"
#include "windows/graphe/Accueil.h"
#include "windows/graphe/FrmDebut.h"
#include "windows/graphe/FrmPalette.h"

namespace dorvane::windows {

namespace {

constexpr int PeriodeMinuterie1 = 60000;  ///< ms: automatic save
constexpr int PeriodeMinuterie2 = 500;    ///< ms: the window bar follows the open windows
constexpr int DureeAnnonce = 10000;       ///< ms that a text stays in the status bar

/// The title of a window as its own frame shows it: "[*]" is a star while something is not saved.
QString TitreDeBouton(const QWidget& fenetre) {
    QString titre = fenetre.windowTitle();
    titre.replace(QStringLiteral("[*]"),
                  fenetre.isWindowModified() ? QStringLiteral("*") : QString{});
    return titre.replace(u'&', QStringLiteral("&&"));
}

}  // namespace

MDIForm1::MDIForm1(shell::Session& session)
    : session_{session},
      pages_{new QStackedWidget{this}},
      accueil_{new Accueil{session, this}},
      graphe_{new FrmDebut{session, this}},
      icones_{new QToolBar{this}},
      fenetres_{new QToolBar{this}},
      etatPersonne_{new QLabel{this}},
      etatDeCujus_{new QLabel{this}},
      cadre_{new CadreAvancement{this}} {
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowIcon(IconeProgramme());
    setAcceptDrops(true);
    new SuiviLieu{this};
    resize(1180, 760);
    setCentralWidget(pages_);
    pages_->addWidget(accueil_);
    pages_->addWidget(graphe_);
    FaireMenus();
    FaireBarres();

    connect(accueil_, &Accueil::commandeDemandee, this,
            [this](const QString& nom) { ActionNommee(nom)->trigger(); });
    connect(graphe_, &FrmDebut::personneDemandee, this,
            [this](quint32 individu) { AllerA(NoOrdre{individu}); });
    connect(graphe_, &FrmDebut::menuDemande, this, [this](quint32 individu, const QPoint& point) {
        MenuIndividu(NoOrdre{individu}, point);
    });
    connect(graphe_, &FrmDebut::pasDemande, this, &MDIForm1::PasVers);
    connect(graphe_, &FrmDebut::ficheDemandee, this,
            [this](quint32 individu) { OuvrirFiche(NoOrdre{individu}); });
    connect(graphe_, &FrmDebut::parentDemande, this,
            [this](quint32 enfant, Cote cote, const QPoint& point) {
                MenuParent(NoOrdre{enfant}, cote, point);
            });
    connect(graphe_, &FrmDebut::parentDepose, this,
            [this](quint32 enfant, Cote cote, quint32 parent) {
                DeposerParent(NoOrdre{enfant}, cote, NoOrdre{parent});
            });
    connect(&Minuterie1_, &QTimer::timeout, this, &MDIForm1::Minuterie);
    connect(&Minuterie2_, &QTimer::timeout, this, &MDIForm1::SuivreFenetres);
    Minuterie1_.start(PeriodeMinuterie1);
    Minuterie2_.start(PeriodeMinuterie2);
    session_.importer = [this](const std::filesystem::path& fichier) {
        interchange::ImporterFichier(session_, fichier);
    };
}

MDIForm1::~MDIForm1() {
    session_.importer = nullptr;
}

void MDIForm1::FaireBarres() {
    icones_->setObjectName(QStringLiteral("Icones"));
    icones_->setMovable(false);
    fenetres_->setObjectName(QStringLiteral("Fenetre"));
    fenetres_->setMovable(false);
    fenetres_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    // The bars are shown and hidden by their menu entries, which keep it in the settings.
    setContextMenuPolicy(Qt::NoContextMenu);
    addToolBar(Qt::TopToolBarArea, icones_);
    addToolBar(Qt::BottomToolBarArea, fenetres_);
    etatPersonne_->setObjectName(QStringLiteral("EtatPersonne"));
    etatDeCujus_->setObjectName(QStringLiteral("EtatDeCujus"));
    for (QLabel* etat : {etatPersonne_, etatDeCujus_})
        etat->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->addPermanentWidget(cadre_);
    statusBar()->addPermanentWidget(etatPersonne_);
    statusBar()->addPermanentWidget(etatDeCujus_);
}

void MDIForm1::Actualiser() {
    const shell::ReglagesGeneraux& generaux = session_.parametres.generaux;
    PoserIcones();
    PoserLangues();
    Traduire();
    icones_->setVisible(generaux.barreMenus);
    PoserHistorique();
    PoserEtats();
    PoserCoches();

    // Another base starts with its own presentation.
    if (baseMontree_ != session_.base.get()) {
        baseMontree_ = session_.base.get();
        graphe_->PoserPalette(PaletteEnCours(session_));
        graphe_->AppliquerPresentation();
    }
    ActualiserEtat();
}

void MDIForm1::ActualiserEtat() {
    const bool graphe = session_.BaseOuverte() && session_.PersonneEnCours;
    // A job that has closed the base opens it again: another one is not offered meanwhile.
    const bool reprise = !session_.BaseOuverte() && session_.progression.EnCours();
    graphe_->Actualiser();
    accueil_->Actualiser();
    if (!reprise && graphe != (pages_->currentWidget() == graphe_)) {
        pages_->setCurrentWidget(graphe ? static_cast<QWidget*>(graphe_) : accueil_);
        if (graphe) graphe_->setFocus();
    }
    const QString titre = TexteVersQt(shell::TitrePrincipal(session_));
    setWindowTitle(session_.BaseOuverte() ? titre + QStringLiteral(" \u2014 Dorvane") : titre);
    etatPersonne_->setText(graphe ? graphe_->windowTitle() : QString{});
    QStringList cujus;
    for (int k = 1; k <= 2; ++k) {
        const shell::DeCujus& choisi = session_.deCujus[static_cast<std::size_t>(k - 1)];
        const QString libelle = TexteVersQt(choisi.libelle);
        ActionNommee(QStringLiteral("MnuDeCujus%1").arg(k))
            ->setText(QString{libelle}.replace(u'&', QStringLiteral("&&")));
        if (choisi.individu) cujus << libelle;
    }
    etatDeCujus_->setText(cujus.join(u' '));
    if (session_.base) session_.base->marques.AffichagePerime = false;
    SuivreFenetres();
}

void MDIForm1::Annoncer(const QString& texte) {
    if (texte.isEmpty())
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(texte, DureeAnnonce);
}

void MDIForm1::MontrerRapport(const shell::Phrase& titre, const std::string& texte) {
    auto* rapport = new FrmRapport{session_, TexteVersQt(session_.catalogue.Composer(titre)),
                                   TexteVersQt(texte), this};
    rapport->show();
}

void MDIForm1::DemanderPalette() {
    if (PaletteChoisie(session_)) return;
    FrmPalette question{session_, PaletteDuBureau(), this};
    connect(&question, &FrmPalette::paletteEssayee, graphe_, &FrmDebut::PoserPalette);
    question.exec();
    PoserPalette(question.Choix());
}

QList<FenetreFille*> MDIForm1::Filles() const {
    return findChildren<FenetreFille*>(QString{}, Qt::FindDirectChildrenOnly);
}

bool MDIForm1::ConfirmerFermeture() {
    for (FenetreFille* fille : Filles())
        if (fille->isVisible() && !fille->ConfirmerFermeture()) return false;
    return true;
}

/// The chart and every window but `sauf` read the base again.
void MDIForm1::RelireTout(const FenetreFille* sauf) {
    ActualiserEtat();
    for (FenetreFille* fille : Filles())
        if (fille != sauf && fille->isVisible()) fille->Recharger();
}

void MDIForm1::FermerFenetres() {
    for (FenetreFille* fille : Filles())
        if (!fille->isModal()) fille->close();
}

/// The window bar has one button for each open window; a click brings it to the front.
void MDIForm1::SuivreFenetres() {
    QList<QWidget*> ouvertes;
    if (pages_->currentWidget() == graphe_) ouvertes << graphe_;
    for (FenetreFille* fille : Filles())
        if (fille->isVisible() && !fille->isModal()) ouvertes << fille;
    const QList<QAction*> boutons = fenetres_->actions();
    bool pareil = boutons.size() == ouvertes.size();
    for (qsizetype i = 0; pareil && i < boutons.size(); ++i)
        pareil = boutons[i]->data().value<QWidget*>() == ouvertes[i] &&
                 boutons[i]->text() == TitreDeBouton(*ouvertes[i]);
    // One window needs no bar to choose it.
    fenetres_->setVisible(session_.parametres.generaux.barreFenetres && ouvertes.size() > 1);
    if (pareil) return;
    for (QAction* bouton : boutons) {
        fenetres_->removeAction(bouton);
        bouton->deleteLater();
    }
    for (QWidget* fenetre : ouvertes) {
        QAction* bouton = fenetres_->addAction(TitreDeBouton(*fenetre));
        bouton->setData(QVariant::fromValue(fenetre));
        connect(bouton, &QAction::triggered, fenetre, [fenetre] {
            fenetre->window()->show();
            fenetre->window()->raise();
            fenetre->window()->activateWindow();
            fenetre->setFocus();
        });
    }
}

void MDIForm1::Minuterie() {
    shell::Minuterie1(session_);
    if (session_.base && session_.base->marques.AffichagePerime) ActualiserEtat();
}

void MDIForm1::ChangerLangue(const QString& nom) {
    const MotsDeLangue avant{session_};
    if (!shell::ChoisirLangue(session_, nom.toStdString())) return;
    TraduireQt();
    for (FenetreFille* fille : findChildren<FenetreFille*>())
        fille->ChangerLangue(avant);
    Actualiser();
}

void MDIForm1::Traduire() {
    TraduireQt();
    TraduireFenetre(*this, session_);
    for (const Commande& rangee : Commandes())
        if (rangee.legende)
            PoserTexte(*findChild<QObject*>(QString::fromUtf8(rangee.nom)),
                       TexteEcran(session_, rangee.legende));
    for (int k = 1; k <= 2; ++k) {
        // The caption of a reference person is its name.
        QAction* choix = ActionNommee(QStringLiteral("MnuDeCujus%1").arg(k));
        choix->setToolTip(SansMnemonique(TexteEcran(session_, message::MenuChoisirDeCujus)));
    }
}

/// Buttons and file dialogs of the toolkit in the language of the catalogue.
void MDIForm1::TraduireQt() {
    const bool francais = session_.parametres.generaux.langue == "Français";
    QLocale::setDefault(francais ? QLocale{QLocale::French, QLocale::France}
                                 : QLocale{QLocale::English, QLocale::UnitedKingdom});
    if (francais == (traducteur_ != nullptr)) return;
    if (!francais) {
        QCoreApplication::removeTranslator(traducteur_);
        delete traducteur_;
        traducteur_ = nullptr;
        return;
    }
    traducteur_ = new QTranslator{this};
    if (traducteur_->load(QLocale{}, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traducteur_);
}

void MDIForm1::closeEvent(QCloseEvent* evenement) {
    if (arrete_) {
        evenement->accept();
        return;
    }
    evenement->ignore();
    if (!shell::ConfirmerSortie(session_)) return;
    Minuterie1_.stop();
    Minuterie2_.stop();
    MemoriserPlace(*this, session_);
    arrete_ = shell::Arret(session_);
    evenement->setAccepted(arrete_);
    if (arrete_) return;
    Minuterie1_.start();
    Minuterie2_.start();
}

void MDIForm1::dragEnterEvent(QDragEnterEvent* evenement) {
    const QList<QUrl> urls = evenement->mimeData()->urls();
    if (!urls.isEmpty() && urls.constFirst().isLocalFile()) evenement->acceptProposedAction();
}

void MDIForm1::dropEvent(QDropEvent* evenement) {
    const QList<QUrl> urls = evenement->mimeData()->urls();
    if (urls.isEmpty() || !urls.constFirst().isLocalFile()) return;
    evenement->acceptProposedAction();
    const std::filesystem::path chemin = QtVersChemin(urls.constFirst().toLocalFile());
    // The program that the file comes from waits until the drop has ended.
    QTimer::singleShot(0, this, [this, chemin] { shell::OuvrirFichierDepose(session_, chemin); });
}

}  // namespace dorvane::windows

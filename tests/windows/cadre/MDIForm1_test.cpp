#include "windows/cadre/MDIForm1.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QStackedWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

#include "messages/Messages.h"
#include "windows/Essai.h"
#include "windows/cadre/FrmCalendrier.h"

#include <memory>
#include <optional>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

void Deposer(QWidget& fenetre, const std::filesystem::path& chemin) {
    QMimeData donnees;
    donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(chemin.string())),
                     QUrl::fromLocalFile(QStringLiteral("autre.LGD"))});
    QDragEnterEvent entree{fenetre.rect().center(), Qt::CopyAction, &donnees, Qt::LeftButton, {}};
    QApplication::sendEvent(&fenetre, &entree);
    CHECK(entree.isAccepted());
    QDropEvent depot{fenetre.rect().center(), Qt::CopyAction, &donnees, Qt::LeftButton, {}};
    QApplication::sendEvent(&fenetre, &depot);
    QCoreApplication::processEvents();
}

bool Attendre(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 3000);
}

}  // namespace

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: without a base the ways to get one are shown") {
    Demarrer({});
    CHECK(Fenetre().windowTitle() == "Dorvane");
    CHECK(Trouver<QLabel>("LblAccueil").text() == "Bienvenue dans Dorvane");
    CHECK(Trouver<QWidget>("CmdAccueilOuvrir").isVisible());
    CHECK_FALSE(Graphe().isVisible());
    CHECK_FALSE(Trouver<QLabel>("LblRecentes").isVisible());
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: entries that need a base are disabled without one") {
    Demarrer(base);
    const char* deLaBase[] = {"MnuFermer",   "MnuEnregistrer", "MnuSauvegarde", "MnuPrécédent",
                              "MnuSuivant",  "MnuNoms",        "MnuDeCujus1",   "MnuDeCujus2",
                              "MnuAgrandir", "MnuDiminuer",    "MnuGauche",     "MnuDroite"};
    const char* toujours[] = {"MnuNouveau",  "MnuOuvrir",     "MnuRestauration",
                              "MnuImporter", "MnuCalendrier", "MnuQuitter"};
    for (const char* nom : deLaBase)
        CHECK(Action(nom).isEnabled());
    // No reference person is chosen.
    CHECK_FALSE(Action("MnuAller1_1").isEnabled());

    Action("MnuFermer").trigger();
    for (const char* nom : deLaBase) {
        CAPTURE(nom);
        CHECK_FALSE(Action(nom).isEnabled());
    }
    for (const char* nom : toujours) {
        CAPTURE(nom);
        CHECK(Action(nom).isEnabled());
    }
    CHECK(Fenetre().windowTitle() == "Dorvane");
    CHECK_FALSE(Graphe().isVisible());
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: a base opens on its person, with path and names shown") {
    Demarrer({});
    RepondreFichier(base);
    QTest::keyClick(&Fenetre(), Qt::Key_O, Qt::ControlModifier);
    REQUIRE(S().BaseOuverte());
    CHECK(EnCours() == 1);
    CHECK(Fenetre().windowTitle().startsWith(QString::fromStdString(base.string())));
    CHECK(Graphe().isVisible());
    CHECK(Graphe().windowTitle() == "Louis Martin (1790-1860)");
    CHECK(Trouver<QLabel>("EtatPersonne").text() == "Louis Martin (1790-1860)");
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: giving up the file dialog changes nothing") {
    DemarrerFamille();
    RepondreFichier({});
    Action("MnuOuvrir").trigger();
    CHECK(S().BaseOuverte());
    CHECK(EnCours() == 3);
    // A new base closes the open one first, as it always did.
    RepondreFichier({});
    Action("MnuNouveau").trigger();
    CHECK_FALSE(S().BaseOuverte());
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: a new base says that it is empty and what to do") {
    Demarrer({});
    RepondreFichier(dossier / "Neuve");
    QTest::keyClick(&Fenetre(), Qt::Key_N, Qt::ControlModifier);
    REQUIRE(S().BaseOuverte());
    // The extension comes by itself.
    CHECK(S().CheminBase == dossier / "Neuve.LGD");
    CHECK(Trouver<QLabel>("LblAccueil").text() == "Cette base est vide");
    CHECK(Trouver<QWidget>("CmdAccueilImporter").isVisible());
    CHECK_FALSE(Graphe().isVisible());
    CHECK(Graphe().Cases().empty());
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: the first dropped file is opened or imported by its extension") {
    Demarrer({});
    std::filesystem::path importe;
    S().importer = [&importe](const std::filesystem::path& chemin) { importe = chemin; };
    doublures::EcrireFichier(dossier / "été.ged", "0 HEAD\n0 TRLR\n");
    doublures::EcrireFichier(dossier / "photo.jpg", "x");
    Deposer(Fenetre(), dossier / "photo.jpg");
    Deposer(Fenetre(), dossier / "absent.ged");
    CHECK(importe.empty());
    Deposer(Fenetre(), dossier / "été.ged");
    CHECK(importe == dossier / "été.ged");
    Deposer(Fenetre(), base);
    CHECK(S().CheminBase == base);
    CHECK(EnCours() == 1);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: a dropped GEDCOM file becomes a base, and its report is shown") {
    Demarrer({});
    doublures::EcrireFichier(dossier / "duval.ged",
                             "0 HEAD\n1 CHAR UTF-8\n0 @1@ INDI\n1 NAME Ève /Duval/\n1 SEX F\n"
                             "0 TRLR\n");
    const auto question = RepondreBoite(QMessageBox::Yes);
    Deposer(Fenetre(), dossier / "duval.ged");
    CHECK(question->startsWith(QStringLiteral("Voulez-vous trier")));
    REQUIRE(S().BaseOuverte());
    CHECK(S().CheminBase == dossier / "duval.LGD");
    CHECK(Graphe().windowTitle() == QStringLiteral("Ève Duval"));
    auto* rapport = Fenetre().findChild<QDialog*>(QStringLiteral("FrmRapport"));
    REQUIRE(rapport != nullptr);
    CHECK(rapport->isVisible());
    CHECK(rapport->windowTitle() == "Rapport d'import");
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MnuPrécédent and MnuSuivant follow the sort order and stop at its ends") {
    DemarrerFamille();
    // By name: Blanc Rose, Évrard Anne, Martin Jules, Louis, Luc, Marie, Paul, Noël Jeanne.
    Touche(Qt::Key_PageDown, Qt::ControlModifier);
    CHECK(EnCours() == 5);
    const std::vector<CaseGraphique*> avant = Graphe().Cases();
    Touche(Qt::Key_PageDown, Qt::ControlModifier);
    CHECK(EnCours() == 5);
    CHECK(Graphe().Cases() == avant);
    for (const std::uint32_t n : {3U, 7U, 6U, 1U, 8U, 4U, 2U, 2U}) {
        Touche(Qt::Key_PageUp, Qt::ControlModifier);
        CHECK(EnCours() == n);
    }
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: arrows walk to father, child, each spouse in turn, mother") {
    DemarrerFamille();
    Touche(Qt::Key_Up);
    CHECK(EnCours() == 1);
    Touche(Qt::Key_Up);
    CHECK(EnCours() == 1);
    Touche(Qt::Key_Left);
    CHECK(EnCours() == 3);
    Touche(Qt::Key_Down);
    CHECK(EnCours() == 4);
    Touche(Qt::Key_Down);
    CHECK(EnCours() == 3);
    Touche(Qt::Key_Down);
    CHECK(EnCours() == 5);
    Touche(Qt::Key_Down);
    Touche(Qt::Key_Right);
    CHECK(EnCours() == 2);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "De Cujus: the chooser, the numbering, its name in the status bar") {
    DemarrerFamille();
    CHECK(Action("MnuDeCujus1").text() == "[...]");
    CHECK(Action("MnuDeCujus2").text() == "{...}");
    SurModal([](QWidget& fenetre) {
        CHECK(fenetre.objectName() == "FrmNom");
        auto* liste = fenetre.findChild<QTableView*>();
        auto* filtre = fenetre.findChild<QLineEdit*>(QStringLiteral("TxtFiltre"));
        // It starts on the current person.
        CHECK(liste->currentIndex().data().toString() == "Paul Martin");
        QTest::keyClicks(filtre, QStringLiteral("mart luc"));
        CHECK(liste->model()->rowCount() == 1);
        QTest::keyClick(filtre, Qt::Key_Return);
    });
    Action("MnuDeCujus1").trigger();
    CHECK(S().deCujus[0].individu == NoOrdre{6});
    CHECK(Action("MnuDeCujus1").text() == "[Martin Luc]");
    CHECK(Trouver<QLabel>("EtatDeCujus").text() == "[Martin Luc]");
    // Paul is the father of Luc.
    CHECK(Graphe().Cases()[0]->Contenu().numeros == "[2]");
    CHECK(Action("MnuAller1_1").isEnabled());
    // No window manager gives the window back what the chooser had.
    Fenetre().activateWindow();
    REQUIRE(QTest::qWaitForWindowActive(&Fenetre()));
    Touche(Qt::Key_1, Qt::ControlModifier);
    CHECK(EnCours() == 6);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: another language shows at once, in every window, and stays") {
    DemarrerFamille();
    Action("MnuCalendrier").trigger();
    auto* calendrier = Fenetre().findChild<FrmCalendrier*>();
    REQUIRE(calendrier != nullptr);
    CHECK(calendrier->windowTitle() == QStringLiteral("Calendrier républicain"));
    CHECK(Action("MnuLng(Français)").isChecked());
    Action("MnuLng(English)").trigger();
    CHECK(Attendre([&] { return Action("MnuOuvrir").text() == "&Open..."; }));
    CHECK(calendrier->windowTitle() == "Republican calendar");
    CHECK(Action("MnuLng(English)").isChecked());
    CHECK_FALSE(Action("MnuLng(Français)").isChecked());
    CHECK(Action("MnuOuvrir").toolTip() == "Open (Ctrl+O)");
    // The boxes of the toolkit speak it, too.
    const auto texte = RepondreBoite(QMessageBox::Yes);
    Fenetre().close();
    CHECK(*texte == QStringLiteral("Do you want to quit Dorvane?"));
    CHECK(S().parametres.Valeur("Defaut", "Langue") == "English");
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: a language whose file has gone leaves the one in use") {
    Demarrer({});
    std::filesystem::remove(dossier / "partage/English.mes");
    Action("MnuLng(English)").trigger();
    QCoreApplication::processEvents();
    CHECK(Action("MnuOuvrir").text() == "&Ouvrir...");
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: quitting asks, and No keeps everything open") {
    DemarrerFamille();
    const auto texte = RepondreBoite(QMessageBox::No);
    QTest::keyClick(&Fenetre(), Qt::Key_Q, Qt::ControlModifier);
    CHECK(*texte == QStringLiteral("Voulez-vous quitter Dorvane\u00A0?"));
    CHECK(Fenetre().isVisible());
    CHECK(S().BaseOuverte());
    RepondreBoite(QMessageBox::Yes);
    Fenetre().close();
    CHECK_FALSE(Fenetre().isVisible());
    CHECK_FALSE(S().BaseOuverte());
    CHECK(S().parametres.generaux.historique.front() == base);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: while a long job runs nothing heavy starts and nothing closes") {
    DemarrerFamille();
    {
        const shell::CadreProgression cadre{S().progression,
                                            shell::Msg(message::TitreReorganisationBase),
                                            shell::Msg(message::TitreReorganisationBase)};
        for (const char* nom :
             {"MnuOuvrir", "MnuNouveau", "MnuFermer", "MnuEnregistrer", "MnuSauvegarde",
              "MnuRestauration", "MnuImporter", "MnuNoms", "MnuDeCujus1", "MnuQuitter"}) {
            CAPTURE(nom);
            const auto texte = RepondreBoite(QMessageBox::Ok);
            Action(nom).trigger();
            CHECK(texte->startsWith(QStringLiteral("Opération impossible")));
        }
        CHECK(Fenetre().isVisible());
        CHECK(S().BaseOuverte());
    }
    CHECK_FALSE(S().progression.EnCours());
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: a long job shows how far it is, and the button stops it at once") {
    DemarrerFamille();
    auto& bouton = Trouver<QToolButton>("CmdAnnuler");
    auto& barre = Trouver<QProgressBar>("Progression");
    const auto heure = std::make_shared<std::int64_t>(0);
    programme->Chronometrer([heure] { return *heure; });
    const shell::CadreProgression cadre{S().progression, shell::Msg(message::TitreImportGedcom),
                                        shell::Msg(message::EtatPremiereLecture)};
    std::optional<std::int64_t> clic;
    std::uint32_t fait = 0;
    int valeur = 0;
    while (S().progression.Avancer(++fait, 100000) && fait < 5000) {
        *heure += 2;
        if (bouton.isVisible() && fait > 300 && !clic) {
            valeur = barre.value();
            CHECK(barre.text().endsWith(QStringLiteral("/100000")));
            clic = *heure;
            // As from outside: the event waits for the next pass of the loop.
            QTimer::singleShot(0, &bouton, &QToolButton::click);
        }
    }
    REQUIRE(clic.has_value());
    CHECK(*heure - *clic < 100);
    CHECK(fait < 5000);
    CHECK(valeur > 0);
    CHECK(Trouver<QLabel>("LblProgression").text() == "Annulation...");
    // The next job starts anew.
    S().progression.Terminer();
    S().progression.Commencer(shell::Msg(message::TitreImportGedcom),
                              shell::Msg(message::EtatPremiereLecture));
    CHECK(S().progression.Avancer(1, 2));
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MnuHisto: names with their paths, opened by a click, a lost file is told") {
    Demarrer(base);
    Action("MnuFermer").trigger();
    QAction& premier = Action("MnuHisto(0)");
    CHECK(premier.isVisible());
    CHECK(premier.text() == "&1. Martin");
    CHECK(premier.toolTip() == QString::fromStdString(base.string()));
    CHECK_FALSE(Action("MnuHisto(1)").isVisible());
    CHECK(Trouver<QLabel>("LblRecentes").isVisible());
    QTest::mouseClick(&Trouver<QPushButton>("CmdRecente(0)"), Qt::LeftButton);
    CHECK(S().BaseOuverte());
    Action("MnuFermer").trigger();
    std::filesystem::remove(base);
    const auto texte = RepondreBoite(QMessageBox::Ok);
    premier.trigger();
    CHECK(*texte == QStringLiteral("Ce fichier n'existe plus."));
    CHECK(premier.isVisible());
}

TEST_CASE_FIXTURE(FenetreEssai, "Fenetre: the window bar has a button for each open window") {
    DemarrerFamille();
    auto& barre = Trouver<QToolBar>("Fenetre");
    CHECK_FALSE(barre.isVisible());
    Action("MnuCalendrier").trigger();
    REQUIRE(barre.actions().size() == 2);
    CHECK(barre.isVisible());
    CHECK(barre.actions()[0]->text() == "Paul Martin (1820-1890)");
    CHECK(barre.actions()[1]->text() == QStringLiteral("Calendrier républicain"));
    // The calculator is one window, however often it is asked for.
    Action("MnuCalendrier").trigger();
    CHECK(barre.actions().size() == 2);
    Fenetre().findChild<FrmCalendrier*>()->close();
    CHECK(Attendre([&] { return barre.actions().size() == 1; }));
    Action("MnuBarreFenetres").trigger();
    CHECK_FALSE(S().parametres.generaux.barreFenetres);
    Action("MnuCalendrier").trigger();
    CHECK_FALSE(barre.isVisible());
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "Icones: the icon bar follows its setting, without what is not there") {
    programme->session.parametres.magasin.Ecrire("Defaut", "Langue", "Français");
    Demarrer(base);
    auto& barre = Trouver<QToolBar>("Icones");
    CHECK_FALSE(barre.isVisible());
    S().parametres.generaux.icones = "50,99,0,1,99,51,52,99,99,11,12,99";
    Action("MnuBarreIcones").trigger();
    CHECK(S().parametres.generaux.barreMenus);
    Fenetre().Actualiser();
    CHECK(barre.isVisible());
    QStringList noms;
    for (const QAction* action : barre.actions())
        noms << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    CHECK(noms.join(u' ') == QStringLiteral("MnuNouveau MnuOuvrir - MnuPrécédent MnuSuivant"));
    for (const QAction* action : barre.actions())
        if (!action->isSeparator()) CHECK(action->toolTip().contains(QStringLiteral(" (Ctrl+")));
}

TEST_CASE_FIXTURE(FenetreEssai, "MDIForm1: size and place are kept for the next start") {
    Demarrer({});
    Fenetre().resize(900, 610);
    QCoreApplication::processEvents();
    RepondreBoite(QMessageBox::Yes);
    Fenetre().close();
    Programme suite{shell::Lieux{dossier / "partage", dossier / "config", dossier / "cache"}};
    suite.Demarrer({});
    CHECK(suite.fenetre.size() == QSize{900, 610});
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MDIForm1: the first start asks once for the colours of the chart") {
    Demarrer(base);
    SurModal([](QWidget& fenetre) {
        CHECK(fenetre.objectName() == "FrmPalette");
        QTest::mouseClick(fenetre.findChild<QWidget*>(QStringLiteral("OptClassique")),
                          Qt::LeftButton);
        QTest::mouseClick(fenetre.findChild<QWidget*>(QStringLiteral("CmdValider")),
                          Qt::LeftButton);
    });
    Fenetre().DemanderPalette();
    CHECK(PaletteChoisie(S()) == Palette::Classique);
    CHECK(Action("MnuClassique").isChecked());
    // No box comes up: the call returns at once.
    Fenetre().DemanderPalette();
    Action("MnuSombre").trigger();
    CHECK(PaletteChoisie(S()) == Palette::Sombre);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "MnuSauvegarde and MnuRestauration: a copy beside, and back again") {
    DemarrerFamille();
    Action("MnuSauvegarde").trigger();
    CHECK(std::filesystem::exists(dossier / "Martin.SAV"));
    CHECK(S().BaseOuverte());
    CHECK(EnCours() == 3);
    RepondreFichier(dossier / "Martin.SAV");
    QString question;
    QTimer suivant;
    // The question comes behind the file dialog.
    QObject::connect(&suivant, &QTimer::timeout, &suivant, [&] {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr) return;
        suivant.stop();
        question = boite->text();
        CHECK((boite->defaultButton() == boite->button(QMessageBox::No)));
        QTest::mouseClick(boite->button(QMessageBox::Yes), Qt::LeftButton);
    });
    suivant.start(10);
    Action("MnuRestauration").trigger();
    CHECK(question.startsWith(QStringLiteral("Base\u00A0: ")));
    CHECK(question.contains(QStringLiteral("La base existe")));
    CHECK(S().BaseOuverte());
}

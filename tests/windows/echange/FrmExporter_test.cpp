#include "windows/echange/FrmExporter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "interchange/lgr/EcrireLgr.h"
#include "shell/FichierSur.h"
#include "windows/BureauEssai.h"
#include "windows/Enchainement.h"
#include "windows/Essai.h"
#include "windows/controles/BoutonPersonne.h"
#include "windows/controles/CadreAvancement.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/personnes/FrmRecherche.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

struct Export : FenetreEssai {
    /// The window as the menu opens it, on Paul (3).
    FrmExporter& Ouvrir() {
        if (!S().BaseOuverte()) DemarrerFamille();
        Action("MnuExporter").trigger();
        return F();
    }
    [[nodiscard]] FrmExporter& F() const { return Trouver<FrmExporter>("FrmExporter"); }
    template <class Controle>
    [[nodiscard]] Controle& C(const char* nom) const {
        auto* controle = F().findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Clic(const char* nom) const {
        auto& bouton = C<QAbstractButton>(nom);
        CAPTURE(nom);
        REQUIRE(bouton.isEnabled());
        QTest::mouseClick(&bouton, Qt::LeftButton, {}, QPoint{8, bouton.height() / 2});
    }
    [[nodiscard]] QString Fiche() const { return C<QLabel>("LblFiche").text(); }
    [[nodiscard]] std::string Lu(const char* nom) const {
        return shell::LireTout(dossier / nom).value_or("(none)");
    }
    /// Exports to that file; the box at the end is read.
    void Lancer(const char* nom) const {
        Enchainement suite;
        Fichier(suite, nom).Boite(QMessageBox::Ok, QStringLiteral("L'export est terminé."));
        Clic("CmdLancer");
    }
    Enchainement& Fichier(Enchainement& suite, const char* nom) const {
        const QString chemin = QString::fromStdString((dossier / nom).string());
        return suite.Fenetre("QFileDialog", [chemin](QWidget& fenetre) {
            auto* champ = fenetre.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            REQUIRE(champ != nullptr);
            champ->setText(chemin);
            QTest::keyClick(champ, Qt::Key_Return);
        });
    }
    void Deposer(QWidget& cible, std::uint32_t individu) const {
        const std::unique_ptr<QMimeData> donnees{PersonneVersMime(S(), NoOrdre{individu})};
        QDragEnterEvent entree{{5, 5}, Qt::CopyAction, donnees.get(), Qt::LeftButton, {}};
        QApplication::sendEvent(&cible, &entree);
        CHECK(entree.isAccepted());
        QDropEvent depot{{5, 5}, Qt::CopyAction, donnees.get(), Qt::LeftButton, {}};
        QApplication::sendEvent(&cible, &depot);
        QCoreApplication::processEvents();
    }
};

std::size_t Individus(const std::string& texte) {
    std::size_t nombre = 0;
    for (std::size_t ou = texte.find(" INDI\r\n"); ou != std::string::npos;
         ou = texte.find(" INDI\r\n", ou + 1))
        ++nombre;
    return nombre;
}

}  // namespace

TEST_CASE_FIXTURE(Export,
                  "FrmExporter: opens on the whole base and counts what a file would hold") {
    Ouvrir();
    CHECK(F().isVisible());
    CHECK(F().windowTitle() == "Exporter");
    CHECK(C<QRadioButton>("OptBase(0)").isChecked());
    CHECK_FALSE(C<QWidget>("PnlSelect").isEnabled());
    CHECK(Fiche() == QStringLiteral("Personnes\u00A0: 8  ·  Événements\u00A0: 0  ·  "
                                    "Documents\u00A0: 0"));
    CHECK(C<BoutonPersonne>("EtiNom").Individu() == NoOrdre{3});
    CHECK(C<QComboBox>("ChxFormat").itemText(0) == "Gedcom");
    CHECK(C<QComboBox>("ChxFormat").itemText(1) == "Dorvane");
}

TEST_CASE_FIXTURE(Export, "FrmExporter: a choice clicked again stays, and the two are apart") {
    Ouvrir();
    Clic("OptBase(0)");
    CHECK(C<QRadioButton>("OptBase(0)").isChecked());
    CHECK(C<QRadioButton>("OptExport(0)").isChecked());
    Clic("OptBase(1)");
    Clic("OptExport(1)");
    Clic("OptExport(1)");
    CHECK(C<QRadioButton>("OptExport(1)").isChecked());
    CHECK(C<QRadioButton>("OptBase(1)").isChecked());
    CHECK_FALSE(C<QRadioButton>("OptBase(0)").isChecked());
    CHECK_FALSE(C<QRadioButton>("OptExport(0)").isChecked());
}

TEST_CASE_FIXTURE(Export, "FrmExporter: a selection of nobody is told, and nothing is asked") {
    Ouvrir();
    Clic("OptBase(1)");
    CHECK(Fiche().startsWith(QStringLiteral("Aucune personne n'est encore choisie")));
    Enchainement suite;
    suite.Boite(QMessageBox::Ok, QStringLiteral("Aucune personne n'est choisie pour l'export."));
    Clic("CmdLancer");
    CHECK(F().focusWidget() == &C<QWidget>("CmdSélection"));
}

TEST_CASE_FIXTURE(Export,
                  "FrmExporter: ascendants and descendants add up in the list and counters") {
    Ouvrir();
    Clic("OptBase(1)");
    C<QSpinBox>("UpDown1").setValue(2);
    Clic("CmdSélection");
    auto& liste = C<QListWidget>("LstSélection");
    REQUIRE(liste.count() == 1);
    CHECK(liste.item(0)->text() ==
          QStringLiteral("Ascendants de Paul Martin (1820-1890), 2 génération(s)"));
    // Paul, his parents, his two wives; his three children are near kin.
    CHECK(C<QLabel>("LblRetenus").text() == QStringLiteral("Personnes choisies\u00A0: 5"));
    CHECK(C<QLabel>("LblMarques").text() == QStringLiteral("Avec les collatéraux\u00A0: 8"));
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 5")));
    Clic("ChkCollateraux");
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 8")));
    Clic("ChkCollateraux");

    // The same walk twice is one.
    Clic("CmdSélection");
    CHECK(liste.count() == 1);
    Clic("OptExport(1)");
    Clic("CmdSélection");
    CHECK(liste.count() == 2);
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 8")));

    QTest::keyClick(&liste, Qt::Key_Delete);
    CHECK(liste.count() == 1);
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 5")));
    Clic("CmdVider");
    CHECK(liste.count() == 0);
    CHECK_FALSE(C<QWidget>("CmdVider").isEnabled());
    CHECK(C<QLabel>("LblRetenus").text() == QStringLiteral("Personnes choisies\u00A0: 0"));
}

TEST_CASE_FIXTURE(Export, "FrmExporter: the number of generations is typed, 1 at least") {
    Ouvrir();
    Clic("OptBase(1)");
    auto& champ = C<QLineEdit>("TxtGen");
    champ.selectAll();
    QTest::keyClicks(&champ, QStringLiteral("1"));
    Clic("CmdSélection");
    // Paul alone with his wives.
    CHECK(C<QLabel>("LblRetenus").text().endsWith(u'3'));
    champ.selectAll();
    QTest::keyClicks(&champ, QStringLiteral("0"));
    Clic("CmdSélection");
    CHECK(C<QSpinBox>("UpDown1").value() == 1);
}

TEST_CASE_FIXTURE(Export, "FrmExporter: the starting person is chosen, or dropped") {
    Ouvrir();
    Clic("OptBase(1)");
    auto& nom = C<BoutonPersonne>("EtiNom");
    SUBCASE("chosen among all names") {
        Enchainement suite;
        suite.Fenetre("FrmNom", [](QWidget& fenetre) {
            QTest::keyClicks(fenetre.findChild<QLineEdit*>(QStringLiteral("TxtFiltre")),
                             QStringLiteral("jules"));
            QTest::keyClick(fenetre.focusWidget(), Qt::Key_Return);
        });
        Clic("CmdListe");
        CHECK(nom.Individu() == NoOrdre{8});
    }
    SUBCASE("dropped on the name") {
        Deposer(nom, 6);
        CHECK(nom.Individu() == NoOrdre{6});
        CHECK(nom.accessibleName().startsWith(QStringLiteral("Luc Martin")));
    }
    SUBCASE("dropped on the window, who wants a part") {
        Clic("OptBase(0)");
        Deposer(F(), 7);
        CHECK(nom.Individu() == NoOrdre{7});
        CHECK(C<QRadioButton>("OptBase(1)").isChecked());
    }
    SUBCASE("given up: stays") {
        Enchainement suite;
        suite.Fenetre("FrmNom", [](QWidget& fenetre) { fenetre.close(); });
        Clic("CmdListe");
        CHECK(nom.Individu() == NoOrdre{3});
    }
}

TEST_CASE_FIXTURE(Export, "FrmExporter: a part of the base is written, and the end told in place") {
    BureauEssai bureau;
    Ouvrir();
    Clic("OptBase(1)");
    Clic("CmdSélection");
    CHECK_FALSE(C<QWidget>("PnlResultat").isVisible());
    Lancer("partie.ged");
    CHECK(Individus(Lu("partie.ged")) == 5);
    CHECK(Lu("partie.ged").find("Jules") == std::string::npos);
    REQUIRE(C<QWidget>("PnlResultat").isVisible());
    const QString texte = C<QLabel>("LblResultat").text();
    CHECK(texte.contains(QStringLiteral("Personnes\u00A0: 5  ·  Unions\u00A0: 3")));
    CHECK(texte.contains(QString::fromStdString((dossier / "partie.ged").string())));
    Clic("CmdDossier");
    CHECK(bureau.ouverts ==
          QStringList{
              QUrl::fromLocalFile(QString::fromStdString(dossier.chemin.string())).toString()});
    // What was exported stays selected for another format.
    CHECK(C<QListWidget>("LstSélection").count() == 1);
}

TEST_CASE_FIXTURE(Export, "FrmExporter: the format of the program needs no character set") {
    Ouvrir();
    CHECK(C<QWidget>("CboJeu").isEnabled());
    C<QComboBox>("ChxFormat").setCurrentIndex(1);
    CHECK_FALSE(C<QWidget>("CboJeu").isEnabled());
    Lancer("tout");
    // The extension comes by itself.
    CHECK(Lu("tout.lgr").starts_with("[Dorvane Version 99.0]\r\n"));
}

TEST_CASE_FIXTURE(Export, "FrmExporter: the set is that of the settings, UTF-8 among them") {
    DemarrerFamille();
    S().parametres.generaux.jeuExport = "2";
    Ouvrir();
    CHECK(C<QComboBox>("CboJeu").currentText() == "ANSEL");
    C<QComboBox>("CboJeu").setCurrentText(QStringLiteral("UTF-8"));
    Lancer("u.ged");
    CHECK(Lu("u.ged").find("1 CHAR UTF-8") != std::string::npos);
    CHECK(Lu("u.ged").find("Évrard") != std::string::npos);
}

TEST_CASE_FIXTURE(Export,
                  "FrmExporter: births after 1900 are left out, and the rest of the base too") {
    DemarrerFamille();
    storage::Base& b = *S().base;
    doublures::FamilleEssai{b}.Creer(Sexe::Homme, "Martin", "Robert", "1901");
    Ouvrir();
    Clic("OptBase(1)");
    CHECK(C<QWidget>("ChkComplet").isEnabled());
    Clic("Chk1900");
    CHECK_FALSE(C<QWidget>("ChkComplet").isEnabled());
    Clic("OptBase(0)");
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 8 ")));
    Clic("Chk1900");
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 9 ")));
}

TEST_CASE_FIXTURE(Export, "FrmExporter: a file that is there is replaced only after a question") {
    doublures::EcrireFichier(dossier / "a.ged", "former");
    Ouvrir();
    Enchainement suite;
    Fichier(suite, "a.ged")
        .Boite(QMessageBox::No, QStringLiteral("a.ged"))
        .Fenetre("QFileDialog", [](QWidget& fenetre) { fenetre.close(); });
    Clic("CmdLancer");
    CHECK(Lu("a.ged") == "former");
    CHECK_FALSE(C<QWidget>("PnlResultat").isVisible());
}

TEST_CASE_FIXTURE(Export, "FrmExporter: Enter exports, Escape closes and keeps the choices") {
    Ouvrir();
    Clic("OptBase(1)");
    Clic("OptExport(1)");
    C<QSpinBox>("UpDown1").setValue(3);
    Clic("Chk1900");
    C<QComboBox>("CboJeu").setCurrentText(QStringLiteral("HTML"));
    Clic("CmdSélection");
    {
        Enchainement suite;
        suite.Fenetre("QFileDialog", [](QWidget& fenetre) { fenetre.close(); });
        QTest::keyClick(&C<QWidget>("Chk1900"), Qt::Key_Return);
    }
    QTest::keyClick(&F(), Qt::Key_Escape);
    CHECK_FALSE(F().isVisible());

    // Another window of the same kind begins as this one ended, without its selection.
    FrmExporter autre{S(), &Fenetre()};
    autre.show();
    CHECK(autre.findChild<QRadioButton*>(QStringLiteral("OptBase(1)"))->isChecked());
    CHECK(autre.findChild<QRadioButton*>(QStringLiteral("OptExport(1)"))->isChecked());
    CHECK(autre.findChild<QSpinBox*>(QStringLiteral("UpDown1"))->value() == 3);
    CHECK(autre.findChild<QCheckBox*>(QStringLiteral("Chk1900"))->isChecked());
    CHECK(autre.findChild<QComboBox*>(QStringLiteral("CboJeu"))->currentText() == "HTML");
    CHECK(autre.findChild<QListWidget*>(QStringLiteral("LstSélection"))->count() == 0);
}

TEST_CASE_FIXTURE(Export, "FrmExporter: an empty base says why nothing can be exported") {
    Demarrer({});
    RepondreFichier(dossier / "Neuve");
    Action("MnuNouveau").trigger();
    Ouvrir();
    CHECK(Fiche() ==
          QStringLiteral(
              "La base ne contient encore aucune personne\u00A0: il n'y a rien à exporter."));
    CHECK_FALSE(C<QWidget>("CmdLancer").isEnabled());
    CHECK(C<QWidget>("CmdFermer").isEnabled());
}

TEST_CASE_FIXTURE(Export, "FrmExporter: a list is the selection, and walks come on top of it") {
    DemarrerFamille();
    Fenetre().ExporterListe({NoOrdre{6}, NoOrdre{8}, NoOrdre{99}});
    CHECK(C<QRadioButton>("OptBase(1)").isChecked());
    auto& liste = C<QListWidget>("LstSélection");
    REQUIRE(liste.count() == 1);
    CHECK(liste.item(0)->text() == QStringLiteral("Personnes d'une liste\u00A0: 2"));
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 2 ")));
    Lancer("liste.ged");
    CHECK(Individus(Lu("liste.ged")) == 2);
    Clic("CmdSélection");
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 7 ")));
    liste.setCurrentRow(0);
    QTest::keyClick(&liste, Qt::Key_Delete);
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 5 ")));
    // Another list takes the place of all that was selected.
    F().Selectionner({NoOrdre{1}});
    CHECK(liste.count() == 1);
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 1 ")));
}

TEST_CASE_FIXTURE(Export, "MnuExporterSélectif: the list of the search is what is selected") {
    DemarrerFamille();
    SUBCASE("without that window nobody is") {
        Action("MnuExporterSélectif").trigger();
        CHECK(C<QRadioButton>("OptBase(1)").isChecked());
        CHECK(C<QListWidget>("LstSélection").count() == 0);
    }
    SUBCASE("with it, its persons are") {
        Action("MnuListe").trigger();
        auto& recherche = Trouver<FrmRecherche>("FrmRecherche");
        Deposer(recherche, 4);
        Deposer(recherche, 5);
        Action("MnuExporterSélectif").trigger();
        REQUIRE(C<QListWidget>("LstSélection").count() == 1);
        CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 2 ")));
    }
}

TEST_CASE_FIXTURE(Export, "FrmExporter: who is deleted meanwhile leaves the selection") {
    DemarrerFamille();
    const NoOrdre seul = doublures::FamilleEssai{*S().base}.Creer(Sexe::Homme, "Seul", "Marc");
    Fenetre().ExporterListe({NoOrdre{6}, seul});
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 2 ")));
    AllerA(seul.valeur);
    {
        Enchainement suite;
        suite.Boite(QMessageBox::Yes, QStringLiteral("Marc"));
        Action("MnuSupprInd").trigger();
    }
    CHECK(C<QListWidget>("LstSélection").item(0)->text().endsWith(u'1'));
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 1 ")));
}

TEST_CASE_FIXTURE(Export, "FrmExporter: while a long job runs the menu is told to be impossible") {
    DemarrerFamille();
    S().progression.Commencer({}, {});
    {
        Enchainement suite;
        suite.Boite(QMessageBox::Ok, QStringLiteral("Opération impossible pour le moment"));
        Action("MnuExporter").trigger();
    }
    S().progression.Terminer();
    CHECK(Fenetre().findChild<FrmExporter*>() == nullptr);
}

TEST_CASE_FIXTURE(Export, "FrmExporter: follows the language, its result too") {
    Ouvrir();
    Lancer("a.ged");
    REQUIRE(shell::ChoisirLangue(S(), "English"));
    F().Traduire();
    CHECK(F().windowTitle() == "Export");
    CHECK(Fiche().startsWith(QStringLiteral("Persons: 8")));
    CHECK(C<QLabel>("LblResultat").text().startsWith(QStringLiteral("The export is finished.")));
    CHECK(C<QComboBox>("ChxFormat").count() == 2);
}

TEST_CASE_FIXTURE(Export,
                  "FrmExporter: Escape stops an export that runs, and asks about its rest") {
    DemarrerFamille();
    doublures::FamilleEssai famille{*S().base};
    const std::string prenoms(200, '\xE9');
    for (int i = 0; i < 60000; ++i)
        famille.Creer(Sexe::Homme, "Durand", prenoms, "1850", "1911");
    doublures::EcrireFichier(dossier / "gros.ged", "former");
    Ouvrir();
    C<QComboBox>("CboJeu").setCurrentText(QStringLiteral("HTML"));
    // A short job shows no frame: in this one each look at the time finds it 50 ms later.
    programme->Chronometrer([heure = std::int64_t{0}]() mutable { return heure += 50; });
    int vus = 0;
    bool barre = false;
    QObject::connect(&Fenetre().Cadre(), &CadreAvancement::montre, &F(),
                     [&](const QString& texte, quint32 /*fait*/, quint32 total) {
                         if (total == 0 || ++vus > 1) return;
                         CHECK(Fiche() == texte);
                         CHECK(C<QProgressBar>("BarAvancement").text().endsWith("/60008"));
                         barre = C<QProgressBar>("BarAvancement").isVisible();
                         CHECK(C<QPushButton>("CmdFermer").text() == "Annuler");
                         CHECK_FALSE(C<QWidget>("CmdLancer").isEnabled());
                         QTest::keyClick(&F(), Qt::Key_Escape);
                     });
    {
        Enchainement suite;
        Fichier(suite, "gros.ged")
            .Boite(QMessageBox::Yes, QStringLiteral("gros.ged"))
            .Boite(QMessageBox::Yes, QStringLiteral("L'export est interrompu."));
        Clic("CmdLancer");
    }
    CHECK(vus > 0);
    CHECK(barre);
    CHECK(F().isVisible());
    CHECK(Lu("gros.ged") == "former");
    CHECK_FALSE(std::filesystem::exists(shell::CheminPartiel(dossier / "gros.ged")));
    CHECK(C<QWidget>("CmdLancer").isEnabled());
    CHECK_FALSE(C<QWidget>("BarAvancement").isVisible());
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 60008 ")));
}

TEST_CASE_FIXTURE(Export,
                  "MnuIntégrer: the file, the question, the backup, the report, the display") {
    DemarrerFamille();
    const interchange::ResultatExport ecrit =
        interchange::ExporterLgr(S(), dossier / "autres.lgr", {});
    REQUIRE(ecrit.issue.cause == shell::Cause::Fait);
    Ouvrir();
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 8 ")));
    {
        Enchainement suite;
        Fichier(suite, "autres.lgr").Boite(QMessageBox::Ok, QStringLiteral("personnes\u00A0: 8"));
        Action("MnuIntégrer").trigger();
    }
    CHECK(S().base->entete.NbTriIndividus == 16);
    CHECK(std::filesystem::exists(dossier / "Martin.SAV"));
    CHECK(Fiche().startsWith(QStringLiteral("Personnes\u00A0: 16 ")));
    auto* rapport = Fenetre().findChild<QDialog*>(QStringLiteral("FrmRapport"));
    REQUIRE(rapport != nullptr);
    CHECK(rapport->isVisible());
}

TEST_CASE_FIXTURE(Export,
                  "MDIForm1: an exchange file becomes a base, named at the start or dropped") {
    doublures::EcrireFichier(dossier / "envoi.LGR",
                             "[Dorvane Version 99.0]\r\n[INDIVIDUS]\r\n 1 \r\n"
                             "Duval;Ana;;;\r\nF\r\n\r\n\r\n 0 \r\n 0 \r\n#\r\n#\r\n#\r\n#\r\n"
                             "[FIN INDIVIDUS]\r\n[FIN]\r\n");
    const Enchainement sansQuestion;
    SUBCASE("on the command line") {
        Demarrer(dossier / "envoi.LGR");
    }
    SUBCASE("dropped on the main window") {
        Demarrer(base);
        QMimeData donnees;
        donnees.setUrls(
            {QUrl::fromLocalFile(QString::fromStdString((dossier / "envoi.LGR").string()))});
        QDragEnterEvent entree{{50, 50}, Qt::CopyAction, &donnees, Qt::LeftButton, {}};
        QApplication::sendEvent(&Fenetre(), &entree);
        QDropEvent depot{{50, 50}, Qt::CopyAction, &donnees, Qt::LeftButton, {}};
        QApplication::sendEvent(&Fenetre(), &depot);
        QCoreApplication::processEvents();
    }
    REQUIRE(S().BaseOuverte());
    CHECK(S().CheminBase == dossier / "envoi.LGD");
    REQUIRE(S().base->entete.NbTriIndividus == 1);
    CHECK(S().base->R_NOM.PrenomDe(NoOrdre{1}) == "Ana");
    CHECK(Fenetre().findChild<QDialog*>(QStringLiteral("FrmRapport")) != nullptr);
}

TEST_CASE_FIXTURE(Export, "FrmExporter: a walk that was set but not taken is kept as well") {
    Ouvrir();
    Clic("OptBase(1)");
    Clic("CmdSélection");
    Clic("OptExport(1)");
    C<QSpinBox>("UpDown1").setValue(6);
    F().close();
    FrmExporter autre{S(), &Fenetre()};
    CHECK(autre.findChild<QRadioButton*>(QStringLiteral("OptExport(1)"))->isChecked());
    CHECK(autre.findChild<QSpinBox*>(QStringLiteral("UpDown1"))->value() == 6);
}

TEST_CASE_FIXTURE(Export, "MDIForm1: the entries of the export need a base") {
    Demarrer({});
    for (const char* nom : {"MnuExporter", "MnuExporterSélectif", "MnuIntégrer"}) {
        CAPTURE(nom);
        CHECK_FALSE(Action(nom).isEnabled());
    }
    CHECK(Action("MnuImporter").isEnabled());
}

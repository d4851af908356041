#include "windows/soin/FrmControle.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QProgressBar>
#include <QSignalSpy>

#include "records/Individus.h"
#include "shell/FichierSur.h"
#include "windows/FaitsEssai.h"
#include "windows/TempsProcesseur.h"
#include "windows/controles/FrmRapport.h"
#include "windows/controles/TableFiche.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/soin/ModeleAnomalies.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The Martins, of whom Luc (6) was born before his father, Marie (7) has no sex, and Jules (8) has
/// no year of birth: one finding for each.
struct Controle : Faits<FrmControle> {
    Controle() {
        chemins = qgetenv("PATH");
        qputenv("PATH", (dossier / "vide").string().c_str());
        qunsetenv("VISUAL");
        qunsetenv("EDITOR");
        storage::Base& b = *S().base;
        b.R_NAISS.EcrireCellule(NoOrdre{6}, "1810");
        b.R_SEXE.EcrireCellule(NoOrdre{7}, Sexe::Vide);
        b.R_NAISS.EcrireCellule(NoOrdre{8}, "");
    }
    ~Controle() { qputenv("PATH", chemins); }
    Controle(const Controle&) = delete;
    Controle& operator=(const Controle&) = delete;

    void Lancer() {
        Montrer();
        fenetre->Controler();
    }
    /// Numbers and findings as the list shows them.
    QString Anomalies() {
        QStringList lignes;
        for (int i = 0; i < Rangees("GrdAno"); ++i)
            lignes << Case("GrdAno", i, 0) + u' ' + Case("GrdAno", i, 1).left(12);
        return lignes.join(u'|');
    }
    QString Sortes() {
        QStringList lignes;
        for (int i = 0; i < Rangees("LstSortes"); ++i)
            lignes << Case("LstSortes", i, 1);
        return lignes.join(u' ');
    }
    void ChoisirSorte(int rangee) {
        QTableView& sortes = C<QTableView>("LstSortes");
        sortes.setCurrentIndex(sortes.model()->index(rangee, 0));
    }
    void ChoisirLigne(int rangee) {
        QTableView& grille = C<QTableView>("GrdAno");
        grille.setCurrentIndex(grille.model()->index(rangee, 1));
    }
    QString Fiche() {
        QStringList lignes;
        for (const LigneFiche& ligne : C<TableFiche>("GrdFiche").Lignes())
            lignes << ligne.textes.join(u'=');
        return lignes.join(u'|');
    }
    QMenu& Menu() {
        Q_EMIT C<QTableView>("GrdAno").customContextMenuRequested(QPoint{5, 5});
        auto* menu = fenetre->findChild<QMenu*>(QStringLiteral("MnuAnomalie"));
        REQUIRE(menu != nullptr);
        return *menu;
    }
    /// `nombre` persons more, each without a year of birth and tied to nobody.
    void Peupler(int nombre) {
        storage::Base& b = *S().base;
        std::vector<std::uint16_t> rangs = b.R_TRI.individus.Numeros();
        for (int i = 0; i < nombre; ++i) {
            const NoOrdre n = b.NouvelIndividu();
            b.R_SEXE.EcrireCellule(n, Sexe::Homme);
            b.R_NOM.EcrireNom(n, "ZOLA;Jean" + std::to_string(10000 + i) + ";;;");
            rangs.push_back(static_cast<std::uint16_t>(n.valeur));
        }
        b.R_TRI.individus.Remplacer(rangs);
        b.entete.NbTriIndividus = b.R_TRI.individus.Taille();
    }
    /// Takes a person out of the sort table, whose order the years above do not keep.
    void Retirer(std::uint16_t n) {
        storage::Base& b = *S().base;
        std::vector<std::uint16_t> rangs = b.R_TRI.individus.Numeros();
        std::erase(rangs, n);
        b.R_NOM.EcrireTexte(NoOrdre{n}, {});
        b.R_TRI.individus.Remplacer(rangs);
        b.entete.NbTriIndividus = b.R_TRI.individus.Taille();
    }
    QByteArray chemins;
};

/// A program of the path that notes what it is called with.
void FaireProgramme(const std::filesystem::path& chemin, const std::filesystem::path& notes,
                    int statut = 0) {
    std::filesystem::create_directories(chemin.parent_path());
    doublures::EcrireFichier(chemin, "#!/bin/sh\necho \"$@\" >> '" + notes.string() + "'\nexit " +
                                         std::to_string(statut) + "\n");
    std::filesystem::permissions(chemin, std::filesystem::perms::owner_all);
}

}  // namespace

TEST_CASE_FIXTURE(Controle, "FrmControle: findings in sort order, with their kinds and counts") {
    Lancer();
    CHECK(Anomalies() == QStringLiteral("8 L'année de n|6 Le père n'es|6 La mère n'es|"
                                        "6 L'union des |7 Le sexe n'es"));
    CHECK(Case("GrdAno", 1, 2) == "Luc Martin (o1810)");
    CHECK(Case("GrdAno", 1, 3) == "1");
    CHECK(C<QTableView>("GrdAno").isColumnHidden(3));
    CHECK(Sortes() == "5 1 1 1 1 1");
    CHECK(Case("LstSortes", 0, 0) == "Toutes les anomalies");
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Anomalies\u00A0: 5"));
    CHECK(C<QLabel>("LblEtat").text() == QStringLiteral("Contrôle terminé"));
    CHECK(C<QPushButton>("CmdQuitter").text() == "F&ermer");
    CHECK_FALSE(C<QProgressBar>("Avancement").isVisible());
}

TEST_CASE_FIXTURE(Controle, "FrmControle: a kind, and words, narrow the list; both are told") {
    Lancer();
    ChoisirSorte(2);
    CHECK(Anomalies() == "8 L'année de n");
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Anomalies\u00A0: 1"));
    ChoisirSorte(0);
    Champ("TxtFiltre").setText(QStringLiteral("luc mere"));
    CHECK(Anomalies() == "6 La mère n'es");
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Anomalies\u00A0: 1 sur 5"));
    Champ("TxtFiltre").setText(QStringLiteral("luc zola"));
    CHECK(C<QLabel>("LblVide").isVisible());
    CHECK(C<QLabel>("LblVide").text().contains(QStringLiteral("luc zola")));
    CHECK_FALSE(C<QPushButton>("CmdFiche").isEnabled());
    CHECK_FALSE(C<QPushButton>("CmdTexte").isEnabled());
}

TEST_CASE_FIXTURE(Controle, "FrmControle: numbers sort as numbers; the scan order comes back") {
    for (int i = 0; i < 4; ++i)
        doublures::FamilleEssai{*S().base}.Creer(Sexe::Indetermine, "Zola", "Jean");
    Lancer();
    QHeaderView& entete = *C<QTableView>("GrdAno").horizontalHeader();
    const QString ordre = Anomalies();
    entete.setSortIndicator(0, Qt::DescendingOrder);
    CHECK(Anomalies().startsWith(QStringLiteral("12 ")));
    entete.setSortIndicator(0, Qt::AscendingOrder);
    CHECK(Anomalies().startsWith(QStringLiteral("6 Le père n'es|6 La mère n'es|6 L'union")));
    entete.setSortIndicator(-1, Qt::AscendingOrder);
    CHECK(Anomalies() == ordre);
}

TEST_CASE_FIXTURE(Controle, "FrmControle: the sheet of the row is shown, and leads to relatives") {
    Lancer();
    ChoisirLigne(1);
    CHECK(C<QLabel>("LblFiche").text() == "Luc Martin (o1810)");
    CHECK(Fiche() == QStringLiteral("Personne=n° 6, Sexe masculin|Naissance=1810|"
                                    "Père=Paul Martin (1820-1890)|Mère=Anne Évrard (1825-1858)"));
    QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    auto& grille = C<TableFiche>("GrdFiche");
    grille.setCurrentIndex(grille.model()->index(2, 0));
    grille.setFocus();
    Touche(Qt::Key_Return);
    REQUIRE(fiche.count() == 1);
    CHECK(fiche[0][0].toUInt() == 3);
}

TEST_CASE_FIXTURE(Controle, "FrmControle: Enter and a double click open the sheet of the row") {
    Lancer();
    QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    QSignalSpy aller{fenetre.get(), &FenetreFille::allerDemande};
    CHECK(Foyer() == "GrdAno");
    ChoisirLigne(1);
    Touche(Qt::Key_Return);
    QTableView& grille = C<QTableView>("GrdAno");
    const QPoint point = grille.visualRect(grille.model()->index(4, 1)).center();
    QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, point);
    Cliquer("CmdAller");
    REQUIRE(fiche.count() == 2);
    CHECK(fiche[0][0].toUInt() == 6);
    CHECK(fiche[1][0].toUInt() == 7);
    REQUIRE(aller.count() == 1);
    CHECK(aller[0][0].toUInt() == 7);
}

TEST_CASE_FIXTURE(Controle, "FrmControle: the menu of a row narrows to its kind or its person") {
    Lancer();
    ChoisirLigne(2);
    Menu().findChild<QAction*>(QStringLiteral("CetteSorte"))->trigger();
    CHECK(Anomalies() == "6 La mère n'es");
    Menu().findChild<QAction*>(QStringLiteral("CettePersonne"))->trigger();
    CHECK(Anomalies() == "6 Le père n'es|6 La mère n'es|6 L'union des ");
    Menu().findChild<QAction*>(QStringLiteral("CopierLigne"))->trigger();
    CHECK(QGuiApplication::clipboard()->text() ==
          QStringLiteral("6\tLa mère n'est pas née avant son enfant\tLuc Martin (o1810)"));
}

TEST_CASE_FIXTURE(Controle, "FrmControle: a person who has gone meanwhile is told, not opened") {
    Lancer();
    ChoisirLigne(0);
    CHECK(C<QPushButton>("CmdFiche").isEnabled());
    Retirer(8);
    fenetre->Recharger();
    CHECK(Anomalies().startsWith("8 "));
    CHECK(Fiche().toStdString() == "");
    CHECK_FALSE(C<QPushButton>("CmdFiche").isEnabled());
    QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    Touche(Qt::Key_Return);
    CHECK(fiche.count() == 0);
}

TEST_CASE_FIXTURE(Controle, "FrmControle: checked again, what was mended is gone") {
    Lancer();
    S().base->R_NAISS.EcrireCellule(NoOrdre{6}, "1851");
    Cliquer("CmdRelancer");
    CHECK(Anomalies() == QStringLiteral("8 L'année de n|7 Le sexe n'es"));
    CHECK(Sortes() == "2 1 1");
}

TEST_CASE_FIXTURE(Controle, "FrmControle: a base without findings is told so at once") {
    S().base->R_NAISS.EcrireCellule(NoOrdre{6}, "1851");
    S().base->R_NAISS.EcrireCellule(NoOrdre{8}, "1861");
    S().base->R_SEXE.EcrireCellule(NoOrdre{7}, Sexe::Femme);
    auto texte = Repondre(QMessageBox::Ok);
    Lancer();
    CHECK(*texte == QStringLiteral("Aucune anomalie n'a été trouvée"));
    CHECK(C<QLabel>("LblVide").isVisible());
    CHECK(C<QLabel>("LblVide").text() == *texte);
    CHECK_FALSE(C<QPushButton>("CmdTexte").isEnabled());
}

TEST_CASE_FIXTURE(Controle,
                  "FrmControle: CmdTexte writes the rows that are shown, in their order") {
    Lancer();
    ChoisirSorte(0);
    Champ("TxtFiltre").setText(QStringLiteral("luc"));
    C<QTableView>("GrdAno").horizontalHeader()->setSortIndicator(1, Qt::AscendingOrder);
    const std::filesystem::path fichier = S().Travail() / "Controle-Martin.txt";
    const std::string lignes =
        "6\tLa mère n'est pas née avant son enfant\tLuc Martin (o1810)\n"
        "6\tLe père n'est pas né avant son enfant\tLuc Martin (o1810)\n"
        "6\tL'union des parents a commencé après la naissance\t"
        "Luc Martin (o1810)\n";
    const auto trier = [](std::string texte) {
        std::vector<std::string> morceaux;
        while (!texte.empty()) {
            const std::size_t fin = texte.find('\n') + 1;
            morceaux.push_back(texte.substr(0, fin));
            texte.erase(0, fin);
        }
        std::sort(morceaux.begin(), morceaux.end());
        return morceaux;
    };
    SUBCASE("without an opener on the desktop a window of ours shows them") {
        Cliquer("CmdTexte");
        auto* rapport = Fenetre().findChild<FrmRapport*>();
        REQUIRE(rapport != nullptr);
        CHECK(rapport->windowTitle() == "Contrôle de la base");
        rapport->close();
    }
    SUBCASE("the desktop opens the file") {
        FaireProgramme(dossier / "vide/xdg-open", dossier / "notes");
        Cliquer("CmdTexte");
        CHECK(QTest::qWaitFor([this] {
            return shell::LireTout(dossier / "notes").value_or("") ==
                   (S().Travail() / "Controle-Martin.txt\n").string();
        }));
        CHECK(Fenetre().findChild<FrmRapport*>() == nullptr);
    }
    SUBCASE("an opener that fails leaves it to the window of ours") {
        FaireProgramme(dossier / "vide/xdg-open", dossier / "notes", 3);
        Cliquer("CmdTexte");
        CHECK(QTest::qWaitFor([this] { return Fenetre().findChild<FrmRapport*>() != nullptr; }));
    }
    SUBCASE("an editor of the desktop comes first, one in a terminal does not count") {
        FaireProgramme(dossier / "vide/plume", dossier / "notes");
        FaireProgramme(dossier / "vide/crayon", dossier / "autres");
        const std::filesystem::path entrees = dossier / "donnees/applications";
        std::filesystem::create_directories(entrees);
        doublures::EcrireFichier(entrees / "plume.desktop",
                                 "[Desktop Entry]\nExec=plume %F\nTerminal=false\n");
        doublures::EcrireFichier(entrees / "crayon.desktop",
                                 "[Desktop Entry]\nExec=crayon %F\nTerminal=true\n");
        const QByteArray avant = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", (dossier / "donnees").string().c_str());
        qputenv("VISUAL", "crayon");
        qputenv("EDITOR", "plume --seul");
        Cliquer("CmdTexte");
        CHECK(QTest::qWaitFor([this] {
            return shell::LireTout(dossier / "notes").value_or("") ==
                   "--seul " + (S().Travail() / "Controle-Martin.txt\n").string();
        }));
        CHECK_FALSE(std::filesystem::exists(dossier / "autres"));
        if (avant.isNull())
            qunsetenv("XDG_DATA_HOME");
        else
            qputenv("XDG_DATA_HOME", avant);
        qunsetenv("VISUAL");
        qunsetenv("EDITOR");
    }
    const std::string ecrit = shell::LireTout(fichier).value_or("absent");
    CHECK(trier(ecrit) == trier(lignes));
    CHECK(ecrit.starts_with("6\t" + Case("GrdAno", 0, 1).toStdString()));
}

TEST_CASE_FIXTURE(Controle, "FrmControle: a file that cannot be written is told with its name") {
    Lancer();
    std::filesystem::create_directories(S().Travail() / "Controle-Martin.txt/plein");
    auto texte = Repondre(QMessageBox::Ok);
    Cliquer("CmdTexte");
    CHECK(texte->contains(QStringLiteral("Controle-Martin.txt")));
    CHECK(Fenetre().findChild<FrmRapport*>() == nullptr);
}

TEST_CASE_FIXTURE(Controle, "FrmControle: CmdQuitter stops the scan and keeps the findings") {
    Peupler(40000);
    Montrer();
    bool vu = false;
    SUBCASE("by its button") {
        QTimer::singleShot(0, [&] {
            vu = true;
            CHECK(C<QPushButton>("CmdQuitter").text() == "&Interrompre");
            CHECK(C<QProgressBar>("Avancement").isVisible());
            CHECK_FALSE(C<QPushButton>("CmdRelancer").isEnabled());
            Cliquer("CmdQuitter");
        });
        fenetre->Controler();
    }
    SUBCASE("by Escape") {
        QTimer::singleShot(0, [&] {
            vu = true;
            QTest::keyClick(fenetre.get(), Qt::Key_Escape);
        });
        fenetre->Controler();
    }
    SUBCASE("by the close button of the window") {
        QTimer::singleShot(0, [&] {
            vu = true;
            fenetre->close();
        });
        fenetre->Controler();
    }
    CHECK(vu);
    REQUIRE(fenetre->isVisible());
    CHECK(Rangees("GrdAno") > 0);
    CHECK(Rangees("GrdAno") < 80000);
    CHECK(C<QLabel>("LblEtat").text().startsWith(QStringLiteral("Contrôle interrompu")));
    CHECK_FALSE(S().progression.EnCours());
    Cliquer("CmdQuitter");
    CHECK_FALSE(fenetre->isVisible());
}

TEST_CASE_FIXTURE(Controle,
                  "FrmControle: while it scans, filter and lists work, sheets must wait") {
    Peupler(40000);
    Montrer();
    QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    QTimer::singleShot(0, [&] {
        Champ("TxtFiltre").setText(QStringLiteral("sexe"));
        // A second scan does not begin inside the first.
        fenetre->Controler();
        if (Rangees("GrdAno") == 0) return;
        Repondre(QMessageBox::Ok);
        Touche(Qt::Key_Return);
    });
    fenetre->Controler();
    CHECK(fiche.count() == 0);
    CHECK(Anomalies() == QStringLiteral("7 Le sexe n'es"));
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Anomalies\u00A0: 1 sur 80005"));
}

TEST_CASE_FIXTURE(Controle, "FrmControle: closed and shown again it is empty") {
    Lancer();
    ChoisirSorte(1);
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
    fenetre->show();
    CHECK(Rangees("GrdAno") == 0);
    CHECK(Sortes() == "0");
}

TEST_CASE_FIXTURE(Controle, "FrmControle: findings follow the language") {
    Lancer();
    REQUIRE(shell::ChoisirLangue(S(), "English"));
    fenetre->Traduire();
    CHECK(fenetre->windowTitle() == "Database check");
    CHECK(Case("GrdAno", 0, 1) == "The year of birth is missing");
    CHECK(Case("LstSortes", 0, 0) == "All findings");
    CHECK(C<QPushButton>("CmdQuitter").text() == "&Close");
}

TEST_CASE_FIXTURE(Controle, "FrmControle: 110000 findings show, sort and filter without a wait") {
    Peupler(55000);
    Montrer();
    TempsProcesseur temps;
    fenetre->Controler();
    const long trouve = temps.Relever();
    C<QTableView>("GrdAno").horizontalHeader()->setSortIndicator(2, Qt::DescendingOrder);
    const long trie = temps.Relever();
    Champ("TxtFiltre").setText(QStringLiteral("jean15432 isolee"));
    const long filtre = temps.Relever();
    ChoisirSorte(1);
    MESSAGE("found in " << trouve << " ms, sorted in " << trie << " ms, filtered in " << filtre
                        << " ms");
    CHECK(trouve < 6000);
    CHECK(trie < 3000);
    CHECK(filtre < 3000);
}

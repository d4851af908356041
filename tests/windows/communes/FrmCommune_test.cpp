#include "windows/communes/FrmCommune.h"

#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QToolButton>

#include "shell/Communes.h"
#include "shell/FichierSur.h"
#include "storage/BaseCommunes.h"
#include "windows/Conduite.h"
#include "windows/TempsProcesseur.h"
#include "windows/controles/SuiviLieu.h"

#include <vector>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

using storage::Commune;

Commune Lieu(const char* nom, const char* rattachement = "", const char* precision = "") {
    Commune c;
    c.nom = Utf8VersTexte(nom).octets;
    c.rattachement = Utf8VersTexte(rattachement).octets;
    c.precision = Utf8VersTexte(precision).octets;
    return c;
}

void Ecrire(const std::filesystem::path& fichier, const std::vector<Commune>& communes) {
    storage::ProgressionMuette muet;
    std::string octets;
    REQUIRE(storage::ComposerLgx(communes, muet, octets));
    REQUIRE(shell::EcrireTout(fichier, octets));
}

/// The program on the family of the Martins, and the window of the communes from its menu.
struct Bureau : FenetreEssai {
    Bureau() {
        Ecrire(fichier, {Lieu("Mer", "", "Loir-et-Cher"), Lieu("Blois"), Lieu("Mer", "", "Eure"),
                         Lieu("Aulnay", "Mer"), Lieu("Mère"), Lieu("Séris", "Ailleurs")});
    }
    /// Starts without a base of persons.
    void Partir() {
        Demarrer({});
        S().parametres.generaux.fichierCommunes = fichier;
    }
    void PartirFamille() {
        DemarrerFamille();
        S().parametres.generaux.fichierCommunes = fichier;
    }
    void Ouvrir() {
        Action("MnuCommunes").trigger();
        fenetre = Fenetre().findChild<FrmCommune*>();
        REQUIRE(fenetre != nullptr);
        REQUIRE(fenetre->isVisible());
        Conduite::Devant(*fenetre);
    }
    template <class Controle>
    Controle& C(const char* nom) {
        return Controler<Controle>(*fenetre, nom);
    }
    QLineEdit& Champ(const char* nom) { return C<QLineEdit>(nom); }
    void Saisir(const char* nom, const char* texte) {
        Remplir(*fenetre, nom, texte);
        CHECK(Champ(nom).text() == QString::fromUtf8(texte));
    }
    void Clic(const char* nom) const { Cliquer(*fenetre, nom); }
    QStringList Rangees() {
        QStringList rangees;
        const QAbstractItemModel& modele = *C<QTableView>("LstCommunes").model();
        for (int i = 0; i < modele.rowCount(); ++i) {
            QStringList textes;
            for (int j = 0; j < 3; ++j)
                if (const QString texte = modele.index(i, j).data().toString(); !texte.isEmpty())
                    textes << texte;
            rangees << textes.join(u'/');
        }
        return rangees;
    }
    /// What the file holds, by its numbers.
    std::vector<Commune> Fichier() {
        const auto r = storage::BaseCommunes::OuvrirCommunes(S().disque, fichier);
        REQUIRE(r.base != nullptr);
        std::vector<Commune> communes;
        for (std::uint32_t n = 1; n <= r.base->Nombre(); ++n)
            communes.push_back(r.base->LireCommune(storage::NoCommune{n}));
        return communes;
    }
    void Choisir(const char* texte) { CliquerRangee(C<QTableView>("LstCommunes"), texte); }

    std::filesystem::path fichier = dossier / "Pays.lgx";
    QPointer<FrmCommune> fenetre;
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a missing file is told, and the window closes") {
    Partir();
    std::filesystem::remove(fichier);
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Action("MnuCommunes").trigger();
    CHECK(*dit == "Le fichier des communes est introuvable.");
    auto* ouverte = Fenetre().findChild<FrmCommune*>();
    CHECK((ouverte == nullptr || !ouverte->isVisible()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Ecrire(fichier, {Lieu("Mer")});
    Ouvrir();
    CHECK(Rangees() == QStringList{"Mer"});
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a file of another kind is told by its name") {
    Partir();
    doublures::EcrireFichier(fichier, "a shopping list");
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Action("MnuCommunes").trigger();
    CHECK(dit->contains("Pays.lgx"));
}

TEST_CASE_FIXTURE(Bureau,
                  "FrmCommune: typing narrows the list to names that begin so, homonyms "
                  "among them, and no base of persons is needed") {
    Partir();
    Ouvrir();
    CHECK(Rangees() == QStringList{"Aulnay/Mer", "Blois", "Mer/Loir-et-Cher", "Mer/Eure",
                                   QStringLiteral("Mère"), QStringLiteral("Séris/Ailleurs")});
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Communes\u00A0: 6"));
    Saisir("TxtCherche", "MER");
    CHECK(Rangees() == QStringList{"Mer/Loir-et-Cher", "Mer/Eure", QStringLiteral("Mère")});
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Communes\u00A0: 3 sur 6"));
    CHECK(Champ("TxtPrecision").text() == "Loir-et-Cher");
    QTest::keyClick(&Champ("TxtCherche"), Qt::Key_Down);
    CHECK(Champ("TxtPrecision").text() == "Eure");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: by ear, names that sound alike are found") {
    Partir();
    Ecrire(fichier, {Lieu("Cerisay"), Lieu("Serizé"), Lieu("Blois")});
    Ouvrir();
    C<QAbstractButton>("ChkSon").click();
    Saisir("TxtCherche", "serizay");
    CHECK(Rangees() == QStringList{"Cerisay", QStringLiteral("Serizé")});
    Saisir("TxtCherche", "xyz");
    CHECK(C<QStackedWidget>("Pages").currentIndex() == 1);
    CHECK(C<QLabel>("LblVide").text().contains("xyz"));
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: an empty base says how it is filled") {
    Partir();
    Ecrire(fichier, {});
    Ouvrir();
    CHECK(C<QLabel>("LblVide").isVisible());
    CHECK(C<QLabel>("LblVide").text().contains("CSV"));
    CHECK_FALSE(C<QPushButton>("CmdReorganiser").isEnabled());
    CHECK_FALSE(C<QPushButton>("CmdUtiliser").isEnabled());
}

TEST_CASE_FIXTURE(Bureau,
                  "FrmCommune: the parent commune is reached by its button, if it is there") {
    Partir();
    Ouvrir();
    Saisir("TxtCherche", "aul");
    CHECK(Champ("TxtRattachement").text() == "Mer");
    Clic("CmdRattachement");
    CHECK(Champ("TxtNom").text() == "Mer");
    CHECK(Champ("TxtCherche").text() == "Mer");
    Saisir("TxtCherche", "seris");
    CHECK_FALSE(C<QToolButton>("CmdRattachement").isEnabled());
    CHECK(C<QLabel>("LblAvisRattachement").isVisible());
    Saisir("TxtCherche", "blois");
    CHECK_FALSE(C<QToolButton>("CmdRattachement").isEnabled());
    CHECK_FALSE(C<QLabel>("LblAvisRattachement").isVisible());
}

TEST_CASE_FIXTURE(Bureau,
                  "FrmCommune: the parent commune is completed from the base, each name once") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    Saisir("TxtRattachement", "me");
    const QCompleter& mots = *Champ("TxtRattachement").completer();
    REQUIRE(mots.popup()->isVisible());
    CHECK(mots.completionModel()->rowCount() == 2);
    QTest::keyClick(mots.popup(), Qt::Key_Down);
    QTest::keyClick(mots.popup(), Qt::Key_Return);
    CHECK(Champ("TxtRattachement").text() == "Mer");
    CHECK(C<QToolButton>("CmdRattachement").isEnabled());
    Saisir("TxtRattachement", "zz");
    CHECK_FALSE(mots.popup()->isVisible());
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: Ctrl+S writes a changed commune, and the row follows") {
    Partir();
    Ouvrir();
    Saisir("TxtCherche", "blois");
    CHECK_FALSE(C<QPushButton>("MnuMaj").isEnabled());
    Saisir("TxtPrecision", "Loir-et-Cher");
    Saisir("TxtCode", "41000");
    Saisir("TxtAutreCode", "4118");
    C<QPlainTextEdit>("TxtCommentaire").setPlainText(QStringLiteral("Château\nsur Loire"));
    CHECK_FALSE(Champ("TxtPrecision").accessibleDescription().isEmpty());
    QTest::keyClick(&Champ("TxtCode"), Qt::Key_S, Qt::ControlModifier);
    CHECK_FALSE(C<QPushButton>("MnuMaj").isEnabled());
    CHECK(Champ("TxtPrecision").accessibleDescription().isEmpty());
    CHECK(Rangees() == QStringList{"Blois/Loir-et-Cher"});
    const Commune ecrite = Fichier().at(1);
    CHECK(ecrite.nom == "Blois");
    CHECK(ecrite.code == "41000");
    CHECK(ecrite.autreCode == "4118");
    CHECK(ecrite.commentaire == "Château\nsur Loire"_1252);
    // What completes the places sees it too.
    REQUIRE(S().communes->Base() != nullptr);
    CHECK(S().communes->Base()->LireCommune(storage::NoCommune{2}).code == "41000");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a name that is looked for in vain becomes a new commune") {
    Partir();
    Ouvrir();
    Saisir("TxtCherche", "Talcy");
    Clic("CmdNouvelle");
    CHECK(Champ("TxtNom").text() == "Talcy");
    CHECK(C<QLabel>("LblFiche").text() == "Nouvelle commune");
    CHECK(QApplication::focusWidget() == &Champ("TxtNom"));
    QTest::keyClick(&Champ("TxtNom"), Qt::Key_Return);
    CHECK(Rangees() == QStringList{"Talcy"});
    CHECK(Fichier().size() == 7);
    CHECK(Fichier().at(6).nom == "Talcy");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a commune needs a name, and what was typed stays") {
    Partir();
    Ouvrir();
    Clic("CmdNouvelle");
    Saisir("TxtPrecision", "Loiret");
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Clic("MnuMaj");
    CHECK(*dit == QStringLiteral("Donnez un nom à la commune."));
    CHECK(Champ("TxtPrecision").text() == "Loiret");
    CHECK(Fichier().size() == 6);
}

TEST_CASE_FIXTURE(
    Bureau, "FrmCommune: codes are typed in digits, 5 and 4 of them; what a list brought stays") {
    Partir();
    Ouvrir();
    Saisir("TxtCherche", "blois");
    Saisir("TxtCode", "41000");
    Remplir(*fenetre, "TxtCode", "4100099");
    CHECK(Champ("TxtCode").text() == "41000");
    Remplir(*fenetre, "TxtCode", "2A004");
    CHECK(Champ("TxtCode").text() == "2004");
    Remplir(*fenetre, "TxtAutreCode", "41185");
    CHECK(Champ("TxtAutreCode").text() == "4118");
    CHECK(C<QLabel>("LblAvisCode").text().isEmpty());
    Clic("MnuMaj");
    CHECK(Fichier().at(1).code == "2004");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a code with letters that a list brought is told and kept") {
    Commune corse = Lieu("Ajaccio");
    corse.code = "2A004";
    Ecrire(fichier, {Lieu("Mer"), corse});
    Partir();
    Ouvrir();
    Saisir("TxtCherche", "ajaccio");
    CHECK(Champ("TxtCode").text() == "2A004");
    CHECK_FALSE(C<QLabel>("LblAvisCode").text().isEmpty());
    Saisir("TxtPrecision", "Loir");
    Clic("MnuMaj");
    CHECK(Fichier().at(1).code == "2A004");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: another row asks what becomes of an unsaved commune") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    Saisir("TxtPrecision", "Centre");
    SUBCASE("it stays") {
        const auto dit = RepondreBoite(QMessageBox::Cancel);
        Choisir("Séris");
        REQUIRE(QTest::qWaitFor([&] { return !dit->isEmpty(); }));
        CHECK(Champ("TxtNom").text() == "Blois");
        CHECK(Champ("TxtPrecision").text() == "Centre");
        CHECK(C<QTableView>("LstCommunes").currentIndex().siblingAtColumn(0).data() == "Blois");
        CHECK(Fichier().at(1).precision.empty());
    }
    SUBCASE("it is saved") {
        const auto dit = RepondreBoite(QMessageBox::Yes);
        Choisir("Séris");
        REQUIRE(QTest::qWaitFor([&] { return !dit->isEmpty(); }));
        CHECK(Champ("TxtNom").text() == QStringLiteral("Séris"));
        CHECK(Fichier().at(1).precision == "Centre");
    }
    SUBCASE("it is given up") {
        const auto dit = RepondreBoite(QMessageBox::No);
        Choisir("Séris");
        REQUIRE(QTest::qWaitFor([&] { return !dit->isEmpty(); }));
        CHECK(Champ("TxtNom").text() == QStringLiteral("Séris"));
        CHECK(Fichier().at(1).precision.empty());
    }
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: searching leaves an unsaved commune alone") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    Saisir("TxtPrecision", "Centre");
    Saisir("TxtCherche", "mer");
    CHECK(Rangees().size() == 3);
    CHECK(Champ("TxtNom").text() == "Blois");
    CHECK(Champ("TxtPrecision").text() == "Centre");
    Clic("MnuMaj");
    CHECK(Fichier().at(1).precision == "Centre");
    CHECK(Champ("TxtCherche").text() == "Blois");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: closing never loses a commune without a question") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    Saisir("TxtPrecision", "Centre");
    auto dit = RepondreBoite(QMessageBox::Cancel);
    QTest::keyClick(fenetre, Qt::Key_Escape);
    CHECK_FALSE(dit->isEmpty());
    REQUIRE(fenetre != nullptr);
    CHECK(fenetre->isVisible());
    dit = RepondreBoite(QMessageBox::Yes);
    QTest::keyClick(fenetre, Qt::Key_Escape);
    CHECK_FALSE(dit->isEmpty());
    CHECK(QTest::qWaitFor([&] { return fenetre.isNull(); }));
    CHECK(Fichier().at(1).precision == "Centre");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: deleting names the commune, and is not the default") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    SUBCASE("no") {
        const auto dit = RepondreBoite(QMessageBox::No);
        Clic("CmdSupprimer");
        CHECK(dit->contains("Blois"));
        CHECK(Rangees().size() == 6);
    }
    SUBCASE("Enter takes the default") {
        SurModal([](QWidget& boite) { QTest::keyClick(&boite, Qt::Key_Return); });
        Clic("CmdSupprimer");
        CHECK(Rangees().size() == 6);
    }
    SUBCASE("yes, by Del on the row") {
        const auto dit = RepondreBoite(QMessageBox::Yes);
        QTest::keyClick(&C<QTableView>("LstCommunes"), Qt::Key_Delete);
        CHECK(Rangees().size() == 5);
        CHECK(Fichier().at(1).nom.empty());
        CHECK(Champ("TxtNom").text() == "Mer");
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "FrmCommune: a file that another program has written is not overwritten, "
                  "and what was typed stays") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    Saisir("TxtPrecision", "Centre");
    SUBCASE("the commune is still the same") {
        std::vector<Commune> communes = Fichier();
        communes.push_back(Lieu("Talcy"));
        Ecrire(fichier, communes);
        const auto dit = RepondreBoite(QMessageBox::Ok);
        Clic("MnuMaj");
        CHECK(dit->contains("Pays.lgx"));
        CHECK(Fichier().at(1).precision.empty());
        CHECK(Champ("TxtPrecision").text() == "Centre");
        CHECK(Rangees().size() == 7);
        Clic("MnuMaj");
        CHECK(Fichier().at(1).precision == "Centre");
        CHECK(Fichier().at(6).nom == "Talcy");
    }
    SUBCASE("its number is now another commune") {
        Ecrire(fichier, {Lieu("Orval"), Lieu("Talcy")});
        const auto dit = RepondreBoite(QMessageBox::Ok);
        Clic("MnuMaj");
        CHECK_FALSE(dit->isEmpty());
        CHECK(C<QLabel>("LblFiche").text() == "Nouvelle commune");
        Clic("MnuMaj");
        CHECK(Fichier().at(1).nom == "Talcy");
        CHECK(Fichier().at(2).nom == "Blois");
        CHECK(Fichier().at(2).precision == "Centre");
    }
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a list of communes is added, and the count follows") {
    Partir();
    Ouvrir();
    doublures::EcrireFichier(dossier / "liste.csv", "nom;code\nTalcy;41190\n;7\nBlois;\n");
    Enchainement etapes;
    etapes
        .Fenetre("QFileDialog",
                 [&](QWidget& choix) {
                     auto& nom = Controler<QLineEdit>(choix, "fileNameEdit");
                     nom.setText(QString::fromStdString((dossier / "liste.csv").string()));
                     QTest::keyClick(&nom, Qt::Key_Return);
                 })
        .Boite(QMessageBox::Ok, QStringLiteral("Communes ajoutées\u00A0: 1."));
    QAction* ajouter = fenetre->findChild<QAction*>(QStringLiteral("MnuAjouterListe"));
    REQUIRE(ajouter != nullptr);
    ajouter->trigger();
    CHECK(etapes.Fini());
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Communes\u00A0: 7"));
    CHECK(Fichier().at(6).code == "41190");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: reorganising tells the size before and after") {
    Partir();
    Ouvrir();
    Choisir("Blois");
    Saisir("TxtPrecision", "Centre");
    Clic("MnuMaj");
    const auto avant = std::filesystem::file_size(fichier);
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Clic("CmdReorganiser");
    CHECK(dit->contains("Ko"));
    CHECK(std::filesystem::file_size(fichier) < avant);
    CHECK(fenetre->isEnabled());
    CHECK(Champ("TxtNom").text() == "Blois");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: without a sheet the place goes to the clipboard") {
    Partir();
    Ouvrir();
    CHECK(C<QPushButton>("CmdUtiliser").text().contains("Cop"));
    Saisir("TxtCherche", "mer");
    QTest::keyClick(&Champ("TxtCherche"), Qt::Key_Return);
    CHECK(QGuiApplication::clipboard()->text() == "Mer, Loir-et-Cher");
    CHECK(C<QLabel>("LblEtat").text().contains("Mer, Loir-et-Cher"));
    CHECK(fenetre->isVisible());
}

TEST_CASE_FIXTURE(Bureau,
                  "FrmCommune: a place goes into the field of the sheet where the user was") {
    PartirFamille();
    QTest::keyClick(&Fenetre(), Qt::Key_F2);
    auto* fiche = Fenetre().findChild<FrmMisajour*>();
    REQUIRE(fiche != nullptr);
    Conduite::Devant(*fiche);
    auto& deces = Controler<QLineEdit>(*fiche, "TxtLieuDécès");
    deces.setFocus();
    Controler<QLineEdit>(*fiche, "T_Nom").setFocus();
    Ouvrir();
    CHECK(C<QPushButton>("CmdUtiliser").text().contains("Utiliser"));
    Saisir("TxtCherche", "aul");
    auto& liste = C<QTableView>("LstCommunes");
    const QPoint place = liste.visualRect(liste.model()->index(0, 0)).center();
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, place);
    CHECK(deces.text() == "Aulnay, Mer");
    CHECK(Controler<QWidget>(*fiche, "C_Maj").isEnabled());
    // The user may take it back as anything that is typed.
    CHECK(deces.isUndoAvailable());
    CHECK((deces.completer() == nullptr || !deces.completer()->popup()->isVisible()));
    // A field that cannot be seen is not filled.
    fiche->hide();
    Ouvrir();
    CHECK(C<QPushButton>("CmdUtiliser").text().contains("Cop"));
    Clic("CmdUtiliser");
    CHECK(QGuiApplication::clipboard()->text() == "Aulnay, Mer");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: places of the sheet are completed from the communes") {
    PartirFamille();
    QTest::keyClick(&Fenetre(), Qt::Key_F2);
    auto* fiche = Fenetre().findChild<FrmMisajour*>();
    REQUIRE(fiche != nullptr);
    Conduite::Devant(*fiche);
    auto& lieu = Controler<QLineEdit>(*fiche, "TxtLieuNaiss");
    lieu.setFocus();
    lieu.selectAll();
    Taper(lieu, QStringLiteral("mer, e"));
    REQUIRE(lieu.completer()->popup()->isVisible());
    QTest::keyClick(lieu.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(lieu.completer()->popup(), Qt::Key_Return);
    CHECK(lieu.text() == "Mer, Eure");
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: other settings show the other file") {
    Partir();
    Ouvrir();
    Ecrire(dossier / "Autre.lgx", {Lieu("Talcy")});
    S().parametres.generaux.fichierCommunes = dossier / "Autre.lgx";
    fenetre->Recharger();
    CHECK(Rangees() == QStringList{"Talcy"});
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: the border between list and sheet comes back") {
    Partir();
    Ouvrir();
    C<QSplitter>("Volets").setSizes({500, 400});
    const int large = C<QSplitter>("Volets").sizes().first();
    fenetre->resize(fenetre->width() + 40, fenetre->height());
    C<QSplitter>("Volets").setSizes({large, 500});
    const QList<int> avant = C<QSplitter>("Volets").sizes();
    fenetre->close();
    REQUIRE(QTest::qWaitFor([this] { return fenetre.isNull(); }));
    Ouvrir();
    CHECK(C<QSplitter>("Volets").sizes() == avant);
}

TEST_CASE_FIXTURE(Bureau, "FrmCommune: a whole country of communes opens and is searched at once") {
    std::vector<Commune> pays(40000);
    for (std::size_t i = 0; i < pays.size(); ++i)
        pays[i].nom = "Saint-" + std::to_string(i % 36000) + "-sur-Loire";
    Ecrire(fichier, pays);
    Partir();
    TempsProcesseur temps;
    Ouvrir();
    MESSAGE("ms to open: " << temps.Relever());
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Communes\u00A0: 40000"));
    static_cast<void>(temps.Relever());
    Saisir("TxtCherche", "saint 1");
    const long lettres = temps.Relever();
    MESSAGE("ms for 7 letters: " << lettres);
    Choisir("Saint-1-sur-Loire");
    Saisir("TxtPrecision", "x");
    Clic("MnuMaj");
    const long ecriture = temps.Relever();
    MESSAGE("ms to save: " << ecriture);
}

#include "windows/echange/FrmReleve.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>

#include "windows/Enchainement.h"
#include "windows/Essai.h"
#include "windows/controles/Unicode.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

using interchange::SorteReleve;

constexpr const char* Baptemes =
    "Année;Mois;Jour;Lieu;Nom;Prénoms;Sexe\n1780;3;12;Mer;Dupont;Hélène;F\n"
    "1781;2;31;Mer;Dupont;Luc;?\n1782;1;1;Mer;;;\n";

struct Apercu : FenetreEssai {
    Apercu() { Demarrer({}); }
    void Ouvrir(const std::string& octets, SorteReleve sorte = SorteReleve::Bapteme) {
        fenetre = std::make_unique<FrmReleve>(S(), sorte, octets, QStringLiteral("actes.csv"),
                                              &Fenetre());
        fenetre->show();
    }
    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fenetre->findChild<Controle*>(QString::fromUtf8(nom));
        REQUIRE(controle != nullptr);
        return *controle;
    }
    QString Case(int rangee, int colonne) {
        const QAbstractItemModel& modele = *C<QTableView>("GrdLignes").model();
        return modele.index(rangee, colonne).data().toString();
    }
    QString Titre(int colonne) {
        return C<QTableView>("GrdLignes").model()->headerData(colonne, Qt::Horizontal).toString();
    }
    std::unique_ptr<FrmReleve> fenetre;
};

}  // namespace

TEST_CASE_FIXTURE(Apercu, "FrmReleve: the lines stand under the columns of the kind") {
    Ouvrir(Baptemes);
    CHECK(C<QTableView>("GrdLignes").model()->rowCount() == 3);
    CHECK(Case(0, 0) == "2");
    CHECK(Titre(1) == QStringLiteral("Année\nAnnée"));
    CHECK(Titre(6) == QStringLiteral("Prénoms\nPrénoms"));
    CHECK(Case(0, 6) == QStringLiteral("Hélène"));
    CHECK(C<QLabel>("LblBilan").text().contains(QStringLiteral("Personnes\u00A0: 2")));
}

TEST_CASE_FIXTURE(Apercu, "FrmReleve: what is not understood is listed, and leads to its line") {
    Ouvrir(Baptemes);
    auto& liste = C<QListWidget>("LstConstats");
    REQUIRE(liste.count() == 3);
    CHECK(liste.item(0)->text().startsWith(QStringLiteral("Ligne 3")));
    liste.setCurrentRow(2);
    CHECK(C<QTableView>("GrdLignes").currentIndex().row() == 2);
    const QModelIndex douteuse = C<QTableView>("GrdLignes").model()->index(1, 0);
    CHECK_FALSE(douteuse.data(Qt::ToolTipRole).toString().isEmpty());
    CHECK_FALSE(douteuse.data(Qt::DecorationRole).isNull());
    CHECK(C<QTableView>("GrdLignes").model()->index(0, 0).data(Qt::DecorationRole).isNull());
}

TEST_CASE_FIXTURE(Apercu, "FrmReleve: another kind reads the file anew") {
    Ouvrir(Baptemes);
    C<QComboBox>("CboSorte").setCurrentIndex(1);
    CHECK(Titre(5) == QStringLiteral("Nom de l'époux\nNom"));
    CHECK(fenetre->Lu().sorte == SorteReleve::Mariage);
    REQUIRE(shell::ChoisirLangue(S(), "English"));
    fenetre->Traduire();
    CHECK(Titre(5) == "Husband's surname\nNom");
    CHECK(fenetre->Lu().sorte == SorteReleve::Mariage);
}

TEST_CASE_FIXTURE(Apercu, "FrmReleve: a file without a line says so, and cannot be imported") {
    Ouvrir("rien\n");
    CHECK_FALSE(C<QPushButton>("CmdImporter").isEnabled());
    CHECK(C<QLabel>("LblTitres").text().contains(QStringLiteral("actes.csv")));
}

TEST_CASE_FIXTURE(Apercu, "FrmReleve: Enter imports and Escape gives up") {
    Ouvrir(Baptemes);
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK(fenetre->result() == QDialog::Rejected);
    Ouvrir(Baptemes);
    QTest::keyClick(fenetre.get(), Qt::Key_Return);
    CHECK(fenetre->result() == QDialog::Accepted);
}

TEST_CASE_FIXTURE(Apercu, "MDIForm1: a survey is chosen, looked at, imported and reported") {
    const std::filesystem::path fichier = dossier / "actes.csv";
    doublures::EcrireFichier(fichier, Baptemes);
    RepondreFichier(fichier);
    {
        Enchainement suite;
        suite.Fenetre("QFileDialog", [](QWidget& /*file*/) {})
            .Fenetre("FrmRelevé", [](QWidget& apercu) {
                QTest::mouseClick(apercu.findChild<QPushButton*>(QStringLiteral("CmdImporter")),
                                  Qt::LeftButton);
            });
        Action("MnuBaptème").trigger();
    }
    REQUIRE(S().base != nullptr);
    CHECK(S().base->Chemin().stem() == "actes");
    CHECK(S().base->entete.NbTriIndividus == 2);
}

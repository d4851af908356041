#include "windows/mots/FrmMotCle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QTableWidget>
#include <QToolButton>

#include "records/MotsUsuels.h"
#include "windows/Essai.h"
#include "windows/controles/Unicode.h"
#include "windows/mots/FrmUsuels.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// A window of the program beside the main one, its controls found by their names.
template <class Forme>
struct Bureau : FenetreEssai {
    Bureau() {
        DemarrerFamille();
        fenetre = new Forme{S(), &Fenetre()};
        fenetre->show();
        REQUIRE(QTest::qWaitForWindowExposed(fenetre));
    }

    template <class Controle>
    [[nodiscard]] Controle& C(const char* nom) const {
        auto* controle = fenetre->template findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Cliquer(const char* nom) const {
        QTest::mouseClick(&C<QAbstractButton>(nom), Qt::LeftButton);
    }
    void Ecrire(const char* nom, const QString& texte) const {
        C<QLineEdit>(nom).selectAll();
        Taper(C<QLineEdit>(nom), texte);
    }
    [[nodiscard]] QStringList Lignes(const char* nom) const {
        QStringList lignes;
        for (int i = 0; i < C<QListWidget>(nom).count(); ++i)
            lignes << C<QListWidget>(nom).item(i)->text();
        return lignes;
    }

    Forme* fenetre;
};

}  // namespace

TEST_CASE_FIXTURE(Bureau<FrmMotCle>,
                  "FrmMotClé: a keyword is added, put in the sheet, moved and removed") {
    auto& mots = C<QTableWidget>("LstMClé");
    CHECK(mots.rowCount() == 11);
    Ecrire("Tx_MClé", QStringLiteral("Taille"));
    Ecrire("Tx_LMClé", QStringLiteral("µ"));
    C<QCheckBox>("ChxIndex").setChecked(false);
    Cliquer("C_Ajout");
    REQUIRE(mots.rowCount() == 12);
    CHECK(mots.currentRow() == 11);
    CHECK(mots.item(11, 0)->text() == QStringLiteral("Taille"));
    CHECK(mots.item(11, 1)->text() == QStringLiteral("µ"));
    CHECK(mots.item(11, 2)->text() == QStringLiteral("non indexé"));

    Cliquer("CmdAjtMotInd");
    CHECK(Lignes("GrdDonnéeInd") ==
          QStringList{QStringLiteral("Profession"), QStringLiteral("Baptême (avec date)"),
                      QStringLiteral("Inhumation (avec date)"), QStringLiteral("Taille")});
    Cliquer("CmdMotIndUp");
    CHECK(Lignes("GrdDonnéeInd")[2] == QStringLiteral("Taille"));
    Cliquer("CmdSupMotInd");
    CHECK(Lignes("GrdDonnéeInd").size() == 3);
    Cliquer("CmdAjtMotMar");
    CHECK(Lignes("GrdDonnéeMar").last() == QStringLiteral("Taille"));

    Cliquer("CmdMotUp");
    CHECK(mots.item(10, 0)->text() == QStringLiteral("Taille"));
    RepondreBoite(QMessageBox::Yes);
    Cliquer("C_Supp");
    CHECK(mots.rowCount() == 11);
    CHECK(Lignes("GrdDonnéeMar").size() == 1);
}

TEST_CASE_FIXTURE(Bureau<FrmMotCle>, "FrmMotClé: a refused code keeps what was typed") {
    Ecrire("Tx_MClé", QStringLiteral("Taille"));
    Ecrire("Tx_LMClé", QStringLiteral("#"));
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Cliquer("C_Ajout");
    CHECK(dit->contains(QStringLiteral("un seul caractère")));
    CHECK(C<QLineEdit>("Tx_MClé").text() == QStringLiteral("Taille"));
    CHECK(C<QTableWidget>("LstMClé").rowCount() == 11);
}

TEST_CASE_FIXTURE(Bureau<FrmMotCle>,
                  "FrmMotClé: a label that the base cannot hold is asked for before it is lost") {
    Ecrire("Tx_MClé", QStringLiteral("京"));
    Ecrire("Tx_LMClé", QStringLiteral("µ"));
    const auto dit = RepondreBoite(QMessageBox::No);
    Cliquer("C_Ajout");
    CHECK(dit->contains(QStringLiteral("Enregistrer quand même")));
    CHECK(C<QTableWidget>("LstMClé").rowCount() == 11);
}

TEST_CASE_FIXTURE(Bureau<FrmMotCle>,
                  "FrmMotClé: the keywords of names offer neither removal nor line") {
    C<QTableWidget>("LstMClé").setCurrentCell(0, 0);
    CHECK_FALSE(C<QAbstractButton>("C_Supp").isEnabled());
    CHECK_FALSE(C<QAbstractButton>("CmdAjtMotInd").isEnabled());
    C<QTableWidget>("LstMClé").setCurrentCell(7, 0);
    CHECK(C<QAbstractButton>("C_Supp").isEnabled());
    CHECK(C<QCheckBox>("ChkDatée").isChecked());
}

TEST_CASE_FIXTURE(Bureau<FrmUsuels>,
                  "FrmUsuels: words and rubriques are added and taken away by keys") {
    auto& rubriques = C<QComboBox>("CboRubrique");
    CHECK(rubriques.count() == 3);
    Ecrire("TxtRubrique", QStringLiteral(" Métiers "));
    QTest::keyClick(&C<QLineEdit>("TxtRubrique"), Qt::Key_Return);
    CHECK(rubriques.currentText() == QStringLiteral("Métiers"));
    CHECK(C<QWidget>("LblVide").isVisible());
    Ecrire("TxtMot", QStringLiteral("京"));
    RepondreBoite(QMessageBox::No);
    QTest::keyClick(&C<QLineEdit>("TxtMot"), Qt::Key_Return);
    CHECK(Lignes("LstMot").isEmpty());
    Ecrire("TxtMot", QStringLiteral("  sabotier"));
    QTest::keyClick(&C<QLineEdit>("TxtMot"), Qt::Key_Return);
    CHECK(Lignes("LstMot") == QStringList{QStringLiteral("sabotier")});
    CHECK(C<QLineEdit>("TxtMot").text().isEmpty());
    RepondreBoite(QMessageBox::No);
    QTest::keyClick(&C<QListWidget>("LstMot"), Qt::Key_Delete);
    CHECK(Lignes("LstMot").size() == 1);
    RepondreBoite(QMessageBox::Yes);
    Cliquer("CmdSupRub");
    CHECK(rubriques.count() == 3);
    CHECK(records::ListerMotsUsuels(S(), "M\xE9tiers").empty());
}

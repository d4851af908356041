#include "windows/cadre/FrmCalendrier.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "windows/Essai.h"

#include <memory>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The calculator and its fields.
struct Calculateur : FenetreEssai {
    Calculateur() {
        Demarrer({});
        fenetre = std::make_unique<FrmCalendrier>(S(), &Fenetre());
        fenetre->setAttribute(Qt::WA_DeleteOnClose, false);
        fenetre->show();
    }
    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fenetre->findChild<Controle*>(QString::fromUtf8(nom));
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Gregorien(const char* jour, int mois, const char* annee) {
        Saisir("T_JourG", "LstMoisG", "LstAnnéeG", jour, mois, annee);
    }
    void Republicain(const char* jour, int mois, const char* annee) {
        Saisir("T_JourR", "LstMoisR", "LstAnnéeR", jour, mois, annee);
    }
    QString LuG() { return Lu("T_JourG", "LstMoisG", "LstAnnéeG"); }
    QString LuR() { return Lu("T_JourR", "LstMoisR", "LstAnnéeR"); }

    std::unique_ptr<FrmCalendrier> fenetre;

private:
    void Saisir(const char* champJour, const char* champMois, const char* champAnnee,
                const char* jour, int mois, const char* annee) {
        C<QComboBox>(champMois).setCurrentIndex(mois - 1);
        C<QComboBox>(champAnnee).setCurrentText(QString::fromLatin1(annee));
        C<QLineEdit>(champJour).selectAll();
        QTest::keyClicks(&C<QLineEdit>(champJour), QString::fromLatin1(jour));
    }
    QString Lu(const char* jour, const char* mois, const char* annee) {
        return C<QLineEdit>(jour).text() + u' ' + C<QComboBox>(mois).currentText() + u' ' +
               C<QComboBox>(annee).currentText();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: the other date follows while one is typed") {
    CHECK_FALSE(fenetre->isModal());
    Gregorien("22", 9, "1792");
    CHECK(LuR() == QStringLiteral("1 Vendémiaire I"));
    Gregorien("1", 1, "1793");
    CHECK(LuR() == QStringLiteral("12 Nivôse I"));
    Republicain("1", 1, "I");
    CHECK(LuG() == "22 septembre 1792");
    Republicain("6", 13, "IV");
    CHECK(LuG() == "22 septembre 1796");
}

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: the buttons convert as well") {
    Gregorien("9", 11, "1799");
    C<QLineEdit>("T_JourR").clear();
    QTest::mouseClick(&C<QPushButton>("CmdGR"), Qt::LeftButton);
    CHECK(LuR() == "18 Brumaire VIII");
    C<QLineEdit>("T_JourG").clear();
    QTest::mouseClick(&C<QPushButton>("CmdRG"), Qt::LeftButton);
    CHECK(LuG() == "9 novembre 1799");
}

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: what is refused is told beside its field") {
    auto& jourG = C<QLabel>("LblRefusJourG");
    auto& jourR = C<QLabel>("LblRefusJourR");
    Gregorien("32", 1, "1800");
    CHECK(jourG.text() == QStringLiteral("Le jour doit être compris entre 1 et 31."));
    Gregorien("31", 1, "1800");
    CHECK(jourG.text().isEmpty());
    Republicain("31", 1, "II");
    CHECK(jourR.text() == QStringLiteral("Le jour doit être compris entre 1 et 30."));
    CHECK(jourG.text().isEmpty());
    Republicain("x", 1, "II");
    CHECK_FALSE(jourR.text().isEmpty());

    // Nothing is told before a button asks for what is still missing.
    C<QComboBox>("LstMoisG").setCurrentIndex(-1);
    CHECK(C<QLabel>("LblRefusMoisG").text().isEmpty());
    QTest::mouseClick(&C<QPushButton>("CmdGR"), Qt::LeftButton);
    CHECK(C<QLabel>("LblRefusMoisG").text() == "Choisissez un mois dans la liste.");
    C<QComboBox>("LstMoisG").setCurrentIndex(0);
    C<QComboBox>("LstAnnéeG").setCurrentIndex(-1);
    QTest::mouseClick(&C<QPushButton>("CmdGR"), Qt::LeftButton);
    CHECK(C<QLabel>("LblRefusAnnéeG").text() ==
          QStringLiteral("Choisissez une année dans la liste."));
}

TEST_CASE_FIXTURE(Calculateur,
                  "FrmCalendrier: a year outside the lists leaves its list without a choice") {
    Gregorien("1", 1, "1792");
    CHECK(C<QComboBox>("LstAnnéeR").currentIndex() == -1);
    CHECK_FALSE(C<QLineEdit>("T_JourR").text().isEmpty());
    CHECK_FALSE(C<QLabel>("LblRefusAnnéeR").text().isEmpty());
    Republicain("1", 5, "XIV");
    CHECK(C<QComboBox>("LstAnnéeG").currentIndex() == -1);
    CHECK(C<QLineEdit>("T_JourG").text() == "20");
}

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: months keep their place when the language changes") {
    Gregorien("22", 9, "1792");
    REQUIRE(shell::ChoisirLangue(S(), "English"));
    fenetre->Traduire();
    CHECK(LuG() == "22 September 1792");
    CHECK(C<QComboBox>("LstMoisG").count() == 12);
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
}

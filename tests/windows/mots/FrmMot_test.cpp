#include "windows/mots/FrmMot.h"

#include "records/Fiche.h"
#include "windows/FaitsEssai.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

constexpr NoOrdre Paul{3};

struct Essai : Faits<FrmMot> {
    Essai() {
        evenement.date = "14/3/1820";
        evenement.type = "CHR";
        evenement.lieu = "Saint Malo";
        evenement.libelle = "meunier";
    }
    records::SaisieEvenement evenement;
};

}  // namespace

TEST_CASE_FIXTURE(Essai, "FrmMot: a row takes date and place of the event, and Enter saves it") {
    Montrer(Paul, evenement);
    Champ("TxtIndJ(1)").setFocus();
    Cliquer("CmdReprendre");
    CHECK(Champ("TxtIndJ(1)").text() == "14 mars");
    CHECK(Champ("TxtIndA(1)").text() == "1820");
    CHECK(Champ("TxtIndL(1)").text() == "Saint Malo");
    Champ("TxtIndL(0)").setFocus();
    Cliquer("CmdReprendre");
    CHECK(Champ("TxtIndL(0)").text() == "meunier");
    QTest::keyClick(&Champ("TxtIndL(0)"), Qt::Key_Return);
    CHECK(fenetre->result() == QDialog::Accepted);
    const records::SaisieFiche fiche = records::ChargerFiche(S(), Paul);
    CHECK(fiche.slots[0].lieu == "meunier");
    CHECK(fiche.slots[1] == storage::ValeurSlot{"14 mars", "1820", "Saint Malo"});
    CHECK(fiche.nom == "Martin");
}

TEST_CASE_FIXTURE(Essai, "FrmMot: rows that did not change write nothing") {
    Montrer(Paul, evenement);
    const std::uint32_t fin = S().base->volume.FinFichier();
    QTest::keyClick(&Champ("TxtIndL(0)"), Qt::Key_Return);
    CHECK(fenetre->result() == QDialog::Rejected);
    CHECK(S().base->volume.FinFichier() == fin);
}

TEST_CASE_FIXTURE(Essai, "FrmMot: Escape asks what becomes of typed rows, and only then") {
    Montrer(Paul, evenement);
    SUBCASE("nothing typed") {
        Touche(Qt::Key_Escape);
        CHECK_FALSE(fenetre->isVisible());
    }
    SUBCASE("stay") {
        Taper(Champ("TxtIndL(0)"), "meunier");
        const auto texte = Repondre(QMessageBox::Cancel);
        Touche(Qt::Key_Escape);
        CHECK(texte->startsWith("Les rubriques"));
        CHECK(fenetre->isVisible());
    }
    SUBCASE("drop") {
        Taper(Champ("TxtIndL(0)"), "meunier");
        Repondre(QMessageBox::No);
        Cliquer("CmdAnnuler");
        CHECK(fenetre->result() == QDialog::Rejected);
        CHECK(records::ChargerFiche(S(), Paul).slots[0].lieu.empty());
    }
    SUBCASE("save") {
        Taper(Champ("TxtIndL(0)"), "meunier");
        Repondre(QMessageBox::Yes);
        Touche(Qt::Key_Escape);
        CHECK(fenetre->result() == QDialog::Accepted);
        CHECK(records::ChargerFiche(S(), Paul).slots[0].lieu == "meunier");
    }
}

TEST_CASE_FIXTURE(Essai, "FrmMot: a base without rows says so") {
    S().base->entete.SlotsIndividu[0].symbole = ' ';
    Montrer(Paul, evenement);
    CHECK(C<QLabel>("LblVide").isVisible());
    CHECK_FALSE(C<QPushButton>("CmdValider").isEnabled());
}

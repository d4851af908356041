// The sheet while other commands change or close what it shows.
#include "messages/Messages.h"
#include "windows/Conduite.h"
#include "windows/FeuilleEssai.h"
#include "windows/controles/BoutonPersonne.h"
#include "windows/controles/Legendes.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

struct HorsOrdre : Feuille {
    NoOrdre seul = doublures::FamilleEssai{B()}.Creer(Sexe::Homme, "Seul", "Jean", "1900");

    void OuvrirSeul() {
        AllerA(seul.valeur);
        REQUIRE(fiche->Ouvrir(seul));
        Taper("T_Prénom", "Pierre");
    }
};

}  // namespace

TEST_CASE_FIXTURE(HorsOrdre, "FrmMisajour: the person shown is deleted by the menu") {
    OuvrirSeul();
    SUBCASE("after the question for what is typed, the sheet shows who is current next") {
        {
            Enchainement suite;
            suite.Boite(QMessageBox::No, QStringLiteral("La fiche a été modifiée"));
            suite.Boite(QMessageBox::Yes, QStringLiteral("Jean"));
            Action("MnuSupprInd").trigger();
        }
        CHECK(B().R_TRI.RangIndividu(seul) == 0);
        CHECK(fiche->isVisible());
        CHECK(fiche->Individu() == S().PersonneEnCours);
        CHECK(fiche->Individu() != seul);
        CHECK_FALSE(AEnregistrer());
    }
    SUBCASE("a deletion that is refused keeps the sheet") {
        {
            Enchainement suite;
            suite.Boite(QMessageBox::Yes, QStringLiteral("La fiche a été modifiée"));
            suite.Boite(QMessageBox::No, QStringLiteral("Pierre"));
            Action("MnuSupprInd").trigger();
        }
        CHECK(fiche->Individu() == seul);
        CHECK(Texte("T_Prénom") == "Pierre");
        CHECK(B().R_NOM.PrenomDe(seul) == "Pierre");
    }
}

TEST_CASE_FIXTURE(HorsOrdre, "FrmMisajour: Delete in the sheet drops what is typed and goes on") {
    OuvrirSeul();
    RepondreBoite(QMessageBox::Yes);
    Cliquer("CmdSupprimer");
    CHECK(B().R_TRI.RangIndividu(seul) == 0);
    CHECK(B().R_NOM.PrenomDe(seul).empty());
    CHECK(fiche->Individu() == S().PersonneEnCours);
    CHECK(S().PersonneFiche == fiche->Individu());
    CHECK_FALSE(AEnregistrer());
}

TEST_CASE_FIXTURE(HorsOrdre, "FrmMisajour: the base is closed under the sheet") {
    OuvrirSeul();
    {
        Enchainement suite;
        suite.Boite(QMessageBox::No, QStringLiteral("La fiche a été modifiée"));
        Action("MnuEnregistrer").trigger();
    }
    REQUIRE(S().BaseOuverte());
    Action("MnuFermer").trigger();
    CHECK_FALSE(S().BaseOuverte());
    CHECK_FALSE(fiche->isVisible());
    CHECK_FALSE(fiche->Individu());
    REQUIRE(shell::OuvrirChemin(S(), base));
    CHECK_FALSE(fiche->isVisible());
    REQUIRE(fiche->Ouvrir(seul));
    fiche->show();
    CHECK(Texte("T_Prénom") == "Jean");
    CHECK_FALSE(AEnregistrer());
}

TEST_CASE_FIXTURE(HorsOrdre, "FrmMisajour: a father who is not in the base can be taken away") {
    // A damaged base: the cell names a number that was never given.
    B().R_PERE.EcrireCellule(seul, NoOrdre{99});
    REQUIRE(fiche->Ouvrir(seul));
    CHECK(Texte("T_Nom") == "Seul");
    // His sheet cannot be opened.
    QTest::mouseClick(&C<BoutonPersonne>("N_Père"), Qt::LeftButton);
    CHECK(fiche->Individu() == seul);
    RepondreBoite(QMessageBox::Yes);
    Cliquer("C_Spère");
    CHECK_FALSE(B().R_PERE.LireCellule(seul));
    CHECK(C<QAbstractButton>("C_Rechpère").isEnabled());
}

TEST_CASE_FIXTURE(Conduite, "FrmMisajour: the last person of a base is deleted in the sheet") {
    Nouvelle(dossier / "Neuve.LGD");
    CreerSeul({.nom = "Seul", .prenom = "Jean", .sexe = Sexe::Homme, .anneeNaissance = "1900"});
    OuvrirFiche();
    FrmMisajour& fiche = Fiche();
    {
        Enchainement suite;
        suite.Boite(QMessageBox::Yes, QStringLiteral("Jean"));
        suite.Boite(QMessageBox::Ok, TexteEcran(S(), message::InfoPlusAucunePersonne));
        Cliquer(fiche, "CmdSupprimer");
    }
    CHECK_FALSE(fiche.isVisible());
    CHECK_FALSE(S().PersonneEnCours);
    CHECK_FALSE(S().PersonneFiche);
}

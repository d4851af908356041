#include "records/NomsAffiches.h"

#include "doublures/SessionEssai.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/Numerotation.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

namespace {

struct Famille : doublures::SessionEssai {
    Famille() {
        shell::Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Famille.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
    }

    storage::Base& B() { return *session.base; }

    NoOrdre Creer(std::string_view ligne, std::string_view naissance = "",
                  std::string_view deces = "") {
        const NoOrdre n = B().NouvelIndividu();
        B().R_SEXE.EcrireCellule(n, Sexe::Homme);
        B().R_NOM.EcrireNom(n, ligne);
        if (!naissance.empty()) B().R_NAISS.EcrireCellule(n, naissance);
        if (!deces.empty()) B().R_DECES.EcrireCellule(n, deces);
        B().R_TRI.AjouterIndividu(n);
        return n;
    }
    void Modele(const char* modele) {
        session.parametres.generaux.affichageNom = modele;
        session.AppliquerReglages();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Famille,
                  "NomAffiche: the default template gives the first name and the surname, "
                  "without numbers") {
    const NoOrdre n = Creer("Dupont;Jean;Marie;;");
    session.deCujus[0].individu = n;
    shell::NumeroterDeCujus(session, 1);
    CHECK(NomAffiche(session, n) == "Jean Dupont");
}

TEST_CASE_FIXTURE(Famille,
                  "NomAffiche: tokens come in the order of the template, and empty ones leave "
                  "no blank") {
    const NoOrdre pere = Creer("Père;Paul;;;"_1252);
    const NoOrdre mere = Creer("Mère;Anne;;;"_1252);
    const NoOrdre n = Creer("Dupont;Jean;Marie;;");
    B().R_PERE.EcrireCellule(n, pere);
    B().R_MERE.EcrireCellule(n, mere);
    Modele("BIRN/FNAM/OFNM/FATN/MOTN/");
    CHECK(NomAffiche(session, n) == "Dupont Jean Marie Père Mère"_1252);
    CHECK(NomAffiche(session, pere) == "Père Paul"_1252);
    Modele("FATN//BIRN/");
    CHECK(NomAffiche(session, n) == "Père"_1252);
}

TEST_CASE_FIXTURE(Famille,
                  "NomAffiche: a person without names, person 0 and a wild number are empty") {
    const NoOrdre n = Creer(";;;;");
    CHECK(NomAffiche(session, n).empty());
    CHECK(NomAffiche(session, NoOrdre{}).empty());
    CHECK(NomAffiche(session, NoOrdre{60000}).empty());
    CHECK(NomEtDates(session, NoOrdre{}).empty());
    shell::MnuFermer(session);
    CHECK(NomAffiche(session, n).empty());
    CHECK(DatesDeVie(session, n).empty());
}

TEST_CASE_FIXTURE(Famille,
                  "NomAffiche: NUMB gives the numbers of both De Cujus in their brackets") {
    const NoOrdre n = Creer("Dupont;Jean;;;");
    const NoOrdre pere = Creer("Dupont;Paul;;;");
    const NoOrdre autre = Creer("Durand;Luc;;;");
    B().R_PERE.EcrireCellule(n, pere);
    B().R_ENFANT.ModifierListe(pere, n, storage::ActionListe::Ajouter);
    session.deCujus[0].individu = n;
    session.deCujus[1].individu = pere;
    shell::NumeroterDeCujus(session, 1);
    shell::NumeroterDeCujus(session, 2);
    Modele("NUMB/BIRN/FNAM/");
    CHECK(NomAffiche(session, pere) == "[2] {1} Dupont Paul");
    CHECK(NomAffiche(session, n) == "[1] {*1} Dupont Jean");
    CHECK(NomAffiche(session, autre) == "Durand Luc");
    CHECK(NumerosAffiches(session, pere) == "[2] {1}");
    CHECK(NumerosAffiches(session, autre).empty());
    // A parent link makes the numbers stale: they are computed again before use.
    B().R_PERE.EcrireCellule(pere, autre);
    CHECK(NomAffiche(session, autre) == "[4] {2} Durand Luc");
}

TEST_CASE_FIXTURE(Famille, "NomAffiche: the tag of a keyword gives what it says of the person") {
    const NoOrdre n = Creer("Dupont;Jean;;;");
    B().R_TEXTE.EcrireTexte(n, "|Dupont \xB6Jean $Saint.Malo ~Paris\r\nOCCU Menuisier\r\n");
    Modele("BIRN/OCCU/");
    CHECK(NomAffiche(session, n) == "Dupont Menuisier");
    Modele("BIRN/BIRT/DEAT/");
    CHECK(NomAffiche(session, n) == "Dupont Saint Malo Paris");
    Modele("BIRN/ZZZZ/RESI/");
    CHECK(NomAffiche(session, n) == "Dupont");
}

TEST_CASE_FIXTURE(Famille, "NomEtDates: life dates with their marks") {
    const NoOrdre deux = Creer("Dupont;Jean;;12/3;ABT", "1820", "1890");
    const NoOrdre naissance = Creer("Dupont;Luc;;BEF;", "1820");
    const NoOrdre deces = Creer("Dupont;Guy;;;AFT", "", "1890");
    const NoOrdre aucune = Creer("Dupont;Max;;;");
    CHECK(NomEtDates(session, deux) == "Jean Dupont (1820-~1890)");
    CHECK(NomEtDates(session, naissance) == "Luc Dupont (o<1820) ");
    CHECK(NomEtDates(session, deces) == "Guy Dupont (+>1890)");
    CHECK(NomEtDates(session, aucune) == "Max Dupont ");
    CHECK(DatesDeVie(session, deux) == "1820-~1890");
    CHECK(DatesDeVie(session, naissance) == "o<1820");
    CHECK(DatesDeVie(session, deces) == "+>1890");
    CHECK(DatesDeVie(session, aucune).empty());
}

TEST_CASE_FIXTURE(Famille, "Displayed dates are in the words of the catalogue in use") {
    const NoOrdre n = Creer("Dupont;Jean;;12/3;ABT", "1820", "1890");
    CHECK(DateNaissance(session, n) == "12 mars 1820");
    CHECK(DateDeces(session, n) == "vers 1890");
    REQUIRE(shell::ChoisirLangue(session, "English"));
    CHECK(DateNaissance(session, n) == "12 March 1820");
    CHECK(DateDeces(session, n) == "about 1890");
    CHECK(DateNaissance(session, NoOrdre{9}).empty());
    const NoMariage m = B().NouveauMariage();
    B().R_DEBMAR.EcrireCellule(m, "1845");
    B().R_TXTMAR.EcrireTexte(m, "1/5 @Paris");
    CHECK(DateMariage(session, m) == "1st May 1845");
    CHECK(DateMariage(session, NoMariage{7}).empty());
}

TEST_CASE("MessageDuSexe: a sex that is not known has the word of an undetermined one") {
    CHECK(MessageDuSexe(Sexe::Homme) == message::SexeMasculin);
    CHECK(MessageDuSexe(Sexe::Femme) == message::SexeFeminin);
    for (const Sexe sexe : {Sexe::Indetermine, Sexe::Vide, static_cast<Sexe>('X')})
        CHECK(MessageDuSexe(sexe) == message::SexeIndetermine);
}

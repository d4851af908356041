#include "interchange/commun/SelectionExport.h"

#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "interchange/gedcom/ExportGedcom.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"

#include <algorithm>
#include <array>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

/// A family of four generations:
///
///   1 Aimé = 2 Berthe      3 Claude = 4 Diane
///        |         |            |
///   5 Émile   6 Fanny  =  7 Gaston = 8 Hélène
///                      |          |
///               9 Irène = 10 Jean  11 Karl
///                       |
///                   12 Lucie
struct Bureau : doublures::SessionEssai {
    Bureau() {
        shell::Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Choix.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
    }

    storage::Base& B() { return *session.base; }
    doublures::FamilleEssai F() { return doublures::FamilleEssai{B()}; }

    void Peupler() {
        constexpr std::array<std::string_view, 12> Annees{"1780", "1785", "1790", "1792",
                                                          "1810", "1812", "1815", "1818",
                                                          "1840", "1838", "1850", "1901"};
        for (std::size_t i = 0; i < Annees.size(); ++i)
            F().Creer(static_cast<Sexe>("HFHFHFHFFHHF"[i]), "Nom", "P" + std::to_string(i + 1),
                      Annees[i]);
        const auto naitre = [this](std::uint32_t enfant, std::uint32_t pere, std::uint32_t mere) {
            F().Parents(NoOrdre{enfant}, NoOrdre{pere}, NoOrdre{mere});
        };
        F().Marier(NoOrdre{1}, NoOrdre{2});
        F().Marier(NoOrdre{3}, NoOrdre{4});
        F().Marier(NoOrdre{7}, NoOrdre{6});
        F().Marier(NoOrdre{7}, NoOrdre{8});
        F().Marier(NoOrdre{10}, NoOrdre{9});
        naitre(5, 1, 2);
        naitre(6, 1, 2);
        naitre(7, 3, 4);
        naitre(9, 7, 6);
        naitre(11, 7, 8);
        naitre(12, 10, 9);
    }
    /// The marks of persons 1 to the last, a dot for a blank.
    std::string Marques(const SelectionExport& selection) {
        std::string marques;
        for (std::uint32_t n = 1; n <= B().entete.DernierIndividu; ++n)
            marques += selection.Marque(NoOrdre{n});
        std::ranges::replace(marques, ' ', '.');
        return marques;
    }
    static std::string Ecrits(const std::vector<bool>& choisis) {
        std::string ecrits;
        for (std::size_t n = 1; n < choisis.size(); ++n)
            ecrits += choisis[n] ? 'x' : '.';
        return ecrits;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau,
                  "SelectionExport: ancestors and their partners are kept, near kin is beside") {
    Peupler();
    SelectionExport selection{B()};
    selection.MarquerParente(NoOrdre{9}, SensExport::Ascendants, GenerationsParDefaut);
    // 5 is a child of 1, 11 one of 7, 12 one of 9; 8 and 10 are partners.
    CHECK(Marques(selection) == "333343333344");
    CHECK(selection.NbRetenus() == 9);
    CHECK(selection.NbMarques() == 12);
    CHECK(Ecrits(selection.Choix({}).choisis) == "xxxx.xxxxx..");
    CHECK(Ecrits(selection.Choix({.collateraux = true}).choisis) == "xxxxxxxxxxxx");
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: where the walk up stops, the parents are near kin") {
    Peupler();
    SelectionExport selection{B()};
    SUBCASE("one generation is the person alone") {
        selection.MarquerParente(NoOrdre{9}, SensExport::Ascendants, 1);
        CHECK(Marques(selection) == ".....44.33.4");
    }
    SUBCASE("two are the parents as well") {
        selection.MarquerParente(NoOrdre{9}, SensExport::Ascendants, 2);
        CHECK(Marques(selection) == "4444.3333344");
    }
    SUBCASE("none marks nobody") {
        selection.MarquerParente(NoOrdre{9}, SensExport::Ascendants, 0);
        CHECK(Marques(selection) == "............");
        CHECK(selection.NbMarques() == 0);
    }
}

TEST_CASE_FIXTURE(
    Bureau, "SelectionExport: descendants and their partners are kept, parents are near kin") {
    Peupler();
    SelectionExport selection{B()};
    SUBCASE("to the end") {
        selection.MarquerParente(NoOrdre{1}, SensExport::Descendants, GenerationsParDefaut);
        CHECK(Marques(selection) == "33..333.33.3");
    }
    SUBCASE("one generation: the children are near kin") {
        selection.MarquerParente(NoOrdre{7}, SensExport::Descendants, 1);
        CHECK(Marques(selection) == "..44.3334.4.");
    }
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: a person already walked is not walked again") {
    // A child of himself's own line, as only a damaged base has it.
    const NoOrdre a = F().Creer(Sexe::Homme, "A", "A");
    const NoOrdre b = F().Creer(Sexe::Homme, "B", "B");
    F().Parents(a, b, {});
    F().Parents(b, a, {});
    SelectionExport selection{B()};
    for (const SensExport sens : {SensExport::Ascendants, SensExport::Descendants}) {
        selection.Vider();
        selection.MarquerParente(a, sens, GenerationsParDefaut);
        CHECK(Marques(selection) == "33");
    }
    // A parent who was walked keeps his mark where the walk stops.
    selection.Vider();
    selection.MarquerParente(a, SensExport::Ascendants, 2);
    CHECK(Marques(selection) == "33");
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: walks add up until the selection is emptied") {
    Peupler();
    SelectionExport selection{B()};
    selection.MarquerParente(NoOrdre{12}, SensExport::Ascendants, 1);
    CHECK(Marques(selection) == "........44.3");
    selection.MarquerParente(NoOrdre{9}, SensExport::Ascendants, 1);
    CHECK(Marques(selection) == ".....44.33.3");
    selection.Vider();
    CHECK(selection.NbMarques() == 0);
    CHECK(Marques(selection) == "............");
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: who was selected stays so where a later walk stops") {
    Peupler();
    SelectionExport selection{B()};
    SUBCASE("a parent") {
        const std::array<NoOrdre, 1> liste{NoOrdre{7}};
        selection.MarquerListe(liste);
        selection.MarquerParente(NoOrdre{11}, SensExport::Ascendants, 1);
        CHECK(Marques(selection) == "......34..3.");
    }
    SUBCASE("a child") {
        selection.MarquerParente(NoOrdre{5}, SensExport::Descendants, 1);
        selection.MarquerParente(NoOrdre{1}, SensExport::Descendants, 1);
        CHECK(Marques(selection) == "33..34......");
    }
    CHECK(selection.NbRetenus() == std::ranges::count(Marques(selection), '3'));
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: the whole base and a list of persons") {
    Peupler();
    SelectionExport selection{B()};
    selection.MarquerTous();
    CHECK(selection.NbRetenus() == 12);
    selection.Vider();
    const std::array<NoOrdre, 4> liste{NoOrdre{12}, NoOrdre{}, NoOrdre{13}, NoOrdre{3}};
    selection.MarquerListe(liste);
    CHECK(Marques(selection) == "..3........3");
    CHECK(selection.NbRetenus() == 2);
    SUBCASE("a person who was taken out of the base is not of the whole") {
        B().R_TRI.RetirerIndividu(NoOrdre{4});
        selection.Vider();
        selection.MarquerTous();
        CHECK(Marques(selection) == "333.33333333");
    }
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: who was born after 1900 is left out, 1900 stays") {
    for (const std::string_view annee : {"1899", "1900", "1901", "", "?", "-44", "190?"})
        F().Creer(Sexe::Homme, "Nom", "P", annee);
    SelectionExport selection{B()};
    selection.MarquerTous();
    // "190?" stands behind "1900": in doubt somebody is left out.
    CHECK(Ecrits(selection.Choix({.ecarter1900 = true}).choisis) == "xx.xxx.");
    CHECK(Ecrits(selection.Choix({}).choisis) == "xxxxxxx");
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: a whole base goes with all its events and documents") {
    const NoOrdre n = F().Creer(Sexe::Homme, "Nom", "P");
    SelectionExport selection{B()};
    SUBCASE("unless somebody is left out") {
        selection.MarquerTous();
        CHECK(selection.Choix({}).complet);
        CHECK_FALSE(selection.Choix({.complet = true, .ecarter1900 = true}).complet);
    }
    SUBCASE("a part of it only when that is asked for") {
        selection.MarquerListe(std::vector{n});
        CHECK_FALSE(selection.Choix({}).complet);
        CHECK(selection.Choix({.complet = true}).complet);
        CHECK_FALSE(selection.Choix({.complet = true, .ecarter1900 = true}).complet);
    }
    SUBCASE("and is none any more once it is emptied") {
        selection.MarquerTous();
        selection.Vider();
        CHECK_FALSE(selection.Choix({}).complet);
    }
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: links to a person born after 1900 are left out") {
    const NoOrdre pere = F().Creer(Sexe::Homme, "Nom", "Paul", "1875");
    const NoOrdre fils = F().Creer(Sexe::Homme, "Nom", "Luc", "1901");
    F().Parents(fils, pere, {});
    F().Lier(pere, fils, "WITN");
    SelectionExport selection{B()};
    selection.MarquerTous();
    const ReglagesSelection reglages{.ecarter1900 = true};
    const OptionsGedcom options{selection.Choix(reglages), JeuExport::Ansi, true};
    std::string octets;
    ComptesExport comptes;
    REQUIRE(ComposerGedcom(session, "x.ged", options, octets, comptes));
    CHECK(octets.find("@I2@") == std::string::npos);
    CHECK(octets.find("CHIL") == std::string::npos);
    // What is left of the family is the parent who is written.
    CHECK(octets.find("1 FAMS @F1@\r\n0 @F1@ FAM\r\n1 HUSB @I1@\r\n0 TRLR") != std::string::npos);
    CHECK(comptes.individus == 1);
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: a starting person and parents that do not exist") {
    const NoOrdre n = F().Creer(Sexe::Homme, "Nom", "P");
    B().R_PERE.EcrireCellule(n, NoOrdre{60000});
    SelectionExport selection{B()};
    selection.MarquerParente(NoOrdre{}, SensExport::Ascendants, 3);
    selection.MarquerParente(NoOrdre{2}, SensExport::Ascendants, 3);
    CHECK(selection.NbMarques() == 0);
    selection.MarquerParente(n, SensExport::Ascendants, 3);
    CHECK(Marques(selection) == "3");
    CHECK(selection.Marque(NoOrdre{60000}) == ' ');
}

TEST_CASE_FIXTURE(Bureau, "SelectionExport: one line of 20000 generations") {
    constexpr std::uint32_t Nombre = 20000;
    for (std::uint32_t n = 1; n <= Nombre; ++n) {
        const NoOrdre individu = B().NouvelIndividu();
        if (n > 1) {
            B().R_PERE.EcrireCellule(individu, NoOrdre{n - 1});
            B().R_ENFANT.ModifierListe(NoOrdre{n - 1}, individu, storage::ActionListe::Ajouter);
        }
    }
    SelectionExport selection{B()};
    selection.MarquerParente(NoOrdre{Nombre}, SensExport::Ascendants, Nombre);
    CHECK(selection.NbRetenus() == Nombre);
    selection.Vider();
    selection.MarquerParente(NoOrdre{1}, SensExport::Descendants, Nombre);
    CHECK(selection.NbRetenus() == Nombre);
    selection.Vider();
    selection.MarquerParente(NoOrdre{1}, SensExport::Descendants, 1000);
    CHECK(selection.NbRetenus() == 1000);
    CHECK(selection.NbMarques() == 1001);
}

#include "app/Calculer.h"

#include "doublures/MotsDeTest.h"

#include <initializer_list>
#include <sstream>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::outil;

namespace {

Calcul Demander(std::string_view operation, std::initializer_list<std::string> arguments) {
    const std::vector<std::string> liste(arguments);
    return Calculer(operation, liste, essais::MotsFrancais());
}

std::string Reponse(std::string_view operation, std::initializer_list<std::string> arguments) {
    const Calcul calcul = Demander(operation, arguments);
    CHECK(calcul.correct);
    return calcul.texte;
}

}  // namespace

TEST_CASE("Calculer: each operation answers as its rule does") {
    CHECK(Reponse("Replie", {"Éric"}) == "ERIC");
    CHECK(Reponse("BlancsEnPoints", {" a b "}) == "a.b");
    CHECK(Reponse("PointsEnBlancs", {".a."}) == " a ");
    CHECK(Reponse("ClePhonetique", {"DUPONT"}) == "DBM0");
    CHECK(Reponse("CapitaliseNom", {"JEAN DE LA TOUR", "N"}) == "Jean de la Tour");
    CHECK(Reponse("CleNom", {"de La Tour", "1"}) == "Tour.(de.la)");
    CHECK(Reponse("CleNom", {"de La Tour", "0"}) == "de.La.Tour");
    CHECK(Reponse("ClesProches", {"DBM0", "DBR0"}) == "true");
    CHECK(Reponse("ClesProches", {"DBM0", "SRL0"}) == "false");
    CHECK(Reponse("CleTri", {"Dupont", "Zoé", "44", "1", "0"}) == "0044 DUPONT ZOE");
    CHECK(Reponse("CleTri", {"de Tour", "Zoé", "44", "2", "1"}) == "TOUR (DE) ZOE");
    CHECK(Reponse("CleTri", {"Dupont", "Zoé", "44", "", "0"}).empty());
    CHECK(Reponse("CvtPremierDuMois", {"1er mars"}) == "1 mars");
    CHECK(Reponse("CvtDateAffichage", {"01/8"}) == "1er août");
    CHECK(Reponse("CvtDateLocale", {"ABT 44 BC"}) == "vers -44");
    CHECK(Reponse("CvtDateMotsCles", {"1er août 1820"}) == "1 AUG 1820");
    CHECK(Reponse("CvtSaisieDate", {"29 février 1821"}) == "29 FEB 1821");
    CHECK(Reponse("PermuteJourMois", {"12/3", "mm/dd/yyyy"}) == "3/12");
    CHECK(Reponse("DateValide", {"12/3/1820"}) == "true");
    CHECK(Reponse("DateValide", {"12/3/1820", "mm/dd/yyyy"}) == "false");
    CHECK(Reponse("DateVersSerie", {"1/1/100"}) == "-657434");
    CHECK(Reponse("NomJourSemaine", {"1er mars 1820"}) == "mercredi ");
    CHECK(Reponse("AnneeTri", {"-44"}) == "-044");
    CHECK(Reponse("AnneeTriDeces", {"1?50"}) == "Z   ");
    CHECK(Reponse("RepublicainVersGregorien", {"1", "1", "1"}) == "22 9 1");
    CHECK(Reponse("GregorienVersRepublicain", {"1", "1", "2"}) == "12 4 1");
}

TEST_CASE("Calculer: a refused calendar date answers its message") {
    CHECK(Reponse("RepublicainVersGregorien", {"31", "1", "1"}) == "message 727");
    CHECK(Reponse("GregorienVersRepublicain", {"x", "1", "1"}) == "message 726");
    CHECK(Reponse("GregorienVersRepublicain", {"1", "", "1"}) == "message 728");
    CHECK(Reponse("GregorienVersRepublicain", {"1", "1", "99999999999999"}) == "message 729");
    CHECK(Reponse("GregorienVersRepublicain", {" +1 ", "1", "2"}) == "12 4 1");
}

TEST_CASE("Calculer: no date has an empty serial, and an empty order is the usual one") {
    CHECK(Reponse("DateVersSerie", {"mars 1820"}).empty());
    CHECK(Reponse("DateVersSerie", {"30/12/1899", ""}) == "0");
}

TEST_CASE("Calculer: escapes are read in arguments and written in answers") {
    CHECK(Reponse("Replie", {R"(a\tb\nc\rd\\e)"}) == R"(A\tB\nC\rD\\E)");
    CHECK(Reponse("Replie", {R"(\xe9\xE9\x00\x1f\x7F)"}) == R"(EE\x00\x1F\x7F)");
    CHECK(Reponse("Replie", {R"(\x81\x8D\x8F\x90\x9D\x80)"}) == R"(\x81\x8D\x8F\x90\x9D€)");
    CHECK(Reponse("PointsEnBlancs", {"œ…’"}) == "œ…’");
}

TEST_CASE("Calculer: every byte goes in and comes out as itself") {
    constexpr std::string_view Hexa = "0123456789ABCDEF";
    for (std::size_t octet = 0; octet < 256; ++octet) {
        const std::string ecrit = std::string("a\\x") + Hexa[octet / 16] + Hexa[octet % 16] + "b";
        const std::string une = Reponse("PermuteJourMois", {ecrit});
        CAPTURE(ecrit);
        CHECK(une.find_first_of("\t\n\r") == std::string::npos);
        CHECK(Reponse("PermuteJourMois", {une}) == une);
    }
}

TEST_CASE("Calculer: a wrong use is refused with its reason") {
    CHECK_FALSE(Demander("Rien", {"x"}).correct);
    CHECK_FALSE(Demander("replie", {"x"}).correct);
    CHECK_FALSE(Demander("Replie", {}).correct);
    CHECK_FALSE(Demander("Replie", {"a", "b"}).correct);
    CHECK_FALSE(Demander("CleTri", {"a", "b", "c", "1"}).correct);
    CHECK_FALSE(Demander("DateValide", {"12/3/1820", "yyyy"}).correct);
    for (const std::string faux : {"\\", "\\q", "\\x", "\\x4", "\\xG0"})
        CHECK_MESSAGE(!Demander("Replie", {faux}).correct, faux);
    CHECK(Demander("Ri\ten", {"x"}).texte == "opération inconnue : Ri\\ten");
}

TEST_CASE("ServirCalculs: one answer a line, and the status 0") {
    std::istringstream entree("ClePhonetique\tDUPONT\nReplie\t\nCleNom\td'Arc\t1");
    std::ostringstream sortie;
    CHECK(ServirCalculs(entree, sortie, essais::MotsFrancais()) == 0);
    CHECK(sortie.str() == "DBM0\n\nArc.(d)\n");
}

TEST_CASE("ServirCalculs: a wrong line is told on its line, the others are served") {
    std::istringstream entree("\nReplie\ta\nReplie\n");
    std::ostringstream sortie;
    CHECK(ServirCalculs(entree, sortie, essais::MotsFrancais()) == 2);
    CHECK(sortie.str() ==
          "erreur: opération inconnue : \nA\n"
          "erreur: nombre d'arguments : 0 au lieu de 1\n");
}

TEST_CASE("ServirCalculs: no line, no answer") {
    std::istringstream entree("");
    std::ostringstream sortie;
    CHECK(ServirCalculs(entree, sortie, essais::MotsFrancais()) == 0);
    CHECK(sortie.str().empty());
}

#include "values/FormesNom.h"

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

/// A person of whom everything is known, and two numbers.
void ValeursDeJeanne(std::string_view jeton, const SortieValeur& sortie) {
    if (jeton == "FNAM") sortie("Jeanne");
    if (jeton == "BIRN") sortie("Durand");
    if (jeton == "OFNM") sortie("");
    if (jeton == "OCCU") sortie("fileuse");
    if (jeton == "NUMB") {
        sortie("[12]");
        sortie("{3}");
    }
}

std::string NomDe(std::string_view modele) {
    return ComposerNom(LireModeleNom(modele), ValeursDeJeanne);
}

}  // namespace

TEST_CASE("LireModeleNom: tokens end with a slash, the last one may do without") {
    CHECK(LireModeleNom("FNAM/BIRN/") == ModeleNom{"FNAM", "BIRN"});
    CHECK(LireModeleNom("FNAM/BIRN") == ModeleNom{"FNAM", "BIRN"});
    CHECK(LireModeleNom("").empty());
}

TEST_CASE("LireModeleNom: an empty slot ends the list, and so does the tenth token") {
    CHECK(LireModeleNom("FNAM//BIRN/") == ModeleNom{"FNAM"});
    CHECK(LireModeleNom("/FNAM/").empty());
    CHECK(LireModeleNom("1/2/3/4/5/6/7/8/9/10/11/").size() == 10);
}

TEST_CASE("EcrireModeleNom: gives back what is read") {
    CHECK(EcrireModeleNom(LireModeleNom("NUMB/BIRN/FNAM/")) == "NUMB/BIRN/FNAM/");
    CHECK(EcrireModeleNom({}).empty());
}

TEST_CASE("ComposerNom: the values stand in the order of the template, one blank between them") {
    CHECK(NomDe("FNAM/BIRN/") == "Jeanne Durand");
    CHECK(NomDe("BIRN/FNAM/OCCU/") == "Durand Jeanne fileuse");
    CHECK(NomDe("NUMB/BIRN/") == "[12] {3} Durand");
}

TEST_CASE("ComposerNom: an empty value and an unknown token add nothing") {
    CHECK(NomDe("FNAM/OFNM/BIRN/") == "Jeanne Durand");
    CHECK(NomDe("XXXX/BIRN/") == "Durand");
    CHECK(NomDe("").empty());
    CHECK(NomDe("OFNM/").empty());
}

TEST_CASE("MarqueDate: the first three characters of the stored day and month decide") {
    CHECK(MarqueDate("BEF 12 MAR") == "<");
    CHECK(MarqueDate("BET 1800 AND") == "<");
    CHECK(MarqueDate("AFT") == ">");
    CHECK(MarqueDate("ABT") == "~");
    CHECK(MarqueDate("EST") == "~");
    CHECK(MarqueDate("CAL") == "~");
    CHECK(MarqueDate("12/3").empty());
    CHECK(MarqueDate("abt").empty());
    CHECK(MarqueDate(" ABT").empty());
    CHECK(MarqueDate("AB").empty());
}

TEST_CASE("DatesDeVie: both years, one of them, or none") {
    CHECK(DatesDeVie({"1820", "ABT", "1890", "BEF 3 MAR"}) == "~1820-<1890");
    CHECK(DatesDeVie({" 850", "", "", "AFT"}) == "o850");
    CHECK(DatesDeVie({"", "ABT", "1890", "AFT"}) == "+>1890");
    CHECK(DatesDeVie({"", "12/3", "", "AFT"}).empty());
    CHECK(DatesDeVie({"   ", "", "  ", ""}).empty());
}

TEST_CASE("NomEtDates: a birth alone is followed by a blank, the other forms are not") {
    CHECK(NomEtDates("Jeanne Durand", {"1820", "", "1890", "ABT"}) == "Jeanne Durand (1820-~1890)");
    CHECK(NomEtDates("Jeanne Durand", {"1820", "EST", "", ""}) == "Jeanne Durand (o~1820) ");
    CHECK(NomEtDates("Jeanne Durand", {"", "", "1890", "BET"}) == "Jeanne Durand (+<1890)");
}

TEST_CASE("NomEtDates: without years the name and its blank stand alone") {
    CHECK(NomEtDates("Jeanne Durand", {"", "12/3", " ", ""}) == "Jeanne Durand ");
    CHECK(NomEtDates("", {"", "", "", ""}) == " ");
}

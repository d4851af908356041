#include "values/Noms.h"

#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

ReglesNoms Deplacer() {
    ReglesNoms regles = ReglesInitiales();
    regles.deplacer = true;
    return regles;
}

Particule& ParticuleDe(ReglesNoms& regles, std::string_view mot) {
    return *std::ranges::find(regles.particules, mot, &Particule::mot);
}

}  // namespace

TEST_CASE("FaireParticule: the first flag is for first names, the second for surnames") {
    const Particule prenoms = FaireParticule("de", "1 0");
    CHECK(prenoms.prenoms);
    CHECK_FALSE(prenoms.noms);
    const Particule noms = FaireParticule("Ébé"_1252, " 0  1 ");
    CHECK_FALSE(noms.prenoms);
    CHECK(noms.noms);
    CHECK(noms.replie == "EBE");
}

TEST_CASE("FaireParticule: a missing flag is no") {
    CHECK_FALSE(FaireParticule("de", "").prenoms);
    CHECK(FaireParticule("de", "1").prenoms);
    CHECK_FALSE(FaireParticule("de", "1").noms);
}

TEST_CASE("ReglesInitiales: 41 words, all for both, left where they are") {
    const ReglesNoms regles = ReglesInitiales();
    CHECK(regles.particules.size() == 41);
    CHECK(regles.particules.front().mot == "af");
    CHECK(regles.particules.back().mot == "zu");
    CHECK(std::ranges::all_of(regles.particules, &Particule::noms));
    CHECK(std::ranges::all_of(regles.particules, &Particule::prenoms));
    CHECK_FALSE(regles.deplacer);
}

TEST_CASE("CapitaliseNom: JEAN DE LA TOUR keeps its particles in lower case") {
    CHECK(CapitaliseNom("JEAN DE LA TOUR", "N", ReglesInitiales()) == "Jean de la Tour");
}

TEST_CASE("CapitaliseNom: louis xiv keeps its number in capitals in both modes") {
    CHECK(CapitaliseNom("louis xiv", "P", ReglesInitiales()) == "Louis XIV");
    CHECK(CapitaliseNom("louis xiv", "N", ReglesInitiales()) == "Louis XIV");
}

TEST_CASE("CapitaliseNom: another mode applies no particle") {
    CHECK(CapitaliseNom("JEAN DE LA TOUR", "", ReglesInitiales()) == "Jean De La Tour");
    CHECK(CapitaliseNom("JEAN DE LA TOUR", "n", ReglesInitiales()) == "Jean De La Tour");
}

TEST_CASE("CapitaliseNom: a flag limits a particle to its kind of name") {
    ReglesNoms regles;
    regles.particules = {FaireParticule("de", "1 0")};
    CHECK(CapitaliseNom("jean de tour", "P", regles) == "Jean de Tour");
    CHECK(CapitaliseNom("jean de tour", "N", regles) == "Jean De Tour");
}

TEST_CASE("CapitaliseNom: each of the six separators ends a word, no other character does") {
    CHECK(CapitaliseNom("a b'c-d_e’f´g.h(i"_1252, "", {}) == "A B'C-D_E’F´G.h(i"_1252);
    CHECK(CapitaliseNom("jeanne d'arc", "P", ReglesInitiales()) == "Jeanne d'Arc");
    CHECK(CapitaliseNom("d’ÉON"_1252, "N", ReglesInitiales()) == "d’Éon"_1252);
}

TEST_CASE("CapitaliseNom: a particle inside a word or before a dot is left alone") {
    CHECK(CapitaliseNom("DELAUNAY", "N", ReglesInitiales()) == "Delaunay");
    CHECK(CapitaliseNom("de.Tour", "N", ReglesInitiales()) == "De.tour");
}

TEST_CASE("CapitaliseNom: a particle is found through case and accents, and at every place") {
    CHECK(CapitaliseNom("DÉ DE dé"_1252, "N", ReglesInitiales()) == "de de de");
}

TEST_CASE("CapitaliseNom: empty texts, blanks and an empty entry of the table are harmless") {
    ReglesNoms regles;
    regles.particules = {FaireParticule("", "1 1"), FaireParticule("d'", "1 1")};
    CHECK(CapitaliseNom("", "N", regles).empty());
    CHECK(CapitaliseNom("  ", "N", regles) == "  ");
    CHECK(CapitaliseNom("d'", "N", regles) == "d'");
    // An entry that reaches as far as the blank added at the end has no separator behind it.
    regles.particules = {FaireParticule("d' ", "1 1")};
    CHECK(CapitaliseNom("d'", "N", regles) == "D'");
}

TEST_CASE("CleNom: one word with dots, in its own case") {
    CHECK(CleNom("de La Tour", ReglesInitiales()) == "de.La.Tour");
    CHECK(CleNom(" Saint-Martin d'Août_x’y´z "_1252, ReglesInitiales()) ==
          "Saint.Martin.d.Août.x.y.z"_1252);
    CHECK(CleNom("-x", ReglesInitiales()) == ".x");
    CHECK(CleNom("", ReglesInitiales()).empty());
}

TEST_CASE("CleNom: particles at the head go behind the name in the order of the table") {
    CHECK(CleNom("de La Tour", Deplacer()) == "Tour.(de.la)");
    CHECK(CleNom("DE LA TOUR", Deplacer()) == "TOUR.(de.la)");
    CHECK(CleNom("d'Arc", Deplacer()) == "Arc.(d)");
    CHECK(CleNom("Tour de", Deplacer()) == "Tour.de");
}

TEST_CASE("CleNom: a particle that does not count in surnames stays") {
    ReglesNoms regles = Deplacer();
    ParticuleDe(regles, "la").noms = false;
    CHECK(CleNom("de La Tour", regles) == "La.Tour.(de)");
}

TEST_CASE("CleNom: one that comes to the head after its turn stays") {
    // "la" stands after "de" in the table, so behind a "la" no "de" is looked for.
    CHECK(CleNom("la de Tour", Deplacer()) == "de.Tour.(la)");
}

TEST_CASE("CleNom: the same particle twice is taken twice") {
    CHECK(CleNom("de de Tour", Deplacer()) == "Tour.(de.de)");
}

TEST_CASE("CleNom: a surname that is only a particle is the particle in parentheses") {
    CHECK(CleNom("de", Deplacer()) == "(de)");
    CHECK(CleNom("De", Deplacer()) == "(de)");
}

TEST_CASE("CleNomDans: the form is added behind what the buffer holds, which stays") {
    std::string tampon = "a-b ";
    CleNomDans(tampon, "d'Arc", ReglesInitiales());
    CHECK(tampon == "a-b d.Arc");
    CleNomDans(tampon, "d'Arc", Deplacer());
    CHECK(tampon == "a-b d.ArcArc.(d)");
}

TEST_CASE("CleTri: mode 2 gives the folded name and first name") {
    CHECK(CleTri("Saint-Éloi"_1252, "Zoé"_1252, "1820", TypeTri::Nom, ReglesInitiales()) ==
          "SAINT ELOI ZOE");
    CHECK(CleTri("de Tour", "Zoé"_1252, "1820", TypeTri::Nom, Deplacer()) == "TOUR (DE) ZOE");
}

TEST_CASE("CleTri: mode 1 puts the year before the name") {
    CHECK(CleTri("Dupont", "Jean", "44", TypeTri::Naissance, ReglesInitiales()) ==
          "0044 DUPONT JEAN");
    CHECK(CleTri("", "", "", TypeTri::Naissance, ReglesInitiales()) == "0000  ");
    CHECK(CleTri("Dupont", "", "-44", TypeTri::Naissance, ReglesInitiales()) == "-044 DUPONT ");
}

TEST_CASE("CleTri: mode 0 has no key, nor has a value that a damaged file may hold") {
    CHECK(CleTri("Dupont", "Jean", "1820", TypeTri::Creation, ReglesInitiales()).empty());
    CHECK(CleTri("Dupont", "Jean", "1820", TypeTri{'\xFF'}, ReglesInitiales()).empty());
}

TEST_CASE("CleTri: is the folded CleNom for every separator, with and without moved particles") {
    for (const ReglesNoms& regles : {ReglesInitiales(), Deplacer()})
        for (const std::string_view nom :
             {"a b"_1252, " -a_b' "_1252, "d’´x."_1252, "(de)"_1252, ""_1252, "de la"_1252})
            CHECK(CleTri(nom, "p", "", TypeTri::Nom, regles) == Replie(CleNom(nom, regles) + " p"));
}

TEST_CASE("CleTriDans: the key is added behind what the buffer holds") {
    std::string tampon = "x";
    CleTriDans(tampon, "a", "b", "", TypeTri::Nom, ReglesInitiales());
    CHECK(tampon == "xA B");
}

#include "interchange/gedcom/NomGedcom.h"

#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

TEST_CASE("LireNomGedcom: the surname between slashes") {
    const NomLu nom = LireNomGedcom("Jean Pierre Marie /de la Tour/", false);
    CHECK(nom.Ligne() == "de la Tour;Jean;Pierre Marie");
    CHECK(nom.motsCles == "|de.la.Tour ¶Jean.Pierre.Marie"_1252);
}

TEST_CASE("LireNomGedcom: a surname alone has an empty given part") {
    const NomLu nom = LireNomGedcom("/Dupont/", false);
    CHECK(nom.Ligne() == "Dupont;;");
    CHECK(nom.motsCles == "|Dupont");
}

TEST_CASE("LireNomGedcom: a first name and two slashes give the record of the first name alone") {
    CHECK(LireNomGedcom("Jean //", false).Ligne() == "Jean;;");
    CHECK(LireNomGedcom("Jean //", false).motsCles.empty());
    CHECK(LireNomGedcom("//", false).Ligne() == "?;;");
    CHECK(LireNomGedcom("Jean Dupont", false).Ligne() == "Jean Dupont;;");
}

TEST_CASE("LireNomGedcom: given names behind the surname when it comes first") {
    CHECK(LireNomGedcom("/Dupont/ Jean Paul", false).Ligne() == "Dupont;Jean;Paul");
    CHECK(LireNomGedcom("Jean /Dupont/ Jr", false).Ligne() == "Dupont;Jean;");
    CHECK(LireNomGedcom("Jean /Dupont", false).Ligne() == "Dupont;Jean;");
}

TEST_CASE("LireNomGedcom: with the first name alone as keyword the blanks stay") {
    CHECK(LireNomGedcom("Jean Pierre /Dupont/", true).motsCles == "|Dupont ¶Jean Pierre"_1252);
}

TEST_CASE("NomLu: separators and over-long names cannot break the name line") {
    CHECK(LireNomGedcom("Jean;Paul /Du#pont/", false).Ligne() == "Du-pont;Jean,Paul;");
    CHECK(LireNomGedcom(std::string(5000, 'a') + " /Dupont/", false).Ligne().size() < 1000);
}

TEST_CASE("LireNomGedcom: what stands in no part of the name is told") {
    CHECK(LireNomGedcom("Jean /Dupont/", false).entier);
    CHECK(LireNomGedcom("/Dupont/ Jean", false).entier);
    CHECK(LireNomGedcom("Jean //", false).entier);
    CHECK_FALSE(LireNomGedcom("Jean /Dupont/ fils", false).entier);
    CHECK_FALSE(LireNomGedcom("Ammon // King of Judah", false).entier);
}

TEST_CASE("RepeteLeNom: case, accents and punctuation apart, by whole words") {
    CHECK(RepeteLeNom("JEAN, Emile", "Jean Émile /Dupont/"_1252));
    CHECK(RepeteLeNom("", "Jean /Dupont/"));
    CHECK_FALSE(RepeteLeNom("Jeanne", "Jean /Dupont/"));
    CHECK_FALSE(RepeteLeNom("Jea", "Jean /Dupont/"));
}

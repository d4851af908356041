#include "values/LangueDates.h"

#include "doublures/MotsDeTest.h"
#include "values/Texte1252.h"

#include <array>

#include <doctest/doctest.h>

using namespace dorvane;
using essais::MotsAnglais;
using essais::MotsFrancais;

namespace {

constexpr OrdreDate Jour = OrdreDate::JourMoisAnnee;

std::string EnAnglais(std::string_view saisie) {
    return TraduireJourMois(saisie, Jour, MotsFrancais(), MotsAnglais());
}
std::string EnFrancais(std::string_view saisie) {
    return TraduireJourMois(saisie, Jour, MotsAnglais(), MotsFrancais());
}
std::string EvenementEnAnglais(std::string_view saisie) {
    return TraduireDateEvenement(saisie, Jour, MotsFrancais(), MotsAnglais());
}

}  // namespace

TEST_CASE("TraduireJourMois: words of dates are those of the other language, both ways") {
    CHECK(EnAnglais("12 mars") == "12 March");
    CHECK(EnAnglais("1er août"_1252) == "1st August");
    CHECK(EnAnglais("vers 12 mars") == "about 12 March");
    CHECK(EnFrancais("12 March") == "12 mars");
    CHECK(EnFrancais("1st August") == "1er août"_1252);
}

TEST_CASE("TraduireJourMois: what is no date yet stays as typed") {
    for (const std::string_view texte :
         {""_1252, "12"_1252, "12/3"_1252, "12 ma"_1252, "Pentecôte"_1252, " 12/3 "_1252}) {
        CAPTURE(texte);
        CHECK(EnAnglais(texte) == texte);
        CHECK(EnFrancais(texte) == texte);
    }
}

TEST_CASE("TraduireJourMois: what is stored is the same before and after") {
    for (const std::string_view texte :
         {"12 mars"_1252, "1er mai"_1252, "vers 12 mars"_1252, "estimée 3 août"_1252,
          "entre 1 mai et 3 juin"_1252, "avant"_1252, "après mai"_1252, "BET 1 AND 2"_1252,
          "29 février"_1252, "12 ma"_1252, "mars"_1252, "vers la Toussaint"_1252,
          "calculée 5 déc"_1252}) {
        CAPTURE(texte);
        const std::string avant = CvtSaisieDate(texte, Jour, MotsFrancais());
        CHECK(CvtSaisieDate(EnAnglais(texte), Jour, MotsAnglais()) == avant);
    }
}

TEST_CASE("TraduireDateEvenement: a whole date changes its words, anything else stays") {
    CHECK(EvenementEnAnglais("12 mars 1820") == "12 March 1820");
    CHECK(EvenementEnAnglais("1er mai 1820") == "1st May 1820");
    for (const std::string_view texte :
         {""_1252, "12 mars"_1252, "12 mar"_1252, "12/3/1820"_1252, "1820"_1252, "bientôt"_1252}) {
        CAPTURE(texte);
        CHECK(EvenementEnAnglais(texte) == texte);
    }
}

#include "values/Annees.h"

#include <string>
#include <string_view>

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

std::string Cellule(std::string_view annee) {
    return std::string(TexteDe(CelluleAnnee(annee)));
}
std::string Tri(std::string_view annee) {
    return std::string(TexteDe(AnneeTri(annee)));
}
std::string TriDeces(std::string_view annee) {
    return std::string(TexteDe(AnneeTriDeces(annee)));
}

}  // namespace

TEST_CASE("CelluleAnnee: blanks on the left up to 4, and a year of 5 characters loses its last") {
    CHECK(Cellule("1820") == "1820");
    CHECK(Cellule("44") == "  44");
    CHECK(Cellule("-44") == " -44");
    CHECK(Cellule("") == "    ");
    CHECK(Cellule("18205") == "1820");
    CHECK(Cellule("18?") == " 18?");
}

TEST_CASE("AnneeTri: -44 in a year field gives -044, an empty field gives 0000") {
    CHECK(Tri("-44") == "-044");
    CHECK(Tri("") == "0000");
    CHECK(Tri("1820") == "1820");
    CHECK(Tri("44") == "0044");
}

TEST_CASE("AnneeTri: a hyphen at any place goes to the head") {
    CHECK(Tri("-100") == "-100");
    CHECK(Tri("1-20") == "-020");
    CHECK(Tri("182-") == "-820");
    CHECK(Tri("----") == "-000");
}

TEST_CASE("AnneeTri: negative years stand before 0 and in the order of their characters") {
    CHECK(Tri("-44") < Tri(""));
    CHECK(Tri("-44") < Tri("-100"));
}

TEST_CASE("AnneeTri: control bytes of a damaged cell count as blanks, other characters stay") {
    CHECK(Tri(std::string_view("\0\0\t8", 4)) == "0008");
    CHECK(Tri("18 0") == "1800");
    CHECK(Tri("\xA0"
              "18?") ==
          "\xA0"
          "18?");
}

TEST_CASE("AnneeTriDeces: what does not begin with 3 numeric characters stands after all others") {
    CHECK(TriDeces("1?50") == "Z   ");
    CHECK(TriDeces("vers") == "Z   ");
    CHECK(TriDeces("?") == "000?");
    CHECK(TriDeces("18x0") == "Z   ");
}

TEST_CASE("AnneeTriDeces: a readable year, an empty one and a doubtful last digit stay") {
    CHECK(TriDeces("185?") == "185?");
    CHECK(TriDeces("-44") == "-044");
    CHECK(TriDeces("+123") == "+123");
    CHECK(TriDeces("") == "0000");
    CHECK(TriDeces("1820") == "1820");
}

#include "values/Phonetique.h"

#include "values/Texte1252.h"

#include <array>
#include <utility>

#include <doctest/doctest.h>

using namespace dorvane;

TEST_CASE("ClePhonetique: H and HH give H000") {
    CHECK(ClePhonetique("H") == "H000");
    CHECK(ClePhonetique("HH") == "H000");
}

TEST_CASE("ClePhonetique: BEAU does not become BO, only the head of a name is looked at") {
    CHECK(ClePhonetique("BEAU") == "B000");
    CHECK(ClePhonetique("EAUBO") == "OB00");
    CHECK(ClePhonetique("AUBO") == "OB00");
}

TEST_CASE("ClePhonetique: DUPONT and DUPOND have the same key") {
    CHECK(ClePhonetique("DUPONT") == "DBM0");
    CHECK(ClePhonetique("DUPOND") == "DBM0");
    CHECK(ClePhonetique("Düpont"_1252) == "DBM0");
}

TEST_CASE("ClePhonetique: BASTIEN loses the letter behind its pair") {
    // "BASTIEN" is read as "BATEN": the key has no place for the I, and the same as "BATEN".
    CHECK(ClePhonetique("BASTIEN") == "BDM0");
    // With a consonant behind the pair the loss shows in the key.
    CHECK(ClePhonetique("BASTRALE") == "BDL0");
}

TEST_CASE("ClePhonetique: the rest is cut behind the first such letter, even one before the pair") {
    // "TESTUL": TE, T, then what follows the place after the first T: "STUL".
    CHECK(ClePhonetique("TESTUL") == "TDSD");
}

TEST_CASE("ClePhonetique: a pair at the head is not reduced, nor is a second one behind it") {
    CHECK(ClePhonetique("STASTNY") == "SDSD");
}

TEST_CASE("ClePhonetique: each rule of letters gives its key") {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 41> Cas{{
        {"PHILIP", "FLB0"},    {"CHARLA", "SRL0"}, {"ROCE", "RS00"},
        {"LUCIA", "LS00"},     {"LUCYA", "LS00"},  {"AGNEL", "AML0"},
        {"OSNALA", "OML0"},    {"OLNABA", "OMB0"}, {"OSMADA", "OMD0"},
        {"BOULANGER", "BLMG"}, {"CARO", "KR00"},   {"CECILE", "SL00"},
        {"GERALD", "JRL0"},    {"GIRAL", "JRL0"},  {"GYRAL", "JRL0"},
        {"YVON", "IFM0"},      {"QUERU", "KR00"},  {"WEBA", "VB00"},
        {"ENBO", "1B00"},      {"EMPO", "1B00"},   {"ANDO", "1D00"},
        {"AMBO", "1B00"},      {"ANNE", "AM00"},   {"ANOR", "AMR0"},
        {"INGO", "2G00"},      {"UMBO", "2B00"},   {"IMMO", "IM00"},
        {"OURO", "3R00"},      {"OUI", "O000"},    {"AIN", "2000"},
        {"AINBO", "2B00"},     {"AINO", "AM00"},   {"AINNO", "AM00"},
        {"EIMBO", "2B00"},     {"DUPAS", "DB00"},  {"BARX", "BR00"},
        {"BOUX", "B000"},      {"CLERC", "KLR0"},  {"ABCDEFGHIJKLMNOP", "ABCD"},
        {"BOB", "B000"},       {"(A)", "(000"},
    }};
    for (const auto& [nom, cle] : Cas) {
        CAPTURE(nom);
        CHECK(ClePhonetique(nom) == cle);
    }
}

TEST_CASE("ClePhonetique: a third letter that is missing is no vowel") {
    CHECK(ClePhonetique("AN") == "1000");
    CHECK(ClePhonetique("IN") == "2000");
    CHECK(ClePhonetique("OU") == "3000");
}

TEST_CASE("ClePhonetique: an empty name, and one of separators, gives 0000") {
    CHECK(ClePhonetique("") == "0000");
    CHECK(ClePhonetique("   ") == "0000");
    CHECK(ClePhonetique("-'.") == "0000");
}

TEST_CASE("ClePhonetique: a name that is rewritten to nothing gives 0000, not a crash") {
    CHECK(ClePhonetique("HS") == "0000");
    CHECK(ClePhonetique("HX") == "0000");
}

TEST_CASE("ClePhonetique: every pair of bytes gives 4 characters") {
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            const std::string nom{static_cast<char>(a), static_cast<char>(b)};
            if (ClePhonetique(nom).size() != 4) FAIL("bytes ", a, " ", b);
        }
}

TEST_CASE("ClesProches: two keys that differ in one letter in position 2 to 4 are close") {
    CHECK(ClesProches("DBM0", "DRM0"));
    CHECK(ClesProches("DBM0", "DBR0"));
    CHECK(ClesProches("DBM0", "DBML"));
}

TEST_CASE("ClesProches: 0000 is close to every key") {
    CHECK(ClesProches("0000", "DBM0"));
    CHECK(ClesProches("1RLS", "0000"));
}

TEST_CASE("ClesProches: the first letters are compared by their class") {
    CHECK(ClesProches("PRLD", "BRLS"));
    CHECK(ClesProches("ARLD", "ERLS"));
    CHECK_FALSE(ClesProches("PRLD", "DRMS"));
}

TEST_CASE("ClesProches: one letter more in either key is tolerated, wherever it stands") {
    CHECK(ClesProches("DMLB", "DRML"));
    CHECK(ClesProches("DRML", "DMLB"));
    CHECK(ClesProches("RBMG", "DRBM"));
    CHECK(ClesProches("DRBM", "RBMG"));
}

TEST_CASE("ClesProches: two letters of difference are too many") {
    CHECK_FALSE(ClesProches("DBM0", "DRL0"));
    CHECK_FALSE(ClesProches("DBMR", "LGSF"));
}

TEST_CASE("ClesProches: keys that are no keys are compared without reading past their end") {
    CHECK_FALSE(ClesProches("", "DBMR"));
    CHECK_FALSE(ClesProches("DB", "RLMS"));
    CHECK(ClesProches("DBMRS", "DBMRL"));
}

#include "values/Octets.h"

#include <doctest/doctest.h>

using namespace dorvane;

TEST_CASE("NumVersChaine: the most significant byte comes first") {
    CHECK(NumVersChaine2(0x0102) == "\x01\x02");
    CHECK(NumVersChaine4(0x01020304) == "\x01\x02\x03\x04");
    CHECK(NumVersChaine2(0) == std::string(2, '\0'));
    CHECK(NumVersChaine4(0xFFFFFFFF) == "\xFF\xFF\xFF\xFF");
}

TEST_CASE("NumVersChaine2: keeps the low 16 bits of a larger number") {
    CHECK(NumVersChaine2(0x10203) == "\x02\x03");
}

TEST_CASE("ChaineVersNum: gives back the number, and reads no byte past the width") {
    for (const std::uint32_t nombre : {0U, 1U, 255U, 256U, 32000U, 64000U, 65535U})
        CHECK(Chaine2VersNum(NumVersChaine2(nombre)) == nombre);
    for (const std::uint32_t nombre : {0U, 65536U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
        CHECK(Chaine4VersNum(NumVersChaine4(nombre)) == nombre);
    CHECK(Chaine2VersNum("\xFF\x01zz") == 0xFF01);
}

TEST_CASE("ChaineVersNum: a text that is too short reads as 0") {
    CHECK(Chaine2VersNum("") == 0);
    CHECK(Chaine2VersNum("\x01") == 0);
    CHECK(Chaine4VersNum("\x01\x02\x03") == 0);
}

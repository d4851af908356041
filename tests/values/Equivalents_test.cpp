#include "values/Equivalents.h"

#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;

TEST_CASE("EquivalentDans1252: a letter keeps the marks that the code page has") {
    CHECK(EquivalentDans1252(0x141) == "L");
    CHECK(EquivalentDans1252(0x1EBF) == "ê"_1252);
    CHECK(EquivalentDans1252(0x1C4) == "DZ");
    CHECK(EquivalentDans1252(0xFB01) == "fi");
    CHECK(EquivalentDans1252(0x2010) == "-");
}

TEST_CASE("EquivalentDans1252: nothing for other scripts and for what the page has itself") {
    CHECK(EquivalentDans1252(0x3B1).empty());
    CHECK(EquivalentDans1252(0x221E).empty());
    CHECK(EquivalentDans1252(0x241).empty());
    CHECK(EquivalentDans1252(0xE9).empty());
    CHECK(EquivalentDans1252(0).empty());
    CHECK(EquivalentDans1252(0x10FFFF).empty());
}

TEST_CASE("EquivalentDans1252: every Latin letter of the two extensions has one") {
    for (char32_t code = 0x100; code < 0x180; ++code) {
        CAPTURE(static_cast<unsigned>(code));
        CHECK((ChercherOctet(code) >= 0 || !EquivalentDans1252(code).empty()));
    }
}

TEST_CASE("ComposerDans1252: the pairs that make one letter") {
    CHECK(ComposerDans1252('e', 0x301) == u'é'_1252);
    CHECK(ComposerDans1252('S', 0x30C) == u'Š'_1252);
    CHECK(ComposerDans1252('c', 0x327) == u'ç'_1252);
    CHECK(ComposerDans1252('x', 0x301) == '\0');
}

TEST_CASE("EquivalentDans1252: a question mark is no equivalent of anything but itself") {
    for (char32_t code = 0; code < 0x30000; ++code) {
        if (code == 0xFF1F) continue;
        CAPTURE(static_cast<unsigned>(code));
        CHECK(EquivalentDans1252(code) != "?");
    }
}

TEST_CASE("EstMarque, EstInvisible: no character of the code page is one") {
    for (int octet = 0; octet < 256; ++octet) {
        const auto code = static_cast<char32_t>(
            octet >= 0x80 && octet < 0xA0 ? HautDe1252[static_cast<std::size_t>(octet) - 0x80]
                                          : static_cast<char32_t>(octet));
        CAPTURE(octet);
        CHECK_FALSE(EstMarque(code));
        CHECK_FALSE(EstInvisible(code));
    }
    CHECK(EstMarque(0x301));
    CHECK_FALSE(EstMarque(0x370));
    CHECK(EstInvisible(0x200B));
    CHECK(EstInvisible(0xFEFF));
}

#include "interchange/TablesDeCaracteres.h"

#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

TEST_CASE("EquivalentDans1252: a letter keeps the marks that the code page has") {
    CHECK(EquivalentDans1252(0x141) == "L");
    CHECK(EquivalentDans1252(0x1EBF) == "ê"_1252);
    CHECK(EquivalentDans1252(0x1C4) == "DZ");
    CHECK(EquivalentDans1252(0xFB01) == "fi");
    CHECK(EquivalentDans1252(0x2010) == "-");
}

TEST_CASE("EquivalentDans1252: nothing for other scripts and for what the page has itself") {
    CHECK(EquivalentDans1252(0x3B1).empty());
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

TEST_CASE("CodeDeEntite: by exact name") {
    CHECK(CodeDeEntite("eacute") == 0xE9);
    CHECK(CodeDeEntite("Eacute") == 0xC9);
    CHECK(CodeDeEntite("euro") == 0x20AC);
    CHECK(CodeDeEntite("EACUTE") == 0);
    CHECK(CodeDeEntite("") == 0);
}

TEST_CASE("CodeDe437, CodeDeMacintosh, CodeDeAnsel: 7-bit bytes stand for themselves") {
    for (unsigned octet = 0; octet < 0x80; ++octet) {
        const auto o = static_cast<unsigned char>(octet);
        CHECK(CodeDe437(o) == octet);
        CHECK(CodeDeMacintosh(o) == octet);
        CHECK(CodeDeAnsel(o) == octet);
    }
    CHECK(CodeDe437(0x82) == 0xE9);
    CHECK(CodeDeMacintosh(0x8E) == 0xE9);
    CHECK(CodeDeAnsel(0xE2) == 0x301);
    CHECK(CodeDeAnsel(0xA6) == 0x152);
}

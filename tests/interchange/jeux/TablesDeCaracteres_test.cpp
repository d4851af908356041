#include "interchange/jeux/TablesDeCaracteres.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

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

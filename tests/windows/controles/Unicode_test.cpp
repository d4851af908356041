#include "windows/controles/Unicode.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::windows;

TEST_CASE("Unicode: a text goes to Qt and comes back") {
    CHECK(TexteVersQt("Évêque de Nîmes, 5 €"_1252) == u"Évêque de Nîmes, 5 €");
    CHECK(QtVersTexte(u"Évêque"_qs).octets == "Évêque"_1252);
}

TEST_CASE("Unicode: an accent that stands apart joins its letter") {
    const TexteRecu recu = QtVersTexte(u"E\u0301vêque"_qs);
    CHECK(recu.octets == "Évêque"_1252);
    CHECK(recu.remplaces == 0);
}

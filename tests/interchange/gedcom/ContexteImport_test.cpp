#include "interchange/gedcom/ContexteImport.h"

#include "interchange/EssaiImport.h"
#include "messages/Messages.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE_FIXTURE(EssaiImport,
                  "TextesImport: labels of tags and tags of labels, in the language in use") {
    TextesImport textes{session};
    CHECK(textes.Libelle("BIRT") == "Naissance");
    CHECK(textes.Libelle("BIRT") == "Naissance");
    CHECK(textes.Libelle("XYZ") == "XYZ");
    CHECK(textes.Tag("Naissance") == "BIRT");
    CHECK(textes.Tag("naissance") == "naissance");
    CHECK(textes.Message(message::MotPage) == "Page");
    constexpr std::uint32_t JamaisDonne = 31999;
    CHECK(textes.Message(NoMessage{JamaisDonne}).empty());
}

TEST_CASE("PileEtiquettes: a line needs an open line just above it") {
    PileEtiquettes pile;
    const auto entrer = [&](std::uint32_t niveau, std::string_view etiquette) {
        return pile.Entrer(niveau, etiquette, CoderEtiquette(etiquette));
    };
    CHECK(entrer(0, "INDI"));
    CHECK(entrer(1, "BIRT"));
    CHECK(pile.Parent() == "INDI"_tag);
    CHECK_FALSE(entrer(3, "DATE"));
    CHECK(entrer(2, "DATE"));
    CHECK(pile.Parent() == "BIRT"_tag);
    CHECK(entrer(1, "DEAT"));
    CHECK_FALSE(entrer(3, "DATE"));
    CHECK(entrer(0, "FAM"));
    CHECK(pile.Parent() == 0);
}

TEST_CASE("PileEtiquettes: levels above 5 count as 5") {
    PileEtiquettes pile;
    for (std::uint32_t niveau = 0; niveau < 5; ++niveau)
        CHECK(pile.Entrer(niveau, "A", "A"_tag));
    CHECK(pile.Entrer(99, "B", "B"_tag));
    CHECK(pile.Niveau() == 5);
    CHECK(pile.Parent() == "A"_tag);
}

TEST_CASE_FIXTURE(EssaiImport, "ContexteImport: a line is noted under the path of its tags") {
    Importer("0 @I1@ INDI\n1 BIRT\n2 PLAC Rennes\n3 MAP\n4 LATI N48\n");
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.BIRT.PLAC.MAP.LATI") == 1);
}

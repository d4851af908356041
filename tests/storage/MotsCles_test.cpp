#include "storage/MotsCles.h"

#include "storage/Essai.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai, "CreerType: a label of 40 characters is stored cut at 34") {
    base->motsCles.CreerType(NoMotCle{12}, {'!', std::string(40, 'L'), false, {}});
    CHECK(base->motsCles.Nombre() == 12);
    CHECK(base->motsCles.LibelleType(NoMotCle{12}).libelle == std::string(34, 'L'));
    REQUIRE(base->Enregistrer());
    const unsigned fiche = Lire().Num4(201 + 44);
    CHECK(Lire().Brut(fiche, 40) == "!" + std::string(34, 'L') + "#    ");
}

TEST_CASE_FIXTURE(Essai, "A word list at a position of four # and a long indexed label read back") {
    const MotCle type{'!', std::string(34, 'L'), true, Position{0x23232323}};
    base->motsCles.CreerType(NoMotCle{12}, type);
    CHECK(base->motsCles.LibelleType(NoMotCle{12}) == type);
    const MotCle autre{'"', "X", true, Position{0xFF2300}};
    base->motsCles.CreerType(NoMotCle{13}, autre);
    CHECK(base->motsCles.LibelleType(NoMotCle{13}) == autre);
    REQUIRE(base->Enregistrer());
    const unsigned fiche = Lire().Num4(201 + 44);
    CHECK(Lire().Num4(201 + 48) == fiche + 80);
}

TEST_CASE_FIXTURE(Essai, "CreerType: byte 255 and # cannot stand in a label") {
    base->motsCles.CreerType(NoMotCle{12}, {'!',
                                            "A\xFF"
                                            "B#C",
                                            false,
                                            {}});
    CHECK(base->motsCles.LibelleType(NoMotCle{12}).libelle == "AyB-C");
}

TEST_CASE_FIXTURE(Essai,
                  "LibelleType: empty outside the table; symbols lead back to their number") {
    CHECK(base->motsCles.LibelleType(NoMotCle{}) == MotCle{});
    CHECK(base->motsCles.LibelleType(NoMotCle{12}) == MotCle{});
    CHECK(base->motsCles.LibelleType(NoMotCle{51}) == MotCle{});
    CHECK(base->motsCles.TypeDuSymbole('@') == NoMotCle{4});
    CHECK(base->motsCles.TypeDuSymbole('z') == NoMotCle{});
}

TEST_CASE_FIXTURE(Essai, "A table of fifty keywords holds, a fifty-first is not made") {
    for (std::uint32_t k = 12; k <= 51; ++k)
        base->motsCles.CreerType(NoMotCle{k}, {'!', "T" + std::to_string(k), false, {}});
    Rouvrir();
    CHECK(base->motsCles.Nombre() == 50);
    CHECK(base->motsCles.LibelleType(NoMotCle{50}).libelle == "T50");
}

TEST_CASE_FIXTURE(Essai,
                  "Reordonner: the directory takes the new order and loses what is left out") {
    const NoMotCle ordre[] = {NoMotCle{3}, NoMotCle{1}};
    base->motsCles.Reordonner(ordre);
    Rouvrir();
    CHECK(base->motsCles.Nombre() == 2);
    CHECK(base->motsCles.LibelleType(NoMotCle{1}).libelle == "BIRT");
    CHECK(base->motsCles.LibelleType(NoMotCle{2}).libelle == "BIRN");
}

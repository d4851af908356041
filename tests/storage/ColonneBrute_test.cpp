#include "storage/ColonneBrute.h"

#include "storage/Essai.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(
    Essai, "Column: cell 1001 of a column with one block reads fresh and allocates nothing") {
    base->R_NAISS.EcrireCellule(NoOrdre{1}, "1850");
    REQUIRE(base->Enregistrer());
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1001}).empty());
    CHECK(base->R_NAISS.LireCellule(NoOrdre{2001}).empty());
    CHECK(base->volume.FinFichier() == fin);
    base->R_NAISS.EcrireCellule(NoOrdre{1001}, "1851");
    CHECK(base->volume.FinFichier() == fin);
    base->R_NAISS.ViderColonne();
    CHECK(base->volume.FinFichier() == fin + 4000);
    CHECK(base->R_NAISS.PositionBloc(2) == Position{fin + 1});
}

TEST_CASE_FIXTURE(
    Essai, "Column: of three blocks touched in turn the first is pushed out and written if dirty") {
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_NAISS.EcrireCellule(NoOrdre{1}, "1801");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1001}).empty());
    CHECK(base->volume.FinFichier() == fin);
    CHECK(base->R_NAISS.LireCellule(NoOrdre{2001}).empty());
    CHECK(base->volume.FinFichier() == fin + 4000);
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1801");
}

TEST_CASE_FIXTURE(Essai, "Column: the block touched last is never the one that is pushed out") {
    base->R_NAISS.EcrireCellule(NoOrdre{1}, "1801");
    base->R_NAISS.EcrireCellule(NoOrdre{1001}, "1802");
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1801");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{2001}).empty());
    CHECK(base->R_NAISS.PositionBloc(1) == Position{});
    CHECK(base->R_NAISS.PositionBloc(2) == Position{fin + 1});
}

TEST_CASE_FIXTURE(Essai, "Column: a block pushed out twice in a transaction is journaled once") {
    for (std::uint32_t n : {1U, 1001U, 2001U})
        base->R_NAISS.EcrireCellule(NoOrdre{n}, "1800");
    REQUIRE(base->Enregistrer());
    const Position bloc = base->R_NAISS.PositionBloc(1);
    for (const char* annee : {"1801", "1802", "1803"}) {
        base->R_NAISS.EcrireCellule(NoOrdre{1}, annee);
        base->R_NAISS.EcrireCellule(NoOrdre{1001}, annee);
        base->R_NAISS.EcrireCellule(NoOrdre{2001}, annee);
    }
    // More dirty blocks than may wait, so that the journal is written before the commit.
    for (int tour = 0; tour < 2; ++tour)
        for (std::uint32_t i = 0; i < 700; ++i)
            base->volume.EcrireBloc(Position{bloc.valeur + i % 2 * 4000}, std::string(4000, ' '));
    base->R_NAISS.EcrireCellule(NoOrdre{1}, "1804");
    disque->panne = Panne::Arret;
    disque->panneA = disque->operations + 4;
    CHECK_FALSE(base->Enregistrer());
    const LecteurLgd log{disque->Octets(CheminLog)};
    int fois = 0;
    for (std::size_t i = 1; i + 1003 <= log.Tout().size(); i += 1004)
        if (log.Num4(i) == bloc.valeur) ++fois;
    CHECK(fois == 1);
}

TEST_CASE_FIXTURE(Essai,
                  "Column: person 32001 lands in block 33, whose entry is in the overflow zone") {
    base->FixerDernierIndividu(32000);
    CHECK(base->NouvelIndividu() == NoOrdre{32001});
    base->R_NAISS.EcrireCellule(NoOrdre{32001}, "1900");
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    const unsigned zone = lgd.Num4(161);
    REQUIRE(zone != 0);
    CHECK(lgd.Num4(zone + 256) == base->R_NAISS.PositionBloc(33).valeur);
    CHECK(lgd.Brut(lgd.Cellule("NAISS", 32001), 4) == "1900");
    Rouvrir();
    CHECK(base->R_NAISS.LireCellule(NoOrdre{32001}) == "1900");
}

TEST_CASE_FIXTURE(Essai, "Column: number 0 and numbers out of reach read empty and write nothing") {
    const std::uint32_t fin = base->volume.FinFichier();
    for (const std::uint32_t n : {0U, 64001U, 65535U, 0xFFFFFFFFU}) {
        CAPTURE(n);
        // The callers keep 0 away themselves.
        if (n != 0) base->R_NAISS.EcrireCellule(NoOrdre{n}, "1850");
        CHECK(base->R_NAISS.LireCellule(NoOrdre{n}).empty());
        CHECK(base->R_PERE.LireCellule(NoOrdre{n}) == NoOrdre{});
    }
    CHECK(base->volume.FinFichier() == fin);
}

#include "storage/Colonnes.h"

#include "storage/Essai.h"
#include "values/Octets.h"

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

TEST_CASE_FIXTURE(Essai, "Column: an empty block reads 0 in R_PERE and an empty text in R_NAISS") {
    CHECK(base->R_PERE.LireCellule(NoOrdre{7}) == NoOrdre{});
    CHECK(base->R_NAISS.LireCellule(NoOrdre{7}).empty());
    CHECK(base->R_SEXE.LireCellule(NoOrdre{7}) == ' ');
    CHECK(base->R_TEXTE.LireCellule(NoOrdre{7}) == Position{});
}

TEST_CASE_FIXTURE(Essai, "Column: years are padded on the left and cut to four characters") {
    const std::pair<const char*, const char*> cas[] = {{"1850", "1850"},   {"18", "  18"},
                                                       {"123456", "1234"}, {"", ""},
                                                       {"18? ", "18?"},    {"-44", " -44"}};
    for (const auto& [ecrit, lu] : cas) {
        CAPTURE(ecrit);
        base->R_NAISS.EcrireCellule(NoOrdre{3}, ecrit);
        CHECK(base->R_NAISS.LireCellule(NoOrdre{3}) == lu);
    }
}

TEST_CASE_FIXTURE(Essai, "Column: the cells stand in the file as the format tells") {
    base->R_NAISS.EcrireCellule(NoOrdre{2}, "85");
    base->R_PERE.EcrireCellule(NoOrdre{1000}, NoOrdre{0x1234});
    base->R_SEXE.EcrireCellule(NoOrdre{5}, 'F');
    base->R_DEBMAR.EcrireCellule(NoMariage{1}, "1902");
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Brut(lgd.Cellule("NAISS", 1), 8) == "      85");
    CHECK(lgd.Num2De("PERE", 1000) == 0x1234);
    CHECK(lgd.Num2De("PERE", 999) == 0);
    CHECK(lgd.Brut(lgd.Cellule("SEXE", 4), 3) == " F ");
    CHECK(lgd.Brut(lgd.Cellule("DEBMAR", 1), 4) == "1902");
    CHECK(lgd.Bloc("DECES", 1) == 0);
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
        base->R_NAISS.EcrireCellule(NoOrdre{n}, "1850");
        CHECK(base->R_NAISS.LireCellule(NoOrdre{n}).empty());
        CHECK(base->R_PERE.LireCellule(NoOrdre{n}) == NoOrdre{});
    }
    CHECK(base->volume.FinFichier() == fin);
}

TEST_CASE_FIXTURE(Essai, "Column: sort forms of years") {
    const std::pair<const char*, const char*> cas[] = {{"1850", "1850"}, {"18", "0018"},
                                                       {"", "0000"},     {"-44", "-044"},
                                                       {"185?", "185?"}, {"1?50", "1?50"}};
    for (const auto& [annee, tri] : cas) {
        CAPTURE(annee);
        base->R_NAISS.EcrireCellule(NoOrdre{1}, annee);
        CHECK(base->R_NAISS.AnneeTri(NoOrdre{1}) == tri);
    }
    base->R_DECES.EcrireCellule(NoOrdre{1}, "1?50");
    CHECK(base->R_DECES.AnneeTri(NoOrdre{1}) == "Z   ");
    base->R_DECES.EcrireCellule(NoOrdre{1}, "185?");
    CHECK(base->R_DECES.AnneeTri(NoOrdre{1}) == "185?");
    CHECK(base->R_DECES.AnneeTri(NoOrdre{2}) == "0000");
}

TEST_CASE_FIXTURE(Essai,
                  "Column: parents and partners make the display stale and parents are told") {
    ObservateurEssai observateur;
    base->marques.observateur = &observateur;
    base->marques.ModifBase = false;
    base->R_SEXE.EcrireCellule(NoOrdre{1}, 'H');
    CHECK(base->marques.ModifBase);
    CHECK_FALSE(base->marques.AffichagePerime);
    base->R_EPOUX.EcrireCellule(NoMariage{1}, NoOrdre{1});
    CHECK(base->marques.AffichagePerime);
    base->marques.AffichagePerime = false;
    base->R_PERE.EcrireCellule(NoOrdre{4}, NoOrdre{2});
    CHECK(base->marques.AffichagePerime);
    REQUIRE(observateur.parents.size() == 1);
    CHECK(observateur.parents[0] == std::pair{4U, 2U});
}

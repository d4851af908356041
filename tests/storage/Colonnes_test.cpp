#include "storage/Colonnes.h"

#include "storage/Essai.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai, "Column: an empty block reads 0 in R_PERE and an empty text in R_NAISS") {
    CHECK(base->R_PERE.LireCellule(NoOrdre{7}) == NoOrdre{});
    CHECK(base->R_NAISS.LireCellule(NoOrdre{7}).empty());
    CHECK(base->R_SEXE.LireCellule(NoOrdre{7}) == Sexe::Vide);
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
    base->R_SEXE.EcrireCellule(NoOrdre{5}, Sexe::Femme);
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
    base->R_SEXE.EcrireCellule(NoOrdre{1}, Sexe::Homme);
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

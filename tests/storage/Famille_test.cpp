#include "storage/Famille.h"

#include "storage/Essai.h"

#include <string>

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai, "CouplesDe: the partner stands on the other side of the union") {
    base->FixerDernierIndividu(3);
    const NoMariage m = base->NouveauMariage();
    base->R_EPOUX.EcrireCellule(m, NoOrdre{1});
    base->R_EPOUSE.EcrireCellule(m, NoOrdre{2});
    base->R_MARIAG.ModifierListe(NoOrdre{1}, m, ActionListe::Ajouter);
    base->R_MARIAG.ModifierListe(NoOrdre{2}, m, ActionListe::Ajouter);
    REQUIRE(CouplesDe(*base, NoOrdre{1}).size() == 1);
    CHECK(CouplesDe(*base, NoOrdre{1})[0].mariage == m);
    CHECK(CouplesDe(*base, NoOrdre{1})[0].partenaire == NoOrdre{2});
    CHECK(CouplesDe(*base, NoOrdre{2})[0].partenaire == NoOrdre{1});
    CHECK(CouplesDe(*base, NoOrdre{3}).empty());
}

TEST_CASE_FIXTURE(Essai, "ParentsDe: the father first, 0 for who is not known") {
    base->FixerDernierIndividu(3);
    base->R_MERE.EcrireCellule(NoOrdre{3}, NoOrdre{2});
    CHECK(ParentsDe(*base, NoOrdre{3}) == std::array{NoOrdre{}, NoOrdre{2}});
    CHECK(LireParent(*base, NoOrdre{3}, Cote::Mere) == NoOrdre{2});
    CHECK_FALSE(LireParent(*base, NoOrdre{3}, Cote::Pere));
}

TEST_CASE("ParcourirFamille: all that comes of the first step is walked before the second") {
    std::string vus;
    const auto etendre = [&vus](int n, std::vector<int>& suivants) {
        vus += std::to_string(n) + ' ';
        if (n < 4) suivants = {2 * n, 2 * n + 1};
        return true;
    };
    CHECK(ParcourirFamille(1, etendre));
    CHECK(vus == "1 2 4 5 3 6 7 ");
}

TEST_CASE("ParcourirFamille: a step that answers false ends the walk") {
    int pas = 0;
    CHECK_FALSE(ParcourirFamille(1, [&pas](int n, std::vector<int>& suivants) {
        suivants = {n + 1, n + 2};
        return ++pas < 3;
    }));
    CHECK(pas == 3);
}

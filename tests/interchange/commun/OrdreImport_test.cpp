#include "interchange/commun/OrdreImport.h"

#include <string>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::interchange {

namespace {

struct Noms final : storage::FournisseurNoms {
    storage::ElementTri ElementDe(NoOrdre n) override {
        return {noms[n.valeur - 1], "Jean", annees[n.valeur - 1]};
    }
    std::vector<std::string> noms{"Martin", "Abel", "Zoe"};
    std::vector<std::string> annees{"1800", "1800", "1700"};
};

using Ordre = std::vector<NoOrdre>;
const Ordre Naturel{NoOrdre{1}, NoOrdre{2}, NoOrdre{3}};

}  // namespace

TEST_CASE("SontTries: each kind of order has its own key") {
    Noms noms;
    const ReglesNoms regles = ReglesInitiales();
    const Ordre parNom{NoOrdre{2}, NoOrdre{1}, NoOrdre{3}};
    const Ordre parAnnee{NoOrdre{3}, NoOrdre{2}, NoOrdre{1}};
    CHECK(SontTries(noms, Naturel, TypeTri::Creation, regles));
    CHECK_FALSE(SontTries(noms, parNom, TypeTri::Creation, regles));
    CHECK(SontTries(noms, parNom, TypeTri::Nom, regles));
    CHECK_FALSE(SontTries(noms, Naturel, TypeTri::Nom, regles));
    CHECK(SontTries(noms, parAnnee, TypeTri::Naissance, regles));
    CHECK_FALSE(SontTries(noms, parNom, TypeTri::Naissance, regles));
    CHECK(SontTries(noms, {}, TypeTri::Nom, regles));
}

TEST_CASE("SontTries: equal keys may stand in any order") {
    Noms noms;
    noms.noms = {"Abel", "Abel", "Abel"};
    CHECK(SontTries(noms, Ordre{NoOrdre{2}, NoOrdre{1}}, TypeTri::Nom, ReglesInitiales()));
}

}  // namespace dorvane::interchange

#include "records/DessinFamille.h"

#include "doublures/DisqueMemoire.h"
#include "doublures/FamilleEssai.h"
#include "storage/Base.h"

#include <memory>
#include <utility>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

namespace {

struct Scene {
    storage::DisqueMemoire disque;
    std::unique_ptr<storage::Base> base =
        std::move(storage::NouvelleBase(disque, "famille.LGD", {}).base);
    doublures::FamilleEssai famille{*base};
    NoOrdre paul = famille.Creer(Sexe::Homme, "Martin", "Paul", "1820");
    NoOrdre anne = famille.Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    NoOrdre luc = famille.Creer(Sexe::Homme, "Martin", "Luc", "1850");

    Scene() {
        famille.Parents(luc, paul, anne);
        famille.Marier(paul, anne, "1848");
    }
    [[nodiscard]] DessinFamille Dessiner(NoOrdre individu, const MesuresGraphe& mesures) const {
        return DessinerFamille(*base, ConstruireFamille(*base, individu, {1, 1}), mesures);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Scene, "DessinerFamille: the person stands at the origin, parents to the right") {
    const MesuresGraphe& m = MesuresDe(2);
    const DessinFamille dessin = Dessiner(luc, m);
    REQUIRE(dessin.boites.size() == 3);
    CHECK(dessin.boites[0].Milieu().x == 0);
    CHECK(dessin.boites[0].Milieu().y == 0);
    CHECK(dessin.boites[1].gauche == dessin.boites[0].Droite() + m.gouttiere);
    CHECK(dessin.boites[2].haut == dessin.boites[1].Bas() + m.ecart);
    CHECK(dessin.cadre.gauche == dessin.boites[0].gauche);
    CHECK(dessin.cadre.Bas() == dessin.boites[2].Bas());
    // One line to each parent, and the year of their union once.
    CHECK(dessin.traits.size() == 2);
    REQUIRE(dessin.unions.size() == 1);
    CHECK(dessin.unions[0].annee == "1848");
}

TEST_CASE_FIXTURE(Scene,
                  "DessinerFamille: the line to a child starts at the spouse who shares it") {
    const DessinFamille dessin = Dessiner(paul, MesuresDe(2));
    REQUIRE(dessin.boites.size() == 3);
    const Rectangle& epouse = dessin.boites[1];
    const Rectangle& enfant = dessin.boites[2];
    CHECK(enfant.Droite() < epouse.gauche);
    REQUIRE(dessin.traits.size() == 2);
    CHECK(dessin.traits[1].front().x == epouse.gauche);
    CHECK(dessin.traits[1].front().y == epouse.Milieu().y);
    CHECK(dessin.traits[1].back().x == enfant.Droite());
    CHECK(dessin.traits[1].back().y == enfant.Milieu().y);
}

TEST_CASE("MesuresDe: an unknown presentation is the second") {
    CHECK(&MesuresDe(0) == &MesuresDe(2));
    CHECK(&MesuresDe(5) == &MesuresDe(2));
    CHECK(MesuresDe(1).vignette);
}

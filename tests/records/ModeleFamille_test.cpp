#include "records/ModeleFamille.h"

#include "doublures/DisqueMemoire.h"
#include "doublures/FamilleEssai.h"
#include "records/Famille.h"

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;
using Sorte = CaseFamille::Sorte;

namespace {

/// The family of Jeanne on a disk in memory.
struct Scene {
    storage::DisqueMemoire disque;
    std::unique_ptr<storage::Base> base =
        std::move(storage::NouvelleBase(disque, "famille.LGD", {}).base);
    doublures::FamilleEssai famille{*base};

    NoOrdre Homme(const char* prenom, const char* annee = "") {
        return famille.Creer(Sexe::Homme, "Martin", prenom, annee);
    }
    NoOrdre Femme(const char* prenom, const char* annee = "") {
        return famille.Creer(Sexe::Femme, "Duval", prenom, annee);
    }
    ModeleFamille Voir(NoOrdre n, int ascendantes = 4, int descendantes = 2) const {
        return ConstruireFamille(*base, n, {ascendantes, descendantes});
    }
};

std::vector<std::uint32_t> Numeros(const ModeleFamille& modele) {
    std::vector<std::uint32_t> numeros;
    numeros.reserve(modele.cases.size());
    for (const CaseFamille& c : modele.cases)
        numeros.push_back(c.individu.valeur);
    return numeros;
}

const CaseFamille& CaseDe(const ModeleFamille& modele, NoOrdre n) {
    const auto trouvee = std::find_if(modele.cases.begin(), modele.cases.end(),
                                      [n](const CaseFamille& c) { return c.individu == n; });
    REQUIRE(trouvee != modele.cases.end());
    return *trouvee;
}

using Vus = std::vector<std::uint32_t>;

/// Boxes of one generation never come nearer than a place to one another.
void VerifierEcarts(const ModeleFamille& modele) {
    std::map<int, std::vector<double>> colonnes;
    for (const CaseFamille& c : modele.cases)
        colonnes[c.generation].push_back(c.place);
    for (auto& [generation, places] : colonnes) {
        std::sort(places.begin(), places.end());
        for (std::size_t i = 1; i < places.size(); ++i) {
            CAPTURE(generation);
            CHECK(places[i] - places[i - 1] > 0.999);
        }
    }
}

}  // namespace

TEST_CASE("ConstruireFamille: no person gives no box") {
    Scene scene;
    CHECK(scene.Voir(NoOrdre{}).cases.empty());
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: a person alone is one box") {
    const ModeleFamille modele = Voir(Homme("Jean"));
    REQUIRE(modele.cases.size() == 1);
    CHECK(modele.cases[0] == CaseFamille{NoOrdre{1}});
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: ascendants come father before mother, depth first") {
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre pere = Homme("Paul");
    const NoOrdre mere = Femme("Anne");
    const NoOrdre grandPere = Homme("Louis");
    const NoOrdre grandMere = Femme("Rose");
    famille.Parents(enfant, pere, mere);
    famille.Parents(pere, grandPere, grandMere);
    const ModeleFamille modele = Voir(enfant);
    CHECK(Numeros(modele) == Vus{1, 2, 4, 5, 3});
    CHECK(CaseDe(modele, grandPere).generation == 2);
    CHECK(CaseDe(modele, grandPere).parent == 1);
    CHECK(CaseDe(modele, mere).parent == 0);

    // Everyone stands midway between the parents, the current person at 0.
    const double milieu = (CaseDe(modele, grandPere).place + CaseDe(modele, grandMere).place) / 2;
    CHECK(CaseDe(modele, pere).place == doctest::Approx(milieu));
    CHECK(CaseDe(modele, pere).place == doctest::Approx(-CaseDe(modele, mere).place));
    CHECK(modele.cases[0].place == 0);
    VerifierEcarts(modele);
}

TEST_CASE_FIXTURE(Scene,
                  "ConstruireFamille: the parent missing beside a known one is an empty box") {
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre mere = Femme("Anne");
    famille.Parents(enfant, NoOrdre{}, mere);
    const ModeleFamille modele = Voir(enfant);
    CHECK(Numeros(modele) == Vus{1, 0, 2});
    CHECK(modele.cases[1].generation == 1);
    CHECK_FALSE(modele.cases[1].repetee);
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: a parent whose number has no record is an empty box") {
    const NoOrdre enfant = Homme("Luc");
    base->R_PERE.EcrireCellule(enfant, NoOrdre{500});
    const ModeleFamille modele = Voir(enfant);
    CHECK(Numeros(modele) == Vus{1, 0, 0});
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: the last generation says that more lies behind it") {
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre pere = Homme("Paul");
    famille.Parents(enfant, pere, NoOrdre{});
    famille.Parents(pere, Homme("Louis"), NoOrdre{});
    const ModeleFamille une = Voir(enfant, 1, 0);
    CHECK(Numeros(une) == Vus{1, 2, 0});
    CHECK(une.cases[1].suite);
    CHECK_FALSE(Voir(enfant, 2, 0).cases[1].suite);
    CHECK(Numeros(Voir(enfant, 0, 0)) == Vus{1});
    CHECK(Voir(enfant, 0, 0).cases[0].suite);
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: an ancestor reached twice is marked the second time") {
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre pere = Homme("Paul");
    const NoOrdre mere = Femme("Anne");
    const NoOrdre commun = Homme("Louis");
    famille.Parents(enfant, pere, mere);
    famille.Parents(pere, commun, NoOrdre{});
    famille.Parents(mere, commun, NoOrdre{});
    const ModeleFamille modele = Voir(enfant);
    CHECK(Numeros(modele) == Vus{1, 2, 4, 0, 3, 4, 0});
    CHECK_FALSE(modele.cases[2].repetee);
    CHECK(modele.cases[5].repetee);
}

TEST_CASE_FIXTURE(Scene,
                  "ConstruireFamille: someone who is an own ancestor ends with the generations") {
    const NoOrdre enfant = Homme("Luc");
    famille.Parents(enfant, enfant, NoOrdre{});
    const ModeleFamille modele = Voir(enfant, 3, 3);
    CHECK(modele.cases.size() == 1 + 2 * 3 + 3);
    CHECK(modele.cases[1].repetee);
}

TEST_CASE_FIXTURE(Scene,
                  "ConstruireFamille: children come in the order of their list, spouses beside") {
    const NoOrdre jean = Homme("Jean", "1800");
    const NoOrdre anne = Femme("Anne");
    const NoOrdre rose = Femme("Rose");
    const NoMariage premiere = famille.Marier(jean, anne, "1820");
    const NoMariage seconde = famille.Marier(jean, rose, "1830");
    const NoOrdre cadet = Homme("Cadet", "1831");
    const NoOrdre aine = Homme("Aine", "1821");
    famille.Parents(cadet, jean, rose);
    famille.Parents(aine, jean, anne);
    const ModeleFamille modele = Voir(jean);
    CHECK(Numeros(modele) == Vus{1, 2, 3, 5, 4});
    CHECK(modele.cases[1].sorte == Sorte::Conjoint);
    CHECK(modele.cases[1].mariage == premiere);
    CHECK(modele.cases[2].mariage == seconde);
    // Spouses stand below the person, in order, near enough to be seen as a couple.
    CHECK(modele.cases[1].place == doctest::Approx(EcartConjoints));
    CHECK(modele.cases[2].place == doctest::Approx(2 * EcartConjoints));
    // The line to a child starts at the other parent.
    CHECK(CaseDe(modele, aine).depart == 1);
    CHECK(CaseDe(modele, cadet).depart == 2);
    CHECK(CaseDe(modele, aine).generation == -1);
    VerifierEcarts(modele);
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: the child of a parent alone hangs on that parent") {
    const NoOrdre anne = Femme("Anne");
    const NoOrdre enfant = Homme("Luc");
    famille.Parents(enfant, NoOrdre{}, anne);
    const ModeleFamille modele = Voir(anne);
    CHECK(CaseDe(modele, enfant).depart == 0);
    CHECK(CaseDe(modele, enfant).place == doctest::Approx(0));
}

TEST_CASE_FIXTURE(Scene,
                  "ConstruireFamille: the year of the parents' union goes with both parents") {
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre pere = Homme("Paul");
    const NoOrdre mere = Femme("Anne");
    famille.Parents(enfant, pere, mere);
    const NoMariage m = famille.Marier(pere, mere, "1820");
    const ModeleFamille modele = Voir(enfant);
    CHECK(modele.cases[1].mariage == m);
    CHECK(modele.cases[2].mariage == m);
}

TEST_CASE_FIXTURE(Scene,
                  "ConstruireFamille: a family with more boxes than fit shows fewer generations") {
    // Twelve children each over five generations would be a quarter of a million boxes.
    std::vector<NoOrdre> rang{Homme("Racine")};
    const NoOrdre racine = rang[0];
    for (int g = 0; g < 4; ++g) {
        std::vector<NoOrdre> suivant;
        for (const NoOrdre parent : rang)
            for (int k = 0; k < 9; ++k) {
                suivant.push_back(Homme("Enfant"));
                famille.Parents(suivant.back(), parent, NoOrdre{});
            }
        rang = suivant;
    }
    const ModeleFamille modele = Voir(racine, 5, 5);
    CHECK(modele.demandees == Generations{5, 5});
    CHECK(modele.montrees.descendantes == 3);
    CHECK(modele.cases.size() == 1 + 9 + 81 + 729);
    CHECK(modele.cases.back().suite);
}

TEST_CASE_FIXTURE(Scene, "ConstruireFamille: boxes never overlap in families made at random") {
    std::mt19937 hasard{20};
    for (int essai = 0; essai < 20; ++essai) {
        CAPTURE(essai);
        Scene autre;
        std::vector<NoOrdre> tous{autre.Homme("Un")};
        for (int k = 0; k < 60; ++k) {
            const NoOrdre parent = tous[hasard() % tous.size()];
            const NoOrdre conjoint = autre.Femme("Conjointe");
            if (hasard() % 2 == 0) autre.famille.Marier(parent, conjoint, "1800");
            const NoOrdre enfant = autre.Homme("Enfant");
            autre.famille.Parents(enfant, parent, hasard() % 3 == 0 ? NoOrdre{} : conjoint);
            tous.push_back(enfant);
        }
        for (const NoOrdre n : tous)
            VerifierEcarts(autre.Voir(n, 5, 5));
    }
}

TEST_CASE("Generations: one step to the right and to the left, never below 0") {
    CHECK(VersLaDroite({4, 2}) == Generations{6, 1});
    CHECK(VersLaDroite({4, 0}) == Generations{6, 0});
    CHECK(VersLaGauche({4, 2}) == Generations{3, 4});
    CHECK(VersLaGauche({0, 2}) == Generations{0, 4});
    CHECK(VersLaDroite({MaxGenerations, 5}) == Generations{MaxGenerations, 4});
}

TEST_CASE_FIXTURE(Scene, "ParentDe: walks to father, mother, first child and each spouse in turn") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre pere = Homme("Paul");
    const NoOrdre mere = Femme("Anne");
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre une = Femme("Une");
    const NoOrdre deux = Femme("Deux");
    famille.Parents(jean, pere, mere);
    famille.Parents(enfant, jean, une);
    famille.Marier(jean, une);
    famille.Marier(jean, deux);
    CHECK(ParentDe(*base, jean, Parente::Pere) == pere);
    CHECK(ParentDe(*base, jean, Parente::Mere) == mere);
    CHECK(ParentDe(*base, jean, Parente::Enfant) == enfant);
    CHECK(ParentDe(*base, jean, Parente::ConjointSuivant) == une);
    CHECK(ParentDe(*base, jean, Parente::ConjointSuivant, une) == deux);
    CHECK(ParentDe(*base, jean, Parente::ConjointSuivant, deux) == une);
    CHECK(ParentDe(*base, une, Parente::ConjointSuivant) == jean);
    CHECK_FALSE(ParentDe(*base, pere, Parente::Pere));
    CHECK_FALSE(ParentDe(*base, pere, Parente::ConjointSuivant));
}

TEST_CASE_FIXTURE(Scene, "EntreesFamille: person, parents, spouses, children, linked persons") {
    using Groupe = EntreeFamille::Groupe;
    const NoOrdre jean = Homme("Jean");
    const NoOrdre mere = Femme("Anne");
    const NoOrdre femme = Femme("Rose");
    const NoOrdre enfant = Homme("Luc");
    const NoOrdre parrain = Homme("Marc");
    famille.Parents(jean, NoOrdre{}, mere);
    famille.Marier(jean, femme);
    famille.Parents(enfant, jean, femme);
    famille.Lier(jean, parrain, "GODF");
    const std::vector<EntreeFamille> attendues{{Groupe::Personne, jean},
                                               {Groupe::Parents, mere},
                                               {Groupe::Conjoints, femme},
                                               {Groupe::Enfants, enfant},
                                               {Groupe::Lies, parrain}};
    CHECK((EntreesFamille(*base, jean) == attendues));
    CHECK(EntreesFamille(*base, NoOrdre{99}).empty());
}

TEST_CASE_FIXTURE(Scene,
                  "VoisinDansLOrdre: before and after in the sort order, nothing at the ends") {
    const NoOrdre vieux = Homme("Vieux", "1700");
    const NoOrdre jeune = Homme("Jeune", "1900");
    const NoOrdre moyen = Homme("Moyen", "1800");
    CHECK(VoisinDansLOrdre(*base, vieux, 1) == moyen);
    CHECK(VoisinDansLOrdre(*base, jeune, -1) == moyen);
    CHECK_FALSE(VoisinDansLOrdre(*base, jeune, 1));
    CHECK_FALSE(VoisinDansLOrdre(*base, vieux, -1));
    CHECK_FALSE(VoisinDansLOrdre(*base, NoOrdre{77}, 1));
    CHECK_FALSE(VoisinDansLOrdre(*base, NoOrdre{}, 1));
}

#include "interchange/commandes/PreparationExport.h"

#include "doublures/FicheEssai.h"

#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

using Personnes = std::vector<NoOrdre>;
using Parcours = std::vector<ParcoursExport>;

const Personnes Liste{NoOrdre{4}, NoOrdre{2}};
constexpr ParcoursExport Ascendance{NoOrdre{3}, SensExport::Ascendants, 5};
constexpr ParcoursExport Descendance{NoOrdre{1}, SensExport::Descendants, 2};

/// The list and two walks, in three rows.
struct Trois {
    Trois() {
        preparation.Prendre(Liste);
        preparation.Ajouter(Ascendance);
        preparation.Ajouter(Descendance);
    }
    PreparationExport preparation;
};

}  // namespace

TEST_CASE_FIXTURE(Trois, "PreparationExport: a walk that is there is not added again") {
    preparation.Ajouter(Ascendance);
    CHECK(preparation.NbRangees() == 3);
    preparation.Ajouter({NoOrdre{3}, SensExport::Ascendants, 6});
    CHECK(preparation.NbRangees() == 4);
}

TEST_CASE_FIXTURE(Trois, "PreparationExport: the first row is the list, as long as there is one") {
    preparation.Retirer(2);
    CHECK(preparation.Parcours() == Parcours{Ascendance});
    preparation.Retirer(0);
    CHECK(preparation.Liste().empty());
    CHECK(preparation.Parcours() == Parcours{Ascendance});
    preparation.Retirer(1);
    CHECK(preparation.NbRangees() == 1);
    preparation.Retirer(0);
    CHECK(preparation.EstVide());
    preparation.Retirer(0);
    CHECK(preparation.EstVide());
}

TEST_CASE_FIXTURE(Trois, "PreparationExport: another list takes the place of all") {
    preparation.Prendre({NoOrdre{7}});
    CHECK(preparation.Liste() == Personnes{NoOrdre{7}});
    CHECK(preparation.Parcours().empty());
    preparation.Prendre({});
    CHECK(preparation.EstVide());
}

TEST_CASE_FIXTURE(doublures::FicheEssai,
                  "PreparationExport: whom the base does not have is left out of list and walks") {
    const NoOrdre louis = F().Creer(Sexe::Homme, "Martin", "Louis", "1790");
    const NoOrdre absent{louis.valeur + 1};
    PreparationExport preparation;
    preparation.Prendre({absent, louis});
    preparation.Ajouter({absent, SensExport::Ascendants, 3});
    preparation.Ajouter({louis, SensExport::Descendants, 3});
    preparation.Epurer(B());
    CHECK(preparation.Liste() == Personnes{louis});
    CHECK(preparation.Parcours() == Parcours{{louis, SensExport::Descendants, 3}});
}

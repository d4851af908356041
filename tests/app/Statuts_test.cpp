#include "app/Statuts.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::outil;
using shell::Issue;

TEST_CASE("Statut: the exit status follows from the cause, whatever was told") {
    CHECK(Statut(Issue::Faite()) == 0);
    CHECK(Statut(Issue::Refusee()) == 1);
    CHECK(Statut(Issue::Arretee()) == 1);
    CHECK(Statut(Issue::ParSysteme()) == 3);
    CHECK(Statut(Issue::Refusee(shell::Litteral("why"))) == 1);
}

#include "records/Apercu.h"

#include "records/EssaiFamille.h"

using namespace dorvane;
using namespace dorvane::records;

TEST_CASE_FIXTURE(EssaiFamille, "ApercuDe: number, parents and spouses in one line") {
    const NoOrdre paul = Creer(Sexe::Homme, "Noir", "Paul", "1820", "1890");
    const NoOrdre anne = Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    const NoOrdre luc = Creer(Sexe::Homme, "Noir", "Luc", "1850");
    const NoOrdre eve = Creer(Sexe::Femme, "Gris", "Eve");
    CHECK(ApercuDe(session, luc) == "n\xB0 3");
    Parents(luc, paul, anne);
    Marier(luc, eve);
    CHECK(ApercuDe(session, luc) ==
          "n° 3 – père : Paul Noir (1820-1890) – mère : Anne Blanc (o1825) – "
          "conjoint : Eve Gris"_1252);
    CHECK(ApercuDe(session, {}).empty());
    CHECK(ApercuDe(session, NoOrdre{9}).empty());
}

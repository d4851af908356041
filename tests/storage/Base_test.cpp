#include "storage/Base.h"

#include "storage/Essai.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai,
                  "ViderSurDisque: one flush, no byte changed, and what waits goes on waiting") {
    REQUIRE(base->Enregistrer());
    Creer("DURAND;Jean", "1850");
    const std::string avant = disque->Octets(Chemin);
    const int operations = disque->operations;
    CHECK(base->ViderSurDisque());
    CHECK(disque->operations == operations + 1);
    CHECK(disque->Octets(Chemin) == avant);
    CHECK(base->marques.ModifBase);
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "DURAND");
    Rouvrir();
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "DURAND");
}

TEST_CASE_FIXTURE(Essai,
                  "ViderSurDisque: a refused flush is answered, and the commit refused too") {
    REQUIRE(base->Enregistrer());
    Creer("DURAND;Jean", "1850");
    disque->panne = Panne::Refus;
    disque->panneA = disque->operations + 1;
    CHECK_FALSE(base->ViderSurDisque());
    CHECK_FALSE(base->Enregistrer());
    base.reset();
    Ouvrir();
    CHECK(base->entete.DernierIndividu == 0);
}

TEST_CASE_FIXTURE(Essai, "Persons past 64000, events and documents past 32000 are not created") {
    base->FixerDernierIndividu(64000);
    CHECK_FALSE(base->NouvelIndividu());
    base->entete.DernierEvenement = 32000;
    CHECK_FALSE(base->NouvelEvenement());
    base->entete.DernierDocument = 31999;
    CHECK(base->NouveauDocument() == NoDocument{32000});
    CHECK_FALSE(base->NouveauDocument());
}

TEST_CASE_FIXTURE(Essai, "Enregistrer: without a change nothing is written") {
    REQUIRE(base->Enregistrer());
    const int operations = disque->operations;
    CHECK(base->Enregistrer());
    CHECK(base->Fermer());
    CHECK(disque->operations == operations);
}

TEST_CASE_FIXTURE(Essai, "Enregistrer: a changed field of the header survives") {
    REQUIRE(base->Enregistrer());
    base->entete.TypeTri = TypeTri::Nom;
    base->entete.OptParticules = true;
    base->entete.DocBase = NoDocument{3};
    base->entete.SlotsIndividu[3] = {'%', '1'};
    base->marques.ModifBase = true;
    Rouvrir();
    CHECK(base->entete.TypeTri == TypeTri::Nom);
    CHECK(base->entete.OptParticules);
    CHECK(base->entete.DocBase == NoDocument{3});
    CHECK(base->entete.SlotsIndividu[3] == Slot{'%', '1'});
}

TEST_CASE_FIXTURE(
    Essai,
    "Enregistrer: one edited person costs at most four flushes whatever the size of the base") {
    int operations[2] = {0, 0};
    const std::uint32_t tailles[2] = {10, 4000};
    for (int i = 0; i < 2; ++i) {
        while (base->entete.DernierIndividu < tailles[i])
            Creer("DURAND;Jean", "1850");
        base->R_TEXTE.EcrireTexte(NoOrdre{6}, "|DURAND");
        REQUIRE(base->Enregistrer());
        const int debut = disque->operations;
        const int vidages = disque->vidages;
        const NoOrdre n{5};
        base->R_NAISS.EcrireCellule(n, "1850");
        base->R_NOM.EcrireNom(n, "DURAND;Jean;;1/2");
        base->R_TEXTE.EcrireTexte(n, "|DURAND $Brest\r\nune note");
        REQUIRE(base->Enregistrer());
        operations[i] = disque->operations - debut;
        // The journal, its name, the file, the removal of the journal.
        CHECK(disque->vidages - vidages == 4);
    }
    CHECK(operations[0] == operations[1]);
    CHECK(operations[0] <= 14);
}

TEST_CASE_FIXTURE(Essai, "Three bases are open at once") {
    auto deux = std::move(NouvelleBase(*disque, "deux.LGD", {}).base);
    auto trois = std::move(NouvelleBase(*disque, "trois.LGD", {}).base);
    int i = 0;
    for (Base* b : {base.get(), deux.get(), trois.get()}) {
        const NoOrdre n = b->NouvelIndividu();
        b->R_NOM.EcrireNom(n, "NOM" + std::to_string(++i));
        REQUIRE(b->Enregistrer());
    }
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "NOM1");
    CHECK(deux->R_NOM.NomDe(NoOrdre{1}) == "NOM2");
    CHECK(trois->R_NOM.NomDe(NoOrdre{1}) == "NOM3");
}

TEST_CASE_FIXTURE(Essai, "A base given up without a commit opens as the last commit") {
    Creer("DURAND;Jean", "1850");
    REQUIRE(base->Enregistrer());
    Creer("MARTIN;Paul", "1860");
    base->R_NOM.EcrireNom(NoOrdre{1}, "AUTRE");
    base.reset();
    Ouvrir();
    CHECK(base->entete.DernierIndividu == 1);
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "DURAND");
}

TEST_CASE_FIXTURE(
    Essai, "A refused write makes the commit answer false and the file stay the previous commit") {
    Creer("DURAND;Jean", "1850");
    REQUIRE(base->Enregistrer());
    Creer("MARTIN;Paul", "1860");
    disque->panne = Panne::Refus;
    disque->panneA = disque->operations + 2;
    CHECK_FALSE(base->Enregistrer());
    CHECK(base->EnDefaut());
    base.reset();
    Ouvrir();
    CHECK(base->entete.NbTriIndividus == 1);
    CHECK(base->R_NOM.PrenomDe(NoOrdre{1}) == "Jean");
}

TEST_CASE("CheminJournal: the last three letters become LOG whatever they were") {
    CHECK(CheminJournal("x.lgd") == "x.LOG");
    CHECK(CheminJournal("a.b.LGD") == "a.b.LOG");
}

#include "storage/Evenements.h"

#include "storage/Essai.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai, "EcrireEvt: a whole event reads back, from the base and from the bytes") {
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = -12345,
                              .note = "une note",
                              .liens = {{{NoOrdre{1}, "CHIL"}, {NoOrdre{2}, ""}}},
                              .documents = {{NoDocument{5}, NoDocument{3}}},
                              .description = DescriptionEvt{"Paris", "libelle", "BAPM"}});
    Rouvrir();
    CHECK(base->R_EVT.CleDateEvt(e) == -12345);
    CHECK(base->R_EVT.NoteEvt(e) == "une note");
    CHECK(base->R_EVT.Description(e) == DescriptionEvt{"Paris", "libelle", "BAPM"});
    CHECK(base->R_EVT.Liens(e) ==
          std::vector<LienEvenement>{{NoOrdre{1}, "CHIL"}, {NoOrdre{2}, ""}});
    CHECK(base->R_EVT.Documents(e) == std::vector{NoDocument{5}, NoDocument{3}});
    const LecteurLgd lgd = Lire();
    const unsigned tete = lgd.Num4De("EVT", 1);
    CHECK(lgd.Num4(tete) == 1000000 - 12345);
    CHECK(lgd.Texte(lgd.Num4(tete + 4)) == "une note");
    CHECK(lgd.Num2(lgd.Num4(tete + 8)) == 1);
    CHECK(lgd.Num2(lgd.Num4(tete + 12) + 2) == 3);
    CHECK(lgd.Texte(lgd.Num4(tete + 16)) == std::string("Paris\0libelle\0BAPM", 18));
}

TEST_CASE_FIXTURE(Essai, "An event with no description has position 0 and empty fields") {
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = 10, .description = DescriptionEvt{}});
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Num4(Lire().Num4De("EVT", 1) + 16) == 0);
    CHECK(base->R_EVT.Description(e) == DescriptionEvt{});
    CHECK(base->R_EVT.CleDateEvt(NoEvenement{2}) == CleSansDate);
}

TEST_CASE_FIXTURE(Essai, "EcrireEvt: a change of one part keeps the positions of the others") {
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e,
                          {.cleDate = 10, .note = "n", .description = DescriptionEvt{"L", "", ""}});
    const Position avant = base->R_EVT.LireCellule(e);
    base->R_EVT.EcrireEvt(e, {.cleDate = 20});
    CHECK(base->R_EVT.LireCellule(e) != avant);
    CHECK(base->R_EVT.NoteEvt(e) == "n");
    CHECK(base->R_EVT.LieuEvt(e) == "L");
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Brut(avant.valeur + 4, 16) == lgd.Brut(lgd.Num4De("EVT", 1) + 4, 16));
}

TEST_CASE_FIXTURE(Essai, "Positions that hold two bytes 0 do not end a list of persons") {
    // Under 64 KB every position begins with two bytes 0.
    const NoEvenement e = base->NouvelEvenement();
    std::vector<LienEvenement> liens;
    for (std::uint32_t n = 1; n <= 150; ++n)
        liens.push_back({NoOrdre{n}, "R"});
    base->R_EVT.EcrireEvt(e, {.liens = liens});
    REQUIRE(base->volume.FinFichier() < 65536);
    CHECK(base->R_EVT.Liens(e) == liens);
}

TEST_CASE_FIXTURE(Essai, "A fourth field of a description is passed over") {
    const NoEvenement e = base->NouvelEvenement();
    const Position description = base->volume.Ajouter(std::string("L\0l\0T\0quatre#", 13));
    const Position tete = base->volume.Ajouter(NumVersChaine4(1000000) + std::string(12, '\0') +
                                               NumVersChaine4(description.valeur));
    base->R_EVT.EcrireCellule(e, tete);
    CHECK(base->R_EVT.Description(e) == DescriptionEvt{"L", "l", "T"});
}

TEST_CASE_FIXTURE(Essai, "A description without an end is an incident of its event, told once") {
    ObservateurEssai observateur;
    base->marques.observateur = &observateur;
    REQUIRE(base->NouvelEvenement());
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = 10, .description = DescriptionEvt{"L", "", ""}});
    const Position longue = base->volume.Ajouter(std::string(40000, 'x'));
    const Position tete = base->volume.Ajouter(NumVersChaine4(1000007) + std::string(12, '\0') +
                                               NumVersChaine4(longue.valeur));
    base->R_EVT.InitColonne();
    base->R_EVT.EcrireCellule(e, tete);
    CHECK(base->R_EVT.Description(e) == DescriptionEvt{});
    CHECK(base->R_EVT.LieuEvt(e).empty());
    CHECK(base->R_EVT.CleDateEvt(e) == 7);
    REQUIRE(observateur.incidents.size() == 1);
    CHECK(observateur.incidents[0] == std::pair{Incident::EvenementAbime, 2U});
}

TEST_CASE_FIXTURE(Essai, "A change of date appends a new head: given up, the old one stands") {
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = 10});
    REQUIRE(base->Enregistrer());
    base->R_EVT.EcrireEvt(e, {.cleDate = 20});
    base.reset();
    Ouvrir();
    CHECK(base->R_EVT.CleDateEvt(e) == 10);
}

TEST_CASE_FIXTURE(Essai,
                  "An event that is taken away has cell 0, and one without a date sorts first") {
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = CleSansDate, .note = "n"});
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Num4(Lire().Num4De("EVT", 1)) == 0);
    CHECK(base->R_EVT.CleDateEvt(e) == CleSansDate);
    base->R_EVT.EffacerEvt(e);
    CHECK(base->R_EVT.LireCellule(e) == Position{});
    CHECK(base->R_EVT.NoteEvt(e).empty());
}

TEST_CASE_FIXTURE(Essai, "Event texts longer than a reader takes are cut, never damaged") {
    ObservateurEssai observateur;
    base->marques.observateur = &observateur;
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.description = DescriptionEvt{std::string(40000, 'L'), "x", "y"}});
    CHECK(base->R_EVT.LieuEvt(e).size() == 32000);
    base->R_EVT.EcrireEvt(e, {.description = DescriptionEvt{std::string("a\0b", 3), "c#d", "y"}});
    CHECK(base->R_EVT.Description(e) == DescriptionEvt{"a b", "c-d", "y"});
    CHECK(observateur.incidents.empty());
}

#include "records/Unions.h"

#include "records/EssaiFamille.h"
#include "records/Individus.h"
#include "records/ModeleFamille.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Dits = std::vector<std::string>;

struct Famille : EssaiFamille {
    [[nodiscard]] std::string Couple(NoMariage m) {
        return std::to_string(base.R_EPOUX.LireCellule(m).valeur) + ' ' +
               std::to_string(base.R_EPOUSE.LireCellule(m).valeur);
    }
    NoOrdre paul = Creer(Sexe::Homme, "Noir", "Paul", "1820");
    NoOrdre anne = Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    NoOrdre luc = Creer(Sexe::Homme, "Noir", "Luc", "1850");
    NoOrdre zoe = Creer(Sexe::Femme, "Blanc", "Eve", "1852");
};

}  // namespace

TEST_CASE_FIXTURE(Famille, "CreerUnion: the man is the husband whoever has the sheet") {
    SUBCASE("his") {
        CHECK(CreerUnion(session, paul, anne) == NoMariage{1});
    }
    SUBCASE("hers") {
        CHECK(CreerUnion(session, anne, paul) == NoMariage{1});
    }
    CHECK(Couple(NoMariage{1}) == "1 2");
    CHECK(base.R_MARIAG.Elements(paul) == std::vector{NoMariage{1}});
    CHECK(base.R_MARIAG.Elements(anne) == std::vector{NoMariage{1}});
    CHECK(base.R_DEBMAR.LireCellule(NoMariage{1}).empty());
    CHECK(base.R_TXTMAR.LireTexte(NoMariage{1}).empty());
    CHECK(base.marques.AffichagePerime);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Famille, "CreerUnion: children of both sides are asked for one by one") {
    Parents(luc, paul, {});
    Parents(zoe, {}, anne);
    const NoOrdre complet = Creer(Sexe::Homme, "Noir", "Max", "1853");
    Parents(complet, paul, Creer(Sexe::Femme, "Roux", "Rose", "1830"));
    Repondre({Oui, Non});
    CHECK(CreerUnion(session, paul, anne) == NoMariage{1});
    CHECK(Dit() == Dits{"DemanderSiEpouseEstLaMere(Luc Noir, Anne Blanc)",
                        "DemanderSiEpouxEstLePere(Eve Blanc, Paul Noir)"});
    CHECK(ParentsDe(luc) == "1 2");
    CHECK(ParentsDe(zoe) == "0 2");
}

TEST_CASE_FIXTURE(Famille,
                  "CreerUnion: on the sheet of a woman the questions are the other way round") {
    Parents(luc, paul, {});
    Parents(zoe, {}, anne);
    Repondre({Oui, Oui});
    CHECK(CreerUnion(session, anne, paul) == NoMariage{1});
    CHECK(Dit() == Dits{"DemanderSiEpouxEstLePere(Eve Blanc, Paul Noir)",
                        "DemanderSiEpouseEstLaMere(Luc Noir, Anne Blanc)"});
    CHECK(ParentsDe(luc) == "1 2");
    CHECK(ParentsDe(zoe) == "1 2");
}

TEST_CASE_FIXTURE(Famille, "CreerUnion: a partner of no known sex takes the side that is free") {
    const NoOrdre camille = Creer(Sexe::Indetermine, "Gris", "Camille", "1820");
    CHECK(CreerUnion(session, paul, camille) == NoMariage{1});
    CHECK(CreerUnion(session, anne, camille) == NoMariage{2});
    CHECK(Couple(NoMariage{1}) == "1 5");
    CHECK(Couple(NoMariage{2}) == "5 2");
}

TEST_CASE_FIXTURE(Famille,
                  "A person of no known sex is given no partner, by search or by creation") {
    const NoOrdre camille = Creer(Sexe::Indetermine, "Gris", "Camille", "1820");
    CHECK_FALSE(PeutAvoirConjoint(session, camille, Provenance::Cherche));
    CHECK_FALSE(PeutAvoirConjoint(session, camille, Provenance::Cree));
    CHECK(CreerUnion(session, camille, paul) == NoMariage{});
    CHECK(Dit() == Dits{"SexeRequisPourChercherConjoint", "SexeRequisPourCreerConjoint",
                        "SexeRequisPourChercherConjoint"});
    CHECK(base.entete.DernierMariage == 0);
}

TEST_CASE_FIXTURE(Famille, "CreerUnion: oneself, one's own sex and nobody are refused") {
    CHECK_FALSE(CreerUnion(session, paul, paul));
    CHECK_FALSE(CreerUnion(session, paul, luc));
    CHECK_FALSE(CreerUnion(session, paul, NoOrdre{77}));
    CHECK(Dit() == Dits{"PropreConjoint(Paul Noir)", "ConjointsDeMemeSexe(Paul Noir, Luc Noir)",
                        "PersonneAbsenteDeLaBase"});
    CHECK(base.entete.DernierMariage == 0);
}

TEST_CASE_FIXTURE(Famille, "CreerUnion: two persons may marry again") {
    CHECK(CreerUnion(session, paul, anne) == NoMariage{1});
    CHECK(CreerUnion(session, paul, anne) == NoMariage{2});
    CHECK(base.R_MARIAG.Elements(anne) == std::vector{NoMariage{1}, NoMariage{2}});
}

TEST_CASE_FIXTURE(Famille, "A 201st union changes no cell and no counter") {
    for (int i = 0; i < 200; ++i)
        Marier(paul, {});
    base.marques.ModifBase = false;
    CHECK_FALSE(PeutAvoirConjoint(session, paul, Provenance::Cree));
    CHECK_FALSE(CreerUnion(session, paul, anne));
    CHECK_FALSE(CreerUnion(session, anne, paul));
    CHECK(Dit() == Dits{"MaximumUnionsPersonneAtteint(Paul Noir)",
                        "MaximumUnionsPersonneAtteint(Paul Noir)",
                        "MaximumUnionsPersonneAtteint(Paul Noir)"});
    CHECK(base.entete.DernierMariage == 200);
    CHECK(base.R_MARIAG.Elements(anne).empty());
    CHECK_FALSE(base.marques.ModifBase);
}

TEST_CASE_FIXTURE(Famille, "CreerUnion: a base with 64000 unions takes no more") {
    base.entete.DernierMariage = 64000;
    CHECK_FALSE(CreerUnion(session, paul, anne));
    CHECK(Dit() == Dits{"MaximumUnionsBaseAtteint"});
    CHECK(base.R_MARIAG.Elements(paul).empty());
    base.entete.DernierMariage = 0;
}

TEST_CASE_FIXTURE(Famille,
                  "RetirerUnion: text, words, years, cells and entries go; the children stay") {
    const NoMariage m = CreerUnion(session, paul, anne);
    Parents(luc, paul, anne);
    base.R_DEBMAR.EcrireCellule(m, "1848");
    base.R_FINMAR.EcrireCellule(m, "1860");
    EcrireTexteMariage(session, m, "1/5 @Brest.la.Grande");
    const NoMotCle lieux = base.motsCles.TypeDuSymbole('@');
    REQUIRE(base.R_INDEX.ChercherMot(lieux, "BREST LA GRANDE"));
    SUBCASE("no") {
        Repondre({Non});
        CHECK_FALSE(RetirerUnion(session, m));
        CHECK(base.R_DEBMAR.LireCellule(m) == "1848");
        CHECK(base.R_INDEX.ChercherMot(lieux, "BREST LA GRANDE"));
    }
    SUBCASE("yes") {
        Repondre({Oui});
        CHECK(RetirerUnion(session, m));
        CHECK(Couple(m) == "0 0");
        CHECK(base.R_DEBMAR.LireCellule(m).empty());
        CHECK(base.R_FINMAR.LireCellule(m).empty());
        CHECK(base.R_TXTMAR.LireTexte(m).empty());
        CHECK_FALSE(base.R_INDEX.ChercherMot(lieux, "BREST LA GRANDE"));
        CHECK(base.R_MARIAG.Elements(paul).empty());
        CHECK(base.R_MARIAG.Elements(anne).empty());
        CHECK(ParentsDe(luc) == "1 2");
        CHECK(base.entete.DernierMariage == 1);
        // The number stays unused.
        CHECK(CreerUnion(session, paul, anne) == NoMariage{2});
    }
    CHECK(Dit() == Dits{"ConfirmerSupprimerUnion(Paul Noir, Anne Blanc)+ConfirmerSuppression"});
}

TEST_CASE_FIXTURE(Famille, "RetirerUnion: a union with one partner, and none at all") {
    const NoMariage m = Marier({}, anne, "1850");
    EcrireTexteMariage(session, m, "@Lyon");
    Repondre({Oui});
    CHECK(RetirerUnion(session, m));
    CHECK(Dit() == Dits{"ConfirmerSupprimerUnionSansConjoint(Anne Blanc)+ConfirmerSuppression"});
    CHECK_FALSE(RetirerUnion(session, {}));
    CHECK_FALSE(RetirerUnion(session, NoMariage{9}));
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(
    Famille, "ReordonnerUnion: an entry changes places with its neighbour, not beyond the ends") {
    const NoMariage a = Marier(paul, anne);
    const NoMariage b = Marier(paul, zoe);
    const NoMariage c = Marier(paul, anne);
    base.marques.AffichagePerime = false;
    CHECK(ReordonnerUnion(session, paul, 1, -1) == 0);
    CHECK(ReordonnerUnion(session, paul, 3, 1) == 0);
    CHECK(ReordonnerUnion(session, paul, 4, -1) == 0);
    CHECK(ReordonnerUnion(session, paul, 0, 1) == 0);
    CHECK(ReordonnerUnion(session, paul, 1, 2) == 0);
    CHECK_FALSE(base.marques.AffichagePerime);
    CHECK(ReordonnerUnion(session, paul, 1, 1) == 2);
    CHECK(base.R_MARIAG.Elements(paul) == std::vector{b, a, c});
    CHECK(ReordonnerUnion(session, paul, 3, -1) == 2);
    CHECK(base.R_MARIAG.Elements(paul) == std::vector{b, c, a});
    CHECK(base.R_MARIAG.Elements(anne) == std::vector{a, c});
    CHECK(base.marques.AffichagePerime);
}

#include "records/Filiation.h"

#include "messages/Messages.h"
#include "records/EssaiFamille.h"
#include "records/Famille.h"
#include "records/Unions.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Dits = std::vector<std::string>;

struct Famille : EssaiFamille {
    NoOrdre Enfants(NoOrdre parent, int combien) {
        NoOrdre n{};
        for (int i = 0; i < combien; ++i) {
            n = Creer(Sexe::Homme, "Noir", "Petit", "1850");
            Parents(n, parent, {});
        }
        return n;
    }
    NoOrdre paul = Creer(Sexe::Homme, "Noir", "Paul", "1820", "1890");
    NoOrdre anne = Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    NoOrdre luc = Creer(Sexe::Homme, "Noir", "Luc", "1850");
    NoOrdre zoe = Creer(Sexe::Femme, "Noir", "Zoé"_1252, "1852");
};

}  // namespace

TEST_CASE_FIXTURE(Famille, "MajEnfant: children stand by year of birth, equal years by arrival") {
    const NoOrdre sans = Creer(Sexe::Homme, "Noir", "Sans", "");
    const NoOrdre pareil = Creer(Sexe::Homme, "Noir", "Pareil", "1850");
    for (const NoOrdre n : {zoe, luc, pareil, sans}) {
        base.R_PERE.EcrireCellule(n, paul);
        MajEnfant(session, paul, n, storage::ActionListe::Ajouter);
    }
    CHECK(EnfantsDe(paul) == std::vector{sans, luc, pareil, zoe});
    CHECK(base.marques.AffichagePerime);
    base.R_PERE.EcrireCellule(luc, {});
    MajEnfant(session, paul, luc, storage::ActionListe::Supprimer);
    CHECK(EnfantsDe(paul) == std::vector{sans, pareil, zoe});
}

TEST_CASE_FIXTURE(Famille, "DonnerParent: both sides of the link are written") {
    CHECK(DonnerParent(session, luc, Cote::Pere, paul));
    CHECK(ParentsDe(luc) == "1 0");
    CHECK(EnfantsDe(paul) == std::vector{luc});
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Famille,
                  "DonnerParent: the former parent loses the child, the other one keeps it") {
    const NoOrdre jean = Creer(Sexe::Homme, "Gris", "Jean", "1822");
    Parents(luc, paul, anne);
    Marier(jean, anne);
    CHECK(DonnerParent(session, luc, Cote::Pere, jean));
    CHECK(EnfantsDe(paul).empty());
    CHECK(EnfantsDe(jean) == std::vector{luc});
    CHECK(EnfantsDe(anne) == std::vector{luc});
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Famille, "DonnerParent: two parents without a union are offered one") {
    Parents(luc, {}, anne);
    SUBCASE("no") {
        Repondre({Non});
        CHECK(DonnerParent(session, luc, Cote::Pere, paul));
        CHECK(base.entete.DernierMariage == 0);
    }
    SUBCASE("yes") {
        Repondre({Oui});
        CHECK(DonnerParent(session, luc, Cote::Pere, paul));
        REQUIRE(UnionDe(base, paul, anne) == NoMariage{1});
        CHECK(base.R_EPOUX.LireCellule(NoMariage{1}) == paul);
        CHECK(base.R_EPOUSE.LireCellule(NoMariage{1}) == anne);
    }
    CHECK(Dit() == Dits{"ProposerCreerUnion(Anne Blanc)"});
}

TEST_CASE_FIXTURE(Famille, "DonnerParent: the wife is on her side whoever is chosen") {
    Parents(luc, paul, {});
    Repondre({Oui});
    CHECK(DonnerParent(session, luc, Cote::Mere, anne));
    CHECK(base.R_EPOUX.LireCellule(NoMariage{1}) == paul);
    CHECK(base.R_EPOUSE.LireCellule(NoMariage{1}) == anne);
    CHECK(Dit() == Dits{"ProposerCreerUnion(Paul Noir)"});
}

TEST_CASE_FIXTURE(
    Famille,
    "DonnerParent: each partner of the chosen one is asked for until a yes, then that "
    "partner's children are") {
    const NoOrdre rose = Creer(Sexe::Femme, "Roux", "Rose", "1830");
    const NoOrdre eve = Creer(Sexe::Femme, "Vert", "Eve", "1831");
    Marier(paul, anne);
    Marier(paul, rose);
    Marier(paul, eve);
    const NoOrdre max = Creer(Sexe::Homme, "Roux", "Max", "1855");
    const NoOrdre tom = Creer(Sexe::Homme, "Roux", "Tom", "1856");
    Parents(max, {}, rose);
    Parents(tom, {}, rose);
    Repondre({Non, Oui, Oui, Non});
    CHECK(DonnerParent(session, luc, Cote::Pere, paul));
    CHECK(Dit() == Dits{"DemanderSiEpouseEstLaMere(Luc Noir, Anne Blanc)",
                        "DemanderSiEpouseEstLaMere(Luc Noir, Rose Roux)",
                        "DemanderSiEpouxEstLePere(Max Roux, Paul Noir)",
                        "DemanderSiEpouxEstLePere(Tom Roux, Paul Noir)"});
    CHECK(ParentsDe(luc) == "1 5");
    CHECK(base.R_PERE.LireCellule(max) == paul);
    CHECK(!base.R_PERE.LireCellule(tom));
    CHECK(EnfantsDe(paul) == std::vector{luc, max});
}

TEST_CASE_FIXTURE(Famille, "DonnerParent: for a mother the questions are those of fathers") {
    Marier(paul, anne);
    Parents(zoe, paul, {});
    Repondre({Oui, Oui});
    CHECK(DonnerParent(session, luc, Cote::Mere, anne));
    CHECK(Dit() == Dits{"DemanderSiEpouxEstLePere(Luc Noir, Paul Noir)",
                        "DemanderSiEpouseEstLaMere(Zo\xE9 Noir, Anne Blanc)"});
    CHECK(ParentsDe(luc) == "1 2");
    CHECK(ParentsDe(zoe) == "1 2");
}

TEST_CASE_FIXTURE(Famille,
                  "DonnerParent: who cannot be the parent is refused and nothing changes") {
    const NoOrdre camille = Creer(Sexe::Indetermine, "Noir", "Camille", "1820");
    Parents(luc, paul, {});
    const NoOrdre petit = Creer(Sexe::Homme, "Noir", "Petit", "1880");
    Parents(petit, luc, {});
    base.marques.ModifBase = false;
    CHECK_FALSE(DonnerParent(session, luc, Cote::Pere, luc));
    CHECK_FALSE(DonnerParent(session, paul, Cote::Pere, petit));
    CHECK_FALSE(DonnerParent(session, zoe, Cote::Pere, anne));
    CHECK_FALSE(DonnerParent(session, zoe, Cote::Pere, camille));
    CHECK_FALSE(DonnerParent(session, zoe, Cote::Pere, NoOrdre{999}));
    CHECK_FALSE(DonnerParent(session, zoe, Cote::Pere, {}));
    CHECK(Dit() ==
          Dits{"PropreParent(Luc Noir, Luc Noir)", "ParentDescendDeLEnfant(Petit Noir, Paul Noir)",
               "SexeParentInadapte(Anne Blanc, Zo\xE9 Noir)", "SexeParentInadapte(Camille Noir)",
               "PersonneAbsenteDeLaBase", "PersonneAbsenteDeLaBase"});
    CHECK_FALSE(base.marques.ModifBase);
}

TEST_CASE_FIXTURE(Famille, "A 201st child changes no cell, whichever way it comes") {
    const NoOrdre dernier = Enfants(paul, 200);
    Marier(paul, anne);
    base.marques.ModifBase = false;
    CHECK_FALSE(DonnerParent(session, luc, Cote::Pere, paul));
    CHECK_FALSE(AttacherEnfant(session, paul, luc));
    CHECK_FALSE(PeutAvoirEnfant(session, paul));
    CHECK_FALSE(EnfantCree(session, paul, luc, {}));
    CHECK_FALSE(PeutAvoirEnfant(session, anne, NoMariage{1}));
    CHECK(Dit() == Dits{"MaximumEnfantsPersonneAtteint(Paul Noir, Luc Noir)",
                        "MaximumEnfantsPersonneAtteint(Paul Noir, Luc Noir)",
                        "MaximumEnfantsPersonneAtteint(Paul Noir)",
                        "MaximumEnfantsPersonneAtteint(Paul Noir)",
                        "MaximumEnfantsPersonneAtteint(Paul Noir)"});
    CHECK_FALSE(base.marques.ModifBase);
    CHECK(EnfantsDe(paul).size() == 200);
    // One who is there already needs no room.
    Repondre({Non});
    CHECK(DonnerParent(session, dernier, Cote::Pere, paul));
    CHECK(Dit() == Dits{"DemanderSiEpouseEstLaMere(Petit Noir, Anne Blanc)"});
    CHECK(EnfantsDe(paul).size() == 200);
}

TEST_CASE_FIXTURE(Famille, "A partner whose list is full is asked for, and refused after the yes") {
    Marier(paul, anne);
    for (int i = 0; i < 200; ++i)
        Parents(Creer(Sexe::Homme, "Blanc", "Petit", "1850"), {}, anne);
    Repondre({Oui});
    CHECK(DonnerParent(session, luc, Cote::Pere, paul));
    CHECK(Dit() == Dits{"DemanderSiEpouseEstLaMere(Luc Noir, Anne Blanc)",
                        "MaximumEnfantsPersonneAtteint(Anne Blanc, Luc Noir)"});
    CHECK(ParentsDe(luc) == "1 0");
}

TEST_CASE_FIXTURE(Famille, "ParentCree: union, warning of a death, children of the other parent") {
    const NoOrdre mort = Creer(Sexe::Homme, "Noir", "Jean", "1800", "1851");
    Parents(luc, {}, anne);
    Parents(zoe, {}, anne);
    Repondre({Oui, Oui});
    CHECK(ParentCree(session, luc, Cote::Pere, mort));
    // Died in 1851: after Luc's birth in 1850, before Zoé's in 1852.
    CHECK(Dit() == Dits{"ProposerCreerUnion(Anne Blanc)",
                        "DemanderSiEpouxEstLePere(Zo\xE9 Noir, Jean Noir)",
                        "DecesParentAvantNaissanceEnfant"});
    CHECK(UnionDe(base, mort, anne) == NoMariage{1});
    CHECK(ParentsDe(zoe) == "5 2");
}

TEST_CASE_FIXTURE(
    Famille, "ParentCree: a mother is the mirror, and her warning comes before the questions") {
    const NoOrdre mere = Creer(Sexe::Femme, "Vert", "Eve", "1800", "1840");
    Parents(luc, paul, {});
    Parents(zoe, paul, {});
    Repondre({Non, Non});
    CHECK(ParentCree(session, luc, Cote::Mere, mere));
    CHECK(Dit() == Dits{"ProposerCreerUnion(Paul Noir)", "DecesParentAvantNaissanceEnfant",
                        "DemanderSiEpouseEstLaMere(Zo\xE9 Noir, Eve Vert)"});
    CHECK(ParentsDe(luc) == "1 5");
    CHECK(ParentsDe(zoe) == "1 0");
}

TEST_CASE_FIXTURE(Famille, "ParentCree: warns of a death before a birth, of no empty year") {
    const NoOrdre sans = Creer(Sexe::Homme, "Noir", "Sans", "");
    CHECK(ParentCree(session, luc, Cote::Mere, anne));
    CHECK(ParentCree(session, sans, Cote::Pere, paul));
    base.R_DECES.EcrireCellule(anne, "1850");
    CHECK(ParentCree(session, luc, Cote::Mere, anne));
    CHECK(Dit().empty());
    base.R_DECES.EcrireCellule(anne, "1849");
    CHECK(ParentCree(session, luc, Cote::Mere, anne));
    CHECK(Dit() == Dits{"DecesParentAvantNaissanceEnfant"});
}

TEST_CASE_FIXTURE(Famille, "RetirerParent: asks, names the loss, and writes both sides") {
    Parents(luc, paul, anne);
    SUBCASE("no") {
        Repondre({Non});
        CHECK_FALSE(RetirerParent(session, luc, Cote::Pere));
        CHECK(dialogue.questions[0].defaut == Non);
        CHECK(dialogue.titres[0] == shell::Msg(message::TitreSuppression));
        CHECK(ParentsDe(luc) == "1 2");
        CHECK(Dit() == Dits{"ConfirmerRetirerPere(Paul Noir, Luc Noir)+ConfirmerSuppression"});
    }
    SUBCASE("yes") {
        Repondre({Oui});
        CHECK(RetirerParent(session, luc, Cote::Mere));
        CHECK(ParentsDe(luc) == "1 0");
        CHECK(EnfantsDe(anne).empty());
        CHECK(EnfantsDe(paul) == std::vector{luc});
        CHECK(Dit() == Dits{"ConfirmerRetirerMere(Anne Blanc, Luc Noir)+ConfirmerSuppression"});
    }
    SUBCASE("nobody there") {
        CHECK_FALSE(RetirerParent(session, zoe, Cote::Mere));
        CHECK(Dit().empty());
    }
}

TEST_CASE_FIXTURE(Famille,
                  "AttacherEnfant: a replaced parent is asked for, with Cancel for Enter") {
    const NoOrdre jean = Creer(Sexe::Homme, "Gris", "Jean", "1822");
    Parents(luc, paul, anne);
    SUBCASE("cancel") {
        Repondre({Annuler});
        CHECK_FALSE(AttacherEnfant(session, jean, luc));
        CHECK(dialogue.questions[0].defaut == Annuler);
        CHECK(dialogue.questions[0].boutons == shell::Boutons::ValiderAnnuler);
        CHECK(ParentsDe(luc) == "1 2");
    }
    SUBCASE("OK: the old father loses it, the mother keeps it") {
        Repondre({Oui});
        CHECK(AttacherEnfant(session, jean, luc));
        CHECK(ParentsDe(luc) == "5 2");
        CHECK(EnfantsDe(paul).empty());
        CHECK(EnfantsDe(anne) == std::vector{luc});
        CHECK(EnfantsDe(jean) == std::vector{luc});
    }
    CHECK(Dit() == Dits{"ConfirmerRemplacerParent(Luc Noir)+ConfirmerOperation"});
}

TEST_CASE_FIXTURE(Famille, "AttacherEnfant: partners are offered as other parent until a yes") {
    const NoOrdre rose = Creer(Sexe::Femme, "Roux", "Rose", "1830");
    Marier(paul, anne);
    Marier(paul, rose);
    Marier(paul, anne, "1870");
    SUBCASE("the first") {
        Repondre({Oui});
        CHECK(AttacherEnfant(session, paul, luc));
        CHECK(Dit() == Dits{"DemanderSiEpouseEstLaMere(Luc Noir, Anne Blanc)"});
        CHECK(ParentsDe(luc) == "1 2");
    }
    SUBCASE("none of them, each asked for once") {
        Repondre({Non, Non});
        CHECK(AttacherEnfant(session, paul, luc));
        CHECK(Dit() == Dits{"DemanderSiEpouseEstLaMere(Luc Noir, Anne Blanc)",
                            "DemanderSiEpouseEstLaMere(Luc Noir, Rose Roux)"});
        CHECK(ParentsDe(luc) == "1 0");
    }
    SUBCASE("to a mother, husbands are") {
        Repondre({Oui});
        CHECK(AttacherEnfant(session, rose, luc));
        CHECK(Dit() == Dits{"DemanderSiEpouxEstLePere(Luc Noir, Paul Noir)"});
        CHECK(ParentsDe(luc) == "1 5");
    }
}

TEST_CASE_FIXTURE(
    Famille, "AttacherEnfant: a child of oneself, one's parent and a child twice are refused") {
    Parents(luc, paul, {});
    CHECK_FALSE(AttacherEnfant(session, luc, luc));
    CHECK_FALSE(AttacherEnfant(session, luc, paul));
    CHECK_FALSE(AttacherEnfant(session, paul, luc));
    CHECK(Dit() == Dits{"PropreParent(Luc Noir, Luc Noir)",
                        "ParentDescendDeLEnfant(Luc Noir, Paul Noir)",
                        "InfoDejaEnfant(Luc Noir, Paul Noir)"});
    CHECK(EnfantsDe(paul) == std::vector{luc});
}

TEST_CASE_FIXTURE(Famille, "A partner who is the child itself is not offered as its parent") {
    Marier(paul, zoe);
    Parents(zoe, {}, anne);
    CHECK(AttacherEnfant(session, paul, zoe));
    CHECK(Dit().empty());
    CHECK(ParentsDe(zoe) == "1 2");
}

TEST_CASE_FIXTURE(Famille, "Who is of no known sex is given no child") {
    const NoOrdre camille = Creer(Sexe::Vide, "Noir", "Camille", "1820");
    const NoOrdre dom = Creer(Sexe::Indetermine, "Noir", "Dominique", "1820");
    base.marques.ModifBase = false;
    for (const NoOrdre n : {camille, dom}) {
        CHECK_FALSE(PeutAvoirEnfant(session, n));
        CHECK_FALSE(AttacherEnfant(session, n, luc));
        CHECK_FALSE(EnfantCree(session, n, luc, {}));
    }
    CHECK(Dit() == Dits{"SexeRequisPourRattacherEnfant", "SexeRequisPourRattacherEnfant",
                        "SexeRequisPourRattacherEnfant", "SexeRequisPourRattacherEnfant",
                        "SexeRequisPourRattacherEnfant", "SexeRequisPourRattacherEnfant"});
    CHECK_FALSE(base.marques.ModifBase);
}

TEST_CASE_FIXTURE(Famille,
                  "EnfantCree: child of the person and of the partner of the selected union") {
    const NoMariage m = Marier(paul, anne);
    SUBCASE("from the husband") {
        CHECK(EnfantCree(session, paul, luc, m));
    }
    SUBCASE("from the wife") {
        CHECK(EnfantCree(session, anne, luc, m));
    }
    CHECK(ParentsDe(luc) == "1 2");
    CHECK(EnfantsDe(paul) == std::vector{luc});
    CHECK(EnfantsDe(anne) == std::vector{luc});
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Famille,
                  "EnfantCree: without a union one parent only, and a warning for each dead one") {
    base.R_DECES.EcrireCellule(paul, "1840");
    CHECK(EnfantCree(session, paul, luc, {}));
    CHECK(ParentsDe(luc) == "1 0");
    CHECK(Dit() == Dits{"DecesParentAvantNaissanceEnfant"});
    base.R_DECES.EcrireCellule(anne, "1841");
    CHECK(EnfantCree(session, anne, zoe, Marier(paul, anne)));
    CHECK(ParentsDe(zoe) == "1 2");
    CHECK(Dit() == Dits{"DecesParentAvantNaissanceEnfant", "DecesParentAvantNaissanceEnfant"});
}

TEST_CASE_FIXTURE(Famille, "RetirerEnfant: the cell of that parent alone, after a question") {
    Parents(luc, paul, anne);
    Repondre({Non});
    CHECK_FALSE(RetirerEnfant(session, paul, luc));
    CHECK(ParentsDe(luc) == "1 2");
    Repondre({Oui});
    CHECK(RetirerEnfant(session, paul, luc));
    CHECK(ParentsDe(luc) == "0 2");
    CHECK(EnfantsDe(anne) == std::vector{luc});
    Repondre({Oui});
    CHECK(RetirerEnfant(session, anne, luc));
    CHECK(ParentsDe(luc) == "0 0");
    CHECK_FALSE(RetirerEnfant(session, anne, luc));
    CHECK(Dit() == Dits{"ConfirmerRetirerPere(Paul Noir, Luc Noir)+ConfirmerSuppression",
                        "ConfirmerRetirerPere(Paul Noir, Luc Noir)+ConfirmerSuppression",
                        "ConfirmerRetirerMere(Anne Blanc, Luc Noir)+ConfirmerSuppression"});
}

TEST_CASE_FIXTURE(
    Famille,
    "RetirerEnfant: a father of unknown sex, as an import may leave one, is let go as well") {
    base.R_SEXE.EcrireCellule(paul, Sexe::Vide);
    Parents(luc, paul, {});
    Repondre({Oui});
    CHECK(RetirerEnfant(session, paul, luc));
    CHECK(ParentsDe(luc) == "0 0");
    CHECK(Dit() == Dits{"ConfirmerRetirerPere(Paul Noir, Luc Noir)+ConfirmerSuppression"});
}

TEST_CASE_FIXTURE(Famille, "PeutEtreParent: ends on a base that goes in circles") {
    const NoOrdre jean = Creer(Sexe::Homme, "Noir", "Jean", "1870");
    base.R_PERE.EcrireCellule(luc, paul);
    base.R_PERE.EcrireCellule(paul, jean);
    base.R_PERE.EcrireCellule(jean, luc);
    // What is told here is told over a base that does not fit together from the start.
    dialogue.pendant = nullptr;
    // Each of the three stands above each other, whichever way round the circle.
    for (const NoOrdre enfant : {luc, paul, jean})
        for (const NoOrdre parent : {luc, paul, jean}) {
            CAPTURE(enfant.valeur);
            CAPTURE(parent.valeur);
            CHECK_FALSE(PeutEtreParent(session, enfant, Cote::Pere, parent));
            const std::vector<std::string> dit = Dit();
            REQUIRE(dit.size() == 1);
            CHECK(dit[0].starts_with(enfant == parent ? "PropreParent" : "ParentDescendDeLEnfant"));
        }
    CHECK(PeutEtreParent(session, anne, Cote::Pere, luc));
    CHECK(Dit().empty());
    for (const NoOrdre n : {luc, paul, jean})
        base.R_PERE.EcrireCellule(n, {});
}

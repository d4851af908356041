// What a repair does to unions, parents and children.
#include "doublures/Inventaire.h"
#include "messages/Soin.h"
#include "records/ControleBase.h"
#include "records/EssaiDepannage.h"
#include "records/Individus.h"

#include <algorithm>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Bureau = EssaiDepannage;

}  // namespace

TEST_CASE_FIXTURE(Bureau,
                  "Repair: the base stays open and dirty, the next commit stores the repairs") {
    const NoOrdre paul = Homme("Paul");
    B().R_PERE.EcrireCellule(paul, NoOrdre{999});
    REQUIRE(shell::MnuEnregistrer(session));
    Depanner();
    CHECK(B().marques.ModifBase);
    REQUIRE(shell::MnuEnregistrer(session));
    shell::OuvrirChemin(session, dossier / "Famille.LGD");
    CHECK(B().R_PERE.LireCellule(paul) == NoOrdre{});
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a union with a partner out of range is cleared, with text, years "
                  "and index words") {
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier({}, anne, "1850");
    B().R_FINMAR.EcrireCellule(m, "1860");
    EcrireTexteMariage(session, m, "1/2@Brest");
    B().R_EPOUX.EcrireCellule(m, NoOrdre{500});
    const std::vector<std::string> voulues{
        "Suppression Mariage 1\tMariage 1 incohérent supprimé"_1252.data(),
        "Suppression Mariage 1\tSuppression lien mariage de Anne MARTIN (o1825) (1)"};
    CHECK(Depanner() == voulues);
    CHECK(B().R_MARIAG.NbElements(anne) == 0);
    CHECK(B().R_EPOUSE.LireCellule(m) == NoOrdre{});
    CHECK(B().R_DEBMAR.LireCellule(m).empty());
    CHECK(B().R_FINMAR.LireCellule(m).empty());
    CHECK(B().R_TXTMAR.LireTexte(m).empty());
    CHECK(B().R_INDEX.ListeMots(NoMotCle{4}).empty());
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a union of one partner stays if that one lives, and goes if not") {
    const NoOrdre anne = Femme("Anne");
    const NoOrdre eve = Femme("Eve");
    const NoMariage reste = Marier({}, anne, "1850");
    const NoMariage part = Marier({}, eve, "1860");
    const NoMariage vide = Marier({}, {}, "");
    B().R_TRI.RetirerIndividu(eve);
    B().R_NOM.EcrireNom(eve, "");
    B().R_SEXE.EcrireCellule(eve, Sexe::Vide);
    B().R_NAISS.EcrireCellule(eve, "");
    B().R_MARIAG.ModifierListe(eve, part, storage::ActionListe::Supprimer);
    CHECK(Depanner().size() == 1);
    CHECK(B().R_EPOUSE.LireCellule(reste) == anne);
    CHECK(B().R_EPOUSE.LireCellule(part) == NoOrdre{});
    CHECK(B().R_DEBMAR.LireCellule(part).empty());
    CHECK(B().R_EPOUX.LireCellule(vide) == NoOrdre{});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: a deleted partner leaves the union to the one who lives") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(jean, anne, "1850");
    B().R_TRI.RetirerIndividu(jean);
    B().R_NOM.EcrireNom(jean, "");
    B().R_SEXE.EcrireCellule(jean, Sexe::Vide);
    B().R_NAISS.EcrireCellule(jean, "");
    B().R_MARIAG.ModifierListe(jean, m, storage::ActionListe::Supprimer);
    Depanner();
    CHECK(B().R_EPOUX.LireCellule(m) == NoOrdre{});
    CHECK(B().R_MARIAG.Elements(anne) == std::vector{m});
    CHECK(B().R_DEBMAR.LireCellule(m) == "1850");
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: the words of a union leave a partner who was deleted") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(jean, anne, "1850");
    EcrireTexteMariage(session, m, "1/2@Brest");
    B().R_TRI.RetirerIndividu(jean);
    B().R_NOM.EcrireNom(jean, "");
    B().R_SEXE.EcrireCellule(jean, Sexe::Vide);
    B().R_NAISS.EcrireCellule(jean, "");
    B().R_MARIAG.ModifierListe(jean, m, storage::ActionListe::Supprimer);
    B().marques.AffichagePerime = false;
    // The list of words need not be made anew for that.
    CHECK(Depanner() ==
          std::vector<std::string>{"Suppression Conjoint 1\tSuppression conjoint du mariage 1"});
    const NoIndex brest = B().R_INDEX.ChercherMot(NoMotCle{4}, "BREST");
    CHECK(B().R_INDEX.PersonnesIndex(brest) == std::vector{anne});
    CHECK(B().marques.AffichagePerime);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: full lists make room even for who comes first in the order") {
    const NoOrdre jean = Homme("Jean", "1820");
    const NoOrdre fils = Homme("Paul", "1800");
    const NoOrdre anne = Femme("Anne");
    const NoMariage autre = Marier(Homme("Louis"), Femme("Eve"));
    const NoMariage union_ = Marier(jean, anne, "1850");
    B().R_MARIAG.ModifierListe(jean, union_, storage::ActionListe::Supprimer);
    for (int i = 0; i < 200; ++i) {
        B().R_ENFANT.ModifierListe(jean, anne, storage::ActionListe::Ajouter);
        B().R_MARIAG.ModifierListe(jean, autre, storage::ActionListe::Ajouter);
    }
    REQUIRE(B().R_ENFANT.NbElements(jean) == 200);
    REQUIRE(B().R_MARIAG.NbElements(jean) == 200);
    B().R_PERE.EcrireCellule(fils, jean);
    Depanner();
    CHECK(B().R_ENFANT.Elements(jean) == std::vector{fils});
    CHECK(B().R_MARIAG.Elements(jean) == std::vector{union_});
    CHECK(B().marques.AffichagePerime);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: partners who do not list their union get it") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(jean, anne, "1850");
    B().R_MARIAG.ModifierListe(jean, m, storage::ActionListe::Supprimer);
    B().R_MARIAG.ModifierListe(anne, m, storage::ActionListe::Supprimer);
    const std::vector<std::string> voulues{
        "Ajout Mariage Jean DURAND (o1820) (1)\tLien mariage de Jean DURAND (o1820) (1) avec "
        "Anne MARTIN (o1825) (2) cr\xE9\xE9",
        "Ajout Mariage Anne MARTIN (o1825) (2)\tLien mariage de Anne MARTIN (o1825) (2) avec "
        "Jean DURAND (o1820) (1) cr\xE9\xE9"};
    CHECK(Depanner() == voulues);
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a woman in the husband's place and a man in the wife's change places") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(anne, jean, "1850");
    Depanner();
    CHECK(B().R_EPOUX.LireCellule(m) == jean);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: unions of a list that are others' or nobody's leave it") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoOrdre paul = Homme("Paul");
    const NoMariage m = Marier(jean, anne, "1850");
    B().R_MARIAG.ModifierListe(paul, m, storage::ActionListe::Ajouter);
    B().R_MARIAG.ModifierListe(anne, NoMariage{60000}, storage::ActionListe::Ajouter);
    B().R_MARIAG.ModifierListe(anne, m, storage::ActionListe::Ajouter);
    CHECK(Depanner().size() == 3);
    CHECK(B().R_MARIAG.NbElements(paul) == 0);
    CHECK(B().R_MARIAG.Elements(anne) == std::vector{m});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: parents out of range or deleted are cleared") {
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre mere = Femme("Anne");
    B().R_PERE.EcrireCellule(paul, NoOrdre{64000});
    B().R_MERE.EcrireCellule(paul, mere);
    B().R_ENFANT.ModifierListe(mere, paul, storage::ActionListe::Ajouter);
    SupprimerIndividu(session, mere);
    B().R_TRI.RetirerIndividu(mere);
    B().R_NOM.EcrireNom(mere, "");
    B().R_SEXE.EcrireCellule(mere, Sexe::Vide);
    B().R_NAISS.EcrireCellule(mere, "");
    B().R_ENFANT.EcrireListe(mere, "");
    const std::vector<std::string> voulues{
        "Suppression P\xE8re Paul DURAND (o1850) (1)\tSuppression p\xE8re de 1",
        "Suppression M\xE8re Paul DURAND (o1850) (1)\tSuppression m\xE8re de 1"};
    CHECK(Depanner() == voulues);
    CHECK(B().R_MERE.LireCellule(paul) == NoOrdre{});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: parents who do not list their child get it, by year of birth") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre luc = Homme("Luc", "1848");
    Parents(paul, jean, anne);
    Parents(luc, jean, anne);
    B().R_ENFANT.ModifierListe(jean, luc, storage::ActionListe::Supprimer);
    B().R_ENFANT.ModifierListe(anne, paul, storage::ActionListe::Supprimer);
    const std::vector<std::string> lignes = Depanner();
    CHECK(lignes.size() == 2);
    CHECK(lignes[0] ==
          "Ajout Enfant Luc DURAND (o1848) (4)\tAjout lien enfant de Jean DURAND (o1820) (1) avec "
          "Luc DURAND (o1848) (4)");
    CHECK(B().R_ENFANT.Elements(jean) == std::vector{luc, paul});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: children of a list who are others' or nobody's leave it") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre indetermine = Creer(Sexe::Indetermine, "DURAND", "Max", "1820");
    B().R_ENFANT.ModifierListe(jean, paul, storage::ActionListe::Ajouter);
    B().R_ENFANT.ModifierListe(jean, NoOrdre{60000}, storage::ActionListe::Ajouter);
    B().R_ENFANT.ModifierListe(indetermine, paul, storage::ActionListe::Ajouter);
    B().marques.AffichagePerime = false;
    CHECK(Depanner().size() == 3);
    CHECK(B().marques.AffichagePerime);
    CHECK(B().R_ENFANT.NbElements(jean) == 0);
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: who is his own father keeps the link, since the list holds him") {
    const NoOrdre paul = Homme("Paul", "1850");
    B().R_PERE.EcrireCellule(paul, paul);
    B().R_ENFANT.ModifierListe(paul, paul, storage::ActionListe::Ajouter);
    CHECK(Depanner() == std::vector{session.Message(message::InfoRienAReparer)});
    CHECK(B().R_PERE.LireCellule(paul) == paul);
}

TEST_CASE_FIXTURE(Bureau, "Repair: a mother whose sex is wrong keeps her children") {
    const NoOrdre anne = Homme("Anne");
    const NoOrdre paul = Homme("Paul", "1850");
    B().R_MERE.EcrireCellule(paul, anne);
    Depanner();
    CHECK(B().R_ENFANT.Elements(anne) == std::vector{paul});
    Depanner();
    CHECK(bilan.reparations == 0);
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a list full of others makes room; one full of the right ones is told") {
    const NoOrdre jean = Homme("Jean");
    std::vector<NoOrdre> enfants;
    for (int i = 0; i < 201; ++i)
        enfants.push_back(Homme("Paul", "1850"));
    const NoOrdre dernier = enfants.back();
    SUBCASE("others") {
        for (int i = 0; i < 200; ++i)
            B().R_ENFANT.ModifierListe(jean, enfants[0], storage::ActionListe::Ajouter);
        B().R_PERE.EcrireCellule(dernier, jean);
        Depanner();
        CHECK(B().R_ENFANT.Elements(jean) == std::vector{dernier});
        Sain();
    }
    SUBCASE("the right ones") {
        for (const NoOrdre enfant : enfants)
            B().R_PERE.EcrireCellule(enfant, jean);
        for (int i = 0; i < 200; ++i)
            B().R_ENFANT.ModifierListe(jean, enfants[static_cast<std::size_t>(i)],
                                       storage::ActionListe::Ajouter);
        const std::vector<std::string> lignes = Depanner();
        CHECK(bilan.reparations == 0);
        CHECK(lignes.size() == 1);
        CHECK(B().R_PERE.LireCellule(dernier) == jean);
    }
}

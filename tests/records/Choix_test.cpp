#include "records/Choix.h"

#include "records/EssaiFamille.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Personnes = std::vector<NoOrdre>;

struct Famille : EssaiFamille {
    explicit Famille(TypeTri tri = TypeTri::Nom) : EssaiFamille{tri} {}

    [[nodiscard]] Personnes Parents(NoOrdre n, Sexe sexe) {
        return Choix{session, {SorteChoix::Parent, n, sexe}}.Page();
    }
    [[nodiscard]] Personnes Offerts(SorteChoix sorte, NoOrdre n) {
        return Choix{session, {sorte, n, Sexe::Vide}}.Page();
    }
    /// Men of one year, named in the order of their numbers; the first and the last.
    std::pair<NoOrdre, NoOrdre> Peupler(int combien, std::string_view annee) {
        std::pair<NoOrdre, NoOrdre> bornes;
        for (int i = 0; i < combien; ++i) {
            bornes.second = Creer(Sexe::Homme, "Nom" + std::to_string(1000 + i), "P", annee);
            if (i == 0) bornes.first = bornes.second;
        }
        return bornes;
    }
};

struct ParNaissance : Famille {
    ParNaissance() : Famille{TypeTri::Naissance} {}
};

}  // namespace

TEST_CASE_FIXTURE(
    Famille, "A parent is offered from 100 to 10 years before the child, of the sex asked for") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1855");
    const NoOrdre premier = Creer(Sexe::Homme, "B", "Premier", "1755");
    const NoOrdre dernier = Creer(Sexe::Homme, "C", "Dernier", "1845");
    const NoOrdre mere = Creer(Sexe::Femme, "D", "Mere", "1830");
    Creer(Sexe::Homme, "E", "Trop tot", "1754");
    Creer(Sexe::Homme, "F", "Trop tard", "1846");
    Creer(Sexe::Indetermine, "G", "Indetermine", "1830");
    Creer(Sexe::Vide, "H", "Sans sexe", "1830");
    Creer(Sexe::Homme, "I", "Sans annee", "");
    CHECK(Parents(enfant, Sexe::Homme) == Personnes{premier, dernier});
    CHECK(Parents(enfant, Sexe::Femme) == Personnes{mere});
}

TEST_CASE_FIXTURE(Famille, "The bounds of years are decades away and keep the last digit") {
    const auto fenetre = [this](SorteChoix sorte, std::string_view annee,
                                std::string_view mort = {}) {
        return Choix{session, {sorte, Creer(Sexe::Homme, "A", "A", annee, mort), Sexe::Homme}}
            .Fenetre();
    };
    CHECK(fenetre(SorteChoix::Parent, "1855") == FenetreAnnees{"1755", "1845"});
    CHECK(fenetre(SorteChoix::Enfant, "1855") == FenetreAnnees{"1865", "1955"});
    CHECK(fenetre(SorteChoix::Conjoint, "1855") == FenetreAnnees{"1755", "1955"});
    CHECK(fenetre(SorteChoix::Lien, "1855", "1900") == FenetreAnnees{"-", "1900"});
    CHECK(fenetre(SorteChoix::Lien, "1855") == FenetreAnnees{"-", ""});
    CHECK(fenetre(SorteChoix::Lien, "1855", "vers") == FenetreAnnees{"-", ""});
    CHECK(fenetre(SorteChoix::Parent, "1003") == FenetreAnnees{"0903", "0993"});
    CHECK(fenetre(SorteChoix::Parent, "57") == FenetreAnnees{"-", "0047"});
    CHECK(fenetre(SorteChoix::Parent, "7") == FenetreAnnees{"-", "0007"});
    CHECK(fenetre(SorteChoix::Parent, "") == FenetreAnnees{"-", "0000"});
    CHECK(fenetre(SorteChoix::Conjoint, "-44") == FenetreAnnees{"-", "0064"});
    CHECK(fenetre(SorteChoix::Parent, "18?") == FenetreAnnees{"008?", "017?"});
    CHECK(fenetre(SorteChoix::Enfant, "9999") == FenetreAnnees{"9999", "9999"});
}

TEST_CASE_FIXTURE(Famille,
                  "For a child without a year only parents with an empty or low year are offered") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "");
    const NoOrdre sans = Creer(Sexe::Homme, "B", "Sans", "");
    const NoOrdre avant = Creer(Sexe::Homme, "C", "Avant", "-50");
    Creer(Sexe::Homme, "D", "Connu", "1820");
    CHECK(Parents(enfant, Sexe::Homme) == Personnes{sans, avant});
}

TEST_CASE_FIXTURE(
    Famille,
    "A child is offered from 10 to 100 years after the parent, not after the parent's death") {
    const NoOrdre parent = Creer(Sexe::Homme, "A", "Parent", "1800", "1850");
    Creer(Sexe::Homme, "B", "Trop tot", "1809");
    const NoOrdre premier = Creer(Sexe::Femme, "C", "Premier", "1810");
    const NoOrdre dernier = Creer(Sexe::Indetermine, "D", "Dernier", "1850");
    Creer(Sexe::Homme, "E", "Posthume", "1851");
    CHECK(Offerts(SorteChoix::Enfant, parent) == Personnes{premier, dernier});
    base.R_DECES.EcrireCellule(parent, "");
    CHECK(Offerts(SorteChoix::Enfant, parent).size() == 3);
    for (const char* inconnue : {"?", "vers"}) {
        base.R_DECES.EcrireCellule(parent, inconnue);
        CHECK(Offerts(SorteChoix::Enfant, parent).size() == 3);
    }
}

TEST_CASE_FIXTURE(Famille, "A spouse is of another sex, born within 100 years, not dead before") {
    const NoOrdre paul = Creer(Sexe::Homme, "A", "Paul", "1800");
    const NoOrdre anne = Creer(Sexe::Femme, "B", "Anne", "1700", "1801");
    Creer(Sexe::Femme, "C", "Morte", "1750", "1800");
    Creer(Sexe::Femme, "D", "Trop tot", "1699");
    const NoOrdre indetermine = Creer(Sexe::Indetermine, "E", "Camille", "1900");
    const NoOrdre luc = Creer(Sexe::Homme, "F", "Luc", "1800");
    CHECK(Offerts(SorteChoix::Conjoint, paul) == Personnes{anne, indetermine});
    CHECK(Offerts(SorteChoix::Conjoint, anne) == Personnes{paul, luc});
    base.R_SEXE.EcrireCellule(anne, Sexe::Indetermine);
    CHECK(Offerts(SorteChoix::Conjoint, paul) == Personnes{anne, indetermine});
}

TEST_CASE_FIXTURE(Famille, "A link is offered with who lived at the same time, on both sides") {
    const NoOrdre paul = Creer(Sexe::Homme, "A", "Paul", "1800", "1850");
    const NoOrdre ancien = Creer(Sexe::Femme, "B", "Ancienne", "1750", "1801");
    Creer(Sexe::Femme, "C", "Morte", "1750", "1800");
    const NoOrdre jeune = Creer(Sexe::Femme, "D", "Jeune", "1849");
    Creer(Sexe::Femme, "E", "Nee apres", "1850");
    const NoOrdre sans = Creer(Sexe::Homme, "F", "Sans annee", "");
    CHECK(Offerts(SorteChoix::Lien, paul) == Personnes{ancien, jeune, sans});
}

TEST_CASE_FIXTURE(Famille,
                  "Pages hold 20 persons in sort order, and a step back shows the same rows") {
    const NoOrdre enfant = Creer(Sexe::Homme, "Z", "Enfant", "1850");
    const NoOrdre premier = Peupler(45, "1820").first;
    Choix choix{session, {SorteChoix::Parent, enfant, Sexe::Homme}};
    CHECK(choix.NoPage() == 1);
    CHECK(choix.NbPages() == 3);
    CHECK(choix.Nombre() == 45);
    CHECK_FALSE(choix.APrecedente());
    CHECK_FALSE(choix.Precedente());
    REQUIRE(choix.Page().size() == 20);
    CHECK(choix.Page()[0] == premier);
    const Personnes page = choix.Page();
    CHECK(choix.Suivante());
    CHECK(choix.Page()[0] == NoOrdre{premier.valeur + 20});
    CHECK(choix.Suivante());
    CHECK(choix.Page().size() == 5);
    CHECK_FALSE(choix.ASuivante());
    CHECK_FALSE(choix.Suivante());
    CHECK(choix.Precedente());
    CHECK(choix.Precedente());
    CHECK(choix.Page() == page);
    CHECK(choix.NoPage() == 1);
}

TEST_CASE_FIXTURE(
    Famille, "A page that ends with the table, or before persons who do not fit, is the last") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    Peupler(20, "1820");
    CHECK_FALSE(Choix(session, {SorteChoix::Parent, enfant, Sexe::Homme}).ASuivante());
    Creer(Sexe::Homme, "Z", "Trop jeune", "1849");
    CHECK_FALSE(Choix(session, {SorteChoix::Parent, enfant, Sexe::Homme}).ASuivante());
    Creer(Sexe::Homme, "Zz", "De plus", "1820");
    Choix choix{session, {SorteChoix::Parent, enfant, Sexe::Homme}};
    CHECK(choix.Page().size() == 20);
    CHECK(choix.Suivante());
    CHECK(choix.Page().size() == 1);
}

TEST_CASE_FIXTURE(
    ParNaissance,
    "By year of birth the walk ends at the upper bound, and offers the same persons") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    const NoOrdre pere = Creer(Sexe::Homme, "Z", "Pere", "1820");
    const NoOrdre borne = Creer(Sexe::Homme, "B", "Borne", "1840");
    Creer(Sexe::Homme, "C", "Trop tard", "1841");
    CHECK(Parents(enfant, Sexe::Homme) == Personnes{pere, borne});
    // Nobody stands behind the bound in a table by years: who does is not reached.
    base.R_NAISS.EcrireCellule(borne, "1900");
    base.R_NAISS.EcrireCellule(pere, "1900");
    const NoOrdre cache = base.R_TRI.IndividuAuRang(base.entete.NbTriIndividus);
    base.R_NAISS.EcrireCellule(cache, "1820");
    CHECK(Parents(enfant, Sexe::Homme).empty());
    for (const NoOrdre n : {borne, pere, cache})
        base.R_TRI.RetirerIndividu(n);
    for (const NoOrdre n : {borne, pere, cache})
        base.R_TRI.AjouterIndividu(n);
}

TEST_CASE_FIXTURE(Famille,
                  "The filter is folded, and each of its words stands somewhere in the names") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    const NoOrdre jean = Creer(Sexe::Homme, "Évrard-Noël"_1252, "Jean Marie", "1820");
    const NoOrdre paul = Creer(Sexe::Homme, "Martin", "Paul", "1820");
    Choix choix{session, {SorteChoix::Parent, enfant, Sexe::Homme}};
    CHECK(choix.Page() == Personnes{jean, paul});
    choix.Filtrer("marie evrard");
    CHECK(choix.Filtre() == "MARIE EVRARD");
    CHECK(choix.Page() == Personnes{jean});
    choix.Filtrer("noël"_1252);
    CHECK(choix.Page() == Personnes{jean});
    choix.Filtrer("art");
    CHECK(choix.Page() == Personnes{paul});
    choix.Filtrer("marie paul");
    CHECK(choix.Page().empty());
    CHECK(choix.NoPage() == 1);
    CHECK(choix.NbPages() == 1);
    CHECK_FALSE(choix.ASuivante());
    choix.Filtrer(" - ");
    CHECK(choix.Page() == Personnes{jean, paul});
}

TEST_CASE_FIXTURE(Famille, "The filter also sees what the template shows besides the names") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    const NoOrdre mere = Creer(Sexe::Femme, "Roux", "Rose", "1790");
    const NoOrdre jean = Creer(Sexe::Homme, "Noir", "Jean", "1820");
    base.R_MERE.EcrireCellule(jean, mere);
    base.R_ENFANT.ModifierListe(mere, jean, storage::ActionListe::Ajouter);
    Choix choix{session, {SorteChoix::Parent, enfant, Sexe::Homme}};
    choix.Filtrer("noir roux");
    CHECK(choix.Page().empty());
    session.parametres.generaux.affichageNom = "FNAM/BIRN/MOTN/";
    session.AppliquerReglages();
    choix.Filtrer("noir roux");
    CHECK(choix.Page() == Personnes{jean});
}

TEST_CASE_FIXTURE(
    Famille,
    "A number reaches that person past the years, but never the person itself nor a wrong sex") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    const NoOrdre jeune = Creer(Sexe::Homme, "B", "Jeune", "1900");
    const NoOrdre mere = Creer(Sexe::Femme, "C", "Mere", "1820");
    Choix choix{session, {SorteChoix::Parent, enfant, Sexe::Homme}};
    choix.Filtrer("2");
    CHECK(choix.Page() == Personnes{jeune});
    CHECK_FALSE(choix.ASuivante());
    for (const char* numero : {"1", "3", "4", "0", "64001", "99999999999999999999"}) {
        CAPTURE(numero);
        choix.Filtrer(numero);
        CHECK(choix.Page().empty());
    }
    choix.Filtrer("");
    CHECK(choix.Page().empty());
    CHECK(Choix(session, {SorteChoix::Parent, enfant, Sexe::Femme}).Page() == Personnes{mere});
}

TEST_CASE_FIXTURE(Famille, "A deleted person is not offered, not even by number") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    const NoOrdre parti = Creer(Sexe::Homme, "B", "Parti", "1820");
    base.R_TRI.RetirerIndividu(parti);
    base.R_NOM.EcrireNom(parti, "");
    base.R_NAISS.EcrireCellule(parti, "");
    base.R_SEXE.EcrireCellule(parti, Sexe::Vide);
    Choix choix{session, {SorteChoix::Lien, enfant, Sexe::Vide}};
    CHECK(choix.Page().empty());
    choix.Filtrer("2");
    CHECK(choix.Page().empty());
}

TEST_CASE_FIXTURE(Famille, "Without the window of years only sex and name count") {
    const NoOrdre enfant = Creer(Sexe::Homme, "A", "Enfant", "1850");
    const NoOrdre jeune = Creer(Sexe::Homme, "B", "Jeune", "1900");
    const NoOrdre sans = Creer(Sexe::Homme, "C", "Sans", "");
    Creer(Sexe::Femme, "D", "Mere", "1820");
    Choix choix{session, {SorteChoix::Parent, enfant, Sexe::Homme}};
    CHECK(choix.Page().empty());
    choix.LeverFenetre(true);
    CHECK(choix.Page() == Personnes{jeune, sans});
    choix.Filtrer("jeune");
    CHECK(choix.Page() == Personnes{jeune});
    choix.LeverFenetre(false);
    CHECK(choix.Page().empty());
}

TEST_CASE_FIXTURE(Famille, "The mark tells which parents are known") {
    const NoOrdre pere = Creer(Sexe::Homme, "A", "Pere", "1820");
    const NoOrdre mere = Creer(Sexe::Femme, "B", "Mere", "1820");
    const NoOrdre deux = Creer(Sexe::Homme, "C", "Deux", "1850");
    const NoOrdre un = Creer(Sexe::Homme, "D", "Un", "1850");
    const NoOrdre une = Creer(Sexe::Homme, "E", "Une", "1850");
    EssaiFamille::Parents(deux, pere, mere);
    EssaiFamille::Parents(un, pere, {});
    EssaiFamille::Parents(une, {}, mere);
    CHECK(MarqueParents(base, pere) == "*");
    CHECK(MarqueParents(base, deux) == "");
    CHECK(MarqueParents(base, un) == "P");
    CHECK(MarqueParents(base, une) == "M");
}

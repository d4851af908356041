// A family typed in from the command line, word by word what the windows do.
#include "parcours/Poste.h"

#include <doctest/doctest.h>

using namespace dorvane::parcours;

namespace {

/// An empty base and the commands on it.
struct Famille : Poste {
    Famille() { REQUIRE(Lancer("nouveau f.LGD").statut == 0); }

    /// The verb and what follows the base; the number that it writes, or the whole output.
    Reponse Faire(const std::string& verbe, const std::string& suite) const {
        return Lancer(verbe + " f.LGD " + suite);
    }
    void Reussir(const std::string& verbe, const std::string& suite,
                 const std::string& sortie = {}) const {
        CAPTURE(verbe);
        CAPTURE(suite);
        const Reponse reponse = Faire(verbe, suite);
        CAPTURE(reponse.messages);
        CHECK(reponse.statut == 0);
        CHECK(reponse.sortie == (sortie.empty() ? "" : sortie + "\n"));
    }
    void Couple() const {
        Reussir("creer",
                "--nom Martin --prenom 'Louis Marie' --sexe H --naissance '12 mars 1820' "
                "--lieu-naissance 'Saint Malo' --ligne Profession '' sabotier --note 'Né tard'",
                "1");
        Reussir("creer", "--nom 'Le Goff' --prenom Anne --sexe F --naissance 'vers 1825'", "2");
        Reussir("lier", "1 conjoint 2 --non", "1");
    }
};

}  // namespace

TEST_CASE_FIXTURE(Famille,
                  "Command line: a couple and a child, with questions answered by options") {
    Couple();
    Reussir("creer", "--nom Martin --prenom Paul --sexe H --naissance 1850", "3");
    SUBCASE("yes makes the partner the mother") {
        Reussir("lier", "1 enfant 3 --oui");
        const Reponse enfant = Faire("personne", "3 --json");
        CHECK(Contient(enfant.sortie, "\"pere\": 1"));
        CHECK(Contient(enfant.sortie, "\"mere\": 2"));
        Reussir("delier", "3 mere --oui");
        CHECK(Contient(Faire("personne", "3 --json").sortie, "\"mere\": null"));
    }
    SUBCASE("no leaves the mother unknown") {
        Reussir("lier", "1 enfant 3 --non");
        CHECK(Contient(Faire("personne", "3 --json").sortie, "\"mere\": null"));
    }
    Reussir("modifier", "1 --union 1 --date-union 3/5/1849 --lieu-union 'Saint Malo'");
    const Reponse louis = Faire("personne", "1");
    CHECK(Contient(louis.sortie, "texte: 3/5 @Saint.Malo"));
    CHECK(Contient(louis.sortie, "texte: |Martin ¶Louis.Marie $Saint.Malo"));
    CHECK(Contient(louis.sortie, "Né tard"));
}

TEST_CASE_FIXTURE(Famille, "Command line: a refusal leaves the file as it was") {
    Couple();
    const std::string avant = LireFichier(dossier / "f.LGD");
    CHECK(Faire("supprimer", "1 --oui").statut == 1);
    CHECK(Faire("creer", "--naissance 1850").statut == 1);
    CHECK(Faire("modifier", "1 --sexe F").statut == 1);
    CHECK(Faire("modifier", "9 --nom X").statut == 1);
    CHECK(Faire("modifier", "1 --union 7 --lieu-union X").statut == 1);
    CHECK(Faire("modifier", "1 --ligne Inconnue 1820 Brest").statut == 1);
    CHECK(Faire("lier", "1 enfant 1 --oui").statut == 1);
    CHECK(Faire("lier", "1 parrain 2").statut == 2);
    CHECK(Faire("delier", "1 pere --oui").statut == 1);
    CHECK(LireFichier(dossier / "f.LGD") == avant);
}

TEST_CASE_FIXTURE(Famille, "Command line: links, events and documents") {
    Couple();
    Reussir("lier", "1 lien 2 --libelle Témoin");
    CHECK(Contient(Faire("personne", "2 --json").sortie, "WITN"));
    Reussir("delier", "2 lien 1 --oui");
    CHECK_FALSE(Contient(Faire("personne", "1 --json").sortie, "WITN"));

    Reussir("evenement creer",
            "--type Naissance --date 29/2/1824 --lieu Brest --personne 1:CHIL --non", "1");
    Reussir("evenement lister", "1", "1\t29 février 1824\tNaissance\tBrest\t");
    Reussir("evenement modifier", "1 --lieu Quimper --oui");
    CHECK(Contient(Faire("personne", "1 --json").sortie, "\"lieu\": \"Quimper\""));
    Reussir("evenement lier", "1 2 MOTH");
    Reussir("evenement supprimer", "1 --oui");
    CHECK(Faire("evenement lister", "").sortie.empty());
    CHECK(Faire("evenement creer", "--type BIRT").statut == 1);
    CHECK(Faire("evenement creer", "--type BIRT --date 30/2/1824").statut == 1);

    EcrireFichier(dossier / "acte.png", "x");
    Reussir("document creer", "--titre 'Acte / mairie' --fichier acte.png --type Acte", "1");
    Reussir("document attacher", "1 2");
    Reussir("document usages", "1", R"({"personnes":[2],"evenements":[]})");
    CHECK(Contient(Faire("document lister", "--json").sortie, "\"fichier\": \"acte.png\""));
    Reussir("document detacher", "1 2 --oui");
    Reussir("document supprimer", "1 --oui");
    CHECK(Faire("document lister", "").sortie.empty());
}

TEST_CASE_FIXTURE(Famille, "Command line: keywords, search and settings") {
    Couple();
    Reussir("motcle ajouter", "µ Taille --indexe", "12");
    Reussir("motcle ligne", "12 fiche");
    Reussir("modifier", "1 --ligne Taille '' 1m70");
    CHECK(Contient(Faire("personne", "1").sortie, "Taille µ1m70"));
    Reussir("motcle modifier", "12 --libelle Stature --oui");
    CHECK(Contient(Faire("motcle lister", "").sortie, "12\tµ\tStature\tindexé"));
    Reussir("motcle supprimer", "12 --oui");
    CHECK(Faire("motcle supprimer", "1 --oui").statut == 1);
    CHECK(Faire("motcle ajouter", "A Taille").statut == 1);

    Reussir("rechercher", "goff", "2\tAnne Le Goff\to~1825");
    CHECK(Contient(Faire("rechercher", "MARTIN --json").sortie, "\"numero\": 1"));
    CHECK(Faire("rechercher", "Durand").statut == 1);

    CHECK(Lancer("parametre ecrire Defaut 'Affichage Nom' BIRN/FNAM/").statut == 0);
    CHECK(Lancer("parametre lire Defaut 'Affichage Nom'").sortie == "BIRN/FNAM/\n");
    CHECK(Lancer("parametre lire Defaut Inconnu").statut == 1);
    Reussir("rechercher", "goff", "2\tLe Goff Anne\to~1825");
}

// Communes and surveys from the command line.
#include "parcours/Poste.h"

#include <doctest/doctest.h>

using namespace dorvane::parcours;

TEST_CASE_FIXTURE(Poste,
                  "Command line: a list of communes is made a base, searched and rewritten") {
    EcrireFichier(dossier / "liste.csv",
                  "nom;code;departement\nBlois;41000;Loir-et-Cher\nSuèvres;41500;Loir-et-Cher\n");
    CHECK(Lancer("communes creer c.lgx liste.csv").sortie == "2\n");
    CHECK(Lancer("communes chercher c.lgx suevres").sortie == "2\t41500\tSuèvres, Loir-et-Cher\n");
    CHECK(Lancer("communes chercher c.lgx b --debut").sortie == "1\t41000\tBlois, Loir-et-Cher\n");
    CHECK(Lancer("communes chercher c.lgx Bloy --son").sortie == "1\t41000\tBlois, Loir-et-Cher\n");
    CHECK(Contient(Lancer("communes chercher c.lgx Blois --json").sortie, "\"code\": \"41000\""));
    CHECK(Lancer("communes chercher c.lgx Mer").statut == 1);
    const std::string avant = LireFichier(dossier / "c.lgx");
    CHECK(Lancer("communes reorganiser c.lgx").statut == 0);
    CHECK(LireFichier(dossier / "c.lgx") == avant);
}

TEST_CASE_FIXTURE(Poste, "Command line: what is wrong with communes is told, and nothing is lost") {
    CHECK(Lancer("communes chercher absent.lgx Mer").statut == 3);
    CHECK(Lancer("communes chercher famille.ged Mer").statut == 1);
    CHECK(Lancer("communes creer c.lgx absent.csv").statut == 3);
    EcrireFichier(dossier / "liste.csv", "code\n41000\n");
    EcrireFichier(dossier / "c.lgx", "autre chose");
    CHECK(Lancer("communes creer c.lgx liste.csv --remplacer").statut == 1);
    CHECK(Lancer("communes creer c.lgx").statut == 1);  // exists, and nobody says yes
    CHECK(LireFichier(dossier / "c.lgx") == "autre chose");
    CHECK(Lancer("communes creer c.lgx --remplacer").sortie == "0\n");
}

TEST_CASE_FIXTURE(Poste, "Command line: a survey becomes a base, with what was not understood") {
    EcrireFichier(dossier / "actes.csv",
                  "Année;Mois;Jour;Lieu;Nom;Prénoms;Sexe;Père;;Mère\n1780;3;12;Mer;Dupont;Hélène;F;"
                  "Dupont;Pierre;Martin;Anne\n1781;2;31;Mer;Dupont;Luc;M\n");
    const Reponse reponse = Lancer("releve bapteme actes.csv");
    CHECK(reponse.statut == 0);
    CHECK(Contient(reponse.sortie, "Ligne 3 : Le jour ou le mois n'est pas compris"));
    CHECK(Contient(Lancer("lister actes.LGD").sortie, "Hélène"));
    CHECK(Lancer("releve bapteme actes.csv").statut == 1);  // the base is there
    CHECK(
        Contient(Lancer("releve bapteme actes.csv --remplacer --json").sortie, "\"individus\": 4"));
    CHECK(Lancer("releve bapteme absent.csv").statut == 3);
    CHECK(Lancer("releve divorce actes.csv").statut == 2);
    EcrireFichier(dossier / "coupe.csv", "1780;1;1;Mer;Dupont;Luc;M\nrien\n");
    const Reponse coupe = Lancer("releve bapteme coupe.csv");
    CHECK(coupe.statut == 0);
    CHECK(Contient(coupe.messages, "La ligne 2"));
    CHECK(Contient(Lancer("lister coupe.LGD").sortie, "Luc"));
    EcrireFichier(dossier / "vide.csv", "rien\n");
    CHECK(Lancer("releve mariage vide.csv").statut == 1);
}

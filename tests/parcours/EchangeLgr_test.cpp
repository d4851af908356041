// Exchange texts from the command line.
#include "parcours/Poste.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane::parcours;

TEST_CASE_FIXTURE(Poste, "Command line: a base, its exchange text and the base made of it agree") {
    REQUIRE(Lancer("importer famille.ged").statut == 0);
    REQUIRE(Lancer("exporter famille.LGD famille.lgr").statut == 0);
    CHECK(Lancer("importer famille.lgr").statut == 1);  // the base is there
    const Reponse reponse = Lancer("importer famille.lgr --base autre.LGD");
    CHECK(reponse.statut == 0);
    CHECK(Contient(reponse.sortie, "[DORVANE VERSION 99.0]"));
    CHECK(Lancer("lister autre.LGD").sortie == Lancer("lister famille.LGD").sortie);
    REQUIRE(Lancer("exporter autre.LGD autre.lgr").statut == 0);
    CHECK(LireFichier(dossier / "autre.lgr") == LireFichier(dossier / "famille.lgr"));
}

TEST_CASE_FIXTURE(Poste,
                  "Command line: merging a file in doubles the persons, a refusal does nothing") {
    REQUIRE(Lancer("importer famille.ged").statut == 0);
    REQUIRE(Lancer("exporter famille.LGD famille.lgr").statut == 0);
    const std::string personnes = Lancer("lister famille.LGD").sortie;
    const std::string avant = LireFichier(dossier / "famille.LGD");
    CHECK(Lancer("integrer famille.LGD famille.ged").statut == 1);
    CHECK(Lancer("integrer famille.LGD absent.lgr").statut == 3);
    const std::string texte = LireFichier(dossier / "famille.lgr");
    EcrireFichier(dossier / "coupe.lgr", texte.substr(0, texte.size() - 7));
    CHECK(Lancer("integrer --non famille.LGD coupe.lgr").statut == 1);
    CHECK(LireFichier(dossier / "famille.LGD") == avant);
    CHECK(Lancer("integrer famille.LGD famille.lgr").statut == 0);
    const auto lignes = [](const std::string& s) { return std::count(s.begin(), s.end(), '\n'); };
    CHECK(lignes(Lancer("lister famille.LGD").sortie) == 2 * lignes(personnes));
}

TEST_CASE_FIXTURE(Poste, "Command line: a file that is no exchange text makes no base") {
    EcrireFichier(dossier / "lettre.lgr", "Bonjour,\r\n");
    CHECK(Lancer("importer lettre.lgr").statut == 1);
    CHECK_FALSE(std::filesystem::exists(dossier / "lettre.LGD"));
}

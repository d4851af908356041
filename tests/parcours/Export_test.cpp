// Exports through `dorvane-outil` as built.
#include "parcours/Poste.h"

#include <filesystem>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane::doublures;
using namespace dorvane::parcours;

namespace {

/// The family of the folder as a base.
struct PosteExport : Poste {
    PosteExport() { REQUIRE(Lancer("importer famille.ged").statut == 0); }

    Reponse Exporter(const std::string& options, const std::string& sortie = "x.ged") {
        return Lancer("exporter famille.LGD " + sortie + " --remplacer " + options);
    }
    std::string Fichier(const char* nom = "x.ged") { return LireFichier(dossier / nom); }
};

}  // namespace

TEST_CASE_FIXTURE(PosteExport, "The whole base is exported and says how many records it wrote") {
    const Reponse tout = Exporter("--jeu utf8");
    CHECK(tout.statut == 0);
    CHECK(tout.sortie == "3 1 0 0\n");
    CHECK(Contient(Fichier(), "1 CHAR UTF-8\r\n1 FILE x.ged\r\n1 LANG French\r\n1 SUBM @S1@\r\n"));
    CHECK(Contient(Fichier(), "1 NAME Hélène /Martin/\r\n"));
    CHECK(Exporter("--reduit").statut == 0);
    CHECK_FALSE(Contient(Fichier(), "SUBM"));
    CHECK(Contient(Fichier(), "1 CHAR ANSI\r\n"));
}

TEST_CASE_FIXTURE(PosteExport, "Ancestors and descendants of a person, to a generation") {
    // Luc, his parents; without him his mother and father are near kin.
    CHECK(Exporter("--ascendants 3").sortie == "3 1 0 0\n");
    CHECK(Exporter("--ascendants 3 --generations 1").sortie == "1 1 0 0\n");
    CHECK_FALSE(Contient(Fichier(), "@I1@"));
    CHECK(Exporter("--ascendants 3 --generations 1 --collateraux").sortie == "3 1 0 0\n");
    CHECK(Exporter("--descendants 1 --generations 1").sortie == "2 1 0 0\n");
    CHECK(Exporter("--descendants 1 --complet").sortie == "3 1 0 0\n");
    CHECK(Exporter("--ecarter-1900").sortie == "3 1 0 0\n");
}

TEST_CASE_FIXTURE(PosteExport, "A dash writes to the standard output, and nothing else with it") {
    const Reponse ged = Exporter("--jeu utf8", "-");
    CHECK(ged.statut == 0);
    CHECK(ged.sortie.starts_with("0 HEAD\r\n"));
    CHECK(ged.sortie.ends_with("0 TRLR\r\n"));
    CHECK(Contient(ged.sortie, "1 FILE famille.ged\r\n"));
    CHECK(ged.messages.empty());
    CHECK(Exporter("--format lgr", "-").sortie.ends_with("[FIN]\r\n"));
    CHECK_FALSE(std::filesystem::exists(dossier / "-"));
}

TEST_CASE_FIXTURE(PosteExport, "The extension decides on the format, unless it is given") {
    CHECK(Exporter("", "x.txt").statut == 2);
    CHECK(Exporter("", "x").statut == 2);
    CHECK_FALSE(std::filesystem::exists(dossier / "x.txt"));
    CHECK(Exporter("--format gedcom", "x.txt").statut == 0);
    CHECK(Fichier("x.txt").starts_with("0 HEAD\r\n"));
    const Reponse lgr = Exporter("--ascendants 3", "x.LGR");
    CHECK(lgr.statut == 0);
    CHECK(lgr.sortie == "3 1 0 0\n");
    CHECK(Fichier("x.LGR").starts_with("[Dorvane Version 99.0]\r\n"));
    CHECK(Exporter("--ascendants 3 --generations 1", "y.lgr").sortie.starts_with("1 "));
    CHECK(Fichier("y.lgr").ends_with("[FIN]\r\n"));
}

TEST_CASE_FIXTURE(PosteExport, "What an export cannot do is said with its status") {
    CHECK(Exporter("--ascendants 4").statut == 1);
    CHECK(Exporter("", "absent/x.ged").statut == 3);
    CHECK_FALSE(Contient(Exporter("", "absent/x.ged").messages, "&1"));
    for (const char* options :
         {"--ascendants 3 --descendants 1", "--ascendants 0", "--ascendants x", "--generations 2",
          "--collateraux", "--complet", "--ascendants 3 --generations 0", "--jeu latin1"}) {
        CAPTURE(options);
        CHECK(Exporter(options).statut == 2);
    }
    CHECK(Fichier().empty());
}

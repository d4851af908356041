// Whole journeys through `dorvane-outil` as built: a file comes in, is looked at, saved and
// restored.
#include "parcours/Poste.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane::doublures;
using namespace dorvane::parcours;

TEST_CASE_FIXTURE(Poste, "A file is imported, listed, shown, saved and restored") {
    const Reponse import = Lancer("importer famille.ged --trier");
    CHECK(import.statut == 0);
    CHECK(Contient(import.sortie, "Personnes : 3   Unions : 1"));
    CHECK(Contient(import.sortie, "INDI.OBJE.FILE"));

    const Reponse liste = Lancer("lister famille.LGD");
    CHECK(liste.statut == 0);
    CHECK(liste.sortie ==
          "2\tMartin\tHélène\tF\t\t\t\t\n"
          "1\tDupont\tJean\tH\t12/3/1820\tSaint Malo\t\t\n"
          "3\tDupont\tLuc\tI\t1845\t\t\t\n");

    const Reponse personne = Lancer("personne famille.LGD 1 --json");
    CHECK(Contient(personne.sortie, "\"jourmois\": \"12/3\""));
    CHECK(Contient(personne.sortie, "\"lieu\": \"forgeron\""));
    CHECK(Contient(personne.sortie, "\"enfants\": [\n    3\n  ]"));

    const std::string avant = LireFichier(dossier / "famille.LGD");
    const Reponse sauvegarde = Lancer("sauvegarder famille.LGD");
    CHECK(sauvegarde.statut == 0);
    CHECK(LireFichier(dossier / "famille.SAV") == avant);

    SUBCASE("restoring over a base asks first, and no is the default") {
        EcrireFichier(dossier / "famille.LGD", "abîmé");
        CHECK(Lancer("restaurer famille.SAV").statut == 1);
        CHECK(LireFichier(dossier / "famille.LGD") == "abîmé");
        CHECK(Lancer("restaurer famille.SAV --remplacer").statut == 0);
        CHECK(LireFichier(dossier / "famille.LGD") == avant);
    }
    SUBCASE("looking at a base changes none of its bytes") {
        CHECK(Lancer("infos famille.LGD --json").statut == 0);
        CHECK(LireFichier(dossier / "famille.LGD") == avant);
    }
    SUBCASE("an existing base is replaced only when asked") {
        CHECK(Lancer("importer famille.ged").statut == 1);
        CHECK(LireFichier(dossier / "famille.LGD") == avant);
        CHECK(Lancer("importer famille.ged --remplacer").statut == 0);
    }
}

TEST_CASE_FIXTURE(Poste, "A new base is empty and can be opened") {
    CHECK(Lancer("nouveau vide.LGD").statut == 0);
    CHECK(Lancer("nouveau vide.LGD").statut == 1);
    const Reponse infos = Lancer("infos vide.LGD --json");
    CHECK(infos.statut == 0);
    CHECK(Contient(infos.sortie, "\"individus\": 0"));
    CHECK(Lancer("lister vide.LGD --json").sortie == "[\n]\n");
    CHECK(Lancer("personne vide.LGD 1").statut == 1);
}

TEST_CASE_FIXTURE(Poste, "Exit statuses: usage, refusals, and what the file system says") {
    CHECK(Lancer("").statut == 2);
    CHECK(Lancer("inconnu").statut == 2);
    CHECK(Lancer("infos").statut == 2);
    CHECK(Lancer("infos absent.LGD").statut == 3);
    CHECK(Lancer("importer absent.ged").statut == 3);
    CHECK(Lancer("infos famille.ged").statut == 1);
    CHECK(Lancer("--help").statut == 0);
    EcrireFichier(dossier / "prose.ged", "sans fin de ligne");
    const Reponse prose = Lancer("importer prose.ged");
    CHECK(prose.statut == 1);
    CHECK(Contient(prose.messages, "Fichier GEDCOM inexploitable"));
}

TEST_CASE_FIXTURE(Poste, "Values are worked out one at a time or line by line") {
    CHECK(Lancer("calculer ClePhonetique DUPONT").sortie == "DBM0\n");
    CHECK(Lancer("calculer AnneeTri -44").sortie == "-044\n");
    CHECK(Lancer("calculer Inconnue x").statut == 2);
    const Reponse lignes = Lancer("calculer -", "Replie\tÉvêque\nAnneeTri\t1820\n");
    CHECK(lignes.statut == 0);
    CHECK(lignes.sortie == "EVEQUE\n1820\n");
    CHECK(Lancer("calculer --langue English CvtDateAffichage 12/3").sortie == "12 March\n");
}

TEST_CASE_FIXTURE(Poste, "Catalogues are compiled and listed") {
    EcrireFichier(dossier / "t.tsv", "number\tfr\ten\n21\tQuitter ?\tQuit?\n1001\tÉté\tSummer\n");
    CHECK(Lancer("catalogue compiler t.tsv --vers .").statut == 0);
    CHECK(Lancer("catalogue lister Français.mes").sortie == "21\tQuitter ?\n1001\tÉté\n");
    EcrireFichier(dossier / "t.tsv", "number\tfr\ten\n21\tα\tQuit?\n");
    CHECK(Lancer("catalogue compiler t.tsv --vers .").statut == 1);
    CHECK(Lancer("catalogue lister English.mes").sortie == "21\tQuit?\n1001\tSummer\n");
}

TEST_CASE_FIXTURE(Poste,
                  "The import report is written to the working folder, in the language asked for") {
    const Reponse import = Lancer("importer famille.ged --langue English --json");
    CHECK(import.statut == 0);
    CHECK(Contient(import.sortie, "\"INDI.OBJE\""));
    const std::size_t ou = import.sortie.find("\"rapport\": \"") + 12;
    const std::string chemin = import.sortie.substr(ou, import.sortie.find('"', ou) - ou);
    CHECK(Contient(chemin, "famille.IMPORT.TXT"));
    CHECK(Contient(LireFichier(chemin), "Persons: 3"));
}

TEST_CASE_FIXTURE(Poste, "Each verb refuses a wrong usage with status 2 and does nothing") {
    for (const char* ligne : {"nouveau",
                              "nouveau a b",
                              "infos --json",
                              "lister",
                              "lister a b",
                              "personne a.LGD",
                              "personne a.LGD x",
                              "personne a.LGD -1",
                              "personne a.LGD 99999999999",
                              "sauvegarder",
                              "restaurer",
                              "restaurer a --inconnu",
                              "importer",
                              "importer a --base",
                              "catalogue",
                              "catalogue compiler t.tsv",
                              "catalogue lister",
                              "calculer",
                              "calculer Replie",
                              "calculer Replie a b",
                              "importer famille.ged --base famille.ged --remplacer"}) {
        CAPTURE(ligne);
        const std::string avant = LireFichier(dossier / "famille.ged");
        const Reponse reponse = Lancer(ligne);
        CHECK(reponse.statut == 2);
        CHECK(reponse.sortie.empty());
        CHECK_FALSE(reponse.messages.empty());
        CHECK(LireFichier(dossier / "famille.ged") == avant);
    }
}

TEST_CASE_FIXTURE(Poste, "Names of files with accents, blanks and a leading dash, relative paths") {
    EcrireFichier(dossier / "sous dossier/été œuvre.GED", LireFichier(dossier / "famille.ged"));
    CHECK(Lancer("importer 'sous dossier/été œuvre.GED'").statut == 0);
    CHECK(Lancer("lister './sous dossier/../sous dossier/été œuvre.LGD'").statut == 0);
    CHECK(Lancer("sauvegarder 'sous dossier/été œuvre.LGD'").sortie ==
          "sous dossier/été œuvre.SAV\n");
    EcrireFichier(dossier / "-tiret.ged", LireFichier(dossier / "famille.ged"));
    CHECK(Lancer("importer -- -tiret.ged").statut == 0);
    CHECK(Lancer("infos -- -tiret.LGD").statut == 0);
    // A backup under any name gives a base of that name.
    EcrireFichier(dossier / "copie", LireFichier(dossier / "-tiret.LGD"));
    CHECK(Lancer("restaurer copie").statut == 0);
    CHECK(LireFichier(dossier / "copie.LGD") == LireFichier(dossier / "copie"));
    // It is the base itself: nothing to restore.
    CHECK(Lancer("restaurer copie.LGD --remplacer").statut == 1);
    CHECK(LireFichier(dossier / "copie.LGD") == LireFichier(dossier / "copie"));
}

TEST_CASE_FIXTURE(Poste, "Folders, pipes and empty files in place of files are refused at once") {
    std::filesystem::create_directory(dossier / "d");
    std::filesystem::create_directory(dossier / "d.mes");
    for (const char* tube : {"t.ged", "t.LGD", "t.SAV", "t.mes", "t.tsv"})
        REQUIRE(::mkfifo((dossier / tube).c_str(), 0600) == 0);
    EcrireFichier(dossier / "vide.GED", "");
    EcrireFichier(dossier / "vide.LGD", "");
    EcrireFichier(dossier / "image.ged",
                  std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\n1 BIRT\n0 x\n", 28));
    EcrireFichier(dossier / "lettre.ged", "Chère cousine,\nvoici la famille.\n");
    const auto statut = [this](const std::string& ligne) { return Lancer(ligne).statut; };
    CHECK(statut("importer d") == 3);
    CHECK(statut("importer t.ged --base x.LGD") == 3);
    CHECK(statut("importer vide.GED --base x.LGD") == 1);
    CHECK(statut("importer image.ged --base x.LGD") == 1);
    CHECK(statut("importer lettre.ged --base x.LGD") == 1);
    CHECK(statut("importer famille.ged --base d --remplacer") == 3);
    CHECK(statut("importer famille.ged --base absent/x.LGD") == 3);
    CHECK(statut("infos d") == 3);
    CHECK(statut("infos t.LGD") == 3);
    CHECK(statut("infos vide.LGD") == 1);
    CHECK(statut("restaurer t.SAV") == 1);
    CHECK(statut("restaurer d") == 1);
    CHECK(statut("catalogue lister t.mes") == 3);
    CHECK(statut("catalogue lister d.mes") == 3);
    CHECK(statut("catalogue compiler t.tsv --vers .") == 3);
    CHECK(statut("catalogue compiler famille.ged --vers absent") != 0);
    CHECK_FALSE(std::filesystem::exists(dossier / "x.LGD"));
    CHECK(std::filesystem::is_directory(dossier / "d"));
}

TEST_CASE_FIXTURE(Poste, "Letters that the code page lacks come as their nearest, in names too") {
    EcrireFichier(dossier / "p.ged",
                  "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 NAME Łukasz /Żółć/\n0 TRLR\n");
    CHECK(Lancer("importer p.ged").statut == 0);
    CHECK(Lancer("lister p.LGD").sortie == "1\tZólc\tLukasz\tI\t\t\t\t\n");
    EcrireFichier(dossier / "h.ged",
                  "0 HEAD\n1 CHAR HTML\n0 @I1@ INDI\n1 NAME Andr&eacute; &#321;ukasz "
                  "/D&uuml;rer &amp; Fils &inconnu/\n0 TRLR\n");
    CHECK(Lancer("importer h.ged").statut == 0);
    CHECK(Lancer("lister h.LGD").sortie == "1\tDürer & Fils &inconnu\tAndré Lukasz\tI\t\t\t\t\n");
}

TEST_CASE_FIXTURE(Poste, "Thousands of values, and what is no value, are answered line by line") {
    std::string lignes;
    for (int i = 0; i < 20000; ++i)
        lignes += "AnneeTri\t" + std::to_string(1000 + i % 1000) + "\n";
    const Reponse reponse = Lancer("calculer -", lignes);
    CHECK(reponse.statut == 0);
    CHECK(std::count(reponse.sortie.begin(), reponse.sortie.end(), '\n') == 20000);
    CHECK(reponse.sortie.starts_with("1000\n1001\n"));
    const Reponse mauvaise = Lancer("calculer -", "Replie\t\xFF\nInconnu\n\nReplie\ta\n");
    CHECK(mauvaise.statut == 2);
    CHECK(mauvaise.sortie.starts_with("?\nerreur: "));
    CHECK(mauvaise.sortie.ends_with("\nA\n"));
    CHECK(Lancer("calculer Replie -- -x").sortie == " X\n");
    CHECK(Lancer("calculer -- Replie -x").sortie == " X\n");
}

TEST_CASE_FIXTURE(Poste, "The submitter of a file is known to the base, whatever path names it") {
    EcrireFichier(dossier / "s.ged",
                  "0 HEAD\n1 SUBM @S@\n0 @S@ SUBM\n1 NAME Agathe\n1 ADDR Rue Haute\n0 TRLR\n");
    CHECK(Lancer("importer s.ged").statut == 0);
    const std::string reglages = LireFichier(dossier / "config/dorvane/parametres.json");
    CHECK(Contient(reglages, "\"" + (dossier / "s.LGD").string() + "\""));
    CHECK(Contient(reglages, "\"Auteur\": \"Agathe\""));
}

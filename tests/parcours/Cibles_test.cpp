// What the verbs write over, and what they never do.
#include "parcours/Poste.h"

#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane::doublures;
using namespace dorvane::parcours;

namespace {

namespace fs = std::filesystem;

/// A base, its backup, and names that lead to them.
struct PosteCibles : Poste {
    PosteCibles() {
        REQUIRE(Lancer("importer famille.ged").statut == 0);
        REQUIRE(Lancer("sauvegarder famille.LGD").statut == 0);
        EcrireFichier(dossier / "etranger.ged", "foreign");
        EcrireFichier(dossier / "autre.ged", "0 HEAD\n0 @I1@ INDI\n1 NAME Paul /Autre/\n0 TRLR\n");
        fs::create_directory(dossier / "dossier.ged");
        fs::create_symlink(dossier / "famille.LGD", dossier / "lien.ged");
        fs::create_symlink(dossier / "famille.LGD", dossier / "lien.LGD");
        fs::create_hard_link(dossier / "famille.LGD", dossier / "double.ged");
        REQUIRE(mkfifo((dossier / "tube.ged").c_str(), 0666) == 0);
    }
    /// Every file of the folder with its bytes.
    [[nodiscard]] std::map<std::string, std::string> Tout() const {
        std::map<std::string, std::string> tout;
        for (const auto& entree : fs::directory_iterator{dossier.chemin}) {
            const std::string nom = entree.path().filename().string();
            const bool notre = nom == "sortie" || nom == "messages" || nom == "entree" ||
                               nom == "cache" || nom == "config";
            if (notre) continue;
            tout[nom] = entree.is_symlink()        ? "link"
                        : entree.is_regular_file() ? LireFichier(entree.path())
                                                   : "other";
        }
        return tout;
    }
};

}  // namespace

TEST_CASE_FIXTURE(PosteCibles, "An export never writes over a file of its base, asked or not") {
    const auto avant = Tout();
    for (const std::string cible :
         {"famille.LGD", "famille.SAV", "famille.LOG", "famille.LGD.verrou", "lien.ged", "lien.LGD",
          "double.ged", "dossier.ged", "tube.ged", "./famille.SAV", "dossier.ged/../famille.LGD",
          "/dev/null"}) {
        CAPTURE(cible);
        for (const char* options : {"", " --remplacer"}) {
            const Reponse r =
                Lancer("exporter famille.LGD " + cible + " --format gedcom" + options);
            const bool fichier =
                cible != "dossier.ged" && cible != "tube.ged" && cible != "/dev/null";
            CHECK(r.statut == (fichier ? 1 : 3));
            CHECK_FALSE(r.messages.empty());
            CHECK_FALSE(Contient(r.messages, "&1"));
            CHECK(Tout() == avant);
        }
    }
}

TEST_CASE_FIXTURE(PosteCibles, "A foreign file is written over only when that is asked for") {
    const auto avant = Tout();
    for (const char* ligne :
         {"exporter famille.LGD etranger.ged", "exporter famille.LGD etranger.ged --format lgr",
          "importer autre.ged --base famille.LGD", "importer autre.ged --base etranger.ged",
          "releve bapteme autre.ged --base famille.LGD", "nouveau famille.LGD", "nouveau lien.LGD",
          "communes creer etranger.ged", "restaurer famille.SAV"}) {
        CAPTURE(ligne);
        const Reponse r = Lancer(ligne);
        CHECK(r.statut == 1);
        CHECK_FALSE(r.messages.empty());
        CHECK(Tout() == avant);
    }
    CHECK(Lancer("exporter famille.LGD etranger.ged --remplacer").statut == 0);
    CHECK(LireFichier(dossier / "etranger.ged").starts_with("0 HEAD"));
    CHECK(Lancer("nouveau lien.LGD --remplacer").statut == 0);
    CHECK(fs::is_symlink(dossier / "lien.LGD"));
    CHECK(Lancer("lister famille.LGD").sortie.empty());
}

TEST_CASE_FIXTURE(PosteCibles, "What a verb reads is never what it writes") {
    const auto avant = Tout();
    for (const char* ligne : {"importer autre.ged --base autre.ged --remplacer",
                              "importer autre.ged --base ./autre.ged --remplacer",
                              "releve bapteme autre.ged --base autre.ged --remplacer",
                              "communes creer autre.ged autre.ged --remplacer"}) {
        CAPTURE(ligne);
        CHECK(Lancer(ligne).statut == 2);
        CHECK(Tout() == avant);
    }
}

TEST_CASE_FIXTURE(PosteCibles, "No base gets a name of the program's own files") {
    const auto avant = Tout();
    for (const char* nom : {"x.LOG", "x.log", "x.SAV", "x.LGD.verrou", "x.LGD.nouveau", "Reorg.fic",
                            "x.FUS", "x.tmp", "x.partiel"}) {
        CAPTURE(nom);
        const Reponse r = Lancer(std::string{"nouveau "} + nom);
        CHECK(r.statut == 1);
        CHECK(Contient(r.messages, nom));
        CHECK(Lancer(std::string{"importer autre.ged --base "} + nom).statut == 1);
        CHECK(Tout() == avant);
    }
    fs::copy_file(dossier / "famille.LGD", dossier / "x.LOG");
    CHECK(Lancer("lister x.LOG").statut == 1);
    CHECK(LireFichier(dossier / "x.LOG") == LireFichier(dossier / "famille.LGD"));
}

TEST_CASE_FIXTURE(PosteCibles, "An output that nobody reads, or that is full, ends with status 3") {
    for (const char* ligne :
         {"lister famille.LGD", "infos famille.LGD --json", "personne famille.LGD 1",
          "exporter famille.LGD -", "controler famille.LGD", "calculer Replie Été", "--help"}) {
        CAPTURE(ligne);
        CHECK(LancerVers(ligne, "> /dev/full").statut == 3);
        CHECK(LancerApres("exec 3> >(:); wait $!", std::string{ligne} + " >&3").statut == 3);
    }
}

TEST_CASE_FIXTURE(PosteCibles,
                  "With its standard descriptors closed a program writes into no base") {
    const std::string avant = LireFichier(dossier / "famille.LGD");
    for (const char* fermes : {">&-", "2>&-", ">&- 2>&-", "<&- >&- 2>&-"}) {
        CAPTURE(fermes);
        for (const char* ligne : {"lister famille.LGD", "personne famille.LGD 99",
                                  "modifier famille.LGD 99 --nom x", "sauvegarder famille.LGD"})
            static_cast<void>(LancerVers(ligne, fermes));
        CHECK(LireFichier(dossier / "famille.LGD") == avant);
        CHECK(LireFichier(dossier / "famille.SAV") == avant);
    }
}

TEST_CASE_FIXTURE(PosteCibles, "A file that may not grow: the base is as it was, and status 3") {
    const std::string avant = LireFichier(dossier / "famille.LGD");
    const Reponse r = LancerApres(
        "ulimit -f 1", "creer famille.LGD --nom Long --note '" + std::string(60000, 'n') + "'");
    CHECK(r.statut == 3);
    CHECK(LireFichier(dossier / "famille.LGD").starts_with(avant.substr(0, 20)));
    CHECK(Lancer("lister famille.LGD").statut == 0);
    CHECK_FALSE(Contient(Lancer("lister famille.LGD").sortie, "Long"));
}

TEST_CASE_FIXTURE(PosteCibles, "Without a terminal a question is answered by what changes least") {
    REQUIRE(Lancer("creer famille.LGD --nom Seule --prenom Anne --sexe F").sortie == "4\n");
    const Reponse r = Lancer("supprimer famille.LGD 4");
    CHECK(r.statut == 1);
    CHECK(Contient(r.messages, "Ajoutez --oui ou --non"));
    CHECK(Contient(Lancer("lister famille.LGD").sortie, "Seule"));
    CHECK(Lancer("supprimer famille.LGD 4 --oui").statut == 0);
    CHECK_FALSE(Contient(Lancer("lister famille.LGD").sortie, "Seule"));
}

TEST_CASE_FIXTURE(PosteCibles, "A character that the code page lacks is replaced, and told") {
    const Reponse r = Lancer("creer famille.LGD --nom 'Дом' --prenom Jean");
    CHECK(r.statut == 0);
    CHECK(Contient(r.messages, "3 caractères"));
    CHECK(Contient(Lancer("lister famille.LGD").sortie, "???"));
}

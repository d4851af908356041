#include "shell/Magasin.h"

#include "doublures/DossierTemporaire.h"

#include <sys/wait.h>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

struct Coffre {
    DossierTemporaire dossier;
    std::filesystem::path fichier = dossier / "reglages" / "parametres.json";

    [[nodiscard]] Magasin Ouvrir() const {
        Magasin magasin{fichier};
        magasin.Charger();
        return magasin;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Coffre, "Magasin: no file is an empty store, and the first save makes it") {
    Magasin magasin{fichier};
    CHECK(magasin.Charger() == Magasin::Etat::Absent);
    CHECK(magasin.Lire("Defaut", "Langue").empty());
    CHECK_FALSE(magasin.Chercher("Defaut", "Langue"));
    magasin.Ecrire("Defaut", "Langue", "Français");
    REQUIRE(magasin.Enregistrer());
    CHECK(LireFichier(fichier) == "{\n  \"Defaut\": {\n    \"Langue\": \"Français\"\n  }\n}\n");
}

TEST_CASE_FIXTURE(Coffre, "Magasin: keys and sections keep their order and any character") {
    Magasin magasin = Ouvrir();
    magasin.Ecrire("/home/a b/x=[y].LGD", "Clé = bizarre]", "ligne 1\nligne 2\t\"q\" \\");
    magasin.Ecrire("Zoe", "b", "");
    magasin.Ecrire("Zoe", "a", "日本");
    magasin.Ecrire("Adam", "z", "1");
    REQUIRE(magasin.Enregistrer());
    const Magasin relu = Ouvrir();
    CHECK(relu.Sections() == std::vector<std::string>{"/home/a b/x=[y].LGD", "Zoe", "Adam"});
    CHECK(relu.Lire("/home/a b/x=[y].LGD", "Clé = bizarre]") == "ligne 1\nligne 2\t\"q\" \\");
    CHECK(relu.LireSection("Zoe") == std::vector<Magasin::Entree>{{"b", ""}, {"a", "日本"}});
    CHECK(relu.Chercher("Zoe", "b") == "");
    CHECK_FALSE(relu.Chercher("Zoe", "c"));
}

TEST_CASE_FIXTURE(Coffre,
                  "Magasin: a section is replaced whole, and removed keys go from the file") {
    Magasin magasin = Ouvrir();
    magasin.RemplacerSection("Particule", {{"de", "1 1"}, {"la", "1 1"}, {"van", "0 1"}});
    REQUIRE(magasin.Enregistrer());
    magasin.RemplacerSection("Particule", {{"la", "1 0"}, {"zu", "1 1"}});
    REQUIRE(magasin.Enregistrer());
    CHECK(Ouvrir().LireSection("Particule") ==
          std::vector<Magasin::Entree>{{"la", "1 0"}, {"zu", "1 1"}});
    magasin.SupprimerSection("Particule");
    REQUIRE(magasin.Enregistrer());
    CHECK(Ouvrir().Sections().empty());
}

TEST_CASE_FIXTURE(Coffre,
                  "Magasin: keys taken away and written again have their new order on disk") {
    const std::vector<Magasin::Entree> avant{{"a", "1"}, {"b", "2"}, {"c", "3"}};
    const std::vector<Magasin::Entree> apres{{"c", "3"}, {"a", "1"}, {"b", "4"}};
    Magasin magasin = Ouvrir();
    magasin.RemplacerSection("Liste", avant);
    REQUIRE(magasin.Enregistrer());
    magasin.SupprimerSection("Liste");
    magasin.RemplacerSection("Liste", apres);
    CHECK(magasin.LireSection("Liste") == apres);
    REQUIRE(magasin.Enregistrer());
    CHECK(Ouvrir().LireSection("Liste") == apres);
    magasin.Ecrire("Liste", "a", "5");
    magasin.Supprimer("Liste", "a");
    REQUIRE(magasin.Enregistrer());
    CHECK(Ouvrir().LireSection("Liste") == std::vector<Magasin::Entree>{{"c", "3"}, {"b", "4"}});
}

TEST_CASE_FIXTURE(Coffre, "Magasin: saving without a change touches nothing") {
    Magasin magasin = Ouvrir();
    magasin.Ecrire("Defaut", "Langue", "Français");
    REQUIRE(magasin.Enregistrer());
    std::filesystem::remove(fichier);
    magasin.Ecrire("Defaut", "Langue", "Français");
    CHECK(magasin.Enregistrer());
    CHECK_FALSE(std::filesystem::exists(fichier));
}

TEST_CASE_FIXTURE(Coffre, "Magasin: of two programs each keeps what the other has changed") {
    Magasin premier = Ouvrir();
    premier.Ecrire("Defaut", "Langue", "Français");
    premier.Ecrire("Defaut", "Icones", "1");
    REQUIRE(premier.Enregistrer());
    Magasin second = Ouvrir();
    premier.Ecrire("Defaut", "Langue", "English");
    premier.Supprimer("Defaut", "Icones");
    second.Ecrire("Defaut", "Assistant", "1");
    second.Ecrire("Autre", "x", "y");
    REQUIRE(premier.Enregistrer());
    REQUIRE(second.Enregistrer());
    // The second one still believes in the old language, but never changed it.
    second.Ecrire("Defaut", "Langue", "Français");
    REQUIRE(second.Enregistrer());
    const Magasin relu = Ouvrir();
    CHECK(relu.LireSection("Defaut") ==
          std::vector<Magasin::Entree>{{"Langue", "English"}, {"Assistant", "1"}});
    CHECK(relu.Lire("Autre", "x") == "y");
    second.Relire("Defaut", {"Langue", "Icones"});
    CHECK(second.Lire("Defaut", "Langue") == "English");
    CHECK_FALSE(second.Chercher("Defaut", "Icones"));
}

TEST_CASE_FIXTURE(Coffre, "Magasin: two processes that write at once lose no key") {
    constexpr int Ecritures = 40;
    std::filesystem::create_directories(fichier.parent_path());
    pid_t enfants[2] = {};
    for (int qui = 0; qui < 2; ++qui) {
        enfants[qui] = fork();
        REQUIRE(enfants[qui] >= 0);
        if (enfants[qui] == 0) {
            Magasin magasin = Ouvrir();
            bool bien = true;
            for (int i = 0; i < Ecritures; ++i) {
                magasin.Ecrire("Programme " + std::to_string(qui), std::to_string(i), "oui");
                bien = magasin.Enregistrer() && bien;
            }
            _exit(bien ? 0 : 1);
        }
    }
    for (const pid_t enfant : enfants) {
        int statut = -1;
        REQUIRE(waitpid(enfant, &statut, 0) == enfant);
        CHECK(WIFEXITED(statut));
        CHECK(WEXITSTATUS(statut) == 0);
    }
    const Magasin relu = Ouvrir();
    CHECK(relu.LireSection("Programme 0").size() == Ecritures);
    CHECK(relu.LireSection("Programme 1").size() == Ecritures);
}

TEST_CASE_FIXTURE(Coffre, "Magasin: a damaged file is set aside under a new name, never lost") {
    for (const char* abime :
         {"{\"Defaut\": {\"Langue\": \"Fr", "", "[]", "{\"Defaut\": 3}",
          "{\"Defaut\": {\"Langue\": [1]}}", "\xFF\xFE", "{\"a\":{\"b\":\"\xE9\"}}"}) {
        CAPTURE(abime);
        EcrireFichier(fichier, abime);
        Magasin magasin{fichier};
        CHECK(magasin.Charger() == Magasin::Etat::Abime);
        CHECK_FALSE(std::filesystem::exists(fichier));
        CHECK(LireFichier(magasin.MisDeCote()) == abime);
        CHECK(magasin.Sections().empty());
    }
    CHECK(LireFichier(fichier.string() + ".abime") == "{\"Defaut\": {\"Langue\": \"Fr");
    CHECK(LireFichier(fichier.string() + ".abime-3") == "[]");
}

TEST_CASE_FIXTURE(Coffre,
                  "Magasin: a file damaged while the program runs is set aside, and what "
                  "was read from it is written again") {
    Magasin magasin = Ouvrir();
    magasin.Ecrire("Defaut", "Langue", "English");
    REQUIRE(magasin.Enregistrer());
    EcrireFichier(fichier, "perdu");
    magasin.Ecrire("Defaut", "Assistant", "1");
    REQUIRE(magasin.Enregistrer());
    CHECK(LireFichier(magasin.MisDeCote()) == "perdu");
    CHECK(Ouvrir().Lire("Defaut", "Langue") == "English");
    CHECK(Ouvrir().Lire("Defaut", "Assistant") == "1");
}

TEST_CASE_FIXTURE(Coffre, "Magasin: numbers and booleans written by hand read as texts") {
    EcrireFichier(fichier, R"({"Defaut": {"a": 15, "b": true, "c": false, "d": -2}})");
    const Magasin magasin = Ouvrir();
    CHECK(magasin.Lire("Defaut", "a") == "15");
    CHECK(magasin.Lire("Defaut", "b") == "1");
    CHECK(magasin.Lire("Defaut", "c") == "0");
    CHECK(magasin.Lire("Defaut", "d") == "-2");
}

TEST_CASE_FIXTURE(Coffre, "Magasin: a place that cannot be written is told, and the change waits") {
    EcrireFichier(dossier / "obstacle", "un fichier");
    Magasin magasin{dossier / "obstacle" / "parametres.json"};
    magasin.Charger();
    magasin.Ecrire("Defaut", "Langue", "English");
    CHECK_FALSE(magasin.Enregistrer());
    CHECK(magasin.Lire("Defaut", "Langue") == "English");
    CHECK_FALSE(magasin.Enregistrer());
}

TEST_CASE_FIXTURE(Coffre, "Magasin: a folder in the place of the file is left alone") {
    std::filesystem::create_directories(fichier);
    Magasin magasin{fichier};
    CHECK(magasin.Charger() == Magasin::Etat::Illisible);
    magasin.Ecrire("Defaut", "Langue", "English");
    CHECK_FALSE(magasin.Enregistrer());
    CHECK(std::filesystem::is_directory(fichier));
}

TEST_CASE_FIXTURE(Coffre, "Magasin: a link to the file stays a link") {
    EcrireFichier(dossier / "ailleurs.json", "{}");
    std::filesystem::create_directories(fichier.parent_path());
    std::filesystem::create_symlink(dossier / "ailleurs.json", fichier);
    Magasin magasin = Ouvrir();
    magasin.Ecrire("a", "b", "c");
    REQUIRE(magasin.Enregistrer());
    CHECK(std::filesystem::is_symlink(fichier));
    CHECK(LireFichier(dossier / "ailleurs.json").find("\"b\": \"c\"") != std::string::npos);
}

TEST_CASE_FIXTURE(Coffre, "Magasin: text that is not UTF-8 never makes the file unreadable") {
    Magasin magasin = Ouvrir();
    magasin.Ecrire("a\xE9", "b\xE9", "c\xE9");
    REQUIRE(magasin.Enregistrer());
    Magasin relu{fichier};
    CHECK(relu.Charger() == Magasin::Etat::Lu);
    CHECK(relu.Sections().size() == 1);
}

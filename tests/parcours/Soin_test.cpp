// The care of a base from the command line: check, repair, reorganise.
#include "parcours/Poste.h"

#include <doctest/doctest.h>

using namespace dorvane::parcours;

namespace {

/// A family of three from a file, with some changes behind it.
struct Famille : Poste {
    Famille() {
        REQUIRE(Lancer("importer famille.ged --base f.LGD").statut == 0);
        REQUIRE(Lancer("creer f.LGD --nom Martin --prenom Anne --sexe F --naissance 1870").statut ==
                0);
        REQUIRE(Lancer("supprimer f.LGD 4 --oui").statut == 0);
    }
    std::string Octets(const char* nom) const { return LireFichier(dossier / nom); }
};

}  // namespace

TEST_CASE_FIXTURE(Famille,
                  "Command line: a reorganised base is shorter and says the same, a copy of "
                  "the old one is kept") {
    const std::string avant = Octets("f.LGD");
    const std::string liste = Lancer("lister f.LGD").sortie;
    const std::string jean = Lancer("personne f.LGD 1 --json").sortie;
    const Reponse reponse = Lancer("reorganiser f.LGD");
    CAPTURE(reponse.messages);
    CHECK(reponse.statut == 0);
    CHECK(Octets("f.SAV") == avant);
    const std::string apres = Octets("f.LGD");
    CHECK(apres.size() < avant.size());
    CHECK(Lancer("lister f.LGD").sortie == liste);
    CHECK(Lancer("personne f.LGD 1 --json").sortie == jean);
    CHECK(Lancer("reorganiser f.LGD --sans-sauvegarde").statut == 0);
    CHECK(Octets("f.LGD") == apres);
    CHECK(Octets("f.SAV") == avant);
}

TEST_CASE_FIXTURE(Famille, "Command line: a check tells each finding on a line, and ends with 1") {
    const Reponse reponse = Lancer("controler f.LGD");
    CHECK(reponse.statut == 1);
    CHECK(reponse.sortie ==
          "2\tL'année de naissance est absente\tHélène Martin\n"
          "3\tLe sexe n'est pas déterminé\tLuc Dupont (o1845)\n");
    const Reponse json = Lancer("controler f.LGD --json");
    CHECK(json.statut == 1);
    CHECK(Contient(json.sortie, "\"personne\": 2"));
    CHECK(Contient(json.sortie, "\"message\": 508"));
    REQUIRE(Lancer("modifier f.LGD 2 --naissance 1822").statut == 0);
    REQUIRE(Lancer("modifier f.LGD 3 --sexe H").statut == 0);
    const Reponse saine = Lancer("controler f.LGD");
    CHECK(saine.statut == 0);
    CHECK(saine.sortie.empty());
    CHECK(Contient(saine.messages, "Aucune anomalie"));
}

TEST_CASE_FIXTURE(Famille, "Command line: a repair counts what it mends and names its journal") {
    const std::string saine = Octets("f.LGD");
    const Reponse rien = Lancer("depanner f.LGD");
    CHECK(rien.statut == 0);
    CHECK(rien.sortie.find("f.SAV\n0\n") != std::string::npos);
    CHECK(Octets("f.SAV") == saine);
    CHECK(Octets("f.LGD") == saine);

    // The father of person 3 becomes person 300, in the first block of fathers.
    std::string octets = saine;
    const auto chiffre = [&](std::size_t i) { return static_cast<unsigned char>(octets[i]); };
    std::size_t bloc = 0;
    for (std::size_t i = 912; i < 916; ++i)
        bloc = bloc * 256 + chiffre(i);
    REQUIRE(bloc != 0);
    octets.replace(bloc - 1 + 4, 2, "\x01\x2C");
    EcrireFichier(dossier / "f.LGD", octets);
    const Reponse reponse = Lancer("depanner f.LGD --sans-sauvegarde");
    CHECK(reponse.statut == 0);
    // The father is cleared, and the child leaves the list of the one who was.
    CHECK(reponse.sortie.substr(0, 2) == "2\n");
    const std::string journal = LireFichier(reponse.sortie.substr(2, reponse.sortie.size() - 3));
    CHECK(Contient(journal, "Suppression père de 3"));
    CHECK(Contient(journal, "Suppression Enfant Luc Dupont"));
    CHECK(Octets("f.SAV") == saine);
    CHECK(Lancer("depanner f.LGD --sans-sauvegarde").sortie.substr(0, 2) == "0\n");
}

TEST_CASE_FIXTURE(Famille,
                  "Command line: what is no base, or not there, is refused and left alone") {
    EcrireFichier(dossier / "texte.LGD", "pas une base");
    for (const char* verbe : {"reorganiser", "depanner", "controler"}) {
        CAPTURE(verbe);
        CHECK(Lancer(std::string{verbe} + " texte.LGD").statut == 1);
        CHECK(Lancer(std::string{verbe} + " absente.LGD").statut == 3);
        CHECK(Lancer(verbe).statut == 2);
    }
    CHECK(Octets("texte.LGD") == "pas une base");
    CHECK_FALSE(std::filesystem::exists(dossier / "absente.LGD"));
}

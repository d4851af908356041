// `dorvane-outil reorganiser` as built, killed at moments of chance: what stands under the name of
// the base is the old one or the new one, byte for byte, and the next run is not locked out.
#include "doublures/DossierTemporaire.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>

#include <doctest/doctest.h>

using namespace dorvane::doublures;

namespace {

using Horloge = std::chrono::steady_clock;

std::string Gedcom(int personnes) {
    std::string texte = "0 HEAD\n1 CHAR ANSI\n";
    for (int i = 1; i <= personnes; ++i)
        texte += "0 @I" + std::to_string(i) + "@ INDI\n1 NAME Jean /Nom" + std::to_string(i) +
                 "/\n1 BIRT\n2 DATE 1" + std::to_string(500 + i % 400) +
                 "\n2 PLAC Saint Malo\n1 NOTE une note de quelques mots\n";
    return texte + "0 TRLR\n";
}

struct Poste {
    Poste() {
        setenv("XDG_CONFIG_HOME", (dossier / "config").c_str(), 1);
        setenv("XDG_CACHE_HOME", (dossier / "cache").c_str(), 1);
    }
    [[nodiscard]] pid_t Lancer() const {
        const std::string base = (dossier / "b.LGD").string();
        const pid_t fils = ::fork();
        REQUIRE(fils >= 0);
        if (fils == 0) {
            const int nulle = ::open("/dev/null", O_RDWR);
            ::dup2(nulle, 1);
            ::dup2(nulle, 2);
            ::execl(OUTIL, OUTIL, "reorganiser", base.c_str(), static_cast<char*>(nullptr));
            ::_exit(127);
        }
        return fils;
    }
    static int Attendre(pid_t fils) {
        int statut = 0;
        ::waitpid(fils, &statut, 0);
        return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
    }

    DossierTemporaire dossier;
};

}  // namespace

TEST_CASE_FIXTURE(Poste, "Killed in a reorganisation: the old base or the new one, whole") {
    EcrireFichier(dossier / "b.ged", Gedcom(20000));
    const std::string importer = "cd '" + dossier.chemin.string() +
                                 "' && '" OUTIL "' importer b.ged --base b.LGD > /dev/null 2>&1";
    REQUIRE(std::system(importer.c_str()) == 0);
    const std::string ancienne = LireFichier(dossier / "b.LGD");
    const auto debut = Horloge::now();
    REQUIRE(Attendre(Lancer()) == 0);
    const auto duree =
        std::chrono::duration_cast<std::chrono::microseconds>(Horloge::now() - debut).count();
    const std::string nouvelle = LireFichier(dossier / "b.LGD");
    REQUIRE(nouvelle != ancienne);

    std::mt19937 hasard{17};
    int tues = 0;
    for (int essai = 0; essai < 40; ++essai) {
        CAPTURE(essai);
        EcrireFichier(dossier / "b.LGD", ancienne);
        const pid_t fils = Lancer();
        std::this_thread::sleep_for(
            std::chrono::microseconds(hasard() % static_cast<std::uint32_t>(duree + duree / 10)));
        ::kill(fils, SIGKILL);
        const bool fini = Attendre(fils) == 0;
        tues += fini ? 0 : 1;
        const std::string reste = LireFichier(dossier / "b.LGD");
        CHECK((reste == ancienne || reste == nouvelle));
        if (fini) CHECK(reste == nouvelle);
    }
    CHECK(tues > 5);
    // What the dead have left behind stands in nobody's way.
    EcrireFichier(dossier / "b.LGD", ancienne);
    CHECK(Attendre(Lancer()) == 0);
    CHECK(LireFichier(dossier / "b.LGD") == nouvelle);
    CHECK(LireFichier(dossier / "b.SAV") == ancienne);
}

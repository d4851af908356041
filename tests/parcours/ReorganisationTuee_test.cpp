// `dorvane-outil reorganiser` as built, killed at moments of chance: what stands under the name of
// the base is the old one or the new one, byte for byte, and the next run is not locked out.
#include "parcours/PosteTue.h"

#include <chrono>
#include <csignal>
#include <random>
#include <string>
#include <thread>

#include <doctest/doctest.h>

using namespace dorvane::doublures;
using namespace dorvane::parcours;

namespace {

using Horloge = std::chrono::steady_clock;

struct Poste : PosteTue {
    [[nodiscard]] pid_t Lancer() const {
        return PosteTue::Lancer({"reorganiser", (dossier / "b.LGD").string()});
    }
};

}  // namespace

TEST_CASE_FIXTURE(Poste, "Killed in a reorganisation: the old base or the new one, whole") {
    EcrireFichier(dossier / "b.ged", GedcomDe(20000));
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

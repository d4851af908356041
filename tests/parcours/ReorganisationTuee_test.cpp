// `dorvane-outil reorganiser` as built, killed at changes of files drawn by chance: what stands
// under the name of the base is the old one or the new one, byte for byte, and the next run is not
// locked out.
#include "parcours/PosteTue.h"

#include <random>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane::doublures;
using namespace dorvane::parcours;

namespace {

struct Poste : PosteTue {
    [[nodiscard]] Fin Lancer(std::size_t moment = 0) const {
        return Courir({"reorganiser", (dossier / "b.LGD").string()}, moment);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Poste, "Killed in a reorganisation: the old base or the new one, whole") {
    EcrireFichier(dossier / "b.ged", GedcomDe(20000));
    const std::string importer = "cd '" + dossier.chemin.string() +
                                 "' && '" OUTIL "' importer b.ged --base b.LGD > /dev/null 2>&1";
    REQUIRE(std::system(importer.c_str()) == 0);
    const std::string ancienne = LireFichier(dossier / "b.LGD");
    const Fin entier = Lancer();
    REQUIRE(entier.statut == 0);
    REQUIRE(entier.changements > 3);
    const std::string nouvelle = LireFichier(dossier / "b.LGD");
    REQUIRE(nouvelle != ancienne);

    std::mt19937 hasard{17};
    int tues = 0;
    for (int essai = 0; essai < 40; ++essai) {
        CAPTURE(essai);
        EcrireFichier(dossier / "b.LGD", ancienne);
        const std::size_t moment = 1 + hasard() % entier.changements;
        const bool fini = Lancer(moment).statut == 0;
        tues += fini ? 0 : 1;
        const std::string reste = LireFichier(dossier / "b.LGD");
        CHECK((reste == ancienne || reste == nouvelle));
        if (fini) CHECK(reste == nouvelle);
    }
    CHECK(tues > 5);
    // What the dead have left behind stands in nobody's way.
    EcrireFichier(dossier / "b.LGD", ancienne);
    CHECK(Lancer().statut == 0);
    CHECK(LireFichier(dossier / "b.LGD") == nouvelle);
    CHECK(LireFichier(dossier / "b.SAV") == ancienne);
}

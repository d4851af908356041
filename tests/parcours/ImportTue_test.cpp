// `dorvane-outil importer --remplacer` as built, killed at changes of files drawn by chance: what
// stands under the name of the base is the old one or the new one, whole, and the next import is
// not locked out.
#include "parcours/PosteTue.h"

#include <random>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane::doublures;
using namespace dorvane::parcours;

namespace {

struct Poste : PosteTue {
    Poste() {
        EcrireFichier(dossier / "ancien.ged", GedcomDe(300));
        EcrireFichier(dossier / "nouveau.ged", GedcomDe(12000));
    }
    /// An import over the base, killed at a moment; 0 never.
    [[nodiscard]] Fin Lancer(const char* fichier, std::size_t moment = 0) const {
        return Courir({"importer", (dossier / fichier).string(), "--base",
                       (dossier / "b.LGD").string(), "--remplacer", "--trier"},
                      moment);
    }
    /// How many persons the base lists; -1 when it cannot be opened.
    int Compter() const {
        const std::string commande = "'" OUTIL "' lister '" + (dossier / "b.LGD").string() +
                                     "' > '" + (dossier / "liste").string() + "' 2>&1";
        if (std::system(commande.c_str()) != 0) return -1;
        int lignes = 0;
        for (const char c : LireFichier(dossier / "liste"))
            lignes += c == '\n' ? 1 : 0;
        return lignes;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Poste, "Killed in an import that replaces: the old base or the new one, whole") {
    REQUIRE(Lancer("ancien.ged").statut == 0);
    const std::string ancienne = LireFichier(dossier / "b.LGD");
    const Fin entier = Lancer("nouveau.ged");
    REQUIRE(entier.statut == 0);
    REQUIRE(entier.changements > 3);
    REQUIRE(Compter() == 12000);

    std::mt19937 hasard{11};
    int tues = 0;
    for (int essai = 0; essai < 40; ++essai) {
        CAPTURE(essai);
        EcrireFichier(dossier / "b.LGD", ancienne);
        const std::size_t moment = 1 + hasard() % entier.changements;
        const bool fini = Lancer("nouveau.ged", moment).statut == 0;
        tues += fini ? 0 : 1;
        const int lus = Compter();
        CHECK((lus == 300 || lus == 12000));
        if (fini) CHECK(lus == 12000);
    }
    CHECK(tues > 5);
    // What the dead have left behind stands in nobody's way.
    CHECK(Lancer("ancien.ged").statut == 0);
    CHECK(Compter() == 300);
}

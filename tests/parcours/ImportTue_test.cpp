// `dorvane-outil importer --remplacer` as built, killed at moments of chance: what stands under the
// name of the base is the old one or the new one, whole, and the next import is not locked out.
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
    Poste() {
        EcrireFichier(dossier / "ancien.ged", GedcomDe(300));
        EcrireFichier(dossier / "nouveau.ged", GedcomDe(12000));
    }
    /// Starts an import over the base.
    [[nodiscard]] pid_t Lancer(const char* fichier) const {
        return PosteTue::Lancer({"importer", (dossier / fichier).string(), "--base",
                                 (dossier / "b.LGD").string(), "--remplacer", "--trier"});
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
    REQUIRE(Attendre(Lancer("ancien.ged")) == 0);
    const std::string ancienne = LireFichier(dossier / "b.LGD");
    const auto debut = Horloge::now();
    REQUIRE(Attendre(Lancer("nouveau.ged")) == 0);
    const auto duree =
        std::chrono::duration_cast<std::chrono::microseconds>(Horloge::now() - debut).count();
    REQUIRE(Compter() == 12000);

    std::mt19937 hasard{11};
    int tues = 0;
    for (int essai = 0; essai < 40; ++essai) {
        CAPTURE(essai);
        EcrireFichier(dossier / "b.LGD", ancienne);
        const pid_t fils = Lancer("nouveau.ged");
        std::this_thread::sleep_for(
            std::chrono::microseconds(hasard() % static_cast<std::uint32_t>(duree + duree / 10)));
        ::kill(fils, SIGKILL);
        const bool fini = Attendre(fils) == 0;
        tues += fini ? 0 : 1;
        const int lus = Compter();
        CHECK((lus == 300 || lus == 12000));
        if (fini) CHECK(lus == 12000);
    }
    CHECK(tues > 5);
    // What the dead have left behind stands in nobody's way.
    CHECK(Attendre(Lancer("ancien.ged")) == 0);
    CHECK(Compter() == 300);
}

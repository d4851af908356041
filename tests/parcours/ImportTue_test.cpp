// `dorvane-outil importer --remplacer` as built, killed at moments of chance: what stands under the
// name of the base is the old one or the new one, whole, and the next import is not locked out.
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
                 "\n2 PLAC Saint Malo\n1 OCCU laboureur\n1 NOTE une note de quelques mots\n";
    return texte + "0 TRLR\n";
}

struct Poste {
    Poste() {
        setenv("XDG_CONFIG_HOME", (dossier / "config").c_str(), 1);
        setenv("XDG_CACHE_HOME", (dossier / "cache").c_str(), 1);
        EcrireFichier(dossier / "ancien.ged", Gedcom(300));
        EcrireFichier(dossier / "nouveau.ged", Gedcom(12000));
    }

    /// Starts an import over the base; the caller waits for it.
    pid_t Lancer(const char* fichier) const {
        const std::string source = (dossier / fichier).string();
        const std::string base = (dossier / "b.LGD").string();
        const pid_t fils = ::fork();
        REQUIRE(fils >= 0);
        if (fils == 0) {
            const int nulle = ::open("/dev/null", O_RDWR);
            ::dup2(nulle, 1);
            ::dup2(nulle, 2);
            ::execl(OUTIL, OUTIL, "importer", source.c_str(), "--base", base.c_str(), "--remplacer",
                    "--trier", static_cast<char*>(nullptr));
            ::_exit(127);
        }
        return fils;
    }
    static int Attendre(pid_t fils) {
        int statut = 0;
        ::waitpid(fils, &statut, 0);
        return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
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

    DossierTemporaire dossier;
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

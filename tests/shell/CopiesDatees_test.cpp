#include "shell/CopiesDatees.h"

#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <ctime>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

namespace fs = std::filesystem;

struct Bureau : SessionEssai {
    fs::path famille = dossier / "Famille.LGD";
    fs::path copie = dossier / "Famille.SAV";

    Bureau() {
        Demarrage(session);
        dialogue.fichiers.emplace_back(famille);
        MnuNouveau(session);
    }
    /// A base of so many persons, and a backup of it that is `jours` days old.
    void Sauver(std::uint32_t personnes, int jours) {
        while (session.base->entete.DernierIndividu < personnes)
            session.base->R_TRI.AjouterIndividu(session.base->NouvelIndividu());
        REQUIRE(MnuSauvegarde(session));
        constexpr std::time_t Jour = 86400;
        const std::time_t alors = 1700000000 - jours * Jour;
        const timespec temps[2] = {{alors, 0}, {alors, 0}};
        REQUIRE(utimensat(AT_FDCWD, copie.c_str(), temps, 0) == 0);
    }
    [[nodiscard]] std::vector<std::uint32_t> Gardees() {
        std::vector<std::uint32_t> personnes;
        for (const fs::path& datee : ListerDatees(copie))
            personnes.push_back(storage::CompterPersonnes(disque, datee).value_or(0));
        return personnes;
    }
};

}  // namespace

TEST_CASE("CheminDate: the minute stands before the extension, and comes off again") {
    const Moment moment{2026, 1, 2, 3, 4, 5};
    CHECK(CheminDate("/d/Famille.SAV", moment) == "/d/Famille 2026-01-02 0304.SAV");
    CHECK(SansDate("/d/Famille 2026-01-02 0304.SAV") == "/d/Famille.SAV");
    CHECK(SansDate("/d/Famille 2026-01-02 0304 2.SAV") == "/d/Famille.SAV");
    for (const char* autre : {"/d/Famille.SAV", "/d/Famille 2026-01-02.SAV", "/d/1820.SAV",
                              "/d/Famille 2026-01-02 03045.SAV", "/d/a 2026/Famille.SAV"})
        CHECK(SansDate(autre) == autre);
    CHECK(CheminRestauration("/d/Famille 2026-01-02 0304.SAV") == "/d/Famille.LGD");
}

TEST_CASE_FIXTURE(Bureau, "Seven backups: the latest, and the five before it") {
    for (std::uint32_t n = 1; n <= 7; ++n)
        Sauver(n, 100 - static_cast<int>(n));
    CHECK(storage::CompterPersonnes(disque, copie) == 7);
    CHECK(Gardees() == std::vector<std::uint32_t>{6, 5, 4, 3, 2});
    CHECK(std::ranges::count_if(fs::directory_iterator{dossier.chemin}, [](const auto& entree) {
              return entree.path().extension() == ".SAV";
          }) == 6);
}

TEST_CASE_FIXTURE(Bureau, "Two backups of one minute do not write over each other") {
    for (std::uint32_t n = 1; n <= 4; ++n)
        Sauver(n, 10);
    std::vector<std::uint32_t> gardees = Gardees();
    std::ranges::sort(gardees);
    CHECK(gardees == std::vector<std::uint32_t>{1, 2, 3});
}

TEST_CASE_FIXTURE(Bureau, "With none to keep a backup takes the place of the one before") {
    session.parametres.generaux.sauvegardesGardees = 0;
    for (std::uint32_t n = 1; n <= 3; ++n)
        Sauver(n, 10 - static_cast<int>(n));
    CHECK(storage::CompterPersonnes(disque, copie) == 3);
    CHECK(Gardees().empty());
}

TEST_CASE_FIXTURE(Bureau, "Backups of other bases, and what only looks like one, are left alone") {
    Sauver(1, 50);
    session.parametres.generaux.sauvegardesGardees = 1;
    const char* autres[] = {"Famille B 2020-01-01 0000.SAV", "Autre 2020-01-01 0000.SAV",
                            "Famille 2020-01-01 0000.LGD", "Famille 2020-01-01.SAV"};
    for (const char* nom : autres)
        EcrireFichier(dossier / nom, "x");
    for (std::uint32_t n = 2; n <= 5; ++n)
        Sauver(n, 50 - static_cast<int>(n));
    CHECK(Gardees() == std::vector<std::uint32_t>{4});
    for (const char* nom : autres)
        CHECK(fs::exists(dossier / nom));
}

#pragma once

#include "doublures/DossierTemporaire.h"
#include "doublures/EcouteFichiers.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::parcours {

/// A file of so many persons, long enough to be killed in the middle of it.
inline std::string GedcomDe(int personnes) {
    std::string texte = "0 HEAD\n1 CHAR ANSI\n";
    for (int i = 1; i <= personnes; ++i)
        texte += "0 @I" + std::to_string(i) + "@ INDI\n1 NAME Jean /Nom" + std::to_string(i) +
                 "/\n1 BIRT\n2 DATE 1" + std::to_string(500 + i % 400) +
                 "\n2 PLAC Saint Malo\n1 OCCU laboureur\n1 NOTE une note de quelques mots\n";
    return texte + "0 TRLR\n";
}

/// One folder, one configuration, and programs in it that are killed.
struct PosteTue {
    PosteTue() {
        setenv("XDG_CONFIG_HOME", (dossier / "config").c_str(), 1);
        setenv("XDG_CACHE_HOME", (dossier / "cache").c_str(), 1);
    }
    /// What came of a run.
    struct Fin {
        int statut = -1;            ///< exit status; -1 for a program that was killed
        std::size_t changements{};  ///< of files in the folder
    };

    /// Runs the tool in silence, and kills it at a change of a file in the folder: the `moment`-th;
    /// 0 never.
    [[nodiscard]] Fin Courir(std::vector<std::string> arguments, std::size_t moment = 0) const {
        arguments.insert(arguments.begin(), OUTIL);
        std::vector<char*> pointeurs;
        for (std::string& argument : arguments)
            pointeurs.push_back(argument.data());
        pointeurs.push_back(nullptr);
        const doublures::EcouteFichiers ecoute{dossier.chemin};
        // Its end is held by the program alone: it closes with it.
        std::array<int, 2> tube{};
        REQUIRE(::pipe(tube.data()) == 0);
        const pid_t fils = ::fork();
        REQUIRE(fils >= 0);
        if (fils == 0) {
            const int nulle = ::open("/dev/null", O_RDWR);
            ::dup2(nulle, 1);
            ::dup2(nulle, 2);
            ::close(tube[0]);
            ::execv(OUTIL, pointeurs.data());
            ::_exit(127);
        }
        ::close(tube[1]);
        Fin fin;
        pollfd bout{tube[0], POLLIN, 0};
        while (::poll(&bout, 1, 0) == 0) {
            ecoute.Attendre(tube[0]);
            fin.changements += ecoute.Compter();
            if (moment != 0 && fin.changements >= moment) {
                ::kill(fils, SIGKILL);
                break;
            }
        }
        ::close(tube[0]);
        int statut = 0;
        ::waitpid(fils, &statut, 0);
        if (WIFEXITED(statut)) fin.statut = WEXITSTATUS(statut);
        return fin;
    }

    doublures::DossierTemporaire dossier;
};

}  // namespace dorvane::parcours

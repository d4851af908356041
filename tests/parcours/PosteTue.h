#pragma once

#include "doublures/DossierTemporaire.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

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
    /// Starts the tool in silence; the caller waits for it or kills it.
    [[nodiscard]] static pid_t Lancer(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), OUTIL);
        std::vector<char*> pointeurs;
        for (std::string& argument : arguments)
            pointeurs.push_back(argument.data());
        pointeurs.push_back(nullptr);
        const pid_t fils = ::fork();
        REQUIRE(fils >= 0);
        if (fils == 0) {
            const int nulle = ::open("/dev/null", O_RDWR);
            ::dup2(nulle, 1);
            ::dup2(nulle, 2);
            ::execv(OUTIL, pointeurs.data());
            ::_exit(127);
        }
        return fils;
    }
    /// The exit status; -1 for a program that was killed.
    static int Attendre(pid_t fils) {
        int statut = 0;
        ::waitpid(fils, &statut, 0);
        return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
    }

    doublures::DossierTemporaire dossier;
};

}  // namespace dorvane::parcours

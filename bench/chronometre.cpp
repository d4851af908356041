// Times whole processes, and the least that the machine needs for the bytes they handle.
//
//   chronometre mesurer TIMES COMMAND [ARG...]      processor time, wall time and peak memory
//   chronometre limite FILE BYTES OUTPUT            read FILE, split it in lines, write and flush
//   BYTES
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

double Secondes(const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
}

struct Mesure {
    double processeur;
    double mur;
    long memoire;  ///< kilobytes
    int statut;
};

Mesure Executer(char** commande) {
    const auto debut = std::chrono::steady_clock::now();
    const pid_t enfant = fork();
    if (enfant == 0) {
        const int nulle = open("/dev/null", O_WRONLY);
        dup2(nulle, STDOUT_FILENO);
        execvp(commande[0], commande);
        _exit(127);
    }
    int statut = 0;
    rusage usage{};
    wait4(enfant, &statut, 0, &usage);
    const std::chrono::duration<double> mur = std::chrono::steady_clock::now() - debut;
    return {Secondes(usage.ru_utime) + Secondes(usage.ru_stime), mur.count(), usage.ru_maxrss,
            WEXITSTATUS(statut)};
}

/// Prints "processor wall memory" in milliseconds and megabytes, the best and the median of all.
int Mesurer(int fois, char** commande) {
    std::vector<Mesure> mesures;
    for (int i = 0; i < fois; ++i) {
        mesures.push_back(Executer(commande));
        if (mesures.back().statut != 0) {
            std::cerr << commande[0] << ": status " << mesures.back().statut << '\n';
            return 1;
        }
    }
    std::ranges::sort(mesures, {}, &Mesure::processeur);
    const Mesure& mediane = mesures[mesures.size() / 2];
    std::printf("%.0f %.0f %.0f %.0f\n", mesures.front().processeur * 1e3, mediane.processeur * 1e3,
                mediane.mur * 1e3, static_cast<double>(mediane.memoire) / 1024);
    return 0;
}

int Limite(const char* fichier, std::size_t octets, const char* sortie) {
    const int entree = open(fichier, O_RDONLY);
    if (entree < 0) return 3;
    const auto taille = static_cast<std::size_t>(lseek(entree, 0, SEEK_END));
    std::string texte(taille, '\0');
    if (pread(entree, texte.data(), taille, 0) != static_cast<ssize_t>(taille)) return 3;
    close(entree);
    std::size_t lignes = 0;
    const char* ou = texte.data();
    const char* const fin = ou + taille;
    while (ou < fin) {
        const void* suivante = std::memchr(ou, '\n', static_cast<std::size_t>(fin - ou));
        if (suivante == nullptr) break;
        ou = static_cast<const char*>(suivante) + 1;
        ++lignes;
    }
    const int vers = open(sortie, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    for (std::size_t ecrits = 0; ecrits < octets;) {
        const std::size_t n = std::min<std::size_t>(1U << 20U, octets - ecrits);
        if (write(vers, texte.data() + ecrits % (taille - n + 1), n) != static_cast<ssize_t>(n))
            return 3;
        ecrits += n;
    }
    fsync(vers);
    close(vers);
    std::printf("%zu\n", lignes);
    return 0;
}

}  // namespace

int main(int nombre, char** arguments) {
    if (nombre >= 4 && std::strcmp(arguments[1], "mesurer") == 0)
        return Mesurer(std::atoi(arguments[2]), arguments + 3);
    if (nombre == 5 && std::strcmp(arguments[1], "limite") == 0)
        return Limite(arguments[2], std::strtoul(arguments[3], nullptr, 10), arguments[4]);
    std::cerr << "usage: chronometre mesurer TIMES COMMAND [ARG...]\n"
                 "       chronometre limite FILE BYTES OUTPUT\n";
    return 2;
}

// A real process that edits and commits on the real disk is killed at a moment of chance; what is
// opened again is one of its commits, at least the last one that it had announced.
#include "doublures/DossierTemporaire.h"
#include "doublures/EcouteFichiers.h"
#include "doublures/Inventaire.h"
#include "doublures/SeanceEssai.h"
#include "storage/Base.h"
#include "storage/DisqueReel.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr int NbCommits = 60;
constexpr int Gestes = 5;
constexpr std::uint32_t Graine = 42;

/// Works on the base; announces each commit by one byte when `annonce` is a descriptor, and puts
/// down what the base says when `etats` is given.
void Travailler(const std::filesystem::path& chemin, int annonce, std::vector<std::string>* etats) {
    DisqueReel disque;
    const ResultatOuverture resultat = NouvelleBase(disque, chemin, {});
    if (!resultat.base || !resultat.base->Enregistrer()) return;
    SeanceEssai seance{*resultat.base, Graine};
    for (int c = 0; c <= NbCommits; ++c) {
        if (c > 0) {
            for (int g = 0; g < Gestes; ++g)
                seance.Agir();
            if (!resultat.base->Enregistrer()) return;
        }
        if (etats != nullptr) etats->push_back(Inventaire{*resultat.base}.Texte());
        if (annonce >= 0 && ::write(annonce, "x", 1) != 1) return;
    }
}

}  // namespace

TEST_CASE(
    "Killed: a process killed at any moment leaves one of its commits, the announced one or the "
    "next") {
    const doublures::DossierTemporaire dossier;
    std::vector<std::string> etats;
    Travailler(dossier.chemin / "temoin.LGD", -1, &etats);
    REQUIRE(etats.size() == NbCommits + 1);
    std::mt19937 hasard{7};
    int enRoute = 0;
    for (int essai = 0; essai < 40; ++essai) {
        CAPTURE(essai);
        const std::filesystem::path chemin =
            dossier.chemin / ("b" + std::to_string(essai) + ".LGD");
        const doublures::EcouteFichiers ecoute{dossier.chemin};
        std::array<int, 2> tube{};
        REQUIRE(::pipe(tube.data()) == 0);
        const pid_t fils = ::fork();
        REQUIRE(fils >= 0);
        if (fils == 0) {
            ::close(tube[0]);
            Travailler(chemin, tube[1], nullptr);
            ::_exit(0);
        }
        ::close(tube[1]);
        std::size_t annonces = 0;
        char octet = 0;
        // Lets it come to a commit of chance, then strikes some changes of files later.
        const std::size_t jusque = 1 + hasard() % NbCommits;
        const std::size_t apres = hasard() % 12;
        std::size_t changements = 0;
        while (annonces < jusque || changements < apres) {
            ecoute.Attendre(tube[0]);
            const std::size_t vus = ecoute.Compter();
            if (annonces >= jusque) changements += vus;
            pollfd pret{tube[0], POLLIN, 0};
            if (::poll(&pret, 1, 0) == 0) continue;
            if (::read(tube[0], &octet, 1) != 1) break;
            ++annonces;
        }
        ::kill(fils, SIGKILL);
        while (::read(tube[0], &octet, 1) == 1)
            ++annonces;
        ::close(tube[0]);
        ::waitpid(fils, nullptr, 0);
        if (annonces <= NbCommits) ++enRoute;

        DisqueReel disque;
        ProgressionMuette muet;
        const ResultatOuverture resultat = OuvrirBase(disque, chemin, muet);
        REQUIRE(resultat.etat == Ouverture::Faite);
        const std::string lu = Inventaire{*resultat.base}.Texte();
        const bool dernier = lu == etats[annonces - 1];
        const bool suivant = annonces < etats.size() && lu == etats[annonces];
        CHECK((dernier || suivant));
    }
    CHECK(enRoute > 20);
}

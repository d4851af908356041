#include "storage/DisqueReel.h"

#include "doublures/DossierTemporaire.h"
#include "storage/Base.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

struct Scene {
    [[nodiscard]] std::filesystem::path Chemin(const char* nom) const {
        return dossier.chemin / nom;
    }
    doublures::DossierTemporaire dossier;
    DisqueReel disque;
    ProgressionMuette muet;
};

}  // namespace

TEST_CASE_FIXTURE(Scene, "DisqueReel: what is written is read, past the end are zeros") {
    const auto fichier = disque.Ouvrir(Chemin("a"), ModeOuverture::Creer);
    REQUIRE(fichier);
    fichier->Ecrire(Position{3}, std::string("abc"));
    fichier->Vider();
    std::string lu(6, 'x');
    CHECK(fichier->Lire(Position{2}, lu) == 4);
    CHECK(lu == std::string("\0abc\0\0", 6));
    CHECK(fichier->Taille() == 5);
    CHECK_FALSE(fichier->EnDefaut());
}

TEST_CASE_FIXTURE(
    Scene, "DisqueReel: a folder, a missing file and a read-only file are not opened for writing") {
    CHECK(disque.Ouvrir(dossier.chemin, ModeOuverture::LectureSeule) == nullptr);
    CHECK(disque.Ouvrir(Chemin("absent"), ModeOuverture::LireEcrire) == nullptr);
    CHECK_FALSE(disque.Existe(Chemin("absent")));
    CHECK_FALSE(disque.Supprimer(Chemin("absent")));
    CHECK_FALSE(disque.Renommer(Chemin("absent"), Chemin("b")));
    CHECK_FALSE(disque.Copier(Chemin("absent"), Chemin("b")));
    std::ofstream{Chemin("lu")} << "x";
    const auto fichier = disque.Ouvrir(Chemin("lu"), ModeOuverture::LectureSeule);
    REQUIRE(fichier);
    fichier->Ecrire(Position{1}, std::string("y"));
    CHECK(fichier->EnDefaut());
}

TEST_CASE_FIXTURE(Scene, "DisqueReel: a copy replaces its target and is whole") {
    const auto fichier = disque.Ouvrir(Chemin("a"), ModeOuverture::Creer);
    fichier->Ecrire(Position{1}, std::string(3000000, 'z'));
    CHECK(disque.Copier(Chemin("a"), Chemin("b")));
    CHECK(std::filesystem::file_size(Chemin("b")) == 3000000);
    CHECK(disque.Renommer(Chemin("b"), Chemin("a")));
    CHECK(disque.ViderDossier(Chemin("a")));
    CHECK_FALSE(disque.Existe(Chemin("b")));
}

TEST_CASE_FIXTURE(Scene, "Lock: held once, by any name of the base, and removed when given back") {
    std::ofstream{Chemin("base.LGD")} << "x";
    std::filesystem::create_symlink(Chemin("base.LGD"), Chemin("lien.LGD"));
    {
        const ResultatVerrou verrou = disque.Verrouiller(Chemin("base.LGD"));
        CHECK(verrou.etat == EtatVerrou::Pris);
        CHECK(disque.Existe(Chemin("base.LGD.verrou")));
        CHECK(disque.Verrouiller(Chemin("base.LGD")).etat == EtatVerrou::Occupe);
        CHECK(disque.Verrouiller(Chemin("lien.LGD")).etat == EtatVerrou::Occupe);
    }
    CHECK_FALSE(disque.Existe(Chemin("base.LGD.verrou")));
    CHECK(disque.Verrouiller(Chemin("base.LGD")).etat == EtatVerrou::Pris);
}

TEST_CASE_FIXTURE(Scene, "Lock: one left behind by a dead program locks nobody out") {
    const std::filesystem::path chemin = Chemin("base.LGD");
    const pid_t fils = ::fork();
    REQUIRE(fils >= 0);
    if (fils == 0) {
        const ResultatVerrou verrou = disque.Verrouiller(chemin);
        ::_exit(verrou.etat == EtatVerrou::Pris ? 0 : 1);
    }
    int fin = -1;
    ::waitpid(fils, &fin, 0);
    CHECK(fin == 0);
    CHECK(disque.Existe(Chemin("base.LGD.verrou")));
    CHECK(disque.Verrouiller(chemin).etat == EtatVerrou::Pris);
    // Another user's, whose rights let one read it only.
    REQUIRE(::chmod(dossier.chemin.c_str(), 0777) == 0);
    doublures::EcrireFichier(chemin.string() + ".verrou", "");
    REQUIRE(::chmod((chemin.string() + ".verrou").c_str(), 0444) == 0);
    const pid_t autre = ::fork();
    if (autre == 0) {
        constexpr uid_t Personne = 65534;
        if (::geteuid() == 0 && ::setuid(Personne) != 0) ::_exit(2);
        DisqueReel sien;
        ::_exit(sien.Verrouiller(chemin).etat == EtatVerrou::Pris ? 0 : 1);
    }
    fin = -1;
    REQUIRE(::waitpid(autre, &fin, 0) == autre);
    CHECK(fin == 0);
}

TEST_CASE_FIXTURE(Scene, "Lock: a folder that does not exist refuses") {
    CHECK(disque.Verrouiller(Chemin("absent") / "base.LGD").etat == EtatVerrou::Refuse);
    CHECK(NouvelleBase(disque, Chemin("absent") / "base.LGD", {}).etat == Ouverture::Refusee);
}

TEST_CASE_FIXTURE(Scene, "A base on the real disk leaves no journal and no lock behind") {
    const std::filesystem::path chemin = Chemin("été.LGD");
    ResultatOuverture resultat = NouvelleBase(disque, chemin, {});
    REQUIRE(resultat.base);
    resultat.base->R_NOM.EcrireNom(resultat.base->NouvelIndividu(), "DURAND;Jean");
    CHECK(resultat.base->Enregistrer());
    CHECK(OuvrirBase(disque, chemin, muet).etat == Ouverture::Occupee);
    resultat.base->R_NOM.EcrireNom(NoOrdre{1}, "DURAND;Paul");
    CHECK(resultat.base->Fermer());
    resultat.base.reset();
    std::size_t fichiers = 0;
    for ([[maybe_unused]] const auto& fichier : std::filesystem::directory_iterator{dossier.chemin})
        ++fichiers;
    CHECK(fichiers == 1);
    resultat = OuvrirBase(disque, chemin, muet);
    REQUIRE(resultat.base);
    CHECK(resultat.base->R_NOM.PrenomDe(NoOrdre{1}) == "Paul");
}

TEST_CASE_FIXTURE(Scene,
                  "DisqueReel: a new file takes the place of a link, not of what it leads to") {
    std::ofstream{Chemin("autre")} << "autre";
    std::filesystem::create_symlink(Chemin("autre"), Chemin("neuf"));
    CHECK(disque.Ouvrir(Chemin("neuf"), ModeOuverture::Neuf) == nullptr);
    REQUIRE(disque.Ouvrir(Chemin("neuf"), ModeOuverture::Creer) != nullptr);
    CHECK(std::filesystem::is_regular_file(std::filesystem::symlink_status(Chemin("neuf"))));
    CHECK(std::filesystem::file_size(Chemin("autre")) == 5);
}

TEST_CASE_FIXTURE(Scene, "DisqueReel: a copy keeps the rights of its source") {
    namespace fs = std::filesystem;
    std::ofstream{Chemin("a")} << "a";
    fs::permissions(Chemin("a"), fs::perms::owner_read | fs::perms::owner_write |
                                     fs::perms::group_read | fs::perms::group_write);
    CHECK(disque.Copier(Chemin("a"), Chemin("b")));
    CHECK(fs::status(Chemin("b")).permissions() == fs::status(Chemin("a")).permissions());
}

TEST_CASE_FIXTURE(Scene, "Lock: a pipe or a link under its name refuses at once") {
    const std::filesystem::path tube = Chemin("base.LGD.verrou");
    REQUIRE(::mkfifo(tube.c_str(), 0600) == 0);
    CHECK(disque.Verrouiller(Chemin("base.LGD")).etat == EtatVerrou::Refuse);
    std::filesystem::create_symlink(Chemin("ailleurs"), Chemin("deux.LGD.verrou"));
    CHECK(disque.Verrouiller(Chemin("deux.LGD")).etat == EtatVerrou::Refuse);
    CHECK_FALSE(disque.Existe(Chemin("ailleurs")));
}

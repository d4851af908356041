#include "storage/Volume.h"

#include "doublures/DisqueMemoire.h"

#include <random>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr std::size_t ZoneFixe = 3573;

/// A volume over a file that holds no more than a fixed zone.
struct Scene {
    Scene() {
        disque->Poser("x.LGD", std::string(ZoneFixe, 'z'));
        Ouvrir();
    }
    void Ouvrir() {
        volume.reset();
        std::unique_ptr<Fichier> fichier = disque->Ouvrir("x.LGD", ModeOuverture::LireEcrire);
        if (disque->Existe("x.LOG")) CHECK(RejouerJournal(*disque, "x.LOG", *fichier).has_value());
        (void)disque->Supprimer("x.LOG");
        volume = std::make_unique<Volume>(*disque, std::move(fichier), "x.LGD", fin, false);
        volume->ProtegerZones({{Position{1}, ZoneFixe}});
    }
    [[nodiscard]] std::string Lire(std::uint32_t position, std::size_t taille) const {
        std::string octets(taille, '?');
        volume->Lire(Position{position}, octets);
        return octets;
    }
    [[nodiscard]] std::string LireBloc(std::uint32_t position, std::size_t taille) const {
        std::string octets(taille, '?');
        volume->LireBloc(Position{position}, octets);
        return octets;
    }
    [[nodiscard]] std::string Fichier_() const { return disque->Octets("x.LGD"); }

    std::uint32_t fin = ZoneFixe;  ///< of the last commit
    std::unique_ptr<DisqueMemoire> disque = std::make_unique<DisqueMemoire>();
    std::unique_ptr<Volume> volume;
};

}  // namespace

TEST_CASE_FIXTURE(Scene, "Volume: appended bytes take the places behind the end, and wait") {
    CHECK(volume->Ajouter("abc") == Position{3574});
    CHECK(volume->Ajouter("de", "#") == Position{3577});
    CHECK(volume->FinFichier() == 3579);
    CHECK(Fichier_().size() == ZoneFixe);
    CHECK(Lire(3574, 6) == "abcde#");
    CHECK(Lire(3572, 4) == "zzab");
    CHECK(volume->LireTexte(Position{3574}, 100) == "abcde");
}

TEST_CASE_FIXTURE(Scene, "Volume: past the end are zeros, and position 0 gives nothing") {
    (void)volume->Ajouter("abc");
    CHECK(Lire(3575, 4) == std::string("bc\0\0", 4));
    CHECK(Lire(0, 3) == std::string(3, '\0'));
    CHECK(Lire(0xFFFFFFFF, 2) == std::string(2, '\0'));
    std::string octets(5, '?');
    CHECK(volume->Lire(Position{3576}, octets) == 1);
    CHECK(volume->Lire(Position{}, octets) == 0);
}

TEST_CASE_FIXTURE(Scene,
                  "Volume: a text ends at its byte, at the limit or at the end of the file") {
    const Position p = volume->Ajouter("0123456789#reste");
    bool trouve = false;
    CHECK(volume->LireTexte(p, 100, &trouve) == "0123456789");
    CHECK(trouve);
    CHECK(volume->LireTexte(p, 4, &trouve) == "0123");
    CHECK_FALSE(trouve);
    // The byte itself counts for the limit.
    CHECK(volume->LireTexte(p, 10, &trouve) == "0123456789");
    CHECK_FALSE(trouve);
    CHECK(volume->LireTexte(p, 11, &trouve) == "0123456789");
    CHECK(trouve);
    CHECK(volume->LireTexte(Position{p.valeur + 11}, 100, &trouve) == "reste");
    CHECK_FALSE(trouve);
    CHECK(volume->LireTexte(p, 100, &trouve, '5') == "01234");
}

TEST_CASE_FIXTURE(Scene,
                  "Volume: a block of the last commit waits, one of this transaction does not") {
    const Position ancien = volume->Ajouter(std::string(1000, 'a'));
    REQUIRE(volume->Commettre(std::string(200, 'h')));
    const std::string avant = Fichier_();
    volume->EcrireBloc(ancien, std::string(1000, 'b'));
    const Position nouveau = volume->Ajouter(std::string(1000, 'c'));
    volume->EcrireBloc(nouveau, std::string(1000, 'd'));
    CHECK(LireBloc(ancien.valeur, 1000) == std::string(1000, 'b'));
    CHECK(LireBloc(nouveau.valeur, 1000) == std::string(1000, 'd'));
    CHECK(Fichier_() == avant);
    CHECK_FALSE(disque->Existe("x.LOG"));
    REQUIRE(volume->Commettre(std::string(200, 'i')));
    CHECK(Fichier_().substr(0, 201) == std::string(200, 'i') + "z");
    CHECK(Fichier_().substr(ancien.valeur - 1) == std::string(1000, 'b') + std::string(1000, 'd'));
}

TEST_CASE_FIXTURE(Scene, "Volume: images are flushed before any block is overwritten") {
    const Position bloc = volume->Ajouter(std::string(2000, 'a'));
    REQUIRE(volume->Commettre(std::string(200, 'h')));
    const std::string avant = Fichier_();
    volume->FixerTampons(1U << 20U, 0);
    // The journal made and written, both flushed, then the block: the power goes at the last.
    disque->panne = Panne::Arret;
    disque->panneA = disque->operations + 5;
    volume->EcrireBloc(bloc, std::string(2000, 'b'));
    CHECK(disque->Mort());
    CHECK(Fichier_() == avant);
    for (std::uint32_t graine = 0; graine < 20; ++graine) {
        const std::unique_ptr<DisqueMemoire> apres = disque->CouperCourant(graine);
        CHECK(apres->Octets("x.LOG").size() == (1 + 4 + 2) * 1004);
    }
}

TEST_CASE_FIXTURE(Scene,
                  "Volume: once a write has been refused, what is appended waits and is read") {
    volume->FixerTampons(10, 10);
    disque->panne = Panne::Plein;
    disque->panneA = disque->operations + 1;
    const Position premier = volume->Ajouter("0123456789");
    CHECK(volume->EnDefaut());
    const Position second = volume->Ajouter("abcdefghijk");
    CHECK(Lire(premier.valeur, 10) == "0123456789");
    CHECK(Lire(second.valeur, 11) == "abcdefghijk");
    CHECK_FALSE(volume->Commettre(std::string(200, 'h')));
    disque->FaireDeLaPlace();
    CHECK(volume->Commettre(std::string(200, 'h')));
    CHECK(Fichier_().substr(premier.valeur - 1) == "0123456789abcdefghijk");
}

TEST_CASE_FIXTURE(Scene, "Volume: what waits for a disk that refuses has a limit, which is told") {
    volume->FixerTampons(10, 10);
    disque->panne = Panne::Plein;
    disque->panneA = disque->operations + 1;
    (void)volume->Ajouter("0123456789");
    const std::string morceau(1U << 20U, 'm');
    int pris = 0;
    while (pris < 1000 && volume->Ajouter(morceau))
        ++pris;
    CHECK(pris == 63);
    disque->FaireDeLaPlace();
    CHECK_FALSE(volume->Commettre(std::string(200, 'h')));
}

TEST_CASE_FIXTURE(Scene, "Volume: a file of 4 GB takes no more") {
    volume->FixerFin(0xFFFFFFF0);
    CHECK(volume->Ajouter(std::string(20, 'x')) == Position{});
    CHECK(volume->EnDefaut());
}

TEST_CASE_FIXTURE(Scene, "Volume: by chance, against one long text, with commits and deaths") {
    struct Morceau {
        std::uint32_t position;
        std::size_t taille;
        bool bloc;
    };
    std::mt19937 hasard{21};
    const auto tirer = [&hasard](std::size_t sur) { return hasard() % sur; };
    const auto texte = [&](std::size_t taille) {
        std::string octets;
        while (octets.size() < taille)
            octets += static_cast<char>(tirer(256));
        return octets;
    };
    std::string modele(ZoneFixe, 'z');
    std::string commis = modele;
    std::vector<Morceau> morceaux;
    std::size_t morceauxCommis = 0;
    int morts = 0;
    for (int i = 0; i < 8000; ++i) {
        if (i % 50 == 0) volume->FixerTampons(1 + tirer(9000), tirer(12000));
        const std::size_t quoi = tirer(100);
        if (quoi < 30) {
            const bool bloc = tirer(3) == 0;
            const std::string octets = texte(bloc ? 1000 * (1 + tirer(2)) : 1 + tirer(600));
            const Position p = volume->Ajouter(octets);
            REQUIRE(p.valeur == modele.size() + 1);
            morceaux.push_back({p.valeur, octets.size(), bloc});
            modele += octets;
        } else if (morceaux.empty()) {
            continue;
        } else if (quoi < 95) {
            const Morceau& m = morceaux[tirer(morceaux.size())];
            const std::string attendu = modele.substr(m.position - 1, m.taille);
            CAPTURE(i);
            if (m.bloc && quoi < 60) {
                const std::string octets = texte(m.taille);
                volume->EcrireBloc(Position{m.position}, octets);
                modele.replace(m.position - 1, m.taille, octets);
            } else if (m.bloc) {
                REQUIRE(LireBloc(m.position, m.taille) == attendu);
            } else {
                const std::size_t saut = tirer(m.taille);
                REQUIRE(Lire(m.position + static_cast<std::uint32_t>(saut), m.taille - saut) ==
                        attendu.substr(saut));
                REQUIRE(volume->LireTexte(Position{m.position}, m.taille) ==
                        attendu.substr(0, attendu.find('#')));
            }
        } else if (quoi < 99) {
            const std::string entete(200, static_cast<char>('a' + i % 26));
            REQUIRE(volume->Commettre(entete));
            modele.replace(0, 200, entete);
            REQUIRE(Fichier_().substr(0, modele.size()) == modele);
            commis = modele;
            morceauxCommis = morceaux.size();
            fin = volume->FinFichier();
        } else {
            Ouvrir();
            REQUIRE(Fichier_().substr(0, commis.size()) == commis);
            modele = commis;
            morceaux.resize(morceauxCommis);
            ++morts;
        }
    }
    CHECK(morts > 20);
    CHECK(modele.size() > 100000);
}

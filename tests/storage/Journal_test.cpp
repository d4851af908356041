#include "storage/Journal.h"

#include "doublures/DisqueMemoire.h"
#include "values/Octets.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

struct Scene {
    Scene() {
        std::string octets;
        for (char c = 'a'; c <= 'j'; ++c)
            octets += std::string(1000, c);
        disque.Poser("x.LGD", octets);
        base = disque.Ouvrir("x.LGD", ModeOuverture::LireEcrire);
    }
    [[nodiscard]] std::string Lire() const { return disque.Octets("x.LGD"); }
    DisqueMemoire disque;
    std::unique_ptr<Fichier> base;
};

}  // namespace

TEST_CASE_FIXTURE(Scene,
                  "Journal: images bring the bytes back, in records of 1004 bytes behind a seal") {
    Journal journal{disque, "x.LOG"};
    journal.Prendre(*base, Position{1001}, 2000);
    CHECK_FALSE(disque.Existe("x.LOG"));
    REQUIRE(journal.Ecrire(10000));
    const std::string log = disque.Octets("x.LOG");
    REQUIRE(log.size() == 3 * 1004);
    CHECK(log.substr(0, 4) == NumVersChaine4(10001));
    CHECK(log.substr(1004, 1004) == NumVersChaine4(1001) + std::string(1000, 'b'));
    CHECK(log.substr(2008, 1004) == NumVersChaine4(2001) + std::string(1000, 'c'));
    const std::string avant = Lire();
    base->Ecrire(Position{1500}, std::string(900, 'X'));
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 2);
    CHECK(Lire() == avant);
    CHECK(journal.Supprimer());
    CHECK_FALSE(disque.Existe("x.LOG"));
}

TEST_CASE_FIXTURE(Scene,
                  "Journal: areas that are no multiple of 1000 are cut so as to end with them") {
    Journal journal{disque, "x.LOG"};
    journal.Prendre(*base, Position{1}, 3573);
    journal.Prendre(*base, Position{5000}, 128);
    REQUIRE(journal.Ecrire(10000));
    const std::string log = disque.Octets("x.LOG");
    REQUIRE(log.size() == 6 * 1004);
    const std::uint32_t positions[] = {1, 1001, 2001, 2574, 5000};
    for (std::size_t i = 0; i < 5; ++i)
        CHECK(log.substr((i + 1) * 1004, 4) == NumVersChaine4(positions[i]));
}

TEST_CASE_FIXTURE(Scene,
                  "Journal: a batch that is not whole is left out, the one before it counts") {
    Journal journal{disque, "x.LOG"};
    journal.Prendre(*base, Position{1}, 1000);
    REQUIRE(journal.Ecrire(10000));
    journal.Prendre(*base, Position{2001}, 1000);
    CHECK(journal.Contient(Position{2001}));
    REQUIRE(journal.Ecrire(10000));
    const std::string log = disque.Octets("x.LOG");
    base->Ecrire(Position{1}, std::string(3000, 'X'));
    std::string abime = log;
    abime[3 * 1004 + 500] = '!';
    disque.Poser("x.LOG", abime);
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 1);
    CHECK(Lire().substr(0, 1000) == std::string(1000, 'a'));
    CHECK(Lire().substr(2000, 1000) == std::string(1000, 'X'));
    disque.Poser("x.LOG", log.substr(0, 1500));
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 0);
    disque.Poser("x.LOG", std::string(1004, '\0') + log.substr(1004));
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 0);
    disque.Poser("x.LOG", log);
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 2);
}

TEST_CASE_FIXTURE(Scene, "Journal: one without seals is replayed record by record") {
    disque.Poser("x.LOG", NumVersChaine4(3001) + std::string(1000, 'A') + NumVersChaine4(0) +
                              std::string(1000, 'B') + NumVersChaine4(10001) +
                              std::string(1000, 'C') + NumVersChaine4(1));
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 1);
    CHECK(Lire().substr(3000, 1000) == std::string(1000, 'A'));
    CHECK(Lire().size() == 10000);
}

TEST_CASE_FIXTURE(Scene, "Journal: a disk that refuses makes the batch fail") {
    for (int n = 1; n <= 3; ++n) {
        Journal journal{disque, "x.LOG"};
        journal.Prendre(*base, Position{1}, 1000);
        disque.panne = Panne::Refus;
        disque.panneA = disque.operations + n;
        CHECK_FALSE(journal.Ecrire(10000));
    }
}

TEST_CASE_FIXTURE(Scene, "MarqueDuJournal: the mark that the replay would bring back") {
    CHECK(MarqueDuJournal(disque, "x.LOG").empty());
    disque.Poser("x.LOG", NumVersChaine4(1) + std::string(1000, 'M'));
    CHECK(MarqueDuJournal(disque, "x.LOG") == std::string(30, 'M'));
}

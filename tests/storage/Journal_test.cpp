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
    Journal journal{disque, "x.LGD"};
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
    Journal journal{disque, "x.LGD"};
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
    Journal journal{disque, "x.LGD"};
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
        Journal journal{disque, "x.LGD"};
        journal.Prendre(*base, Position{1}, 1000);
        disque.panne = Panne::Refus;
        disque.panneA = disque.operations + n;
        CHECK_FALSE(journal.Ecrire(10000));
    }
}

TEST_CASE_FIXTURE(Scene, "Journal: a refused batch waits, and is written once there is room") {
    Journal journal{disque, "x.LGD"};
    journal.Prendre(*base, Position{1}, 1000);
    disque.panne = Panne::Plein;
    disque.panneA = disque.operations + 2;
    CHECK_FALSE(journal.Ecrire(10000));
    journal.Prendre(*base, Position{2001}, 1000);
    disque.FaireDeLaPlace();
    journal.Reprendre();
    REQUIRE(journal.Ecrire(10000));
    base->Ecrire(Position{1}, std::string(3000, 'X'));
    CHECK(RejouerJournal(disque, "x.LOG", *base) == 2);
    CHECK(Lire().substr(0, 1000) == std::string(1000, 'a'));
    CHECK(Lire().substr(2000, 1000) == std::string(1000, 'c'));
}

TEST_CASE_FIXTURE(Scene, "Journal: one that another program has made in between is left alone") {
    Journal journal{disque, "x.LGD"};
    journal.Prendre(*base, Position{1}, 1000);
    disque.Poser("x.LOG", "of another");
    CHECK_FALSE(journal.Ecrire(10000));
    CHECK(disque.Octets("x.LOG") == "of another");
}

TEST_CASE_FIXTURE(Scene, "Journal: its name is safe before anything is overwritten") {
    Journal journal{disque, "x.LGD"};
    journal.Prendre(*base, Position{1}, 1000);
    REQUIRE(journal.Ecrire(10000));
    for (std::uint32_t graine = 1; graine <= 20; ++graine)
        CHECK(disque.CouperCourant(graine)->Octets("x.LOG") == disque.Octets("x.LOG"));
}

TEST_CASE_FIXTURE(Scene, "ExaminerJournal: it tells its base, its commit and the header") {
    CHECK_FALSE(ExaminerJournal(disque, "x.LOG").lisible);
    disque.Poser("x.LOG", NumVersChaine4(1) + std::string(1000, 'M'));
    const EtatJournal ancien = ExaminerJournal(disque, "x.LOG");
    CHECK(ancien.lisible);
    CHECK(ancien.base.empty());
    CHECK(ancien.enTete == std::string(200, 'M'));
    REQUIRE(disque.Supprimer("x.LOG"));
    Journal journal{disque, "d/x.LGD"};
    journal.Prendre(*base, Position{1}, 1000);
    REQUIRE(journal.Ecrire(10000));
    const EtatJournal etat = ExaminerJournal(disque, "d/x.LOG");
    CHECK(etat.base == "x.LGD");
    CHECK(etat.finCommise == 10000);
    CHECK(etat.enTete == std::string(200, 'a'));
}

TEST_CASE_FIXTURE(Scene, "Journal: one that cannot be read is told, whichever reading fails") {
    Journal journal{disque, "x.LGD"};
    journal.Prendre(*base, Position{1}, 2000);
    REQUIRE(journal.Ecrire(10000));
    const int avant = disque.lectures;
    REQUIRE(RejouerJournal(disque, "x.LOG", *base) == 2);
    const int lectures = disque.lectures - avant;
    REQUIRE(lectures > 0);
    for (int n = 1; n <= lectures; ++n) {
        disque.lectureRefusee = disque.lectures + n;
        CHECK(RejouerJournal(disque, "x.LOG", *base) == std::nullopt);
        disque.lectureRefusee = disque.lectures + n;
        CHECK_FALSE(ExaminerJournal(disque, "x.LOG").lisible);
    }
}

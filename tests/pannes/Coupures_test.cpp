// A realistic day on a base, cut at every operation on the disk in turn. Whatever the failure, the
// base opens again as one of its commits, whole: the last one that was answered, or, when the
// answer did not come any more, the one that was being made.
#include "doublures/DisqueMemoire.h"
#include "doublures/Inventaire.h"
#include "doublures/SeanceEssai.h"
#include "storage/Base.h"

#include <memory>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr const char* Chemin = "famille.LGD";
constexpr const char* CheminLog = "famille.LOG";

/// How a day goes: where the base is, and how much is done between two commits.
struct Plan {
    bool nouvelle;  ///< the day begins with a new base
    int nbCommits;
    int gestes;        ///< between two commits
    bool debordement;  ///< more blocks are dirty than may wait in memory
    std::uint32_t graine;
};

struct Journee {
    std::vector<std::string> etats;  ///< what the base says after each commit; "" before the first
    std::size_t confirmes = 0;       ///< commits that were answered with true
};

std::string Dire(Base& base) {
    return Inventaire{base}.Texte();
}

/// Little may wait in memory, and several blocks of a column are touched: some are overwritten
/// long before the commit.
void Deborder(Base& base, int tour) {
    base.volume.FixerTampons(1500, 9000);
    for (std::uint32_t n = 7; n <= 2100; n += 1000) {
        base.R_NAISS.EcrireCellule(NoOrdre{n}, std::to_string(1000 + tour));
        base.R_DECES.EcrireCellule(NoOrdre{n}, std::to_string(1100 + tour));
        base.R_PERE.EcrireCellule(NoOrdre{n}, NoOrdre{static_cast<std::uint32_t>(tour + 1)});
    }
}

/// Runs the day. With `dire`, the states are noted, which costs no operation that is counted.
Journee Vivre(DisqueMemoire& disque, const Plan& plan, bool dire) {
    ProgressionMuette muet;
    Journee journee;
    ResultatOuverture resultat =
        plan.nouvelle ? NouvelleBase(disque, Chemin, {}) : OuvrirBase(disque, Chemin, muet);
    if (dire) journee.etats.push_back(plan.nouvelle ? std::string{} : Dire(*resultat.base));
    if (!resultat.base) return journee;
    Base& base = *resultat.base;
    SeanceEssai seance{base, plan.graine};
    for (int c = 0; c < plan.nbCommits; ++c) {
        if (plan.debordement) Deborder(base, 2 * c);
        for (int g = 0; g < plan.gestes; ++g)
            seance.Agir();
        if (plan.debordement) Deborder(base, 2 * c + 1);
        const std::string etat = dire ? Dire(base) : std::string{};
        if (!base.Enregistrer()) return journee;
        // The dead answer nothing.
        if (disque.Mort()) return journee;
        ++journee.confirmes;
        if (dire) journee.etats.push_back(etat);
    }
    return journee;
}

/// What the base on `disque` says once it is opened again; "" when there is none yet.
std::string Relire(DisqueMemoire& disque) {
    ProgressionMuette muet;
    const ResultatOuverture resultat = OuvrirBase(disque, Chemin, muet);
    if (resultat.etat != Ouverture::Faite) return {};
    CHECK_FALSE(disque.Existe(CheminLog));
    return Dire(*resultat.base);
}

std::unique_ptr<DisqueMemoire> Preparer(const Plan& plan) {
    auto disque = std::make_unique<DisqueMemoire>();
    if (plan.nouvelle) return disque;
    const ResultatOuverture resultat = NouvelleBase(*disque, Chemin, {});
    SeanceEssai seance{*resultat.base, 77};
    for (int i = 0; i < 40; ++i)
        seance.Agir();
    if (plan.debordement) {
        resultat.base->FixerDernierIndividu(2100);
        Deborder(*resultat.base, 9);
    }
    REQUIRE(resultat.base->Enregistrer());
    return disque->Survivre();
}

bool Admis(const std::string& lu, const Journee& temoin, std::size_t confirmes, bool incertain) {
    if (lu == temoin.etats[confirmes]) return true;
    return incertain && confirmes + 1 < temoin.etats.size() && lu == temoin.etats[confirmes + 1];
}

/// Runs the plan once for each operation and failure. Answers how many runs that were.
int Couper(const Plan& plan) {
    const std::unique_ptr<DisqueMemoire> depart = Preparer(plan);
    const std::unique_ptr<DisqueMemoire> entier = depart->Survivre();
    const Journee temoin = Vivre(*entier, plan, true);
    REQUIRE(temoin.confirmes == static_cast<std::size_t>(plan.nbCommits));
    int essais = 0;
    for (int n = 1; n <= entier->operations; ++n)
        for (const Panne panne :
             {Panne::Refus, Panne::Plein, Panne::Dechirure, Panne::Arret, Panne::ArretDechire}) {
            CAPTURE(n);
            CAPTURE(static_cast<int>(panne));
            const std::unique_ptr<DisqueMemoire> disque = depart->Survivre();
            disque->panne = panne;
            disque->panneA = n;
            const Journee journee = Vivre(*disque, plan, false);
            const bool mort = disque->Mort();
            const std::unique_ptr<DisqueMemoire> apres = disque->Survivre();
            CHECK(Admis(Relire(*apres), temoin, journee.confirmes, mort));
            ++essais;
            // The same instant, with the current gone: what was not flushed may be there or not.
            for (std::uint32_t graine = 1; mort && graine <= 2; ++graine) {
                CAPTURE(graine);
                const auto coupe = disque->CouperCourant(graine * 1000 + static_cast<unsigned>(n));
                CHECK(Admis(Relire(*coupe), temoin, journee.confirmes, true));
                ++essais;
            }
        }
    return essais;
}

}  // namespace

TEST_CASE("Failures: a new base is nothing, or one of its commits") {
    CHECK(Couper({true, 6, 8, false, 1}) > 300);
}

TEST_CASE("Failures: an old base is always one of its commits") {
    int essais = 0;
    for (const std::uint32_t graine : {2U, 3U, 4U})
        essais += Couper({false, 8, 6, false, graine});
    CHECK(essais > 2000);
}

TEST_CASE("Failures: a transaction larger than memory keeps its promise too") {
    CHECK(Couper({false, 2, 4, true, 5}) > 300);
}

TEST_CASE("Failures: a replay that is cut itself is taken up again") {
    const Plan plan{false, 1, 12, false, 6};
    const std::unique_ptr<DisqueMemoire> depart = Preparer(plan);
    const Journee temoin = Vivre(*depart->Survivre(), plan, true);
    // Dies between the blocks and the header, so that the journal counts.
    const std::unique_ptr<DisqueMemoire> mort = depart->Survivre();
    mort->panne = Panne::ArretDechire;
    mort->panneA = 7;
    CHECK(Vivre(*mort, plan, false).confirmes == 0);
    REQUIRE(mort->Existe(CheminLog));
    const std::unique_ptr<DisqueMemoire> entier = mort->Survivre();
    CHECK(Relire(*entier) == temoin.etats[0]);
    for (int n = 1; n <= entier->operations; ++n)
        for (const Panne panne :
             {Panne::Refus, Panne::Dechirure, Panne::Arret, Panne::ArretDechire}) {
            CAPTURE(n);
            const std::unique_ptr<DisqueMemoire> disque = mort->Survivre();
            disque->panne = panne;
            disque->panneA = n;
            ProgressionMuette muet;
            (void)OuvrirBase(*disque, Chemin, muet);
            CHECK(Relire(*disque->Survivre()) == temoin.etats[0]);
            for (std::uint32_t graine = 1; graine <= 4; ++graine)
                CHECK(Relire(*disque->CouperCourant(graine)) == temoin.etats[0]);
        }
}

TEST_CASE("Failures: after a replay the file equals the last commit byte for byte up to its end") {
    const Plan plan{false, 1, 12, false, 8};
    const std::unique_ptr<DisqueMemoire> depart = Preparer(plan);
    const std::string avant = depart->Octets(Chemin);
    const std::unique_ptr<DisqueMemoire> entier = depart->Survivre();
    Vivre(*entier, plan, false);
    // The last two operations are the removal of the journal, which is the commit, and the flush
    // of the folder.
    for (int n = 1; n <= entier->operations - 1; ++n) {
        CAPTURE(n);
        const std::unique_ptr<DisqueMemoire> disque = depart->Survivre();
        disque->panne = Panne::ArretDechire;
        disque->panneA = n;
        Vivre(*disque, plan, false);
        const std::unique_ptr<DisqueMemoire> apres = disque->Survivre();
        Relire(*apres);
        CHECK(apres->Octets(Chemin).substr(0, avant.size()) == avant);
    }
}

// Times of what the windows of the family ask for. DORVANE_BENCH_LGD names the base.
#include "Banc.h"
#include "records/Choix.h"
#include "records/PositionNoms.h"
#include "records/RechercheNoms.h"

#include <benchmark/benchmark.h>

#include <vector>

using namespace dorvane;
using namespace dorvane::banc;

namespace {

/// Somebody born in the middle of the years of the base, for whom many fit.
NoOrdre Reference() {
    storage::Base& base = LeBanc().B();
    for (std::uint32_t n = base.entete.DernierIndividu / 2; n != 0; --n)
        if (base.R_NAISS.AnneeTri(NoOrdre{n}) > "1700") return NoOrdre{n};
    return NoOrdre{1};
}

void Page(benchmark::State& etat, const char* filtre) {
    const NoOrdre reference = Reference();
    for (auto _ : etat) {
        records::Choix choix{LeBanc().session,
                             {records::SorteChoix::Parent, reference, Sexe::Homme}};
        choix.Filtrer(filtre);
        benchmark::DoNotOptimize(choix.Page().size());
    }
}
// The second one reads the whole table: nobody bears the name.
BENCHMARK_CAPTURE(Page, premiere, "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Page, sansReponse, "ZZZZ")->Unit(benchmark::kMillisecond);

void ChoixDeLien(benchmark::State& etat) {
    const NoOrdre reference = Reference();
    for (auto _ : etat) {
        records::Choix choix{LeBanc().session, {records::SorteChoix::Lien, reference, Sexe::Vide}};
        choix.LeverFenetre(true);
        choix.Filtrer("ZZZZ");
        benchmark::DoNotOptimize(choix.Page().size());
    }
}
BENCHMARK(ChoixDeLien)->Unit(benchmark::kMillisecond);

void RechercherUnNom(benchmark::State& etat, const char* texte) {
    Banc& banc = LeBanc();
    std::size_t trouves = 0;
    for (auto _ : etat) {
        records::RechercheNoms recherche{banc.session};
        records::Rechercher(recherche, banc.session, texte, false, [] {});
        trouves = recherche.Resultat().size();
        benchmark::DoNotOptimize(trouves);
    }
    etat.counters["found"] = static_cast<double>(trouves);
}
BENCHMARK_CAPTURE(RechercherUnNom, peu, "zzzz")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RechercherUnNom, beaucoup, "a")->Unit(benchmark::kMillisecond);

void PlaceDunNom(benchmark::State& etat) {
    storage::Base& base = LeBanc().B();
    std::vector<NoOrdre> tous;
    for (const std::uint16_t n : base.R_TRI.individus.Numeros())
        tous.emplace_back(n);
    for (auto _ : etat)
        benchmark::DoNotOptimize(records::PositionDans(
            base, tous.size(), [&tous](std::size_t i) { return tous[i]; }, "MARTIN"));
}
BENCHMARK(PlaceDunNom)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

// Times of the care of a base, beside the machine's own limit: a plain copy of the file, flushed.
// DORVANE_BENCH_LGD names the base.
#include "Banc.h"
#include "records/ControleBase.h"
#include "records/Depannage.h"
#include "storage/Reorganiser.h"

#include <benchmark/benchmark.h>

using namespace dorvane;
using namespace dorvane::banc;

namespace {

void CopieSimple(benchmark::State& etat) {
    Banc& banc = LeBanc();
    for (auto _ : etat)
        if (!banc.disque.Copier(banc.session.CheminBase, banc.dossier / "copie")) std::abort();
}
BENCHMARK(CopieSimple)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void Reorganiser(benchmark::State& etat) {
    Banc& banc = LeBanc();
    storage::BilanReorganisation bilan;
    for (auto _ : etat) {
        storage::ProgressionMuette muet;
        bilan = storage::ReorganiserVers(banc.disque, banc.B(), banc.dossier / "Reorg.fic", muet);
        if (bilan.issue != storage::IssueReorganisation::Faite) std::abort();
    }
    etat.counters["bytes"] = static_cast<double>(bilan.tailleApres);
}
BENCHMARK(Reorganiser)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void Controler(benchmark::State& etat) {
    Banc& banc = LeBanc();
    std::uint32_t constats = 0;
    for (auto _ : etat)
        constats = records::ControlerBase(banc.session, [](const records::Constat& constat) {
                       benchmark::DoNotOptimize(constat.sorte);
                   }).constats;
    etat.counters["findings"] = constats;
}
BENCHMARK(Controler)->Unit(benchmark::kMillisecond);

void Depanner(benchmark::State& etat) {
    Banc& banc = LeBanc();
    records::BilanDepannage bilan;
    for (auto _ : etat)
        bilan = records::DepannerBase(banc.session, false);
    if (!bilan.complet) std::abort();
    etat.counters["repairs"] = bilan.reparations;
}
BENCHMARK(Depanner)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

// Time of a redraw of the family chart. DORVANE_BENCH_LGD names the base.
#include <QApplication>
#include <QPixmap>

#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "windows/FrmDebut.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <random>

using namespace dorvane;

namespace {

/// Persons who have five generations above them, found by walking up from the last ones.
bool AAssezDAscendants(storage::Base& base, NoOrdre n, int generations) {
    for (int g = 0; g < generations && n; ++g)
        n = base.R_PERE.LireCellule(n);
    return static_cast<bool>(n);
}

void Redessiner(benchmark::State& etat) {
    const char* source = std::getenv("DORVANE_BENCH_LGD");
    if (source == nullptr) std::abort();
    doublures::SessionEssai essai;
    std::filesystem::copy_file(source, essai.dossier / "banc.LGD");
    shell::Demarrage(essai.session);
    shell::MnuOuvrir(essai.session, essai.dossier / "banc.LGD");
    storage::Base& base = *essai.session.base;

    windows::FrmDebut schema{essai.session, nullptr};
    schema.resize(1280, 800);
    schema.Glisser(false);
    schema.ChangerGenerations({5, 5});
    schema.show();
    std::mt19937 hasard{1};
    std::uniform_int_distribution<std::uint32_t> tirer{1, base.entete.DernierIndividu};
    std::size_t cases = 0;
    for (auto _ : etat) {
        etat.PauseTiming();
        NoOrdre n{tirer(hasard)};
        for (int essais = 0; essais < 1000 && !AAssezDAscendants(base, n, 5); ++essais)
            n = NoOrdre{tirer(hasard)};
        essai.session.PersonneEnCours = n;
        etat.ResumeTiming();
        schema.Actualiser();
        benchmark::DoNotOptimize(schema.viewport()->grab());
        cases += schema.Cases().size();
    }
    etat.counters["boxes"] = static_cast<double>(cases) / static_cast<double>(etat.iterations());
}
BENCHMARK(Redessiner)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int nombre, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{nombre, arguments};
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

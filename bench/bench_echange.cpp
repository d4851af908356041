// Times of exports, beside what the machine itself needs: reading the file of the base and writing
// as many bytes as the export has. DORVANE_BENCH_LGD names the base.
#include "Banc.h"
#include "interchange/commun/SelectionExport.h"
#include "interchange/gedcom/ExportGedcom.h"
#include "interchange/lgr/EcrireLgr.h"
#include "shell/FichierSur.h"

#include <benchmark/benchmark.h>

#include <string>

using namespace dorvane;
using namespace dorvane::banc;

namespace {

using interchange::JeuExport;

std::string Composer(JeuExport jeu) {
    interchange::OptionsGedcom options;
    options.jeu = jeu;
    std::string octets;
    interchange::ComptesExport comptes;
    if (!interchange::ComposerGedcom(LeBanc().session, "x.ged", options, octets, comptes))
        std::abort();
    return octets;
}

/// Reads the base and writes that many bytes: no export can be faster.
void Limite(benchmark::State& etat, JeuExport jeu) {
    Banc& banc = LeBanc();
    const std::string ecrits(Composer(jeu).size(), 'x');
    for (auto _ : etat) {
        const auto lus = shell::LireTout(banc.dossier / "banc.LGD");
        benchmark::DoNotOptimize(lus);
        if (!lus || !shell::EcrireTout(banc.dossier / "limite.ged", ecrits)) std::abort();
    }
    etat.counters["bytes"] = static_cast<double>(ecrits.size());
}
BENCHMARK_CAPTURE(Limite, ansi, JeuExport::Ansi)->Unit(benchmark::kMillisecond);

void Exporter(benchmark::State& etat, JeuExport jeu) {
    Banc& banc = LeBanc();
    interchange::OptionsGedcom options;
    options.jeu = jeu;
    for (auto _ : etat) {
        // As after opening: nothing is read ahead.
        banc.B().InitColonnes();
        const auto resultat =
            interchange::ExporterGedcom(banc.session, banc.dossier / "x.ged", options);
        if (resultat.issue.cause != shell::Cause::Fait) std::abort();
        etat.counters["persons"] = resultat.comptes.individus;
    }
}
BENCHMARK_CAPTURE(Exporter, ansi, JeuExport::Ansi)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exporter, ansel, JeuExport::Ansel)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exporter, html, JeuExport::Html)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exporter, utf8, JeuExport::Utf8)->Unit(benchmark::kMillisecond);

void ExporterTexteDEchange(benchmark::State& etat) {
    Banc& banc = LeBanc();
    for (auto _ : etat) {
        banc.B().InitColonnes();
        if (!interchange::ExporterLgr(banc.session, banc.dossier / "x.lgr", {}).issue) std::abort();
    }
}
BENCHMARK(ExporterTexteDEchange)->Unit(benchmark::kMillisecond);

/// From the person with the most ancestors or descendants among a few.
void Selectionner(benchmark::State& etat, interchange::SensExport sens) {
    storage::Base& base = LeBanc().B();
    interchange::SelectionExport selection{base};
    NoOrdre depart{1};
    std::uint32_t plus = 0;
    for (std::uint32_t n = 1; n <= base.entete.DernierIndividu;
         n += 1 + base.entete.DernierIndividu / 200) {
        selection.Vider();
        selection.MarquerParente(NoOrdre{n}, sens, interchange::GenerationsParDefaut);
        if (selection.NbRetenus() <= plus) continue;
        plus = selection.NbRetenus();
        depart = NoOrdre{n};
    }
    for (auto _ : etat) {
        selection.Vider();
        selection.MarquerParente(depart, sens, interchange::GenerationsParDefaut);
    }
    etat.counters["persons"] = plus;
}
BENCHMARK_CAPTURE(Selectionner, ascendants, interchange::SensExport::Ascendants)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Selectionner, descendants, interchange::SensExport::Descendants)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

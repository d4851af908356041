// Times of a redraw of the family chart and of the person sheet. DORVANE_BENCH_LGD names the base.
#include <QApplication>
#include <QPixmap>

#include "doublures/SessionEssai.h"
#include "records/AccordEvenements.h"
#include "records/Fiche.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/graphe/FrmDebut.h"

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

/// A session on a copy of the base.
struct Copie : doublures::SessionEssai {
    Copie() {
        const char* source = std::getenv("DORVANE_BENCH_LGD");
        if (source == nullptr) std::abort();
        std::filesystem::copy_file(source, dossier / "banc.LGD");
        shell::Demarrage(session);
        shell::MnuOuvrir(session, dossier / "banc.LGD");
    }
};

void Redessiner(benchmark::State& etat) {
    Copie essai;
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

/// Turns the sheet to persons at random: fields, relatives, events, documents, painting.
void OuvrirLaFiche(benchmark::State& etat) {
    Copie essai;
    windows::FrmMisajour fiche{essai.session, nullptr};
    fiche.show();
    std::mt19937 hasard{1};
    std::uniform_int_distribution<std::uint32_t> tirer{1,
                                                       essai.session.base->entete.DernierIndividu};
    for (auto _ : etat) {
        if (!fiche.Ouvrir(NoOrdre{tirer(hasard)})) std::abort();
        benchmark::DoNotOptimize(fiche.grab());
    }
}
BENCHMARK(OuvrirLaFiche)->Unit(benchmark::kMillisecond);

/// The same with the window made anew: the first opening.
void FaireLaFiche(benchmark::State& etat) {
    Copie essai;
    for (auto _ : etat) {
        windows::FrmMisajour fiche{essai.session, nullptr};
        fiche.show();
        if (!fiche.Ouvrir(NoOrdre{12345})) std::abort();
        benchmark::DoNotOptimize(fiche.grab());
    }
}
BENCHMARK(FaireLaFiche)->Unit(benchmark::kMillisecond);

/// A change of surname on the sheet: name line, sort table, keyword line and word index.
void ChangerUnNom(benchmark::State& etat) {
    Copie essai;
    std::mt19937 hasard{1};
    std::uniform_int_distribution<std::uint32_t> tirer{1,
                                                       essai.session.base->entete.DernierIndividu};
    int tour = 0;
    for (auto _ : etat) {
        records::SaisieFiche saisie = records::ChargerFiche(essai.session, NoOrdre{tirer(hasard)});
        saisie.nom = "Nom" + std::to_string(++tour);
        if (records::ValiderFiche(essai.session, saisie).EstRefusee()) std::abort();
    }
}
BENCHMARK(ChangerUnNom)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int nombre, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{nombre, arguments};
    benchmark::Initialize(&nombre, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

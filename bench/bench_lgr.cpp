// Exchange texts of a large base: written, made a base of, merged in. DORVANE_BENCH_LGD names the
// base.
#include "Banc.h"
#include "interchange/lgr/EcrireLgr.h"
#include "interchange/lgr/ImportLgr.h"
#include "interchange/lgr/LireLgr.h"
#include "shell/FichierSur.h"
#include "storage/Base.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

using namespace dorvane;
using namespace dorvane::banc;

namespace {

const std::string& Texte() {
    static const std::string Octets = [] {
        std::string octets;
        interchange::ComptesExport comptes;
        if (!interchange::ComposerLgr(LeBanc().session, {}, octets, comptes)) std::abort();
        return octets;
    }();
    return Octets;
}

/// What an export is measured by: the base read once, and as many bytes written.
void LireEtEcrireAutant(benchmark::State& etat) {
    storage::Base& base = LeBanc().B();
    const std::string& octets = Texte();
    for (auto _ : etat) {
        std::size_t somme = 0;
        for (std::uint32_t n = 1; n <= base.entete.DernierIndividu; ++n) {
            const NoOrdre i{n};
            somme += base.R_NOM.LireTexte(i).size() + base.R_TEXTE.LireTexte(i).size() +
                     base.R_NAISS.LireCellule(i).size() + base.R_PERE.LireCellule(i).valeur;
        }
        benchmark::DoNotOptimize(somme);
        if (!shell::EcrireTout(LeBanc().dossier / "autant.lgr", octets)) std::abort();
    }
    etat.counters["bytes"] = static_cast<double>(octets.size());
}
BENCHMARK(LireEtEcrireAutant)->Unit(benchmark::kMillisecond);

void Exporter(benchmark::State& etat) {
    for (auto _ : etat)
        if (!interchange::ExporterLgr(LeBanc().session, LeBanc().dossier / "sortie.lgr", {}).issue)
            std::abort();
}
BENCHMARK(Exporter)->Unit(benchmark::kMillisecond);

void Lire(benchmark::State& etat) {
    for (auto _ : etat) {
        std::string octets = Texte();
        interchange::ContenuLgr contenu;
        interchange::PreparationLgr preparation;
        if (interchange::LireLgr(octets, contenu, preparation, [](auto, auto) { return true; }) !=
            interchange::LectureLgr::Faite)
            std::abort();
        benchmark::DoNotOptimize(contenu.individus.size());
    }
}
BENCHMARK(Lire)->Unit(benchmark::kMillisecond);

void Importer(benchmark::State& etat) {
    for (auto _ : etat) {
        interchange::RapportImport rapport;
        if (!interchange::ImporterOctetsLgr(LeBanc().session, Texte(), "import.lgr",
                                            LeBanc().dossier / "import.LGD", rapport))
            std::abort();
    }
}
BENCHMARK(Importer)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

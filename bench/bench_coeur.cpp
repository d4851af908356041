// Times inside one process, on a base made by an import. DORVANE_BENCH_LGD names the base.
#include "Banc.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/Numerotation.h"
#include "storage/Base.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <random>

using namespace dorvane;
using namespace dorvane::banc;

namespace {

void OuvrirEtPremierePage(benchmark::State& etat) {
    Banc& banc = LeBanc();
    const std::filesystem::path chemin = banc.dossier / "page.LGD";
    std::filesystem::copy_file(std::getenv("DORVANE_BENCH_LGD"), chemin,
                               std::filesystem::copy_options::overwrite_existing);
    storage::ProgressionMuette muet;
    for (auto _ : etat) {
        const storage::ResultatOuverture ouverte = storage::OuvrirBase(banc.disque, chemin, muet);
        std::size_t octets = 0;
        for (std::uint32_t rang = 1; rang <= 50; ++rang) {
            const NoOrdre n = ouverte.base->R_TRI.IndividuAuRang(rang);
            octets += ouverte.base->R_NOM.LireTexte(n).size();
            octets += ouverte.base->R_NAISS.LireCellule(n).size();
        }
        benchmark::DoNotOptimize(octets);
    }
}
BENCHMARK(OuvrirEtPremierePage)->Unit(benchmark::kMillisecond);

void ParcourirTous(benchmark::State& etat) {
    storage::Base& base = LeBanc().B();
    for (auto _ : etat) {
        std::size_t somme = 0;
        for (std::uint32_t n = 1; n <= base.entete.DernierIndividu; ++n) {
            const NoOrdre i{n};
            somme += base.R_NOM.LireNom(i).nom.size() + base.R_NAISS.LireCellule(i).size() +
                     base.R_PERE.LireCellule(i).valeur + base.R_MERE.LireCellule(i).valeur;
        }
        benchmark::DoNotOptimize(somme);
    }
}
BENCHMARK(ParcourirTous)->Unit(benchmark::kMillisecond);

void NomsAuHasard(benchmark::State& etat) {
    Banc& banc = LeBanc();
    std::mt19937 hasard{1};
    std::uniform_int_distribution<std::uint32_t> tirer{1, banc.B().entete.DernierIndividu};
    for (auto _ : etat) {
        std::size_t somme = 0;
        for (int i = 0; i < 10000; ++i)
            somme += records::NomAffiche(banc.session, NoOrdre{tirer(hasard)}).size();
        benchmark::DoNotOptimize(somme);
    }
}
BENCHMARK(NomsAuHasard)->Unit(benchmark::kMillisecond);

void Numeroter(benchmark::State& etat) {
    Banc& banc = LeBanc();
    shell::DeCujus& deCujus = banc.session.deCujus[0];
    // The largest family among many persons: most have only a few numbered relatives.
    NoOrdre plusGrande{};
    std::size_t taille = 0;
    for (std::uint32_t n = 1; n <= banc.B().entete.DernierIndividu; n += 97) {
        deCujus.individu = NoOrdre{n};
        shell::NumeroterDeCujus(banc.session, 1);
        const std::size_t nombre = deCujus.numerosAsc.size() + deCujus.numerosDesc.size();
        if (nombre > taille) plusGrande = deCujus.individu;
        taille = std::max(taille, nombre);
    }
    deCujus.individu = plusGrande;
    for (auto _ : etat)
        shell::NumeroterDeCujus(banc.session, 1);
    etat.counters["numbered"] = static_cast<double>(taille);
}
BENCHMARK(Numeroter)->Unit(benchmark::kMillisecond);

void ModifierEtEnregistrer(benchmark::State& etat) {
    storage::Base& base = LeBanc().B();
    std::uint32_t n = 1;
    for (auto _ : etat) {
        n = n % base.entete.DernierIndividu + 1;
        base.R_NAISS.EcrireCellule(NoOrdre{n}, "1801");
        base.R_NOM.EcrireNom(NoOrdre{n}, "Dupont;Jean;;;");
        if (!base.Enregistrer()) std::abort();
    }
}
BENCHMARK(ModifierEtEnregistrer)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

// links: interchange_commandes interchange_communes
// Any bytes as a survey: cut, examined, written into a base on a disk in memory, and read again.
// The first byte chooses the kind.
#include "doublures/Coherence.h"
#include "doublures/SessionMemoire.h"
#include "interchange/communes/CsvCommunes.h"
#include "interchange/releves/ImportReleve.h"
#include "storage/Base.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

using namespace dorvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    if (taille == 0) return 0;
    const std::string_view fichier{reinterpret_cast<const char*>(octets) + 1, taille - 1};
    (void)interchange::LireCsvCommunes(fichier);

    doublures::SessionMemoire poste;
    shell::Session& session = poste.session;
    const auto sorte = static_cast<interchange::SorteReleve>(octets[0] % 4);
    const interchange::Releve releve = interchange::LireReleve(fichier, sorte);
    const interchange::RapportReleve prevu = interchange::ExaminerReleve(session, releve);
    interchange::RapportReleve rapport;
    if (!interchange::ImporterReleve(session, releve, "actes.csv", "/essai.LGD", rapport))
        std::abort();
    if (prevu.individus != rapport.individus || prevu.constats.size() != rapport.constats.size())
        std::abort();
    storage::ProgressionMuette progression;
    storage::ResultatOuverture ouverte =
        storage::OuvrirBase(poste.disque, "/essai.LGD", progression);
    if (ouverte.etat != storage::Ouverture::Faite) std::abort();
    if (const std::string ecarts = doublures::Ecarts(*ouverte.base); !ecarts.empty()) {
        std::puts(ecarts.c_str());
        std::abort();
    }
    return 0;
}

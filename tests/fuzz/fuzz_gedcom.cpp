// links: interchange_commandes interchange_communes
// Any bytes as a GEDCOM file: imported on a disk in memory, opened again and read through. The
// first byte chooses whether the persons are sorted.
#include "doublures/SessionMemoire.h"
#include "interchange/gedcom/ImportGedcom.h"
#include "storage/Base.h"
#include "storage/Slots.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string_view>

using namespace dorvane;

namespace {

void Parcourir(storage::Base& base) {
    for (std::uint32_t n = 1; n <= base.entete.DernierIndividu; ++n) {
        const NoOrdre individu{n};
        (void)base.R_NOM.LireNom(individu);
        (void)storage::NoteDe(base, individu);
        (void)storage::SlotsDe(base, individu);
        (void)base.R_ENFANT.Elements(individu);
        if (base.entete.TypeTri != TypeTri::Creation && base.R_TRI.RangIndividu(individu) == 0)
            std::abort();
    }
    for (std::uint32_t e = 1; e <= base.entete.DernierEvenement; ++e)
        (void)base.R_EVT.Liens(NoEvenement{e});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    if (taille == 0) return 0;
    doublures::SessionMemoire poste;
    shell::Session& session = poste.session;
    if (octets[0] % 2 == 0) poste.dialogue.reponses = {shell::Reponse::Oui};

    const std::string_view fichier{reinterpret_cast<const char*>(octets) + 1, taille - 1};
    interchange::RapportImport rapport;
    const auto issue =
        interchange::ImporterTexte(session, std::string{fichier}, "/essai.LGD", rapport);
    if (!issue) return 0;
    storage::ProgressionMuette progression;
    storage::ResultatOuverture ouverte =
        storage::OuvrirBase(poste.disque, "/essai.LGD", progression);
    if (ouverte.etat != storage::Ouverture::Faite) std::abort();
    if (ouverte.base->entete.DernierIndividu != rapport.individus) std::abort();
    Parcourir(*ouverte.base);
    return 0;
}

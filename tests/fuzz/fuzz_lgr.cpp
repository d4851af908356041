// links: interchange_commandes interchange_communes
// Any bytes as an exchange text: made a new base of on a disk in memory, opened again, read
// through, written and read once more. The first byte chooses the version where the text has none.
#include "doublures/SessionMemoire.h"
#include "interchange/lgr/EcrireLgr.h"
#include "interchange/lgr/ImportLgr.h"
#include "storage/Base.h"
#include "storage/Slots.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

using namespace dorvane;

namespace {

std::string AvecVersion(const std::uint8_t* octets, std::size_t taille) {
    constexpr std::array<std::string_view, 7> Versions{"2.0",  "3.0",  "3.1", "97.0",
                                                       "97.1", "97.2", "99.0"};
    std::string texte{reinterpret_cast<const char*>(octets) + 1, taille - 1};
    if (texte.starts_with("[Dorvane")) return texte;
    return "[Dorvane Version " + std::string{Versions[octets[0] % Versions.size()]} + "]\r\n" +
           texte;
}

void Verifier(storage::Base& base) {
    for (std::uint32_t n = 1; n <= base.entete.DernierIndividu; ++n) {
        const NoOrdre individu{n};
        (void)base.R_NOM.LireNom(individu);
        (void)storage::NoteDe(base, individu);
        (void)storage::SlotsDe(base, individu);
        if (base.R_ENFANT.NbElements(individu) > 200 || base.R_MARIAG.NbElements(individu) > 200)
            std::abort();
        for (const NoOrdre enfant : base.R_ENFANT.Elements(individu))
            if (base.R_PERE.LireCellule(enfant) != individu &&
                base.R_MERE.LireCellule(enfant) != individu)
                std::abort();
        for (std::size_t k = 1; k <= base.R_LIEN.NbElements(individu); ++k)
            if (base.R_LIEN.ElementListe(individu, k).valeur > base.entete.DernierIndividu)
                std::abort();
    }
    if (base.entete.TypeTri != TypeTri::Creation)
        for (const std::uint16_t n : base.R_TRI.individus.Numeros())
            if (base.R_TRI.RangIndividu(NoOrdre{n}) == 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    if (taille == 0) return 0;
    doublures::SessionMemoire poste;
    shell::Session& session = poste.session;

    interchange::RapportImport rapport;
    const auto issue = interchange::ImporterOctetsLgr(session, AvecVersion(octets, taille),
                                                      "essai.lgr", "/essai.LGD", rapport);
    if (!issue) return 0;
    storage::ProgressionMuette progression;
    storage::ResultatOuverture ouverte =
        storage::OuvrirBase(poste.disque, "/essai.LGD", progression);
    if (ouverte.etat != storage::Ouverture::Faite) std::abort();
    if (ouverte.base->entete.NbTriIndividus != rapport.individus) std::abort();
    Verifier(*ouverte.base);

    // What was taken over comes back from our own text of it.
    session.PoserBase(std::move(ouverte.base));
    std::string texte;
    interchange::ComptesExport comptes;
    if (!interchange::ComposerLgr(session, {}, texte, comptes)) std::abort();
    session.PoserBase(nullptr);
    interchange::RapportImport second;
    if (!interchange::ImporterOctetsLgr(session, texte, "encore.lgr", "/encore.LGD", second) ||
        second.individus != rapport.individus || second.evenements != rapport.evenements ||
        second.documents != rapport.documents || !second.finTrouvee)
        std::abort();
    return 0;
}

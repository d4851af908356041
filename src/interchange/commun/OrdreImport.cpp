#include "interchange/commun/OrdreImport.h"

#include "shell/Session.h"
#include "storage/Base.h"

#include <algorithm>
#include <string>

namespace dorvane::interchange {

bool SontTries(storage::FournisseurNoms& noms, std::span<const NoOrdre> ordre, TypeTri typeTri,
               const ReglesNoms& regles) {
    if (typeTri == TypeTri::Creation) return std::ranges::is_sorted(ordre);
    std::string avant;
    std::string cle;
    for (const NoOrdre n : ordre) {
        const storage::ElementTri e = noms.ElementDe(n);
        cle.clear();
        CleTriDans(cle, e.nom, e.prenom, e.annee, typeTri, regles);
        if (cle < avant) return false;
        avant.swap(cle);
    }
    return true;
}

bool TrierImport(shell::Session& session, storage::Base& base, storage::FournisseurNoms& noms) {
    session.progression.Phase(Litteral("Tri de la base"));
    return base.R_TRI.TrierIndividus(noms, session.progression);
}

bool IndexerImport(shell::Session& session, storage::Base& base, std::span<const NoMotCle> types,
                   storage::FournisseurTextes& textes) {
    if (!types.empty())
        session.progression.Phase(Litteral(base.motsCles.LibelleType(types[0]).libelle));
    return storage::ConstruireIndex(base, types, textes, session.progression);
}

}  // namespace dorvane::interchange

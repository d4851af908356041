#include "interchange/commun/OrdreImport.h"

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

}  // namespace dorvane::interchange

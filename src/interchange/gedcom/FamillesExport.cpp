#include "interchange/gedcom/FamillesExport.h"

#include "storage/Base.h"

#include <algorithm>

namespace dorvane::interchange {

namespace {

/// The first union of the father that is one of the mother's too; 0 for none.
NoMariage UnionCommune(storage::Base& base, NoOrdre pere, NoOrdre mere) {
    const std::vector<NoMariage> delle = base.R_MARIAG.Elements(mere);
    for (const NoMariage m : base.R_MARIAG.Elements(pere))
        if (m.valeur <= base.entete.DernierMariage && std::ranges::find(delle, m) != delle.end())
            return m;
    return {};
}

/// A parent whom the base has; 0 for a number past its last person.
NoOrdre Parent(const storage::Base& base, NoOrdre parent) {
    return parent.valeur <= base.entete.DernierIndividu ? parent : NoOrdre{};
}

}  // namespace

FamillesExport FormerFamilles(storage::Base& base) {
    FamillesExport formees;
    formees.derniereUnion = base.entete.DernierMariage;
    formees.familles.resize(formees.derniereUnion + 1ULL);
    formees.familleDeLEnfant.resize(base.entete.DernierIndividu + 1ULL);
    for (std::uint32_t m = 1; m <= formees.derniereUnion; ++m) {
        formees.familles[m].epoux = base.R_EPOUX.LireCellule(NoMariage{m});
        formees.familles[m].epouse = base.R_EPOUSE.LireCellule(NoMariage{m});
    }
    for (std::uint32_t rang = 1; rang <= base.entete.NbTriIndividus; ++rang) {
        const NoOrdre n = base.R_TRI.IndividuAuRang(rang);
        if (n.valeur > base.entete.DernierIndividu) continue;
        const NoOrdre pere = Parent(base, base.R_PERE.LireCellule(n));
        const NoOrdre mere = Parent(base, base.R_MERE.LireCellule(n));
        if (!pere && !mere) continue;
        std::uint32_t famille = 0;
        if (pere && mere) famille = UnionCommune(base, pere, mere).valeur;
        if (famille == 0) {
            famille = static_cast<std::uint32_t>(formees.familles.size());
            formees.familles.push_back({pere, mere, {}});
        }
        formees.familles[famille].enfants.push_back(n);
        formees.familleDeLEnfant[n.valeur] = famille;
    }
    return formees;
}

}  // namespace dorvane::interchange

#include "storage/Famille.h"

#include "storage/Base.h"

namespace dorvane::storage {

NoOrdre LireParent(Base& base, NoOrdre enfant, Cote cote) {
    return (cote == Cote::Pere ? base.R_PERE : base.R_MERE).LireCellule(enfant);
}

std::array<NoOrdre, 2> ParentsDe(Base& base, NoOrdre enfant) {
    return {base.R_PERE.LireCellule(enfant), base.R_MERE.LireCellule(enfant)};
}

NoOrdre PartenaireDe(Base& base, NoOrdre individu, NoMariage mariage) {
    const NoOrdre epoux = base.R_EPOUX.LireCellule(mariage);
    return epoux == individu ? base.R_EPOUSE.LireCellule(mariage) : epoux;
}

std::vector<Couple> CouplesDe(Base& base, NoOrdre individu) {
    const std::vector<NoMariage> mariages = base.R_MARIAG.Elements(individu);
    std::vector<Couple> couples;
    couples.reserve(mariages.size());
    for (const NoMariage mariage : mariages)
        couples.push_back({mariage, PartenaireDe(base, individu, mariage)});
    return couples;
}

}  // namespace dorvane::storage

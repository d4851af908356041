#include "records/Famille.h"

#include "storage/Base.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace dorvane::records {

NoMariage UnionDe(storage::Base& base, NoOrdre a, NoOrdre b) {
    if (!a || !b) return {};
    for (const NoMariage mariage : base.R_MARIAG.Elements(a))
        if (PartenaireDe(base, a, mariage) == b) return mariage;
    return {};
}

bool Existe(storage::Base& base, NoOrdre individu) {
    if (!individu || individu.valeur > base.entete.DernierIndividu) return false;
    // Who was taken away has no name line; neither has a person without a name, who is rare.
    return !base.R_NOM.LireTexte(individu).empty() || base.R_TRI.RangIndividu(individu) != 0;
}

NoOrdre VoisinDansLOrdre(const storage::Base& base, NoOrdre individu, int pas) {
    const std::vector<std::uint16_t>& numeros = base.R_TRI.individus.Numeros();
    const auto place = std::find(numeros.begin(), numeros.end(), individu.valeur);
    if (!individu || place == numeros.end()) return {};
    const auto rang = static_cast<std::size_t>(place - numeros.begin());
    if (pas < 0) return rang == 0 ? NoOrdre{} : NoOrdre{numeros[rang - 1]};
    return rang + 1 == numeros.size() ? NoOrdre{} : NoOrdre{numeros[rang + 1]};
}

}  // namespace dorvane::records

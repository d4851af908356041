#include "records/PositionNoms.h"

#include "storage/Base.h"
#include "values/Annees.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <string>

namespace dorvane::records {

std::size_t PositionDans(storage::Base& base, const std::vector<NoOrdre>& personnes,
                         std::string_view texte) {
    texte = SansBlancs(texte);
    const bool parAnnee = base.entete.TypeTri == TypeTri::Naissance;
    if (personnes.empty() || texte.empty() || (!parAnnee && base.entete.TypeTri != TypeTri::Nom))
        return 0;
    // Both keys begin with what is looked for: the year, or the folded name.
    const QuatreOctets annee = AnneeTri(texte);
    const std::string cherche = parAnnee ? std::string{TexteDe(annee)} : Replie(texte);
    const auto place = std::partition_point(
        personnes.begin(), personnes.end(),
        [&base, &cherche](NoOrdre n) { return base.R_TRI.CleDe(n) < cherche; });
    return static_cast<std::size_t>(std::min(place, personnes.end() - 1) - personnes.begin());
}

}  // namespace dorvane::records

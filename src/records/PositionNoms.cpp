#include "records/PositionNoms.h"

#include "storage/Base.h"
#include "values/Annees.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <ranges>
#include <string>

namespace dorvane::records {

std::size_t PositionDans(storage::Base& base, std::size_t nombre,
                         const std::function<NoOrdre(std::size_t)>& personne,
                         std::string_view texte) {
    texte = SansBlancs(texte);
    if (nombre == 0 || texte.empty() || !AUneCle(base.entete.TypeTri)) return 0;
    const bool parAnnee = base.entete.TypeTri == TypeTri::Naissance;
    // Both keys begin with what is looked for: the year, or the folded name.
    const QuatreOctets annee = AnneeTri(texte);
    const std::string cherche = parAnnee ? std::string{TexteDe(annee)} : Replie(texte);
    const auto indices = std::views::iota(std::size_t{0}, nombre);
    const auto place = std::ranges::partition_point(
        indices, [&](std::size_t i) { return base.R_TRI.CleDe(personne(i)) < cherche; });
    return place == indices.end() ? nombre - 1 : *place;
}

}  // namespace dorvane::records

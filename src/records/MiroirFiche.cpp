#include "records/MiroirFiche.h"

#include "values/Comparaison.h"
#include "values/SortesEvenement.h"

namespace dorvane::records {

namespace {

constexpr std::size_t TailleAnnee = 4;

}  // namespace

MiroirFiche MiroirDe(std::string_view type, std::string_view role) {
    if (role == role::Enfant) {
        if (type == tag::Naissance) return MiroirFiche::Naissance;
        if (type == tag::Bapteme) return MiroirFiche::Bapteme;
    }
    if (role == role::Defunt) {
        if (type == tag::Deces) return MiroirFiche::Deces;
        if (type == tag::Inhumation) return MiroirFiche::Inhumation;
    }
    if (type == tag::Mariage && (role == role::Epoux || role == role::Epouse))
        return MiroirFiche::Mariage;
    return MiroirFiche::Aucun;
}

DateCoupee CouperDate(std::string_view date) {
    if (date.size() <= TailleAnnee) return {{}, std::string{SansBlancs(date)}};
    const std::size_t coupe = date.size() - TailleAnnee;
    return {std::string{SansBlancs(date.substr(0, coupe))},
            std::string{SansBlancs(date.substr(coupe))}};
}

}  // namespace dorvane::records

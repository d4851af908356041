#include "records/FamilleEnMemoire.h"

#include "values/Comparaison.h"
#include "values/Octets.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace dorvane::records {
namespace {

std::optional<std::int32_t> Nombre(std::string_view texte) {
    texte = SansBlancs(texte);
    if (!EstNumerique(texte)) return std::nullopt;
    if (texte.front() == '+') texte.remove_prefix(1);
    std::int32_t nombre = 0;
    std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
    return nombre;
}

template <class Colonne, class Numero>
std::vector<std::uint16_t> Numeros(Colonne& colonne, Numero dernier) {
    std::vector<std::uint16_t> numeros(dernier.valeur + 1ULL);
    for (Numero n{1}; n.valeur <= dernier.valeur; ++n.valeur)
        numeros[n.valeur] = static_cast<std::uint16_t>(colonne.LireCellule(n).valeur);
    return numeros;
}

template <class Colonne, class Numero>
std::vector<AnneeLue> Annees(Colonne& colonne, Numero dernier,
                             QuatreOctets (*forme)(std::string_view)) {
    std::vector<AnneeLue> annees(dernier.valeur + 1ULL);
    for (Numero n{1}; n.valeur <= dernier.valeur; ++n.valeur) {
        const std::string cellule = colonne.LireCellule(n);
        if (!cellule.empty()) annees[n.valeur] = LireAnnee(cellule, forme(cellule));
    }
    return annees;
}

}  // namespace

AnneeLue LireAnnee(std::string_view cellule, const QuatreOctets& forme) {
    AnneeLue annee;
    annee.tri = forme;
    cellule = SansBlancs(cellule);
    annee.pleine = !cellule.empty();
    if (!annee.pleine) return annee;
    annee.exacte = Nombre(TexteDe(forme));
    // The form of a short cell begins with zeros that nobody typed: "18?" is no year 180.
    annee.comparable = annee.exacte || (cellule.size() == forme.size() &&
                                        std::any_of(cellule.begin(), cellule.end(), EstChiffre));
    if (annee.comparable) annee.decade = Nombre(TexteDe(forme).substr(0, 3));
    return annee;
}

void ListesEnMemoire::Charger(storage::ColonneListe& colonne, std::uint32_t dernier) {
    debuts_.assign(1, 0);
    debuts_.reserve(dernier + 2ULL);
    for (NoOrdre n{1}; n.valeur <= dernier; ++n.valeur) {
        debuts_.push_back(static_cast<std::uint32_t>(entrees_.size()));
        const std::string_view liste = colonne.ListeDe(n);
        for (std::size_t i = 0; i + 2 <= liste.size(); i += 2)
            entrees_.push_back(static_cast<std::uint16_t>(Chaine2VersNum(liste.substr(i, 2))));
    }
    debuts_.push_back(static_cast<std::uint32_t>(entrees_.size()));
}

std::span<const std::uint16_t> ListesEnMemoire::De(NoOrdre n) const {
    if (n.valeur + 1ULL >= debuts_.size()) return {};
    return std::span{entrees_}.subspan(debuts_[n.valeur],
                                       debuts_[n.valeur + 1] - debuts_[n.valeur]);
}

bool ListesEnMemoire::Contient(NoOrdre n, std::uint32_t element) const {
    const std::span<const std::uint16_t> liste = De(n);
    return std::find(liste.begin(), liste.end(), element) != liste.end();
}

FamilleEnMemoire::FamilleEnMemoire(storage::Base& base) {
    const NoOrdre individus{base.entete.DernierIndividu};
    const NoMariage mariages{base.entete.DernierMariage};
    sexe_.assign(individus.valeur + 1ULL, Sexe::Vide);
    for (NoOrdre n{1}; n.valeur <= individus.valeur; ++n.valeur)
        sexe_[n.valeur] = base.R_SEXE.LireCellule(n);
    pere_ = Numeros(base.R_PERE, individus);
    mere_ = Numeros(base.R_MERE, individus);
    naissance_ = Annees(base.R_NAISS, individus, AnneeTri);
    deces_ = Annees(base.R_DECES, individus, AnneeTriDeces);
    enfants.Charger(base.R_ENFANT, individus.valeur);
    unions.Charger(base.R_MARIAG, individus.valeur);
    epoux_ = Numeros(base.R_EPOUX, mariages);
    epouse_ = Numeros(base.R_EPOUSE, mariages);
    debut_ = Annees(base.R_DEBMAR, mariages, AnneeTri);
    fin_ = Annees(base.R_FINMAR, mariages, AnneeTri);
}

}  // namespace dorvane::records

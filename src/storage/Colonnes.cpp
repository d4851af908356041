#include "storage/Colonnes.h"

#include "values/Annees.h"
#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {

std::string FormeAnnee::Lire(const char* cellule) {
    std::size_t taille = Largeur;
    while (taille > 0 && cellule[taille - 1] == ' ')
        --taille;
    return {cellule, taille};
}

void FormeAnnee::Ecrire(char* cellule, std::string_view valeur) {
    const QuatreOctets octets = CelluleAnnee(valeur);
    std::copy(octets.begin(), octets.end(), cellule);
}

Position FormePosition::Lire(const char* cellule) {
    return Position{Chaine4VersNum({cellule, Largeur})};
}

void FormePosition::Ecrire(char* cellule, Position valeur) {
    for (std::uint32_t i = 0; i < Largeur; ++i)
        cellule[i] = static_cast<char>(valeur.valeur >> (24U - 8U * i) & 0xFFU);
}

template <class Cle>
std::string ColonneAnnees<Cle>::AnneeTri(Cle n) {
    return std::string{TexteDe(dorvane::AnneeTri({this->Cellule(n.valeur), 4}))};
}

template class ColonneAnnees<NoOrdre>;
template class ColonneAnnees<NoMariage>;

std::string ColonneDeces::AnneeTri(NoOrdre n) {
    return std::string{TexteDe(AnneeTriDeces({Cellule(n.valeur), 4}))};
}

}  // namespace dorvane::storage

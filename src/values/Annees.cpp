#include "values/Annees.h"

#include "values/Comparaison.h"

#include <algorithm>
#include <cstddef>

namespace dorvane {

QuatreOctets CelluleAnnee(std::string_view annee) {
    QuatreOctets cellule{' ', ' ', ' ', ' '};
    annee = annee.substr(0, cellule.size());
    std::ranges::copy(annee, cellule.end() - static_cast<std::ptrdiff_t>(annee.size()));
    return cellule;
}

QuatreOctets AnneeTri(std::string_view annee) {
    QuatreOctets tri = CelluleAnnee(annee);
    for (char& octet : tri) {
        // Control bytes, too: a cell of a damaged file may hold bytes 0.
        if (static_cast<unsigned char>(octet) <= ' ') octet = '0';
        if (octet == '-') {
            octet = '0';
            tri[0] = '-';
        }
    }
    return tri;
}

QuatreOctets AnneeTriDeces(std::string_view annee) {
    const QuatreOctets tri = AnneeTri(annee);
    return EstNumerique(TexteDe(tri).substr(0, 3)) ? tri : QuatreOctets{'Z', ' ', ' ', ' '};
}

}  // namespace dorvane

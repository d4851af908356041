#include "interchange/commandes/PreparationExport.h"

#include "records/Famille.h"

#include <algorithm>

namespace dorvane::interchange {

void PreparationExport::Prendre(const std::vector<NoOrdre>& liste) {
    parcours_.clear();
    liste_ = liste;
}

void PreparationExport::Ajouter(const ParcoursExport& parcours) {
    if (std::ranges::find(parcours_, parcours) == parcours_.end()) parcours_.push_back(parcours);
}

void PreparationExport::Retirer(std::size_t rangee) {
    if (rangee >= NbRangees()) return;
    const std::size_t debut = liste_.empty() ? 0 : 1;
    if (rangee < debut)
        liste_.clear();
    else
        parcours_.erase(parcours_.begin() + static_cast<std::ptrdiff_t>(rangee - debut));
}

void PreparationExport::Vider() {
    liste_.clear();
    parcours_.clear();
}

void PreparationExport::Epurer(storage::Base& base) {
    std::erase_if(liste_, [&base](NoOrdre n) { return !records::Existe(base, n); });
    std::erase_if(parcours_, [&base](const ParcoursExport& parcours) {
        return !records::Existe(base, parcours.depart);
    });
}

std::size_t PreparationExport::NbRangees() const {
    return parcours_.size() + (liste_.empty() ? 0 : 1);
}

}  // namespace dorvane::interchange

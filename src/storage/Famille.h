#pragma once

#include "values/Numeros.h"
#include "values/Sexe.h"

#include <array>
#include <iterator>
#include <utility>
#include <vector>

namespace dorvane::storage {

class Base;

// The family as cells and lists tell it, for all who walk over it. Nothing is judged: a number may
// have no record, and a damaged base goes in circles, which each walk must bound by itself.

/// The parent of a child on a side; 0 for none.
[[nodiscard]] NoOrdre LireParent(Base& base, NoOrdre enfant, Cote cote);

/// Father and mother; 0 for who is not known.
[[nodiscard]] std::array<NoOrdre, 2> ParentsDe(Base& base, NoOrdre enfant);

/// The partner of `individu` in a union; 0 when there is none.
[[nodiscard]] NoOrdre PartenaireDe(Base& base, NoOrdre individu, NoMariage mariage);

/// A union of a person, and with whom.
struct Couple {
    NoMariage mariage{};
    NoOrdre partenaire{};  ///< 0 for none
};
/// The unions of a person in the order of the list.
[[nodiscard]] std::vector<Couple> CouplesDe(Base& base, NoOrdre individu);

/// Walks over a family depth first, without recursion. `etendre(etape, suivantes)` is called for
/// each step and adds the steps that follow from it: all that comes of the first is walked before
/// the second, the father's side before the mother's when they are added so. A step holds the
/// person and what its way has gathered, a number or a generation. It answers false to end the
/// walk; so does then the walk.
template <class Etape, class Etendre>
bool ParcourirFamille(Etape depart, Etendre etendre) {
    std::vector<Etape> pile;
    std::vector<Etape> suivantes;
    pile.push_back(std::move(depart));
    while (!pile.empty()) {
        const Etape etape = std::move(pile.back());
        pile.pop_back();
        suivantes.clear();
        if (!etendre(etape, suivantes)) return false;
        // The first of them is taken off the pile first.
        pile.insert(pile.end(), std::make_move_iterator(suivantes.rbegin()),
                    std::make_move_iterator(suivantes.rend()));
    }
    return true;
}

}  // namespace dorvane::storage

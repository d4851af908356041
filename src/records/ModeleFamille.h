#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace dorvane::storage {
class Base;
}

namespace dorvane::records {

/// How many generations the chart shows on each side of the current person.
struct Generations {
    int ascendantes = 4;
    int descendantes = 2;
    friend bool operator==(const Generations&, const Generations&) = default;
};

/// Most generations that either side can be asked for.
inline constexpr int MaxGenerations = 20;

/// `MnuDroite`: one descendant generation fewer, two ascendant more.
[[nodiscard]] Generations VersLaDroite(Generations generations);

/// `MnuGauche`: the other way round. Neither side goes below 0 or above `MaxGenerations`.
[[nodiscard]] Generations VersLaGauche(Generations generations);

/// One box of the chart.
struct CaseFamille {
    enum class Sorte { EnCours, Ascendant, Descendant, Conjoint };

    NoOrdre individu{};  ///< 0: a parent who is not known, or whose number has no record
    Sorte sorte = Sorte::EnCours;
    std::size_t parent = 0;  ///< index of the box that this one hangs on; 0 for box 0 itself
    int generation = 0;      ///< above 0 ascendants, below 0 descendants
    /// Where the middle of the box stands across its generation: 1 is the distance of two
    /// neighbours, the current person stands at 0, more is further down.
    double place = 0;
    /// The union shown with this box: of a spouse with the person beside, of a father or mother
    /// with the other parent; 0 when there is none.
    NoMariage mariage{};
    /// The box from which the line to a child starts: the spouse who is the other parent, else the
    /// person. 0 for boxes that are not children.
    std::size_t depart = 0;
    bool repetee = false;  ///< the same person stands in an earlier box as well
    bool suite = false;    ///< more family of this person lies beyond the generations shown

    friend bool operator==(const CaseFamille&, const CaseFamille&) = default;
};

/// The family around one person: who stands where, without a screen.
///
/// Box 0 is the person. Then come the ascendants, father before mother, each with those above, and
/// the descendants in the order of the lists of children. Spouses follow the person beside whom
/// they stand. A parent stands in the middle of what hangs on it.
struct ModeleFamille {
    std::vector<CaseFamille> cases;  ///< empty without a person
    Generations demandees;
    /// Fewer than asked for when the chart would have more than `MaxCases` boxes.
    Generations montrees;
};

/// Most boxes of a chart.
inline constexpr std::size_t MaxCases = 4000;

/// Distance of two spouses, and what parts the boxes of two families, in places.
inline constexpr double EcartConjoints = 1.3;
inline constexpr double EcartFamilles = 0.3;

[[nodiscard]] ModeleFamille ConstruireFamille(storage::Base& base, NoOrdre individu,
                                              Generations generations);

/// What the arrow keys walk to.
enum class Parente { Pere, Mere, Enfant, ConjointSuivant };

/// The relative of a person; the spouse is the one after `apres` in the order of the unions, the
/// first one again behind the last. 0 when there is none.
[[nodiscard]] NoOrdre ParentDe(storage::Base& base, NoOrdre individu, Parente parente,
                               NoOrdre apres = {});

/// A line of the menu of a person's relatives.
struct EntreeFamille {
    enum class Groupe { Personne, Parents, Conjoints, Enfants, Lies };
    Groupe groupe = Groupe::Personne;
    NoOrdre individu{};
    friend bool operator==(const EntreeFamille&, const EntreeFamille&) = default;
};

/// The person, then father and mother, spouses by union, children, persons linked. Who is not
/// known is left out.
[[nodiscard]] std::vector<EntreeFamille> EntreesFamille(storage::Base& base, NoOrdre individu);

}  // namespace dorvane::records

#pragma once

#include "interchange/gedcom/ContexteImport.h"
#include "values/Sexe.h"

#include <array>
#include <cstdint>
#include <vector>

namespace dorvane::interchange {

/// The family links of an import, held in memory while the families are read and written once.
class FamillesImport {
public:
    explicit FamillesImport(const ContexteImport& contexte) : contexte_{contexte} {}

    /// A person was read; `sexe` is never `Vide`. Persons come in the order of their numbers.
    void AjouterIndividu(Sexe sexe);

    /// Sex that being a husband or wife tells; a different one is corrected. True when a man became
    /// a woman or the reverse.
    [[nodiscard]] bool CorrigerSexe(NoOrdre individu, Sexe sexe);

    /// Gives the child a parent and takes it from the one that had the place. False when nothing
    /// changes: it is its parent already, the two are one person, or the parent has 200 children.
    bool PoserParent(NoOrdre enfant, NoOrdre parent, Cote cote, const LigneGedcom& ligne);

    /// Makes a union of two persons; 0 when one of them has 200 unions already.
    [[nodiscard]] NoMariage Unir(NoOrdre epoux, NoOrdre epouse, const LigneGedcom& ligne);

    /// Writes sexes that were corrected, parents, lists of children and of unions.
    void Ecrire();

    /// Partners of the unions made, union m at m - 1: the text of a union counts for both.
    struct Union {
        NoOrdre epoux;
        NoOrdre epouse;
    };
    [[nodiscard]] const std::vector<Union>& Unions() const { return unions_; }

    /// Every union of a person, in the order in which they were made. Valid after `Ecrire`.
    [[nodiscard]] const std::vector<NoMariage>& UnionsDe(NoOrdre individu) const;

private:
    struct Parente {
        std::array<std::uint16_t, 2> parents{};
        std::array<std::uint32_t, 2> rangs{};  ///< when each was given, for the order of equals
        std::uint8_t nbEnfants = 0;
        std::uint8_t nbUnions = 0;
        Sexe sexe = Sexe::Indetermine;
        bool sexeCorrige = false;
    };
    void EcrireEnfants();
    void EcrireUnions();

    ContexteImport contexte_;
    std::vector<Parente> personnes_;  ///< person n at n - 1
    std::vector<Union> unions_;
    std::vector<std::vector<NoMariage>> unionsDe_;
    std::uint32_t rang_ = 0;
};

}  // namespace dorvane::interchange

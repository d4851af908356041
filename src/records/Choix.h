#pragma once

#include "values/Numeros.h"
#include "values/Sexe.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::storage {
class Base;
}

namespace dorvane::records {

/// Who is looked for, which says what years and which sex are offered.
enum class SorteChoix {
    Parent,    ///< a father or a mother: born 10 to 100 years before
    Enfant,    ///< born 10 to 100 years after, not after the death of the person
    Conjoint,  ///< born within 100 years, of another sex, not dead before the person was born
    Lien       ///< any person who lived at the same time
};

struct DemandeChoix {
    SorteChoix sorte = SorteChoix::Lien;
    NoOrdre reference{};     ///< the person of the sheet, who is never offered
    Sexe sexe = Sexe::Vide;  ///< of a parent; not looked at otherwise
};

/// Years of birth that are offered, compared as texts with the sort form of a year.
struct FenetreAnnees {
    std::string de;  ///< "-" is before all years
    std::string a;   ///< empty: no upper bound
    friend bool operator==(const FenetreAnnees&, const FenetreAnnees&) = default;
};

/// "*" without parents, "P" with a father alone, "M" with a mother alone, empty with both.
[[nodiscard]] std::string_view MarqueParents(storage::Base& base, NoOrdre individu);

/// The persons who may be chosen, in sort order, 20 at a time. A base is open. What changes later
/// is not followed: `Recommencer` looks again.
class Choix {
public:
    static constexpr std::size_t TaillePage = 20;

    /// `session` outlives the object. Starts without a filter, on the first page.
    Choix(shell::Session& session, const DemandeChoix& demande);

    /// Rebuilds from the first page with another filter: every word of it stands somewhere in the
    /// name, without regard to case and accents. A filter of digits alone offers that person, past
    /// the tests of years. Empty matches all.
    void Filtrer(std::string_view filtre);
    /// Without the tests of years and deaths, or with them again. Rebuilds.
    void LeverFenetre(bool levee);
    void Recommencer();

    [[nodiscard]] std::vector<NoOrdre> Page() const;
    /// From 1; an empty list is one page.
    [[nodiscard]] std::size_t NoPage() const { return no_ + 1; }
    [[nodiscard]] std::size_t NbPages() const;
    [[nodiscard]] std::size_t Nombre() const { return offerts_.size(); }  ///< of all pages
    [[nodiscard]] bool APrecedente() const { return no_ > 0; }
    [[nodiscard]] bool ASuivante() const { return no_ + 1 < NbPages(); }
    /// To the neighbour page; false, and nothing changes, when there is none.
    bool Precedente();
    bool Suivante();

    [[nodiscard]] const DemandeChoix& Demande() const { return demande_; }
    [[nodiscard]] const FenetreAnnees& Fenetre() const { return fenetre_; }
    [[nodiscard]] bool FenetreLevee() const { return levee_; }
    /// The year of birth of the reference is not known.
    [[nodiscard]] bool SansAnnee() const { return naissance_ == "0000"; }
    /// The filter is the number of a person.
    [[nodiscard]] bool ParNumero() const { return bool{numero_}; }
    /// The filter in its comparison form.
    [[nodiscard]] const std::string& Filtre() const { return filtre_; }

private:
    [[nodiscard]] bool SexeConvient(NoOrdre n) const;
    [[nodiscard]] bool VieConvient(NoOrdre n, const std::string& naissance) const;
    [[nodiscard]] bool NomConvient(NoOrdre n);

    shell::Session& session_;
    DemandeChoix demande_;
    FenetreAnnees fenetre_;
    std::string naissance_;  ///< sort form, of the reference
    std::string deces_;
    Sexe sexe_;
    std::string filtre_;
    std::vector<std::string> mots_;
    NoOrdre numero_{};  ///< the filter is a number
    bool levee_ = false;
    std::vector<NoOrdre> offerts_;
    std::size_t no_ = 0;
    std::string tampon_;
};

}  // namespace dorvane::records

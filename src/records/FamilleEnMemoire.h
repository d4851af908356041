#pragma once

#include "storage/Base.h"
#include "values/Annees.h"
#include "values/Numeros.h"
#include "values/Sexe.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace dorvane::records {

/// A year as it is compared. An empty one takes part in no comparison.
struct AnneeLue {
    bool pleine = false;  ///< the cell holds anything but blanks
    /// A number, or four characters with a digit among them: "?" and "18?" tell nothing.
    bool comparable = false;
    QuatreOctets tri{};                    ///< comparison form
    std::optional<std::int32_t> exacte{};  ///< the year, when the form is a number
    /// The first three characters of a comparable year, when they are a number.
    std::optional<std::int32_t> decade{};
};

/// Reads a cell; `forme` is its comparison form.
[[nodiscard]] AnneeLue LireAnnee(std::string_view cellule, const QuatreOctets& forme);

/// The lists of all persons, side by side.
class ListesEnMemoire {
public:
    void Charger(storage::ColonneListe& colonne, std::uint32_t dernier);
    /// The entries of `n`; none for a person out of reach.
    [[nodiscard]] std::span<const std::uint16_t> De(NoOrdre n) const;
    [[nodiscard]] bool Contient(NoOrdre n, std::uint32_t element) const;

private:
    std::vector<std::uint32_t> debuts_;
    std::vector<std::uint16_t> entrees_;
};

/// Who is whose parent, child and partner in a whole base, read column after column: a walk that
/// follows the family would go back and forth between the blocks of a file. Reads as the columns
/// do for numbers out of reach. The base may change meanwhile; this stays as it was read.
class FamilleEnMemoire {
public:
    explicit FamilleEnMemoire(storage::Base& base);

    [[nodiscard]] Sexe SexeDe(NoOrdre n) const {
        return n.valeur < sexe_.size() ? sexe_[n.valeur] : Sexe::Vide;
    }
    [[nodiscard]] NoOrdre Pere(NoOrdre n) const { return Lire<NoOrdre>(pere_, n.valeur); }
    [[nodiscard]] NoOrdre Mere(NoOrdre n) const { return Lire<NoOrdre>(mere_, n.valeur); }
    [[nodiscard]] NoOrdre Epoux(NoMariage m) const { return Lire<NoOrdre>(epoux_, m.valeur); }
    [[nodiscard]] NoOrdre Epouse(NoMariage m) const { return Lire<NoOrdre>(epouse_, m.valeur); }
    [[nodiscard]] const AnneeLue& Naissance(NoOrdre n) const { return Annee(naissance_, n.valeur); }
    [[nodiscard]] const AnneeLue& Deces(NoOrdre n) const { return Annee(deces_, n.valeur); }
    [[nodiscard]] const AnneeLue& Debut(NoMariage m) const { return Annee(debut_, m.valeur); }
    [[nodiscard]] const AnneeLue& Fin(NoMariage m) const { return Annee(fin_, m.valeur); }

    ListesEnMemoire enfants;
    ListesEnMemoire unions;

private:
    template <class Numero>
    [[nodiscard]] static Numero Lire(const std::vector<std::uint16_t>& colonne, std::uint32_t n) {
        return Numero{n < colonne.size() ? colonne[n] : 0U};
    }
    [[nodiscard]] const AnneeLue& Annee(const std::vector<AnneeLue>& colonne,
                                        std::uint32_t n) const {
        return n < colonne.size() ? colonne[n] : vide_;
    }

    std::vector<Sexe> sexe_;
    std::vector<std::uint16_t> pere_;
    std::vector<std::uint16_t> mere_;
    std::vector<std::uint16_t> epoux_;
    std::vector<std::uint16_t> epouse_;
    std::vector<AnneeLue> naissance_;
    std::vector<AnneeLue> deces_;
    std::vector<AnneeLue> debut_;
    std::vector<AnneeLue> fin_;
    AnneeLue vide_;
};

}  // namespace dorvane::records

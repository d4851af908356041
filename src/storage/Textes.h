#pragma once

#include "storage/Colonnes.h"

#include <string>
#include <string_view>

namespace dorvane::storage {

/// The name line of a person in its five fields. The views live until the next call on `R_NOM`.
struct LigneNom {
    std::string_view nom;
    std::string_view prenom;
    std::string_view autrePrenom;
    std::string_view jourMoisNaissance;  ///< birth date without its year, stored form
    std::string_view jourMoisDeces;
};

/// Cuts a name line at its ";". What stands behind the fourth one is the last field.
[[nodiscard]] LigneNom DecouperNom(std::string_view ligne);

/// A text fit for a record: "#" becomes "-", and inside rich text the escape `\'23`.
[[nodiscard]] std::string SansDiese(std::string_view texte);
/// A field fit for a name line: `SansDiese`, and ";" becomes ",".
[[nodiscard]] std::string SansSeparateur(std::string_view champ);

/// A column whose cells are positions of texts ended by "#". A new record is appended at each
/// change. `limite`: bytes after which a text without an end is given up; 0 for `MaxTexte`.
template <class Cle>
class ColonneTextes : public Colonne<Cle, FormePosition> {
public:
    ColonneTextes(Volume& volume, Marques& marques, std::size_t limite = 0)
        : Colonne<Cle, FormePosition>{volume, marques}, limite_{limite} {}

    /// The record without its "#"; empty for an empty cell. Valid until the next call here.
    [[nodiscard]] std::string_view LireTexte(Cle n);
    /// Stores `texte`, which holds no "#"; empty sets the cell to 0.
    void EcrireTexte(Cle n, std::string_view texte);
    void InitColonne();

private:
    std::size_t limite_;
    std::string memo_;
    Cle noMemo_{};
};

/// `R_NOM`: the name lines.
class ColonneNoms : public ColonneTextes<NoOrdre> {
public:
    ColonneNoms(Volume& volume, Marques& marques) : ColonneTextes{volume, marques, 1001} {}

    /// The fields, read in place; for walks.
    [[nodiscard]] LigneNom LireNom(NoOrdre n) { return DecouperNom(LireTexte(n)); }
    [[nodiscard]] std::string NomDe(NoOrdre n) { return std::string{LireNom(n).nom}; }
    [[nodiscard]] std::string PrenomDe(NoOrdre n) { return std::string{LireNom(n).prenom}; }
    /// Day and month as stored.
    [[nodiscard]] std::string JourMoisNaissance(NoOrdre n) {
        return std::string{LireNom(n).jourMoisNaissance};
    }
    [[nodiscard]] std::string JourMoisDeces(NoOrdre n) {
        return std::string{LireNom(n).jourMoisDeces};
    }
    /// Stores a whole line with its ";". Empty sets the cell to 0. The display becomes stale.
    void EcrireNom(NoOrdre n, std::string_view ligne) {
        EcrireTexte(n, ligne);
        marques_.AffichagePerime = true;
    }
};

}  // namespace dorvane::storage

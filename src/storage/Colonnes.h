#pragma once

#include "storage/ColonneBrute.h"
#include "values/Numeros.h"
#include "values/Sexe.h"

#include <cassert>
#include <string>
#include <string_view>

namespace dorvane::storage {

/// One byte, whatever it is; a cell that was never written reads as `Sexe::Vide`.
struct FormeSexe {
    using Valeur = Sexe;
    using Argument = Sexe;
    static constexpr std::uint32_t Largeur = 1;
    static constexpr char Neuf = static_cast<char>(Sexe::Vide);
    [[nodiscard]] static Sexe Lire(const char* cellule) { return static_cast<Sexe>(*cellule); }
    static void Ecrire(char* cellule, Sexe sexe) { *cellule = static_cast<char>(sexe); }
};

/// Four characters: padded on the left, a longer text cut to its first four. Read without its
/// trailing spaces, so that an empty cell is an empty text.
struct FormeAnnee {
    using Valeur = std::string;
    using Argument = std::string_view;
    static constexpr std::uint32_t Largeur = 4;
    static constexpr char Neuf = ' ';
    [[nodiscard]] static std::string Lire(const char* cellule);
    static void Ecrire(char* cellule, std::string_view valeur);
};

/// `Num2`: the number of another record, 0 for none.
template <class Vers>
struct FormeNumero {
    using Valeur = Vers;
    using Argument = Vers;
    static constexpr std::uint32_t Largeur = 2;
    static constexpr char Neuf = '\0';
    [[nodiscard]] static Vers Lire(const char* cellule) {
        return Vers{static_cast<std::uint32_t>(static_cast<unsigned char>(cellule[0]) << 8U |
                                               static_cast<unsigned char>(cellule[1]))};
    }
    static void Ecrire(char* cellule, Vers valeur) {
        cellule[0] = static_cast<char>(valeur.valeur >> 8U & 0xFFU);
        cellule[1] = static_cast<char>(valeur.valeur & 0xFFU);
    }
};

/// `Num4`: a position in the file, 0 for no record.
struct FormePosition {
    using Valeur = Position;
    using Argument = Position;
    static constexpr std::uint32_t Largeur = 4;
    static constexpr char Neuf = '\0';
    [[nodiscard]] static Position Lire(const char* cellule);
    static void Ecrire(char* cellule, Position valeur);
};

/// A column of one attribute. `Cle` is the kind of record that the cells belong to.
template <class Cle, class Forme>
class Colonne : public ColonneBrute {
public:
    Colonne(Volume& volume, Marques& marques, std::uint32_t nbBlocs = 64)
        : ColonneBrute{volume, marques, {Forme::Largeur, nbBlocs, Forme::Neuf, 1000}} {}

    /// Value of cell `n`; what an empty cell holds for number 0 and for one out of reach.
    [[nodiscard]] typename Forme::Valeur LireCellule(Cle n) {
        return Forme::Lire(Cellule(n.valeur));
    }
    /// `n` is not 0. Out of reach nothing is written: the callers keep the limits.
    void EcrireCellule(Cle n, typename Forme::Argument valeur) {
        assert(n);
        if (char* cellule = CelluleEcrite(n.valeur)) Forme::Ecrire(cellule, valeur);
    }
};

using ColonneSexes = Colonne<NoOrdre, FormeSexe>;

/// Years of `Cle`: birth, beginning and end of a union.
template <class Cle>
class ColonneAnnees : public Colonne<Cle, FormeAnnee> {
public:
    using Colonne<Cle, FormeAnnee>::Colonne;
    /// Four characters by which years sort: "0000" for none, "-" in front before our era.
    [[nodiscard]] std::string AnneeTri(Cle n);
};

/// Years of death: one whose first three characters are not numeric sorts behind all others.
class ColonneDeces : public Colonne<NoOrdre, FormeAnnee> {
public:
    using Colonne::Colonne;
    /// As for the other years, or "Z   ".
    [[nodiscard]] std::string AnneeTri(NoOrdre n);
};

/// Fathers or mothers. A change makes the display and perhaps the numberings stale.
class ColonneParents : public Colonne<NoOrdre, FormeNumero<NoOrdre>> {
public:
    using Colonne::Colonne;
    void EcrireCellule(NoOrdre enfant, NoOrdre parent) {
        Colonne::EcrireCellule(enfant, parent);
        marques_.AffichagePerime = true;
        if (marques_.observateur != nullptr) marques_.observateur->ParentChange(enfant, parent);
    }
};

/// Husbands or wives. A change makes the display stale.
class ColonnePartenaires : public Colonne<NoMariage, FormeNumero<NoOrdre>> {
public:
    using Colonne::Colonne;
    void EcrireCellule(NoMariage mariage, NoOrdre partenaire) {
        Colonne::EcrireCellule(mariage, partenaire);
        marques_.AffichagePerime = true;
    }
};

}  // namespace dorvane::storage

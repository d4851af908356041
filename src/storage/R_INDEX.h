#pragma once

#include "storage/ColonneBrute.h"
#include "storage/Colonnes.h"
#include "storage/EnTete.h"
#include "storage/MotsCles.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// One entry of the word index.
struct CelluleMot {
    Position mot{};            ///< word record
    std::uint32_t nombre = 0;  ///< persons in the list, at most 65535
    Position personnes{};      ///< person list; 0: dead entry
    friend bool operator==(const CelluleMot&, const CelluleMot&) = default;
};

/// Cuts the tokens of one text, asked for from left to right; each byte is looked at once.
class CoupeJetons {
public:
    /// `texte` outlives the object and the tokens.
    explicit CoupeJetons(std::string_view texte) : texte_{texte} {}
    /// What stands from `debut` (not 0) up to a blank, a return or the end. Empty when that is
    /// longer than 1023 bytes: such a run is no word.
    [[nodiscard]] std::string_view JetonA(std::size_t debut);

private:
    std::string_view texte_;
    std::size_t fin_ = 0;  ///< where the run ends that was cut last
};

/// The words behind `symbole` in `texte`, folded, in the order of the text. Rich text is read as
/// plain text. Empty words are left out; one that folds to blanks stands as written.
[[nodiscard]] std::vector<std::string> MotsDuTexte(std::string_view texte, char symbole);
/// One token brought to the form in which words are indexed; empty when there is nothing to index.
[[nodiscard]] std::string FormeIndexee(std::string_view jeton);

/// The word index: which persons carry a word behind the symbol of a keyword. For each keyword a
/// list of entries in the order of their words, for each entry the persons by year of birth.
class MotsIndex : public ColonneBrute {
public:
    MotsIndex(Volume& volume, Marques& marques, EnTete& entete, MotsCles& motsCles,
              ColonneAnnees<NoOrdre>& naissances);

    [[nodiscard]] CelluleMot CelluleIndex(NoIndex e);
    void EcrireCelluleIndex(NoIndex e, const CelluleMot& cellule);

    /// The entries of keyword `k`, ascending by word; empty when it has no list.
    [[nodiscard]] std::vector<NoIndex> ListeMots(NoMotCle k);
    /// The word of an entry, folded.
    [[nodiscard]] std::string MotIndex(NoIndex e);
    /// Who carries the word, by year of birth; empty for a dead entry.
    [[nodiscard]] std::vector<NoOrdre> PersonnesIndex(NoIndex e);
    /// The entry of `k` with this folded word; 0 when there is none.
    [[nodiscard]] NoIndex ChercherMot(NoMotCle k, std::string_view mot);

    /// The text of person `n` changed from `ancien` to `nouveau`: words that came or went are
    /// entered or taken out, a word that stands in both costs nothing. Also for the text of a
    /// union, once for each partner.
    void MajIndex(NoOrdre n, std::string_view ancien, std::string_view nouveau);
    /// After the birth year of `n` changed: puts `n` in the right place again in the list of every
    /// word of `texte`.
    void ReclasserIndex(NoOrdre n, std::string_view texte);

    /// Next free entry number; 0, and an incident told once, when the index is full.
    [[nodiscard]] NoIndex NouvelleEntree();
    /// Tells once that a word had to be left out.
    void SignalerPlein();
    /// Appends the word list of a keyword and a new record of the keyword that points at it.
    void EcrireListeMots(NoMotCle k, const std::vector<NoIndex>& mots);
    void InitColonne();

private:
    struct Recherche {
        std::size_t place;  ///< from 0: where the word stands or would go
        bool trouve;
    };
    Recherche Chercher(const std::vector<NoIndex>& mots, std::string_view mot);
    void RetirerMot(std::vector<NoIndex>& mots, NoOrdre n, std::string_view mot);
    void AjouterMot(std::vector<NoIndex>& mots, NoOrdre n, std::string_view mot);
    void PlacerPersonne(std::vector<NoOrdre>& personnes, NoOrdre n);
    void EcrirePersonnes(NoIndex e, CelluleMot cellule, const std::vector<NoOrdre>& personnes);

    EnTete& entete_;
    MotsCles& motsCles_;
    ColonneAnnees<NoOrdre>& naissances_;
    bool pleinSignale_ = false;
};

}  // namespace dorvane::storage

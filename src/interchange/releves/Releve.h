#pragma once

#include "interchange/jeux/JeuxDeCaracteres.h"
#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// The registers that are typed in a spreadsheet, one act a line.
enum class SorteReleve : std::uint8_t { Bapteme, Mariage, Sepulture, Ascendance };

/// The columns of each kind, in their order in a line.
namespace colonnes {
enum Bapteme : std::size_t {
    BapAnnee,
    BapMois,
    BapJour,
    BapLieu,
    BapNom,
    BapPrenoms,
    BapSexe,
    BapNomPere,
    BapPrenomsPere,
    BapNomMere,
    BapPrenomsMere,
    BapRemarques,
};
/// The seven columns of each partner follow each other; `MarEpouse` is as far as `MarEpoux` from
/// the first of them.
enum Mariage : std::size_t {
    MarAnnee,
    MarMois,
    MarJour,
    MarLieu,
    MarEpoux,
    MarEpouse = MarEpoux + 7,
    MarRemarques = MarEpouse + 7,
};
enum Epoux : std::size_t {
    EpNom,
    EpPrenoms,
    EpAge,
    EpPrenomsPere,
    EpNomMere,
    EpPrenomsMere,
    EpVeuf,
};
enum Sepulture : std::size_t {
    SepAnnee,
    SepMois,
    SepJour,
    SepLieu,
    SepNom,
    SepPrenoms,
    SepSexe,
    SepAge,
    SepDateNaissance,
    SepLieuNaissance,
    SepNomPere,
    SepPrenomsPere,
    SepNomMere,
    SepPrenomsMere,
    SepNomConjoint,
    SepPrenomsConjoint,
    SepRemarques,
};
enum Ascendance : std::size_t {
    AscSosa,
    AscNom,
    AscPrenoms,
    AscProfession,
    AscDateNaissance,
    AscLieuNaissance,
    AscDateDeces,
    AscLieuDeces,
    AscDateMariage,
    AscLieuMariage,
    AscRemarques,
};
}  // namespace colonnes

/// The messages that head the columns of a kind.
[[nodiscard]] std::span<const NoMessage> TitresColonnes(SorteReleve sorte);

/// At most this many fields of a line are taken.
inline constexpr std::size_t MaxChampsReleve = 20;

/// Cuts a line at ";", else at tabs, else at ",", else at quote, blank, quote; a field between
/// quotes may hold the separator. Fields are trimmed. Nothing when the line has no separator.
/// `*trop`: there were more than `MaxChampsReleve`.
[[nodiscard]] std::optional<std::vector<std::string>> DecoupeReleve(std::string_view ligne,
                                                                    bool* trop = nullptr);

struct LigneReleve {
    std::uint32_t numero = 0;  ///< in the file, from 1
    std::vector<std::string> champs;
    bool trop = false;  ///< fields past the last one were left out

    /// A field; empty when the line ends before it.
    [[nodiscard]] std::string_view Champ(std::size_t colonne) const {
        return colonne < champs.size() ? std::string_view{champs[colonne]} : std::string_view{};
    }
};

/// A survey as read, before anything is made of it.
struct Releve {
    SorteReleve sorte = SorteReleve::Bapteme;
    ChoixDeJeu jeu;
    std::size_t remplaces = 0;              ///< characters that code page 1252 lacks
    std::optional<LigneReleve> titres;      ///< the first line, when its first field has no digit
    std::vector<LigneReleve> lignes;        ///< up to the line that could not be cut; no empty ones
    std::uint32_t ligneSansSeparateur = 0;  ///< reading stopped at this line; 0: at the end
};

/// Reads the bytes of a survey, in UTF-8 or any set of the imports.
[[nodiscard]] Releve LireReleve(std::string_view fichier, SorteReleve sorte);

}  // namespace dorvane::interchange

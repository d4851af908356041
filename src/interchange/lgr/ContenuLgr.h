#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// A stretch of one of the shared rows of `ContenuLgr`.
struct TrancheLgr {
    std::uint32_t debut = 0;
    std::uint32_t nombre = 0;
};

/// A number and the text that stands with it.
struct RenvoiLgr {
    std::uint32_t numero = 0;
    std::string_view texte{};
};

// The records of an exchange text as they stand in it. The views live as long as its bytes.

struct IndividuLgr {
    std::uint32_t ligne = 0;  ///< of the file, where the record begins
    std::uint32_t numero = 0;
    std::uint32_t pere = 0;
    std::uint32_t mere = 0;
    std::string_view nom;  ///< names and dates between ";"
    std::string_view sexe;
    std::string_view lieuNaissance;
    std::string_view lieuDeces;
    std::string_view texte;
    TrancheLgr documents;   ///< of `numeros`
    TrancheLgr unions;      ///< of `numeros`
    TrancheLgr liens;       ///< of `renvois`
    TrancheLgr evenements;  ///< of `renvois`
};

struct UnionLgr {
    std::uint32_t ligne = 0;
    std::uint32_t epoux = 0;
    std::uint32_t epouse = 0;
    std::string_view date;
    std::string_view lieu;
    std::string_view texte;
};

struct DocumentLgr {
    std::uint32_t ligne = 0;
    std::uint32_t numero = 0;
    std::string_view titre;
    std::string_view fichier;  ///< with byte 255 and the type
    std::string_view texte;
};

struct EvenementLgr {
    std::uint32_t ligne = 0;
    std::uint32_t numero = 0;
    std::string_view date;
    std::string_view lieu;
    std::string_view type;
    std::string_view titre;
    TrancheLgr personnes;  ///< of `numeros`
    TrancheLgr documents;  ///< of `numeros`
    std::string_view texte;
};

struct MotCleLgr {
    char marqueur = ' ';
    std::string_view libelle;
};

/// One of the ten rows of a sheet.
struct SlotLgr {
    char marqueur = ' ';
    char drapeau = ' ';
};

/// All that an exchange text holds.
struct ContenuLgr {
    std::string version;  ///< its first line in capitals and trimmed
    std::vector<std::string_view> parametres;
    std::vector<std::string_view> reglages;
    std::uint32_t description = 0;
    std::vector<MotCleLgr> motsCles;
    std::vector<SlotLgr> slotsIndividu;
    std::vector<SlotLgr> slotsMariage;
    std::vector<IndividuLgr> individus;
    std::vector<UnionLgr> unions;
    std::vector<DocumentLgr> documents;
    std::vector<EvenementLgr> evenements;
    std::string index;  ///< markers
    std::vector<std::uint32_t> numeros;
    std::vector<RenvoiLgr> renvois;
    bool aSlots = false;
    bool aIndex = false;
    bool complet = false;  ///< the end was found
    std::uint32_t lignes = 0;

    /// Versions are compared as texts.
    [[nodiscard]] bool Avant97() const { return version < "[DORVANE VERSION 97.0]"; }
    /// The lists of unions of the persons are missing or not to be trusted.
    [[nodiscard]] bool UnionsParRang() const { return version < "[DORVANE VERSION 97.1]"; }
    [[nodiscard]] bool AvecDocuments() const { return version >= "[DORVANE VERSION 3.0]"; }
    [[nodiscard]] bool AvecListes() const { return version > "[DORVANE VERSION 3.1]"; }
};

}  // namespace dorvane::interchange

#pragma once

#include "values/Noms.h"
#include "values/Numeros.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dorvane::storage {

/// The version mark that this program writes, 30 bytes.
inline constexpr std::string_view MarqueCourante = "[Dorvane Version 99.0]        ";
inline constexpr std::size_t TailleEnTete = 200;
inline constexpr std::uint32_t SeuilSuite = 32000;       ///< persons, unions: more need a zone
inline constexpr std::uint32_t SeuilSuiteIndex = 25600;  ///< index entries: the same
inline constexpr std::uint32_t MaxIndividus = 64000;
inline constexpr std::uint32_t MaxEvenements = 32000;
inline constexpr std::uint32_t MaxDocuments = 32000;
inline constexpr std::uint32_t MaxIndex = 64000;
inline constexpr std::uint32_t MaxMotsCles = 50;

/// One of the ten keyword slots of a sheet.
struct Slot {
    char symbole = ' ';  ///< symbol of the keyword; blank: the slot, and all behind it, are empty
    char drapeau = ' ';  ///< '1': holds a date and a place; blank: a plain word and a place
    friend bool operator==(const Slot&, const Slot&) = default;
};
using Slots = std::array<Slot, 10>;

/// Filled slots: those in front of the first blank symbol.
[[nodiscard]] std::size_t NbSlots(const Slots& slots);

/// What the header of a file older than 3.0 held besides. Kept for the settings.
struct AnciensReglages {
    struct Police {
        std::string nom;
        std::string taille;
        std::string proportionnelle;
    };
    std::uint16_t personneEnCours = 0;
    std::uint16_t secondePersonne = 0;
    std::uint16_t typePresentation = 0;
    std::array<Position, 4> positionsPolices{};  ///< records of 50 bytes
    std::array<Police, 4> polices;               ///< read from there
    char drapeau68 = '1';                        ///< '1' or '2'
    char drapeau69 = ' ';
    bool couleursPresentes = false;
    std::array<std::uint32_t, 7> couleurs{};
    char drapeau99 = ' ';
    char drapeau100 = ' ';
};

/// The fields of the first 200 bytes, live in memory, written at the commit only. Who changes one
/// sets `Marques::ModifBase`.
struct EnTete {
    std::string marque{MarqueCourante};  ///< as read, 30 bytes
    std::uint32_t FinFichier = 0;        ///< as read; the live value is in `Volume`
    std::uint32_t NbTriIndividus = 0;    ///< living persons
    std::uint32_t DernierIndividu = 0;   ///< highest number ever given
    std::uint32_t DernierEvenement = 0;
    std::uint32_t NbTriEvenements = 0;
    std::uint32_t DernierMariage = 0;
    dorvane::TypeTri TypeTri = dorvane::TypeTri::Naissance;  ///< any byte in a damaged file
    std::uint32_t NbMotsCles = 0;
    std::uint16_t TypePresentation = 0;  ///< written, not read back
    Position PosRepEvt{};
    Position PosRepTriEvt{};
    Position PosRepLstEvt{};
    std::uint32_t NbIndex = 0;  ///< entries ever created; never goes down
    std::uint32_t DernierDocument = 0;
    std::uint32_t NbTriDocuments = 0;
    bool OptPrenomUnique = false;
    bool OptParticules = false;
    bool OptOrigine97 = false;
    bool LibellesNeutres = true;
    Slots SlotsIndividu{};
    Slots SlotsMariage{};
    NoDocument DocBase{};  ///< 0: none
    Position PosSuiteIndividus{};
    Position PosSuiteIndex{};
    Position PosSuiteMariages{};
    std::optional<AnciensReglages> anciens;  ///< only of a file older than 3.0

    /// The mark in capitals and trimmed, as versions are compared.
    [[nodiscard]] std::string MarqueComparee() const;
    [[nodiscard]] bool AvantVersion3() const;
    [[nodiscard]] bool AvantVersion97() const;
    [[nodiscard]] bool AvantVersion972() const;
};

/// Do these first 30 bytes of a file bear a version mark?
[[nodiscard]] bool PorteMarque(std::string_view octets);

/// Reads the 200 bytes. The fonts of a file older than 3.0 and the slots of one older than 97.2
/// stand elsewhere and are left empty; `premierBlocIndex` is the first entry of the `R_INDEX`
/// directory, which tells a blank `NbIndex` from the count 8224.
[[nodiscard]] EnTete DecoderEnTete(std::string_view octets, Position premierBlocIndex);

/// The 200 bytes of the current version.
[[nodiscard]] std::string ComposerEnTete(const EnTete& entete, std::uint32_t finFichier);

}  // namespace dorvane::storage

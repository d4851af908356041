#pragma once

#include "storage/Slots.h"
#include "values/Numeros.h"
#include "values/Sexe.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace dorvane::records {

/// Rows of keywords on a sheet; those behind the slots of the base stay empty.
using RangeesSlots = std::array<storage::ValeurSlot, 10>;

/// The union in edit on the sheet, as its fields show it.
struct SaisieUnion {
    NoMariage mariage{};
    std::string jourMois;  ///< as shown: "12 mars"
    std::string debut;     ///< year, at most 4 characters
    std::string fin;       ///< the same
    std::string lieu;
    RangeesSlots slots;
    std::string note;  ///< plain or rich text, lines ended by "\r\n"
    friend bool operator==(const SaisieUnion&, const SaisieUnion&) = default;
};

/// The link in edit on the sheet.
struct SaisieLien {
    std::size_t rang = 0;  ///< of the link in the list of the person, from 1
    std::string libelle;   ///< as shown, in the user's language
    friend bool operator==(const SaisieLien&, const SaisieLien&) = default;
};

/// All fields of a person sheet as they are shown, in code page 1252. Days and months are in words
/// ("12 mars"), years without padding, at most 4 characters.
struct SaisieFiche {
    NoOrdre individu{};  ///< 0: a new person is being typed
    std::string nom;
    std::string prenom;
    std::string autrePrenom;
    /// One of the three that a sheet shows, never `Vide`.
    Sexe sexe = Sexe::Indetermine;
    std::string jourMoisNaissance;
    std::string anneeNaissance;
    std::string lieuNaissance;
    std::string jourMoisDeces;
    std::string anneeDeces;
    std::string lieuDeces;
    RangeesSlots slots;
    std::string note;  ///< plain or rich text, lines ended by "\r\n"
    std::optional<SaisieUnion> mariage{};
    std::optional<SaisieLien> lien{};
    friend bool operator==(const SaisieFiche&, const SaisieFiche&) = default;
};

/// A field that the user is sent to.
enum class Champ {
    Aucun,
    Nom,
    Prenom,
    AutrePrenom,
    Sexe,
    JourMoisNaissance,
    AnneeNaissance,
    JourMoisDeces,
    Lien,
};

/// What came of a commit. The messages have been shown.
struct IssueFiche {
    enum class Etat {
        Ecrite,     ///< something was written
        Inchangee,  ///< all was as stored
        Refusee,    ///< the commit stopped; `champ` is where
    };
    Etat etat = Etat::Refusee;
    Champ champ = Champ::Aucun;  ///< where the focus goes, also after a commit that went through
    NoOrdre individu{};          ///< the person; of a new one the number it got, 0 if refused

    [[nodiscard]] bool EstRefusee() const { return etat == Etat::Refusee; }
    friend bool operator==(const IssueFiche&, const IssueFiche&) = default;
};

}  // namespace dorvane::records

#pragma once

#include "storage/Evenements.h"
#include "values/Numeros.h"

#include <string>
#include <vector>

namespace dorvane::records {

/// All that the window of an event shows; texts in code page 1252. Kinds and roles are in their
/// language-neutral form (a tag, or the user's own word).
struct SaisieEvenement {
    NoEvenement evenement{};  ///< 0: a new event
    NoOrdre pour{};           ///< whom a new event was opened for; 0 for nobody
    std::string date{};       ///< as typed; a whole date
    std::string type{};
    std::string lieu{};
    std::string libelle{};  ///< the event's own label
    std::string note{};     ///< free or rich text
    /// Persons and their roles, in the order shown; no two equal entries.
    std::vector<storage::LienEvenement> liens{};
    std::vector<NoDocument> documents{};  ///< in the order shown
    /// Persons made on the way to a link of this event; as parents they are asked for as new ones.
    std::vector<NoOrdre> crees{};

    friend bool operator==(const SaisieEvenement&, const SaisieEvenement&) = default;
};

/// Where the window puts the focus after a refusal.
enum class ChampEvenement { Aucun, Date, Type, Lieu, Role, Liens, Documents };

/// What came of a save.
struct IssueEvenement {
    enum class Etat {
        Ecrit,      ///< saved
        Inchange,   ///< nothing differed, nothing was written
        Incomplet,  ///< saved, but a role is missing or unfit: the window stays open
        Refuse      ///< nothing was written; the message has been shown
    };
    Etat etat = Etat::Refuse;
    ChampEvenement champ = ChampEvenement::Aucun;  ///< only when refused or incomplete
    friend bool operator==(const IssueEvenement&, const IssueEvenement&) = default;
};

}  // namespace dorvane::records

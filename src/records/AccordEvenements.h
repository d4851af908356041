#pragma once

#include "records/MiroirFiche.h"
#include "records/SaisieEvenement.h"
#include "records/SaisieFiche.h"
#include "storage/Evenements.h"

#include <optional>
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

/// What sheets and events say of the same facts, and the saving of either: it stands above both,
/// and neither knows the other.

/// Date and place as shown.
struct DateEtLieu {
    std::string date{};
    std::string lieu{};
    friend bool operator==(const DateEtLieu&, const DateEtLieu&) = default;
};

/// The two places are one: a sheet loses dots and marks of places on the way to its record.
[[nodiscard]] bool MemeLieu(std::string_view a, std::string_view b);

/// What the sheet of a person says of birth, christening, death or burial; nothing when the sheet
/// has no row for it.
[[nodiscard]] std::optional<DateEtLieu> LireFiche(shell::Session& session, NoOrdre individu,
                                                  MiroirFiche miroir);
/// What the sheet says of a union.
[[nodiscard]] DateEtLieu LireUnion(shell::Session& session, NoMariage mariage);
/// Date and place of an event.
[[nodiscard]] DateEtLieu LireEvenement(shell::Session& session, NoEvenement e);

/// The union that an event tells: the one of husband and wife, by its year when they have several;
/// of one person alone, the only one. 0 when there is none.
[[nodiscard]] NoMariage UnionRacontee(storage::Base& base,
                                      const std::vector<storage::LienEvenement>& liens,
                                      NoOrdre individu, std::string_view annee);

/// Gives a person the values of the keyword rows; the note and the rest stay. False when they were
/// so already. Nothing is offered to the events.
bool EcrireRangees(shell::Session& session, NoOrdre individu, const RangeesSlots& rangees);

/// `C_Maj`: writes what differs as `EcrireFiche`, then offers the values to the events of the
/// person that repeat them and differ, one question each. Events are never changed without one.
[[nodiscard]] IssueFiche ValiderFiche(shell::Session& session, SaisieFiche& saisie);

/// Saves an event as `EcrireSaisie`, then offers date and place to the sheet of each person whom it
/// mirrors when they differ: years, day and month, place, index and sort table follow. Not while a
/// role is missing.
[[nodiscard]] IssueEvenement ValiderEvenement(shell::Session& session, SaisieEvenement& saisie);

}  // namespace dorvane::records

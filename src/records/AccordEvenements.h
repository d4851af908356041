#pragma once

#include "records/SaisieEvenement.h"
#include "records/SaisieFiche.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// What of a sheet an event repeats.
enum class MiroirFiche : std::uint8_t { Aucun, Naissance, Bapteme, Deces, Inhumation, Mariage };

/// By the tags of kind and role: birth and christening for the child, death and burial for the
/// deceased, marriage for husband and wife.
[[nodiscard]] MiroirFiche MiroirDe(std::string_view type, std::string_view role);

/// Date and place as shown.
struct DateEtLieu {
    std::string date{};
    std::string lieu{};
    friend bool operator==(const DateEtLieu&, const DateEtLieu&) = default;
};

/// The date of an event as a sheet holds it: day and month, and year.
struct DateCoupee {
    std::string jourMois{};
    std::string annee{};
    friend bool operator==(const DateCoupee&, const DateCoupee&) = default;
};
/// Cuts a date in words in front of its last four characters.
[[nodiscard]] DateCoupee CouperDate(std::string_view date);

/// Gives a person the values of the keyword rows; the note and the rest stay. False when they were
/// so already. Nothing is offered to the events.
bool EcrireRangees(shell::Session& session, NoOrdre individu, const RangeesSlots& rangees);

/// After a sheet was saved: each event of the person that repeats it and differs is offered to be
/// brought into line, one question each. Events are never changed without one.
void AccorderEvenements(shell::Session& session, NoOrdre individu);

/// After an event was saved: the sheet of each person whom it mirrors is offered date and place of
/// the event when they differ. Writes years, day and month, place, index and sort table.
void AccorderFiches(shell::Session& session, NoEvenement evenement);

}  // namespace dorvane::records

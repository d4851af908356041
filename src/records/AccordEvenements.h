#pragma once

#include "records/SaisieEvenement.h"
#include "records/SaisieFiche.h"
#include "storage/Evenements.h"

#include <cstdint>
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

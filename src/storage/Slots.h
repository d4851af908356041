#pragma once

#include "storage/EnTete.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

class Base;

/// Slots of a sheet with the label by which their lines are found in a text.
struct DefinitionSlots {
    Slots slots{};
    std::array<std::string, 10> libelles;  ///< as stored in the keyword table
};

/// What one slot line holds.
struct ValeurSlot {
    std::string jourMois;  ///< row 1
    std::string annee;     ///< row 2
    std::string lieu;      ///< row 3: place, or the plain word of a slot without a date
    friend bool operator==(const ValeurSlot&, const ValeurSlot&) = default;
};
/// One entry for each filled slot.
using TableSlots = std::vector<ValeurSlot>;

/// A text behind its first line, taken apart.
struct TexteDecoupe {
    TableSlots slots;
    std::string note;
};
[[nodiscard]] TexteDecoupe DecouperTexte(std::string_view texte, const DefinitionSlots& definition);

/// Text behind `symbole` up to a blank or a return, dots as blanks; empty when there is none.
[[nodiscard]] std::string LireLieu(std::string_view texte, char symbole);

[[nodiscard]] std::string LieuNaissance(Base& base, NoOrdre n);
[[nodiscard]] std::string LieuDeces(Base& base, NoOrdre n);
[[nodiscard]] std::string NoteDe(Base& base, NoOrdre n);
[[nodiscard]] TableSlots SlotsDe(Base& base, NoOrdre n);

[[nodiscard]] std::string LieuMariage(Base& base, NoMariage m);
/// Date words of the union as stored: the text left of "@".
[[nodiscard]] std::string DateMariageBrute(Base& base, NoMariage m);
[[nodiscard]] std::string NoteMariage(Base& base, NoMariage m);
[[nodiscard]] TableSlots SlotsMariageDe(Base& base, NoMariage m);

}  // namespace dorvane::storage

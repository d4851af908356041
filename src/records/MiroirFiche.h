#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::records {

/// What of a sheet an event repeats.
enum class MiroirFiche : std::uint8_t { Aucun, Naissance, Bapteme, Deces, Inhumation, Mariage };

/// By the tags of kind and role: birth and christening for the child, death and burial for the
/// deceased, marriage for husband and wife.
[[nodiscard]] MiroirFiche MiroirDe(std::string_view type, std::string_view role);

/// The date of an event as a sheet holds it: day and month, and year.
struct DateCoupee {
    std::string jourMois{};
    std::string annee{};
    friend bool operator==(const DateCoupee&, const DateCoupee&) = default;
};
/// Cuts a date in words in front of its last four characters.
[[nodiscard]] DateCoupee CouperDate(std::string_view date);

}  // namespace dorvane::records

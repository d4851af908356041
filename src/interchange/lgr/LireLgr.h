#pragma once

#include "interchange/lgr/ContenuLgr.h"

#include <cstdint>
#include <functional>
#include <string>

namespace dorvane::interchange {

enum class LectureLgr : std::uint8_t {
    Faite,
    PasUnEchange,  ///< the first line is no version line
    Abandonnee,    ///< the user has given up
};

/// What happened to the bytes before they were read.
struct PreparationLgr {
    std::size_t octetsNuls = 0;  ///< bytes 0 that became blanks
    std::size_t perdus = 0;      ///< characters of a UTF-8 text that became "?"
};

/// Called every 100 records with the bytes read, in kilobytes, and the whole; false to stop.
using AvancerLgr = std::function<bool(std::uint32_t fait, std::uint32_t total)>;

/// Reads an exchange text of any version. `octets` outlives `contenu` and is brought into shape:
/// lines end in CR LF. Where the first one does, a return or a line feed that stands alone belongs
/// to its line; where it does not, each of them ends one. A first line of 1000 bytes or more is no
/// version line.
[[nodiscard]] LectureLgr LireLgr(std::string& octets, ContenuLgr& contenu,
                                 PreparationLgr& preparation, const AvancerLgr& avancer);

}  // namespace dorvane::interchange

#pragma once

#include "storage/Commune.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// What a list of communes gave.
struct ListeCommunes {
    std::vector<storage::Commune> communes;
    std::vector<std::size_t> sansNom;      ///< records left out, by number from 1 with the heading
    std::vector<std::size_t> tropLongues;  ///< the same, for records too long for a base
    std::size_t remplaces = 0;             ///< characters that code page 1252 lacks
    bool nomInconnu = false;               ///< the heading names no column "nom": nothing was read
};

/// Reads a list of communes as comma-separated values (RFC 4180; the separator is ";", a tab or
/// ",", whichever the first line has first), in UTF-8 or code page 1252. The first line names the
/// columns, in any order, case and accents apart: nom, code, autre code, rattachement, precision
/// (or departement), commentaire; others are passed over. A list whose first line names no column
/// has them in that order.
[[nodiscard]] ListeCommunes LireCsvCommunes(std::string_view fichier);

}  // namespace dorvane::interchange

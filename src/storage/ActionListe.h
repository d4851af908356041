#pragma once

#include <cstdint>

namespace dorvane::storage {

/// What happens to an entry of a list or of a sort table.
enum class ActionListe : std::uint8_t { Ajouter, Supprimer };

}  // namespace dorvane::storage

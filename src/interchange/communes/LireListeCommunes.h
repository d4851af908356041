#pragma once

#include "interchange/communes/CsvCommunes.h"

#include <filesystem>
#include <optional>

namespace dorvane::shell {
class Dialogue;
}

namespace dorvane::interchange {

/// Reads a list of communes from a file. Nothing once a message has told why not: it cannot be
/// read, names no communes, or more than a base holds.
[[nodiscard]] std::optional<ListeCommunes> LireListeCommunes(shell::Dialogue& dialogue,
                                                             const std::filesystem::path& fichier);

}  // namespace dorvane::interchange

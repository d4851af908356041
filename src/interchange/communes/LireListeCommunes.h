#pragma once

#include "interchange/communes/CsvCommunes.h"
#include "shell/Issue.h"

#include <filesystem>

namespace dorvane::interchange {

/// Reads a list of communes from a file. Refused, which is not told, when it names no communes or
/// more than a base holds.
[[nodiscard]] shell::Issue LireListeCommunes(const std::filesystem::path& fichier,
                                             ListeCommunes& liste);

}  // namespace dorvane::interchange

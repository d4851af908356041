#pragma once

#include "values/Numeros.h"

#include <filesystem>
#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// The file that a document names: as written, with "/" for "\", else by its file name beside the
/// base. Empty when there is none. `fichier` is in code page 1252.
[[nodiscard]] std::filesystem::path FichierDeDocument(const std::filesystem::path& base,
                                                      const std::string& fichier);

/// The file of a document of the open base; empty when it is not there.
[[nodiscard]] std::filesystem::path FichierDeDocument(const shell::Session& session,
                                                      NoDocument document);

}  // namespace dorvane::records

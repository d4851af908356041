#pragma once

#include <QPixmap>

#include "values/Numeros.h"

#include <filesystem>
#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// The file that a document names: as written, with "/" for "\", else by its file name beside the
/// base. Empty when there is none. `fichier` is in code page 1252.
[[nodiscard]] std::filesystem::path FichierDeDocument(const std::filesystem::path& base,
                                                      const std::string& fichier);

/// The file of a document of the open base; empty when it is not there.
[[nodiscard]] std::filesystem::path FichierDeDocument(const shell::Session& session,
                                                      NoDocument document);

/// A picture file, at most `cote` pixels wide and high; null when it cannot be read. Pictures are
/// remembered as long as the file does not change.
[[nodiscard]] QPixmap VignetteDeFichier(const std::filesystem::path& chemin, int cote);

/// The first picture of a person, at most `cote` pixels wide and high; null when there is none that
/// can be read. Pictures are remembered.
[[nodiscard]] QPixmap VignetteDe(const shell::Session& session, NoOrdre individu, int cote);

}  // namespace dorvane::windows

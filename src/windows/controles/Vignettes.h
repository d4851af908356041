#pragma once

#include <QPixmap>

#include "values/Numeros.h"

#include <filesystem>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// A picture file, at most `cote` pixels wide and high; null when it cannot be read. Pictures are
/// remembered as long as the file does not change.
[[nodiscard]] QPixmap VignetteDeFichier(const std::filesystem::path& chemin, int cote);

/// The first picture of a person, at most `cote` pixels wide and high; null when there is none that
/// can be read. Pictures are remembered.
[[nodiscard]] QPixmap VignetteDe(const shell::Session& session, NoOrdre individu, int cote);

}  // namespace dorvane::windows

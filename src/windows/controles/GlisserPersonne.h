#pragma once

#include "values/Numeros.h"

#include <filesystem>
#include <vector>

class QMimeData;
class QWidget;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// A person under the pointer: what a list or the chart hands over when it is dragged. The text of
/// it, for other programs, is the name with the dates.
[[nodiscard]] QMimeData* PersonneVersMime(shell::Session& session, NoOrdre individu);

/// The person that is dropped; 0 when it is something else, of another base, or of another
/// program.
[[nodiscard]] NoOrdre PersonneDeMime(const shell::Session& session, const QMimeData* donnees);

/// The files of this machine that are dropped, as a file manager hands them over; none when it is
/// something else.
[[nodiscard]] std::vector<std::filesystem::path> FichiersDeMime(const QMimeData* donnees);

/// Starts dragging a person out of `source`. Returns at the drop.
void GlisserPersonne(QWidget& source, shell::Session& session, NoOrdre individu);

}  // namespace dorvane::windows

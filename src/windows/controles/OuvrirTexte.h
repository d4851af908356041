#pragma once

#include <QString>

#include <filesystem>

class QWidget;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Shows a text file, UTF-8, that the program or a tool of it has written: in the editor named by
/// the variable VISUAL or EDITOR if the desktop knows it as one with a window, else in what the
/// desktop opens texts with, else in a report window under `titre`. Does not wait. `session`
/// outlives `parent`, the main window.
void OuvrirTexte(shell::Session& session, const std::filesystem::path& fichier,
                 const QString& titre, QWidget& parent);

}  // namespace dorvane::windows

#pragma once

#include <QSize>

#include <filesystem>

namespace dorvane::windows {

/// What `ImagerFenetre` draws.
struct DemandeImage {
    std::filesystem::path sortie;  ///< the PNG file
    std::filesystem::path base;
    QSize taille{1280, 800};  ///< of the window, in points; the density of the screen comes on top
    bool sombre = false;      ///< a dark desktop
};

/// Opens a base without a screen, draws the main window with its chart to a PNG file, written
/// beside and then put in place. Nothing of the user's settings changes. False, with the reason on
/// standard error, when it cannot be done.
[[nodiscard]] bool ImagerFenetre(const DemandeImage& demande);

/// The colours of a dark desktop, for one that has none of its own.
void AssombrirBureau();

}  // namespace dorvane::windows

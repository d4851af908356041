#pragma once

#include <QIcon>

#include "values/Sexe.h"

namespace dorvane::windows {

/// One of our drawings by its name; an empty icon when there is none. It is painted in the colour
/// of button texts at the time, so that it follows the palette, and is sharp at any size.
[[nodiscard]] QIcon Icone(const char* nom);

/// The sign of a sex; of undetermined for what is not known.
[[nodiscard]] QIcon IconeSexe(Sexe sexe);

/// The icon of the program, in its own colours.
[[nodiscard]] QIcon IconeProgramme();

/// The drawing in one colour, as an SVG text.
[[nodiscard]] QByteArray DessinIcone(const char* nom, const QColor& couleur);

}  // namespace dorvane::windows

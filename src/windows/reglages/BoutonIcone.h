#pragma once

#include "values/Numeros.h"

namespace dorvane::windows {

/// A command that may stand in the icon bar, by the number that the settings keep for it.
struct BoutonIcone {
    int no;
    const char* commande;  ///< name of the command, UTF-8, and of its drawing
    NoMessage legende;
};

/// The number that stands for a line between buttons.
inline constexpr int SeparateurIcones = 99;

}  // namespace dorvane::windows

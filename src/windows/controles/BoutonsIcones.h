#pragma once

#include <span>

namespace dorvane::windows {

/// The buttons of the icon bar by the numbers that the settings keep. Numbers of functions that
/// the program does not have are left out of the bar.
struct BoutonIcone {
    int no;
    const char* action;  ///< name of the menu entry
};
[[nodiscard]] std::span<const BoutonIcone> BoutonsIcones();

/// The number that stands for a line between buttons.
inline constexpr int SeparateurIcones = 99;

/// The menu entry of a button; null for a number that has none.
[[nodiscard]] const char* ActionDuBouton(int no);

}  // namespace dorvane::windows

#pragma once

#include "values/Numeros.h"
#include "windows/reglages/BoutonIcone.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace dorvane::windows {

class MDIForm1;

/// What a command needs of a base. A long job may close the base for a while: what stands on the
/// screen stays, and so do the entries.
enum class BesoinBase : std::uint8_t {
    Aucune,
    /// That one is shown; the entry is disabled without. Its function looks by itself whether it is
    /// open, and tells when a job has closed it.
    Montree,
    Ouverte,  ///< besides, that it is open when the command is chosen: nothing happens without
};

/// What a command needs.
struct Besoin {
    BesoinBase base = BesoinBase::Aucune;
    /// No long job runs and no sheet is unsaved: asked when it is chosen, before its function is
    /// called. Only where the function does not begin with `CommandePermise` itself: nobody is told
    /// twice.
    bool calme = false;
    int deCujus = 0;  ///< 1 or 2: that reference person, numbered; disabled without
};

/// What there is, as far as commands need it.
struct EtatCommandes {
    bool base = false;
    std::array<bool, 2> deCujus{};  ///< chosen and numbered
};

/// Whether a command is enabled.
[[nodiscard]] constexpr bool Offerte(const Besoin& besoin, const EtatCommandes& etat) {
    if (besoin.base != BesoinBase::Aucune && !etat.base) return false;
    return besoin.deCujus == 0 || etat.deCujus[static_cast<std::size_t>(besoin.deCujus - 1)];
}

/// What a row of the table of commands makes.
enum class SorteCommande : std::uint8_t {
    Menu,      ///< a menu of the bar, or one inside another
    Filet,     ///< a line between groups
    Commande,  ///< an entry
    Bascule,   ///< an entry that is on or off
    Choix,     ///< an entry of which one in its menu is on
};

/// One row of the table from which menus, icon bar and shortcuts of the main window are made.
struct Commande {
    SorteCommande sorte;
    const char* menu;          ///< name of the menu that it stands in; empty: the bar
    const char* nom;           ///< name of the entry and of its drawing, UTF-8
    NoMessage legende{};       ///< 0: its text comes from what is open
    const char* touches = "";  ///< its shortcuts, parted by blanks
    int bouton = SansBouton;   ///< its number in the icon bar, as the settings keep it
    Besoin besoin{};
    void (*faire)(MDIForm1&) = nullptr;
    /// Whether it is on: only of `Bascule` and `Choix`.
    bool (*coche)(const MDIForm1&) = nullptr;

    static constexpr int SansBouton = -1;
};

/// The commands that may stand in the icon bar, in the order of their numbers.
[[nodiscard]] std::vector<BoutonIcone> BoutonsIcones();

}  // namespace dorvane::windows

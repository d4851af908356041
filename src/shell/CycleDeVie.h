#pragma once

#include "shell/Session.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace dorvane::shell {

/// The paths that follow from the path of a base.
struct CheminsBase {
    std::filesystem::path echange;  ///< last three letters "LGR"
    std::filesystem::path journal;  ///< "LOG"
    std::filesystem::path gedcom;   ///< "GED"
    std::string nom;                ///< file name without extension, in code page 1252
};
[[nodiscard]] CheminsBase DeriverChemins(const std::filesystem::path& base);

/// The path of the backup: cut at the first dot of the file name, then ".SAV". "a.b.LGD" gives
/// "a.SAV" while its journal is "a.b.LOG".
[[nodiscard]] std::filesystem::path CheminSauvegarde(const std::filesystem::path& base);

/// The path of the base that a backup restores: cut at the first dot of the name, then ".LGD".
[[nodiscard]] std::filesystem::path CheminRestauration(const std::filesystem::path& sauvegarde);

/// A heavy command may start: no long job runs (message 503 otherwise), and the person sheet is
/// closed or had nothing unsaved.
[[nodiscard]] bool CommandePermise(Session& session);

/// Opens the file at `CheminBase`. False when it cannot be opened: the user has been told and no
/// base is open.
bool OuvrirBase(Session& session);

/// Saves the settings of the base, commits, closes and moves the path to the head of the history.
/// False when the commit was refused: the file holds the previous commit, and the user was told.
bool FermerEtMemoriser(Session& session);

/// The menu commands. Each begins with `CommandePermise`.
void MnuNouveau(Session& session);
void MnuOuvrir(Session& session);
void MnuOuvrir(Session& session, const std::filesystem::path& chemin);
void MnuHisto(Session& session, int rang);  ///< `rang` 0 to 4
void MnuFermer(Session& session);
void MnuSauvegarde(Session& session);
void MnuRestauration(Session& session);

/// Commits if anything changed; the base stays open. False when the commit was refused.
bool MnuEnregistrer(Session& session);

/// Copies the closed base to its backup path and opens it again. True when the copy stands.
bool Sauvegarder(Session& session);

/// One tick of the timer, every 60 seconds.
void Minuterie1(Session& session);

/// The title of the main window, in code page 1252: the title of the document of the base, else
/// its path, else the name of the program.
[[nodiscard]] std::string TitrePrincipal(const Session& session);

/// Whether a menu entry is enabled. `nom` is the name of the entry, UTF-8.
[[nodiscard]] bool EtatMenu(bool baseOuverte, std::string_view nom);

}  // namespace dorvane::shell

#pragma once

#include "shell/Issue.h"
#include "shell/Session.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace dorvane::storage {
enum class Ouverture;
}

namespace dorvane::shell {

/// The absolute path of the file that a name leads to, links followed: lock, journal, backup,
/// history and settings know a base by it. A file that is not there yet is named by its folder.
[[nodiscard]] std::filesystem::path CheminEntier(const std::filesystem::path& chemin);

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

/// The path of the base that a backup restores: without the minute of one of another day, cut at
/// the first dot of the name, then ".LGD".
[[nodiscard]] std::filesystem::path CheminRestauration(const std::filesystem::path& sauvegarde);

/// What follows the last dot of a file name, with the dot, in small letters: ".ged". Empty without.
[[nodiscard]] std::string ExtensionDe(const std::filesystem::path& chemin);

/// `fichier` is the base at `base`, its journal, its backup or its lock, by whatever name: nothing
/// else may be written there. False for an empty `base`.
[[nodiscard]] bool EstFichierDeBase(const std::filesystem::path& fichier,
                                    const std::filesystem::path& base);

/// A temporary file of the session in the working folder: `debut`, the name of the base, ".tmp".
[[nodiscard]] std::filesystem::path FichierTemporaire(const Session& session,
                                                      std::string_view debut);

/// A heavy command may start: no long job runs, and the person sheet is closed or had nothing
/// unsaved. Tells why not.
[[nodiscard]] Issue CommandePermise(Session& session);

/// Opens the file at `CheminBase`, and tells why it cannot be opened: then no base is open.
Issue OuvrirBase(Session& session);

/// Saves the settings of the base, commits, closes and moves the path to the head of the history.
/// When the commit is refused, which is told, the file holds the previous one.
Issue FermerEtMemoriser(Session& session);

/// Closes the base and forgets it: paths, current person, numberings, windows. Nothing when none
/// is open. Ends as above, forgotten all the same.
Issue Clore(Session& session);

/// Takes over a base that an import or another command has just made and closed, or opened by hand:
/// closes what is open, then opens `chemin` and shows its person. Tells why it cannot be opened.
Issue OuvrirChemin(Session& session, const std::filesystem::path& chemin);

/// Brings a base that is about to be replaced back to its last commit, if a session that died left
/// a journal beside it: it then stays whole until the new one takes its place. Nothing when it is
/// no base, or is open elsewhere.
void ReprendreAvantRemplacement(Session& session, const std::filesystem::path& chemin);

/// Tells once that the settings cannot be saved.
void DireReglagesRefuses(Session& session);

/// The menu commands. Each begins with `CommandePermise`, and tells how it ended.
Issue MnuNouveau(Session& session);
Issue MnuOuvrir(Session& session);
Issue MnuOuvrir(Session& session, const std::filesystem::path& chemin);
Issue MnuHisto(Session& session, int rang);  ///< `rang` 0 to 4
Issue MnuFermer(Session& session);
Issue MnuSauvegarde(Session& session);
Issue MnuRestauration(Session& session);

/// Commits if anything changed; the base stays open.
Issue MnuEnregistrer(Session& session);

/// Copies the closed base to its backup path and opens it again; the backup that stood there is
/// kept under the name of its day, with as many others as the settings say. Done when the copy
/// stands; tells why it does not, and then the base stays closed.
Issue Sauvegarder(Session& session);

/// The same copy of a base that nobody has open, without a word. False when the system refuses.
[[nodiscard]] bool EcrireSauvegarde(Session& session, const std::filesystem::path& base);

/// One tick of the timer, every 60 seconds.
void Minuterie1(Session& session);

/// What the opening of the base at `chemin` means for the user. Not told.
[[nodiscard]] Issue IssueDOuverture(storage::Ouverture etat, const std::filesystem::path& chemin);

/// The same of the making of a new base.
[[nodiscard]] Issue IssueDeCreation(storage::Ouverture etat, const std::filesystem::path& chemin);

/// The title of the main window, in code page 1252: the title of the document of the base, else
/// its path, else the name of the program.
[[nodiscard]] std::string TitrePrincipal(const Session& session);

}  // namespace dorvane::shell

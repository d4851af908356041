#pragma once

#include "shell/Session.h"

#include <filesystem>
#include <string>
#include <vector>

namespace dorvane::shell {

/// A language offered by the menu `MnuLng`.
struct Langue {
    std::string nom;      ///< stem of the ".mes" file as it stands on disk, UTF-8
    std::string libelle;  ///< caption: first letter kept, the rest in lower case, UTF-8
    bool courante;
};

/// Settings, catalogue, working folder and date order, then the file of the command line if
/// `fichier` is not empty. Called once.
void Demarrage(Session& session, const std::filesystem::path& fichier = {});

/// Closes the base, saves the settings, deletes the temporary files of the session. False when the
/// base cannot be saved and the user stays: nothing has ended, and it may be asked again.
bool Arret(Session& session);

/// The program may end: no long job runs, the person sheet is closed, and the user says yes.
[[nodiscard]] bool ConfirmerSortie(Session& session);

/// Opens a dropped or command-line file by its extension, in any case: ".LGD" as `MnuOuvrir`,
/// ".LGR" and ".GED" through `Session::importer`. Anything else, and a file that does not exist,
/// is ignored without a message.
void OuvrirFichierDepose(Session& session, const std::filesystem::path& chemin);

/// The languages of the program folder, sorted by name.
[[nodiscard]] std::vector<Langue> LanguesOffertes(const Session& session);

/// Changes the catalogue in use. `nom` is the stem of a ".mes" file, UTF-8. The windows translate
/// themselves afterwards. False when there is no such file: the language stays.
bool ChoisirLangue(Session& session, const std::string& nom);

}  // namespace dorvane::shell

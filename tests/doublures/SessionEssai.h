#pragma once

#include "doublures/DialogueScript.h"
#include "doublures/DossierTemporaire.h"
#include "doublures/EcranScript.h"
#include "doublures/HorlogeFixe.h"
#include "doublures/ProgressionScript.h"
#include "shell/CompilerCatalogue.h"
#include "shell/FichierSur.h"
#include "shell/Session.h"
#include "storage/DisqueReel.h"

#include <string>
#include <vector>

namespace dorvane::doublures {

/// All lists of texts of the program.
[[nodiscard]] inline std::vector<shell::SourceCatalogue> TextesDuProjet() {
    const std::filesystem::path dossier =
        std::filesystem::path{RACINE_SOURCES} / "donnees" / "catalogue";
    std::vector<shell::SourceCatalogue> sources;
    for (const auto& liste : std::filesystem::directory_iterator{dossier})
        if (liste.path().extension() == ".tsv")
            sources.push_back(
                {liste.path().filename().string(), shell::LireTout(liste.path()).value_or("")});
    return sources;
}

/// The catalogue of a language as the program is delivered with it, from the lists of texts.
/// `colonne` is "fr" or "en".
[[nodiscard]] inline std::string CatalogueDuProjet(const char* colonne) {
    return shell::CompilerCatalogue(TextesDuProjet(), colonne).octets;
}

/// A session on a folder of its own, with both catalogues, scripted ports and the real disk. It has
/// not been started: `Demarrage` does that.
class SessionEssai {
public:
    SessionEssai() {
        EcrireFichier(dossier / "partage/Français.mes", CatalogueDuProjet("fr"));
        EcrireFichier(dossier / "partage/English.mes", CatalogueDuProjet("en"));
    }

    [[nodiscard]] shell::Lieux Lieux() const {
        return {dossier / "partage", dossier / "config", dossier / "cache"};
    }

    DossierTemporaire dossier;
    DialogueScript dialogue;
    ProgressionScript progression;
    HorlogeFixe horloge;
    EcranScript ecran;
    storage::DisqueReel disque;
    shell::Session session{Lieux(), {dialogue, progression, horloge, ecran, disque}};
};

}  // namespace dorvane::doublures

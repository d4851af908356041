#include "windows/cadre/Programme.h"

#include "shell/Demarrage.h"
#include "windows/controles/FenetreFille.h"

namespace dorvane::windows {

Programme::Programme(const shell::Lieux& lieux) : Programme{lieux, dialogueQt_} {}

Programme::Programme(const shell::Lieux& lieux, shell::Dialogue& dialogue)
    : session{lieux, {dialogue, progression_, horloge_, ecran_, disque_}}, fenetre{session} {
    dialogueQt_.Attacher(session, fenetre);
    progression_.Attacher(session, fenetre.Cadre());
    ecran_.Attacher(fenetre);
}

void Programme::Demarrer(const std::filesystem::path& fichier) {
    // First the settings, then the window as they want it, then the file: its questions and its
    // progress need the window.
    shell::Demarrage(session);
    RestaurerPlace(fenetre, session);
    fenetre.show();
    if (!fichier.empty()) shell::OuvrirFichierDepose(session, fichier);
}

}  // namespace dorvane::windows

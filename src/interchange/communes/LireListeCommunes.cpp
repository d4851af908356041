#include "interchange/communes/LireListeCommunes.h"

#include "shell/Dialogue.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"
#include "storage/BaseCommunes.h"

#include <string>

namespace dorvane::interchange {

std::optional<ListeCommunes> LireListeCommunes(shell::Dialogue& dialogue,
                                               const std::filesystem::path& fichier) {
    const std::string nom = shell::CheminAffiche(fichier);
    const std::optional<std::string> octets = shell::LireTout(fichier);
    if (!octets) {
        dialogue.Informer(shell::Msg(4003, nom));
        return {};
    }
    ListeCommunes liste = LireCsvCommunes(*octets);
    if (liste.nomInconnu || liste.communes.empty()) {
        dialogue.Informer(shell::Msg(liste.nomInconnu ? 4004 : 4005, nom));
        return {};
    }
    if (liste.communes.size() > storage::BaseCommunes::MaxCommunes) {
        dialogue.Informer(
            shell::Msg(4006, nom, std::to_string(storage::BaseCommunes::MaxCommunes)));
        return {};
    }
    return liste;
}

}  // namespace dorvane::interchange

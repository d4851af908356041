#include "interchange/communes/LireListeCommunes.h"

#include "messages/Communes.h"
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
        dialogue.Informer(shell::Msg(message::ListeCommunesIllisible, nom));
        return {};
    }
    ListeCommunes liste = LireCsvCommunes(*octets);
    if (liste.nomInconnu || liste.communes.empty()) {
        dialogue.Informer(shell::Msg(
            liste.nomInconnu ? message::ListeCommunesSansColonneNom : message::ListeCommunesVide,
            nom));
        return {};
    }
    if (liste.communes.size() > storage::BaseCommunes::MaxCommunes) {
        dialogue.Informer(shell::Msg(message::ListeCommunesTropGrande, nom,
                                     std::to_string(storage::BaseCommunes::MaxCommunes)));
        return {};
    }
    return liste;
}

}  // namespace dorvane::interchange

#include "interchange/communes/LireListeCommunes.h"

#include "messages/Communes.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"
#include "storage/BaseCommunes.h"

#include <optional>
#include <string>

namespace dorvane::interchange {

shell::Issue LireListeCommunes(const std::filesystem::path& fichier, ListeCommunes& liste) {
    const std::string nom = shell::CheminAffiche(fichier);
    const std::optional<std::string> octets = shell::LireTout(fichier);
    if (!octets) return shell::Issue::ParSysteme(shell::Msg(message::ListeCommunesIllisible, nom));
    liste = LireCsvCommunes(*octets);
    if (liste.nomInconnu)
        return shell::Issue::Refusee(shell::Msg(message::ListeCommunesSansColonneNom, nom));
    if (liste.communes.empty())
        return shell::Issue::Refusee(shell::Msg(message::ListeCommunesVide, nom));
    if (liste.communes.size() > storage::BaseCommunes::MaxCommunes)
        return shell::Issue::Refusee(
            shell::Msg(message::ListeCommunesTropGrande, nom,
                       std::to_string(storage::BaseCommunes::MaxCommunes)));
    return shell::Issue::Faite();
}

}  // namespace dorvane::interchange

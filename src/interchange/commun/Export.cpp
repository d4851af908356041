#include "interchange/commun/Export.h"

#include "messages/Export.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"

namespace dorvane::interchange {

shell::Issue EcrireExport(const std::filesystem::path& chemin, const std::string& octets,
                          bool entier) {
    if (!shell::EcrireTout(entier ? chemin : shell::CheminPartiel(chemin), octets))
        return shell::Issue::ParSysteme(
            shell::Msg(message::FichierNonEcrit, shell::CheminAffiche(chemin)));
    return entier ? shell::Issue::Faite() : shell::Issue::Arretee();
}

}  // namespace dorvane::interchange

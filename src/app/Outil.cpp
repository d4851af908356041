#include "app/Outil.h"

#include "app/Verbes.h"

namespace dorvane::outil {

int Executer(int nombre, const char* const* arguments) {
    LigneDeCommande ligne{"Dorvane en ligne de commande", "dorvane-outil"};
    // In the order in which the help names them.
    for (void (*declarer)(Verbe) :
         {DeclarerVerbesBase, DeclarerVerbesImport, DeclarerVerbeCatalogue, DeclarerVerbesFiche,
          DeclarerVerbesFaits, DeclarerVerbesReglages, DeclarerVerbesSoin, DeclarerVerbesExport,
          DeclarerVerbesEchange, DeclarerVerbesCommunes, DeclarerVerbesReleve,
          DeclarerVerbeCalculer})
        declarer(ligne.Verbes());
    if (const std::optional<int> statut = ligne.Lire(nombre, arguments)) return *statut;
    return ligne.Executer();
}

}  // namespace dorvane::outil

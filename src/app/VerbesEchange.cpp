#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/commandes/IntegrerLgr.h"
#include "values/Texte1252.h"

#include <iostream>

namespace dorvane::outil {

namespace {

struct OptionsIntegrer : OptionsBase {
    std::string fichier;
};

int Integrer(Atelier& atelier, const OptionsIntegrer& o) {
    const interchange::Integration integration =
        interchange::IntegrerLgr(atelier.session, o.fichier);
    if (!integration.issue) return Statut(integration.issue);
    std::cout << TexteVersUtf8(integration.texte);
    return Fait;
}

}  // namespace

void DeclarerVerbesEchange(Verbe racine) {
    Declarer<OptionsIntegrer>(
        racine, "integrer",
        "Ajoute à la base les personnes d'un fichier d'échange .lgr, sous de nouveaux numéros",
        [](Verbe& v, OptionsIntegrer& o) {
            v.Ajouter("FICHIER", o.fichier, "Le fichier .lgr").Requise();
        },
        Integrer);
}

}  // namespace dorvane::outil

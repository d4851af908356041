#include "records/ExempleNom.h"

#include "messages/Reglages.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "values/SortesEvenement.h"

#include <string_view>

namespace dorvane::records {

namespace {

/// What the sample person has for an element of a name; 0 for nothing.
NoMessage ValeurExemple(std::string_view jeton) {
    if (jeton == tag::Prenom) return message::ExemplePrenom;
    if (jeton == tag::Nom || jeton == tag::NomDuPere) return message::ExempleNom;
    if (jeton == tag::AutresPrenoms) return message::ExempleAutrePrenom;
    return jeton == tag::NomDeLaMere ? message::ExempleNomDeLaMere : NoMessage{};
}

}  // namespace

std::string ExempleDeNom(const shell::Session& session, const ModeleNom& modele) {
    return ComposerNom(modele, [&session](std::string_view jeton, const SortieValeur& sortie) {
        const NoMessage exemple = ValeurExemple(jeton);
        if (jeton == tag::Numeros)
            sortie("[5]");
        else if (exemple)
            sortie(session.Message(exemple));
        else
            sortie(shell::LibelleDeTag(session.catalogue, jeton));
    });
}

}  // namespace dorvane::records

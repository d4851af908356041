#include "records/ExempleNom.h"

#include "messages/Reglages.h"
#include "shell/Libelles.h"
#include "shell/Session.h"

#include <string_view>

namespace dorvane::records {

namespace {

/// What the sample person has for an element of a name; 0 for nothing.
NoMessage ValeurExemple(std::string_view jeton) {
    if (jeton == "FNAM") return message::ExemplePrenom;
    if (jeton == "BIRN" || jeton == "FATN") return message::ExempleNom;
    if (jeton == "OFNM") return message::ExempleAutrePrenom;
    return jeton == "MOTN" ? message::ExempleNomDeLaMere : NoMessage{};
}

}  // namespace

std::string ExempleDeNom(const shell::Session& session, const ModeleNom& modele) {
    return ComposerNom(modele, [&session](std::string_view jeton, const SortieValeur& sortie) {
        const NoMessage exemple = ValeurExemple(jeton);
        if (jeton == "NUMB")
            sortie("[5]");
        else if (exemple)
            sortie(session.Message(exemple));
        else
            sortie(shell::LibelleDeTag(session.catalogue, jeton));
    });
}

}  // namespace dorvane::records

#include "shell/CycleDeVie.h"
#include "storage/Base.h"

namespace dorvane::shell {

std::string TitrePrincipal(const Session& session) {
    if (!session.base) return "Dorvane";
    if (const NoDocument document = session.base->entete.DocBase) {
        std::string titre = session.base->R_IMAGE.TitreDoc(document);
        if (!titre.empty()) return titre;
    }
    return CheminAffiche(session.CheminBase);
}

}  // namespace dorvane::shell

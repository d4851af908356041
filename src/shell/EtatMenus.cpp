#include "shell/CycleDeVie.h"
#include "storage/Base.h"

#include <algorithm>
#include <array>

namespace dorvane::shell {

std::string TitrePrincipal(const Session& session) {
    if (!session.base) return "Dorvane";
    if (const NoDocument document = session.base->entete.DocBase) {
        std::string titre = session.base->R_IMAGE.TitreDoc(document);
        if (!titre.empty()) return titre;
    }
    return CheminAffiche(session.CheminBase);
}

bool EtatMenu(bool baseOuverte, std::string_view nom) {
    constexpr std::array<std::string_view, 16> SansBase{
        "MnuNouveau",          "MnuOuvrir",     "MnuRestauration", "MnuHisto",
        "MnuImporter",         "MnuBaptème",    "MnuSépulture",    "MnuRelevéMariage",
        "MnuRelevéAscendance", "MnuLng",        "MnuParametres",   "MnuUsuels",
        "MnuGraphisme",        "MnuCalendrier", "MnuCommunes",     "MnuQuitter"};
    const std::string_view seul = nom.substr(0, nom.find('('));
    return baseOuverte || std::find(SansBase.begin(), SansBase.end(), seul) != SansBase.end();
}

}  // namespace dorvane::shell

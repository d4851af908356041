#include "records/RolesProposes.h"

#include "records/FicheEvenement.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "values/Comparaison.h"

#include <algorithm>

namespace dorvane::records {

std::optional<std::size_t> ProchainRole(shell::Session& session, const SaisieEvenement& saisie) {
    const std::vector<shell::RoleEvenement> roles = RolesDe(session, saisie);
    const std::vector<shell::RoleEvenement> manquants = RolesManquants(session, saisie);
    const auto libre = [&](const shell::RoleEvenement& role) {
        if (!manquants.empty()) return role.label == manquants.front().label;
        return std::ranges::find(saisie.liens, role.label, &storage::LienEvenement::role) ==
               saisie.liens.end();
    };
    if (roles.empty()) return std::nullopt;
    const auto place = std::ranges::find_if(roles, libre);
    return static_cast<std::size_t>((place == roles.end() ? place - 1 : place) - roles.begin());
}

std::string TagSaisi(const shell::Session& session, std::span<const TagOffert> offerts,
                     std::string_view saisie) {
    const std::string texte{SansBlancs(saisie)};
    const std::string replie = Replie(texte);
    const auto place = std::ranges::find_if(
        offerts, [&replie](const TagOffert& offert) { return Replie(offert.libelle) == replie; });
    return place == offerts.end() ? shell::TagDeLibelle(session.catalogue, texte) : place->tag;
}

}  // namespace dorvane::records

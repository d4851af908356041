#include "records/FicheEvenement.h"
#include "records/MiroirFiche.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/MotsDates.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <optional>

namespace dorvane::records {
namespace {

using shell::RoleEvenement;
using storage::LienEvenement;

bool Tenu(const SaisieEvenement& saisie, const std::string& role) {
    return std::any_of(saisie.liens.begin(), saisie.liens.end(),
                       [&role](const LienEvenement& lien) { return lien.role == role; });
}

bool SexeConvient(shell::Session& session, const RoleEvenement& role, NoOrdre individu) {
    return role.sexe == Sexe::Vide || session.base->R_SEXE.LireCellule(individu) == role.sexe;
}

}  // namespace

std::vector<RoleEvenement> RolesDe(shell::Session& session, const SaisieEvenement& saisie) {
    std::vector<RoleEvenement> roles = session.parametres.RolesEvenement(saisie.type);
    for (const LienEvenement& lien : saisie.liens) {
        const bool connu = lien.role.empty() || std::any_of(roles.begin(), roles.end(),
                                                            [&lien](const RoleEvenement& role) {
                                                                return role.label == lien.role;
                                                            });
        if (!connu) roles.push_back({false, Sexe::Vide, lien.role});
    }
    return roles;
}

std::vector<RoleEvenement> RolesManquants(shell::Session& session, const SaisieEvenement& saisie) {
    std::vector<RoleEvenement> manquants = session.parametres.RolesEvenement(saisie.type);
    std::erase_if(manquants, [&saisie](const RoleEvenement& role) {
        return !role.principal || Tenu(saisie, role.label);
    });
    return manquants;
}

std::optional<std::size_t> ProchainRole(const SaisieEvenement& saisie,
                                        std::span<const RoleEvenement> roles) {
    if (roles.empty()) return std::nullopt;
    const auto libre = [&saisie](const RoleEvenement& role) { return !Tenu(saisie, role.label); };
    auto place = std::ranges::find_if(
        roles, [&libre](const RoleEvenement& role) { return role.principal && libre(role); });
    // A label may stand twice, once for each sex, and its first place is proposed.
    if (place != roles.end())
        place = std::ranges::find(roles, place->label, &RoleEvenement::label);
    else
        place = std::ranges::find_if(roles, libre);
    return static_cast<std::size_t>((place == roles.end() ? place - 1 : place) - roles.begin());
}

bool RoleConvient(shell::Session& session, std::string_view type, const LienEvenement& lien) {
    // A label may stand twice, once for each sex.
    bool connu = false;
    for (const RoleEvenement& role : session.parametres.RolesEvenement(type)) {
        if (role.label != lien.role) continue;
        if (SexeConvient(session, role, lien.individu)) return true;
        connu = true;
    }
    return !connu;
}

void ChoisirRoles(shell::Session& session, SaisieEvenement& saisie) {
    for (LienEvenement& lien : saisie.liens) {
        if (!lien.role.empty()) continue;
        for (const RoleEvenement& role : RolesManquants(session, saisie)) {
            if (!SexeConvient(session, role, lien.individu)) continue;
            lien.role = role.label;
            break;
        }
    }
}

SaisieFiche DepartDePersonne(shell::Session& session, const SaisieEvenement& saisie,
                             std::string_view role) {
    SaisieFiche depart;
    for (const RoleEvenement& candidat : session.parametres.RolesEvenement(saisie.type))
        if (candidat.label == role && candidat.sexe != Sexe::Vide) depart.sexe = candidat.sexe;
    // Father and child bear one name.
    const std::string_view parent = role == role::Pere     ? role::Enfant
                                    : role == role::Enfant ? role::Pere
                                                           : std::string_view{};
    for (const LienEvenement& lien : saisie.liens)
        if (!parent.empty() && lien.role == parent && depart.nom.empty())
            depart.nom = session.base->R_NOM.NomDe(lien.individu);

    const MiroirFiche miroir = MiroirDe(saisie.type, role);
    const std::optional<Serie> serie =
        SaisirDateEvenement(saisie.date, session.Ordre(), session.Mots());
    DateCoupee date;
    if (serie) date = CouperDate(AfficherDateEvenement(*serie, session.Mots()));
    if (miroir == MiroirFiche::Naissance) {
        depart.jourMoisNaissance = date.jourMois;
        depart.anneeNaissance = date.annee;
        depart.lieuNaissance = saisie.lieu;
    } else if (miroir == MiroirFiche::Deces) {
        depart.jourMoisDeces = date.jourMois;
        depart.anneeDeces = date.annee;
        depart.lieuDeces = saisie.lieu;
    }
    return depart;
}

}  // namespace dorvane::records

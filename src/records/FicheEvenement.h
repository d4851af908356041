#pragma once

#include "records/SaisieEvenement.h"
#include "records/SaisieFiche.h"
#include "shell/Parametres.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// What is stored of an event; a new one for 0 and for an event that is no more. A record that is
/// damaged is told, and read as empty.
[[nodiscard]] SaisieEvenement ChargerEvenement(shell::Session& session, NoEvenement evenement);

/// A new event opened from a person: linked with `role`, or with nobody when `pour` is 0. An empty
/// role is chosen by `ChoisirRoles` once the kind is known.
[[nodiscard]] SaisieEvenement NouvelEvenement(NoOrdre pour, std::string_view role);

/// Differs from what is stored.
[[nodiscard]] bool EvenementModifie(shell::Session& session, const SaisieEvenement& saisie);

/// Saves: refusals by message before anything is written; then only what differs is rewritten, the
/// sort table and the lists of the persons follow, a new event gets its number in
/// `saisie.evenement`, and the date stands in words; then the roles are checked.
[[nodiscard]] IssueEvenement EcrireSaisie(shell::Session& session, SaisieEvenement& saisie);

/// Asks, then takes the event away from its persons and from the sort table. False: it stays.
bool SupprimerEvenement(shell::Session& session, NoEvenement evenement);

/// Links one more person to a stored event. A father or mother beside a child of the event becomes
/// the parent of that child. False, with a message: already there in that role, 200 events.
bool LierPersonne(shell::Session& session, NoEvenement evenement, NoOrdre individu,
                  std::string_view role);

/// Asks, then takes a link away. An empty role is any role. False: it stays, or there was none.
bool DelierPersonne(shell::Session& session, NoEvenement evenement, NoOrdre individu,
                    std::string_view role = {});

/// Moves entry `rang` (from 1) of the persons of an event up (-1) or down (1). False at the ends.
bool DeplacerLien(shell::Session& session, NoEvenement evenement, std::size_t rang, int pas);

/// One more link can be added to an event that is being edited; tells why not. Nothing is written.
[[nodiscard]] bool LienPossible(shell::Session& session, const SaisieEvenement& saisie,
                                NoOrdre individu, std::string_view role);

/// The roles of the kind, in order; those of the links that the kind does not know stand behind.
[[nodiscard]] std::vector<shell::RoleEvenement> RolesDe(shell::Session& session,
                                                        const SaisieEvenement& saisie);

/// The compulsory roles of the kind that nobody has.
[[nodiscard]] std::vector<shell::RoleEvenement> RolesManquants(shell::Session& session,
                                                               const SaisieEvenement& saisie);

/// Which of `roles`, those of `RolesDe`, the next person of an event is proposed: the first
/// compulsory one that nobody has, else the first that nobody has, else the last; none when there
/// is no role.
[[nodiscard]] std::optional<std::size_t> ProchainRole(const SaisieEvenement& saisie,
                                                      std::span<const shell::RoleEvenement> roles);

/// Does the person have the sex that the role asks for? Roles that the kind does not know fit all.
[[nodiscard]] bool RoleConvient(shell::Session& session, std::string_view type,
                                const storage::LienEvenement& lien);

/// Gives the links without a role the first compulsory role that is free and fits.
void ChoisirRoles(shell::Session& session, SaisieEvenement& saisie);

/// What a person made for a role of the event starts with: the sex that the role asks for, the
/// surname that father and child share, date and place of a birth or a death.
[[nodiscard]] SaisieFiche DepartDePersonne(shell::Session& session, const SaisieEvenement& saisie,
                                           std::string_view role);

/// An event of a person, as the sheet lists it.
struct LigneEvenement {
    NoEvenement evenement{};
    std::string role{};  ///< as stored
    std::string date{};  ///< in words; empty when there is none
    std::string type{};  ///< in the user's language
    std::string lieu{};
    std::string libelle{};
    friend bool operator==(const LigneEvenement&, const LigneEvenement&) = default;
};

/// The events of a person by date, at most 200.
[[nodiscard]] std::vector<LigneEvenement> EvenementsDe(shell::Session& session, NoOrdre individu);

/// The same for one event, without a role.
[[nodiscard]] LigneEvenement LigneDe(shell::Session& session, NoEvenement evenement);

/// An event in one line: kind, date, place and persons of the compulsory roles; empty for an event
/// that is no more.
[[nodiscard]] std::string ResumeEvenement(shell::Session& session, NoEvenement evenement);

}  // namespace dorvane::records

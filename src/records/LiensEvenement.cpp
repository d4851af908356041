#include "messages/Dorvane.h"
#include "records/EcrireEvenement.h"
#include "records/Famille.h"
#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "records/Questions.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"

#include <algorithm>
#include <utility>

namespace dorvane::records {
namespace {

using storage::LienEvenement;

bool Ouvert(shell::Session& session, NoEvenement evenement) {
    return session.base && session.base->R_EVT.LireCellule(evenement);
}

}  // namespace

bool LienPossible(shell::Session& session, const SaisieEvenement& saisie, NoOrdre individu,
                  std::string_view role) {
    LiensEvenement liens = saisie.liens;
    liens.push_back({individu, std::string{role}});
    return Existe(*session.base, individu) &&
           RefuserLiens(session, saisie.evenement, liens) == ChampEvenement::Aucun;
}

bool LierPersonne(shell::Session& session, NoEvenement evenement, NoOrdre individu,
                  std::string_view role) {
    if (!Ouvert(session, evenement)) return false;
    const SaisieEvenement saisie = ChargerEvenement(session, evenement);
    if (!LienPossible(session, saisie, individu, role)) return false;
    LiensEvenement liens = saisie.liens;
    liens.push_back({individu, std::string{role}});
    storage::PartiesEvt parties;
    parties.liens = std::move(liens);
    EcrireParties(session, evenement, std::move(parties));
    LierFamilles(session, evenement, saisie.liens, {});
    return true;
}

bool DelierPersonne(shell::Session& session, NoEvenement evenement, NoOrdre individu,
                    std::string_view role) {
    if (!Ouvert(session, evenement)) return false;
    LiensEvenement liens = session.base->R_EVT.Liens(evenement);
    const auto lien = std::find_if(liens.begin(), liens.end(), [&](const LienEvenement& candidat) {
        return candidat.individu == individu && (role.empty() || candidat.role == role);
    });
    if (lien == liens.end()) return false;
    std::string qui = NomAffiche(session, individu);
    if (!lien->role.empty())
        qui.append(" (").append(shell::LibelleDeTag(session.catalogue, lien->role)).append(")");
    if (!ConfirmerRetrait(session, shell::Msg(message::ConfirmerRetirerDEvenement, qui,
                                              ResumeEvenement(session, evenement))))
        return false;
    liens.erase(lien);
    storage::PartiesEvt parties;
    parties.liens = std::move(liens);
    EcrireParties(session, evenement, std::move(parties));
    return true;
}

bool DeplacerLien(shell::Session& session, NoEvenement evenement, std::size_t rang, int pas) {
    if (!Ouvert(session, evenement)) return false;
    LiensEvenement liens = session.base->R_EVT.Liens(evenement);
    const std::size_t vers = pas < 0 ? rang - 1 : rang + 1;
    if (rang - 1 >= liens.size() || vers - 1 >= liens.size()) return false;
    std::swap(liens[rang - 1], liens[vers - 1]);
    storage::PartiesEvt parties;
    parties.liens = std::move(liens);
    EcrireParties(session, evenement, std::move(parties));
    return true;
}

}  // namespace dorvane::records

#include "records/EcrireEvenement.h"

#include "messages/Faits.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/FicheEvenement.h"
#include "records/Filiation.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "storage/Textes.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace dorvane::records {
namespace {

using storage::LienEvenement;

constexpr std::size_t TailleEntree = 6;  // of a person's list

/// The roles that a person has in a list of links, in order.
std::vector<std::string> RolesDansListe(const LiensEvenement& liens, NoOrdre individu) {
    std::vector<std::string> roles;
    for (const LienEvenement& lien : liens)
        if (lien.individu == individu) roles.push_back(lien.role);
    return roles;
}

/// The roles of a person in an event, as the person's own list tells them.
std::vector<std::string> RolesDansFiche(storage::Base& base, NoOrdre individu, NoEvenement e) {
    std::vector<std::string> roles;
    const std::size_t nombre = base.R_LSTEVT.NbElements(individu);
    for (std::size_t k = 1; k <= nombre; ++k)
        if (base.R_LSTEVT.ElementListe(individu, k) == e)
            roles.push_back(base.R_LSTEVT.TexteElement(individu, k));
    return roles;
}

/// The list of a person without the entries of one event.
std::string ListeSans(storage::Base& base, NoOrdre individu, NoEvenement e) {
    const std::string liste{base.R_LSTEVT.ListeDe(individu)};
    std::string reste;
    for (std::size_t k = 1; (k - 1) * TailleEntree < liste.size(); ++k)
        if (base.R_LSTEVT.ElementListe(individu, k) != e)
            reste += liste.substr((k - 1) * TailleEntree, TailleEntree);
    return reste;
}

std::vector<NoOrdre> IndividusDe(const LiensEvenement& a, const LiensEvenement& b) {
    std::vector<NoOrdre> individus;
    for (const LiensEvenement* liens : {&a, &b})
        for (const LienEvenement& lien : *liens)
            if (std::find(individus.begin(), individus.end(), lien.individu) == individus.end())
                individus.push_back(lien.individu);
    return individus;
}

void AccorderListe(storage::Base& base, NoOrdre individu, NoEvenement e,
                   const std::vector<std::string>& roles) {
    if (!individu) return;
    if (RolesDansFiche(base, individu, e) != roles) {
        std::string liste = ListeSans(base, individu, e);
        for (const std::string& role : roles)
            liste += base.R_LSTEVT.ComposerElement(e, role);
        base.R_LSTEVT.EcrireListe(individu, liste);
    }
    base.R_LSTEVT.TrierEvenements(individu);
}

bool Contient(const LiensEvenement& liens, const LienEvenement& lien) {
    return std::find(liens.begin(), liens.end(), lien) != liens.end();
}

void LierFamille(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent, bool cree) {
    storage::Base& base = *session.base;
    const NoOrdre present = LireParent(base, enfant, cote);
    if (present == parent || base.R_SEXE.LireCellule(parent) != SexeDuCote(cote)) return;
    if (present) {
        shell::Phrase question =
            shell::Msg(message::ConfirmerRemplacerParent, NomAffiche(session, enfant));
        question.suite = message::ConfirmerOperation;
        if (!session.dialogue.Confirmer(
                {question, {}, shell::Boutons::ValiderAnnuler, shell::Reponse::Annuler, true}))
            return;
    }
    static_cast<void>(cree ? ParentCree(session, enfant, cote, parent)
                           : DonnerParent(session, enfant, cote, parent));
}

}  // namespace

ChampEvenement RefuserLiens(shell::Session& session, NoEvenement evenement,
                            const LiensEvenement& liens) {
    storage::Base& base = *session.base;
    for (auto lien = liens.begin(); lien != liens.end(); ++lien) {
        if (std::find(liens.begin(), lien, *lien) != lien) {
            session.dialogue.Informer(shell::Msg(message::PersonneDejaDansLaListe));
            return ChampEvenement::Liens;
        }
        if (storage::SansDiese(lien->role).size() > storage::MaxTexteElement) {
            session.dialogue.Informer(shell::Msg(message::RoleTropLong));
            return ChampEvenement::Role;
        }
    }
    for (const NoOrdre individu : IndividusDe(liens, {})) {
        if (!individu) continue;
        const std::size_t reste = ListeSans(base, individu, evenement).size() / TailleEntree;
        const std::size_t roles = RolesDansListe(liens, individu).size();
        const std::size_t avant = base.R_LSTEVT.NbElements(individu) - reste;
        if (roles > avant && reste + roles > storage::MaxElements) {
            session.dialogue.Informer(shell::Msg(message::MaximumEvenementsPersonneAtteint,
                                                 NomAffiche(session, individu)));
            return ChampEvenement::Liens;
        }
    }
    return ChampEvenement::Aucun;
}

void EcrireParties(shell::Session& session, NoEvenement evenement, storage::PartiesEvt parties) {
    storage::Base& base = *session.base;
    const LiensEvenement anciens = base.R_EVT.Liens(evenement);
    if (parties.liens)
        for (LienEvenement& lien : *parties.liens)
            lien.role = storage::SansDiese(lien.role);
    const LiensEvenement nouveaux = parties.liens.value_or(anciens);
    if (parties.liens == anciens) parties.liens.reset();
    const bool deplace = parties.cleDate.has_value();
    const bool liens = parties.liens.has_value();

    // The rank is looked for by number: out before the date changes, in after it.
    if (deplace && base.R_TRI.RangEvt(evenement) != 0) base.R_TRI.RetirerEvt(evenement);
    base.R_EVT.EcrireEvt(evenement, parties);
    if (deplace) base.R_TRI.AjouterEvt(evenement);
    if (liens || deplace)
        for (const NoOrdre individu : IndividusDe(anciens, nouveaux))
            AccorderListe(base, individu, evenement, RolesDansListe(nouveaux, individu));
    base.marques.AffichagePerime = true;
}

void LierFamilles(shell::Session& session, NoEvenement evenement, const LiensEvenement& anciens,
                  const std::vector<NoOrdre>& crees) {
    const LiensEvenement liens = session.base->R_EVT.Liens(evenement);
    for (const LienEvenement& parent : liens) {
        if (parent.role != role::Pere && parent.role != role::Mere) continue;
        const Cote cote = parent.role == role::Pere ? Cote::Pere : Cote::Mere;
        const bool cree = std::find(crees.begin(), crees.end(), parent.individu) != crees.end();
        for (const LienEvenement& enfant : liens) {
            if (enfant.role != role::Enfant) continue;
            // Old pairs were settled when they were made.
            if (Contient(anciens, parent) && Contient(anciens, enfant)) continue;
            LierFamille(session, enfant.individu, cote, parent.individu, cree);
        }
    }
}

}  // namespace dorvane::records

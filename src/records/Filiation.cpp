#include "records/Filiation.h"

#include "messages/Famille.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/NomsAffiches.h"
#include "records/Questions.h"
#include "records/Unions.h"
#include "shell/Session.h"
#include "storage/Base.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

namespace dorvane::records {

namespace {

using shell::Msg;

Sexe SexeDe(storage::Base& base, NoOrdre n) {
    return base.R_SEXE.LireCellule(n);
}

void EcrireParent(storage::Base& base, NoOrdre enfant, Cote cote, NoOrdre parent) {
    (cote == Cote::Pere ? base.R_PERE : base.R_MERE).EcrireCellule(enfant, parent);
}

bool ListeALEnfant(storage::Base& base, NoOrdre parent, NoOrdre enfant) {
    const std::vector<NoOrdre> enfants = base.R_ENFANT.Elements(parent);
    return std::find(enfants.begin(), enfants.end(), enfant) != enfants.end();
}

/// `ancetre` stands somewhere above `individu`. A base that is damaged may go in circles: each
/// person is looked at once.
bool EstAscendant(storage::Base& base, NoOrdre ancetre, NoOrdre individu) {
    std::unordered_set<std::uint32_t> vus;
    return !ParcourirFamille(individu, [&](NoOrdre n, std::vector<NoOrdre>& suivants) {
        for (const NoOrdre parent : ParentsDe(base, n)) {
            if (!parent) continue;
            if (parent == ancetre) return false;
            if (vus.insert(parent.valeur).second) suivants.push_back(parent);
        }
        return true;
    });
}

/// Why the person cannot become the parent; none when nothing stands in the way.
NoMessage MotifContre(storage::Base& base, NoOrdre enfant, Cote cote, NoOrdre parent) {
    if (!Existe(base, enfant) || !Existe(base, parent)) return message::PersonneAbsenteDeLaBase;
    if (enfant == parent) return message::PropreParent;
    if (SexeDe(base, parent) == SexeDuCote(AutreCote(cote))) return message::SexeParentInadapte;
    if (EstAscendant(base, enfant, parent)) return message::ParentDescendDeLEnfant;
    if (base.R_ENFANT.NbElements(parent) >= storage::MaxElements &&
        !ListeALEnfant(base, parent, enfant))
        return message::MaximumEnfantsPersonneAtteint;
    return {};
}

/// Writes both sides of a link that `PeutEtreParent` allows, and takes the child out of the list of
/// the parent who stood there. Asks nothing.
void LierParent(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    storage::Base& base = *session.base;
    const NoOrdre ancien = LireParent(base, enfant, cote);
    if (ancien) MajEnfant(session, ancien, enfant, storage::ActionListe::Supprimer);
    // A damaged base may hold the child in the list without the cell: it must not stand there
    // twice.
    MajEnfant(session, parent, enfant, storage::ActionListe::Supprimer);
    EcrireParent(base, enfant, cote, parent);
    MajEnfant(session, parent, enfant, storage::ActionListe::Ajouter);
}

/// Asks whether `parent` is the parent of the child on a side where nobody stands, and makes the
/// link. A question that could only have no for an answer is not asked.
bool ProposerParent(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    const NoMessage motif = MotifContre(*session.base, enfant, cote, parent);
    if (motif && motif != message::MaximumEnfantsPersonneAtteint) return false;
    if (!session.dialogue.Confirmer(Nommer(session,
                                           cote == Cote::Pere ? message::DemanderSiEpouxEstLePere
                                                              : message::DemanderSiEpouseEstLaMere,
                                           enfant, parent)))
        return false;
    if (!PeutEtreParent(session, enfant, cote, parent)) return false;
    LierParent(session, enfant, cote, parent);
    return true;
}

/// Warns, without blocking, when the parent died in a year before that of the child's birth.
void AvertirDeces(shell::Session& session, NoOrdre parent, NoOrdre enfant) {
    storage::Base& base = *session.base;
    if (base.R_DECES.LireCellule(parent).empty()) return;
    if (base.R_DECES.AnneeTri(parent) < base.R_NAISS.AnneeTri(enfant))
        session.dialogue.Informer(Msg(message::DecesParentAvantNaissanceEnfant));
}

/// Who stands beside the person on the other side of a union; 0 for none.
NoOrdre PartenaireDuCote(storage::Base& base, NoOrdre individu, Cote cote, NoMariage mariage) {
    const NoOrdre epoux = base.R_EPOUX.LireCellule(mariage);
    const NoOrdre epouse = base.R_EPOUSE.LireCellule(mariage);
    if (cote == Cote::Pere) return epoux == individu ? epouse : NoOrdre{};
    return epouse == individu ? epoux : NoOrdre{};
}

/// For a child without a parent on the other side: the partners of `parent`, union by union, each
/// asked for once.
void ProposerPartenaires(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    storage::Base& base = *session.base;
    std::vector<NoOrdre> demandes;
    for (const NoMariage mariage : base.R_MARIAG.Elements(parent)) {
        const NoOrdre partenaire = PartenaireDuCote(base, parent, cote, mariage);
        if (!partenaire || LireParent(base, enfant, AutreCote(cote))) continue;
        if (std::find(demandes.begin(), demandes.end(), partenaire) != demandes.end()) continue;
        demandes.push_back(partenaire);
        if (ProposerParent(session, enfant, AutreCote(cote), partenaire)) return;
    }
}

/// Offers a union of both parents, who have none.
void ProposerUnion(shell::Session& session, Cote cote, NoOrdre parent, NoOrdre autre) {
    if (!session.dialogue.Confirmer(Nommer(session, message::ProposerCreerUnion, autre))) return;
    if (!PeutUnir(session, parent, autre)) return;
    if (cote == Cote::Pere)
        EcrireUnion(session, parent, autre);
    else
        EcrireUnion(session, autre, parent);
}

bool ConfirmerRetraitParent(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    return ConfirmerRetrait(session, Nommer(session,
                                            cote == Cote::Pere ? message::ConfirmerRetirerPere
                                                               : message::ConfirmerRetirerMere,
                                            parent, enfant));
}

}  // namespace

void MajEnfant(shell::Session& session, NoOrdre parent, NoOrdre enfant,
               storage::ActionListe action) {
    assert(action == storage::ActionListe::Supprimer ||
           session.base->R_ENFANT.NbElements(parent) < storage::MaxElements);
    session.base->R_ENFANT.ModifierListe(parent, enfant, action);
}

bool PeutEtreParent(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    assert(session.base);
    const NoMessage motif = MotifContre(*session.base, enfant, cote, parent);
    return !motif || Refuser(session, Nommer(session, motif, parent, enfant));
}

bool DonnerParent(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    storage::Base& base = *session.base;
    if (!PeutEtreParent(session, enfant, cote, parent)) return false;
    if (SexeDe(base, parent) != SexeDuCote(cote))
        return Refuser(session, Nommer(session, message::SexeParentInadapte, parent));
    LierParent(session, enfant, cote, parent);
    const NoOrdre autre = LireParent(base, enfant, AutreCote(cote));
    if (!autre)
        ProposerPartenaires(session, enfant, cote, parent);
    else if (!UnionDe(base, parent, autre))
        ProposerUnion(session, cote, parent, autre);
    ProposerEnfants(session, LireParent(base, enfant, AutreCote(cote)), cote, parent, false);
    return true;
}

bool ParentCree(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    if (!PeutEtreParent(session, enfant, cote, parent)) return false;
    LierParent(session, enfant, cote, parent);
    const NoOrdre autre = LireParent(*session.base, enfant, AutreCote(cote));
    if (autre) ProposerUnion(session, cote, parent, autre);
    AvertirDeces(session, parent, enfant);
    ProposerEnfants(session, autre, cote, parent, true);
    return true;
}

bool RetirerParent(shell::Session& session, NoOrdre enfant, Cote cote) {
    const NoOrdre parent = LireParent(*session.base, enfant, cote);
    if (!parent || !ConfirmerRetraitParent(session, enfant, cote, parent)) return false;
    MajEnfant(session, parent, enfant, storage::ActionListe::Supprimer);
    EcrireParent(*session.base, enfant, cote, {});
    return true;
}

bool PeutAvoirEnfant(shell::Session& session, NoOrdre parent, NoMariage mariage) {
    storage::Base& base = *session.base;
    if (!EstConnu(SexeDe(base, parent)))
        return Refuser(session, Msg(message::SexeRequisPourRattacherEnfant));
    const NoOrdre partenaire = mariage ? PartenaireDe(base, parent, mariage) : NoOrdre{};
    for (const NoOrdre n : {parent, partenaire})
        if (n && base.R_ENFANT.NbElements(n) >= storage::MaxElements)
            return Refuser(session, Nommer(session, message::MaximumEnfantsPersonneAtteint, n));
    return true;
}

bool ConfirmerRemplacement(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent) {
    const NoOrdre ancien = LireParent(*session.base, enfant, cote);
    if (!ancien || ancien == parent) return true;
    shell::Phrase texte = Nommer(session, message::ConfirmerRemplacerParent, enfant);
    texte.suite = message::ConfirmerOperation;
    return session.dialogue.Confirmer(
        {texte, shell::Phrase{}, shell::Boutons::ValiderAnnuler, shell::Reponse::Annuler, true});
}

bool AttacherEnfant(shell::Session& session, NoOrdre parent, NoOrdre enfant) {
    storage::Base& base = *session.base;
    const std::optional<Cote> sien = CoteDuSexe(SexeDe(base, parent));
    if (!sien) return Refuser(session, Msg(message::SexeRequisPourRattacherEnfant));
    const Cote cote = *sien;
    const NoOrdre ancien = LireParent(base, enfant, cote);
    if (ancien == parent && ListeALEnfant(base, parent, enfant))
        return Refuser(session, Nommer(session, message::InfoDejaEnfant, enfant, parent));
    if (!PeutEtreParent(session, enfant, cote, parent)) return false;
    if (!ConfirmerRemplacement(session, enfant, cote, parent)) return false;
    LierParent(session, enfant, cote, parent);
    ProposerPartenaires(session, enfant, cote, parent);
    return true;
}

bool EnfantCree(shell::Session& session, NoOrdre parent, NoOrdre enfant, NoMariage mariage) {
    storage::Base& base = *session.base;
    if (!PeutAvoirEnfant(session, parent, mariage)) return false;
    const Cote cote = CoteDuSexe(SexeDe(base, parent)).value();
    if (!PeutEtreParent(session, enfant, cote, parent)) return false;
    const NoOrdre autre = mariage ? PartenaireDuCote(base, parent, cote, mariage) : NoOrdre{};
    LierParent(session, enfant, cote, parent);
    if (autre && PeutEtreParent(session, enfant, AutreCote(cote), autre))
        LierParent(session, enfant, AutreCote(cote), autre);
    for (const Cote c : Cotes)
        if (const NoOrdre n = LireParent(base, enfant, c)) AvertirDeces(session, n, enfant);
    return true;
}

bool RetirerEnfant(shell::Session& session, NoOrdre parent, NoOrdre enfant) {
    storage::Base& base = *session.base;
    const bool pere = LireParent(base, enfant, Cote::Pere) == parent;
    const bool mere = LireParent(base, enfant, Cote::Mere) == parent;
    // Whose cell names no such parent is taken out of the list all the same.
    if (!pere && !mere && !ListeALEnfant(base, parent, enfant)) return false;
    const bool homme = SexeDe(base, parent) == Sexe::Homme;
    const Cote cote = (pere && !mere) || (pere == mere && homme) ? Cote::Pere : Cote::Mere;
    if (!ConfirmerRetraitParent(session, enfant, cote, parent)) return false;
    if (pere || mere) EcrireParent(base, enfant, cote, {});
    MajEnfant(session, parent, enfant, storage::ActionListe::Supprimer);
    return true;
}

void ProposerEnfants(shell::Session& session, NoOrdre autre, Cote cote, NoOrdre parent,
                     bool avertir) {
    if (!autre) return;
    storage::Base& base = *session.base;
    for (const NoOrdre enfant : base.R_ENFANT.Elements(autre)) {
        if (LireParent(base, enfant, cote)) continue;
        if (ProposerParent(session, enfant, cote, parent) && avertir)
            AvertirDeces(session, parent, enfant);
    }
}

}  // namespace dorvane::records

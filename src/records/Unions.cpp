#include "records/Unions.h"

#include "messages/Famille.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/Individus.h"
#include "records/Questions.h"
#include "shell/Session.h"
#include "storage/Base.h"

#include <cassert>
#include <optional>
#include <string>
#include <utility>

namespace dorvane::records {

namespace {

using shell::Msg;

bool SexeConnu(storage::Base& base, NoOrdre individu) {
    return EstConnu(base.R_SEXE.LireCellule(individu));
}

bool APlace(shell::Session& session, NoOrdre individu) {
    return session.base->R_MARIAG.NbElements(individu) < storage::MaxElements ||
           Refuser(session, Nommer(session, message::MaximumUnionsPersonneAtteint, individu));
}

}  // namespace

void MajMariage(shell::Session& session, NoOrdre individu, NoMariage mariage,
                storage::ActionListe action) {
    assert(action == storage::ActionListe::Supprimer ||
           session.base->R_MARIAG.NbElements(individu) < storage::MaxElements);
    session.base->R_MARIAG.ModifierListe(individu, mariage, action);
    session.base->marques.AffichagePerime = true;
}

bool PeutAvoirConjoint(shell::Session& session, NoOrdre individu, Provenance provenance) {
    if (!SexeConnu(*session.base, individu))
        return Refuser(
            session, Msg(provenance == Provenance::Cherche ? message::SexeRequisPourChercherConjoint
                                                           : message::SexeRequisPourCreerConjoint));
    return APlace(session, individu);
}

bool PeutUnir(shell::Session& session, NoOrdre individu, NoOrdre partenaire) {
    storage::Base& base = *session.base;
    for (const NoOrdre n : {individu, partenaire})
        if (!Existe(base, n))
            return Refuser(session, Nommer(session, message::PersonneAbsenteDeLaBase, n));
    if (individu == partenaire)
        return Refuser(session, Nommer(session, message::PropreConjoint, individu));
    if (SexeConnu(base, individu) &&
        base.R_SEXE.LireCellule(individu) == base.R_SEXE.LireCellule(partenaire))
        return Refuser(session,
                       Nommer(session, message::ConjointsDeMemeSexe, individu, partenaire));
    return APlace(session, individu) && APlace(session, partenaire);
}

NoMariage EcrireUnion(shell::Session& session, NoOrdre epoux, NoOrdre epouse) {
    storage::Base& base = *session.base;
    const NoMariage mariage = base.NouveauMariage();
    if (!mariage) {
        session.dialogue.Informer(Msg(message::MaximumUnionsBaseAtteint));
        return {};
    }
    base.R_EPOUX.EcrireCellule(mariage, epoux);
    base.R_EPOUSE.EcrireCellule(mariage, epouse);
    base.R_DEBMAR.EcrireCellule(mariage, {});
    base.R_FINMAR.EcrireCellule(mariage, {});
    base.R_TXTMAR.EcrireTexte(mariage, {});
    MajMariage(session, epoux, mariage, storage::ActionListe::Ajouter);
    MajMariage(session, epouse, mariage, storage::ActionListe::Ajouter);
    return mariage;
}

NoMariage CreerUnion(shell::Session& session, NoOrdre individu, NoOrdre partenaire) {
    storage::Base& base = *session.base;
    if (!PeutAvoirConjoint(session, individu, Provenance::Cherche) ||
        !PeutUnir(session, individu, partenaire))
        return {};
    const std::optional<Cote> cote = CoteDuSexe(base.R_SEXE.LireCellule(individu));
    // `PeutAvoirConjoint` has asked for a known sex.
    if (!cote) return {};
    const NoMariage mariage = *cote == Cote::Pere ? EcrireUnion(session, individu, partenaire)
                                                  : EcrireUnion(session, partenaire, individu);
    if (!mariage) return {};
    ProposerEnfants(session, individu, AutreCote(*cote), partenaire, false);
    ProposerEnfants(session, partenaire, *cote, individu, false);
    return mariage;
}

bool RetirerUnion(shell::Session& session, NoMariage mariage) {
    storage::Base& base = *session.base;
    if (!mariage || mariage.valeur > base.entete.DernierMariage) return false;
    const NoOrdre epoux = base.R_EPOUX.LireCellule(mariage);
    const NoOrdre epouse = base.R_EPOUSE.LireCellule(mariage);
    const shell::Phrase perte =
        epoux && epouse
            ? Nommer(session, message::ConfirmerSupprimerUnion, epoux, epouse)
            : Nommer(session, message::ConfirmerSupprimerUnionSansConjoint, epoux ? epoux : epouse);
    if (!ConfirmerRetrait(session, perte)) return false;
    // While both partners are still known: the words of the text leave the index of each.
    EcrireTexteMariage(session, mariage, {});
    base.R_DEBMAR.EcrireCellule(mariage, {});
    base.R_FINMAR.EcrireCellule(mariage, {});
    base.R_EPOUX.EcrireCellule(mariage, {});
    base.R_EPOUSE.EcrireCellule(mariage, {});
    for (const NoOrdre n : {epoux, epouse})
        if (n) MajMariage(session, n, mariage, storage::ActionListe::Supprimer);
    return true;
}

std::size_t ReordonnerUnion(shell::Session& session, NoOrdre individu, std::size_t rang, int pas) {
    storage::Base& base = *session.base;
    std::string liste{base.R_MARIAG.ListeDe(individu)};
    const std::size_t nombre = liste.size() / 2;
    if (rang == 0 || rang > nombre || (pas != -1 && pas != 1)) return 0;
    if ((pas < 0 && rang == 1) || (pas > 0 && rang == nombre)) return 0;
    const std::size_t vers = pas < 0 ? rang - 1 : rang + 1;
    for (std::size_t i = 0; i < 2; ++i)
        std::swap(liste[(rang - 1) * 2 + i], liste[(vers - 1) * 2 + i]);
    base.R_MARIAG.EcrireListe(individu, liste);
    base.marques.AffichagePerime = true;
    return vers;
}

}  // namespace dorvane::records

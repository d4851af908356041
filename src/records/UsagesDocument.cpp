#include "messages/Faits.h"
#include "records/Famille.h"
#include "records/FicheDocument.h"
#include "records/Questions.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Octets.h"

#include <algorithm>
#include <utility>

namespace dorvane::records {
namespace {

using Liste = std::vector<NoDocument>;

bool EstDocument(storage::Base& base, NoDocument document) {
    return static_cast<bool>(base.R_IMAGE.LireCellule(document));
}

bool Contient(const Liste& liste, NoDocument document) {
    return std::find(liste.begin(), liste.end(), document) != liste.end();
}

/// Swaps an entry with its neighbour; false at the ends.
bool Echanger(Liste& liste, std::size_t rang, int pas) {
    const std::size_t vers = pas < 0 ? rang - 1 : rang + 1;
    if (rang - 1 >= liste.size() || vers - 1 >= liste.size()) return false;
    std::swap(liste[rang - 1], liste[vers - 1]);
    return true;
}

void Ecrire(storage::Base& base, NoOrdre individu, const Liste& liste) {
    std::string octets;
    for (const NoDocument document : liste)
        octets += NumVersChaine2(document.valeur);
    base.R_LSTIMG.EcrireListe(individu, octets);
    base.marques.AffichagePerime = true;
}

void Ecrire(storage::Base& base, NoEvenement evenement, Liste liste) {
    storage::PartiesEvt parties;
    parties.documents = std::move(liste);
    base.R_EVT.EcrireEvt(evenement, parties);
    base.marques.AffichagePerime = true;
}

bool ConfirmerDetache(shell::Session& session, NoDocument document) {
    return ConfirmerRetrait(
        session, shell::Msg(message::ConfirmerDetacherDocument, TitreAffiche(session, document)));
}

}  // namespace

bool PeutAvoirDocument(shell::Session& session, NoOrdre individu) {
    if (!session.base || !Existe(*session.base, individu)) return false;
    return session.base->R_LSTIMG.NbElements(individu) < storage::MaxElements ||
           Refuser(session, Nommer(session, message::MaximumDocumentsPersonneAtteint, individu));
}

bool AttacherDocument(shell::Session& session, NoOrdre individu, NoDocument document) {
    if (!session.base || !EstDocument(*session.base, document) || !Existe(*session.base, individu))
        return false;
    Liste liste = session.base->R_LSTIMG.Elements(individu);
    if (Contient(liste, document))
        return Refuser(session, shell::Msg(message::DocumentDejaDansLaListe));
    if (!PeutAvoirDocument(session, individu)) return false;
    liste.push_back(document);
    Ecrire(*session.base, individu, liste);
    return true;
}

bool DetacherDocument(shell::Session& session, NoOrdre individu, std::size_t rang) {
    if (!session.base) return false;
    Liste liste = session.base->R_LSTIMG.Elements(individu);
    if (rang - 1 >= liste.size() || !ConfirmerDetache(session, liste[rang - 1])) return false;
    liste.erase(liste.begin() + static_cast<std::ptrdiff_t>(rang - 1));
    Ecrire(*session.base, individu, liste);
    return true;
}

bool DeplacerDocument(shell::Session& session, NoOrdre individu, std::size_t rang, int pas) {
    if (!session.base) return false;
    Liste liste = session.base->R_LSTIMG.Elements(individu);
    if (!Echanger(liste, rang, pas)) return false;
    Ecrire(*session.base, individu, liste);
    return true;
}

bool AttacherDocument(shell::Session& session, NoEvenement evenement, NoDocument document) {
    if (!session.base || !EstDocument(*session.base, document) ||
        !session.base->R_EVT.LireCellule(evenement))
        return false;
    Liste liste = session.base->R_EVT.Documents(evenement);
    if (Contient(liste, document))
        return Refuser(session, shell::Msg(message::DocumentDejaDansLaListe));
    liste.push_back(document);
    Ecrire(*session.base, evenement, std::move(liste));
    return true;
}

bool DetacherDocument(shell::Session& session, NoEvenement evenement, std::size_t rang) {
    if (!session.base) return false;
    Liste liste = session.base->R_EVT.Documents(evenement);
    if (rang - 1 >= liste.size() || !ConfirmerDetache(session, liste[rang - 1])) return false;
    liste.erase(liste.begin() + static_cast<std::ptrdiff_t>(rang - 1));
    Ecrire(*session.base, evenement, std::move(liste));
    return true;
}

bool DeplacerDocument(shell::Session& session, NoEvenement evenement, std::size_t rang, int pas) {
    if (!session.base) return false;
    Liste liste = session.base->R_EVT.Documents(evenement);
    if (!Echanger(liste, rang, pas)) return false;
    Ecrire(*session.base, evenement, std::move(liste));
    return true;
}

UsagesDocument ChercherUsages(shell::Session& session, NoDocument document) {
    UsagesDocument usages;
    if (!session.base || !document) return usages;
    storage::Base& base = *session.base;
    for (std::uint32_t n = 1; n <= base.entete.DernierIndividu; ++n) {
        const NoOrdre individu{n};
        if (base.R_LSTIMG.LireCellule(individu) &&
            Contient(base.R_LSTIMG.Elements(individu), document))
            usages.individus.push_back(individu);
    }
    for (std::uint32_t e = 1; e <= base.entete.DernierEvenement; ++e) {
        const NoEvenement evenement{e};
        if (base.R_EVT.LireCellule(evenement) &&
            Contient(base.R_EVT.Documents(evenement), document))
            usages.evenements.push_back(evenement);
    }
    std::stable_sort(usages.evenements.begin(), usages.evenements.end(),
                     [&base](NoEvenement a, NoEvenement b) {
                         return base.R_EVT.CleDateEvt(a) < base.R_EVT.CleDateEvt(b);
                     });
    return usages;
}

}  // namespace dorvane::records

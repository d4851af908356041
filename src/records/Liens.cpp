#include "records/Liens.h"

#include "messages/Famille.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/Questions.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"

#include <algorithm>

namespace dorvane::records {

namespace {

using shell::Msg;

/// The label as it is stored.
std::string Stocke(const shell::Session& session, std::string_view libelle) {
    return storage::SansDiese(shell::TagDeLibelle(session.catalogue, SansBlancs(libelle)));
}

/// Rank of the entry with that person and that stored label; 0 when there is none.
std::size_t RangLien(storage::Base& base, NoOrdre individu, NoOrdre autre,
                     std::string_view stocke) {
    for (std::size_t k = 1; k <= base.R_LIEN.NbElements(individu); ++k)
        if (base.R_LIEN.ElementListe(individu, k) == autre &&
            base.R_LIEN.TexteElement(individu, k) == stocke)
            return k;
    return 0;
}

}  // namespace

std::vector<LienAffiche> ListerLiens(shell::Session& session, NoOrdre individu) {
    std::vector<LienAffiche> liens;
    storage::Base& base = *session.base;
    for (std::size_t k = 1; k <= base.R_LIEN.NbElements(individu); ++k) {
        LienAffiche lien{
            k, base.R_LIEN.ElementListe(individu, k),
            shell::LibelleDeTag(session.catalogue, base.R_LIEN.TexteElement(individu, k))};
        const bool double_ = std::any_of(liens.begin(), liens.end(), [&lien](const auto& l) {
            return l.autre == lien.autre && l.libelle == lien.libelle;
        });
        if (!double_ && Existe(base, lien.autre)) liens.push_back(std::move(lien));
    }
    return liens;
}

bool LibelleValable(shell::Session& session, std::string_view libelle) {
    const std::string stocke = Stocke(session, libelle);
    if (stocke.empty()) return Refuser(session, Msg(message::LibelleLienVide));
    return stocke.size() <= storage::MaxTexteElement ||
           Refuser(session, Msg(message::LibelleLienTropLong));
}

bool PeutLier(shell::Session& session, NoOrdre individu, NoOrdre autre) {
    for (const NoOrdre n : {individu, autre})
        if (!Existe(*session.base, n))
            return Refuser(session, Nommer(session, message::PersonneAbsenteDeLaBase, n));
    return individu != autre ||
           Refuser(session, Nommer(session, message::LienAvecSoiMeme, individu));
}

bool AjouterLien(shell::Session& session, NoOrdre individu, NoOrdre autre,
                 std::string_view libelle) {
    storage::Base& base = *session.base;
    if (!PeutLier(session, individu, autre)) return false;
    if (!LibelleValable(session, libelle)) return false;
    const std::string stocke = Stocke(session, libelle);
    // An old base may hold one side only: the missing one is then added.
    const bool ici = RangLien(base, individu, autre, stocke) != 0;
    const bool labas = RangLien(base, autre, individu, stocke) != 0;
    if (ici && labas)
        return Refuser(session, Nommer(session, message::InfoDejaLies, individu, autre));
    for (const auto& [n, present] : {std::pair{individu, ici}, std::pair{autre, labas}})
        if (!present && base.R_LIEN.NbElements(n) >= storage::MaxElements)
            return Refuser(session, Nommer(session, message::MaximumLiensPersonneAtteint, n));
    if (!ici) base.R_LIEN.ModifierListe(individu, autre, storage::ActionListe::Ajouter, stocke);
    if (!labas) base.R_LIEN.ModifierListe(autre, individu, storage::ActionListe::Ajouter, stocke);
    return true;
}

bool ChangerLien(shell::Session& session, NoOrdre individu, std::size_t rang,
                 std::string_view libelle) {
    storage::Base& base = *session.base;
    const NoOrdre autre = base.R_LIEN.ElementListe(individu, rang);
    if (!autre || !LibelleValable(session, libelle)) return false;
    const std::string stocke = Stocke(session, libelle);
    if (stocke == base.R_LIEN.TexteElement(individu, rang)) return false;
    if (RangLien(base, individu, autre, stocke) != 0)
        return Refuser(session, Nommer(session, message::InfoDejaLies, individu, autre));
    base.R_LIEN.ChangerTexte(individu, rang, stocke);
    return true;
}

bool RetirerLien(shell::Session& session, NoOrdre individu, std::size_t rang) {
    storage::Base& base = *session.base;
    const NoOrdre autre = base.R_LIEN.ElementListe(individu, rang);
    if (!autre) return false;
    const std::string stocke = base.R_LIEN.TexteElement(individu, rang);
    shell::Phrase perte = Nommer(session, message::ConfirmerSupprimerLien, {}, autre);
    perte.valeur = shell::LibelleDeTag(session.catalogue, stocke);
    if (!ConfirmerRetrait(session, perte)) return false;
    base.R_LIEN.ModifierListe(individu, autre, storage::ActionListe::Supprimer, stocke);
    base.R_LIEN.ModifierListe(autre, individu, storage::ActionListe::Supprimer, stocke);
    return true;
}

}  // namespace dorvane::records

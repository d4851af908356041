#include "records/FicheEvenement.h"

#include "messages/Dorvane.h"
#include "messages/Faits.h"
#include "messages/Messages.h"
#include "records/EcrireEvenement.h"
#include "records/Incidents.h"
#include "records/NomsAffiches.h"
#include "records/Questions.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/MotsDates.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace dorvane::records {
namespace {

using storage::DescriptionEvt;
using storage::LienEvenement;

constexpr std::size_t MaxDescription = 32000;  // bytes of the three texts and what parts them

std::string DateEnMots(shell::Session& session, NoEvenement e) {
    const std::int32_t cle = session.base->R_EVT.CleDateEvt(e);
    return cle == storage::CleSansDate ? std::string{} : AfficherDateEvenement(cle, session.Mots());
}

/// A person with two roles counts once.
std::size_t NombreDePersonnes(const LiensEvenement& liens) {
    std::set<NoOrdre> personnes;
    for (const LienEvenement& lien : liens)
        personnes.insert(lien.individu);
    return personnes.size();
}

/// Outer blanks, as foreign files bring them, are no difference.
DescriptionEvt Nette(const DescriptionEvt& description) {
    const auto net = [](const std::string& texte) { return std::string{SansBlancs(texte)}; };
    return {net(description.lieu), net(description.libelle), net(description.type)};
}

DescriptionEvt DescriptionDe(const SaisieEvenement& saisie) {
    return Nette({saisie.lieu, saisie.libelle, saisie.type});
}

/// What would be stored: what a record cannot hold is replaced.
DescriptionEvt Rangee(const DescriptionEvt& description) {
    DescriptionEvt rangee;
    const auto ranger = [](const std::string& champ) {
        std::string propre = storage::SansDiese(champ);
        std::replace(propre.begin(), propre.end(), '\0', ' ');
        return propre;
    };
    rangee.lieu = ranger(description.lieu);
    rangee.libelle = ranger(description.libelle);
    rangee.type = ranger(description.type);
    return rangee;
}

IssueEvenement RefuserSaisie(shell::Session& session, NoMessage message, ChampEvenement champ) {
    session.dialogue.Informer(shell::Msg(message));
    return {IssueEvenement::Etat::Refuse, champ};
}

/// What differs from the stored event; all of a new one.
storage::PartiesEvt Differences(storage::Base& base, const SaisieEvenement& saisie, Serie date) {
    const NoEvenement e = saisie.evenement;
    const bool nouveau = !e;
    storage::PartiesEvt parties;
    if (nouveau || base.R_EVT.CleDateEvt(e) != date) parties.cleDate = date;
    const std::string note = storage::SansDiese(saisie.note);
    if (nouveau ? !note.empty() : base.R_EVT.NoteEvt(e) != note) parties.note = note;
    const DescriptionEvt description = Rangee(DescriptionDe(saisie));
    if (nouveau || Nette(base.R_EVT.Description(e)) != description)
        parties.description = description;
    if (nouveau ? !saisie.documents.empty() : base.R_EVT.Documents(e) != saisie.documents)
        parties.documents = saisie.documents;
    const LiensEvenement anciens = nouveau ? LiensEvenement{} : base.R_EVT.Liens(e);
    LiensEvenement liens = saisie.liens;
    for (LienEvenement& lien : liens)
        lien.role = storage::SansDiese(lien.role);
    if (liens != anciens) parties.liens = std::move(liens);
    return parties;
}

bool Vide(const storage::PartiesEvt& parties) {
    return !parties.cleDate && !parties.note && !parties.description && !parties.documents &&
           !parties.liens;
}

bool RolesEnOrdre(shell::Session& session, const SaisieEvenement& saisie) {
    return RolesManquants(session, saisie).empty() &&
           std::all_of(saisie.liens.begin(), saisie.liens.end(), [&](const LienEvenement& lien) {
               return RoleConvient(session, saisie.type, lien);
           });
}

/// The numbers of an event in its own list and in those of its persons disagree in damaged bases
/// only; nothing more is looked for.
void RetirerDesFiches(storage::Base& base, NoEvenement e) {
    for (const LienEvenement& lien : base.R_EVT.Liens(e))
        base.R_LSTEVT.ModifierListe(lien.individu, e, storage::ActionListe::Supprimer);
}

SaisieEvenement Lire(shell::Session& session, NoEvenement evenement) {
    SaisieEvenement saisie;
    if (!session.base || !session.base->R_EVT.LireCellule(evenement)) return saisie;
    storage::Evenements& evt = session.base->R_EVT;
    saisie.evenement = evenement;
    saisie.date = DateEnMots(session, evenement);
    const DescriptionEvt description = evt.Description(evenement);
    saisie.type = description.type;
    saisie.lieu = description.lieu;
    saisie.libelle = description.libelle;
    saisie.note = evt.NoteEvt(evenement);
    saisie.liens = evt.Liens(evenement);
    saisie.documents = evt.Documents(evenement);
    return saisie;
}

}  // namespace

SaisieEvenement ChargerEvenement(shell::Session& session, NoEvenement evenement) {
    SaisieEvenement saisie = Lire(session, evenement);
    DireIncident(session, storage::Incident::EvenementAbime, saisie.evenement.valeur);
    return saisie;
}

SaisieEvenement NouvelEvenement(NoOrdre pour, std::string_view role) {
    SaisieEvenement saisie;
    saisie.pour = pour;
    if (pour) saisie.liens.push_back({pour, std::string{role}});
    return saisie;
}

bool EvenementModifie(shell::Session& session, const SaisieEvenement& saisie) {
    if (!session.base) return false;
    if (!saisie.evenement)
        return !saisie.date.empty() || !saisie.type.empty() || !saisie.lieu.empty() ||
               !saisie.libelle.empty() || !saisie.note.empty() || !saisie.documents.empty() ||
               saisie.liens.size() > 1 ||
               std::any_of(saisie.liens.begin(), saisie.liens.end(),
                           [&saisie](const LienEvenement& l) { return l.individu != saisie.pour; });
    const std::optional<Serie> date =
        SaisirDateEvenement(saisie.date, session.Ordre(), session.Mots());
    // A date that cannot be read yet has been typed, unless there is none on either side.
    if (!date && saisie.date != DateEnMots(session, saisie.evenement)) return true;
    return !Vide(Differences(*session.base, saisie,
                             date.value_or(session.base->R_EVT.CleDateEvt(saisie.evenement))));
}

IssueEvenement EcrireSaisie(shell::Session& session, SaisieEvenement& saisie) {
    using Etat = IssueEvenement::Etat;
    storage::Base& base = *session.base;
    if (SansBlancs(saisie.date).empty())
        return RefuserSaisie(session, message::DateEvenementVide, ChampEvenement::Date);
    const std::optional<Serie> date =
        SaisirDateEvenement(saisie.date, session.Ordre(), session.Mots());
    if (!date) return RefuserSaisie(session, message::DateEvenementInvalide, ChampEvenement::Date);
    if (SansBlancs(saisie.type).empty())
        return RefuserSaisie(session, message::TypeEvenementVide, ChampEvenement::Type);

    const DescriptionEvt description = Rangee(DescriptionDe(saisie));
    if (description.lieu.size() + description.libelle.size() + description.type.size() + 2 >
        MaxDescription)
        return RefuserSaisie(session, message::LieuLibelleEtTypeTropLongs, ChampEvenement::Lieu);
    saisie.type = description.type;
    ChoisirRoles(session, saisie);
    if (const ChampEvenement champ = RefuserLiens(session, saisie.evenement, saisie.liens);
        champ != ChampEvenement::Aucun)
        return {Etat::Refuse, champ};
    if (!saisie.evenement && base.entete.DernierEvenement >= storage::MaxEvenements)
        return RefuserSaisie(session, message::MaximumEvenementsBaseAtteint, ChampEvenement::Aucun);

    storage::PartiesEvt parties = Differences(base, saisie, *date);
    const bool inchange = Vide(parties);
    if (!saisie.evenement) saisie.evenement = base.NouvelEvenement();
    saisie.pour = {};
    const LiensEvenement anciens = base.R_EVT.Liens(saisie.evenement);
    if (!inchange) EcrireParties(session, saisie.evenement, std::move(parties));
    saisie.date = DateEnMots(session, saisie.evenement);
    LierFamilles(session, saisie.evenement, anciens, saisie.crees);
    saisie.crees.clear();

    if (!RolesEnOrdre(session, saisie)) {
        session.dialogue.Informer(shell::Msg(message::RoleNonAttribueOuInadapte));
        return {Etat::Incomplet, ChampEvenement::Liens};
    }
    return {inchange ? Etat::Inchange : Etat::Ecrit, ChampEvenement::Aucun};
}

bool SupprimerEvenement(shell::Session& session, NoEvenement evenement) {
    if (!session.base || !session.base->R_EVT.LireCellule(evenement)) return false;
    storage::Base& base = *session.base;
    const std::size_t nombre = NombreDePersonnes(base.R_EVT.Liens(evenement));
    if (!ConfirmerRetrait(session,
                          shell::Msg(message::ConfirmerSupprimerEvenement,
                                     ResumeEvenement(session, evenement), std::to_string(nombre))))
        return false;
    RetirerDesFiches(base, evenement);
    if (base.R_TRI.RangEvt(evenement) != 0) base.R_TRI.RetirerEvt(evenement);
    base.R_EVT.EffacerEvt(evenement);
    base.marques.AffichagePerime = true;
    return true;
}

LigneEvenement LigneDe(shell::Session& session, NoEvenement evenement) {
    LigneEvenement ligne;
    if (!session.base || !session.base->R_EVT.LireCellule(evenement)) return ligne;
    ligne.evenement = evenement;
    ligne.date = DateEnMots(session, evenement);
    const DescriptionEvt& description = session.base->R_EVT.Description(evenement);
    ligne.type = shell::LibelleDeTag(session.catalogue, description.type);
    ligne.lieu = description.lieu;
    ligne.libelle = description.libelle;
    return ligne;
}

std::vector<LigneEvenement> EvenementsDe(shell::Session& session, NoOrdre individu) {
    std::vector<LigneEvenement> lignes;
    if (!session.base) return lignes;
    storage::ListeEvenements& liste = session.base->R_LSTEVT;
    const std::size_t nombre = liste.NbElements(individu);
    for (std::size_t k = 1; k <= nombre; ++k) {
        LigneEvenement ligne = LigneDe(session, liste.ElementListe(individu, k));
        ligne.role = liste.TexteElement(individu, k);
        if (ligne.evenement) lignes.push_back(std::move(ligne));
    }
    return lignes;
}

std::string ResumeEvenement(shell::Session& session, NoEvenement evenement) {
    const LigneEvenement ligne = LigneDe(session, evenement);
    std::string resume = ligne.type;
    const auto ajouter = [&resume](std::string_view avant, const std::string& texte) {
        if (texte.empty()) return;
        if (!resume.empty()) resume += avant;
        resume += texte;
    };
    ajouter(", ", ligne.libelle);
    ajouter(", ", ligne.date);
    ajouter(", ", ligne.lieu);
    if (!ligne.evenement) return resume;
    const std::vector<shell::RoleEvenement> roles =
        session.parametres.RolesEvenement(session.base->R_EVT.TypeEvt(evenement));
    std::string personnes;
    for (const LienEvenement& lien : session.base->R_EVT.Liens(evenement)) {
        const bool principal =
            std::any_of(roles.begin(), roles.end(), [&lien](const shell::RoleEvenement& role) {
                return role.principal && role.label == lien.role;
            });
        if (!principal) continue;
        if (!personnes.empty()) personnes += ", ";
        personnes += NomAffiche(session, lien.individu);
    }
    ajouter(" : ", personnes);
    return resume;
}

}  // namespace dorvane::records

#include "records/AccordEvenements.h"

#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/Fiche.h"
#include "records/FicheEvenement.h"
#include "records/Individus.h"
#include "records/NomsAffiches.h"
#include "records/TexteFiche.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/MotsDates.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <optional>
#include <vector>

namespace dorvane::records {
namespace {

using storage::LienEvenement;

NoMessage MessageDe(MiroirFiche miroir) {
    switch (miroir) {
        case MiroirFiche::Naissance:
            return message::ProposerMajEvenementNaissance;
        case MiroirFiche::Bapteme:
            return message::ProposerMajEvenementBapteme;
        case MiroirFiche::Deces:
            return message::ProposerMajEvenementDeces;
        case MiroirFiche::Inhumation:
            return message::ProposerMajEvenementInhumation;
        case MiroirFiche::Mariage:
            return message::ProposerMajEvenementMariage;
        case MiroirFiche::Aucun:
            break;
    }
    return {};
}

/// A date as its two fields show it, in one text.
std::string Joindre(std::string_view jourMois, std::string_view annee) {
    return std::string{SansBlancs(std::string{jourMois} + ' ' + std::string{SansBlancs(annee)})};
}

/// A place as a sheet gives it back: dots and marks of places are lost on the way to the record.
/// "St. Malo" is no other place than what came of it.
std::string LieuDeFiche(std::string_view lieu) {
    std::string rendu = PointsEnBlancs(BlancsEnPoints(lieu));
    std::replace_if(
        rendu.begin(), rendu.end(),
        [](char c) { return c == marqueur::LieuNaissance || c == marqueur::LieuDeces; }, '-');
    return rendu;
}

bool Pareils(const DateEtLieu& a, const DateEtLieu& b) {
    return a.date == b.date && MemeLieu(a.lieu, b.lieu);
}

/// The dated row of the sheet for a keyword; nothing when the sheet has none.
std::optional<std::size_t> RangeeDe(storage::Base& base, std::string_view tag) {
    const storage::DefinitionSlots definition = base.DefinitionIndividu();
    for (std::size_t k = 0; k < storage::NbSlots(definition.slots); ++k)
        if (definition.libelles[k] == tag && definition.slots[k].drapeau == '1') return k;
    return std::nullopt;
}

std::optional<std::size_t> RangeeDe(storage::Base& base, MiroirFiche miroir) {
    return RangeeDe(base, miroir == MiroirFiche::Bapteme ? tag::Bapteme : tag::Inhumation);
}

/// One of the two day-month fields of a name line; the names stay, byte for byte.
void EcrireJourMois(shell::Session& session, NoOrdre individu, const std::string& jourMois,
                    bool naissance) {
    storage::ColonneNoms& noms = session.base->R_NOM;
    const storage::LigneNom ligne = noms.LireNom(individu);
    const std::string range = SaisirJourMois(session, jourMois);
    if ((naissance ? ligne.jourMoisNaissance : ligne.jourMoisDeces) == range) return;
    std::string nouvelle{ligne.nom};
    for (const std::string_view champ :
         {ligne.prenom, ligne.autrePrenom,
          naissance ? std::string_view{range} : ligne.jourMoisNaissance,
          naissance ? ligne.jourMoisDeces : std::string_view{range}})
        nouvelle += ';' + std::string{champ};
    noms.EcrireNom(individu, nouvelle);
}

void ReporterFiche(shell::Session& session, NoOrdre individu, MiroirFiche miroir,
                   const DateEtLieu& fait) {
    const DateCoupee date = CouperDate(fait.date);
    SaisieFiche fiche = ChargerFiche(session, individu);
    if (miroir == MiroirFiche::Naissance) {
        ChangerAnneeNaissance(session, individu, date.annee);
        EcrireJourMois(session, individu, date.jourMois, true);
        fiche.lieuNaissance = fait.lieu;
    } else if (miroir == MiroirFiche::Deces) {
        ChangerAnneeDeces(session, individu, date.annee);
        EcrireJourMois(session, individu, date.jourMois, false);
        fiche.lieuDeces = fait.lieu;
    } else if (const auto rangee = RangeeDe(*session.base, miroir)) {
        fiche.slots[*rangee] = {date.jourMois, date.annee, fait.lieu};
    }
    EcrireTexteIndividu(session, individu, ComposerTexteIndividu(session, fiche));
}

void ReporterUnion(shell::Session& session, NoMariage mariage, const DateEtLieu& fait) {
    const DateCoupee date = CouperDate(fait.date);
    SaisieUnion fiche = ChargerUnion(session, mariage);
    fiche.jourMois = date.jourMois;
    fiche.lieu = fait.lieu;
    if (session.base->R_DEBMAR.LireCellule(mariage) != date.annee)
        session.base->R_DEBMAR.EcrireCellule(mariage, date.annee);
    EcrireTexteMariage(session, mariage, ComposerTexteMariage(session, fiche));
}

NoOrdre TenantDuRole(const std::vector<LienEvenement>& liens, std::string_view role) {
    const auto lien = std::find_if(liens.begin(), liens.end(),
                                   [role](const LienEvenement& l) { return l.role == role; });
    return lien == liens.end() ? NoOrdre{} : lien->individu;
}

std::optional<DateEtLieu> LireMiroir(shell::Session& session, NoOrdre individu,
                                     MiroirFiche miroir) {
    if (miroir == MiroirFiche::Aucun) return std::nullopt;
    if (miroir != MiroirFiche::Mariage) return LireFiche(session, individu, miroir);
    if (session.base->R_MARIAG.NbElements(individu) != 1) return std::nullopt;
    return LireUnion(session, session.base->R_MARIAG.ElementListe(individu, 1));
}

/// Each event of the person that repeats the sheet and differs is offered to be brought into line,
/// one question each.
void AccorderEvenements(shell::Session& session, NoOrdre individu) {
    assert(session.base);
    // An event that moves changes the list of the person: it is read first.
    for (const LigneEvenement& ligne : EvenementsDe(session, individu)) {
        const MiroirFiche miroir =
            MiroirDe(session.base->R_EVT.TypeEvt(ligne.evenement), ligne.role);
        const std::optional<DateEtLieu> fiche = LireMiroir(session, individu, miroir);
        if (!fiche || Pareils(*fiche, LireEvenement(session, ligne.evenement))) continue;
        if (!session.dialogue.Confirmer(shell::Msg(MessageDe(miroir)),
                                        shell::Msg(message::TitreMajEvenements)))
            continue;
        SaisieEvenement saisie = ChargerEvenement(session, ligne.evenement);
        saisie.date = fiche->date;
        saisie.lieu = fiche->lieu;
        // A refusal has been told; the event then stays as it is.
        static_cast<void>(ValiderEvenement(session, saisie));
    }
}

/// The sheet of each person whom the event mirrors is offered its date and place when they differ.
void AccorderFiches(shell::Session& session, NoEvenement evenement) {
    assert(session.base);
    storage::Base& base = *session.base;
    const std::string type = base.R_EVT.TypeEvt(evenement);
    const std::vector<LienEvenement> liens = base.R_EVT.Liens(evenement);
    const DateEtLieu fait = LireEvenement(session, evenement);
    std::vector<NoMariage> vues;
    for (const LienEvenement& lien : liens) {
        const MiroirFiche miroir = MiroirDe(type, lien.role);
        if (miroir == MiroirFiche::Aucun || !Existe(base, lien.individu)) continue;
        NoMariage mariage{};
        std::optional<DateEtLieu> fiche;
        if (miroir == MiroirFiche::Mariage) {
            mariage = UnionRacontee(base, liens, lien.individu, CouperDate(fait.date).annee);
            // Husband and wife share the union: one question.
            if (!mariage || std::find(vues.begin(), vues.end(), mariage) != vues.end()) continue;
            vues.push_back(mariage);
            fiche = LireUnion(session, mariage);
        } else {
            fiche = LireFiche(session, lien.individu, miroir);
        }
        if (!fiche || Pareils(*fiche, fait)) continue;
        // The title tells whose sheet.
        const std::string nom{SansBlancs(NomEtDates(session, lien.individu))};
        if (!session.dialogue.Confirmer(shell::Msg(message::ProposerReporterEvenementSurFiche),
                                        shell::Litteral(nom)))
            continue;
        if (mariage)
            ReporterUnion(session, mariage, fait);
        else
            ReporterFiche(session, lien.individu, miroir, fait);
        base.marques.AffichagePerime = true;
    }
}

}  // namespace

bool MemeLieu(std::string_view a, std::string_view b) {
    return LieuDeFiche(a) == LieuDeFiche(b);
}

std::optional<DateEtLieu> LireFiche(shell::Session& session, NoOrdre individu, MiroirFiche miroir) {
    const SaisieFiche fiche = ChargerFiche(session, individu);
    if (miroir == MiroirFiche::Naissance)
        return DateEtLieu{Joindre(fiche.jourMoisNaissance, fiche.anneeNaissance),
                          fiche.lieuNaissance};
    if (miroir == MiroirFiche::Deces)
        return DateEtLieu{Joindre(fiche.jourMoisDeces, fiche.anneeDeces), fiche.lieuDeces};
    const std::optional<std::size_t> rangee = RangeeDe(*session.base, miroir);
    if (!rangee) return std::nullopt;
    const storage::ValeurSlot& valeur = fiche.slots[*rangee];
    return DateEtLieu{Joindre(MontrerJourMois(session, valeur.jourMois), valeur.annee),
                      valeur.lieu};
}

DateEtLieu LireUnion(shell::Session& session, NoMariage mariage) {
    const SaisieUnion fiche = ChargerUnion(session, mariage);
    return {Joindre(fiche.jourMois, fiche.debut), fiche.lieu};
}

DateEtLieu LireEvenement(shell::Session& session, NoEvenement e) {
    const LigneEvenement ligne = LigneDe(session, e);
    return {ligne.date, ligne.lieu};
}

NoMariage UnionRacontee(storage::Base& base, const std::vector<storage::LienEvenement>& liens,
                        NoOrdre individu, std::string_view annee) {
    const NoOrdre epoux = TenantDuRole(liens, role::Epoux);
    const NoOrdre epouse = TenantDuRole(liens, role::Epouse);
    if (epoux && epouse) {
        for (const NoMariage m : base.R_MARIAG.Elements(epoux))
            if (PartenaireDe(base, epoux, m) == epouse &&
                SansBlancs(base.R_DEBMAR.LireCellule(m)) == annee)
                return m;
        return UnionDe(base, epoux, epouse);
    }
    return base.R_MARIAG.NbElements(individu) == 1 ? base.R_MARIAG.ElementListe(individu, 1)
                                                   : NoMariage{};
}

bool EcrireRangees(shell::Session& session, NoOrdre individu, const RangeesSlots& rangees) {
    if (!session.base || !Existe(*session.base, individu)) return false;
    SaisieFiche fiche = ChargerFiche(session, individu);
    if (fiche.slots == rangees) return false;
    fiche.slots = rangees;
    const std::string texte = ComposerTexteIndividu(session, fiche);
    if (texte == session.base->R_TEXTE.LireTexte(individu)) return false;
    EcrireTexteIndividu(session, individu, texte);
    return true;
}

IssueFiche ValiderFiche(shell::Session& session, SaisieFiche& saisie) {
    const IssueFiche issue = EcrireFiche(session, saisie);
    if (!issue.EstRefusee()) AccorderEvenements(session, issue.individu);
    return issue;
}

IssueEvenement ValiderEvenement(shell::Session& session, SaisieEvenement& saisie) {
    const IssueEvenement issue = EcrireSaisie(session, saisie);
    if (issue.etat == IssueEvenement::Etat::Ecrit || issue.etat == IssueEvenement::Etat::Inchange)
        AccorderFiches(session, saisie.evenement);
    return issue;
}

}  // namespace dorvane::records

#include "records/Individus.h"

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "records/ControleFiche.h"
#include "records/NomsAffiches.h"
#include "records/Questions.h"
#include "records/Rangement.h"
#include "records/TexteFiche.h"
#include "shell/Numerotation.h"
#include "storage/Base.h"
#include "values/Annees.h"
#include "values/Comparaison.h"

#include <array>
#include <string>

namespace dorvane::records {

namespace {

/// Why a person cannot go; none when nothing holds it.
NoMessage RefusDeSuppression(storage::Base& base, NoOrdre n) {
    if (base.R_ENFANT.NbElements(n) != 0) return message::SuppressionImpossibleEnfants;
    if (base.R_MARIAG.NbElements(n) != 0) return message::SuppressionImpossibleUnion;
    if (base.R_LIEN.NbElements(n) != 0) return message::SuppressionImpossibleLiens;
    if (base.R_LSTIMG.NbElements(n) != 0) return message::SuppressionImpossibleDocuments;
    if (base.R_LSTEVT.NbElements(n) != 0) return message::SuppressionImpossibleEvenements;
    if (base.R_PERE.LireCellule(n)) return message::SuppressionImpossiblePere;
    if (base.R_MERE.LireCellule(n)) return message::SuppressionImpossibleMere;
    return {};
}

/// Empties all that a person has and takes it out of the table, where it stands at `rang`.
void Vider(storage::Base& base, NoOrdre n, std::uint32_t rang) {
    base.R_NAISS.EcrireCellule(n, {});
    base.R_DECES.EcrireCellule(n, {});
    base.R_INDEX.MajIndex(n, std::string{base.R_TEXTE.LireTexte(n)}, {});
    base.R_TEXTE.EcrireTexte(n, {});
    base.R_NOM.EcrireNom(n, {});
    base.R_SEXE.EcrireCellule(n, Sexe::Vide);
    base.R_ENFANT.EcrireListe(n, {});
    base.R_MARIAG.EcrireListe(n, {});
    base.R_LSTIMG.EcrireListe(n, {});
    base.R_LIEN.EcrireListe(n, {});
    base.R_LSTEVT.EcrireListe(n, {});
    if (rang == 0) {
        base.R_TRI.RetirerIndividu(n);
    } else {
        base.R_TRI.ModifierTri(rang, n, storage::ActionListe::Supprimer);
        base.entete.NbTriIndividus = base.R_TRI.individus.Taille();
    }
    base.marques.ModifTriIndividus = true;
    base.marques.ModifBase = true;
    base.marques.AffichagePerime = true;
}

void OublierDeCujus(shell::Session& session, NoOrdre n) {
    for (const int k : {1, 2}) {
        shell::DeCujus& cujus = session.deCujus[static_cast<std::size_t>(k - 1)];
        if (cujus.individu != n) continue;
        cujus.individu = {};
        shell::NumeroterDeCujus(session, k);
    }
}

/// Cells and records of a new person; the text follows once it is in the table.
void EcrireNouveau(shell::Session& session, const SaisieFiche& saisie) {
    storage::Base& base = *session.base;
    const NoOrdre n = saisie.individu;
    base.R_NOM.EcrireNom(n, ComposerLigneNom(session, saisie));
    base.R_SEXE.EcrireCellule(n, EstConnu(saisie.sexe) ? saisie.sexe : Sexe::Vide);
    base.R_NAISS.EcrireCellule(n, CelluleDe(saisie.anneeNaissance));
    base.R_DECES.EcrireCellule(n, CelluleDe(saisie.anneeDeces));
    base.R_PERE.EcrireCellule(n, {});
    base.R_MERE.EcrireCellule(n, {});
    base.R_TEXTE.EcrireTexte(n, {});
    base.R_ENFANT.EcrireListe(n, {});
    base.R_MARIAG.EcrireListe(n, {});
    base.R_LSTEVT.EcrireListe(n, {});
    base.R_LIEN.EcrireListe(n, {});
    base.R_LSTIMG.EcrireListe(n, {});
    base.R_TRI.AjouterIndividu(n);
    EcrireTexteIndividu(session, n, ComposerTexteIndividu(session, saisie));
}

}  // namespace

IssueFiche CreerIndividu(shell::Session& session, SaisieFiche& saisie) {
    storage::Base& base = *session.base;
    IssueFiche issue;
    if (base.entete.DernierIndividu >= storage::MaxIndividus) {
        session.dialogue.Informer(shell::Msg(message::MaximumPersonnesBaseAtteint));
        return issue;
    }
    issue.champ = ControlerFiche(session, saisie);
    if (issue.champ != Champ::Aucun && issue.champ != Champ::AnneeNaissance) return issue;

    saisie.individu = base.NouvelIndividu();
    shell::AgrandirNumerotations(session);
    RepartirNoms(saisie);
    EcrireNouveau(session, saisie);
    base.marques.AffichagePerime = true;
    if (!session.PersonneEnCours) session.PersonneEnCours = saisie.individu;
    issue.etat = IssueFiche::Etat::Ecrite;
    issue.individu = saisie.individu;
    return issue;
}

void ChangerAnneeNaissance(shell::Session& session, NoOrdre n, std::string_view annee) {
    storage::Base& base = *session.base;
    const std::string cellule = CelluleDe(annee);
    if (CelluleDe(base.R_NAISS.LireCellule(n)) == cellule) return;
    const PlaceTri place = LirePlaceTri(base, n);
    const std::string anneeTri = base.R_NAISS.AnneeTri(n);
    base.R_NAISS.EcrireCellule(n, cellule);
    ReplacerDansTri(base, n, place);
    if (base.R_NAISS.AnneeTri(n) != anneeTri) ReclasserParAnnee(base, n);
    base.marques.AffichagePerime = true;
}

void ChangerAnneeDeces(shell::Session& session, NoOrdre n, std::string_view annee) {
    storage::Base& base = *session.base;
    const std::string cellule = CelluleDe(annee);
    if (CelluleDe(base.R_DECES.LireCellule(n)) == cellule) return;
    base.R_DECES.EcrireCellule(n, cellule);
    base.marques.AffichagePerime = true;
}

void EcrireTexteIndividu(shell::Session& session, NoOrdre n, std::string_view texte) {
    storage::Base& base = *session.base;
    const std::string ancien{base.R_TEXTE.LireTexte(n)};
    const std::string nouveau = storage::SansDiese(texte);
    if (ancien == nouveau) return;
    base.R_INDEX.MajIndex(n, ancien, nouveau);
    base.R_TEXTE.EcrireTexte(n, nouveau);
    base.marques.ModifBase = true;
    base.marques.AffichagePerime = true;
}

void EcrireTexteMariage(shell::Session& session, NoMariage m, std::string_view texte) {
    storage::Base& base = *session.base;
    const std::string ancien{base.R_TXTMAR.LireTexte(m)};
    const std::string nouveau = storage::SansDiese(texte);
    if (ancien == nouveau) return;
    for (const NoOrdre partenaire : {base.R_EPOUX.LireCellule(m), base.R_EPOUSE.LireCellule(m)})
        if (partenaire) base.R_INDEX.MajIndex(partenaire, ancien, nouveau);
    base.R_TXTMAR.EcrireTexte(m, nouveau);
    base.marques.ModifBase = true;
    base.marques.AffichagePerime = true;
}

bool SupprimerIndividu(shell::Session& session, NoOrdre n) {
    storage::Base& base = *session.base;
    const shell::Phrase titre = shell::Msg(message::TitreSuppression);
    if (const NoMessage refus = RefusDeSuppression(base, n)) {
        session.dialogue.Informer(shell::Msg(refus), titre);
        return false;
    }
    const std::string nom = NomEtDates(session, n);
    const std::string_view montre = SansBlancs(nom);
    if (!ConfirmerRetrait(session, montre.empty()
                                       ? shell::Msg(message::ConfirmerSupprimerPersonneSansNom,
                                                    std::to_string(n.valeur))
                                       : shell::Msg(message::ConfirmerSupprimerPersonne, montre)))
        return false;
    const std::uint32_t rang = base.R_TRI.RangIndividu(n);
    Vider(base, n, rang);
    OublierDeCujus(session, n);
    NoOrdre suivante = base.R_TRI.IndividuAuRang(rang == 0 ? 1 : rang);
    if (!suivante && rang > 1) suivante = base.R_TRI.IndividuAuRang(rang - 1);
    session.PersonneEnCours = suivante;
    if (!suivante) session.dialogue.Informer(shell::Msg(message::InfoPlusAucunePersonne));
    return true;
}

}  // namespace dorvane::records

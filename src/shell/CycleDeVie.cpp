#include "shell/CycleDeVie.h"

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleInterne.h"
#include "shell/Numerotation.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view FiltreBase = "Généalogie (*.lgd) |*.lgd|"_1252;

void SauverReglagesBase(Session& session) {
    ReglagesBase& reglages = session.parametres.base;
    reglages.personneEnCours = session.PersonneEnCours.valeur;
    reglages.deCujus1 = session.deCujus[0].individu.valeur;
    reglages.deCujus2 = session.deCujus[1].individu.valeur;
    if (!session.parametres.SauverParametresBase(session.CheminBase)) DireReglagesRefuses(session);
}

bool EstDansLOrdre(storage::Base& base, NoOrdre n) {
    return n && n.valeur <= base.entete.DernierIndividu && base.R_TRI.RangIndividu(n) != 0;
}

/// Options that a file older than 3.0 holds in its header, for a base whose settings are new.
void ReprendreAnciens(Session& session, const storage::AnciensReglages& anciens) {
    ReglagesBase& reglages = session.parametres.base;
    Affichage& affichage = reglages.affichage;
    if (anciens.personneEnCours != 0) reglages.personneEnCours = anciens.personneEnCours;
    if (anciens.typePresentation >= 1 && anciens.typePresentation <= 4)
        affichage.typePresentation = anciens.typePresentation;
    for (std::size_t i = 0; i < anciens.polices.size(); ++i) {
        if (anciens.polices[i].nom.empty()) continue;
        affichage.presentations[i].nomPolice = anciens.polices[i].nom;
        affichage.presentations[i].taillePolice =
            std::max(0, NombreIndulgent(anciens.polices[i].taille));
        affichage.presentations[i].proportionnel = anciens.polices[i].proportionnelle == "1";
    }
    if (!anciens.couleursPresentes) return;
    const std::array<std::uint32_t*, 7> couleurs{&affichage.couleurFond,
                                                 &affichage.couleurCadreHomme,
                                                 &affichage.couleurCadreFemme,
                                                 &affichage.couleurCadreIndetermine,
                                                 &affichage.couleurPoliceHomme,
                                                 &affichage.couleurPoliceFemme,
                                                 &affichage.couleurPoliceIndetermine};
    for (std::size_t i = 0; i < couleurs.size(); ++i)
        *couleurs[i] = anciens.couleurs[i] & 0xFFFFFFU;
}

/// The settings of the base just opened, its numberings and the person shown.
void ReprendreReglages(Session& session) {
    storage::Base& base = *session.base;
    const bool connue = session.parametres.LireParametresBase(session.CheminBase);
    if (!connue && base.entete.anciens) ReprendreAnciens(session, *base.entete.anciens);
    const ReglagesBase& reglages = session.parametres.base;
    session.deCujus[0].individu = NoOrdre{reglages.deCujus1};
    session.deCujus[1].individu = NoOrdre{reglages.deCujus2};
    NumeroterDeCujus(session, 1);
    NumeroterDeCujus(session, 2);
    const NoOrdre memorisee{reglages.personneEnCours};
    session.PersonneEnCours =
        EstDansLOrdre(base, memorisee) ? memorisee : base.R_TRI.IndividuAuRang(1);
}

/// After a commit that was refused the file holds the one before. Told.
Issue DireEnregistrement(Session& session, bool fait, NoMessage refus) {
    if (fait) return Issue::Faite();
    return Dire(session.dialogue, Issue::ParSysteme(MsgChemin(refus, session.CheminBase)));
}

/// What became of the changes of a base that is about to be closed.
enum class Garde {
    Faite,       ///< saved, or there were none
    Abandonnee,  ///< the user gives them up here: they are lost, or stand in another file
    Refusee,     ///< the base stays open
};

/// Writes the base with all its changes to `cible`, which is the file of no open base.
bool EcrireCopie(Session& session, const fs::path& cible) {
    storage::Disque& disque = session.disque;
    const storage::ResultatVerrou verrou = disque.Verrouiller(cible);
    if (verrou.etat != storage::EtatVerrou::Pris) return false;
    fs::path aCote = cible;
    aCote += ".nouveau";
    if (!session.base->EnregistrerCopie(disque, aCote)) return false;
    if (!storage::SupprimerJournal(disque, cible) || !disque.Renommer(aCote, cible)) {
        static_cast<void>(disque.Supprimer(aCote));
        return false;
    }
    disque.ViderDossier(cible);
    return true;
}

/// Writes the base with all its changes into a file that the user chooses. False when he gives up
/// or the system refuses, which he is told.
bool EnregistrerAilleurs(Session& session) {
    const std::optional<fs::path> choisi = session.dialogue.ChoisirFichier(
        {DemandeFichier::Sorte::Enregistrer, Msg(message::TitreEnregistrerAilleurs),
         std::string{FiltreBase}, ".LGD", session.CheminBase.parent_path()});
    if (!choisi) return false;
    const fs::path cible = CheminEntier(*choisi);
    const bool faite = !EstFichierDeBase(cible, session.CheminBase) && EcrireCopie(session, cible);
    if (faite)
        session.dialogue.Annoncer(MsgChemin(message::EtatCopieEnregistree, cible));
    else
        session.dialogue.Informer(MsgChemin(message::CopieNonEnregistree, cible));
    return faite;
}

/// Saves before a close. While the system refuses, the user saves elsewhere, gives up or stays.
Garde GarderAvantFermeture(Session& session) {
    if (!session.base->marques.Modifie() || session.base->Enregistrer()) return Garde::Faite;
    Phrase texte = MsgChemin(message::FermerSansEnregistrer, session.CheminBase);
    texte.suite = message::ChoixSansEnregistrer;
    const Question question{texte, Msg(message::TitreEnregistrementRefuse), Boutons::OuiNonAnnuler,
                            Reponse::Annuler, true};
    for (;;) {
        switch (session.dialogue.Demander(question)) {
            case Reponse::Oui:
                if (EnregistrerAilleurs(session)) return Garde::Abandonnee;
                break;
            case Reponse::Non:
                return Garde::Abandonnee;
            case Reponse::Annuler:
                return Garde::Refusee;
        }
    }
}

/// The commit of the open base with its bookkeeping, without the tests of a menu command.
Issue Enregistrer(Session& session) {
    if (!session.base || !session.base->marques.Modifie()) return Issue::Faite();
    const Attente attente{session.progression};
    SauverReglagesBase(session);
    const bool fait = session.base->Enregistrer();
    if (!session.parametres.MemoriserHistorique(session.CheminBase)) DireReglagesRefuses(session);
    return DireEnregistrement(session, fait, message::EnregistrementBaseEchoue);
}

}  // namespace

Phrase MsgChemin(NoMessage message, const fs::path& chemin) {
    return Msg(message, CheminAffiche(chemin));
}

// The automatic save would tell it every time.
void DireReglagesRefuses(Session& session) {
    if (session.sansReglages) return;
    session.sansReglages = true;
    session.dialogue.Informer(Msg(message::ReglagesNonEnregistres));
}

void PoserChemins(Session& session, const fs::path& chemin) {
    const CheminsBase chemins = chemin.empty() ? CheminsBase{} : DeriverChemins(chemin);
    session.CheminBase = chemin;
    session.CheminEchange = chemins.echange;
    session.CheminJournal = chemins.journal;
    session.CheminGedcom = chemins.gedcom;
    session.NomBase = chemins.nom;
}

void Oublier(Session& session) {
    session.PoserBase(nullptr);
    PoserChemins(session, {});
    session.PersonneEnCours = session.PersonneFiche = NoOrdre{};
    for (int k = 1; k <= 2; ++k) {
        session.deCujus[static_cast<std::size_t>(k - 1)].individu = NoOrdre{};
        NumeroterDeCujus(session, k);
    }
}

Issue CommandePermise(Session& session) {
    if (session.progression.EnCours())
        return Dire(session.dialogue, Issue::Refusee(Msg(message::OperationImpossible)));
    return session.ecran.FermerFiche() ? Issue::Faite() : Issue::Arretee();
}

Issue IssueDOuverture(storage::Ouverture etat, const fs::path& chemin) {
    switch (etat) {
        case storage::Ouverture::Faite:
            return Issue::Faite();
        case storage::Ouverture::Introuvable:
            return Issue::ParSysteme(Msg(message::FichierDisparu));
        case storage::Ouverture::Occupee:
            return Issue::Refusee(MsgChemin(message::BaseOccupee, chemin));
        case storage::Ouverture::PasUneBase:
            return Issue::Refusee(MsgChemin(message::FichierPasUneBase, chemin));
        case storage::Ouverture::JournalIllisible:
            return Issue::ParSysteme(
                MsgChemin(message::JournalIllisible, storage::CheminJournal(chemin)));
        case storage::Ouverture::JournalDAutrui:
            return Issue::Refusee(
                MsgChemin(message::JournalDUneAutreBase, storage::CheminJournal(chemin)));
        case storage::Ouverture::NomReserve:
            return Issue::Refusee(MsgChemin(message::NomDeFichierReserve, chemin.filename()));
        case storage::Ouverture::Refusee:
        case storage::Ouverture::Abimee:
            break;
    }
    return Issue::ParSysteme(MsgChemin(message::AccesBaseRefuse, chemin));
}

Issue IssueDeCreation(storage::Ouverture etat, const fs::path& chemin) {
    if (etat == storage::Ouverture::Faite) return Issue::Faite();
    if (etat == storage::Ouverture::Occupee)
        return Issue::Refusee(MsgChemin(message::BaseOccupee, chemin));
    if (etat == storage::Ouverture::NomReserve)
        return Issue::Refusee(MsgChemin(message::NomDeFichierReserve, chemin.filename()));
    return Issue::ParSysteme(MsgChemin(message::CreationBaseRefusee, chemin));
}

Issue OuvrirBase(Session& session) {
    storage::ResultatOuverture resultat;
    {
        const Attente attente{session.progression};
        session.PoserBase(nullptr);
        resultat = storage::OuvrirBase(session.disque, session.CheminBase, session.progression);
        if (resultat.base) session.PoserBase(std::move(resultat.base));
    }
    if (!resultat.journalEcarte.empty())
        session.dialogue.Informer(MsgChemin(message::JournalMisDeCote, resultat.journalEcarte));
    return Dire(session.dialogue, IssueDOuverture(resultat.etat, session.CheminBase));
}

Issue FermerEtMemoriser(Session& session) {
    if (!session.base) return Issue::Faite();
    SauverReglagesBase(session);
    const Garde garde = GarderAvantFermeture(session);
    if (garde == Garde::Refusee) return Issue::Arretee();
    bool fait = false;
    {
        const Attente attente{session.progression};
        session.TypeTri = session.base->entete.TypeTri;
        if (garde == Garde::Faite) fait = session.base->Fermer();
        session.PoserBase(nullptr);
    }
    if (!session.parametres.MemoriserHistorique(session.CheminBase)) DireReglagesRefuses(session);
    // The file on the disk waits for its journal: the user knows.
    if (garde == Garde::Abandonnee) return Issue::ParSysteme();
    return DireEnregistrement(session, fait, message::FermetureBaseNonEnregistree);
}

Issue Clore(Session& session) {
    if (!session.base) return Issue::Faite();
    session.ecran.FermerFenetres();
    Issue issue = FermerEtMemoriser(session);
    if (!session.base) Oublier(session);
    return issue;
}

Issue OuvrirChemin(Session& session, const fs::path& chemin) {
    if (Issue close = Clore(session); session.base) return close;
    session.ecran.FermerFenetres();
    PoserChemins(session, CheminEntier(chemin));
    session.PersonneEnCours = NoOrdre{};
    Issue issue = OuvrirBase(session);
    if (issue)
        ReprendreReglages(session);
    else
        Oublier(session);
    session.ecran.Actualiser();
    return issue;
}

void ReprendreAvantRemplacement(Session& session, const fs::path& chemin) {
    if (!session.disque.Existe(chemin) || !session.disque.Existe(storage::CheminJournal(chemin)))
        return;
    const storage::ResultatOuverture ancienne =
        storage::OuvrirBase(session.disque, chemin, session.progression);
    if (ancienne.base) static_cast<void>(ancienne.base->Fermer());
}

Issue MnuNouveau(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    const fs::path depart = session.CheminBase;
    Issue fermee = Clore(session);
    session.ecran.Actualiser();
    if (session.base) return fermee;
    const std::optional<fs::path> choisi = session.dialogue.ChoisirFichier(
        {DemandeFichier::Sorte::Enregistrer, {}, std::string{FiltreBase}, ".LGD", depart});
    if (!choisi) return Issue::Arretee();

    const fs::path chemin = CheminEntier(*choisi);
    const ReglagesGeneraux& generaux = session.parametres.generaux;
    ReprendreAvantRemplacement(session, chemin);
    storage::ResultatOuverture resultat = storage::NouvelleBase(
        session.disque, chemin, {session.TypeTri, generaux.motClePrenom, generaux.motCleNom});
    if (!resultat.base) return Dire(session.dialogue, IssueDeCreation(resultat.etat, chemin));
    PoserChemins(session, chemin);
    session.PoserBase(std::move(resultat.base));
    // An empty file is no base: the close of a base that was left as it was created must write it.
    session.base->marques.ModifBase = true;
    static_cast<void>(session.parametres.LireParametresBase(chemin));
    for (int k = 1; k <= 2; ++k) {
        session.deCujus[static_cast<std::size_t>(k - 1)].individu = NoOrdre{};
        NumeroterDeCujus(session, k);
    }
    session.PersonneEnCours = NoOrdre{};
    session.ecran.Actualiser();
    return Issue::Faite();
}

Issue MnuOuvrir(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    const std::optional<fs::path> choisi = session.dialogue.ChoisirFichier(
        {DemandeFichier::Sorte::Ouvrir, {}, std::string{FiltreBase}, ".LGD", session.CheminBase});
    return choisi ? OuvrirChemin(session, *choisi) : Issue::Arretee();
}

Issue MnuOuvrir(Session& session, const fs::path& chemin) {
    Issue permise = CommandePermise(session);
    return permise ? OuvrirChemin(session, chemin) : permise;
}

Issue MnuHisto(Session& session, int rang) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    const std::vector<fs::path>& historique = session.parametres.generaux.historique;
    if (rang < 0 || static_cast<std::size_t>(rang) >= historique.size()) return Issue::Refusee();
    const fs::path chemin = historique[static_cast<std::size_t>(rang)];
    if (!session.disque.Existe(chemin))
        return Dire(session.dialogue, Issue::ParSysteme(Msg(message::FichierDisparu)));
    std::error_code erreur;
    fs::current_path(chemin.parent_path(), erreur);
    return OuvrirChemin(session, chemin);
}

Issue MnuFermer(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    Issue issue = Clore(session);
    session.ecran.Actualiser();
    return issue;
}

Issue MnuEnregistrer(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    Issue issue = Enregistrer(session);
    session.ecran.Actualiser();
    return issue;
}

void Minuterie1(Session& session) {
    if (session.base) {
        if (session.compteurMinuterie <= session.parametres.generaux.frequenceSauvegarde) {
            // A refusal shows, and is told, at the commit.
            static_cast<void>(session.base->ViderSurDisque());
            ++session.compteurMinuterie;
        } else {
            Enregistrer(session);
            session.compteurMinuterie = 0;
        }
    }
    for (int k = 1; k <= 2; ++k)
        if (session.deCujus[static_cast<std::size_t>(k - 1)].perime) NumeroterDeCujus(session, k);
}

}  // namespace dorvane::shell

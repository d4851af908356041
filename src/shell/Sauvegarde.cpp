#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CopiesDatees.h"
#include "shell/CycleDeVie.h"
#include "shell/CycleInterne.h"
#include "storage/Base.h"

#include <array>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

/// Copies beside, then puts in place: whoever reads the target sees the old one or the new one.
/// `avant` takes out of the way what stands there, once the copy is whole.
bool CopierSurement(storage::Disque& disque, const fs::path& source, const fs::path& cible,
                    const std::function<bool()>& avant) {
    fs::path aCote = cible;
    aCote += ".nouveau";
    const bool fait = disque.Copier(source, aCote) && avant() && disque.Renommer(aCote, cible);
    if (!fait) {
        if (disque.Existe(aCote)) static_cast<void>(disque.Supprimer(aCote));
        return false;
    }
    disque.ViderDossier(cible);
    return true;
}

bool EstUneBase(storage::Disque& disque, const fs::path& chemin) {
    return storage::CompterPersonnes(disque, chemin).has_value();
}

/// "1234 personnes, 2026-11-22 09:53".
std::string DecrireFichier(Session& session, const fs::path& chemin) {
    const Moment m = MomentDuFichier(chemin).value_or(Moment{});
    std::array<char, 64> date{};
    std::snprintf(date.data(), date.size(), "%04d-%02d-%02d %02d:%02d", m.annee, m.mois, m.jour,
                  m.heure, m.minute);
    const std::uint32_t personnes = storage::CompterPersonnes(session.disque, chemin).value_or(0);
    return session.catalogue.Composer(
        Msg(message::ContenuDUneBase, std::to_string(personnes), date.data()));
}

/// The target of a restoration may be replaced.
bool CiblePermise(Session& session, const fs::path& source, const fs::path& cible) {
    if (!session.disque.Existe(cible)) return true;
    Phrase texte = Msg(message::ComparerAvantRestauration, DecrireFichier(session, cible),
                       DecrireFichier(session, source));
    texte.suite = message::ConfirmerRemplacerBaseParSauvegarde;
    return session.dialogue.Confirmer(
        {texte, Msg(message::TitreRemplacementBase), Boutons::OuiNon, Reponse::Non, true});
}

/// Keeps the base that a backup is about to replace under the name of its day.
bool GarderRemplacee(Session& session, const fs::path& base) {
    if (!session.disque.Existe(base)) return true;
    const Moment moment = MomentDuFichier(base).value_or(session.horloge.Maintenant());
    const fs::path copie = CheminDateLibre(session.disque, CheminSauvegarde(base), moment);
    return CopierSurement(session.disque, base, copie, [] { return true; });
}

/// Puts the backup in the place of the base, which nobody has open.
Issue Restaurer(Session& session, const fs::path& source, const fs::path& cible) {
    const Attente attente{session.progression};
    storage::Disque& disque = session.disque;
    const storage::ResultatVerrou verrou = disque.Verrouiller(cible);
    if (verrou.etat == storage::EtatVerrou::Occupe)
        return Issue::Refusee(MsgChemin(message::BaseOccupee, cible));
    // The journal goes first: replayed over the new file it would ruin it.
    if (GarderRemplacee(session, cible) && CopierSurement(disque, source, cible, [&] {
            return storage::SupprimerJournal(disque, cible);
        }))
        return Issue::Faite();
    return Issue::ParSysteme(MsgChemin(message::SauvegardeNonRecopiee, source));
}

}  // namespace

bool EcrireSauvegarde(Session& session, const fs::path& base) {
    storage::Disque& disque = session.disque;
    const fs::path cible = CheminSauvegarde(base);
    const int gardees = session.parametres.generaux.sauvegardesGardees;
    if (cible == base) return false;
    std::optional<fs::path> date = fs::path{};
    const bool ecrite = CopierSurement(disque, base, cible, [&] {
        if (gardees > 0) date = Dater(disque, cible, session.horloge.Maintenant());
        return date.has_value();
    });
    if (ecrite)
        Epurer(disque, cible, gardees);
    else if (date && !date->empty())
        static_cast<void>(disque.Renommer(*date, cible));
    return ecrite;
}

Issue Sauvegarder(Session& session) {
    if (!session.base) return Issue::Refusee();
    session.dialogue.Annoncer(Msg(message::EtatSauvegardeEnCours));
    const fs::path cible = CheminSauvegarde(session.CheminBase);
    // After a refused commit the file waits for its journal: a copy of it alone would be no base.
    Issue issue = FermerEtMemoriser(session);
    bool copiee = false;
    if (issue) {
        const Attente attente{session.progression};
        copiee = EcrireSauvegarde(session, session.CheminBase);
    }
    session.dialogue.Annoncer({});
    if (issue && !copiee)
        issue = Dire(session.dialogue,
                     Issue::ParSysteme(MsgChemin(message::SauvegardeNonEcriteBaseFermee, cible)));
    if (session.base) return issue;
    if (!copiee || !OuvrirBase(session)) {
        session.ecran.FermerFenetres();
        Oublier(session);
    }
    return issue;
}

Issue MnuSauvegarde(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    if (!session.base) return Issue::Refusee();
    const fs::path cible = CheminSauvegarde(session.CheminBase);
    Issue issue = Sauvegarder(session);
    session.ecran.Actualiser();
    if (issue) session.dialogue.Annoncer(MsgChemin(message::EtatSauvegardeEcrite, cible));
    return issue;
}

Issue MnuRestauration(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    const std::optional<fs::path> choisi = session.dialogue.ChoisirFichier(
        {DemandeFichier::Sorte::Ouvrir, Msg(message::TitreRestaurationSauvegarde),
         session.Message(message::FiltreSauvegardes), ".SAV", session.CheminBase.parent_path()});
    if (!choisi) return Issue::Arretee();
    const fs::path source = CheminEntier(*choisi);
    const fs::path cible = CheminRestauration(source);
    if (!EstUneBase(session.disque, source) || source == cible)
        return Dire(session.dialogue,
                    Issue::Refusee(MsgChemin(message::FichierPasUneBase, source)));
    if (!CiblePermise(session, source, cible)) return Issue::Arretee();

    if (Issue close = Clore(session); session.base) return close;
    ReprendreAvantRemplacement(session, cible);
    Issue issue = Dire(session.dialogue, Restaurer(session, source, cible));
    if (issue) return OuvrirChemin(session, cible);
    session.ecran.Actualiser();
    return issue;
}

}  // namespace dorvane::shell

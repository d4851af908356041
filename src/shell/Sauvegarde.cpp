#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/CycleInterne.h"
#include "storage/Base.h"

#include <array>
#include <memory>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

/// Copies beside, then puts in place: whoever reads the target sees the old one or the new one.
bool CopierSurement(storage::Disque& disque, const fs::path& source, const fs::path& cible,
                    const fs::path& journalPerdu) {
    fs::path aCote = cible;
    aCote += ".nouveau";
    // The journal goes first: replayed over the new file it would ruin it.
    const bool fait =
        disque.Copier(source, aCote) &&
        (journalPerdu.empty() || !disque.Existe(journalPerdu) || disque.Supprimer(journalPerdu)) &&
        disque.Renommer(aCote, cible);
    if (!fait) {
        if (disque.Existe(aCote)) static_cast<void>(disque.Supprimer(aCote));
        return false;
    }
    disque.ViderDossier(cible);
    return true;
}

bool EstUneBase(storage::Disque& disque, const fs::path& chemin) {
    const std::unique_ptr<storage::Fichier> fichier =
        disque.Ouvrir(chemin, storage::ModeOuverture::LectureSeule);
    if (!fichier) return false;
    std::array<char, 30> marque{};
    const std::size_t lus = fichier->Lire(Position{1}, marque);
    return lus == marque.size() && storage::PorteMarque({marque.data(), marque.size()});
}

/// The target of a restoration is free of other programs and may be replaced.
bool CiblePermise(Session& session, const fs::path& cible) {
    if (!session.disque.Existe(cible)) return true;
    const Question question{Msg(message::ConfirmerRemplacerBaseParSauvegarde),
                            Msg(message::TitreRemplacementBase), Boutons::OuiNon, Reponse::Non,
                            true};
    return session.dialogue.Confirmer(question);
}

/// Puts the backup in the place of the base, which nobody has open.
Issue Restaurer(Session& session, const fs::path& source, const fs::path& cible) {
    const Attente attente{session.progression};
    const storage::ResultatVerrou verrou = session.disque.Verrouiller(cible);
    if (verrou.etat == storage::EtatVerrou::Occupe)
        return Issue::Refusee(MsgChemin(message::BaseOccupee, cible));
    if (CopierSurement(session.disque, source, cible, storage::CheminJournal(cible)))
        return Issue::Faite();
    return Issue::ParSysteme(MsgChemin(message::SauvegardeNonRecopiee, source));
}

}  // namespace

Issue Sauvegarder(Session& session) {
    if (!session.base) return Issue::Refusee();
    session.dialogue.Annoncer(Msg(message::EtatSauvegardeEnCours));
    const fs::path cible = CheminSauvegarde(session.CheminBase);
    // After a refused commit the file waits for its journal: a copy of it alone would be no base.
    Issue issue = FermerEtMemoriser(session);
    bool copiee = false;
    if (issue && cible != session.CheminBase) {
        const Attente attente{session.progression};
        copiee = CopierSurement(session.disque, session.CheminBase, cible, {});
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
    if (!CiblePermise(session, cible)) return Issue::Arretee();

    if (Issue close = Clore(session); session.base) return close;
    ReprendreAvantRemplacement(session, cible);
    Issue issue = Dire(session.dialogue, Restaurer(session, source, cible));
    if (issue) return OuvrirChemin(session, cible);
    session.ecran.Actualiser();
    return issue;
}

}  // namespace dorvane::shell

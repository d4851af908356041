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

}  // namespace

bool Sauvegarder(Session& session) {
    if (!session.base) return false;
    session.dialogue.Annoncer(Msg(message::EtatSauvegardeEnCours));
    const fs::path cible = CheminSauvegarde(session.CheminBase);
    // After a refused commit the file waits for its journal: a copy of it alone would be no base.
    const bool fermee = FermerEtMemoriser(session);
    bool copiee = false;
    if (fermee && cible != session.CheminBase) {
        const Attente attente{session.progression};
        copiee = CopierSurement(session.disque, session.CheminBase, cible, {});
    }
    session.dialogue.Annoncer({});
    if (fermee && !copiee) Dire(session, message::SauvegardeNonEcriteBaseFermee, cible);
    if (!copiee || !OuvrirBase(session)) {
        session.ecran.FermerFenetres();
        Oublier(session);
    }
    return copiee;
}

void MnuSauvegarde(Session& session) {
    if (!CommandePermise(session) || !session.base) return;
    const fs::path cible = CheminSauvegarde(session.CheminBase);
    const bool copiee = Sauvegarder(session);
    session.ecran.Actualiser();
    if (copiee) session.dialogue.Annoncer(Msg(message::EtatSauvegardeEcrite, CheminAffiche(cible)));
}

void MnuRestauration(Session& session) {
    if (!CommandePermise(session)) return;
    const std::optional<fs::path> choisi = session.dialogue.ChoisirFichier(
        {DemandeFichier::Sorte::Ouvrir, Msg(message::TitreRestaurationSauvegarde),
         session.Message(message::FiltreSauvegardes), ".SAV", session.CheminBase.parent_path()});
    if (!choisi) return;
    const fs::path source = CheminEntier(*choisi);
    const fs::path cible = CheminRestauration(source);
    if (!EstUneBase(session.disque, source) || source == cible) {
        Dire(session, message::FichierPasUneBase, source);
        return;
    }
    if (!CiblePermise(session, cible)) return;

    Clore(session);
    ReprendreAvantRemplacement(session, cible);
    bool copiee = false;
    {
        const Attente attente{session.progression};
        const storage::ResultatVerrou verrou = session.disque.Verrouiller(cible);
        if (verrou.etat == storage::EtatVerrou::Occupe) {
            Dire(session, message::BaseOccupee, cible);
            session.ecran.Actualiser();
            return;
        }
        copiee = CopierSurement(session.disque, source, cible, storage::CheminJournal(cible));
    }
    if (copiee) {
        OuvrirChemin(session, cible);
    } else {
        Dire(session, message::SauvegardeNonRecopiee, source);
        session.ecran.Actualiser();
    }
}

}  // namespace dorvane::shell

#include "shell/Reorganisation.h"

#include "messages/Messages.h"
#include "messages/Soin.h"
#include "shell/CycleDeVie.h"
#include "shell/CycleInterne.h"
#include "shell/FichierSur.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "storage/ConversionAncienne.h"
#include "storage/Reorganiser.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

using storage::IssueReorganisation;

fs::path CheminReorganise(const fs::path& base) {
    return base.parent_path() / "Reorg.fic";
}

/// The numbers of a line, in their order: what else it holds is the business of who wrote it.
std::vector<std::uint32_t> NombresDe(std::string_view ligne) {
    std::vector<std::uint32_t> nombres;
    bool dedans = false;
    for (const char c : ligne) {
        if (EstChiffre(c)) {
            if (!dedans) nombres.push_back(0);
            // Far above any person; more digits change nothing.
            if (nombres.back() < 1000000)
                nombres.back() = nombres.back() * 10 + static_cast<std::uint32_t>(c - '0');
        }
        dedans = EstChiffre(c);
    }
    return nombres;
}

/// The lines of `texte` whose two persons are both in the sort table.
std::string PairesVivantes(std::string_view texte, const std::vector<std::uint16_t>& table) {
    std::vector<bool> vivant(1ULL << 16U);
    for (const std::uint16_t n : table)
        vivant[n] = n != 0;
    std::string gardees;
    while (!texte.empty()) {
        const std::size_t fin = texte.find('\n');
        const std::string_view ligne =
            texte.substr(0, fin == std::string_view::npos ? fin : fin + 1);
        texte.remove_prefix(ligne.size());
        const std::vector<std::uint32_t> nombres = NombresDe(ligne);
        const auto la = [&](std::size_t i) {
            return nombres[i] < vivant.size() && vivant[nombres[i]];
        };
        if (nombres.size() < 2 || (la(0) && la(1))) gardees += ligne;
    }
    return gardees;
}

/// Takes persons who are gone out of the list of pairs beside the base, if there is one.
void MettreAJourPaires(Session& session, const fs::path& base,
                       const std::vector<std::uint16_t>& table) {
    const fs::path paires = CheminPaires(base);
    std::error_code erreur;
    if (!fs::exists(paires, erreur)) return;
    const std::optional<std::string> texte = LireTout(paires);
    if (texte) {
        const std::string gardees = PairesVivantes(*texte, table);
        if (gardees == *texte || EcrireTout(paires, gardees, ".TMP")) return;
    }
    session.dialogue.Informer(MsgChemin(message::PairesDePersonnesNonMisesAJour, paires));
}

storage::ConversionsTextes ConversionsDe(const Session& session) {
    auto libelles = std::make_shared<TableLibelles>(session.catalogue);
    return {[libelles](std::string_view libelle) {
                return std::string{libelles->TagDeLibelle(libelle)};
            },
            // What is stored has its day in front of its month, whatever the order of entry.
            [&session](std::string_view date) {
                return CvtSaisieDate(date, OrdreDate::JourMoisAnnee, session.Mots());
            }};
}

/// A size with a no-break space between thousands.
std::string EnGroupes(std::uint64_t taille) {
    constexpr std::size_t Groupe = 3;
    std::string texte = std::to_string(taille);
    for (std::size_t place = texte.size(); place > Groupe;)
        texte.insert(place -= Groupe, 1, '\xA0');
    return texte;
}

void DireBilan(Session& session, const storage::BilanReorganisation& bilan) {
    session.dialogue.Annoncer(Msg(message::EtatReorganisationTerminee, EnGroupes(bilan.tailleApres),
                                  EnGroupes(bilan.tailleAvant)));
    if (bilan.unionsSansEpoux != 0)
        session.dialogue.Informer(
            Msg(message::UnionsSansEpouxAbandonnees, std::to_string(bilan.unionsSansEpoux)));
    if (bilan.documentsAbimes != 0 || bilan.evenementsAbimes != 0)
        session.dialogue.Informer(Msg(message::FichesAbimeesRecopieesVides,
                                      std::to_string(bilan.documentsAbimes),
                                      std::to_string(bilan.evenementsAbimes)));
}

/// Puts the new file in the place of the old one. The lock of the base is held meanwhile: the old
/// file stays open until it has gone from its name.
bool Remplacer(storage::Disque& disque, const fs::path& nouveau, const fs::path& base) {
    if (!storage::SupprimerJournal(disque, base) || !disque.Renommer(nouveau, base)) {
        static_cast<void>(disque.Supprimer(nouveau));
        return false;
    }
    disque.ViderDossier(base);
    return true;
}

/// The whole work on the closed base at `chemin`.
Issue Reecrire(Session& session, const fs::path& chemin, storage::BilanReorganisation& bilan) {
    const fs::path nouveau = CheminReorganise(chemin);
    const storage::ResultatVerrou verrou = session.disque.Verrouiller(nouveau);
    if (verrou.etat == storage::EtatVerrou::Occupe)
        return Issue::Refusee(MsgChemin(message::ReorganisationDejaEnCours, nouveau));
    if (verrou.etat != storage::EtatVerrou::Pris)
        return Issue::ParSysteme(MsgChemin(message::NouveauFichierNonEcrit, nouveau));
    const storage::ResultatOuverture ouverte =
        storage::OuvrirBase(session.disque, chemin, session.progression);
    if (!ouverte.base) return IssueDOuverture(ouverte.etat, chemin);
    storage::Base& source = *ouverte.base;
    if (!storage::ConvertirAncienne(source, ConversionsDe(session), session.progression))
        return source.EnDefaut()
                   ? Issue::ParSysteme(MsgChemin(message::NouveauFichierNonEcrit, nouveau))
                   : Issue::Arretee();
    bilan = storage::ReorganiserVers(session.disque, source, nouveau, session.progression);
    if (bilan.issue == IssueReorganisation::Abandonnee) return Issue::Arretee();
    if (bilan.issue == IssueReorganisation::TropAbimee)
        return Issue::Refusee(MsgChemin(message::BaseTropAbimeePourReorganiser, chemin));
    if (bilan.issue != IssueReorganisation::Faite || !Remplacer(session.disque, nouveau, chemin))
        return Issue::ParSysteme(MsgChemin(message::NouveauFichierNonEcrit, nouveau));
    MettreAJourPaires(session, chemin, source.R_TRI.individus.Numeros());
    return Issue::Faite();
}

}  // namespace

Issue ReecrireBase(Session& session, const std::filesystem::path& chemin) {
    storage::BilanReorganisation bilan;
    Issue issue = Dire(session.dialogue, Reecrire(session, chemin, bilan));
    if (issue) DireBilan(session, bilan);
    return issue;
}

std::filesystem::path CheminPaires(const std::filesystem::path& base) {
    std::string nom = base.filename().string();
    nom.resize(nom.size() - std::min<std::size_t>(3, nom.size()));
    return base.parent_path() / (nom + "FUS");
}

Issue ReorganiserBase(Session& session, bool sauvegarder) {
    if (!session.base) return Issue::Refusee();
    const fs::path chemin = session.CheminBase;
    session.ecran.FermerFenetres();
    if (sauvegarder)
        if (Issue copiee = Sauvegarder(session); !copiee) {
            session.ecran.Actualiser();
            return copiee;
        }
    // The session has no base while the work yields: nobody can change what is being copied.
    if (Issue fermee = FermerEtMemoriser(session); !fermee) {
        if (!session.base) Oublier(session);
        session.ecran.Actualiser();
        return fermee;
    }
    storage::BilanReorganisation bilan;
    Issue issue;
    {
        // The windows know that the base comes back.
        const CadreProgression cadre{session.progression, Msg(message::TitreReorganisationBase),
                                     Msg(message::TitreReorganisationBase)};
        session.ecran.Actualiser();
        issue = Dire(session.dialogue, Reecrire(session, chemin, bilan));
    }
    OuvrirChemin(session, chemin);
    if (issue) DireBilan(session, bilan);
    return issue;
}

Issue MnuReorganiser(Session& session) {
    if (Issue permise = CommandePermise(session); !permise) return permise;
    if (!session.base) return Issue::Refusee();
    switch (session.dialogue.Demander({Msg(message::ProposerCopieAvantOperation),
                                       Msg(message::TitreReorganisationBase),
                                       Boutons::OuiNonAnnuler})) {
        case Reponse::Oui:
            return ReorganiserBase(session, true);
        case Reponse::Non:
            return ReorganiserBase(session, false);
        case Reponse::Annuler:
            break;
    }
    return Issue::Arretee();
}

}  // namespace dorvane::shell

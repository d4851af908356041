// A base of a survey, and what is said of it.
#include "interchange/releves/ImportReleve.h"

#include "interchange/releves/ActesReleve.h"
#include "messages/Releve.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {

std::string NomReleve(const shell::Session& session, SorteReleve sorte) {
    switch (sorte) {
        case SorteReleve::Bapteme:
            return shell::LibelleDeTag(session.catalogue, tag::Bapteme);
        case SorteReleve::Mariage:
            return shell::LibelleDeTag(session.catalogue, tag::Mariage);
        case SorteReleve::Sepulture:
            return shell::LibelleDeTag(session.catalogue, tag::Inhumation);
        case SorteReleve::Ascendance:
            break;
    }
    return session.Message(message::ReleveDAscendance);
}

namespace {

/// The line at which reading stopped is told, and everything in the order of the lines.
void Ranger(RapportReleve& rapport, const Releve& releve) {
    if (releve.ligneSansSeparateur != 0)
        rapport.constats.push_back(
            {releve.ligneSansSeparateur, message::RapportLigneSansSeparateur});
    std::ranges::stable_sort(rapport.constats, {}, &RapportReleve::Constat::ligne);
}

}  // namespace

RapportReleve ExaminerReleve(const shell::Session& session, const Releve& releve) {
    RapportReleve rapport;
    CompteActes compte;
    static_cast<void>(EcrireActes(session, compte, releve, rapport,
                                  [](std::uint32_t, std::uint32_t) { return true; }));
    rapport.individus = compte.individus;
    rapport.evenements = compte.evenements;
    Ranger(rapport, releve);
    return rapport;
}

bool RemplirReleve(shell::Session& session, storage::Base& base, const Releve& releve,
                   const std::filesystem::path& fichier, RapportReleve& rapport) {
    EcrivainReleve ecrivain{base, releve};
    ecrivain.CreerDocument(
        session.Message(message::MotReleve) + ' ' + NomReleve(session, releve.sorte),
        shell::CheminAffiche(fichier));
    const auto avancer = [&session](std::uint32_t fait, std::uint32_t total) {
        return session.progression.Avancer(fait, total);
    };
    if (!EcrireActes(session, ecrivain, releve, rapport, avancer)) return false;
    ecrivain.Terminer();
    rapport.individus = base.entete.DernierIndividu;
    rapport.evenements = base.entete.DernierEvenement;
    Ranger(rapport, releve);
    return true;
}

shell::Issue ImporterReleve(shell::Session& session, const Releve& releve,
                            const std::filesystem::path& fichier, const std::filesystem::path& base,
                            RapportReleve& rapport) {
    return FaireBase(
        session, base,
        {shell::Msg(message::TitreImportReleve), shell::Msg(message::LignesDuReleveLues)},
        [&](storage::Base& nouvelle) {
            return RemplirReleve(session, nouvelle, releve, fichier, rapport);
        });
}

std::string ComposerRapport(const RapportReleve& rapport, const Releve& releve,
                            const shell::Session& session) {
    std::string texte;
    const auto ligne = [&](NoMessage message, const std::string& valeur) {
        std::string phrase = session.Message(message);
        RemplacerTout(phrase, "&1", valeur);
        texte += phrase + '\n';
    };
    ligne(message::RapportSorteDeReleve, NomReleve(session, releve.sorte));
    ligne(message::RapportJeuDeCaracteresReleve, std::string{NomDeJeu(releve.jeu.jeu)});
    if (releve.remplaces != 0)
        ligne(message::RapportCaracteresRemplaces, std::to_string(releve.remplaces));
    ligne(message::RapportLignesReprises, std::to_string(rapport.lignes));
    ligne(message::RapportPersonnesReleve, std::to_string(rapport.individus));
    ligne(message::RapportEvenementsReleve, std::to_string(rapport.evenements));
    ligne(message::RapportUnionsReleve, std::to_string(rapport.unions));
    texte += '\n';
    if (rapport.constats.empty())
        return texte + session.Message(message::RapportToutCompris) + '\n';
    for (const RapportReleve::Constat& constat : rapport.constats) {
        std::string phrase = session.Message(message::RapportLigneEtConstat);
        RemplacerTout(phrase, "&2", session.Message(constat.message));
        RemplacerTout(phrase, "&1", std::to_string(constat.ligne));
        texte += phrase + '\n';
    }
    return texte;
}

}  // namespace dorvane::interchange

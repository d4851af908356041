#include "interchange/commandes/IntegrerLgr.h"

#include "interchange/lgr/FusionLgr.h"
#include "messages/Echange.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/Parametres.h"

namespace dorvane::interchange {
namespace {

std::string DireContenu(const shell::Session& session, const ContenuLgr& contenu) {
    const auto dire = [&session](NoMessage message, std::size_t un, std::size_t deux) {
        return session.catalogue.Composer(
            shell::Msg(message, std::to_string(un), std::to_string(deux)));
    };
    return dire(message::ContenuPersonnesUnions, contenu.individus.size(), contenu.unions.size()) +
           ", " +
           dire(message::ContenuEvenementsDocuments, contenu.evenements.size(),
                contenu.documents.size());
}

/// A file that ends in its middle is merged in only on a yes.
shell::Issue PermettreIncomplet(shell::Session& session, const ContenuLgr& contenu,
                                const std::string& nom) {
    if (contenu.complet) return shell::Issue::Faite();
    shell::Question question;
    question.texte = shell::Msg(message::ConfirmerIntegrerFichierIncomplet, nom);
    question.titre = shell::Msg(message::TitreIntegration);
    question.defaut = shell::Reponse::Non;
    return session.dialogue.Confirmer(question)
               ? shell::Issue::Faite()
               : shell::Issue::Arretee(shell::Msg(message::InfoIntegrationAbandonnee));
}

/// A merge has no way back but a copy. That it failed was told.
shell::Issue Copier(shell::Session& session) {
    return {shell::Sauvegarder(session).cause};
}

/// Says what will be added, and that a copy is made first.
shell::Issue Permettre(shell::Session& session, const ContenuLgr& contenu, const std::string& nom) {
    shell::Question question;
    question.texte = shell::Msg(message::ConfirmerIntegration, nom, DireContenu(session, contenu));
    question.texte.suite = message::CopieAvantIntegration;
    question.titre = shell::Msg(message::TitreIntegration);
    question.boutons = shell::Boutons::ValiderAnnuler;
    question.defaut = shell::Reponse::Annuler;
    question.grave = true;
    return session.dialogue.Demander(question) == shell::Reponse::Oui ? Copier(session)
                                                                      : shell::Issue::Arretee();
}

Integration Integrer(shell::Session& session, const std::filesystem::path& fichier,
                     const PermettreLgr& permettre) {
    Integration integration;
    const std::string nom = shell::CheminAffiche(fichier.filename());
    const auto demander = [&](const ContenuLgr& contenu) {
        shell::Issue issue = PermettreIncomplet(session, contenu, nom);
        return issue && permettre ? permettre(contenu) : issue;
    };
    integration.issue = shell::Dire(session.dialogue,
                                    FusionnerLgr(session, fichier, demander, integration.rapport));
    if (integration.issue) integration.texte = ComposerRapport(integration.rapport, session, nom);
    return integration;
}

}  // namespace

Integration IntegrerLgr(shell::Session& session, const std::filesystem::path& fichier) {
    return Integrer(session, fichier, [&](const ContenuLgr&) { return Copier(session); });
}

shell::Issue IntegrerFichier(shell::Session& session, const std::filesystem::path& fichier) {
    if (!session.BaseOuverte()) return shell::Issue::Refusee();
    if (shell::Issue permise = shell::CommandePermise(session); !permise) return permise;
    const std::string nom = shell::CheminAffiche(fichier.filename());
    const Integration integration = Integrer(session, fichier, [&](const ContenuLgr& contenu) {
        return Permettre(session, contenu, nom);
    });
    session.ecran.Actualiser();
    if (!integration.issue) return integration.issue;
    session.dialogue.Annoncer(shell::Msg(message::EtatIntegrationTerminee, nom));
    session.ecran.MontrerRapport(shell::Msg(message::TitreIntegration), integration.texte);
    return integration.issue;
}

shell::Issue MnuIntegrer(shell::Session& session) {
    if (!session.BaseOuverte()) return shell::Issue::Refusee();
    if (shell::Issue permise = shell::CommandePermise(session); !permise) return permise;
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreIntegrerFichier);
    demande.filtre = session.Message(message::FiltreExportDorvane);
    demande.extension = ".lgr";
    demande.depart = session.CheminEchange;
    const auto fichier = session.dialogue.ChoisirFichier(demande);
    return fichier ? IntegrerFichier(session, *fichier) : shell::Issue::Arretee();
}

}  // namespace dorvane::interchange

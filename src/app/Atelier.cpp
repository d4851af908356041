#include "app/Atelier.h"

#include "messages/Dorvane.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <system_error>

namespace dorvane::outil {

Atelier::Atelier(const std::string& langue)
    : session{shell::LieuxDuSysteme(), {dialogue, progression, horloge_, ecran_, disque_}} {
    dialogue.catalogue = &session.catalogue;
    shell::Demarrage(session);
    if (!langue.empty()) shell::ChoisirLangue(session, langue);
}

int Atelier::Ouvrir(const std::filesystem::path& chemin) {
    const std::filesystem::path reel = shell::CheminEntier(chemin);
    storage::ResultatOuverture resultat = storage::OuvrirBase(session.disque, reel, progression);
    const shell::Issue issue = shell::Dire(dialogue, shell::IssueDOuverture(resultat.etat, chemin));
    if (!issue) return Statut(issue);
    if (!resultat.journalEcarte.empty())
        dialogue.Informer(
            shell::Msg(message::JournalMisDeCote, shell::CheminAffiche(resultat.journalEcarte)));
    session.CheminBase = reel;
    session.NomBase = shell::DeriverChemins(session.CheminBase).nom;
    session.PoserBase(std::move(resultat.base));
    session.parametres.LireParametresBase(session.CheminBase);
    return Fait;
}

int Atelier::Fermer() {
    if (!session.BaseOuverte()) return Fait;
    const bool fermee = session.base->Fermer();
    session.PoserBase(nullptr);
    if (fermee) return Fait;
    dialogue.Informer(
        shell::Msg(message::FermetureBaseNonEnregistree, shell::CheminAffiche(session.CheminBase)));
    return RefusSysteme;
}

}  // namespace dorvane::outil

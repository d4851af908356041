#include "interchange/commun/FaireBase.h"

#include "messages/Dorvane.h"
#include "shell/CycleDeVie.h"
#include "shell/Parametres.h"
#include "storage/Base.h"
#include "storage/Disque.h"

namespace dorvane::interchange {
namespace {

/// Where the base is written until it is whole.
std::filesystem::path CheminProvisoire(const std::filesystem::path& base) {
    std::filesystem::path chemin = base;
    chemin += "~imp";
    return chemin;
}

/// Gives the new base its name. The journal of a base that stood there before goes first: it
/// belongs to no one.
bool Installer(storage::Disque& disque, const std::filesystem::path& provisoire,
               const std::filesystem::path& base) {
    if (!storage::SupprimerJournal(disque, base) || !disque.Renommer(provisoire, base))
        return false;
    // The new name is in place, whatever the system says of the folder.
    disque.ViderDossier(base);
    return true;
}

}  // namespace

shell::Issue FaireBase(shell::Session& session, const std::filesystem::path& base,
                       const CadreImport& cadre,
                       const std::function<bool(storage::Base&)>& remplir) {
    shell::ReprendreAvantRemplacement(session, base);
    // Held until the end: nobody opens or replaces the base meanwhile.
    const storage::ResultatVerrou verrou = session.disque.Verrouiller(base);
    const std::string nom = shell::CheminAffiche(base);
    if (verrou.etat == storage::EtatVerrou::Occupe)
        return shell::Issue::Refusee(shell::Msg(message::BaseOccupee, nom));
    shell::Issue refusee =
        shell::Issue::ParSysteme(shell::Msg(message::BaseImporteeNonEcrite, nom));

    const shell::CadreProgression montre{session.progression, cadre.titre, cadre.texte};
    const std::filesystem::path provisoire = CheminProvisoire(base);
    storage::ResultatOuverture ouverture =
        storage::NouvelleBase(session.disque, provisoire,
                              {TypeTri::Naissance, session.parametres.generaux.motClePrenom,
                               session.parametres.generaux.motCleNom});
    if (ouverture.etat != storage::Ouverture::Faite) return refusee;
    ouverture.base->regles.particules = session.parametres.generaux.particules;
    const bool fini = remplir(*ouverture.base);
    const bool ecrite = fini && ouverture.base->Fermer();
    if (!ecrite) ouverture.base.reset();
    if (!ecrite || !Installer(session.disque, provisoire, base)) {
        (void)session.disque.Supprimer(provisoire);
        (void)storage::SupprimerJournal(session.disque, provisoire);
        return fini ? refusee : shell::Issue::Arretee(shell::Msg(message::ImportAbandonne));
    }
    return shell::Issue::Faite();
}

}  // namespace dorvane::interchange

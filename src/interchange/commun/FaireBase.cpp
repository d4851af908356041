#include "interchange/commun/FaireBase.h"

#include "messages/Dorvane.h"
#include "shell/CycleDeVie.h"
#include "shell/Parametres.h"
#include "storage/Base.h"
#include "storage/Disque.h"

namespace dorvane::interchange {

shell::Issue FaireBase(shell::Session& session, const std::filesystem::path& base,
                       const CadreImport& cadre,
                       const std::function<bool(storage::Base&)>& remplir) {
    shell::ReprendreAvantRemplacement(session, base);
    const std::string nom = shell::CheminAffiche(base);
    shell::Issue refusee =
        shell::Issue::ParSysteme(shell::Msg(message::BaseImporteeNonEcrite, nom));

    const shell::CadreProgression montre{session.progression, cadre.titre, cadre.texte};
    // It holds the lock until the end: nobody opens or replaces the base meanwhile.
    const storage::ResultatOuverture ouverture =
        storage::NouvelleBase(session.disque, base,
                              {TypeTri::Naissance, session.parametres.generaux.motClePrenom,
                               session.parametres.generaux.motCleNom});
    shell::Issue creee = shell::IssueDeCreation(ouverture.etat, base);
    if (creee.cause == shell::Cause::Refuse) return creee;
    if (!creee) return refusee;
    ouverture.base->regles.particules = session.parametres.generaux.particules;
    if (!remplir(*ouverture.base))
        return shell::Issue::Arretee(shell::Msg(message::ImportAbandonne));
    return ouverture.base->Fermer() ? shell::Issue::Faite() : refusee;
}

}  // namespace dorvane::interchange

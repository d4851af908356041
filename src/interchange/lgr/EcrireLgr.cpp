#include "interchange/lgr/EcrireLgr.h"

#include "interchange/lgr/RedactionLgr.h"
#include "messages/Echange.h"
#include "messages/Messages.h"
#include "shell/Session.h"
#include "storage/Base.h"

#include <utility>

namespace dorvane::interchange {
namespace {

constexpr std::uint32_t Pas = 100;  ///< records between two looks at the cancel button

/// Runs one section: `faire(rang)` for 1 to `total`, the count behind its message. False when the
/// user gave up.
template <class Faire>
bool Derouler(shell::Session& session, NoMessage message, std::uint32_t total, Faire faire) {
    const std::string titre = session.Message(message);
    session.progression.Phase(shell::Litteral(titre));
    for (std::uint32_t rang = 1; rang <= total; ++rang) {
        if (rang % Pas == 0) {
            session.progression.Phase(shell::Litteral(titre + ' ' + std::to_string(rang)));
            if (!session.progression.Avancer(rang, total)) return false;
        }
        faire(rang);
    }
    return true;
}

/// The persons are read by number, as they lie in the base, and written in the order of the table.
bool EcrireIndividus(shell::Session& session, RedactionLgr& redaction, std::string& octets) {
    storage::Base& base = *session.base;
    const std::uint32_t dernier = base.entete.DernierIndividu;
    std::string fiches;
    std::vector<std::pair<std::size_t, std::size_t>> places(dernier + 1);
    const bool fini =
        Derouler(session, message::EtatPersonnesExportees, dernier, [&](std::uint32_t n) {
            if (!redaction.EstEcrit(NoOrdre{n})) return;
            const std::size_t debut = fiches.size();
            redaction.EcrireIndividu(fiches, NoOrdre{n});
            places[n] = {debut, fiches.size() - debut};
        });
    octets.append("[INDIVIDUS]\r\n");
    for (std::uint32_t rang = 1; rang <= base.entete.NbTriIndividus; ++rang) {
        const std::uint32_t n = base.R_TRI.IndividuAuRang(rang).valeur;
        if (n > dernier) continue;
        octets.append(fiches, places[n].first, places[n].second);
        places[n].second = 0;  // once, whatever a damaged table says
    }
    if (fini) octets.append("[FIN INDIVIDUS]\r\n");
    return fini;
}

/// A section of the records 1 to `total` that `redaction` writes.
template <class Numero, class Ecrire>
bool EcrireSection(shell::Session& session, std::string& octets, std::string_view nom,
                   NoMessage message, std::uint32_t total, Ecrire ecrire) {
    octets.append("[").append(nom).append("]\r\n");
    if (!Derouler(session, message, total, [&](std::uint32_t n) { ecrire(Numero{n}); }))
        return false;
    octets.append("[FIN ").append(nom).append("]\r\n");
    return true;
}

bool EcrireTout(shell::Session& session, RedactionLgr& redaction, std::string& octets) {
    const storage::EnTete& entete = session.base->entete;
    redaction.EcrireTete(octets);
    if (!EcrireIndividus(session, redaction, octets) ||
        !EcrireSection<NoMariage>(session, octets, "MARIAGES", message::EtatUnionsExportees,
                                  entete.DernierMariage,
                                  [&](NoMariage m) {
                                      if (redaction.EstEcrite(m)) redaction.EcrireUnion(octets, m);
                                  }) ||
        !EcrireSection<NoDocument>(session, octets, "IMAGES", message::EtatDocumentsExportes,
                                   entete.DernierDocument,
                                   [&](NoDocument d) {
                                       if (redaction.EstEcrit(d))
                                           redaction.EcrireDocument(octets, d);
                                   }) ||
        !EcrireSection<NoEvenement>(session, octets, "EVENEMENTS",
                                    message::EtatEnregistrementsTraites, entete.DernierEvenement,
                                    [&](NoEvenement e) {
                                        if (redaction.EstEcrit(e))
                                            redaction.EcrireEvenement(octets, e);
                                    }))
        return false;
    redaction.EcrirePied(octets);
    return true;
}

}  // namespace

bool ComposerLgr(shell::Session& session, const ChoixExport& choix, std::string& octets,
                 ComptesExport& comptes) {
    const shell::CadreProgression cadre{
        session.progression, shell::Msg(message::TitreExportDorvane),
        shell::Litteral(session.Message(message::EtatPersonnesExportees))};
    RedactionLgr redaction{session, choix};
    const bool fini = EcrireTout(session, redaction, octets);
    comptes = redaction.Comptes();
    return fini;
}

ResultatExport ExporterLgr(shell::Session& session, const std::filesystem::path& chemin,
                           const ChoixExport& choix) {
    ResultatExport resultat;
    std::string octets;
    const bool fini = ComposerLgr(session, choix, octets, resultat.comptes);
    resultat.issue = EcrireExport(chemin, octets, fini);
    return resultat;
}

}  // namespace dorvane::interchange

#include "interchange/gedcom/ExportGedcom.h"

#include "interchange/gedcom/RedactionGedcom.h"
#include "messages/Export.h"
#include "messages/Messages.h"
#include "shell/Session.h"
#include "storage/Base.h"

namespace dorvane::interchange {

namespace {

constexpr std::uint32_t Pas = 64;  ///< records between two looks at the cancel button

/// Runs one phase: `faire(rang)` for 1 to `total`. False when the user gave up.
template <class Faire>
bool Derouler(shell::Session& session, const std::string& titre, std::uint32_t total, Faire faire) {
    session.progression.Phase(shell::Litteral(titre));
    for (std::uint32_t rang = 1; rang <= total; ++rang) {
        if (rang % Pas == 0 && !session.progression.Avancer(rang, total)) return false;
        faire(rang);
    }
    return true;
}

std::string Titre(const shell::Session& session, int phase, NoMessage message) {
    return "Phase " + std::to_string(phase) + " - " + session.Message(message);
}

}  // namespace

bool ComposerGedcom(shell::Session& session, const std::string& nomFichier,
                    const OptionsGedcom& options, std::string& octets, ComptesExport& comptes) {
    const shell::CadreProgression cadre{session.progression, shell::Msg(message::TitreExportGedcom),
                                        shell::Litteral("Phase 1")};
    storage::Base& base = *session.base;
    storage::TablesTri& tri = base.R_TRI;
    RedactionGedcom redaction{session, options};
    redaction.EcrireEnTete(nomFichier);
    const bool fait = Derouler(session, Titre(session, 2, message::EtatPersonnesExportees),
                               base.entete.NbTriIndividus,
                               [&](std::uint32_t rang) {
                                   const NoOrdre n = tri.IndividuAuRang(rang);
                                   if (redaction.EstEcrit(n)) redaction.EcrireIndividu(n);
                               }) &&
                      Derouler(session, Titre(session, 3, message::EtatUnionsExportees),
                               redaction.NombreFamilles(),
                               [&](std::uint32_t famille) { redaction.EcrireFamille(famille); }) &&
                      Derouler(session, Titre(session, 4, message::EtatEnregistrementsTraites),
                               base.entete.DernierEvenement,
                               [&](std::uint32_t e) {
                                   if (redaction.EstEcrit(NoEvenement{e}))
                                       redaction.EcrireSource(NoEvenement{e});
                               }) &&
                      Derouler(session, Titre(session, 5, message::EtatDocumentsExportes),
                               base.entete.DernierDocument, [&](std::uint32_t d) {
                                   if (redaction.EstEcrit(NoDocument{d}))
                                       redaction.EcrireDocument(NoDocument{d});
                               });
    if (fait) redaction.Terminer();
    comptes = redaction.Comptes();
    octets = redaction.Prendre();
    return fait;
}

ResultatExport ExporterGedcom(shell::Session& session, const std::filesystem::path& chemin,
                              const OptionsGedcom& options) {
    ResultatExport resultat;
    std::string octets;
    const bool fait = ComposerGedcom(session, shell::CheminAffiche(chemin.filename()), options,
                                     octets, resultat.comptes);
    resultat.issue = EcrireExport(chemin, octets, fait);
    return resultat;
}

}  // namespace dorvane::interchange

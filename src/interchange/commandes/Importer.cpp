#include "interchange/commandes/Importer.h"

#include "interchange/gedcom/ImportGedcom.h"
#include "interchange/lgr/ImportLgr.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "messages/Releve.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "storage/EnTete.h"
#include "values/Texte1252.h"

#include <functional>
#include <string_view>
#include <system_error>
#include <utility>

namespace dorvane::interchange {
namespace {

/// The extension in small letters, with its dot.
bool EstGedcom(const std::filesystem::path& fichier) {
    return shell::ExtensionDe(fichier) == ".ged";
}

/// Limits that left records out are told at once, not only in the report.
void AvertirLimites(shell::Session& session, const RapportImport& rapport) {
    const auto depasse = [&rapport](std::string_view gedcom, std::string_view echange) {
        return rapport.Nombre(Constat::Limite, rapport.version.empty() ? gedcom : echange) > 0;
    };
    const bool echange = !rapport.version.empty();
    if (depasse("INDI", "INDIVIDUS"))
        session.dialogue.Informer(shell::Msg(message::MaximumPersonnesBaseAtteint));
    if (depasse("SOUR", "EVENEMENTS") && (echange || rapport.evenements >= storage::MaxEvenements))
        session.dialogue.Informer(shell::Msg(message::MaximumEvenementsBaseAtteint));
    if (depasse("NOTE", "IMAGES") && (echange || rapport.documents >= storage::MaxDocuments))
        session.dialogue.Informer(shell::Msg(message::MaximumDocumentsBaseAtteint));
}

/// Keeps the report of an import beside the other files of work.
void EnregistrerRapport(shell::Session& session, const std::filesystem::path& base,
                        Importation& importation) {
    std::filesystem::path chemin = session.Travail() / base.stem();
    chemin += ".IMPORT.TXT";
    if (shell::EcrireTout(chemin, TexteVersUtf8(importation.texte)))
        importation.fichierRapport = chemin;
    else
        session.dialogue.Informer(shell::Msg(message::FichierRapportNonEcrit));
}

bool PeutRemplacer(shell::Session& session, const std::filesystem::path& base) {
    std::error_code erreur;
    if (!std::filesystem::exists(base, erreur)) return true;
    shell::Question question;
    question.texte = shell::Msg(message::ConfirmerRemplacerBaseParImport);
    question.titre = shell::Msg(message::TitreRemplacementBase);
    question.defaut = shell::Reponse::Non;
    question.grave = true;
    return session.dialogue.Confirmer(question);
}

using ImporterDansBase = std::function<Importation(const std::filesystem::path& base)>;

/// Closes the base that is open, imports into the one named like the file, opens that and shows
/// the report.
shell::Issue ImporterEtOuvrir(shell::Session& session, const std::filesystem::path& fichier,
                              const ImporterDansBase& importer, NoMessage titre) {
    if (shell::Issue permise = shell::CommandePermise(session); !permise) return permise;
    std::filesystem::path base = fichier;
    base.replace_extension(".LGD");
    if (!PeutRemplacer(session, base)) return shell::Issue::Arretee();
    if (shell::Issue close = shell::Clore(session); !close) {
        session.ecran.Actualiser();
        return close;
    }
    session.ecran.FermerFenetres();
    Importation importation = importer(base);
    if (!importation.issue) {
        session.ecran.Actualiser();
        return importation.issue;
    }
    shell::Issue ouverte = shell::MnuOuvrir(session, base);
    session.dialogue.Annoncer(
        shell::Msg(message::EtatImportTermine, shell::CheminAffiche(base.filename())));
    session.ecran.MontrerRapport(shell::Msg(titre), importation.texte);
    return ouverte;
}

}  // namespace

Importation ImporterVers(shell::Session& session, const std::filesystem::path& fichier,
                         const std::filesystem::path& base) {
    Importation importation;
    importation.issue =
        shell::Dire(session.dialogue,
                    EstGedcom(fichier) ? ImporterGedcom(session, fichier, base, importation.rapport)
                                       : ImporterLgr(session, fichier, base, importation.rapport));
    if (!importation.issue) return importation;

    AvertirLimites(session, importation.rapport);
    importation.texte =
        ComposerRapport(importation.rapport, session, shell::CheminAffiche(fichier.filename()));
    EnregistrerRapport(session, base, importation);
    return importation;
}

Importation ImporterActesVers(shell::Session& session, const Releve& releve,
                              const std::filesystem::path& fichier,
                              const std::filesystem::path& base) {
    Importation importation;
    importation.issue = shell::Dire(
        session.dialogue, ImporterReleve(session, releve, fichier, base, importation.releve));
    if (!importation.issue) return importation;
    if (releve.ligneSansSeparateur != 0)
        session.dialogue.Informer(shell::Msg(message::ImportReleveArreteSansSeparateur,
                                             std::to_string(releve.ligneSansSeparateur)));
    importation.texte = ComposerRapport(importation.releve, releve, session);
    EnregistrerRapport(session, base, importation);
    return importation;
}

shell::Issue ImporterFichier(shell::Session& session, const std::filesystem::path& fichier) {
    // A base is opened, never read as a text: the new one would take its place.
    if (shell::ExtensionDe(fichier) == ".lgd") return shell::Issue::Refusee();
    const auto importer = [&](const std::filesystem::path& base) {
        return ImporterVers(session, fichier, base);
    };
    return ImporterEtOuvrir(session, fichier, importer, message::TitreRapportImport);
}

shell::Issue ImporterActes(shell::Session& session, const Releve& releve,
                           const std::filesystem::path& fichier) {
    const auto importer = [&](const std::filesystem::path& base) {
        return ImporterActesVers(session, releve, fichier, base);
    };
    return ImporterEtOuvrir(session, fichier, importer, message::TitreImportReleve);
}

shell::Issue MnuImporter(shell::Session& session) {
    if (shell::Issue permise = shell::CommandePermise(session); !permise) return permise;
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreImportGedcom);
    demande.filtre = session.Message(message::FiltreFichiersAImporter);
    demande.extension = ".ged";
    demande.depart = session.CheminGedcom;
    const auto fichier = session.dialogue.ChoisirFichier(demande);
    return fichier ? ImporterFichier(session, *fichier) : shell::Issue::Arretee();
}

}  // namespace dorvane::interchange

#include "interchange/commandes/Importer.h"

#include "interchange/gedcom/ImportGedcom.h"
#include "interchange/lgr/ImportLgr.h"
#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "messages/Messages.h"
#include "messages/Releve.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "storage/EnTete.h"
#include "values/Texte1252.h"

#include <string_view>
#include <system_error>
#include <utility>

namespace dorvane::interchange {
namespace {

std::string NomAffichable(const std::filesystem::path& chemin) {
    return Utf8VersTexte(chemin.string()).octets;
}

/// The extension in small letters, with its dot.
std::string Extension(const std::filesystem::path& chemin) {
    std::string extension = chemin.extension().string();
    for (char& c : extension)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return extension;
}

bool EstGedcom(const std::filesystem::path& fichier) {
    return Extension(fichier) == ".ged";
}

/// Tells what stopped an import; nothing when it was done.
void Expliquer(shell::Session& session, IssueImport issue, const std::filesystem::path& fichier,
               const std::filesystem::path& base) {
    switch (issue) {
        case IssueImport::Fait:
            return;
        case IssueImport::Illisible:
            session.dialogue.Informer(
                shell::Msg(message::FichierIllisible, NomAffichable(fichier)));
            return;
        case IssueImport::Inexploitable:
            session.dialogue.Informer(
                EstGedcom(fichier)
                    ? shell::Litteral("Fichier GEDCOM inexploitable"_1252)
                    : shell::Msg(message::FichierPasUnEchange, NomAffichable(fichier.filename())));
            return;
        case IssueImport::Abandonne:
            session.dialogue.Informer(shell::Msg(message::ImportAbandonne));
            return;
        case IssueImport::Occupee:
            session.dialogue.Informer(shell::Msg(message::BaseOccupee, NomAffichable(base)));
            return;
        case IssueImport::Refuse:
            session.dialogue.Informer(
                shell::Msg(message::BaseImporteeNonEcrite, NomAffichable(base)));
            return;
    }
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
void ImporterEtOuvrir(shell::Session& session, const std::filesystem::path& fichier,
                      const ImporterDansBase& importer, const shell::Phrase& titre,
                      const MontrerRapport& montrer) {
    if (!shell::CommandePermise(session)) return;
    std::filesystem::path base = fichier;
    base.replace_extension(".LGD");
    if (!PeutRemplacer(session, base)) return;
    if (!shell::Clore(session)) {
        session.ecran.Actualiser();
        return;
    }
    session.ecran.FermerFenetres();
    const Importation importation = importer(base);
    if (!importation.faite) {
        session.ecran.Actualiser();
        return;
    }
    shell::MnuOuvrir(session, base);
    session.dialogue.Annoncer(
        shell::Msg(message::EtatImportTermine, NomAffichable(base.filename())));
    if (montrer) montrer(session.Message(titre.no), importation.texte);
}

}  // namespace

Importation ImporterVers(shell::Session& session, const std::filesystem::path& fichier,
                         const std::filesystem::path& base) {
    Importation importation;
    const IssueImport issue = EstGedcom(fichier)
                                  ? ImporterGedcom(session, fichier, base, importation.rapport)
                                  : ImporterLgr(session, fichier, base, importation.rapport);
    Expliquer(session, issue, fichier, base);
    importation.faite = issue == IssueImport::Fait;
    if (!importation.faite) return importation;

    AvertirLimites(session, importation.rapport);
    importation.texte =
        ComposerRapport(importation.rapport, session, NomAffichable(fichier.filename()));
    EnregistrerRapport(session, base, importation);
    return importation;
}

Importation ImporterActesVers(shell::Session& session, const Releve& releve,
                              const std::filesystem::path& fichier,
                              const std::filesystem::path& base) {
    Importation importation;
    const IssueImport issue = ImporterReleve(session, releve, fichier, base, importation.releve);
    Expliquer(session, issue, fichier, base);
    importation.faite = issue == IssueImport::Fait;
    if (!importation.faite) return importation;
    if (releve.ligneSansSeparateur != 0)
        session.dialogue.Informer(shell::Msg(message::ImportReleveArreteSansSeparateur,
                                             std::to_string(releve.ligneSansSeparateur)));
    importation.texte = ComposerRapport(importation.releve, releve, session);
    EnregistrerRapport(session, base, importation);
    return importation;
}

void ImporterFichier(shell::Session& session, const std::filesystem::path& fichier,
                     const MontrerRapport& montrer) {
    // A base is opened, never read as a text: the new one would take its place.
    if (Extension(fichier) == ".lgd") return;
    const auto importer = [&](const std::filesystem::path& base) {
        return ImporterVers(session, fichier, base);
    };
    ImporterEtOuvrir(session, fichier, importer, shell::Msg(message::TitreRapportImport), montrer);
}

void ImporterActes(shell::Session& session, const Releve& releve,
                   const std::filesystem::path& fichier, const MontrerRapport& montrer) {
    const auto importer = [&](const std::filesystem::path& base) {
        return ImporterActesVers(session, releve, fichier, base);
    };
    ImporterEtOuvrir(session, fichier, importer, shell::Msg(message::TitreImportReleve), montrer);
}

void MnuImporter(shell::Session& session, const MontrerRapport& montrer) {
    if (!shell::CommandePermise(session)) return;
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreImportGedcom);
    demande.filtre = session.Message(message::FiltreFichiersAImporter);
    demande.extension = ".ged";
    demande.depart = session.CheminGedcom;
    if (const auto fichier = session.dialogue.ChoisirFichier(demande))
        ImporterFichier(session, *fichier, montrer);
}

}  // namespace dorvane::interchange

#include "interchange/commandes/LancerExport.h"

#include "interchange/gedcom/ExportGedcom.h"
#include "interchange/lgr/EcrireLgr.h"
#include "interchange/lgr/RedactionLgr.h"
#include "messages/Echange.h"
#include "messages/Export.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <cassert>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace dorvane::interchange {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Section = "Export";
constexpr std::string_view CleChoix = "Choix";
constexpr std::string_view CleDossier = "Dossier";
constexpr std::uint32_t MaxGenerations = 999;

// What is kept: numbers joined by "/", in this order.
enum Rang : std::size_t {
    RangFormat,
    RangPartie,
    RangSens,
    RangGenerations,
    RangCollateraux,
    RangComplet,
    RangEcarter,
    RangJeu,
    RangReglage,  ///< the set of the settings when that one was taken
    NbRangs
};

std::vector<std::int32_t> Nombres(std::string_view texte) {
    std::vector<std::int32_t> nombres;
    while (!texte.empty()) {
        const std::size_t fin = std::min(texte.find('/'), texte.size());
        nombres.push_back(shell::NombreIndulgent(texte.substr(0, fin)));
        texte.remove_prefix(std::min(fin + 1, texte.size()));
    }
    return nombres;
}

std::int32_t Numero(JeuExport jeu) {
    return static_cast<std::int32_t>(jeu);
}

JeuExport JeuDesReglages(const shell::Session& session) {
    return JeuDuReglage(session.parametres.generaux.jeuExport);
}

SelectionExport Selectionner(storage::Base& base, const DemandeExport& demande) {
    SelectionExport selection{base};
    if (demande.entiere) {
        selection.MarquerTous();
        return selection;
    }
    selection.MarquerListe(demande.liste);
    for (const ParcoursExport& p : demande.parcours)
        selection.MarquerParente(p.depart, p.sens, p.generations);
    return selection;
}

template <class Numero>
std::uint32_t Compter(const RedactionLgr& redaction, std::uint32_t dernier) {
    std::uint32_t nombre = 0;
    for (Numero n{1}; n.valeur <= dernier; ++n.valeur)
        nombre += redaction.EstEcrit(n) ? 1U : 0U;
    return nombre;
}

std::string Extension(FormatExport format) {
    return format == FormatExport::Gedcom ? ".ged" : ".lgr";
}

/// The folder of the last export, else that of the base.
fs::path DossierPropose(const shell::Session& session) {
    fs::path dernier =
        shell::Utf8VersChemin(TexteVersUtf8(session.parametres.Valeur(Section, CleDossier)));
    std::error_code erreur;
    if (!dernier.empty() && fs::is_directory(dernier, erreur)) return dernier;
    return session.CheminBase.parent_path();
}

/// Asks where to; told when it may not be there.
shell::Issue ChoisirFichier(shell::Session& session, FormatExport format, fs::path& fichier) {
    const std::string extension = Extension(format);
    shell::DemandeFichier demande;
    demande.sorte = shell::DemandeFichier::Sorte::Enregistrer;
    demande.titre = shell::Msg(message::TitreExporterDansUnFichier);
    demande.filtre = session.Message(format == FormatExport::Gedcom ? message::FiltreExportGedcom
                                                                    : message::FiltreExportDorvane);
    demande.extension = extension;
    demande.depart = DossierPropose(session) / session.CheminBase.stem();
    demande.depart += extension;
    const std::optional<fs::path> choisi = session.dialogue.ChoisirFichier(demande);
    if (!choisi) return shell::Issue::Arretee();
    fichier = fs::absolute(*choisi).lexically_normal();
    bool autreNom = false;
    if (shell::ExtensionDe(fichier) != extension) {
        fichier += extension;
        autreNom = true;
    }
    if (shell::EstFichierDeBase(fichier, session.CheminBase))
        return shell::Dire(session.dialogue, shell::Issue::Refusee(shell::Msg(
                                                 message::FichierDeLaBaseOuverte,
                                                 shell::CheminAffiche(fichier.filename()))));
    // The dialog has asked about the name that it knew.
    std::error_code erreur;
    if (autreNom && fs::exists(fichier, erreur)) {
        shell::Question question;
        question.texte =
            shell::Msg(message::ConfirmerRemplacerExport, shell::CheminAffiche(fichier.filename()));
        question.defaut = shell::Reponse::Non;
        question.grave = true;
        if (!session.dialogue.Confirmer(question)) return shell::Issue::Arretee();
    }
    return shell::Issue::Faite();
}

OptionsGedcom OptionsDe(const DemandeExport& demande, ChoixExport choix) {
    return {std::move(choix), demande.jeu, demande.reduit};
}

ResultatExport Ecrire(shell::Session& session, const fs::path& fichier,
                      const DemandeExport& demande, ChoixExport choix) {
    if (demande.format == FormatExport::Dorvane) return ExporterLgr(session, fichier, choix);
    return ExporterGedcom(session, fichier, OptionsDe(demande, std::move(choix)));
}

/// What a stopped export leaves is of use to nobody who has not asked for it.
void ProposerSuppression(shell::Session& session, const fs::path& partiel) {
    shell::Question question;
    question.texte =
        shell::Msg(message::ConfirmerSupprimerExportPartiel, shell::CheminAffiche(partiel));
    question.defaut = shell::Reponse::Non;
    question.grave = true;
    if (!session.dialogue.Confirmer(question)) return;
    std::error_code erreur;
    if (!fs::remove(partiel, erreur))
        session.dialogue.Informer(
            shell::Msg(message::FichierNonSupprime, shell::CheminAffiche(partiel)));
}

void DireFait(shell::Session& session, const ComptesExport& comptes) {
    session.dialogue.Informer(shell::Msg(message::InfoExportTermine));
    if (comptes.perdus > 0)
        session.dialogue.Informer(
            shell::Msg(message::CaracteresPerdusALExport, std::to_string(comptes.perdus)));
    if (comptes.omis > 0)
        session.dialogue.Informer(
            shell::Msg(message::UnionsEtEntreesOmises, std::to_string(comptes.omis)));
}

}  // namespace

DemandeExport DernierExport(const shell::Session& session) {
    DemandeExport demande;
    demande.jeu = JeuDesReglages(session);
    demande.parcours.resize(1);
    const std::vector<std::int32_t> n = Nombres(session.parametres.Valeur(Section, CleChoix));
    if (n.size() != NbRangs) return demande;
    demande.format = n[RangFormat] == 1 ? FormatExport::Dorvane : FormatExport::Gedcom;
    demande.entiere = n[RangPartie] == 0;
    ParcoursExport& parcours = demande.parcours.front();
    parcours.sens = n[RangSens] == 1 ? SensExport::Descendants : SensExport::Ascendants;
    parcours.generations = static_cast<std::uint32_t>(
        std::clamp(n[RangGenerations], 1, static_cast<std::int32_t>(MaxGenerations)));
    demande.reglages = {n[RangCollateraux] == 1, n[RangComplet] == 1, n[RangEcarter] == 1};
    if (n[RangReglage] == Numero(demande.jeu))
        demande.jeu = JeuDuReglage(std::to_string(n[RangJeu]));
    return demande;
}

void RetenirExport(shell::Session& session, const DemandeExport& demande) {
    const ParcoursExport parcours =
        demande.parcours.empty() ? ParcoursExport{} : demande.parcours.back();
    const std::int32_t nombres[NbRangs] = {
        demande.format == FormatExport::Dorvane ? 1 : 0,
        demande.entiere ? 0 : 1,
        parcours.sens == SensExport::Descendants ? 1 : 0,
        static_cast<std::int32_t>(std::min(parcours.generations, MaxGenerations)),
        demande.reglages.collateraux ? 1 : 0,
        demande.reglages.complet ? 1 : 0,
        demande.reglages.ecarter1900 ? 1 : 0,
        Numero(demande.jeu),
        Numero(JeuDesReglages(session))};
    std::string texte;
    for (const std::int32_t nombre : nombres)
        texte += std::to_string(nombre) + '/';
    // A refusal is told when the settings are saved at the end.
    if (session.parametres.Valeur(Section, CleChoix) != texte)
        static_cast<void>(session.parametres.SauverValeur(Section, CleChoix, texte));
}

ComptesSelection CompterExport(shell::Session& session, const DemandeExport& demande) {
    storage::Base& base = *session.base;
    const SelectionExport selection = Selectionner(base, demande);
    ComptesSelection comptes;
    comptes.retenus = selection.NbRetenus();
    comptes.marques = selection.NbMarques();
    const ChoixExport choix = selection.Choix(demande.reglages);
    // Both formats take the same records.
    const RedactionLgr redaction{session, choix};
    comptes.individus = Compter<NoOrdre>(redaction, base.entete.DernierIndividu);
    comptes.evenements = Compter<NoEvenement>(redaction, base.entete.DernierEvenement);
    comptes.documents = Compter<NoDocument>(redaction, base.entete.DernierDocument);
    return comptes;
}

Lancement LancerExport(shell::Session& session, const DemandeExport& demande) {
    if (shell::Issue permise = shell::CommandePermise(session); !permise) return {permise};
    if (!session.base) return {};
    ChoixExport choix = Selectionner(*session.base, demande).Choix(demande.reglages);
    if (std::ranges::find(choix.choisis, true) == choix.choisis.end())
        return {.issue = shell::Dire(session.dialogue, shell::Issue::Refusee(shell::Msg(
                                                           message::ExportSansPersonneChoisie))),
                .vide = true};
    fs::path fichier;
    if (shell::Issue choisi = ChoisirFichier(session, demande.format, fichier); !choisi)
        return {choisi};
    const ResultatExport resultat = Ecrire(session, fichier, demande, std::move(choix));
    if (resultat.issue) {
        static_cast<void>(session.parametres.SauverValeur(
            Section, CleDossier, shell::CheminAffiche(fichier.parent_path())));
        DireFait(session, resultat.comptes);
        return {.issue = resultat.issue, .fichier = fichier, .comptes = resultat.comptes};
    }
    if (resultat.issue.cause == shell::Cause::Arrete)
        ProposerSuppression(session, shell::CheminPartiel(fichier));
    return {.issue = shell::Dire(session.dialogue, resultat.issue), .comptes = resultat.comptes};
}

ResultatExport ExporterVers(shell::Session& session, const DemandeExport& demande,
                            const fs::path& fichier) {
    assert(session.base);
    return Ecrire(session, fichier, demande,
                  Selectionner(*session.base, demande).Choix(demande.reglages));
}

bool ComposerExport(shell::Session& session, const DemandeExport& demande, const std::string& nom,
                    std::string& octets, ComptesExport& comptes) {
    assert(session.base);
    ChoixExport choix = Selectionner(*session.base, demande).Choix(demande.reglages);
    if (demande.format == FormatExport::Dorvane)
        return ComposerLgr(session, choix, octets, comptes);
    return ComposerGedcom(session, nom, OptionsDe(demande, std::move(choix)), octets, comptes);
}

}  // namespace dorvane::interchange

#include "interchange/commun/RapportImport.h"

#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "shell/Session.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

/// By `Constat`.
constexpr std::array<NoMessage, static_cast<std::size_t>(Constat::Nombre)> Titres{
    message::TitreImportNonRepris,         message::TitreImportSansPlace,
    message::TitreImportDansLaNote,        message::TitreImportRemplaces,
    message::TitreImportReferencesPerdues, message::TitreImportDoublons,
    message::TitreImportLimitesDeBase,     message::TitreImportLignesSansParent,
    message::TitreImportLignesIllisibles,  message::TitreImportFamillesSansUnion};

constexpr std::size_t LargeurLigne = 96;

/// Line numbers, runs of them as "12-15", folded into lines of text.
std::string EcrireNumeros(const std::vector<std::uint32_t>& numeros) {
    std::string texte = "   ";
    std::size_t largeur = texte.size();
    for (std::size_t i = 0; i < numeros.size();) {
        std::size_t fin = i;
        while (fin + 1 < numeros.size() && numeros[fin + 1] == numeros[fin] + 1)
            ++fin;
        std::string piece = ' ' + std::to_string(numeros[i]);
        if (fin > i) piece += '-' + std::to_string(numeros[fin]);
        if (largeur + piece.size() > LargeurLigne) {
            texte += "\n   ";
            largeur = 3;
        }
        texte += piece;
        largeur += piece.size();
        i = fin + 1;
    }
    return texte + '\n';
}

/// The message that tells why a set was taken; others where the file declares none.
NoMessage RaisonEnClair(const ChoixDeJeu& choix) {
    const bool declare = !choix.declare.empty();
    switch (choix.raison) {
        case RaisonDuJeu::Marque:
            return message::RapportJeuSelonMarque;
        case RaisonDuJeu::Declare:
            return message::RapportJeuDeclare;
        case RaisonDuJeu::SansMarque16:
            return message::RapportJeuSelonPremiersOctets;
        case RaisonDuJeu::ContenuUtf8:
            return declare ? message::RapportJeuSelonContenu
                           : message::RapportJeuSelonContenuNonDeclare;
        case RaisonDuJeu::Defaut:
            break;
    }
    return declare ? message::RapportJeuParDefaut : message::RapportJeuParDefautNonDeclare;
}

/// Puts the lines of one report together.
class Redaction {
public:
    explicit Redaction(const shell::Session& session) : session_{session} {}

    void Ligne(NoMessage message, const std::string& valeur = {}, const std::string& valeur2 = {}) {
        texte_ += session_.catalogue.Composer(shell::Msg(message, valeur, valeur2)) + '\n';
    }
    void Compter(NoMessage message, std::size_t nombre) {
        if (nombre > 0) Ligne(message, std::to_string(nombre));
    }
    void Sauter() { texte_ += '\n'; }

    void Chapitre(Constat constat, const RapportImport::Mentions& mentions) {
        if (mentions.empty()) return;
        Sauter();
        const std::string titre = session_.Message(Titres[static_cast<std::size_t>(constat)]);
        texte_.append(titre).append(1, '\n').append(titre.size(), '-').append(1, '\n');
        for (const auto& [chemin, mention] : mentions) {
            texte_.append(chemin.empty() ? "?" : chemin).append(" : ");
            texte_ += std::to_string(mention.nombre) + '\n' + EcrireNumeros(mention.lignes);
            if (mention.nombre > mention.lignes.size())
                Ligne(message::RapportEtAutresLignes,
                      std::to_string(mention.nombre - mention.lignes.size()));
        }
    }

    [[nodiscard]] std::string Rendre() { return std::move(texte_); }

private:
    const shell::Session& session_;
    std::string texte_;
};

}  // namespace

void RapportImport::Noter(Constat constat, std::string_view chemin, std::uint32_t ligne) {
    Mentions& mentions = mentions_[static_cast<std::size_t>(constat)];
    auto ou = mentions.find(chemin);
    if (ou == mentions.end()) ou = mentions.emplace(std::string{chemin}, Mention{}).first;
    ++ou->second.nombre;
    if (ou->second.lignes.size() < MaxLignes) ou->second.lignes.push_back(ligne);
}

std::size_t RapportImport::Nombre(Constat constat) const {
    std::size_t nombre = 0;
    for (const auto& [chemin, mention] : Liste(constat))
        nombre += mention.nombre;
    return nombre;
}

std::size_t RapportImport::Nombre(Constat constat, std::string_view chemin) const {
    const Mentions& mentions = Liste(constat);
    const auto ou = mentions.find(chemin);
    return ou == mentions.end() ? 0 : ou->second.nombre;
}

std::string ComposerRapport(const RapportImport& rapport, const shell::Session& session,
                            std::string_view fichier) {
    Redaction redaction{session};
    redaction.Ligne(message::RapportImportDe, std::string{fichier});
    redaction.Sauter();
    redaction.Ligne(message::RapportPersonnesUnions, std::to_string(rapport.individus),
                    std::to_string(rapport.unions));
    redaction.Ligne(message::RapportEvenementsDocuments, std::to_string(rapport.evenements),
                    std::to_string(rapport.documents));
    redaction.Ligne(message::RapportLignesLues, std::to_string(rapport.lignes));
    redaction.Compter(message::RapportLignesVides, rapport.lignesVides);
    const bool echange = !rapport.version.empty();
    if (!rapport.finTrouvee)
        redaction.Ligne(echange ? message::RapportFinManquante : message::GedcomSansLigneDeFin);

    redaction.Sauter();
    if (echange)
        redaction.Ligne(message::RapportVersionFichier, rapport.version);
    else
        redaction.Ligne(RaisonEnClair(rapport.jeu), std::string{NomDeJeu(rapport.jeu.jeu)},
                        rapport.jeu.declare);
    redaction.Compter(message::RapportCaracteresApproches, rapport.translitteres);
    redaction.Compter(message::RapportCaracteresPerdus, rapport.perdus);
    redaction.Compter(message::RapportOctetsNuls, rapport.octetsNuls);

    bool rien = true;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Constat::Nombre); ++i) {
        const RapportImport::Mentions& mentions = rapport.Liste(static_cast<Constat>(i));
        rien = rien && mentions.empty();
        redaction.Chapitre(static_cast<Constat>(i), mentions);
    }
    if (rien) {
        redaction.Sauter();
        redaction.Ligne(message::RapportToutRepris);
    }
    return redaction.Rendre();
}

}  // namespace dorvane::interchange

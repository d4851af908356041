#include "interchange/commun/RapportImport.h"

#include "shell/Session.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

constexpr std::uint32_t PremierTitre = 2210;    ///< message of the first kind; the others follow
constexpr std::uint32_t PremiereRaison = 2230;  ///< message of the first reason; the others follow
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
std::uint32_t RaisonEnClair(const ChoixDeJeu& choix) {
    if (choix.declare.empty() && choix.raison == RaisonDuJeu::ContenuUtf8) return 2235;
    if (choix.declare.empty() && choix.raison == RaisonDuJeu::Defaut) return 2236;
    return PremiereRaison + static_cast<std::uint32_t>(choix.raison);
}

/// Puts the lines of one report together.
class Redaction {
public:
    explicit Redaction(const shell::Session& session) : session_{session} {}

    void Ligne(std::uint32_t message, const std::string& valeur = {},
               const std::string& valeur2 = {}) {
        texte_ += session_.catalogue.Composer(shell::Msg(message, valeur, valeur2)) + '\n';
    }
    void Compter(std::uint32_t message, std::size_t nombre) {
        if (nombre > 0) Ligne(message, std::to_string(nombre));
    }
    void Sauter() { texte_ += '\n'; }

    void Chapitre(Constat constat, const RapportImport::Mentions& mentions) {
        if (mentions.empty()) return;
        Sauter();
        const std::string titre =
            session_.Message(PremierTitre + static_cast<std::uint32_t>(constat));
        texte_.append(titre).append(1, '\n').append(titre.size(), '-').append(1, '\n');
        for (const auto& [chemin, mention] : mentions) {
            texte_.append(chemin.empty() ? "?" : chemin).append(" : ");
            texte_ += std::to_string(mention.nombre) + '\n' + EcrireNumeros(mention.lignes);
            if (mention.nombre > mention.lignes.size())
                Ligne(2206, std::to_string(mention.nombre - mention.lignes.size()));
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
    redaction.Ligne(2200, std::string{fichier});
    redaction.Sauter();
    redaction.Ligne(2201, std::to_string(rapport.individus), std::to_string(rapport.unions));
    redaction.Ligne(2202, std::to_string(rapport.evenements), std::to_string(rapport.documents));
    redaction.Ligne(2203, std::to_string(rapport.lignes));
    redaction.Compter(2204, rapport.lignesVides);
    const bool echange = !rapport.version.empty();
    if (!rapport.finTrouvee) redaction.Ligne(echange ? 3817 : 2205);

    redaction.Sauter();
    if (echange)
        redaction.Ligne(3816, rapport.version);
    else
        redaction.Ligne(RaisonEnClair(rapport.jeu), std::string{NomDeJeu(rapport.jeu.jeu)},
                        rapport.jeu.declare);
    redaction.Compter(2207, rapport.translitteres);
    redaction.Compter(2208, rapport.perdus);
    redaction.Compter(2209, rapport.octetsNuls);

    bool rien = true;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Constat::Nombre); ++i) {
        const RapportImport::Mentions& mentions = rapport.Liste(static_cast<Constat>(i));
        rien = rien && mentions.empty();
        redaction.Chapitre(static_cast<Constat>(i), mentions);
    }
    if (rien) {
        redaction.Sauter();
        redaction.Ligne(2229);
    }
    return redaction.Rendre();
}

}  // namespace dorvane::interchange

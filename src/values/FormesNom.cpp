#include "values/FormesNom.h"

#include "values/Comparaison.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace dorvane {

namespace {

constexpr std::size_t JetonsAuPlus = 10;

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> Marques{
    {{"BEF", "<"}, {"AFT", ">"}, {"ABT", "~"}, {"EST", "~"}, {"CAL", "~"}, {"BET", "<"}}};

/// A mark and the trimmed year; empty without a year.
std::string AnneeMarquee(std::string_view annee, std::string_view jourMois) {
    annee = SansBlancs(annee);
    if (annee.empty()) return {};
    return std::string(MarqueDate(jourMois)).append(annee);
}

}  // namespace

ModeleNom LireModeleNom(std::string_view texte) {
    ModeleNom modele;
    while (modele.size() < JetonsAuPlus) {
        const std::size_t barre = std::min(texte.find('/'), texte.size());
        if (barre == 0) break;
        modele.emplace_back(texte.substr(0, barre));
        texte.remove_prefix(std::min(barre + 1, texte.size()));
    }
    return modele;
}

std::string EcrireModeleNom(const ModeleNom& modele) {
    std::string texte;
    for (const std::string& jeton : modele)
        texte.append(jeton).push_back('/');
    return texte;
}

std::string ComposerNom(const ModeleNom& modele, const ValeursDeJeton& valeurs) {
    std::string nom;
    const SortieValeur ajouter = [&nom](std::string_view valeur) {
        if (!valeur.empty()) nom.append(1, ' ').append(valeur);
    };
    for (const std::string& jeton : modele)
        valeurs(jeton, ajouter);
    return std::string(SansBlancs(nom));
}

std::string_view MarqueDate(std::string_view jourMois) {
    for (const auto& [jeton, marque] : Marques)
        if (jourMois.starts_with(jeton)) return marque;
    return {};
}

std::string DatesDeVie(const Vie& vie) {
    const std::string naissance = AnneeMarquee(vie.anneeNaissance, vie.jourMoisNaissance);
    const std::string deces = AnneeMarquee(vie.anneeDeces, vie.jourMoisDeces);
    if (naissance.empty() && deces.empty()) return {};
    if (deces.empty()) return "o" + naissance;
    if (naissance.empty()) return "+" + deces;
    return naissance + "-" + deces;
}

std::string NomEtDates(std::string_view nom, const Vie& vie) {
    const std::string dates = DatesDeVie(vie);
    std::string sortie = std::string(nom) + ' ';
    if (dates.empty()) return sortie;
    sortie.append(1, '(').append(dates).append(1, ')');
    // Only a birth without a death is followed by a blank; it shows where names are joined.
    if (SansBlancs(vie.anneeDeces).empty()) sortie.push_back(' ');
    return sortie;
}

}  // namespace dorvane

#include "shell/Ini.h"

#include "shell/FichierSur.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

namespace dorvane::shell {

namespace {

/// Takes the first line off a text, without its end.
std::string_view PrendreLigne(std::string_view& reste) {
    const std::size_t fin = reste.find('\n');
    std::string_view ligne = reste.substr(0, fin);
    reste.remove_prefix(fin == std::string_view::npos ? reste.size() : fin + 1);
    if (ligne.ends_with('\r')) ligne.remove_suffix(1);
    return ligne;
}

/// What follows the line that holds the section in brackets; empty when there is none.
std::string_view TrouverSection(std::string_view texte, std::string_view section) {
    std::string crochets{'['};
    crochets.append(Utf8VersTexte(section).octets).append(1, ']');
    while (!texte.empty())
        if (PrendreLigne(texte).find(crochets) != std::string_view::npos) return texte;
    return {};
}

}  // namespace

std::optional<std::string> LireIniTexte(std::string_view texte, std::string_view section,
                                        std::string_view cle) {
    const std::string debut = Utf8VersTexte(cle).octets;
    std::string_view reste = TrouverSection(texte, section);
    while (!reste.empty()) {
        const std::string_view ligne = PrendreLigne(reste);
        if (ligne.starts_with('[')) return std::nullopt;
        if (!ligne.starts_with(debut)) continue;
        const std::size_t egal = ligne.find('=');
        if (egal == std::string_view::npos) return std::string{};
        return std::string{SansBlancs(ligne.substr(egal + 1))};
    }
    return std::nullopt;
}

std::vector<std::pair<std::string, std::string>> LireSectionIni(std::string_view texte,
                                                                std::string_view section) {
    std::vector<std::pair<std::string, std::string>> entrees;
    std::string_view reste = TrouverSection(texte, section);
    while (!reste.empty()) {
        const std::string_view ligne = PrendreLigne(reste);
        if (ligne.starts_with('[')) break;
        const std::size_t egal = ligne.find('=');
        if (egal == std::string_view::npos || egal == 0) continue;
        // A key keeps its leading blanks: the roles of events begin with them.
        entrees.emplace_back(ligne.substr(0, egal), SansBlancs(ligne.substr(egal + 1)));
    }
    return entrees;
}

}  // namespace dorvane::shell

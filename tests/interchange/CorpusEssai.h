#pragma once

#include "doublures/DossierTemporaire.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

namespace dorvane::doublures {

/// A row of a table with a heading, by column.
using Rang = std::map<std::string, std::string>;

/// Our own files: several character sets, line ends and habits, with an "index.tsv" of what they
/// hold.
inline std::filesystem::path CorpusMaison() {
    return std::filesystem::path{DONNEES_TESTS} / "corpus";
}

/// Where the files of other programs lie: "data/gedcom" of a folder beside the sources. Empty when
/// there is none; the tests of the suite "voisin" then say that they were skipped.
inline std::filesystem::path CorpusVoisin() {
    std::error_code erreur;
    const std::filesystem::path autour = std::filesystem::path{RACINE_SOURCES}.parent_path();
    for (const auto& voisin : std::filesystem::directory_iterator{autour, erreur}) {
        std::filesystem::path dossier = voisin.path() / "data" / "gedcom";
        if (std::filesystem::exists(dossier / "index.tsv", erreur)) return dossier;
    }
    return {};
}

inline std::vector<Rang> LireIndex(const std::filesystem::path& fichier) {
    const auto couper = [](const std::string& ligne) {
        std::vector<std::string> champs;
        std::istringstream flux{ligne};
        for (std::string champ; std::getline(flux, champ, '\t');)
            champs.push_back(champ);
        return champs;
    };
    std::ifstream flux{fichier};
    std::string ligne;
    std::getline(flux, ligne);
    const std::vector<std::string> noms = couper(ligne);
    std::vector<Rang> rangs;
    while (std::getline(flux, ligne)) {
        const std::vector<std::string> champs = couper(ligne);
        Rang rang;
        for (std::size_t i = 0; i < noms.size(); ++i)
            rang[noms[i]] = i < champs.size() ? champs[i] : "";
        rangs.push_back(rang);
    }
    return rangs;
}

inline std::string LireFichierOuGz(const std::filesystem::path& fichier,
                                   const std::filesystem::path& brouillon) {
    if (fichier.extension() != ".gz") return LireFichier(fichier);
    const std::string commande =
        "gzip -dc '" + fichier.string() + "' > '" + brouillon.string() + "'";
    return std::system(commande.c_str()) == 0 ? LireFichier(brouillon) : std::string{};
}

}  // namespace dorvane::doublures

// The files of other programs, where they lie beside the sources: counts by the rules of the
// import, and every difference in the report.
#include "interchange/EssaiImport.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

namespace {

namespace fs = std::filesystem;

using Rang = std::map<std::string, std::string>;

/// Where the files lie; empty when they are not there.
fs::path DossierCorpus() {
    const fs::path dossier = fs::path{RACINE_SOURCES} / ".." / "shared" / "data" / "gedcom";
    return fs::exists(dossier / "index.tsv") ? dossier : fs::path{};
}

std::vector<Rang> LireIndex(const fs::path& fichier) {
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

std::string LireFichierOuGz(const fs::path& fichier, const fs::path& brouillon) {
    if (fichier.extension() != ".gz") return doublures::LireFichier(fichier);
    const std::string commande =
        "gzip -dc '" + fichier.string() + "' > '" + brouillon.string() + "'";
    return std::system(commande.c_str()) == 0 ? doublures::LireFichier(brouillon) : std::string{};
}

std::size_t Entier(const std::string& texte) {
    return texte.empty() ? 0 : std::stoul(texte);
}

}  // namespace

TEST_CASE_FIXTURE(EssaiImport,
                  "Corpus: every file gives what it holds, or the report says why not") {
    const fs::path corpus = DossierCorpus();
    if (corpus.empty()) {
        MESSAGE("skipped: the files of other programs are not beside the sources");
        return;
    }
    for (const Rang& rang : LireIndex(corpus / "index.tsv")) {
        const std::string& nom = rang.at("file");
        CAPTURE(nom);
        dialogue.reponses = {shell::Reponse::Oui};
        ImporterOctets(LireFichierOuGz(corpus / nom, dossier / "brouillon"));
        if (!importation.faite) {
            // No line end among the first 1000 characters.
            CHECK((rang.at("line_ends") == "none" || Entier(rang.at("longest_line")) > 900 ||
                   rang.at("bytes") == "0"));
            continue;
        }
        const RapportImport& r = importation.rapport;
        CHECK(r.individus + r.Nombre(Constat::Limite, "INDI") == Entier(rang.at("persons")));
        CHECK(r.evenements == Entier(rang.at("sources")));
        const std::size_t familles =
            r.unions + r.Nombre(Constat::SansUnion) + r.Nombre(Constat::Limite, "FAM");
        CHECK(familles == Entier(rang.at("families")));
        const std::size_t description =
            r.documents > 0 &&
                    base->R_IMAGE.TitreDoc(NoDocument{r.documents}) == "Description de la base"
                ? 1
                : 0;
        CHECK(r.documents == Entier(rang.at("notes")) + description);
        CHECK(base->entete.NbTriIndividus == r.individus);
    }
}

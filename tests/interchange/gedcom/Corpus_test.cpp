// The files of other programs, where they lie beside the sources: counts by the rules of the
// import, and every difference in the report.
#include "interchange/CorpusEssai.h"
#include "interchange/EssaiImport.h"

#include <filesystem>
#include <string>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::DossierCorpus;
using doublures::EssaiImport;
using doublures::LireFichierOuGz;
using doublures::LireIndex;
using doublures::Rang;

namespace {

namespace fs = std::filesystem;

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
        if (!importation.issue) {
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

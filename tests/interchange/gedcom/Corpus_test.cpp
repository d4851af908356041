// Files of several programs, ours and where they lie beside the sources those of others: counts by
// the rules of the import, and every difference in the report.
#include "interchange/CorpusEssai.h"
#include "interchange/EssaiImport.h"

#include <filesystem>
#include <string>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;
using doublures::LireFichierOuGz;
using doublures::LireIndex;
using doublures::Rang;

namespace {

namespace fs = std::filesystem;

std::size_t Entier(const std::string& texte) {
    return texte.empty() ? 0 : std::stoul(texte);
}

/// Every file of a corpus gives what its index says, or the report says why not.
void VerifierCorpus(EssaiImport& essai, const fs::path& corpus) {
    for (const Rang& rang : LireIndex(corpus / "index.tsv")) {
        const std::string& nom = rang.at("file");
        CAPTURE(nom);
        essai.dialogue.reponses = {shell::Reponse::Oui};
        essai.ImporterOctets(LireFichierOuGz(corpus / nom, essai.dossier / "brouillon"));
        if (!essai.importation.issue) {
            // No line end among the first 1000 characters, or no record at all.
            CHECK((rang.at("line_ends") == "none" || Entier(rang.at("longest_line")) > 900 ||
                   rang.at("bytes") == "0" || nom.find("not_a_gedcom") != std::string::npos));
            continue;
        }
        const RapportImport& r = essai.importation.rapport;
        CHECK(r.individus + r.Nombre(Constat::Limite, "INDI") == Entier(rang.at("persons")));
        CHECK(r.evenements == Entier(rang.at("sources")));
        const std::size_t familles =
            r.unions + r.Nombre(Constat::SansUnion) + r.Nombre(Constat::Limite, "FAM");
        CHECK(familles == Entier(rang.at("families")));
        const std::size_t description =
            r.documents > 0 && essai.base->R_IMAGE.TitreDoc(NoDocument{r.documents}) ==
                                   "Description de la base"
                ? 1
                : 0;
        CHECK(r.documents == Entier(rang.at("notes")) + description);
        CHECK(essai.base->entete.NbTriIndividus == r.individus);
    }
}

}  // namespace

TEST_CASE_FIXTURE(EssaiImport,
                  "Corpus: every file gives what it holds, or the report says why not") {
    VerifierCorpus(*this, doublures::CorpusMaison());
}

TEST_SUITE("voisin") {
    TEST_CASE_FIXTURE(EssaiImport, "Corpus: every file of other programs gives what it holds") {
        if (const std::filesystem::path corpus = doublures::CorpusVoisin(); !corpus.empty())
            VerifierCorpus(*this, corpus);
        else
            MESSAGE("skipped: the files of other programs are not beside the sources");
    }
}

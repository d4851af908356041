// A base, its exchange text and the base made of it hold the same, store by store.
#include "doublures/HistoireEssai.h"
#include "interchange/CorpusEssai.h"
#include "interchange/lgr/EssaiLgr.h"
#include "records/Individus.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiLgr;

namespace {

/// Imports a GEDCOM file as the open base of the session; false when it is none.
bool OuvrirGedcom(EssaiLgr& essai, const std::string& octets) {
    essai.session.PoserBase(nullptr);
    const std::filesystem::path fichier = essai.dossier / "source.ged";
    const std::filesystem::path base = essai.dossier / "source.LGD";
    doublures::EcrireFichier(fichier, octets);
    essai.dialogue.reponses = {shell::Reponse::Oui};
    if (!ImporterVers(essai.session, fichier, base).issue) return false;
    storage::ProgressionMuette muet;
    std::unique_ptr<storage::Base> ouverte = storage::OuvrirBase(essai.disque, base, muet).base;
    REQUIRE(ouverte != nullptr);
    essai.session.PoserBase(std::move(ouverte));
    return true;
}

/// The bases made of the files of a corpus come back from their exchange texts.
void VerifierCorpus(EssaiLgr& essai, const std::filesystem::path& corpus) {
    for (const doublures::Rang& rang : doublures::LireIndex(corpus / "index.tsv")) {
        const std::string& nom = rang.at("file");
        CAPTURE(nom);
        // The largest take long and hold nothing that the others do not.
        if (std::stoul("0" + rang.at("bytes")) > 3000000) continue;
        const std::string octets =
            doublures::LireFichierOuGz(corpus / nom, essai.dossier / "brouillon");
        if (OuvrirGedcom(essai, octets)) CHECK(essai.AllerRetour() == "");
    }
}

}  // namespace

TEST_CASE_FIXTURE(EssaiLgr, "Round trip: an empty base") {
    CHECK(AllerRetour() == "");
    CHECK(neuve->entete.NbTriIndividus == 0);
}

TEST_CASE_FIXTURE(EssaiLgr, "Round trip: the family of the example") {
    const std::filesystem::path exemple =
        std::filesystem::path{RACINE_SOURCES} / "donnees/exemple/Exemple.ged";
    REQUIRE(OuvrirGedcom(*this, doublures::LireFichier(exemple)));
    CHECK(AllerRetour() == "");
    CHECK(B().entete.NbTriIndividus > 10);
}

TEST_CASE_FIXTURE(EssaiLgr, "Round trip: bases made of the files of several programs") {
    VerifierCorpus(*this, doublures::CorpusMaison());
}

TEST_CASE_FIXTURE(EssaiLgr, "Round trip: an exchange text comes back byte for byte") {
    const std::string avant = doublures::LireFichier(doublures::CorpusMaison() / "lignee.lgr");
    REQUIRE(!avant.empty());
    Importer(avant);
    REQUIRE(importation.issue);
    session.PoserBase(std::move(neuve));
    // The settings in front are those of the session.
    const auto base = [](const std::string& texte) {
        return texte.substr(texte.find("[FIN INI]"));
    };
    CHECK(base(Exporter()) == base(avant));
}

TEST_SUITE("voisin") {
    TEST_CASE_FIXTURE(EssaiLgr, "Round trip: the files of other programs") {
        if (const std::filesystem::path corpus = doublures::CorpusVoisin(); !corpus.empty())
            VerifierCorpus(*this, corpus);
        else
            MESSAGE("skipped: the files of other programs are not beside the sources");
    }
}

TEST_CASE_FIXTURE(EssaiLgr, "Round trip: bases that somebody edits by chance") {
    for (std::uint32_t graine = 1; graine <= 12; ++graine) {
        EssaiLgr essai;
        doublures::HistoireEssai histoire{essai, graine};
        for (int pas = 0; pas < 400; ++pas) {
            essai.dialogue.reponses = {histoire.Repondre(), histoire.Repondre(),
                                       histoire.Repondre()};
            histoire.Agir();
            if (pas % 100 != 99) continue;
            CAPTURE(graine);
            CAPTURE(pas);
            CHECK(essai.AllerRetour() == "");
        }
    }
}

TEST_CASE_FIXTURE(EssaiLgr, "Merging in: both bases are there whole, with any story behind them") {
    int compares = 0;
    for (std::uint32_t graine = 21; graine <= 32; ++graine) {
        CAPTURE(graine);
        EssaiLgr autre;
        EssaiLgr essai;
        for (EssaiLgr* e : {&autre, &essai}) {
            doublures::HistoireEssai histoire{*e, graine + (e == &autre ? 100 : 0)};
            for (int pas = 0; pas < 250; ++pas) {
                e->dialogue.reponses = {histoire.Repondre(), histoire.Repondre()};
                histoire.Agir();
            }
        }
        essai.Importer(essai.Exporter());
        REQUIRE(essai.importation.issue);
        const storage::EnTete avant = essai.B().entete;
        REQUIRE(essai.Integrer(autre.Exporter()).issue.cause == shell::Cause::Fait);
        CHECK(doublures::ComparerBases{*essai.neuve, essai.B(), {0, 0, 0, true}}.Ecarts() == "");
        CHECK(doublures::Coherence{essai.B(), {false}}.Ecarts() == "");
        // Where the keywords are the same no text changes.
        bool memes = true;
        for (NoMotCle k{1}; k.valeur <= autre.B().motsCles.Nombre(); ++k.valeur) {
            const storage::MotCle type = autre.B().motsCles.LibelleType(k);
            const NoMotCle ici = essai.B().motsCles.TypeDuSymbole(type.symbole);
            memes = memes && (type.symbole == ' ' ||
                              essai.B().motsCles.LibelleType(ici).libelle == type.libelle);
        }
        if (!memes) continue;
        ++compares;
        CHECK(doublures::ComparerBases{
                  autre.B(),
                  essai.B(),
                  {avant.DernierIndividu, avant.DernierDocument, avant.DernierEvenement, true}}
                  .Ecarts() == "");
    }
    CHECK(compares > 2);
}

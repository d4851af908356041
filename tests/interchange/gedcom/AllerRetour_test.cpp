// What a file says comes back after an import and an export, in the record that it belonged to.
#include "doublures/AllerRetour.h"

#include "doublures/FichierEssai.h"
#include "doublures/VerificateurGedcom.h"
#include "interchange/CorpusEssai.h"
#include "interchange/EssaiImport.h"
#include "interchange/gedcom/ExportGedcom.h"

#include <cstdlib>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::AllerRetour;
using doublures::EssaiImport;
using doublures::FichierEssai;

namespace {

struct Bureau : EssaiImport {
    /// The file that an export of the imported base is; checked against the grammar.
    std::string Exporter(JeuExport jeu = JeuExport::Ansi) {
        session.base = std::move(base);
        OptionsGedcom options;
        options.jeu = jeu;
        std::string octets;
        ComptesExport comptes;
        REQUIRE(ComposerGedcom(session, "x.ged", options, octets, comptes));
        CHECK(doublures::VerificateurGedcom{octets}.Texte() == "");
        base = std::move(session.base);
        return octets;
    }
};

void Montrer(const AllerRetour& compte) {
    const AllerRetour::Compte total = compte.Total();
    MESSAGE("values ", total.valeurs, ", back ", total.revenues, ", with the partners ",
            total.partagees);
    for (const auto& [regle, nombre] : compte.Changees())
        MESSAGE(nombre, " ", regle);
}

void VerifierCorpus(Bureau& bureau, const std::filesystem::path& corpus) {
    AllerRetour::Compte somme;
    std::map<std::string, std::size_t> regles;
    for (const doublures::Rang& rang : doublures::LireIndex(corpus / "index.tsv")) {
        const std::string& nom = rang.at("file");
        CAPTURE(nom);
        const std::string avant =
            doublures::LireFichierOuGz(corpus / nom, bureau.dossier / "brouillon");
        bureau.ImporterOctets(avant);
        if (!bureau.importation.issue) continue;
        const std::string apres = bureau.Exporter();
        const AllerRetour compte{avant, apres, bureau.importation.rapport};
        CHECK(compte.Texte() == "");
        const AllerRetour::Compte total = compte.Total();
        somme.valeurs += total.valeurs;
        somme.revenues += total.revenues;
        somme.partagees += total.partagees;
        for (const auto& [regle, nombre] : compte.Changees())
            regles[regle.substr(0, regle.find(':'))] += nombre;
    }
    MESSAGE("values ", somme.valeurs, ", back ", somme.revenues, ", with the partners ",
            somme.partagees);
    for (const auto& [regle, nombre] : regles)
        MESSAGE(nombre, " ", regle);
}

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Round trip: 10000 persons come back with their values") {
    const FichierEssai village{10000, 7};
    ImporterOctets(village.Octets());
    REQUIRE(importation.issue);
    const std::string apres = Exporter();
    const AllerRetour compte{village.Octets(), apres, importation.rapport};
    CHECK(compte.Texte() == "");
    Montrer(compte);
    const AllerRetour::Compte total = compte.Total();
    CHECK(total.valeurs > 100000);
    CHECK((total.revenues + total.partagees) * 1000 >= total.valeurs * 999);
    for (const auto classe : {AllerRetour::Classe::Nom, AllerRetour::Classe::Date,
                              AllerRetour::Classe::Lieu, AllerRetour::Classe::Texte}) {
        const AllerRetour::Compte& c = compte.De(classe);
        CHECK(c.valeurs > 1000);
        CHECK(c.revenues * 1000 >= c.valeurs * 999);
    }
}

TEST_CASE_FIXTURE(Bureau, "Round trip: no value of a file is lost without a word") {
    VerifierCorpus(*this, doublures::CorpusMaison());
}

TEST_SUITE("voisin") {
    TEST_CASE_FIXTURE(Bureau, "Round trip: the files of other programs, none lost without a word") {
        if (const std::filesystem::path corpus = doublures::CorpusVoisin(); !corpus.empty())
            VerifierCorpus(*this, corpus);
        else
            MESSAGE("skipped: the files of other programs are not beside the sources");
    }
}

TEST_CASE_FIXTURE(Bureau, "Round trip: the file that DORVANE_ALLER_RETOUR names") {
    const char* nom = std::getenv("DORVANE_ALLER_RETOUR");
    if (nom == nullptr) return;
    const std::string avant = doublures::LireFichierOuGz(nom, dossier / "brouillon");
    ImporterOctets(avant);
    REQUIRE(importation.issue);
    const AllerRetour compte{avant, Exporter(), importation.rapport};
    CHECK(compte.Texte() == "");
    Montrer(compte);
}

TEST_CASE_FIXTURE(Bureau, "A mark of a place in dates and places is told, and costs no place") {
    ImporterOctets(
        "0 HEAD\n1 CHAR ANSI\n0 @I1@ INDI\n1 NAME Jean /Martin/\n1 SEX M\n1 BIRT\n"
        "2 DATE vers @@ 1680\n2 PLAC x@@y\n1 OCCU a@@b\n1 NOTE c@@d et e@f\n1 BURI\n"
        "2 DATE @#DHEBREW@ 2 TVT 5758\n0 @I2@ INDI\n1 NAME Anne /Durand/\n1 SEX F\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR\n2 DATE @#DJULIAN@ 5 MAR 1700\n"
        "2 PLAC Saint@@Malo\n0 TRLR\n");
    CHECK(storage::LieuMariage(*base, NoMariage{1}) == "Saint Malo");
    CHECK(base->R_DEBMAR.LireCellule(NoMariage{1}) == "1700");
    CHECK(base->R_TXTMAR.LireTexte(NoMariage{1}) == "JULIAN 5 MAR @Saint.Malo\r\n");
    CHECK(storage::LieuNaissance(*base, NoOrdre{1}) == "x y");
    CHECK(base->R_TEXTE.LireTexte(NoOrdre{1}).find("a@b") != std::string_view::npos);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "FAM.MARR.PLAC") == 1);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "FAM.MARR.DATE") >= 1);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "INDI.BIRT.DATE") == 1);
    std::string premier = Exporter();
    ImporterOctets(premier);
    const std::string deuxieme = Exporter();
    for (int i = 0; i < 10; ++i) {
        ImporterOctets(Exporter());
        CHECK(Exporter() == deuxieme);
    }
}

// An export that is imported and exported again gives the same file, except for the changes that
// are named here, one to a case.
#include "doublures/FamilleEssai.h"
#include "doublures/HistoireEssai.h"
#include "doublures/VerificateurGedcom.h"
#include "interchange/EssaiImport.h"
#include "interchange/gedcom/ExportGedcom.h"
#include "shell/CycleDeVie.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

struct Bureau : doublures::EssaiImport {
    Bureau() {
        dialogue.fichiers.emplace_back(dossier / "Premiere.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        session.parametres.base.auteur = "Moi";
        session.parametres.base.adresse[0] = "moi@ici";
    }

    storage::Base& B() { return *session.base; }
    doublures::FamilleEssai F() { return doublures::FamilleEssai{B()}; }

    std::string Exporter() {
        std::string octets;
        ComptesExport comptes;
        REQUIRE(ComposerGedcom(session, "x.ged", {}, octets, comptes));
        CHECK(doublures::VerificateurGedcom{octets}.Texte() == "");
        return octets;
    }
    /// The base becomes the import of this file.
    void Reprendre(const std::string& octets) {
        session.base.reset();
        dialogue.reponses = {shell::Reponse::Oui};
        ImporterOctets(octets);
        REQUIRE(importation.issue);
        session.base = std::move(base);
    }
    /// The two files, without their headers and with line feeds alone.
    void DeuxFois() {
        premiere = Exporter();
        Reprendre(premiere);
        seconde = Exporter();
        Reprendre(seconde);
        // What changes, changes once.
        CHECK(Exporter() == seconde);
        for (std::string* texte : {&premiere, &seconde})
            std::erase(*texte, '\r');
    }
    static bool Dit(const std::string& texte, std::string_view morceau) {
        return texte.find(morceau) != std::string::npos;
    }

    std::string premiere;
    std::string seconde;
};

/// A family of which everything comes back.
struct Famille : Bureau {
    Famille() {
        const NoOrdre pere = F().Creer(Sexe::Homme, "de la Motte", "Paul", "1820", "1890");
        const NoOrdre mere = F().Creer(Sexe::Femme, "Évrard"_1252, "Rose", "1825");
        const NoOrdre fils = F().Creer(Sexe::Homme, "de la Motte", "Luc", "1850");
        const NoOrdre veuve = F().Creer(Sexe::Femme, "Seul", "Zoé"_1252, "1851");
        const NoOrdre fille = F().Creer(Sexe::Femme, "Seul", "Eve", "1880");
        B().R_NOM.EcrireNom(pere, "de la Motte;Paul;Marie;12/3;ABT");
        B().R_TEXTE.EcrireTexte(pere,
                                "|de.la.Motte \xB6Paul.Marie $Brest ~Saint.Malo\r\n"
                                "OCCU \\sabotier\r\nCHR 13/3/1820 \xB0"
                                "Brest\r\n"
                                "Une note @ lui\r\nsur deux lignes, dont la seconde est plus "
                                "longue que ce que tient une ligne d'un fichier");
        const NoMariage m = F().Marier(pere, mere, "1849");
        B().R_TXTMAR.EcrireTexte(m, "3/5 @Saint.Malo\r\nUne note de l'union");
        F().Parents(fils, pere, mere);
        F().Parents(fille, {}, veuve);
        F().Lier(fils, veuve, "WITN");
        F().Lier(veuve, fils, "WITN");
        const NoDocument d = B().NouveauDocument();
        B().R_IMAGE.EcrireDoc(d, {"Acte", "a.png", "Photo", "Vu aux archives"});
        B().R_TRI.AjouterDocument(d);
        B().R_LSTIMG.ModifierListe(pere, d, storage::ActionListe::Ajouter);
        const NoEvenement e = B().NouvelEvenement();
        B().R_EVT.EcrireEvt(e, {.cleDate = -20000,
                                .note = "Une note",
                                .liens = std::vector<storage::LienEvenement>{{pere, "WITN"}},
                                .documents = std::vector<NoDocument>{d},
                                .description = storage::DescriptionEvt{"Brest", "Acte", "CHR"}});
        B().R_TRI.AjouterEvt(e);
        B().R_LSTEVT.ModifierListe(pere, e, storage::ActionListe::Ajouter, "WITN");
    }
};

}  // namespace

TEST_CASE_FIXTURE(Famille, "Export again: a family with all that hangs on it is the same file") {
    DeuxFois();
    CHECK(premiere == seconde);
    CHECK(Dit(premiere, "1 ADDR moi@@ici\n"));
    CHECK(Dit(premiere, "0 @D1@ NOTE Acte\n1 CONT Vu aux archives\n1 REFN a.png\n1 REFN\n"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: persons take the numbers of their order") {
    F().Creer(Sexe::Homme, "B", "B", "1850");
    F().Creer(Sexe::Homme, "A", "A", "1820");
    DeuxFois();
    CHECK(Dit(premiere, "0 @I2@ INDI\n1 NAME A /A/\n"));
    CHECK(Dit(seconde, "0 @I1@ INDI\n1 NAME A /A/\n"));
}

TEST_CASE_FIXTURE(Bureau,
                  "Export again: an unmarried pair becomes a union, which has all its children") {
    const NoOrdre pere = F().Creer(Sexe::Homme, "A", "A", "1820");
    const NoOrdre mere = F().Creer(Sexe::Femme, "B", "B", "1821");
    F().Parents(F().Creer(Sexe::Homme, "C", "C", "1850"), pere, mere);
    F().Parents(F().Creer(Sexe::Homme, "D", "D", "1851"), pere, mere);
    DeuxFois();
    CHECK(Dit(premiere,
              "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n"
              "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I4@\n"));
    CHECK(Dit(seconde,
              "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n"
              "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 TRLR"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: a word longer than a line has a blank at its cut") {
    const NoOrdre n = F().Creer(Sexe::Homme, "A", "A", "1820");
    B().R_TEXTE.EcrireTexte(n,
                            "|A \xB6"
                            "A\r\n" +
                                std::string(100, 'x'));
    DeuxFois();
    const std::string debut = "1 NOTE " + std::string(60, 'x') + "\n2 CONC ";
    CHECK(Dit(premiere, debut + std::string(40, 'x')));
    CHECK(Dit(seconde, debut + ' ' + std::string(40, 'x')));
}

TEST_CASE_FIXTURE(Bureau, "Export again: an entry that the format has no tag for is in the note") {
    const NoOrdre n = F().Creer(Sexe::Homme, "A", "A", "1820");
    B().motsCles.CreerType(NoMotCle{B().motsCles.Nombre() + 1}, {'!', "BATL", false, {}});
    B().entete.SlotsIndividu[0] = {'!', '1'};
    B().R_TEXTE.EcrireTexte(n,
                            "|A \xB6"
                            "A\r\nBATL 5/12/1805 !Austerlitz\r\nune note");
    DeuxFois();
    CHECK(Dit(premiere, "1 EVEN\n2 TYPE Bataille\n2 DATE 5 DEC 1805\n2 NOTE Austerlitz\n1 NOTE "));
    CHECK_FALSE(Dit(seconde, "1 EVEN"));
    CHECK(Dit(seconde, "Bataille"));
    CHECK(Dit(seconde, "5/12/1805"));
    CHECK(Dit(seconde, "Austerlitz"));
    CHECK(Dit(seconde, "une note"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: the description of the base is a document like others") {
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireDoc(d, {"Description", "", "", "Une base"});
    B().R_TRI.AjouterDocument(d);
    B().entete.DocBase = d;
    DeuxFois();
    CHECK(Dit(premiere, "1 NOTE Une base\n0 @S1@ SUBM\n"));
    CHECK_FALSE(Dit(seconde, "1 NOTE Une base\n0 @S1@ SUBM\n"));
    CHECK(Dit(seconde,
              "0 @D1@ NOTE Description\n1 CONT Une base\n"
              "0 @D2@ NOTE Description de la base\n1 CONT Une base\n"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: a link of one side only stands on both") {
    const NoOrdre a = F().Creer(Sexe::Homme, "A", "A", "1820");
    F().Creer(Sexe::Homme, "B", "B", "1821");
    F().Lier(a, NoOrdre{2}, "ami");
    DeuxFois();
    CHECK_FALSE(Dit(premiere, "1 ASSO @I1@\n"));
    CHECK(Dit(seconde, "1 ASSO @I2@\n2 RELA ami\n"));
    CHECK(Dit(seconde, "1 ASSO @I1@\n2 RELA ami\n"));
}

TEST_CASE_FIXTURE(Bureau,
                  "Export again: a keyword of a note stands in the order of the attributes") {
    const NoOrdre n = F().Creer(Sexe::Homme, "A", "A", "1820");
    B().R_TEXTE.EcrireTexte(n,
                            "|A \xB6"
                            "A\r\nIl habita %Brest toujours.");
    DeuxFois();
    CHECK(Dit(premiere, "2 DATE 1820\n1 RESI Brest\n1 NOTE Il habita toujours.\n"));
    CHECK(Dit(seconde, "1 RESI Brest\n1 BIRT\n2 DATE 1820\n1 NOTE Il habita toujours.\n"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: a parent of unknown sex is a man as a father") {
    const NoOrdre pere = F().Creer(Sexe::Indetermine, "A", "A", "1820");
    F().Parents(F().Creer(Sexe::Indetermine, "B", "B", "1850"), pere, {});
    DeuxFois();
    CHECK_FALSE(Dit(premiere, "1 SEX"));
    CHECK(Dit(seconde, "0 @I1@ INDI\n1 NAME A /A/\n1 SEX M\n"));
    CHECK(Dit(seconde, "0 @I2@ INDI\n1 NAME B /B/\n1 BIRT"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: blank paragraphs and formats of a text are gone at once") {
    const NoOrdre n = F().Creer(Sexe::Homme, "A", "A", "1820");
    B().R_TEXTE.EcrireTexte(n,
                            "|A \xB6"
                            "A\r\n{\\rtf1 un\\par\\par {\\b deux}}");
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireDoc(d, {"Titre", "", "", "un\r\n\r\ndeux"});
    B().R_TRI.AjouterDocument(d);
    DeuxFois();
    CHECK(premiere == seconde);
    CHECK(Dit(premiere, "1 NOTE un\n2 CONT deux\n"));
    CHECK(Dit(premiere, "NOTE Titre\n1 CONT un\n1 CONT deux\n"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: a document in the middle of a table keeps no gap") {
    for (int i = 0; i < 3; ++i) {
        const NoDocument d = B().NouveauDocument();
        B().R_IMAGE.EcrireDoc(d, {"Titre " + std::to_string(i), "", "", ""});
        if (i != 1) B().R_TRI.AjouterDocument(d);
    }
    DeuxFois();
    CHECK(Dit(premiere, "0 @D1@ NOTE Titre 0\n0 @D3@ NOTE Titre 2\n"));
    CHECK(Dit(seconde, "0 @D1@ NOTE Titre 0\n0 @D2@ NOTE Titre 2\n"));
}

TEST_CASE_FIXTURE(Bureau, "Export again: a family of one parent and one child, and of a widow") {
    const NoOrdre mere = F().Creer(Sexe::Femme, "A", "A", "1820");
    F().Parents(F().Creer(Sexe::Homme, "B", "B", "1850"), {}, mere);
    F().Parents(F().Creer(Sexe::Homme, "C", "C", "1851"), {}, mere);
    DeuxFois();
    CHECK(premiere == seconde);
    CHECK(Dit(premiere, "0 @F2@ FAM\n1 WIFE @I1@\n1 CHIL @I3@\n"));
}

TEST_CASE_FIXTURE(Bureau,
                  "Export again: whatever was typed gives a file by the grammar in each set") {
    for (std::uint32_t graine = 1; graine <= 4; ++graine) {
        CAPTURE(graine);
        doublures::HistoireEssai histoire{*this, graine};
        for (int k = 0; k < 250; ++k)
            histoire.Agir();
        for (const JeuExport jeu : {JeuExport::Ascii, JeuExport::Ansi, JeuExport::Ansel,
                                    JeuExport::Html, JeuExport::Utf8}) {
            OptionsGedcom options;
            options.jeu = jeu;
            std::string octets;
            ComptesExport comptes;
            REQUIRE(ComposerGedcom(session, "x.ged", options, octets, comptes));
            CHECK(doublures::VerificateurGedcom{octets}.Texte() == "");
        }
    }
    REQUIRE(B().entete.NbTriIndividus > 20);
    REQUIRE(B().entete.NbTriEvenements > 5);
    // After two imports nothing changes any more.
    for (int k = 0; k < 2; ++k)
        Reprendre(Exporter());
    const std::string fixe = Exporter();
    Reprendre(fixe);
    CHECK(Exporter() == fixe);
}

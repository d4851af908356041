#include "interchange/gedcom/ExportGedcom.h"

#include "doublures/FamilleEssai.h"
#include "doublures/VerificateurGedcom.h"
#include "interchange/EssaiImport.h"
#include "interchange/gedcom/DatesGedcom.h"
#include "interchange/gedcom/EcrivainGedcom.h"
#include "interchange/gedcom/TitreDocument.h"
#include "shell/CycleDeVie.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

std::string Lignes(const EcrivainGedcom& ecrivain) {
    std::string lignes = ecrivain.Octets();
    std::erase(lignes, '\r');
    return lignes;
}

/// A new base and its export.
struct Bureau : doublures::SessionEssai {
    Bureau() {
        shell::Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Export.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
    }

    storage::Base& B() { return *session.base; }
    doublures::FamilleEssai F() { return doublures::FamilleEssai{B()}; }
    /// The file without its header, line feeds alone.
    std::string Exporter(OptionsGedcom options = {}) {
        options.reduit = true;
        std::string octets;
        ComptesExport comptes;
        REQUIRE(ComposerGedcom(session, "x.ged", options, octets, comptes));
        CHECK(doublures::VerificateurGedcom(octets, true).Texte().empty());
        std::erase(octets, '\r');
        return octets.substr(octets.find("1 CHAR"));
    }
    bool Dit(const std::string& morceau) { return Exporter().find(morceau) != std::string::npos; }
};

}  // namespace

TEST_CASE("EcrivainGedcom: a text of exactly 60 characters is one line") {
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    CHECK(ecrivain.Texte("1 NOTE ", 2, std::string(60, 'a')));
    CHECK(Lignes(ecrivain) == "1 NOTE " + std::string(60, 'a') + '\n');
}

TEST_CASE("EcrivainGedcom: a word of 100 letters is cut at 60 with no blank dropped") {
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    CHECK(ecrivain.Texte("1 NOTE ", 2, std::string(100, 'a')));
    CHECK(Lignes(ecrivain) ==
          "1 NOTE " + std::string(60, 'a') + "\n2 CONC " + std::string(40, 'a') + '\n');
    EcrivainGedcom double_{JeuExport::Ansi};
    CHECK(double_.Texte("1 NOTE ", 2, std::string(120, 'a')));
    CHECK(Lignes(double_) ==
          "1 NOTE " + std::string(60, 'a') + "\n2 CONC " + std::string(60, 'a') + '\n');
}

TEST_CASE("EcrivainGedcom: the blank at which a line is cut is dropped") {
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    const std::string mot(30, 'b');
    CHECK(ecrivain.Texte("1 NOTE ", 2, mot + ' ' + mot + ' ' + mot));
    // What is left, 61 characters, is cut once more.
    CHECK(Lignes(ecrivain) == "1 NOTE " + mot + "\n2 CONC " + mot + "\n2 CONC " + mot + '\n');
}

TEST_CASE("EcrivainGedcom: a rest of exactly 60 characters is cut again at its blank") {
    const std::string mot(30, 'b');
    const std::string rest = std::string(29, 'c') + ' ' + mot;
    REQUIRE(rest.size() == 60);
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    CHECK(ecrivain.Texte("1 NOTE ", 2, std::string(50, 'a') + ' ' + rest));
    CHECK(Lignes(ecrivain) == "1 NOTE " + std::string(50, 'a') + "\n2 CONC " +
                                  std::string(29, 'c') + "\n2 CONC " + mot + '\n');
}

TEST_CASE("EcrivainGedcom: paragraphs, empty ones and an empty text") {
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    CHECK(ecrivain.Texte("1 NOTE ", 2, "un\r\n\r\ndeux"));
    CHECK(Lignes(ecrivain) == "1 NOTE un\n2 CONT deux\n");
    EcrivainGedcom vide{JeuExport::Ansi};
    CHECK_FALSE(vide.Texte("1 NOTE ", 2, "\r\n"));
    vide.Valeur(1, "OCCU", "  ");
    CHECK(vide.Octets().empty());
}

TEST_CASE("EcrivainGedcom: no cut goes through the bytes of a character") {
    for (const JeuExport jeu : {JeuExport::Utf8, JeuExport::Ansel, JeuExport::Html}) {
        for (std::size_t decalage = 0; decalage < 9; ++decalage) {
            EcrivainGedcom ecrivain{jeu};
            std::string texte(decalage, 'a');
            for (int i = 0; i < 80; ++i)
                texte += "\xE9";
            CHECK(ecrivain.Texte("1 NOTE ", 2, texte));
            std::string joint = Lignes(ecrivain);
            RemplacerTout(joint, "\n2 CONC ", "");
            CHECK(joint == "1 NOTE " + Encodeur{jeu}.Encoder(texte) + '\n');
            for (std::size_t i = 0, fin = 0; i < ecrivain.Octets().size(); i = fin + 1) {
                fin = std::min(ecrivain.Octets().find('\n', i), ecrivain.Octets().size());
                const std::string ligne = ecrivain.Octets().substr(i, fin - i);
                const auto bas = static_cast<unsigned char>(ligne.size() > 7 ? ligne[7] : 'a');
                CHECK((jeu != JeuExport::Utf8 || (bas & 0xC0U) != 0x80));
            }
        }
    }
}

TEST_CASE("EcrivainGedcom: a mark in a value is doubled") {
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    ecrivain.Valeur(1, "OCCU", "a@b");
    CHECK(Lignes(ecrivain) == "1 OCCU a@@b\n");
}

TEST_CASE(
    "EcrireDateGedcom: the twelve months both ways, words of dates and years before our era") {
    for (int mois = 1; mois <= 12; ++mois) {
        const std::string jourMois = "12/" + std::to_string(mois);
        const std::string date = EcrireDateGedcom(jourMois, "1800");
        CAPTURE(date);
        CHECK(date.size() == 11);
        CHECK(LireDateGedcom(date) == DateLue{jourMois, "1800"});
    }
    CHECK(EcrireDateGedcom("12/5", "1800") == "12 MAY 1800");
    CHECK(EcrireDateGedcom("ABT", "1800") == "ABT 1800");
    CHECK(EcrireDateGedcom("BET 1800 AND", "1810") == "BET 1800 AND 1810");
    CHECK(EcrireDateGedcom("", "-44") == "44 BC");
    CHECK(EcrireDateGedcom("MAY", "") == "MAY");
    CHECK(EcrireDateGedcom("", "").empty());
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: two children of an unmarried pair give two families") {
    const NoOrdre pere = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    const NoOrdre mere = F().Creer(Sexe::Femme, "Blanc", "Rose", "1825");
    const NoOrdre luc = F().Creer(Sexe::Homme, "Martin", "Luc", "1850");
    const NoOrdre eve = F().Creer(Sexe::Indetermine, "Martin", "Eve", "1852");
    F().Parents(luc, pere, mere);
    F().Parents(eve, pere, mere);
    CHECK(Exporter() ==
          "1 CHAR ANSI\n"
          "0 @I1@ INDI\n1 NAME Paul /Martin/\n1 SEX M\n1 BIRT\n2 DATE 1820\n1 FAMS @F1@\n"
          "1 FAMS @F2@\n"
          "0 @I2@ INDI\n1 NAME Rose /Blanc/\n1 SEX F\n1 BIRT\n2 DATE 1825\n1 FAMS @F1@\n"
          "1 FAMS @F2@\n"
          "0 @I3@ INDI\n1 NAME Luc /Martin/\n1 SEX M\n1 BIRT\n2 DATE 1850\n1 FAMC @F1@\n"
          "0 @I4@ INDI\n1 NAME Eve /Martin/\n1 BIRT\n2 DATE 1852\n1 FAMC @F2@\n"
          "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n"
          "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I4@\n"
          "0 TRLR\n");
}

TEST_CASE_FIXTURE(
    Bureau, "ExporterGedcom: children of a union go with it, a person of unknown sex has no SEX") {
    const NoOrdre pere = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    const NoOrdre mere = F().Creer(Sexe::Femme, "Blanc", "Rose", "1825");
    const NoMariage m = F().Marier(pere, mere, "1849");
    B().R_TXTMAR.EcrireTexte(m, "3/5 @Saint.Malo\r\nUne note");
    F().Parents(F().Creer(Sexe::Indetermine, "Martin", "Luc", "1850"), pere, mere);
    CHECK_FALSE(Dit("SEX I"));
    CHECK(
        Dit("0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 MARR\n"
            "2 DATE 3 MAY 1849\n2 PLAC Saint Malo\n1 NOTE Une note\n"));
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: places, keyword lines and the note of a person") {
    const NoOrdre n = F().Creer(Sexe::Homme, "Martin", "Paul", "1820", "1890");
    B().R_NOM.EcrireNom(n, "Martin;Paul;Marie;12/3;ABT");
    B().R_TEXTE.EcrireTexte(n,
                            "|MARTIN \xB6Paul $Brest ~Saint.Malo\r\nOCCU \\sabotier\r\n"
                            "CHR 13/3/1820 \xB0"
                            "Brest\r\n{\\rtf1 Il {\\b aimait} %Brest la mer.}");
    CHECK(
        Dit("1 NAME Paul Marie /Martin/\n1 SEX M\n1 OCCU sabotier\n1 BIRT\n"
            "2 DATE 12 MAR 1820\n2 PLAC Brest\n1 DEAT\n2 DATE ABT 1890\n2 PLAC Saint Malo\n"
            "1 BAPM\n2 DATE 13 MAR 1820\n2 PLAC Brest\n1 RESI Brest\n"
            "1 NOTE Il aimait la mer.\n"));
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: only the persons chosen, and no pointer to another") {
    const NoOrdre pere = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    const NoOrdre mere = F().Creer(Sexe::Femme, "Blanc", "Rose", "1825");
    F().Marier(pere, mere, "1849");
    F().Lier(pere, mere, "WITN");
    OptionsGedcom options;
    options.choix.choisis = {false, true, false};
    const std::string fichier = Exporter(options);
    CHECK(fichier.find("@I2@") == std::string::npos);
    CHECK(fichier.find("0 @F1@ FAM\n1 HUSB @I1@\n") != std::string::npos);
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: a cancel leaves what it got beside the former file") {
    for (int i = 0; i < 200; ++i)
        F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    doublures::EcrireFichier(dossier / "x.ged", "avant");
    progression.annulerAu = progression.pas + 1;
    CHECK(ExporterGedcom(session, dossier / "x.ged", {}).issue.cause == shell::Cause::Arrete);
    CHECK(doublures::LireFichier(dossier / "x.ged") == "avant");
    const std::string partiel = doublures::LireFichier(dossier / "x.ged.partiel");
    progression.annulerAu = 0;
    CHECK(ExporterGedcom(session, dossier / "x.ged", {}).issue.cause == shell::Cause::Fait);
    const std::string entier = doublures::LireFichier(dossier / "x.ged");
    CHECK(entier.starts_with(partiel));
    // Whole records, and no end.
    CHECK(partiel.ends_with("1 SEX M\r\n1 BIRT\r\n2 DATE 1820\r\n"));
    CHECK(partiel.size() < entier.size());
    CHECK(ExporterGedcom(session, dossier / "rien/x.ged", {}).issue.cause == shell::Cause::Systeme);
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: the header in full has file, language and submitter") {
    session.parametres.base.auteur = "H\xE9l\xE8ne";
    session.parametres.base.adresse[0] = "1 rue";
    session.parametres.base.adresse[1] = "Brest";
    std::string octets;
    ComptesExport comptes;
    REQUIRE(ComposerGedcom(session, "x.ged", {}, octets, comptes));
    CHECK(doublures::VerificateurGedcom{octets}.Texte().empty());
    std::erase(octets, '\r');
    const std::size_t date = octets.find("1 DATE ");
    CHECK(octets.substr(0, date) == "0 HEAD\n1 SOUR DORVANE\n2 VERS 99.0\n1 DEST PAF\n");
    CHECK(octets.substr(octets.find("1 GEDC")) ==
          "1 GEDC\n2 VERS 5.5\n2 FORM Lineage-Linked\n1 CHAR ANSI\n1 FILE x.ged\n1 LANG French\n"
          "1 SUBM @S1@\n0 @S1@ SUBM\n1 NAME H\xE9l\xE8ne\n1 ADDR 1 rue\n2 CONT Brest\n0 TRLR\n");
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: an address begins with the first line that is filled") {
    session.parametres.base.adresse[1] = "2 rue";
    session.parametres.base.adresse[3] = "Brest";
    std::string octets;
    ComptesExport comptes;
    REQUIRE(ComposerGedcom(session, "x.ged", {}, octets, comptes));
    CHECK(octets.ends_with("0 @S1@ SUBM\r\n1 ADDR 2 rue\r\n2 CONT Brest\r\n0 TRLR\r\n"));
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: events are sources with the role of each person") {
    const NoOrdre n = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    const NoEvenement e = B().NouvelEvenement();
    B().R_EVT.EcrireEvt(e, {.cleDate = 1,
                            .note = "Une note",
                            .liens = std::vector<storage::LienEvenement>{{n, "CHIL"}},
                            .description = storage::DescriptionEvt{"Brest", "Acte", "CHR"}});
    B().R_TRI.AjouterEvt(e);
    B().R_LSTEVT.ModifierListe(n, e, storage::ActionListe::Ajouter, "CHIL");
    CHECK(Dit("1 SOUR @E1@\n2 EVEN\n3 ROLE CHIL\n"));
    CHECK(
        Dit("0 @E1@ SOUR\n1 DATA\n2 EVEN BAPM\n3 DATE 31 DEC 1899\n3 PLAC Brest\n"
            "2 NOTE Une note\n1 TITL Acte\n"));
    SUBCASE("another role stands in parentheses, in words") {
        B().R_LSTEVT.EcrireListe(n, B().R_LSTEVT.ComposerElement(e, "WITN"));
        CHECK(Dit("3 ROLE (T\xE9moin)\n"));
    }
    SUBCASE("a known role may be stored in words") {
        B().R_LSTEVT.EcrireListe(n, B().R_LSTEVT.ComposerElement(e, "Enfant"));
        CHECK(Dit("3 ROLE CHIL\n"));
    }
    SUBCASE("without a role there is no line for it") {
        B().R_LSTEVT.EcrireListe(n, B().R_LSTEVT.ComposerElement(e, ""));
        CHECK(Dit("1 SOUR @E1@\n2 EVEN\n"));
        CHECK_FALSE(Dit("ROLE"));
    }
    SUBCASE("an event out of the table is pointed at by nobody") {
        B().R_TRI.RetirerEvt(e);
        CHECK_FALSE(Dit("SOUR @E1@"));
    }
}

TEST_CASE_FIXTURE(
    Bureau, "ExporterGedcom: a document is a note, its title in front when the text has it not") {
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireDoc(d, {"Acte", "a.png", "Photo", "Vu aux archives"});
    B().R_TRI.AjouterDocument(d);
    CHECK(Dit("0 @D1@ NOTE Acte\n1 CONT Vu aux archives\n1 REFN a.png\n1 REFN\n2 TYPE Photo\n"));
    SUBCASE("the title that a reader makes of the text is not said twice") {
        B().R_IMAGE.EcrireDoc(d, {"Vu aux archives", "", "", "Vu aux archives\r\nen 1820"});
        CHECK(Dit("0 @D1@ NOTE Vu aux archives\n1 CONT en 1820\n0 TRLR"));
        const std::string longue = "Une note dont le premier rang est plus long que tout titre";
        B().R_IMAGE.EcrireDoc(d, {TitreDocument(longue + " ne peut"), "", "", longue + " ne peut"});
        CHECK_FALSE(Dit("..."));
    }
    SUBCASE("any other is a line of its own, though the text begins like it") {
        B().R_IMAGE.EcrireDoc(d, {"Vu", "", "", "Vu aux archives"});
        CHECK(Dit("0 @D1@ NOTE Vu\n1 CONT Vu aux archives\n0 TRLR"));
        B().R_IMAGE.EcrireDoc(d, {"Vu...", "", "", "Vu aux archives"});
        CHECK(Dit("0 @D1@ NOTE Vu...\n1 CONT Vu aux archives\n0 TRLR"));
    }
    SUBCASE("without a text the title is the text") {
        B().R_IMAGE.EcrireDoc(d, {"Acte", "", "", ""});
        CHECK(Dit("0 @D1@ NOTE Acte\n0 TRLR"));
    }
}

TEST_CASE("EcrivainGedcom: a value that no line can hold goes on with CONC, a name never does") {
    EcrivainGedcom ecrivain{JeuExport::Ansi};
    CHECK(ecrivain.Valeur(1, "OCCU", std::string(240, 'a')));
    CHECK(Lignes(ecrivain) == "1 OCCU " + std::string(240, 'a') + '\n');
    EcrivainGedcom long_{JeuExport::Ansi};
    CHECK(long_.Valeur(1, "OCCU", std::string(241, 'a')));
    CHECK(Lignes(long_).starts_with("1 OCCU " + std::string(60, 'a') + "\n2 CONC "));
    EcrivainGedcom nom{JeuExport::Ansi};
    CHECK(nom.Valeur(1, "NAME", std::string(270, 'a')));
    CHECK(Lignes(nom) == "1 NAME " + std::string(270, 'a') + '\n');
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: pointers of a damaged base lead to records that exist") {
    const NoOrdre n = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    const NoOrdre autre = F().Creer(Sexe::Femme, "Blanc", "Rose", "1825");
    B().R_PERE.EcrireCellule(n, NoOrdre{60000});
    B().R_MARIAG.ModifierListe(n, NoMariage{500}, storage::ActionListe::Ajouter);
    B().R_ENFANT.ModifierListe(n, NoOrdre{59999}, storage::ActionListe::Ajouter);
    const NoMariage m = F().Marier({}, autre, "1849");
    B().R_MARIAG.ModifierListe(n, m, storage::ActionListe::Ajouter);
    CHECK(Dit("0 @I1@ INDI\n1 NAME Paul /Martin/\n1 SEX M\n1 BIRT\n2 DATE 1820\n0 @I2@ INDI\n"));
}

TEST_CASE_FIXTURE(Bureau,
                  "ExporterGedcom: the word of an attribute stands on its line, date or not") {
    const NoOrdre n = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
    B().entete.SlotsIndividu[0].drapeau = '1';
    const std::string libelle = B().DefinitionIndividu().libelles[0];
    REQUIRE(libelle == "OCCU");
    B().R_TEXTE.EcrireTexte(n, "|MARTIN\r\nOCCU 12/3/1850 \\sabotier\r\n");
    CHECK(Dit("1 OCCU sabotier\n2 DATE 12 MAR 1850\n"));
    B().R_TEXTE.EcrireTexte(n, "|MARTIN\r\nOCCU 12/3/1850\r\n");
    CHECK(Dit("1 OCCU\n2 DATE 12 MAR 1850\n"));
}

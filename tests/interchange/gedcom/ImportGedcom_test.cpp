#include "interchange/gedcom/ImportGedcom.h"

#include "interchange/EssaiImport.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"

#include <filesystem>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EcrireFichier;
using doublures::EssaiImport;
using doublures::LireFichier;

namespace {

/// Nothing of the work in progress lies in the folder.
std::size_t FichiersDe(const std::filesystem::path& dossier) {
    std::size_t nombre = 0;
    for (const auto& entree : std::filesystem::directory_iterator{dossier})
        nombre += entree.is_regular_file() ? 1U : 0U;
    return nombre;
}

}  // namespace

TEST_CASE_FIXTURE(EssaiImport, "Import: a file without line ends is refused with its own words") {
    ImporterOctets("0 HEAD 1 CHAR ANSI 0 TRLR");
    CHECK_FALSE(importation.issue);
    CHECK(dialogue.entendu.back() == shell::Litteral("Fichier GEDCOM inexploitable"));
    CHECK_FALSE(std::filesystem::exists(chemin));
}

TEST_CASE_FIXTURE(EssaiImport, "Import: a missing file is told, nothing is made") {
    importation = ImporterVers(session, dossier / "absent.ged", chemin);
    CHECK_FALSE(importation.issue);
    CHECK(dialogue.entendu.back().no == message::FichierIllisible);
    CHECK_FALSE(std::filesystem::exists(chemin));
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: identifiers of one text in records of different kinds do not mix") {
    Importer("0 @1@ INDI\n1 NOTE @1@\n1 SOUR @1@\n0 @1@ NOTE texte\n0 @1@ SOUR\n1 TITL titre\n");
    CHECK(base->R_LSTIMG.NbElements(NoOrdre{1}) == 1);
    CHECK(base->R_LSTEVT.NbElements(NoOrdre{1}) == 1);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: identifiers are compared whole, the first record keeps its own") {
    Importer(
        "0 @A12@ INDI\n1 NAME /A/\n0 @B12@ INDI\n1 NAME /B/\n0 @A12@ INDI\n1 NAME /C/\n"
        "0 @372431381856@ INDI\n1 NAME /D/\n0 @F@ FAM\n1 HUSB @A12@\n1 WIFE @372431381856@\n");
    CHECK(base->R_EPOUX.LireCellule(NoMariage{1}) == NoOrdre{1});
    CHECK(base->R_EPOUSE.LireCellule(NoMariage{1}) == NoOrdre{4});
    CHECK(Constats(Constat::Doublon) == 1);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: without TRLR the last record is whole, and the report says so") {
    ImporterOctets("0 HEAD\n0 @I1@ INDI\n1 NAME Jean /Dupont/");
    CHECK(Nom(1) == "Dupont;Jean;");
    CHECK_FALSE(importation.rapport.finTrouvee);
    CHECK(importation.texte.find("TRLR") != std::string::npos);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: nothing behind TRLR is read") {
    ImporterOctets("0 HEAD\n0 TRLR\n0 @I1@ INDI\nprose\n");
    CHECK(base->entete.DernierIndividu == 0);
    CHECK(Constats(Constat::NonRepris) == 2);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: zero bytes become blanks and are counted") {
    using namespace std::string_view_literals;
    ImporterOctets("0 HEAD\n0 @I1@ INDI\n1 NAME J\0an /Dupont/\n0 TRLR\n\0\0\0"sv);
    CHECK(Nom(1) == "Dupont;J;an");
    CHECK(importation.rapport.octetsNuls > 0);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: a line of a megabyte is kept whole") {
    const std::string longue(1000000, 'x');
    Importer("0 @I1@ INDI\n1 NAME A /B/\n1 NOTE " + longue + "\n");
    CHECK(storage::NoteDe(*base, NoOrdre{1}) == longue);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: declining the sort leaves the order of creation") {
    dialogue.reponses = {shell::Reponse::Non};
    Importer(
        "0 @I1@ INDI\n1 NAME /Z/\n1 BIRT\n2 DATE 1900\n0 @I2@ INDI\n1 NAME /A/\n1 BIRT\n"
        "2 DATE 1800\n");
    CHECK(base->entete.TypeTri == TypeTri::Creation);
    CHECK(base->R_TRI.IndividuAuRang(1) == NoOrdre{1});
    CHECK(base->R_TRI.RangIndividu(NoOrdre{2}) == 2);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: a file that came sorted stays a sorted table without a sort") {
    dialogue.reponses = {shell::Reponse::Non};
    Importer(
        "0 @I1@ INDI\n1 NAME /Z/\n1 BIRT\n2 DATE 1800\n0 @I2@ INDI\n1 NAME /A/\n1 BIRT\n"
        "2 DATE 1900\n");
    CHECK(base->entete.TypeTri == TypeTri::Naissance);
    CHECK(base->R_TRI.RangIndividu(NoOrdre{2}) == 2);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: sorted by year and name on yes") {
    Importer(
        "0 @I1@ INDI\n1 NAME /Z/\n1 BIRT\n2 DATE 1900\n0 @I2@ INDI\n1 NAME /A/\n1 BIRT\n"
        "2 DATE 1900\n0 @I3@ INDI\n1 NAME /M/\n");
    CHECK(dialogue.questions.back().texte.no == message::ProposerTrierBaseImportee);
    CHECK(base->R_TRI.IndividuAuRang(1) == NoOrdre{3});
    CHECK(base->R_TRI.IndividuAuRang(2) == NoOrdre{2});
    CHECK(base->R_TRI.IndividuAuRang(3) == NoOrdre{1});
}

TEST_CASE_FIXTURE(EssaiImport, "Import: given up in the middle, an existing base stays as it was") {
    EcrireFichier(chemin, "ancienne");
    std::string lignes = "0 HEAD\n";
    for (int i = 0; i < 500; ++i)
        lignes += "0 @I" + std::to_string(i) + "@ INDI\n";
    EcrireFichier(fichier, lignes);
    progression.annulerAu = 3;
    importation = ImporterVers(session, fichier, chemin);
    CHECK_FALSE(importation.issue);
    CHECK(dialogue.entendu.back().no == message::ImportAbandonne);
    CHECK(LireFichier(chemin) == "ancienne");
    CHECK(FichiersDe(dossier.chemin) == 2);
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: a journal beside the replaced base belongs to no one") {
    doublures::EcrireFichier(dossier / "essai.LOG", std::string(1004, 'x'));
    Importer("0 @I1@ INDI\n1 NAME Jean /Dupont/\n");
    CHECK(Nom(1) == "Dupont;Jean;");
    CHECK_FALSE(std::filesystem::exists(dossier / "essai.LOG"));
}

TEST_CASE_FIXTURE(EssaiImport, "Import: a base open elsewhere is not replaced") {
    Importer("0 @I1@ INDI\n1 NAME Jean /Dupont/\n");
    const std::string avant = LireFichier(chemin);
    importation = ImporterVers(session, fichier, chemin);
    CHECK_FALSE(importation.issue);
    CHECK(dialogue.entendu.back().no == message::BaseOccupee);
    CHECK(LireFichier(chemin) == avant);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: past 64000 persons the rest is read over, counted and told") {
    std::string lignes;
    for (int i = 1; i <= 64011; ++i)
        lignes += "0 @" + std::to_string(i) + "@ INDI\n1 NAME A /B" + std::to_string(i) + "/\n";
    Importer(lignes + "0 @S@ SOUR\n1 TITL suite\n0 @F@ FAM\n1 HUSB @1@\n1 WIFE @64000@\n");
    CHECK(base->entete.DernierIndividu == 64000);
    CHECK(base->entete.NbTriIndividus == 64000);
    CHECK(base->entete.DernierEvenement == 1);
    CHECK(base->R_EPOUSE.LireCellule(NoMariage{1}) == NoOrdre{64000});
    CHECK(Nom(64000) == "B64000;A;");
    CHECK(importation.rapport.Nombre(Constat::Limite, "INDI") == 11);
    CHECK(dialogue.entendu.back().no == message::MaximumPersonnesBaseAtteint);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: past 32000 events and documents the rest is counted and told") {
    std::string lignes = "0 @I1@ INDI\n1 NAME A /B/\n";
    for (int i = 1; i <= 32001; ++i)
        lignes += "0 @S" + std::to_string(i) + "@ SOUR\n1 TITL x\n0 @N" + std::to_string(i) +
                  "@ NOTE y\n";
    Importer(lignes);
    CHECK(base->entete.DernierEvenement == 32000);
    CHECK(base->entete.DernierDocument == 32000);
    CHECK(importation.rapport.Nombre(Constat::Limite, "SOUR") == 1);
    CHECK(importation.rapport.Nombre(Constat::Limite, "NOTE") == 1);
    CHECK(base->R_EVT.LibelleEvt(NoEvenement{32000}) == "x");
}

TEST_CASE_FIXTURE(EssaiImport, "Import: a file cut at any byte is read to its end") {
    const std::string entier =
        "0 HEAD\n1 CHAR ANSI\n0 @I1@ INDI\n1 NAME Jean /Dupont/\n1 BIRT\n2 DATE 12 MAR 1820\n"
        "2 PLAC Rennes\n1 OCCU maire\n0 @I2@ INDI\n1 SEX F\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n"
        "1 MARR\n2 DATE 1840\n0 @S1@ SOUR\n1 TITL x\n0 @N1@ NOTE y\n0 TRLR\n";
    for (std::size_t n = 8; n < entier.size(); n += 3) {
        CAPTURE(n);
        ImporterOctets(std::string_view{entier}.substr(0, n));
        CHECK(importation.issue);
        CHECK(base->entete.DernierIndividu <= 2);
    }
}

TEST_CASE_FIXTURE(EssaiImport, "Import: counts of both readings are shown every hundred") {
    std::string lignes;
    for (int i = 1; i <= 250; ++i)
        lignes += "0 @I" + std::to_string(i) + "@ INDI\n1 NAME /Nom/\n";
    for (int i = 1; i <= 120; ++i)
        lignes += "0 @N" + std::to_string(i) + "@ NOTE n\n0 @F" + std::to_string(i) +
                  "@ FAM\n1 HUSB @I" + std::to_string(i) + "@\n1 WIFE @I" + std::to_string(i + 1) +
                  "@\n";
    Importer(lignes);
    CHECK(progression.titres.front().no == message::TitreImportGedcom);
    std::vector<shell::Phrase> attendus{shell::Msg(message::EtatPremiereLecture)};
    for (const auto& [message, nombre] : {std::pair{message::EtatPersonnesLues, 100},
                                          {message::EtatPersonnesLues, 200},
                                          {message::Document, 100},
                                          {message::EtatSecondeLecture, 0},
                                          {message::LibUnion, 100}})
        attendus.push_back(
            nombre == 0 ? shell::Msg(message)
                        : shell::Litteral(session.Message(message) + ' ' + std::to_string(nombre)));
    REQUIRE(progression.textes.size() > attendus.size());
    progression.textes.resize(attendus.size());
    CHECK((progression.textes == attendus));
    CHECK(progression.pas > 3);
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: one that fails leaves no base open and no trace of the one before") {
    Importer("0 @I1@ INDI\n1 NAME Jean /Dupont/\n");
    base.reset();
    REQUIRE(shell::OuvrirChemin(session, chemin));
    ImporterFichier(session, dossier / "absent.ged");
    CHECK(dialogue.entendu.back().no == message::FichierIllisible);
    CHECK_FALSE(session.BaseOuverte());
    CHECK(session.CheminBase.empty());
    CHECK_FALSE(session.PersonneEnCours);
}

TEST_CASE_FIXTURE(EssaiImport, "Import: without the setting of the sort nothing is asked") {
    session.parametres.generaux.triImport = false;
    Importer("0 @I1@ INDI\n1 NAME /Z/\n1 BIRT\n2 DATE 1900\n0 @I2@ INDI\n1 NAME /A/\n");
    CHECK(dialogue.questions.empty());
    CHECK(base->entete.TypeTri == TypeTri::Creation);
    CHECK(base->R_TRI.IndividuAuRang(1) == NoOrdre{1});
}

TEST_CASE_FIXTURE(EssaiImport,
                  "Import: the word index of the surnames is there, whatever the sort") {
    dialogue.reponses = {shell::Reponse::Non};
    Importer("0 @I1@ INDI\n1 NAME Jean /Dupont/\n1 OCCU maire\n0 @I2@ INDI\n1 NAME Luc /Dupont/\n");
    NoMotCle noms{};
    NoMotCle metiers{};
    for (std::uint32_t k = 1; k <= base->motsCles.Nombre(); ++k) {
        const storage::MotCle& type = base->motsCles.LibelleType(NoMotCle{k});
        if (type.libelle == "BIRN" && type.symbole == '|') noms = NoMotCle{k};
        if (type.libelle == "OCCU") metiers = NoMotCle{k};
    }
    REQUIRE(noms);
    REQUIRE(metiers);
    REQUIRE(base->R_INDEX.ListeMots(noms).size() == 1);
    CHECK(base->R_INDEX.MotIndex(base->R_INDEX.ListeMots(noms)[0]) == "DUPONT");
    CHECK(base->R_INDEX.PersonnesIndex(base->R_INDEX.ListeMots(noms)[0]) ==
          std::vector{NoOrdre{1}, NoOrdre{2}});
    CHECK(base->R_INDEX.ListeMots(metiers).size() == 1);
}

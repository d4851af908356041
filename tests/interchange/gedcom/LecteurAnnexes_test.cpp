#include "interchange/gedcom/LecteurAnnexes.h"

#include "interchange/EssaiImport.h"
#include "values/Dates.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE_FIXTURE(EssaiImport,
                  "A source becomes an event with its kind, date, place, title and note") {
    Importer(
        "0 @S1@ SOUR\n1 DATA\n2 EVEN BAPM\n3 DATE 12 MAR 1820\n3 PLAC Rennes\n1 TITL Acte un\n"
        "1 TEXT Texte\n2 CONT ligne deux\n1 AUTH Curé\n"_1252);
    const NoEvenement e{1};
    CHECK(base->R_EVT.TypeEvt(e) == "CHR");
    CHECK(base->R_EVT.CleDateEvt(e) == DateVersSerie(DateCivile{12, 3, 1820}));
    CHECK(base->R_EVT.LieuEvt(e) == "Rennes");
    CHECK(base->R_EVT.LibelleEvt(e) == "Acte un");
    CHECK(base->R_EVT.NoteEvt(e) == "Texte\r\nligne deux\r\nAuteur: Curé"_1252);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "A source without a whole date has the key of no date and sorts first") {
    Importer(
        "0 @S1@ SOUR\n1 DATE 12 MAR 1820\n1 TITL un\n0 @S2@ SOUR\n1 TITL deux\n"
        "0 @S3@ SOUR\n1 DATE 1820\n");
    CHECK(base->R_EVT.CleDateEvt(NoEvenement{2}) == storage::CleSansDate);
    CHECK(base->R_EVT.CleDateEvt(NoEvenement{3}) == storage::CleSansDate);
    CHECK(base->R_EVT.NoteEvt(NoEvenement{3}) == "1820");
    CHECK(base->R_TRI.EvtAuRang(1) == NoEvenement{2});
    CHECK(base->R_TRI.EvtAuRang(3) == NoEvenement{1});
}

TEST_CASE_FIXTURE(EssaiImport, "A kind of event in parentheses is the user's own, or a label") {
    Importer(
        "0 @S1@ SOUR\n1 DATA\n2 EVEN (Bénédiction)\n0 @S2@ SOUR\n1 DATA\n2 EVEN (Foire)\n"_1252);
    CHECK(base->R_EVT.TypeEvt(NoEvenement{1}) == "BLES");
    CHECK(base->R_EVT.TypeEvt(NoEvenement{2}) == "Foire");
}

TEST_CASE_FIXTURE(EssaiImport, "A note becomes a document; REFN is its file, TYPE its type") {
    Importer(
        "0 @N1@ NOTE Premier\n1 CONC suite\n1 CONT ligne\n1 REFN a.jpg\n2 TYPE Photo\n"
        "0 @N2@ NOTE\n");
    const storage::Document document = base->R_IMAGE.LireDoc(NoDocument{1});
    CHECK(document.note == "Premier suite\r\nligne");
    CHECK(document.titre == "Premier suite");
    CHECK(document.fichier == "a.jpg");
    CHECK(document.type == "Photo");
    CHECK(base->entete.NbTriDocuments == 2);
}

TEST_CASE_FIXTURE(EssaiImport, "The note of the header becomes the description of the base") {
    ImporterOctets(
        "0 HEAD\n1 CHAR ANSI\n1 SUBM @S@\n1 NOTE une\n2 CONT deux\n0 @T@ SUBM\n"
        "1 NAME Autre\n0 @S@ SUBM\n1 NAME Agathe /Michel/\n1 ADDR 1 rue Haute\n"
        "2 CONT Rennes\n1 PHON 00\n0 TRLR\n");
    CHECK(base->R_IMAGE.TitreDoc(NoDocument{1}) == "Description de la base");
    CHECK(base->R_IMAGE.NoteDoc(NoDocument{1}) == "une\r\ndeux");
    session.parametres.LireParametresBase(chemin);
    CHECK(session.parametres.base.auteur == "Agathe Michel");
    CHECK(session.parametres.base.adresse[0] == "1 rue Haute");
    CHECK(session.parametres.base.adresse[1] == "Rennes");
    CHECK(session.parametres.base.adresse[2] == "00");
}

TEST_CASE_FIXTURE(EssaiImport, "A record of another kind is named with all its lines") {
    Importer("0 @X@ _PLAC\n1 NAME perdu\n2 DATE 1820\n0 @O@ OBJE\n1 FILE a\n");
    CHECK(Constats(Constat::NonRepris) == 5);
}

TEST_CASE_FIXTURE(EssaiImport, "An address keeps seven lines, the rest is told by line") {
    Importer(
        "0 @S@ SUBM\n1 NAME A\n1 ADDR 1\n2 CONT 2\n2 CONT 3\n2 CONT 4\n2 CITY 5\n2 POST 6\n"
        "2 CTRY 7\n1 PHON 8\n");
    session.parametres.LireParametresBase(chemin);
    CHECK(session.parametres.base.adresse[3] == "4");
    CHECK(session.parametres.base.adresse[6] == "7");
    CHECK(session.parametres.base.adresse[7].empty());
    CHECK(importation.rapport.Nombre(Constat::Limite, "SUBM.PHON") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "A header that names a note record makes no document of its own") {
    ImporterOctets("0 HEAD\n1 NOTE @N1@\n0 @N1@ NOTE un\n0 TRLR\n");
    CHECK(base->entete.DernierDocument == 1);
    CHECK(base->R_IMAGE.NoteDoc(NoDocument{1}) == "un");
}

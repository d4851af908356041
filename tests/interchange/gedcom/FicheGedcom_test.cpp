#include "interchange/gedcom/FicheGedcom.h"

#include "interchange/EssaiImport.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE_FIXTURE(EssaiImport, "TraduireAge: words and letters of an age") {
    TextesImport textes{session};
    CHECK(TraduireAge("60y", textes) == "60 ans");
    CHECK(TraduireAge("1y 6m 3d", textes) == "1 ans 6 mois 3 jours");
    CHECK(TraduireAge("CHILD", textes) == "Enfant");
    CHECK(TraduireAge("INFANT", textes) == "Nourrisson");
    CHECK(TraduireAge("STILLBORN", textes) == "Mort-né"_1252);
    CHECK(TraduireAge("> 30", textes) == "> 30");
    CHECK(TraduireAge("", textes).empty());
}

TEST_CASE_FIXTURE(EssaiImport, "FicheGedcom: addresses of events join in one row") {
    Importer("0 @I1@ INDI\n1 RESI\n2 DATE 1850\n2 ADDR Rue Haute\n3 CITY Vannes\n2 PHON 12\n");
    CHECK(Texte(1) == "\r\nRESI 1850\r\nADDR      µRue.Haute.-.Vannes.-.12\r\n"_1252);
}

TEST_CASE_FIXTURE(EssaiImport, "FicheGedcom: an adoption says by whom") {
    Importer("0 @I1@ INDI\n1 ADOP\n2 DATE 1850\n2 FAMC @F1@\n3 ADOP BOTH\n0 @F1@ FAM\n");
    CHECK(storage::NoteDe(*base, NoOrdre{1}).find("Adoption: Père et mère"_1252) !=
          std::string::npos);
}

TEST_CASE_FIXTURE(EssaiImport, "FicheGedcom: values of one record never reach the next") {
    Importer("0 @I1@ INDI\n1 OCCU maire\n1 BIRT\n2 DATE 1820\n1 NOTE un\n0 @I2@ INDI\n1 CHR\n");
    CHECK(Texte(2) == "\r\nCHR     \r\n");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{2}).empty());
}

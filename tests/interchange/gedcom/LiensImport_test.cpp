#include "interchange/gedcom/LiensImport.h"

#include "interchange/EssaiImport.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

namespace {
const NoOrdre Un{1}, Deux{2}, Trois{3};
}

TEST_CASE_FIXTURE(EssaiImport, "A link stands on both sides under one label, once") {
    Importer(
        "0 @I1@ INDI\n1 ASSO @I2@\n2 RELA Parrain\n1 ALIA @I3@\n0 @I2@ INDI\n1 ASSO @I1@\n"
        "2 RELA GODF\n0 @I3@ INDI\n");
    REQUIRE(base->R_LIEN.NbElements(Un) == 2);
    CHECK(base->R_LIEN.ElementListe(Un, 1) == Deux);
    CHECK(base->R_LIEN.TexteElement(Un, 1) == "GODF");
    CHECK(base->R_LIEN.ElementListe(Un, 2) == Trois);
    CHECK(base->R_LIEN.TexteElement(Un, 2) == "Relation");
    CHECK(base->R_LIEN.NbElements(Deux) == 1);
    CHECK(base->R_LIEN.TexteElement(Deux, 1) == "GODF");
    CHECK(base->R_LIEN.NbElements(Trois) == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "A source cited by a person makes a participant with the role") {
    Importer(
        "0 @I1@ INDI\n1 SOUR @S1@\n2 EVEN\n3 ROLE CHIL\n0 @I2@ INDI\n1 SOUR @S1@\n2 EVEN\n"
        "3 ROLE (parrain)\n1 SOUR @S1@\n2 EVEN\n3 ROLE (parrain)\n0 @S1@ SOUR\n1 TITL x\n");
    CHECK(base->R_LSTEVT.TexteElement(Un, 1) == "CHIL");
    CHECK(base->R_LSTEVT.NbElements(Deux) == 1);
    CHECK(base->R_LSTEVT.TexteElement(Deux, 1) == "parrain");
    const auto liens = base->R_EVT.Liens(NoEvenement{1});
    REQUIRE(liens.size() == 2);
    CHECK(liens[0].individu == Un);
    CHECK(liens[1].role == "parrain");
}

TEST_CASE_FIXTURE(EssaiImport, "The events of a person stand by date, those without one first") {
    Importer(
        "0 @I1@ INDI\n1 SOUR @S1@\n1 SOUR @S2@\n1 SOUR @S3@\n0 @S1@ SOUR\n1 DATE 1 JAN 1900\n"
        "0 @S2@ SOUR\n1 DATE 1 JAN 1800\n0 @S3@ SOUR\n1 TITL sans\n");
    CHECK(base->R_LSTEVT.ElementListe(Un, 1) == NoEvenement{3});
    CHECK(base->R_LSTEVT.ElementListe(Un, 2) == NoEvenement{2});
    CHECK(base->R_LSTEVT.ElementListe(Un, 3) == NoEvenement{1});
}

TEST_CASE_FIXTURE(EssaiImport, "A note record hangs on the person, or on the event of a citation") {
    Importer(
        "0 @I1@ INDI\n1 NOTE @N1@\n1 NOTE @N1@\n1 SOUR @S1@\n2 NOTE @N2@\n0 @N1@ NOTE un\n"
        "0 @N2@ NOTE deux\n0 @S1@ SOUR\n1 NOTE @N1@\n");
    CHECK(base->R_LSTIMG.Elements(Un) == std::vector{NoDocument{1}});
    CHECK(base->R_EVT.Documents(NoEvenement{1}) == std::vector{NoDocument{2}, NoDocument{1}});
}

TEST_CASE_FIXTURE(EssaiImport, "References to nothing are left out and told") {
    Importer("0 @I1@ INDI\n1 FAMS @F9@\n1 ASSO @I77@\n2 RELA ami\n1 SOUR @S77@\n1 NOTE @N77@\n");
    CHECK(Constats(Constat::Reference) == 4);
    CHECK(importation.rapport.Nombre(Constat::Reference, "INDI.FAMS @F9@") == 1);
    CHECK(base->R_LIEN.NbElements(Un) == 0);
    CHECK(base->R_LSTEVT.NbElements(Un) == 0);
}

TEST_CASE_FIXTURE(EssaiImport, "Past 200 entries of a person the rest is told") {
    std::string lignes = "0 @I1@ INDI\n";
    for (int i = 0; i < 205; ++i)
        lignes += "1 SOUR @S" + std::to_string(i) + "@\n1 NOTE @N" + std::to_string(i) +
                  "@\n1 ASSO @P" + std::to_string(i) + "@\n";
    for (int i = 0; i < 205; ++i)
        lignes += "0 @S" + std::to_string(i) + "@ SOUR\n0 @N" + std::to_string(i) +
                  "@ NOTE x\n0 @P" + std::to_string(i) + "@ INDI\n";
    Importer(lignes);
    CHECK(base->R_LSTEVT.NbElements(Un) == 200);
    CHECK(base->R_LSTIMG.NbElements(Un) == 200);
    CHECK(base->R_LIEN.NbElements(Un) == 200);
    CHECK(Constats(Constat::Limite) == 15);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "A label in parentheses comes without them; one that is too long is told") {
    Importer("0 @I1@ INDI\n1 ASSO @I2@\n2 RELA (voisin)\n1 ASSO @I3@\n2 RELA " +
             std::string(60, 'x') + "\n1 ASSO @I1@\n0 @I2@ INDI\n0 @I3@ INDI\n");
    CHECK(base->R_LIEN.NbElements(Un) == 2);
    CHECK(base->R_LIEN.TexteElement(Un, 1) == "voisin");
    CHECK(importation.rapport.Nombre(Constat::Remplace, "RELA") == 1);
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.ASSO") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "A note record under the source of a family hangs on its event") {
    Importer(
        "0 @I1@ INDI\n0 @I2@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 SOUR @S1@\n"
        "2 NOTE @N1@\n1 NOTE @N1@\n0 @N1@ NOTE un\n0 @S1@ SOUR\n");
    CHECK(base->R_EVT.Documents(NoEvenement{1}) == std::vector{NoDocument{1}});
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "FAM.NOTE") == 1);
}

#include "interchange/gedcom/FamillesImport.h"

#include "interchange/EssaiImport.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE_FIXTURE(EssaiImport,
                  "FamillesImport: the 201st child of a person changes nothing and is told") {
    std::string lignes = "0 @P@ INDI\n1 SEX M\n0 @M@ INDI\n1 SEX F\n";
    std::string famille = "0 @F@ FAM\n1 HUSB @P@\n1 WIFE @M@\n";
    for (int i = 0; i < 203; ++i) {
        const std::string cle = "@E" + std::to_string(i) + "@";
        lignes += "0 " + cle + " INDI\n";
        famille += "1 CHIL " + cle + '\n';
    }
    Importer(lignes + famille);
    CHECK(base->R_ENFANT.NbElements(NoOrdre{1}) == 200);
    CHECK(base->R_ENFANT.NbElements(NoOrdre{2}) == 200);
    CHECK(base->R_PERE.LireCellule(NoOrdre{202}) == NoOrdre{1});
    CHECK_FALSE(base->R_PERE.LireCellule(NoOrdre{203}));
    CHECK(importation.rapport.Nombre(Constat::Limite, "FAM.CHIL") == 6);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "FamillesImport: the 201st union of a person is not made and is told") {
    std::string lignes = "0 @P@ INDI\n1 SEX M\n";
    for (int i = 0; i < 203; ++i) {
        const std::string n = std::to_string(i);
        lignes.append("0 @E").append(n).append("@ INDI\n1 SEX F\n0 @F").append(n);
        lignes.append("@ FAM\n1 HUSB @P@\n1 WIFE @E").append(n).append("@\n");
    }
    Importer(lignes);
    CHECK(base->entete.DernierMariage == 200);
    CHECK(base->R_MARIAG.NbElements(NoOrdre{1}) == 200);
    CHECK(base->R_MARIAG.NbElements(NoOrdre{204}) == 0);
    CHECK(importation.rapport.Nombre(Constat::Limite, "FAM") == 3);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "FamillesImport: children of one year stand in the order of the file") {
    Importer(
        "0 @P@ INDI\n1 SEX M\n0 @A@ INDI\n1 BIRT\n2 DATE 1850\n0 @B@ INDI\n1 BIRT\n"
        "2 DATE 1850\n0 @C@ INDI\n0 @F@ FAM\n1 HUSB @P@\n1 CHIL @B@\n1 CHIL @A@\n1 CHIL @C@\n");
    CHECK(base->R_ENFANT.Elements(NoOrdre{1}) == std::vector{NoOrdre{4}, NoOrdre{3}, NoOrdre{2}});
}

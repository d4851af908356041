// What an import cannot keep is named in its report, with the line.
#include "interchange/EssaiImport.h"

#include <algorithm>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

namespace {

struct Bureau : EssaiImport {
    /// The report names this line of the file, the first being the header's.
    [[nodiscard]] bool Nomme(Constat constat, std::string_view tags, std::uint32_t ligne) const {
        const auto& liste = importation.rapport.Liste(constat);
        const auto mention = liste.find(tags);
        return mention != liste.end() &&
               std::ranges::find(mention->second.lignes, ligne) != mention->second.lignes.end();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Import: an event of which only \"Y\" is said is named in the report") {
    Importer("0 @I1@ INDI\n1 DEAT Y\n1 BURI Y\n1 NAME Jean /Martin/\n");
    CHECK(Nomme(Constat::NonRepris, "INDI.DEAT", 5));
    CHECK(Nomme(Constat::NonRepris, "INDI.BURI", 6));
    SUBCASE("not when a date, a place or a word stands under it") {
        Importer(
            "0 @I1@ INDI\n1 DEAT Y\n2 DATE 1820\n1 BURI Y\n2 PLAC Brest\n1 BIRT Y\n"
            "2 NOTE au moulin\n1 CHR Y\n2 DATE 1800\n");
        CHECK(Constats(Constat::NonRepris) == 0);
    }
    SUBCASE("a union that took place is a union") {
        Importer(
            "0 @I1@ INDI\n0 @I2@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR Y\n"
            "1 DIV Y\n");
        CHECK(Constats(Constat::NonRepris) == 1);
        CHECK(Nomme(Constat::NonRepris, "FAM.DIV", 10));
    }
}

TEST_CASE_FIXTURE(Bureau, "Import: a child above a partner is not his, and the report says so") {
    Importer(
        "0 @I1@ INDI\n0 @I2@ INDI\n0 @I3@ INDI\n0 @I4@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n"
        "1 CHIL @I3@\n1 WIFE @I2@\n1 CHIL @I4@\n");
    CHECK(base->R_MERE.LireCellule(NoOrdre{3}) == NoOrdre{});
    CHECK(base->R_MERE.LireCellule(NoOrdre{4}) == NoOrdre{2});
    CHECK(Nomme(Constat::NonRepris, "FAM.CHIL", 10));
    CHECK(Constats(Constat::NonRepris) == 1);
}

TEST_CASE_FIXTURE(Bureau,
                  "Import: a sex or a parent that a family replaces is named in the report") {
    Importer(
        "0 @I1@ INDI\n1 SEX F\n0 @I2@ INDI\n0 @I3@ INDI\n1 SEX M\n0 @F1@ FAM\n1 HUSB @I1@\n"
        "1 WIFE @I2@\n1 CHIL @I3@\n");
    CHECK(base->R_SEXE.LireCellule(NoOrdre{1}) == Sexe::Homme);
    CHECK(Nomme(Constat::Remplace, "FAM.HUSB", 10));
    CHECK(Constats(Constat::Remplace) == 1);
    Importer(
        "0 @I1@ INDI\n0 @I2@ INDI\n0 @I3@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I3@\n"
        "0 @F2@ FAM\n1 HUSB @I2@\n1 CHIL @I3@\n");
    CHECK(base->R_PERE.LireCellule(NoOrdre{3}) == NoOrdre{2});
    CHECK(Nomme(Constat::Remplace, "FAM.CHIL", 12));
}

TEST_CASE_FIXTURE(Bureau,
                  "Import: a place cannot hold the signs that begin the places of a person") {
    Importer("0 @I1@ INDI\n1 BIRT\n2 PLAC F ~ G\n1 DEAT\n2 PLAC A$B\n");
    CHECK(storage::LieuNaissance(*base, NoOrdre{1}) == "F - G");
    CHECK(storage::LieuDeces(*base, NoOrdre{1}) == "A-B");
    CHECK(Nomme(Constat::Remplace, "INDI.BIRT.PLAC", 6));
    CHECK(Nomme(Constat::Remplace, "INDI.DEAT.PLAC", 8));
}

TEST_CASE_FIXTURE(Bureau, "Import: a mark that stands twice in a value is one in the base") {
    Importer(
        "0 HEAD\n1 SUBM @S@\n0 @I1@ INDI\n1 NAME Jean /M@@rtin/\n1 OCCU a@@b\n1 NOTE c@@d\n"
        "2 CONT e@@f\n1 SOUR @E@\n2 EVEN\n3 ROLE (g@@h)\n0 @E@ SOUR\n1 TITL i@@j\n"
        "0 @N@ NOTE k@@l\n1 REFN m@@n\n");
    CHECK(Nom(1).starts_with("M@rtin;Jean"));
    CHECK(Texte(1).find("a@b") != std::string::npos);
    CHECK(Texte(1).find("c@d\r\ne@f") != std::string::npos);
    CHECK(base->R_LSTEVT.TexteElement(NoOrdre{1}, 1) == "g@h");
    CHECK(base->R_EVT.Description(NoEvenement{1}).libelle == "i@j");
    CHECK(base->R_IMAGE.LireDoc(NoDocument{1}).note == "k@l");
    CHECK(base->R_IMAGE.LireDoc(NoDocument{1}).fichier == "m@n");
}

TEST_CASE_FIXTURE(Bureau, "Import: a family that does not name the person is named in the report") {
    Importer(
        "0 @I1@ INDI\n1 FAMS @F1@\n1 FAMC @F2@\n0 @I2@ INDI\n1 FAMC @F1@\n1 FAMS @F1@\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n0 @F2@ FAM\n1 HUSB @I2@\n");
    CHECK(Nomme(Constat::NonRepris, "INDI.FAMC", 6));
    CHECK(Nomme(Constat::NonRepris, "INDI.FAMS", 9));
    CHECK(Constats(Constat::NonRepris) == 2);
}

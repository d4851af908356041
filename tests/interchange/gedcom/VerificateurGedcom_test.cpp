// The checker of exports must refuse what no reader could take.
#include "doublures/VerificateurGedcom.h"

#include "values/Comparaison.h"

#include <doctest/doctest.h>

using namespace dorvane;
using doublures::VerificateurGedcom;

namespace {

constexpr std::string_view Bon =
    "0 HEAD\n1 SOUR X\n1 GEDC\n2 VERS 5.5\n2 FORM Lineage-Linked\n1 CHAR ANSI\n1 SUBM @S1@\n"
    "0 @S1@ SUBM\n1 NAME Moi\n"
    "0 @I1@ INDI\n1 NAME Paul /Martin/\n2 NICK Polo\n1 SEX M\n1 BIRT\n2 DATE 1820\n2 PLAC Brest\n"
    "1 NOTE Une\n2 CONC note\n2 CONT longue\n1 FAMS @F1@\n1 SOUR @E1@\n2 EVEN\n3 ROLE CHIL\n"
    "0 @I2@ INDI\n1 NAME /Blanc/\n1 FAMC @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n1 MARR\n2 DATE 1849\n"
    "0 @E1@ SOUR\n1 DATA\n2 EVEN BIRT\n3 DATE 1820\n1 TITL Acte\n"
    "0 TRLR\n";

/// What the checker says of the good file with one passage changed.
std::string Dit(std::string_view passage, std::string_view autre) {
    std::string texte{Bon};
    const std::size_t ou = texte.find(passage);
    REQUIRE(ou != std::string::npos);
    texte.replace(ou, passage.size(), autre);
    RemplacerTout(texte, "\n", "\r\n");
    return VerificateurGedcom{texte}.Texte();
}

bool Contient(const std::string& texte, std::string_view morceau) {
    return texte.find(morceau) != std::string::npos;
}

}  // namespace

TEST_CASE("VerificateurGedcom: a good file has nothing wrong") {
    CHECK(Dit("0 HEAD", "0 HEAD").empty());
}

TEST_CASE("VerificateurGedcom: levels and line forms") {
    CHECK(Contient(Dit("2 DATE 1820", "3 DATE 1820"), "15: level jumps"));
    CHECK(Contient(Dit("1 SEX M", "SEX M"), "13: no level"));
    CHECK(Contient(Dit("1 SEX M", "01 SEX M"), "no level"));
    CHECK(Contient(Dit("1 SEX M", "1  SEX M"), "no tag"));
    CHECK(Contient(Dit("1 SEX M", "1 SEX "), "blank without a value"));
    CHECK(Contient(Dit("Une", std::string(250, 'a')), "17: longer than 255"));
    CHECK(Dit("Une", std::string(246, 'a')).empty());
    CHECK(Contient(Dit("Une", "a\x01"), "control character"));
    CHECK(Contient(Dit("@I2@ INDI", "@I2 INDI"), "identifier without end"));
}

TEST_CASE("VerificateurGedcom: tags in their context") {
    CHECK(Contient(Dit("2 PLAC Brest", "2 NICK Brest"), "no NICK under INDI.BIRT"));
    CHECK(Contient(Dit("1 SEX M", "1 MARR"), "no MARR under INDI"));
    CHECK(Contient(Dit("1 TITL Acte", "1 PLAC Acte"), "no PLAC under SOUR"));
    CHECK(Contient(Dit("3 ROLE CHIL", "3 DATE 1820"), "no DATE under INDI.SOUR.EVEN"));
    CHECK(Contient(Dit("1 SEX M", "1 SEX M\n1 SEX M"), "a second INDI.SEX"));
    CHECK(Contient(Dit("1 HUSB @I1@", "1 HUSB @I1@\n1 HUSB @I1@"), "a second FAM.HUSB"));
    CHECK(Contient(Dit("0 @S1@ SUBM", "0 @S1@ SUBX"), "no SUBX under nothing"));
    CHECK(Dit("1 SEX M", "1 _PRIV x").empty());
    CHECK(Contient(Dit("SEX M", "SEX H"), "SEX"));
    CHECK(Contient(Dit("Paul /Martin/", "Paul /Martin/ /x/"), "NAME"));
}

TEST_CASE("VerificateurGedcom: records, their identifiers and references") {
    CHECK(Contient(Dit("0 HEAD\n", ""), "does not begin with HEAD"));
    CHECK(Contient(Dit("0 TRLR\n", ""), "does not end with TRLR"));
    CHECK(Contient(Dit("0 TRLR\n", "0 TRLR\n0 @I9@ INDI\n"), "behind TRLR"));
    CHECK(Contient(Dit("@I2@ INDI", "@I1@ INDI"), "identifier twice: I1"));
    CHECK(Contient(Dit("0 @I2@ INDI", "0 INDI"), "INDI without identifier"));
    CHECK(Contient(Dit("1 SOUR @E1@", "1 SOUR @E2@"), "leads nowhere: SOUR E2"));
    CHECK(Contient(Dit("1 SOUR @E1@", "1 NOTE @E1@"), "NOTE leads to SOUR"));
    CHECK(Contient(Dit("1 FAMC @F1@", "1 FAMC x"), "no reference in FAMC"));
    CHECK(Contient(Dit("1 FAMS @F1@\n", ""), "HUSB of one side only: F1, I1"));
    CHECK(Contient(Dit("1 CHIL @I2@\n", ""), "FAMC of one side only: I2, F1"));
    CHECK(Contient(Dit("1 HUSB @I1@\n", ""), "FAMS of one side only"));
    CHECK(Contient(Dit("1 FAMC @F1@\n", ""), "CHIL of one side only"));
    CHECK(Contient(Dit("1 SUBM @S1@\n", ""), "HEAD without SUBM"));
    CHECK(VerificateurGedcom{"0 HEAD\r\n1 GEDC\r\n2 VERS 5.5\r\n1 CHAR ANSEL\r\n0 TRLR\r\n", true}
              .Ecarts()
              .empty());
    CHECK(Contient(Dit("VERS 5.5", "VERS 5.0"), "GEDC VERS"));
    CHECK(Contient(VerificateurGedcom{"0 HEAD\r\n0 TRLR"}.Texte(), "no CR LF"));
    CHECK_FALSE(VerificateurGedcom{""}.Ecarts().empty());
}

TEST_CASE("VerificateurGedcom: bytes are of the set that is declared") {
    const auto dit = [](std::string_view jeu, std::string_view note) {
        std::string texte = Dit("CHAR ANSI", "CHAR " + std::string{jeu});
        CHECK(texte.empty() == (jeu != "X"));
        std::string fichier{Bon};
        fichier.replace(fichier.find("ANSI"), 4, jeu);
        fichier.replace(fichier.find("Une"), 3, note);
        RemplacerTout(fichier, "\n", "\r\n");
        return Contient(VerificateurGedcom{fichier}.Texte(), "17: not in the set");
    };
    CHECK_FALSE(dit("UTF-8", "\xC3\xA9t\xC3\xA9"));
    CHECK(dit("UTF-8", "\xE9t\xE9"));
    CHECK(dit("UTF-8", "x\xC3"));
    CHECK_FALSE(dit("ANSEL",
                    "\xE2"
                    "et\xE2"
                    "e"));
    CHECK(dit("ANSEL", "ete\xE2"));
    CHECK(dit("ANSEL", "\xD5"));
    CHECK_FALSE(dit("ANSI", "\xE9t\xE9"));
    CHECK(dit("ANSI", "\x81"));
    CHECK_FALSE(dit("HTML", "&eacute;t&eacute;"));
    CHECK(dit("HTML", "A & B"));
    CHECK(dit("HTML", "a<b"));
    CHECK_FALSE(dit("X", "abc"));
    CHECK(Contient(Dit("Une", "a@b"), "a single @"));
    CHECK(Dit("Une", "a@@b").empty());
    CHECK(Dit("DATE 1849", "DATE @#DJULIAN@ 1849").empty());
}

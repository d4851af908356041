#include "values/Comparaison.h"

#include "values/Texte1252.h"

#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

std::string TousLesOctets() {
    std::string tous;
    for (int octet = 0; octet < 256; ++octet)
        tous.push_back(static_cast<char>(octet));
    return tous;
}

}  // namespace

TEST_CASE("Replie: accents fall, and both cases of a letter have one form") {
    CHECK(Replie("Ç"_1252) == "C");
    CHECK(Replie("ç"_1252) == "C");
    CHECK(Replie("ÈÉÊËèéêë"_1252) == "EEEEEEEE");
    CHECK(Replie("ÀÁÂÃÄÅàáâãäå"_1252) == "AAAAAAAAAAAA");
    CHECK(Replie("ÌÍÎÏìíîïÑñ"_1252) == "IIIIIIIINN");
    CHECK(Replie("ÒÓÔÕÖØòóôõöø"_1252) == "OOOOOOOOOOOO");
    CHECK(Replie("ÙÚÛÜùúûüÐðÝý"_1252) == "UUUUUUUUDDYY");
    CHECK(Replie("abcxyz ABCXYZ 0189") == "ABCXYZ ABCXYZ 0189");
}

TEST_CASE("Replie: Œ, Æ and Ÿ are not in the table and stay as they are, in upper case") {
    CHECK(Replie("ŒÆŸ"_1252) == "ŒÆŸ"_1252);
    CHECK(Replie("œæÿšžþ"_1252) == "ŒÆŸŠŽÞ"_1252);
}

TEST_CASE("Replie: what has no upper case in the code page stays") {
    CHECK(Replie("ßƒµªº×÷"_1252) == "ßƒµªº×÷"_1252);
}

TEST_CASE("Replie: nine separators become blanks, other symbols stay") {
    CHECK(Replie("a'b-c.d_e’f´g,h;i:j"_1252) == "A B C D E F G H I J");
    CHECK(Replie("(a) [b] {c} \"d\" a/b\tz"_1252) == "(A) [B] {C} \"D\" A/B\tZ");
}

TEST_CASE("Replie: Saint-Martin, Saint Martin and Saint'Martin have the same form") {
    CHECK(Replie("Saint-Martin") == "SAINT MARTIN");
    CHECK(Replie("Saint Martin") == "SAINT MARTIN");
    CHECK(Replie("Saint'Martin") == "SAINT MARTIN");
}

TEST_CASE("Replie: the length stays for every byte, and folding twice changes nothing more") {
    const std::string replie = Replie(TousLesOctets());
    CHECK(replie.size() == 256);
    CHECK(Replie(replie) == replie);
    CHECK(replie[0] == '\0');
    CHECK(replie[255] == u'Ÿ'_1252);
    CHECK(Replie("").empty());
}

TEST_CASE("ReplieDans: the form is added behind what the buffer holds") {
    std::string tampon = "1820 ";
    ReplieDans(tampon, "Éric"_1252);
    ReplieDans(tampon, "");
    ReplieDans(tampon, "-x");
    CHECK(tampon == "1820 ERIC X");
}

TEST_CASE("CompareReplies: gives the order of the folded texts, as unsigned bytes") {
    CHECK(CompareReplies("éva"_1252, "EVA") == 0);
    CHECK(CompareReplies("Eva", "Evan") < 0);
    CHECK(CompareReplies("z", "œ"_1252) < 0);
    CHECK(CompareReplies("œ"_1252, "z") > 0);
    CHECK(CompareReplies("", "") == 0);
}

TEST_CASE("EnMajuscules and EnMinuscules: are each other's inverse where both cases exist") {
    CHECK(EnMajuscules("éàœšžÿþß×÷"_1252) == "ÉÀŒŠŽŸÞß×÷"_1252);
    CHECK(EnMinuscules("ÉÀŒŠŽŸÞß×÷"_1252) == "éàœšžÿþß×÷"_1252);
    for (const char octet : TousLesOctets()) {
        CAPTURE(static_cast<int>(static_cast<unsigned char>(octet)));
        if (EnMajuscule(octet) != octet) CHECK(EnMinuscule(EnMajuscule(octet)) == octet);
        if (EnMinuscule(octet) != octet) CHECK(EnMajuscule(EnMinuscule(octet)) == octet);
    }
}

TEST_CASE("SansBlancs: only the byte 32 is a blank") {
    CHECK(SansBlancs("  a b  ") == "a b");
    CHECK(SansBlancs("\ta ") == "\ta");
    CHECK(SansBlancs("\xA0 ") == "\xA0");
    CHECK(SansBlancs("   ").empty());
    CHECK(SansBlancs("").empty());
    CHECK(SansBlancsAGauche("  a ") == "a ");
    CHECK(SansBlancsADroite(" a  ") == " a");
}

TEST_CASE("BlancsEnPoints: the outer blanks go, each inner one becomes a dot") {
    CHECK(BlancsEnPoints("  Saint  Jean ") == "Saint..Jean");
    CHECK(BlancsEnPoints("   ").empty());
}

TEST_CASE("PointsEnBlancs: trims before the dots become blanks") {
    CHECK(PointsEnBlancs(".a.") == " a ");
    CHECK(PointsEnBlancs(" Saint.Jean ") == "Saint Jean");
}

TEST_CASE("EstNumerique: an optional sign and digits, and nothing else") {
    for (const std::string_view oui : {"0", "000", "-04", "+7", " 12 ", "99999999999999999999"})
        CHECK_MESSAGE(EstNumerique(oui), oui);
    for (const std::string_view non : {"", " ", "-", "+", "18?", "1 2", "--1", "1.5", "1e3", "\t1"})
        CHECK_MESSAGE(!EstNumerique(non), non);
}

TEST_CASE("CouperEnMots: what stands between blanks, and nothing for blanks alone") {
    CHECK(CouperEnMots("").empty());
    CHECK(CouperEnMots("   ").empty());
    CHECK(CouperEnMots("Martin") == std::vector<std::string>{"Martin"});
    CHECK(CouperEnMots("  Jean-Paul   Martin ") == std::vector<std::string>{"Jean-Paul", "Martin"});
    CHECK(CouperEnMots("a\tb c") == std::vector<std::string>{"a\tb", "c"});
}

TEST_CASE("ContientTout: every word anywhere in the text, in any order, byte for byte") {
    const std::string texte = "LOUIS JEAN MARTIN";
    CHECK(ContientTout(texte, {}));
    CHECK(ContientTout("", {}));
    CHECK(ContientTout(texte, {"MARTIN", "LOUIS"}));
    CHECK(ContientTout(texte, {"ART", "OUI"}));
    CHECK(ContientTout(texte, {"LOUIS JEAN"}));
    CHECK_FALSE(ContientTout(texte, {"LOUIS", "PAUL"}));
    CHECK_FALSE(ContientTout(texte, {"LOUIS MARTIN"}));
    CHECK_FALSE(ContientTout(texte, {"louis"}));
    CHECK_FALSE(ContientTout("", {"A"}));
}

TEST_CASE("RemplacerTout: what has been put in is not searched again") {
    std::string texte = "aaa";
    RemplacerTout(texte, "a", "aa");
    CHECK(texte == "aaaaaa");
    RemplacerTout(texte, "aa", "b");
    CHECK(texte == "bbb");
    RemplacerTout(texte, "", "c");
    CHECK(texte == "bbb");
    RemplacerTout(texte, "b", "");
    CHECK(texte.empty());
}

#include "interchange/releves/Releve.h"

#include "values/Texte1252.h"

#include <doctest/doctest.h>

namespace dorvane::interchange {

using Champs = std::vector<std::string>;

TEST_CASE("a line with both semicolons and tabs is cut at the semicolons") {
    CHECK(DecoupeReleve("1780;mars\t;12") == Champs{"1780", "mars", "12"});
    CHECK(DecoupeReleve("1780\tmars, dit\t12") == Champs{"1780", "mars, dit", "12"});
    CHECK(DecoupeReleve("1780,mars,,12") == Champs{"1780", "mars", "", "12"});
}

TEST_CASE("fields in quotes parted by a blank are the last resort") {
    CHECK(DecoupeReleve("\"1780\" \"mars\" \"12\"") == Champs{"1780", "mars", "12"});
}

TEST_CASE("a line without a separator is not cut") {
    CHECK_FALSE(DecoupeReleve("1780").has_value());
    CHECK_FALSE(DecoupeReleve("").has_value());
}

TEST_CASE("at most twenty fields are taken, and the line says that it had more") {
    std::string ligne = "1";
    for (int i = 2; i <= 20; ++i)
        ligne += ";" + std::to_string(i);
    bool trop = true;
    CHECK(DecoupeReleve(ligne, &trop)->size() == 20);
    CHECK_FALSE(trop);
    CHECK(DecoupeReleve(ligne + ";21", &trop)->back() == "20");
    CHECK(trop);
}

TEST_CASE("a field between quotes holds separators and doubled quotes") {
    CHECK(DecoupeReleve("1;\"a;b\" ;\"dit \"\"x\"\"\"") == Champs{"1", "a;b", "dit \"x\""});
    CHECK(DecoupeReleve("1;\"a;b") == Champs{"1", "\"a", "b"});
    CHECK(DecoupeReleve("1;Jean dit \"le Grand\";2") == Champs{"1", "Jean dit \"le Grand\"", "2"});
    CHECK(DecoupeReleve("1;\"a\"b;2") == Champs{"1", "\"a\"b", "2"});
}

TEST_CASE("a first line whose first field has no digit is the heading") {
    const Releve r = LireReleve("Année;Mois\r\n1780;3\r\n", SorteReleve::Bapteme);
    REQUIRE(r.titres.has_value());
    CHECK(r.titres->Champ(0) == "Année"_1252);
    REQUIRE(r.lignes.size() == 1);
    CHECK(r.lignes[0].numero == 2);
    CHECK(r.lignes[0].Champ(1) == "3");
    CHECK(r.lignes[0].Champ(9).empty());
    CHECK_FALSE(LireReleve("1780;3\n", SorteReleve::Bapteme).titres.has_value());
}

TEST_CASE("empty lines are passed over, and every kind of line end is read") {
    const Releve r = LireReleve("1780;1\r\n\r\n;;;\r1781;2\n1782;3", SorteReleve::Bapteme);
    REQUIRE(r.lignes.size() == 3);
    CHECK(r.lignes[1].numero == 4);
    CHECK(r.lignes[2].Champ(0) == "1782");
}

TEST_CASE("reading stops at the line that has no separator, and keeps what came before") {
    const Releve r = LireReleve("1780;1\nfin\n1781;2\n", SorteReleve::Bapteme);
    CHECK(r.lignes.size() == 1);
    CHECK(r.ligneSansSeparateur == 2);
}

TEST_CASE("UTF-8 and code page 1252 are read, and what 1252 lacks is counted") {
    CHECK(LireReleve("1;é\n", SorteReleve::Bapteme).lignes[0].Champ(1) == "é"_1252);
    CHECK(LireReleve("1;\xE9\n", SorteReleve::Bapteme).lignes[0].Champ(1) == "é"_1252);
    CHECK(LireReleve("1;Ł\n", SorteReleve::Bapteme).remplaces == 1);
}

TEST_CASE("every kind has a heading for each of its columns") {
    CHECK(TitresColonnes(SorteReleve::Bapteme).size() == colonnes::BapRemarques + 1);
    CHECK(TitresColonnes(SorteReleve::Mariage).size() == colonnes::MarRemarques + 1);
    CHECK(TitresColonnes(SorteReleve::Sepulture).size() == colonnes::SepRemarques + 1);
    CHECK(TitresColonnes(SorteReleve::Ascendance).size() == colonnes::AscRemarques + 1);
    for (const SorteReleve sorte : {SorteReleve::Bapteme, SorteReleve::Mariage,
                                    SorteReleve::Sepulture, SorteReleve::Ascendance})
        CHECK(TitresColonnes(sorte).size() <= MaxChampsReleve);
}

}  // namespace dorvane::interchange

#include "interchange/communes/CsvCommunes.h"

#include "shell/FichierSur.h"
#include "values/Texte1252.h"

#include <filesystem>

#include <doctest/doctest.h>

namespace dorvane::interchange {

using storage::Commune;

TEST_CASE("columns are found by their headings, in any order and case") {
    const ListeCommunes liste = LireCsvCommunes(
        "Département;CODE;x;Nom\r\nLoir-et-Cher;41000;?;Blois\r\n\r\nVendée;;;Luçon\r\n");
    REQUIRE(liste.communes.size() == 2);
    CHECK(liste.communes[0] == Commune{"Blois", "41000", "", "", "Loir-et-Cher", ""});
    CHECK(liste.communes[1].nom == "Luçon"_1252);
    CHECK(liste.communes[1].precision == "Vendée"_1252);
}

TEST_CASE("a list without headings has its columns in the usual order") {
    const ListeCommunes liste = LireCsvCommunes("Mer,41500,4119,Mer-Bourg,Loir-et-Cher,note\n");
    REQUIRE(liste.communes.size() == 1);
    CHECK(liste.communes[0] ==
          Commune{"Mer", "41500", "4119", "Mer-Bourg", "Loir-et-Cher", "note"});
}

TEST_CASE("a quoted field holds separators, quotes and line ends") {
    const ListeCommunes liste =
        LireCsvCommunes("nom;commentaire\n\"Mer; bourg\";\"dit \"\"le\"\"\nbourg\"\n");
    REQUIRE(liste.communes.size() == 1);
    CHECK(liste.communes[0].nom == "Mer; bourg");
    CHECK(liste.communes[0].commentaire == "dit \"le\"\nbourg");
}

TEST_CASE("a record without a name is left out and told by its number") {
    const ListeCommunes liste = LireCsvCommunes("nom;code\nMer;1\n;2\nBlois;3");
    CHECK(liste.communes.size() == 2);
    CHECK(liste.sansNom == std::vector<std::size_t>{3});
}

TEST_CASE("a heading without a name reads nothing") {
    const ListeCommunes liste = LireCsvCommunes("code;commentaire\n41000;Blois\n");
    CHECK(liste.nomInconnu);
    CHECK(liste.communes.empty());
}

TEST_CASE("both UTF-8 and code page 1252 are read, and what 1252 lacks is counted") {
    CHECK(LireCsvCommunes("nom\nS\xE9ris\n").communes.at(0).nom == "Séris"_1252);
    CHECK(LireCsvCommunes("\xEF\xBB\xBFnom\nSéris\n").communes.at(0).nom == "Séris"_1252);
    const ListeCommunes liste = LireCsvCommunes("nom\nŁódź\n");
    CHECK(liste.communes.at(0).nom == "Lódz"_1252);
    CHECK(liste.remplaces == 2);
}

TEST_CASE("an empty list, and one cut inside a quoted field, are read as far as they go") {
    CHECK(LireCsvCommunes("").communes.empty());
    CHECK(LireCsvCommunes("nom;code\n\"Mer").communes.size() == 1);
}

TEST_CASE("the sample list reads whole") {
    const std::optional<std::string> octets =
        shell::LireTout(std::filesystem::path{RACINE_SOURCES} / "donnees/communes/echantillon.csv");
    REQUIRE(octets);
    const ListeCommunes liste = LireCsvCommunes(*octets);
    CHECK(liste.communes.size() >= 40);
    CHECK(liste.sansNom.empty());
    CHECK(liste.remplaces == 0);
}

}  // namespace dorvane::interchange

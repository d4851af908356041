#include "app/DecrirePersonne.h"

#include "interchange/EssaiImport.h"

#include <nlohmann/json.hpp>
#include <string>

using namespace dorvane;
using namespace dorvane::outil;
using doublures::EssaiImport;

namespace {

/// As a program on the other side of a pipe would read it.
Json Relire(const Json& objet) {
    Json lu = Json::parse(EnTexte(objet), nullptr, false);
    REQUIRE_FALSE(lu.is_discarded());
    return lu;
}

}  // namespace

TEST_CASE_FIXTURE(EssaiImport, "A person as JSON: all that hangs on it, under its keys") {
    Importer(
        "0 @I1@ INDI\n1 NAME Jean Paul /Dupont/\n1 SEX M\n1 BIRT\n2 DATE 12 MAR 1820\n"
        "2 PLAC Saint Malo\n1 OCCU maire\n1 NOTE note\n1 NOTE @N1@\n1 SOUR @S1@\n2 EVEN BIRT\n"
        "3 ROLE CHIL\n1 ASSO @I2@\n2 RELA GODF\n0 @I2@ INDI\n1 NAME Anne /Martin/\n0 @I3@ INDI\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 MARR\n2 DATE 1840\n2 PLAC Dol\n"
        "0 @N1@ NOTE texte\n0 @S1@ SOUR\n1 TITL acte\n1 DATE 13 MAR 1820\n");
    const Json p = Relire(outil::DecrirePersonne(*base, NoOrdre{1}));
    CHECK(p.at("numero") == 1);
    CHECK(p.at("nom") == "Dupont");
    CHECK(p.at("prenom") == "Jean");
    CHECK(p.at("autres") == "Paul");
    CHECK(p.at("sexe") == "H");
    CHECK(p.at("naissance") ==
          Json{{"jourmois", "12/3"}, {"annee", "1820"}, {"lieu", "Saint Malo"}});
    CHECK(p.at("pere").is_null());
    CHECK(p.at("rubriques").at(0).at("etiquette") == "OCCU");
    CHECK(p.at("rubriques").at(0).at("lieu") == "maire");
    CHECK(p.at("note") == "note");
    CHECK(p.at("enfants") == Json::array({3}));
    CHECK(p.at("unions").at(0).at("epouse") == 2);
    CHECK(p.at("unions").at(0).at("debut").at("lieu") == "Dol");
    CHECK(p.at("liens").at(0) == Json{{"individu", 2}, {"libelle", "GODF"}});
    CHECK(p.at("evenements").at(0).at("role") == "CHIL");
    CHECK(p.at("evenements").at(0).at("date") == "1820-03-13");
    CHECK(p.at("evenements").at(0).at("libelle") == "acte");
    CHECK(p.at("documents").at(0).at("note") == "texte");
    CHECK(Relire(outil::DecrirePersonne(*base, NoOrdre{3})).at("pere") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "JSON of texts with control characters and any byte can be read") {
    std::string octets = "0 HEAD\n1 CHAR ANSI\n0 @I1@ INDI\n1 NAME A";
    for (int c = 1; c < 256; ++c)
        if (c != '\n' && c != '\r' && c != '/' && c != '#' && c != ';')
            octets += static_cast<char>(c);
    ImporterOctets(octets + " /\"\\/\n1 NOTE \x01\x1f\"\\\x7f\x81\xff\n0 TRLR\n");
    const Json p = Relire(outil::DecrirePersonne(*base, NoOrdre{1}));
    CHECK(p.at("nom") == "\"\\");
    CHECK(Utf8VersTexte(p.at("note").get<std::string>()).octets == "\x01\x1f\"\\\x7f\x81\xff");
    CHECK(Relire(DecrireLigne(*base, NoOrdre{1})).at("numero") == 1);
    CHECK(Relire(DecrireBase(*base)).at("individus") == 1);
}

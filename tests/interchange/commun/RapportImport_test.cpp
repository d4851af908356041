#include "interchange/commun/RapportImport.h"

#include "interchange/EssaiImport.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE("RapportImport: counts by kind and path, keeps the line numbers") {
    RapportImport rapport;
    rapport.Noter(Constat::NonRepris, "INDI.OBJE", 12);
    rapport.Noter(Constat::NonRepris, "INDI.OBJE", 15);
    rapport.Noter(Constat::NonRepris, "INDI.RIN", 3);
    CHECK(rapport.Nombre(Constat::NonRepris) == 3);
    CHECK(rapport.Nombre(Constat::NonRepris, "INDI.OBJE") == 2);
    CHECK(rapport.Nombre(Constat::Limite) == 0);
    CHECK(rapport.Liste(Constat::NonRepris).at("INDI.OBJE").lignes ==
          std::vector<std::uint32_t>{12, 15});
}

TEST_CASE("RapportImport: past its limit it counts on without keeping numbers") {
    RapportImport rapport;
    for (std::uint32_t i = 1; i <= RapportImport::MaxLignes + 5; ++i)
        rapport.Noter(Constat::Limite, "INDI", i);
    CHECK(rapport.Nombre(Constat::Limite) == RapportImport::MaxLignes + 5);
    CHECK(rapport.Liste(Constat::Limite).at("INDI").lignes.size() == RapportImport::MaxLignes);
}

TEST_CASE_FIXTURE(EssaiImport, "ComposerRapport: runs of lines are folded, lines are short") {
    RapportImport rapport;
    for (std::uint32_t i = 10; i <= 20; ++i)
        rapport.Noter(Constat::NonRepris, "INDI.OBJE", i);
    for (std::uint32_t i = 30; i <= 300; i += 2)
        rapport.Noter(Constat::NonRepris, "INDI.OBJE", i);
    const std::string texte = ComposerRapport(rapport, session, "x.ged");
    CHECK(texte.find(" 10-20 30 32 ") != std::string::npos);
    for (std::size_t debut = 0, fin = 0; fin != std::string::npos; debut = fin + 1) {
        fin = texte.find('\n', debut);
        CHECK(std::min(fin, texte.size()) - debut <= 100);
    }
}

TEST_CASE_FIXTURE(EssaiImport, "ComposerRapport: says which character set was used and why") {
    ImporterOctets("0 HEAD\n1 CHAR ANSI\n1 NOTE \xC3\xA9t\xC3\xA9\n0 TRLR\n");
    CHECK(importation.texte.find("UTF-8, d'après le contenu ; le fichier déclare « ANSI »"_1252) !=
          std::string::npos);
    ImporterOctets("0 HEAD\n1 NOTE x\n0 TRLR\n");
    CHECK(importation.texte.find("n'en déclare aucun"_1252) != std::string::npos);
}

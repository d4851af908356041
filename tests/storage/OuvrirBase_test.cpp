// How a base is made and opened.
#include "storage/Base.h"
#include "storage/Essai.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

namespace {

struct TypeAttendu {
    const char* libelle;
    unsigned symbole;
};
constexpr TypeAttendu TypesAttendus[] = {
    {"BIRN", '|'}, {"FNAM", 0xB6}, {"BIRT", '$'}, {"MARR", '@'}, {"DEAT", '~'}, {"OCCU", '\\'},
    {"CHR", 0xB0}, {"BURI", '^'},  {"RESI", '%'}, {"DIV", 0xA4}, {"OTHR", 0xB2}};

}  // namespace

TEST_CASE_FIXTURE(Essai, "NouvelleBase: the first commit lays down header, keywords and slots") {
    CHECK(base->volume.FinFichier() > 3573);
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Brut(1, 30) == "[Dorvane Version 99.0]        ");
    CHECK(lgd.Num4(31) == base->volume.FinFichier());
    CHECK(lgd.Tout().size() == base->volume.FinFichier());
    CHECK(lgd.Octet(45) == '1');
    CHECK(lgd.Num2(46) == 11);
    CHECK(lgd.Brut(105, 4) == "0001");
    CHECK(lgd.Brut(109, 6) ==
          "\\ \xB0"
          "1^1");
    CHECK(lgd.Brut(115, 14) == std::string(14, ' '));
    CHECK(lgd.Brut(129, 4) ==
          "\xA4"
          "1  ");
    CHECK(lgd.Octet(149) == '0');
    CHECK(lgd.Brut(173, 28) == std::string(28, '\0'));
    // The shared empty list is the first thing allocated.
    CHECK(lgd.Num2(3574) == 0);
    for (unsigned k = 0; k < 11; ++k) {
        CAPTURE(k);
        const unsigned fiche = lgd.Num4(201 + 4 * k);
        CHECK(lgd.Octet(fiche) == TypesAttendus[k].symbole);
        const std::string libelle = TypesAttendus[k].libelle;
        CHECK(lgd.Brut(fiche + 1, libelle.size()) == libelle);
        CHECK(lgd.Octet(fiche + 1 + static_cast<unsigned>(libelle.size())) == 255);
        CHECK(lgd.Num4(fiche + 2 + static_cast<unsigned>(libelle.size())) == 3574);
    }
}

TEST_CASE_FIXTURE(Essai, "OuvrirBase: a base that is open already is refused") {
    REQUIRE(base->Enregistrer());
    CHECK(OuvrirBase(*disque, Chemin, muet).etat == Ouverture::Occupee);
    REQUIRE(base->Fermer());
    CHECK(OuvrirBase(*disque, Chemin, muet).etat == Ouverture::Faite);
}

TEST_CASE("OuvrirBase: a file without a version mark is refused and not touched") {
    DisqueMemoire disque;
    ProgressionMuette muet;
    for (const std::string& octets :
         {std::string{}, std::string(5000, 'x'), std::string("[Dorvane Version]"),
          std::string("[Dorvane Vers")}) {
        disque.Poser("x.LGD", octets);
        std::string journal = NumVersChaine4(1) + std::string(1000, 'y');
        disque.Poser("x.LOG", journal);
        CHECK(OuvrirBase(disque, "x.LGD", muet).etat == Ouverture::PasUneBase);
        CHECK(disque.operations == 0);
        CHECK(disque.Octets("x.LGD") == octets);
        CHECK(disque.Octets("x.LOG") == journal);
    }
    CHECK(OuvrirBase(disque, "absent.LGD", muet).etat == Ouverture::Introuvable);
}

TEST_CASE_FIXTURE(
    Essai, "NouvelleBase: a leftover journal goes at the first commit and is never replayed") {
    REQUIRE(base->Fermer());
    base.reset();
    disque->Poser(CheminLog, NumVersChaine4(1) + std::string(1000, 'y'));
    base = std::move(NouvelleBase(*disque, Chemin, {}).base);
    Creer("DURAND;Jean", "1850");
    REQUIRE(base->Enregistrer());
    CHECK_FALSE(disque->Existe(CheminLog));
    Rouvrir();
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "DURAND");
}

TEST_CASE_FIXTURE(
    Essai, "OuvrirBase: a torn journal of 2508 bytes replays two records and drops the rest") {
    Creer("DURAND;Jean", "1850");
    REQUIRE(base->Fermer());
    base.reset();
    std::string octets = disque->Octets(Chemin);
    octets.resize(24000, '.');
    disque->Poser(Chemin, octets);
    const auto fiche = [](std::uint32_t position, char c) {
        return NumVersChaine4(position) + std::string(1000, c);
    };
    disque->Poser(CheminLog,
                  fiche(20001, 'a') + fiche(21001, 'b') + fiche(22001, 'c').substr(0, 500));
    ResultatOuverture resultat = OuvrirBase(*disque, Chemin, muet);
    REQUIRE(resultat.etat == Ouverture::Faite);
    CHECK(resultat.reprise);
    const std::string apres = disque->Octets(Chemin);
    CHECK(apres.substr(20000, 1000) == std::string(1000, 'a'));
    CHECK(apres.substr(21000, 1000) == std::string(1000, 'b'));
    CHECK(apres.substr(22000, 1000) == std::string(1000, '.'));
    CHECK_FALSE(disque->Existe(CheminLog));
}

TEST_CASE_FIXTURE(
    Essai, "OuvrirBase: journal records that name position 0 or one past the end are skipped") {
    REQUIRE(base->Fermer());
    base.reset();
    const std::string avant = disque->Octets(Chemin);
    const std::string image(1000, 'z');
    disque->Poser(CheminLog, NumVersChaine4(0) + image + NumVersChaine4(0x7F7F7F7F) + image);
    Ouvrir();
    CHECK(disque->Octets(Chemin) == avant);
}

#include "storage/Base.h"

#include "storage/Essai.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

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

TEST_CASE_FIXTURE(
    Essai, "EcrireEnTete: a first commit without an event gives the event areas up for good") {
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Brut(50, 12) == std::string(12, '\0'));
    CHECK(Lire().Brut(3089, 384) == std::string(384, '\0'));
    Rouvrir();
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = 100});
    base->R_TRI.AjouterEvt(e);
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Num4(50) > 3573);
    CHECK(Lire().Brut(3089, 384) == std::string(384, '\0'));
    CHECK(Lire().Num4(Lire().Num4De("EVT", 1)) == 1000100);
}

TEST_CASE_FIXTURE(
    Essai, "EcrireEnTete: an event made before the first commit keeps the areas of a new file") {
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = -5});
    base->R_TRI.AjouterEvt(e);
    base->R_LSTEVT.ModifierListe(NoOrdre{1}, e, 'A', "CHIL");
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Num4(50) == 3089);
    CHECK(lgd.Num4(54) == 3345);
    CHECK(lgd.Num4(58) == 3217);
    CHECK(lgd.Tri("TRIEVT", 1) == std::vector<unsigned>{1});
    CHECK(lgd.Liste("LSTEVT", 1, 6) == std::vector<unsigned>{1});
}

TEST_CASE_FIXTURE(Essai, "The 32001st person allocates 1664 zero bytes at once") {
    base->FixerDernierIndividu(32000);
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK(base->entete.PosSuiteIndividus == Position{});
    CHECK(base->NouvelIndividu() == NoOrdre{32001});
    CHECK(base->volume.FinFichier() == fin + 1664);
    CHECK(base->entete.PosSuiteIndividus == Position{fin + 1});
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Num4(161) == fin + 1);
    CHECK(Lire().Brut(fin + 1, 1664) == std::string(1664, '\0'));
}

TEST_CASE_FIXTURE(Essai,
                  "LireEnTete: with exactly 32000 persons the overflow position is not read") {
    base->FixerDernierIndividu(32000);
    REQUIRE(base->Fermer());
    base.reset();
    std::string octets = disque->Octets(Chemin);
    octets.replace(160, 4, NumVersChaine4(500));
    disque->Poser(Chemin, octets);
    Ouvrir();
    CHECK(base->entete.DernierIndividu == 32000);
    CHECK(base->entete.PosSuiteIndividus == Position{});
}

TEST_CASE_FIXTURE(Essai, "Persons past 64000, events and documents past 32000 are not created") {
    base->FixerDernierIndividu(64000);
    CHECK_FALSE(base->NouvelIndividu());
    base->entete.DernierEvenement = 32000;
    CHECK_FALSE(base->NouvelEvenement());
    base->entete.DernierDocument = 31999;
    CHECK(base->NouveauDocument() == NoDocument{32000});
    CHECK_FALSE(base->NouveauDocument());
}

TEST_CASE_FIXTURE(Essai, "Unions past 32000 get their overflow zone at the commit") {
    base->entete.DernierMariage = 32000;
    const NoMariage m = base->NouveauMariage();
    base->R_EPOUX.EcrireCellule(m, NoOrdre{7});
    base->R_TXTMAR.EcrireTexte(m, "ABT@Paris");
    CHECK(base->entete.PosSuiteMariages == Position{});
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Num4(169) != 0);
    CHECK(lgd.Num2De("EPOUX", 32001) == 7);
    CHECK(lgd.TexteDe("TXTMAR", 32001) == "ABT@Paris");
    Rouvrir();
    CHECK(base->R_EPOUX.LireCellule(m) == NoOrdre{7});
}

TEST_CASE_FIXTURE(Essai, "Index entries past 25600 get their overflow zone at the commit") {
    base->entete.NbIndex = 25600;
    const NoIndex e = base->R_INDEX.NouvelleEntree();
    base->R_INDEX.EcrireCelluleIndex(e, {Position{11}, 22, Position{33}});
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Num4(165) != 0);
    CHECK(lgd.Num4(lgd.Cellule("INDEX", 25601)) == 11);
    CHECK(lgd.Num2(lgd.Cellule("INDEX", 25601) + 4) == 22);
    Rouvrir();
    CHECK(base->R_INDEX.CelluleIndex(e) == CelluleMot{Position{11}, 22, Position{33}});
}

TEST_CASE_FIXTURE(Essai, "Enregistrer: without a change nothing is written") {
    REQUIRE(base->Enregistrer());
    const int operations = disque->operations;
    CHECK(base->Enregistrer());
    CHECK(base->Fermer());
    CHECK(disque->operations == operations);
}

TEST_CASE_FIXTURE(Essai, "Enregistrer: a changed field of the header survives") {
    REQUIRE(base->Enregistrer());
    base->entete.TypeTri = '2';
    base->entete.OptParticules = true;
    base->entete.DocBase = NoDocument{3};
    base->entete.SlotsIndividu[3] = {'%', '1'};
    base->marques.ModifBase = true;
    Rouvrir();
    CHECK(base->entete.TypeTri == '2');
    CHECK(base->entete.OptParticules);
    CHECK(base->entete.DocBase == NoDocument{3});
    CHECK(base->entete.SlotsIndividu[3] == Slot{'%', '1'});
}

TEST_CASE_FIXTURE(
    Essai,
    "Enregistrer: one edited person costs at most three flushes whatever the size of the base") {
    int operations[2] = {0, 0};
    const std::uint32_t tailles[2] = {10, 4000};
    for (int i = 0; i < 2; ++i) {
        while (base->entete.DernierIndividu < tailles[i])
            Creer("DURAND;Jean", "1850");
        base->R_TEXTE.EcrireTexte(NoOrdre{6}, "|DURAND");
        REQUIRE(base->Enregistrer());
        const int debut = disque->operations;
        const int vidages = disque->vidages;
        const NoOrdre n{5};
        base->R_NAISS.EcrireCellule(n, "1850");
        base->R_NOM.EcrireNom(n, "DURAND;Jean;;1/2");
        base->R_TEXTE.EcrireTexte(n, "|DURAND $Brest\r\nune note");
        REQUIRE(base->Enregistrer());
        operations[i] = disque->operations - debut;
        CHECK(disque->vidages - vidages == 3);
    }
    CHECK(operations[0] == operations[1]);
    CHECK(operations[0] <= 14);
}

TEST_CASE_FIXTURE(Essai, "Three bases are open at once") {
    auto deux = std::move(NouvelleBase(*disque, "deux.LGD", {}).base);
    auto trois = std::move(NouvelleBase(*disque, "trois.LGD", {}).base);
    int i = 0;
    for (Base* b : {base.get(), deux.get(), trois.get()}) {
        const NoOrdre n = b->NouvelIndividu();
        b->R_NOM.EcrireNom(n, "NOM" + std::to_string(++i));
        REQUIRE(b->Enregistrer());
    }
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "NOM1");
    CHECK(deux->R_NOM.NomDe(NoOrdre{1}) == "NOM2");
    CHECK(trois->R_NOM.NomDe(NoOrdre{1}) == "NOM3");
}

TEST_CASE_FIXTURE(Essai, "OuvrirBase: a base that is open already is refused") {
    REQUIRE(base->Enregistrer());
    CHECK(OuvrirBase(*disque, Chemin, muet).etat == Ouverture::Occupee);
    REQUIRE(base->Fermer());
    CHECK(OuvrirBase(*disque, Chemin, muet).etat == Ouverture::Faite);
}

TEST_CASE("OuvrirBase: a file without a version mark is refused and not touched") {
    DisqueMemoire disque;
    AvancementMuet muet;
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

TEST_CASE_FIXTURE(Essai, "NouvelleBase: a leftover journal is removed, never replayed") {
    REQUIRE(base->Fermer());
    base.reset();
    disque->Poser(CheminLog, NumVersChaine4(1) + std::string(1000, 'y'));
    base = std::move(NouvelleBase(*disque, Chemin, {}).base);
    CHECK_FALSE(disque->Existe(CheminLog));
    Creer("DURAND;Jean", "1850");
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

TEST_CASE_FIXTURE(Essai, "A base given up without a commit opens as the last commit") {
    Creer("DURAND;Jean", "1850");
    REQUIRE(base->Enregistrer());
    Creer("MARTIN;Paul", "1860");
    base->R_NOM.EcrireNom(NoOrdre{1}, "AUTRE");
    base.reset();
    Ouvrir();
    CHECK(base->entete.DernierIndividu == 1);
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "DURAND");
}

TEST_CASE_FIXTURE(
    Essai, "A refused write makes the commit answer false and the file stay the previous commit") {
    Creer("DURAND;Jean", "1850");
    REQUIRE(base->Enregistrer());
    Creer("MARTIN;Paul", "1860");
    disque->panne = Panne::Refus;
    disque->panneA = disque->operations + 4;
    CHECK_FALSE(base->Enregistrer());
    CHECK(base->EnDefaut());
    CHECK_FALSE(base->Enregistrer());
    base.reset();
    Ouvrir();
    CHECK(base->entete.NbTriIndividus == 1);
    CHECK(base->R_NOM.PrenomDe(NoOrdre{1}) == "Jean");
}

TEST_CASE("CheminJournal: the last three letters become LOG whatever they were") {
    CHECK(CheminJournal("x.lgd") == "x.LOG");
    CHECK(CheminJournal("a.b.LGD") == "a.b.LOG");
}

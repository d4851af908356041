#include "interchange/gedcom/LecteurFamille.h"

#include "interchange/EssaiImport.h"
#include "messages/Messages.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

namespace {

/// Persons 1 to 4: a man, a woman, a child born 1845, a child born 1840.
constexpr std::string_view Personnes =
    "0 @I1@ INDI\n1 NAME Jean /Dupont/\n1 SEX M\n0 @I2@ INDI\n1 NAME Marie /Martin/\n1 SEX F\n"
    "0 @I3@ INDI\n1 NAME Paul /Dupont/\n1 BIRT\n2 DATE 1845\n"
    "0 @I4@ INDI\n1 NAME Luc /Dupont/\n1 BIRT\n2 DATE 1840\n";

struct Famille : EssaiImport {
    void Lire(std::string_view lignes) { Importer(std::string{Personnes} + std::string{lignes}); }
    NoOrdre Pere(std::uint32_t n) { return base->R_PERE.LireCellule(NoOrdre{n}); }
    NoOrdre Mere(std::uint32_t n) { return base->R_MERE.LireCellule(NoOrdre{n}); }
    std::vector<NoOrdre> Enfants(std::uint32_t n) { return base->R_ENFANT.Elements(NoOrdre{n}); }
};

using Personnes_ = std::vector<NoOrdre>;
const NoOrdre Un{1}, Deux{2}, Trois{3}, Quatre{4};

}  // namespace

TEST_CASE_FIXTURE(Famille, "A family: a union, parents, and children by year of birth") {
    Lire(
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n1 MARR\n"
        "2 DATE 5 JUN 1838\n2 PLAC La Flèche\n"_1252);
    CHECK(base->entete.DernierMariage == 1);
    const NoMariage m{1};
    CHECK(base->R_EPOUX.LireCellule(m) == Un);
    CHECK(base->R_EPOUSE.LireCellule(m) == Deux);
    CHECK(base->R_DEBMAR.LireCellule(m) == "1838");
    CHECK(base->R_TXTMAR.LireTexte(m) == "5/6 @La.Flèche\r\n"_1252);
    CHECK(storage::LieuMariage(*base, m) == "La Flèche"_1252);
    CHECK(base->R_MARIAG.Elements(Un) == std::vector{m});
    CHECK(base->R_MARIAG.Elements(Deux) == std::vector{m});
    CHECK(Enfants(1) == Personnes_{Quatre, Trois});
    CHECK(Enfants(2) == Personnes_{Quatre, Trois});
    CHECK(Pere(3) == Un);
    CHECK(Mere(4) == Deux);
}

TEST_CASE_FIXTURE(
    Famille, "A family with a wife and children but no husband links them and makes no union") {
    Lire("0 @F1@ FAM\n1 WIFE @I2@\n1 CHIL @I3@\n");
    CHECK(Mere(3) == Deux);
    CHECK_FALSE(Pere(3));
    CHECK(Enfants(2) == Personnes_{Trois});
    CHECK(base->entete.DernierMariage == 0);
    CHECK(Constats(Constat::SansUnion) == 1);
}

TEST_CASE_FIXTURE(Famille, "A family: a child gets the parents that were named before it") {
    Lire("0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I3@\n1 WIFE @I2@\n");
    CHECK(Pere(3) == Un);
    CHECK_FALSE(Mere(3));
    CHECK(base->entete.DernierMariage == 1);
}

TEST_CASE_FIXTURE(Famille, "A family: two records with one parent each give the child both") {
    Lire("0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I3@\n0 @F2@ FAM\n1 WIFE @I2@\n1 CHIL @I3@\n");
    CHECK(Pere(3) == Un);
    CHECK(Mere(3) == Deux);
}

TEST_CASE_FIXTURE(Famille, "A family: a later record replaces the parents it names, lists follow") {
    Lire(
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n"
        "0 @F2@ FAM\n1 HUSB @I4@\n1 CHIL @I3@\n1 CHIL @I3@\n");
    CHECK(Pere(3) == Quatre);
    CHECK(Mere(3) == Deux);
    CHECK(Enfants(1).empty());
    CHECK(Enfants(4) == Personnes_{Trois});
    CHECK(Constats(Constat::Doublon) == 1);
}

TEST_CASE_FIXTURE(Famille, "A family corrects the sex of its partners") {
    Importer("0 @I1@ INDI\n1 SEX F\n0 @I2@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n");
    CHECK(base->R_SEXE.LireCellule(Un) == Sexe::Homme);
    CHECK(base->R_SEXE.LireCellule(Deux) == Sexe::Femme);
}

TEST_CASE_FIXTURE(Famille, "A family may stand in front of the persons it names") {
    Importer("0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 @I2@ INDI\n0 @I1@ INDI\n");
    CHECK(base->R_EPOUX.LireCellule(NoMariage{1}) == Deux);
    CHECK(base->R_EPOUSE.LireCellule(NoMariage{1}) == Un);
}

TEST_CASE_FIXTURE(Famille, "A family: references that lead nowhere are told by line") {
    Lire("0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I99@\n1 CHIL @I98@\n");
    CHECK(importation.rapport.Nombre(Constat::Reference, "FAM.WIFE @I99@") == 1);
    CHECK(importation.rapport.Nombre(Constat::Reference, "FAM.CHIL @I98@") == 1);
    CHECK(base->entete.DernierMariage == 0);
}

TEST_CASE_FIXTURE(Famille, "A family: events, ages and texts of the union") {
    Lire(
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR\n2 DATE 1845\n2 HUSB\n3 AGE 25y\n"
        "2 WIFE\n3 AGE 20y 3m\n2 TYPE civil\n1 NCHI 4\n1 MARC\n2 DATE 3 MAY 1844\n"
        "2 PLAC Notaire Lieu\n1 DIV\n2 DATE 1850\n1 RESI Bourg Neuf\n1 NOTE Note libre\n");
    CHECK(base->R_TXTMAR.LireTexte(NoMariage{1}) ==
          "\r\nMARC 3/5/1844 µNotaire.Lieu\r\nDIV 1850\r\n"
          "Mariage - Age de l'époux: 25 ans\r\nMariage - Age de l'épouse: 20 ans 3 mois\r\n"
          "Mariage - civil\r\nNombre d'enfants: 4\r\nRésidence: %Bourg.Neuf\r\nNote libre"_1252);
    CHECK(base->R_DEBMAR.LireCellule(NoMariage{1}) == "1845");
    const storage::TableSlots slots = storage::SlotsMariageDe(*base, NoMariage{1});
    REQUIRE(slots.size() == 2);
    CHECK(slots[0].lieu == "Notaire Lieu");
    CHECK(slots[1].annee == "1850");
}

TEST_CASE_FIXTURE(Famille, "A family cites a source: both partners take part in the event") {
    Lire("0 @S1@ SOUR\n1 TITL Acte\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 SOUR @S1@\n");
    REQUIRE(base->R_LSTEVT.NbElements(Un) == 1);
    CHECK(base->R_LSTEVT.TexteElement(Un, 1) == "HUSB");
    CHECK(base->R_LSTEVT.TexteElement(Deux, 1) == "WIFE");
    CHECK(base->R_EVT.Liens(NoEvenement{1}).size() == 2);
}

TEST_CASE_FIXTURE(Famille, "A family: nobody becomes a parent of himself") {
    Lire("0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I1@\n");
    CHECK_FALSE(Pere(1));
    CHECK(Mere(1) == Deux);
}

TEST_CASE_FIXTURE(Famille, "A family: each further event has a dated row") {
    for (const char* tag :
         {"MARB", "CENS", "MARC", "MARS", "MARL", "ENGA", "DIV", "DIVF", "ANUL"}) {
        CAPTURE(tag);
        Lire(std::string{"0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 "} + tag +
             "\n2 DATE 3 MAY 1844\n2 PLAC Dol\n");
        CHECK(base->R_TXTMAR.LireTexte(NoMariage{1})
                  .starts_with("\r\n" + std::string{tag} + " 3/5/1844 "));
        CHECK(storage::SlotsMariageDe(*base, NoMariage{1}).at(0) ==
              storage::ValeurSlot{"3/5", "1844", "Dol"});
        CHECK(base->entete.SlotsMariage[0].drapeau == '1');
    }
}

TEST_CASE_FIXTURE(Famille, "A family: the role of a source is that of both partners") {
    Lire(
        "0 @S1@ SOUR\n1 TITL Acte\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 SOUR Livre\n"
        "1 MARR oui\n2 SOUR @S1@\n3 ROLE (Témoin)\n3 DATA\n4 TEXT extrait\n"_1252);
    CHECK(base->R_LSTEVT.TexteElement(Un, 1) == "WITN");
    CHECK(base->R_LSTEVT.TexteElement(Deux, 1) == "WITN");
    const std::string source = session.Message(message::Source);
    CHECK(storage::NoteMariage(*base, NoMariage{1}) ==
          source + ": Livre\r\n" + session.Message(message::TagMARR) + " - oui\r\n" +
              session.Message(message::TagMARR) + " - " + source + ": extrait");
}

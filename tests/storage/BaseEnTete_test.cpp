// The fixed zone of the file: directories, overflow zones, header.
#include "storage/Base.h"
#include "storage/Essai.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

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
    base->R_LSTEVT.ModifierListe(NoOrdre{1}, e, storage::ActionListe::Ajouter, "CHIL");
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

namespace {

struct Bloc {
    const char* nom;
    unsigned taille;
};

/// The columns and tables in the order in which a commit writes them.
constexpr Bloc OrdreDesBlocs[] = {
    {"SEXE", 1000},   {"MERE", 2000},   {"PERE", 2000},   {"NAISS", 4000},  {"DECES", 4000},
    {"NOM", 4000},    {"TEXTE", 4000},  {"ENFANT", 4000}, {"MARIAG", 4000}, {"DEBMAR", 4000},
    {"FINMAR", 4000}, {"EPOUSE", 2000}, {"EPOUX", 2000},  {"TXTMAR", 4000}, {"TRI", 2000},
    {"INDEX", 4000},  {"IMAGE", 4000},  {"TRIDOC", 2000}, {"LSTIMG", 4000}, {"LIEN", 4000},
    {"EVT", 4000},    {"LSTEVT", 4000}, {"TRIEVT", 2000}};

/// Writes one cell into the same block of every column, the last flushed first.
void SalirTout(Base& b, std::uint32_t n) {
    const Position ici{n};
    b.R_LSTEVT.EcrireCellule(NoOrdre{n}, ici);
    b.R_LIEN.EcrireCellule(NoOrdre{n}, ici);
    b.R_LSTIMG.EcrireCellule(NoOrdre{n}, ici);
    b.R_TXTMAR.EcrireCellule(NoMariage{n}, ici);
    b.R_EPOUX.EcrireCellule(NoMariage{n}, NoOrdre{n});
    b.R_EPOUSE.EcrireCellule(NoMariage{n}, NoOrdre{n});
    b.R_FINMAR.EcrireCellule(NoMariage{n}, "1899");
    b.R_DEBMAR.EcrireCellule(NoMariage{n}, "1850");
    b.R_MARIAG.EcrireCellule(NoOrdre{n}, ici);
    b.R_ENFANT.EcrireCellule(NoOrdre{n}, ici);
    b.R_TEXTE.EcrireCellule(NoOrdre{n}, ici);
    b.R_NOM.EcrireCellule(NoOrdre{n}, ici);
    b.R_DECES.EcrireCellule(NoOrdre{n}, "1900");
    b.R_NAISS.EcrireCellule(NoOrdre{n}, "1830");
    b.R_PERE.EcrireCellule(NoOrdre{n}, NoOrdre{n});
    b.R_MERE.EcrireCellule(NoOrdre{n}, NoOrdre{n});
    b.R_SEXE.EcrireCellule(NoOrdre{n}, Sexe::Homme);
}

}  // namespace

TEST_CASE_FIXTURE(Essai, "A first commit lays the blocks behind each other in its fixed order") {
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_TRI.FixerRang(1, NoEvenement{1});
    base->R_EVT.EcrireCellule(NoEvenement{1}, Position{1});
    base->R_TRI.FixerRang(1, NoDocument{1});
    base->R_IMAGE.EcrireCellule(NoDocument{1}, Position{1});
    base->R_INDEX.EcrireCelluleIndex(NoIndex{1}, {Position{1}, 1, Position{1}});
    base->R_TRI.FixerRang(1, NoOrdre{1});
    SalirTout(*base, 1);
    base->entete.DernierIndividu = base->entete.NbTriIndividus = base->entete.DernierMariage = 1;
    base->entete.DernierEvenement = base->entete.NbTriEvenements = 1;
    base->entete.DernierDocument = base->entete.NbTriDocuments = base->entete.NbIndex = 1;
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    unsigned position = fin + 1;
    for (const Bloc& bloc : OrdreDesBlocs) {
        CAPTURE(std::string{bloc.nom});
        CHECK(lgd.Bloc(bloc.nom, 1) == position);
        CHECK(lgd.Bloc(bloc.nom, 2) == 0);
        position += bloc.taille;
    }
    CHECK(lgd.Num4(31) == position - 1);
    CHECK(lgd.Tout().size() == position - 1);
}

TEST_CASE_FIXTURE(Essai,
                  "Past 32000 every directory has its second half in its slice of the zone") {
    base->FixerDernierIndividu(32001);
    base->entete.DernierMariage = 32001;
    for (std::uint32_t rang = 1; rang <= 32001; ++rang)
        base->R_TRI.FixerRang(rang, NoOrdre{rang});
    base->entete.NbTriIndividus = 32001;
    SalirTout(*base, 32001);
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = 1});
    base->R_TRI.AjouterEvt(e);
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    for (const std::string nom :
         {"NOM", "TEXTE", "ENFANT", "MARIAG", "LSTIMG", "LIEN", "LSTEVT", "TXTMAR"}) {
        CAPTURE(nom);
        CHECK(lgd.Bloc(nom, 1) == 0);
        CHECK(lgd.Num4De(nom, 32001) == 32001);
    }
    for (const std::string nom : {"PERE", "MERE", "EPOUX", "EPOUSE"}) {
        CAPTURE(nom);
        CHECK(lgd.Bloc(nom, 1) == 0);
        CHECK(lgd.Num2De(nom, 32001) == 32001);
    }
    const std::pair<std::string, std::string> annees[] = {
        {"NAISS", "1830"}, {"DECES", "1900"}, {"DEBMAR", "1850"}, {"FINMAR", "1899"}};
    for (const auto& [nom, annee] : annees) {
        CAPTURE(nom);
        CHECK(lgd.Brut(lgd.Cellule(nom, 32001), 4) == annee);
    }
    CHECK(lgd.Brut(lgd.Cellule("SEXE", 32001), 1) == "H");
    CHECK(lgd.Num2De("TRI", 32001) == 32001);
    Rouvrir();
    CHECK(base->R_LSTEVT.LireCellule(NoOrdre{32001}) == Position{32001});
    CHECK(base->R_TXTMAR.LireCellule(NoMariage{32001}) == Position{32001});
    CHECK(base->R_LIEN.LireCellule(NoOrdre{32001}) == Position{32001});
    CHECK(base->R_TRI.IndividuAuRang(32001) == NoOrdre{32001});
}

TEST_CASE_FIXTURE(Essai, "A large index leaves the directories behind its own unharmed") {
    base->R_IMAGE.EcrireCellule(NoDocument{1}, Position{11});
    base->R_TRI.FixerRang(1, NoDocument{1});
    base->R_LSTIMG.EcrireCellule(NoOrdre{1}, Position{12});
    for (std::uint32_t e = 1; e <= 64000; e += 400)
        base->R_INDEX.EcrireCelluleIndex(NoIndex{e}, {Position{e}, 1, Position{1}});
    base->entete.NbIndex = 64000;
    base->entete.NbTriDocuments = 1;
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Num4De("IMAGE", 1) == 11);
    CHECK(lgd.Num2De("TRIDOC", 1) == 1);
    CHECK(lgd.Num4De("LSTIMG", 1) == 12);
    CHECK(lgd.Bloc("TXTMAR", 1) == 0);
    for (unsigned e = 1; e <= 64000; e += 400)
        CHECK(lgd.Num4(lgd.Cellule("INDEX", e)) == e);
    Rouvrir();
    for (std::uint32_t e = 1; e <= 64000; e += 400)
        CHECK(base->R_INDEX.CelluleIndex(NoIndex{e}).mot == Position{e});
}

#include "storage/EnTete.h"

#include "storage/BaseAncienne.h"
#include "storage/Essai.h"

using namespace dorvane;
using namespace dorvane::storage;

namespace {

const std::vector<std::pair<std::string, std::string>> Famille{{"ABEL;Luc", "1800"},
                                                               {"DURAND;Jean", "1850"}};
const std::vector<std::pair<char, std::string>> Types{
    {'|', "Nom"}, {'\\', "Profession"}, {'\xB0', "Bapteme"}, {'^', "Inhumation"}};

struct Ancien {
    explicit Ancien(std::string octets) : avant{std::move(octets)} {
        disque.Poser("vieux.lgd", avant);
        ResultatOuverture resultat = OuvrirBase(disque, "vieux.lgd", muet);
        REQUIRE(resultat.etat == Ouverture::Faite);
        base = std::move(resultat.base);
    }
    void VerifierFamille() const {
        CHECK(base->entete.NbTriIndividus == 2);
        CHECK(base->R_NOM.NomDe(base->R_TRI.IndividuAuRang(2)) == "DURAND");
        CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1800");
    }
    void VerifierInchangee() {
        CHECK(base->Fermer());
        CHECK(disque.operations == 0);
        CHECK(disque.Octets("vieux.lgd") == avant);
    }
    /// Changes one cell and commits: the file is of the current version from then on.
    void VerifierPassage() {
        base->R_NAISS.EcrireCellule(NoOrdre{1}, "1801");
        REQUIRE(base->Fermer());
        base.reset();
        const LecteurLgd lgd{disque.Octets("vieux.lgd")};
        CHECK(lgd.Brut(1, 30) == "[Dorvane Version 99.0]        ");
        CHECK(lgd.Brut(lgd.Cellule("NAISS", 1), 8) == "18011850");
        ResultatOuverture resultat = OuvrirBase(disque, "vieux.lgd", muet);
        REQUIRE(resultat.etat == Ouverture::Faite);
        base = std::move(resultat.base);
        CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "ABEL");
        CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1801");
    }
    ProgressionMuette muet;
    std::string avant;
    DisqueMemoire disque;
    std::unique_ptr<Base> base;
};

void VerifierSlotsRebatis(const EnTete& entete) {
    CHECK(entete.SlotsIndividu[0] == Slot{'\\', ' '});
    CHECK(entete.SlotsIndividu[1] == Slot{'\xB0', '1'});
    CHECK(entete.SlotsIndividu[2] == Slot{'^', '1'});
    CHECK(NbSlots(entete.SlotsIndividu) == 3);
    CHECK(NbSlots(entete.SlotsMariage) == 0);
}

}  // namespace

TEST_CASE(
    "Version 3.0: document counters, no events, slots rebuilt; unchanged when closed, upgraded by "
    "a change") {
    BaseAncienne b{"[Dorvane Version 3.0]"};
    b.Individus(Famille).MotsCles(Types).Num2(101, 4).Num2(103, 3).Poser(66, "  ");
    b.Num2(39, 77).Num4(50, 9999).Poser(108, "1");
    Ancien ancien{b.Finir()};
    ancien.VerifierFamille();
    CHECK(ancien.base->entete.DernierDocument == 4);
    CHECK(ancien.base->entete.NbTriDocuments == 3);
    CHECK(ancien.base->entete.DernierEvenement == 0);
    CHECK(ancien.base->entete.PosRepEvt == Position{});
    CHECK(ancien.base->entete.NbIndex == 0);
    CHECK_FALSE(ancien.base->entete.LibellesNeutres);
    VerifierSlotsRebatis(ancien.base->entete);
    CHECK(ancien.base->DefinitionIndividu().libelles[0] == "Profession");
    ancien.base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|ABEL\r\nProfession meunier\r\nnote");
    CHECK(SlotsDe(*ancien.base, NoOrdre{1})[0].lieu == "meunier");
    Ancien{b.Finir()}.VerifierInchangee();
    ancien.VerifierPassage();
    CHECK_FALSE(ancien.base->entete.LibellesNeutres);
}

TEST_CASE("Versions before 3.0: fonts, colours and flags are read, there are no documents") {
    BaseAncienne b{"[dorvane version 2.1]"};
    b.Individus(Famille).MotsCles(Types).Num2(39, 2).Num2(41, 1).Num2(48, 3).Num2(101, 4);
    std::string police = "Arial#12#1";
    police.resize(50, ' ');
    b.Num4(50, b.Ajouter(police)).Poser(68, "x1").Poser(70, "1").Num4(71, 0x00FF00).Num4(95, 7);
    b.Poser(99, "AB");
    Ancien ancien{b.Finir()};
    ancien.VerifierFamille();
    const EnTete& entete = ancien.base->entete;
    CHECK(entete.DernierDocument == 0);
    REQUIRE(entete.anciens.has_value());
    const AnciensReglages anciens = entete.anciens.value_or(AnciensReglages{});
    CHECK(anciens.personneEnCours == 2);
    CHECK(anciens.secondePersonne == 1);
    CHECK(anciens.typePresentation == 3);
    CHECK(anciens.polices[0].nom == "Arial");
    CHECK(anciens.polices[0].taille == "12");
    CHECK(anciens.polices[0].proportionnelle == "1");
    CHECK(anciens.polices[1].nom.empty());
    CHECK(anciens.drapeau68 == '1');
    CHECK(anciens.couleurs[0] == 0x00FF00);
    CHECK(anciens.couleurs[6] == 7);
    CHECK(anciens.drapeau100 == 'B');
    VerifierSlotsRebatis(entete);
    ancien.VerifierPassage();
    CHECK_FALSE(ancien.base->entete.anciens.has_value());
}

TEST_CASE("Version 97.0: events and neutral labels are read, slots rebuilt") {
    BaseAncienne b{"[Dorvane Version 97.0]"};
    b.Individus(Famille).MotsCles(Types).Num2(39, 1).Num2(41, 1).Poser(108, "1");
    b.Poser(109, "%1%1%1");
    const unsigned tete = b.Ajouter(BaseAncienne::Nombre(1000050, 4) + std::string(16, '\0'));
    b.Num4(50, b.Ajouter(std::string(128, '\0'))).Num4(54, b.Ajouter(std::string(128, '\0')));
    b.Num4(58, b.Ajouter(std::string(128, '\0')));
    std::string octets = b.Finir();
    const LecteurLgd lgd{octets};
    b.Colonne(lgd.Num4(50), 4, '\0', {BaseAncienne::Nombre(tete, 4)});
    std::string tri = BaseAncienne::Nombre(1, 2);
    tri.resize(2000, ' ');
    b.Num4(lgd.Num4(54), b.Ajouter(tri));
    Ancien ancien{b.Finir()};
    ancien.VerifierFamille();
    CHECK(ancien.base->entete.LibellesNeutres);
    CHECK(ancien.base->R_EVT.CleDateEvt(ancien.base->R_TRI.EvtAuRang(1)) == 50);
    VerifierSlotsRebatis(ancien.base->entete);
    Ancien{b.Finir()}.VerifierInchangee();
    ancien.VerifierPassage();
    CHECK(ancien.base->R_EVT.CleDateEvt(NoEvenement{1}) == 50);
}

TEST_CASE("Version 97.2: slots and document of the base are read") {
    for (const char* marque : {"[Dorvane Version 97.2]", "[Dorvane Version 97.2a]"}) {
        CAPTURE(marque);
        BaseAncienne b{marque};
        b.Individus(Famille).MotsCles(Types).Poser(108, "1").Poser(109, std::string(40, ' '));
        b.Poser(109, "^1").Poser(129, "\\ ").Poser(149, "1").Num2(150, 12);
        Ancien ancien{b.Finir()};
        ancien.VerifierFamille();
        CHECK(ancien.base->entete.SlotsIndividu[0] == Slot{'^', '1'});
        CHECK(NbSlots(ancien.base->entete.SlotsIndividu) == 1);
        CHECK(ancien.base->entete.SlotsMariage[0] == Slot{'\\', ' '});
        CHECK(ancien.base->entete.DocBase == NoDocument{12});
        ancien.VerifierPassage();
        CHECK(ancien.base->entete.DocBase == NoDocument{12});
    }
}

TEST_CASE("DocBase is read only when its flag is 1, flags other than 1 are 0") {
    BaseAncienne b{"[Dorvane Version 99.0]"};
    b.Individus(Famille).Poser(105, " 1x ").Num2(150, 12);
    const Ancien ancien{b.Finir()};
    CHECK(ancien.base->entete.DocBase == NoDocument{});
    CHECK_FALSE(ancien.base->entete.OptPrenomUnique);
    CHECK(ancien.base->entete.OptParticules);
    CHECK_FALSE(ancien.base->entete.OptOrigine97);
    CHECK_FALSE(ancien.base->entete.LibellesNeutres);
}

TEST_CASE("NbIndex of two blanks is 0 without an index, 8224 with one") {
    BaseAncienne b{"[Dorvane Version 99.0]"};
    b.Individus(Famille).Poser(66, "  ");
    CHECK(Ancien{b.Finir()}.base->entete.NbIndex == 0);
    b.Num4(2193, b.Ajouter(std::string(4000, '\0')));
    CHECK(Ancien{b.Finir()}.base->entete.NbIndex == 8224);
    BaseAncienne vieille{"[Dorvane Version 3.1]"};
    vieille.Individus(Famille).Poser(66, "  ");
    vieille.Num4(2193, vieille.Ajouter(std::string(4000, '\0')));
    CHECK(Ancien{vieille.Finir()}.base->entete.NbIndex == 0);
}

TEST_CASE("A header survives its own writing, and reserved bytes are 0") {
    EnTete entete;
    entete.NbTriIndividus = 1;
    entete.DernierIndividu = 32001;
    entete.DernierMariage = 32001;
    entete.NbIndex = 25601;
    entete.PosSuiteIndividus = Position{0x01020304};
    entete.PosSuiteIndex = Position{5};
    entete.PosSuiteMariages = Position{6};
    entete.SlotsIndividu[9] = {'x', '1'};
    const std::string octets = ComposerEnTete(entete, 77777);
    REQUIRE(octets.size() == 200);
    CHECK(octets.substr(61, 4) == std::string(4, '\0'));
    CHECK(octets.substr(67, 33) == std::string(33, '\0'));
    CHECK(octets.substr(151, 9) == std::string(9, '\0'));
    CHECK(octets.substr(172, 28) == std::string(28, '\0'));
    const EnTete lu = DecoderEnTete(octets, Position{1});
    CHECK(lu.FinFichier == 77777);
    CHECK(lu.PosSuiteIndividus == Position{0x01020304});
    CHECK(lu.PosSuiteIndex == Position{5});
    CHECK(lu.PosSuiteMariages == Position{6});
    CHECK(lu.SlotsIndividu == entete.SlotsIndividu);
}

TEST_CASE("ComposerEnTete: every field stands at its position") {
    EnTete entete;
    entete.NbTriIndividus = 0x1112;
    entete.DernierIndividu = 0x1314;
    entete.DernierEvenement = 0x1516;
    entete.NbTriEvenements = 0x1718;
    entete.DernierMariage = 0x191A;
    entete.TypeTri = TypeTri::Nom;
    entete.NbMotsCles = 12;
    entete.TypePresentation = 0x1B1C;
    entete.PosRepEvt = Position{0x21222324};
    entete.PosRepTriEvt = Position{0x25262728};
    entete.PosRepLstEvt = Position{0x292A2B2C};
    entete.NbIndex = 0x3132;
    entete.DernierDocument = 0x3334;
    entete.NbTriDocuments = 0x3536;
    entete.OptPrenomUnique = true;
    entete.OptOrigine97 = true;
    entete.LibellesNeutres = false;
    entete.DocBase = NoDocument{0x3738};
    const LecteurLgd lgd{ComposerEnTete(entete, 0x41424344)};
    CHECK(lgd.Num4(31) == 0x41424344);
    CHECK(lgd.Num2(35) == 0x1112);
    CHECK(lgd.Num2(37) == 0x1314);
    CHECK(lgd.Num2(39) == 0x1516);
    CHECK(lgd.Num2(41) == 0x1718);
    CHECK(lgd.Num2(43) == 0x191A);
    CHECK(lgd.Octet(45) == '2');
    CHECK(lgd.Num2(46) == 12);
    CHECK(lgd.Num2(48) == 0x1B1C);
    CHECK(lgd.Num4(50) == 0x21222324);
    CHECK(lgd.Num4(54) == 0x25262728);
    CHECK(lgd.Num4(58) == 0x292A2B2C);
    CHECK(lgd.Num2(66) == 0x3132);
    CHECK(lgd.Num2(101) == 0x3334);
    CHECK(lgd.Num2(103) == 0x3536);
    CHECK(lgd.Brut(105, 4) == "1010");
    CHECK(lgd.Octet(149) == '1');
    CHECK(lgd.Num2(150) == 0x3738);
    // The presentation is written for older programs and not read back.
    CHECK(DecoderEnTete(lgd.Tout(), {}).TypePresentation == 0);
}

TEST_CASE("PorteMarque: the mark in any case, whole, with a number") {
    CHECK(PorteMarque("[dorvane version 3.0]         "));
    CHECK_FALSE(PorteMarque("[Dorvane Version ]            "));
    CHECK_FALSE(PorteMarque("[Dorvane Version 99.0         "));
    CHECK_FALSE(PorteMarque("[Autre Version 99.0]          "));
    CHECK_FALSE(PorteMarque(""));
}

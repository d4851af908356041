#include "records/Liens.h"

#include "messages/Messages.h"
#include "records/EssaiFamille.h"
#include "records/Individus.h"
#include "shell/Libelles.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Dits = std::vector<std::string>;
using Rangees = std::vector<LienAffiche>;

struct Famille : EssaiFamille {
    NoOrdre paul = Creer(Sexe::Homme, "Noir", "Paul", "1820");
    NoOrdre anne = Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    NoOrdre luc = Creer(Sexe::Homme, "Noir", "Luc", "1850");
};

}  // namespace

TEST_CASE_FIXTURE(Famille, "AjouterLien: the same label stands on both sides") {
    CHECK(AjouterLien(session, paul, anne, " voisin "));
    CHECK(ListerLiens(session, paul) == Rangees{{1, anne, "voisin"}});
    CHECK(ListerLiens(session, anne) == Rangees{{1, paul, "voisin"}});
    CHECK(base.marques.AffichagePerime);
}

TEST_CASE_FIXTURE(
    Famille, "AjouterLien: a known word is stored as its tag and shown in the language in use") {
    const std::string parrain = session.Message(message::TagGODF);
    REQUIRE(!parrain.empty());
    const std::string tag = shell::TagDeLibelle(session.catalogue, parrain);
    REQUIRE(tag != parrain);
    CHECK(AjouterLien(session, paul, luc, parrain));
    CHECK(base.R_LIEN.TexteElement(paul, 1) == tag);
    CHECK(ListerLiens(session, luc) == Rangees{{1, paul, parrain}});
}

TEST_CASE_FIXTURE(
    Famille, "AjouterLien: oneself, nobody, no label, a long one and the same link are refused") {
    CHECK(AjouterLien(session, paul, anne, "voisin"));
    base.marques.ModifBase = false;
    CHECK_FALSE(AjouterLien(session, paul, paul, "voisin"));
    CHECK_FALSE(AjouterLien(session, paul, NoOrdre{9}, "voisin"));
    CHECK_FALSE(AjouterLien(session, paul, luc, "  "));
    CHECK_FALSE(AjouterLien(session, paul, luc, std::string(50, 'x')));
    CHECK_FALSE(AjouterLien(session, anne, paul, "voisin"));
    CHECK(Dit() == Dits{"LienAvecSoiMeme(Paul Noir)", "PersonneAbsenteDeLaBase", "LibelleLienVide",
                        "LibelleLienTropLong", "InfoDejaLies(Anne Blanc, Paul Noir)"});
    CHECK_FALSE(base.marques.ModifBase);
    CHECK(AjouterLien(session, paul, luc, std::string(49, 'x')));
    CHECK(AjouterLien(session, paul, anne, "ami"));
    CHECK(ListerLiens(session, paul).size() == 3);
}

TEST_CASE_FIXTURE(Famille, "AjouterLien: a '#' does not cut the label") {
    CHECK(AjouterLien(session, paul, anne, "n#1"));
    CHECK(ListerLiens(session, anne) == Rangees{{1, paul, "n-1"}});
    CHECK_FALSE(AjouterLien(session, paul, anne, "n#1"));
    CHECK(Dit() == Dits{"InfoDejaLies(Paul Noir, Anne Blanc)"});
}

TEST_CASE_FIXTURE(Famille, "AjouterLien: the side that an old base lacks is added") {
    base.R_LIEN.ModifierListe(paul, anne, storage::ActionListe::Ajouter, "voisin");
    CHECK(AjouterLien(session, paul, anne, "voisin"));
    CHECK(ListerLiens(session, paul).size() == 1);
    CHECK(ListerLiens(session, anne).size() == 1);
}

TEST_CASE_FIXTURE(Famille, "A 201st link, on either side, changes nothing") {
    for (int i = 0; i < 200; ++i) {
        const std::string libelle = "lien " + std::to_string(i);
        Lier(paul, luc, libelle);
        Lier(luc, paul, libelle);
    }
    base.marques.ModifBase = false;
    CHECK_FALSE(AjouterLien(session, paul, anne, "voisin"));
    CHECK_FALSE(AjouterLien(session, anne, paul, "voisin"));
    CHECK(Dit() ==
          Dits{"MaximumLiensPersonneAtteint(Paul Noir)", "MaximumLiensPersonneAtteint(Paul Noir)"});
    CHECK(ListerLiens(session, anne).empty());
    CHECK_FALSE(base.marques.ModifBase);
}

TEST_CASE_FIXTURE(Famille,
                  "ListerLiens: an entry that is there already is left out, the ranks stay") {
    for (const char* libelle : {"ami", "ami", "voisin"})
        base.R_LIEN.ModifierListe(paul, anne, storage::ActionListe::Ajouter, libelle);
    CHECK(ListerLiens(session, paul) == Rangees{{1, anne, "ami"}, {3, anne, "voisin"}});
    base.R_LIEN.EcrireListe(paul, "");
}

TEST_CASE_FIXTURE(Famille, "ListerLiens: a person who was deleted is left out, the ranks stay") {
    // Only one side of the link is known, as in an old base: nothing holds the other person.
    base.R_LIEN.ModifierListe(paul, anne, storage::ActionListe::Ajouter, "ami");
    base.R_LIEN.ModifierListe(paul, luc, storage::ActionListe::Ajouter, "voisin");
    dialogue.pendant = nullptr;
    Repondre({Oui});
    REQUIRE(SupprimerIndividu(session, anne));
    CHECK(ListerLiens(session, paul) == Rangees{{2, luc, "voisin"}});
    base.R_LIEN.EcrireListe(paul, "");
}

TEST_CASE_FIXTURE(Famille, "PeutLier: two persons who are there, not one") {
    CHECK(PeutLier(session, paul, anne));
    CHECK_FALSE(PeutLier(session, paul, paul));
    CHECK_FALSE(PeutLier(session, NoOrdre{9}, anne));
    CHECK(Dit() == Dits{"LienAvecSoiMeme(Paul Noir)", "PersonneAbsenteDeLaBase"});
}

TEST_CASE_FIXTURE(Famille,
                  "ChangerLien: for this side only; the far side then outlives a removal") {
    CHECK(AjouterLien(session, paul, anne, "voisin"));
    CHECK_FALSE(ChangerLien(session, paul, 1, "voisin"));
    CHECK(ChangerLien(session, paul, 1, "ami"));
    CHECK(ListerLiens(session, paul) == Rangees{{1, anne, "ami"}});
    CHECK(ListerLiens(session, anne) == Rangees{{1, paul, "voisin"}});
    CHECK(Dit().empty());
    dialogue.pendant = nullptr;  // the sides differ from here on
    Repondre({Oui});
    CHECK(RetirerLien(session, paul, 1));
    CHECK(Dit() == Dits{"ConfirmerSupprimerLien(ami, Anne Blanc)+ConfirmerSuppression"});
    CHECK(ListerLiens(session, paul).empty());
    CHECK(ListerLiens(session, anne) == Rangees{{1, paul, "voisin"}});
    base.R_LIEN.EcrireListe(anne, "");
}

TEST_CASE_FIXTURE(Famille,
                  "ChangerLien: no label, one that is there, and no such entry are refused") {
    CHECK(AjouterLien(session, paul, anne, "voisin"));
    CHECK(AjouterLien(session, paul, anne, "ami"));
    CHECK_FALSE(ChangerLien(session, paul, 1, ""));
    CHECK_FALSE(ChangerLien(session, paul, 1, "ami"));
    CHECK_FALSE(ChangerLien(session, paul, 3, "oncle"));
    CHECK_FALSE(ChangerLien(session, paul, 0, "oncle"));
    CHECK(Dit() == Dits{"LibelleLienVide", "InfoDejaLies(Paul Noir, Anne Blanc)"});
    CHECK(ListerLiens(session, paul) == Rangees{{1, anne, "voisin"}, {2, anne, "ami"}});
}

TEST_CASE_FIXTURE(Famille, "RetirerLien: both entries go after a yes, none after a no") {
    CHECK(AjouterLien(session, paul, anne, "voisin"));
    CHECK(AjouterLien(session, paul, anne, "ami"));
    Repondre({Non});
    CHECK_FALSE(RetirerLien(session, anne, 1));
    CHECK(ListerLiens(session, anne).size() == 2);
    Repondre({Oui});
    CHECK(RetirerLien(session, anne, 1));
    CHECK(ListerLiens(session, paul) == Rangees{{1, anne, "ami"}});
    CHECK(ListerLiens(session, anne) == Rangees{{1, paul, "ami"}});
    CHECK_FALSE(RetirerLien(session, anne, 2));
    CHECK(Dit() == Dits{"ConfirmerSupprimerLien(voisin, Paul Noir)+ConfirmerSuppression",
                        "ConfirmerSupprimerLien(voisin, Paul Noir)+ConfirmerSuppression"});
}

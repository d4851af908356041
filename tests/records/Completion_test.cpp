#include "records/Completion.h"

#include "doublures/FicheEssai.h"
#include "records/Individus.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Mots = std::vector<std::string>;

struct Lexique : doublures::FicheEssai {
    Lexique() {
        Inscrire("de La Tour", "Élie"_1252, "Saint-Malo");
        Inscrire("Delatour", "Élise Marie"_1252, "Brest");
        Inscrire("Dupont", "Jean", "saint malo");
        Inscrire("Éluard"_1252, "Jean", "");
    }
    NoOrdre Inscrire(std::string_view nom, std::string_view prenom, std::string_view lieu) {
        SaisieFiche fiche;
        fiche.nom = nom;
        fiche.prenom = prenom;
        fiche.anneeNaissance = "1850";
        fiche.lieuNaissance = lieu;
        return CreerIndividu(session, fiche).individu;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Lexique,
                  "Completion: words come whatever the case and accents, as they are written") {
    Completion noms{session, mots::Noms};
    CHECK(noms.Chercher("de", 9) == Mots{"de La Tour", "Delatour"});
    CHECK(noms.Chercher("DÉ"_1252, 9).size() == 2);
    CHECK(noms.Chercher("elu", 9) == Mots{std::string{"Éluard"_1252}});
    CHECK(noms.Chercher("zz", 9).empty());
    Completion prenoms{session, mots::Prenoms};
    CHECK(prenoms.Chercher("él"_1252, 9) ==
          Mots{std::string{"Élie"_1252}, std::string{"Élise Marie"_1252}});
    CHECK(prenoms.Chercher("elise m", 9).size() == 1);
}

TEST_CASE_FIXTURE(Lexique,
                  "Completion: a word that two persons write differently is proposed once") {
    Completion lieux{session, mots::Lieux};
    CHECK(lieux.Chercher("sai", 9) == Mots{"Saint-Malo"});
}

TEST_CASE_FIXTURE(Lexique, "Completion: nothing typed proposes nothing, unless all are asked for") {
    Completion noms{session, mots::Noms};
    CHECK(noms.Chercher("", 9).empty());
    CHECK(noms.Chercher("  ", 9).empty());
    CHECK(noms.Chercher("", 9, true).size() == 4);
    CHECK(noms.Chercher("", 2, true) == Mots{"de La Tour", "Delatour"});
}

TEST_CASE_FIXTURE(Lexique, "Completion: what was added since is proposed") {
    Completion noms{session, mots::Noms};
    CHECK(noms.Chercher("dur", 9).empty());
    Inscrire("Durand", "Paul", "");
    CHECK(noms.Chercher("dur", 9) == Mots{"Durand"});
}

TEST_CASE_FIXTURE(Lexique, "Completion: the place of a union is found through its partners") {
    const NoMariage m = F().Marier(NoOrdre{1}, NoOrdre{2});
    EcrireTexteMariage(session, m, "@La.Rochelle");
    Completion lieux{session, mots::Lieux};
    CHECK(lieux.Chercher("la r", 9) == Mots{"La Rochelle"});
}

TEST_CASE_FIXTURE(Lexique,
                  "Completion: particles that the index has moved come back in their place") {
    B().entete.OptParticules = true;
    Inscrire("du Bois", "Luc", "");
    Completion noms{session, mots::Noms};
    CHECK(noms.Chercher("bois", 9) == Mots{"du Bois"});
}

TEST_CASE_FIXTURE(Lexique, "Completion: no base, no words") {
    Completion noms{session, mots::Noms};
    REQUIRE(shell::Clore(session));
    CHECK(noms.Chercher("d", 9).empty());
}

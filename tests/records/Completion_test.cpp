#include "records/Completion.h"

#include "doublures/FicheEssai.h"
#include "records/Individus.h"
#include "shell/Communes.h"
#include "storage/BaseCommunes.h"
#include "values/Texte1252.h"

#include <array>

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
    /// The communes of the settings, by name, commune that they belong to, and precision.
    void Communes(const std::vector<std::array<const char*, 3>>& lignes) {
        std::vector<storage::Commune> communes;
        for (const auto& [nom, rattachement, precision] : lignes) {
            communes.emplace_back();
            communes.back().nom = Utf8VersTexte(nom).octets;
            communes.back().rattachement = Utf8VersTexte(rattachement).octets;
            communes.back().precision = Utf8VersTexte(precision).octets;
        }
        Poser(communes);
    }
    void Poser(const std::vector<storage::Commune>& communes) {
        storage::ProgressionMuette muet;
        std::string octets;
        REQUIRE(storage::ComposerLgx(communes, muet, octets));
        session.parametres.generaux.fichierCommunes = dossier / "Pays.lgx";
        REQUIRE(shell::EcrireTout(dossier / "Pays.lgx", octets));
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

TEST_CASE_FIXTURE(Lexique, "Completion: communes come behind the places of the base") {
    Communes({{"Sai", "", ""}, {"Saint-Aubin", "", "Loir-et-Cher"}, {"Blois", "", ""}});
    Completion lieux{session, mots::Lieux};
    CHECK(lieux.Chercher("SAI", 9) == Mots{"Saint-Malo", "Sai", "Saint-Aubin, Loir-et-Cher"});
    CHECK(lieux.Chercher("sai", 2) == Mots{"Saint-Malo", "Sai"});
    CHECK(lieux.Chercher("sai", 1) == Mots{"Saint-Malo"});
}

TEST_CASE_FIXTURE(Lexique, "Completion: a commune that the base writes as a place comes once") {
    Communes({{"SAINT MALO", "", ""}, {"Brest", "", "Finistère"}, {"Brest", "", "Finistere"}});
    Completion lieux{session, mots::Lieux};
    CHECK(lieux.Chercher("saint", 9) == Mots{"Saint-Malo"});
    CHECK(lieux.Chercher("bre", 9) == Mots{"Brest", std::string{"Brest, Finistère"_1252}});
}

TEST_CASE_FIXTURE(Lexique, "Completion: behind a comma the rest of a place tells homonyms apart") {
    Communes({{"Mer", "", "Loir-et-Cher"}, {"Mer", "Suèvres", "Eure"}, {"Merey", "", "Loiret"}});
    Completion lieux{session, mots::Lieux};
    CHECK(lieux.Chercher("mer, l", 9) == Mots{"Mer, Loir-et-Cher"});
    CHECK(lieux.Chercher("Mer, suevres, E", 9) == Mots{std::string{"Mer, Suèvres, Eure"_1252}});
    CHECK(lieux.Chercher("mer, zz", 9).empty());
    CHECK(lieux.Chercher(", l", 9).empty());
    CHECK(lieux.Chercher(",", 9).empty());
}

TEST_CASE_FIXTURE(Lexique, "Completion: communes are proposed for places alone, and once typed") {
    Communes({{"Dupontville", "", ""}, {"Élisville", "", ""}});
    CHECK(Completion{session, mots::Noms}.Chercher("dup", 9) == Mots{"Dupont"});
    CHECK(Completion{session, mots::Prenoms}.Chercher("elis", 9).size() == 1);
    CHECK(Completion{session, mots::Lieux}.Chercher("", 9).empty());
    CHECK(Completion{session, mots::Lieux}.Chercher("", 9, true) == Mots{"Brest", "Saint-Malo"});
    CHECK(Completion{session, std::string{"&"}.append(mots::Lieux)}.Chercher("dup", 9) ==
          Mots{"Dupontville"});
}

TEST_CASE_FIXTURE(Lexique, "Completion: without a file of communes the base alone answers") {
    session.parametres.generaux.fichierCommunes = dossier / "absent.lgx";
    CHECK(Completion{session, mots::Lieux}.Chercher("b", 9) == Mots{"Brest"});
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Lexique, "Completion: a whole country of communes answers while one types") {
    std::vector<storage::Commune> pays(40000);
    for (std::size_t i = 0; i < pays.size(); ++i)
        pays[i].nom = "Saint-" + std::to_string(i % 36000) + "-sur-Loire";
    Poser(pays);
    Completion lieux{session, mots::Lieux};
    CHECK(lieux.Chercher("s", 12).size() == 12);
    for (int i = 0; i < 100; ++i)
        CHECK(lieux.Chercher("saint " + std::to_string(100 + i), 12).size() == 12);
}

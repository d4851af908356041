#include "records/RolesProposes.h"

#include "records/EssaiFamille.h"
#include "records/FicheEvenement.h"

#include <vector>

using namespace dorvane;
using namespace dorvane::records;

namespace {

/// A kind of event with three roles, of which the second is compulsory.
struct Bal : EssaiFamille {
    Bal() {
        for (const char* role : {"S Voisin", "M Hote", "S Conteur"})
            session.parametres.magasin.Ecrire("Evénements\\Bal", role, "1");
        saisie.type = "Bal";
    }
    /// The label that is proposed; "-" for none.
    std::string Propose() {
        const auto rang = ProchainRole(session, saisie);
        return rang ? RolesDe(session, saisie)[*rang].label : "-";
    }
    void Tenir(const char* role) {
        saisie.liens.push_back({Creer(Sexe::Homme, "A", "A", "1800"), role});
    }

    SaisieEvenement saisie;
};

const std::vector<TagOffert> Offerts{{"Bapt\xEAme", "CHR"}, {"bapteme", "AUTRE"}, {"Bal", "Bal"}};

}  // namespace

TEST_CASE_FIXTURE(
    Bal,
    "ProchainRole: the first compulsory one, then the first that nobody has, then the "
    "last") {
    CHECK(Propose() == "Hote");
    Tenir("Hote");
    CHECK(Propose() == "Voisin");
    Tenir("Voisin");
    CHECK(Propose() == "Conteur");
    Tenir("Conteur");
    CHECK(Propose() == "Conteur");
}

TEST_CASE_FIXTURE(Bal, "ProchainRole: a role that the kind does not know stands behind, held") {
    Tenir("Chanteur");
    CHECK(Propose() == "Hote");
    for (const char* role : {"Voisin", "Hote", "Conteur"})
        Tenir(role);
    CHECK(Propose() == "Chanteur");
}

TEST_CASE_FIXTURE(EssaiFamille, "ProchainRole: an event without roles proposes none") {
    SaisieEvenement saisie;
    saisie.type = "Orage";
    CHECK_FALSE(ProchainRole(session, saisie).has_value());
}

TEST_CASE_FIXTURE(EssaiFamille, "TagSaisi: an entry whatever its case and accents, the first one") {
    CHECK(TagSaisi(session, Offerts, " BAPTEME ") == "CHR");
    CHECK(TagSaisi(session, Offerts, "bal") == "Bal");
}

TEST_CASE_FIXTURE(EssaiFamille, "TagSaisi: else the user's own word, without blanks around it") {
    CHECK(TagSaisi(session, Offerts, " Ch\xE2teau ") == "Ch\xE2teau");
    CHECK(TagSaisi(session, Offerts, "").empty());
}

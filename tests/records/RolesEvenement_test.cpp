#include "records/EssaiFamille.h"
#include "records/FicheEvenement.h"

#include <optional>
#include <string>
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
        const std::vector<shell::RoleEvenement> roles = RolesDe(session, saisie);
        const std::optional<std::size_t> rang = ProchainRole(saisie, roles);
        return rang ? roles[*rang].label : "-";
    }
    void Tenir(const char* role) {
        saisie.liens.push_back({Creer(Sexe::Homme, "A", "A", "1800"), role});
    }

    SaisieEvenement saisie;
};

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
    CHECK_FALSE(ProchainRole(saisie, RolesDe(session, saisie)).has_value());
}

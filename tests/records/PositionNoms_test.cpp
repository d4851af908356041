#include "records/PositionNoms.h"

#include "records/EssaiFamille.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

struct Famille : EssaiFamille {
    explicit Famille(TypeTri tri = TypeTri::Nom) : EssaiFamille{tri} {
        Creer(Sexe::Homme, "Durand", "Jean", "1850");
        Creer(Sexe::Homme, "Évrard"_1252, "Luc", "1820");
        Creer(Sexe::Homme, "de La Tour", "Anne", "950");
        Creer(Sexe::Homme, "Zola", "Max", "");
        for (const std::uint16_t n : base.R_TRI.individus.Numeros())
            ordre.emplace_back(n);
    }
    /// The number of the person found.
    [[nodiscard]] std::uint32_t A(std::string_view texte) {
        return ordre[Place(ordre.size(), texte)].valeur;
    }
    [[nodiscard]] std::size_t Place(std::size_t nombre, std::string_view texte) {
        return PositionDans(
            base, nombre, [this](std::size_t i) { return ordre.at(i); }, texte);
    }
    std::vector<NoOrdre> ordre;
};

struct ParNaissance : Famille {
    ParNaissance() : Famille{TypeTri::Naissance} {}
};

struct ParCreation : Famille {
    ParCreation() : Famille{TypeTri::Creation} {}
};

}  // namespace

TEST_CASE_FIXTURE(Famille, "By names the first person at or after the text is found, folded") {
    CHECK(A("évr"_1252) == 2);
    CHECK(A("E") == 2);
    CHECK(A("Durand Jean") == 1);
    CHECK(A("Durand Jeanne") == 2);
    CHECK(A("de la tour") == 3);
    CHECK(A(" dur ") == 1);
    CHECK(A("") == ordre[0].valeur);
    CHECK(A("A") == ordre[0].valeur);
    CHECK(A("Zz") == 4);
}

TEST_CASE_FIXTURE(ParNaissance, "By years of birth the text is a year") {
    CHECK(ordre == std::vector{NoOrdre{4}, NoOrdre{3}, NoOrdre{2}, NoOrdre{1}});
    CHECK(A("1820") == 2);
    CHECK(A("1821") == 1);
    CHECK(A("950") == 3);
    CHECK(A("951") == 2);
    CHECK(A("2000") == 1);
    CHECK(A("-50") == 4);
}

TEST_CASE_FIXTURE(ParCreation,
                  "By creation there is no key, and no base gives no answer past its persons") {
    CHECK(A("Zola") == 1);
    CHECK(Place(0, "Zola") == 0);
}

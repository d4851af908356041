#include "storage/TableTri.h"

#include "storage/Essai.h"

#include <random>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

using Suite = std::vector<std::uint16_t>;

struct Rangee : Essai {
    Rangee() { REQUIRE(base->Enregistrer()); }
    /// What a program reads that opens the table as it stands in the file.
    [[nodiscard]] Suite Relire(std::uint32_t nombre) {
        TableTri autre{base->volume, 64};
        autre.repertoire = table.repertoire;
        autre.Charger(nombre);
        return autre.Numeros();
    }
    TableTri table{base->volume, 64};
};

Suite Numeros(std::uint16_t nombre) {
    Suite suite;
    for (std::uint16_t i = 1; i <= nombre; ++i)
        suite.push_back(i);
    return suite;
}

}  // namespace

TEST_CASE_FIXTURE(Rangee, "TableTri: ranks count from 1, and there is none outside") {
    table.Remplacer({7, 8, 9});
    CHECK(table.AuRang(1) == 7);
    CHECK(table.AuRang(3) == 9);
    CHECK(table.AuRang(0) == 0);
    CHECK(table.AuRang(4) == 0);
    table.Inserer(5, 1);
    table.Inserer(0, 1);
    table.Retirer(0);
    table.Retirer(4);
    CHECK(table.Numeros() == Suite{7, 8, 9});
    table.Inserer(4, 10);
    table.Fixer(1, 6);
    table.Retirer(2);
    CHECK(table.Numeros() == Suite{6, 9, 10});
}

TEST_CASE_FIXTURE(Rangee, "TableTri: blocks of 1000 entries, the last padded with blanks") {
    table.Remplacer(Numeros(1001));
    const std::uint32_t fin = base->volume.FinFichier();
    table.Vider(1001);
    CHECK(base->volume.FinFichier() == fin + 4000);
    CHECK(table.repertoire.PositionBloc(1) == Position{fin + 1});
    CHECK(table.repertoire.PositionBloc(2) == Position{fin + 2001});
    CHECK(table.repertoire.PositionBloc(3) == Position{});
    std::string bloc(2000, '\0');
    base->volume.LireBloc(Position{fin + 2001}, bloc);
    CHECK(bloc == "\x03\xE9" + std::string(1998, ' '));
    CHECK(Relire(1001) == Numeros(1001));
}

TEST_CASE_FIXTURE(Rangee, "TableTri: an empty table takes no block") {
    const std::uint32_t fin = base->volume.FinFichier();
    table.Vider(0);
    CHECK(base->volume.FinFichier() == fin);
    CHECK(Relire(5).empty());
}

TEST_CASE_FIXTURE(Rangee, "TableTri: loading stops at the first missing block and at the count") {
    table.Remplacer(Numeros(2500));
    table.Vider(2500);
    CHECK(Relire(1200) == Numeros(1200));
    // Blanks behind the last entry are no entries, but a count above them reads them.
    CHECK(Relire(2501).back() == 0x2020);
    table.repertoire.Fixer(2, Position{});
    CHECK(Relire(2500) == Numeros(1000));
}

TEST_CASE_FIXTURE(Rangee, "TableTri: a count below the table cuts what is written") {
    table.Remplacer(Numeros(10));
    table.Vider(4);
    CHECK(Relire(4) == Numeros(4));
    CHECK(Relire(5).back() == 0x2020);
}

TEST_CASE_FIXTURE(Rangee, "TableTri: a table that shrinks and grows again keeps its blocks") {
    table.Remplacer(Numeros(1500));
    table.Vider(1500);
    const std::uint32_t fin = base->volume.FinFichier();
    table.Remplacer(Numeros(20));
    table.Vider(20);
    CHECK(Relire(20) == Numeros(20));
    table.Remplacer(Numeros(1600));
    table.Vider(1600);
    CHECK(base->volume.FinFichier() == fin);
    CHECK(Relire(1600) == Numeros(1600));
}

TEST_CASE_FIXTURE(Rangee, "TableTri: by chance, against a plain row of numbers") {
    std::mt19937 hasard{8};
    const auto tirer = [&hasard](std::size_t sur) {
        return static_cast<std::uint32_t>(hasard() % sur);
    };
    Suite modele;
    for (int i = 0; i < 6000; ++i) {
        const std::uint32_t rang = tirer(modele.size() + 1);
        const auto place = modele.begin() + static_cast<std::ptrdiff_t>(rang);
        const auto numero = static_cast<std::uint16_t>(1 + tirer(64000));
        switch (tirer(4)) {
            case 0:
                if (modele.empty()) break;
                table.Retirer(std::min<std::uint32_t>(rang + 1, table.Taille()));
                modele.erase(rang < modele.size() ? place : modele.end() - 1);
                break;
            case 1:
                table.Fixer(rang + 1, numero);
                if (rang < modele.size())
                    *place = numero;
                else
                    modele.push_back(numero);
                break;
            default:
                table.Inserer(rang + 1, numero);
                modele.insert(place, numero);
        }
        if (i % 500 == 0) {
            table.Vider(table.Taille());
            REQUIRE(Relire(table.Taille()) == modele);
        }
        REQUIRE(table.Taille() == modele.size());
    }
    CHECK(table.Numeros() == modele);
}

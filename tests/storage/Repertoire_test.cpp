#include "storage/Repertoire.h"

#include "values/Octets.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE("Repertoire: blocks count from 1, and none stands outside") {
    Repertoire r{3, 4000};
    CHECK(r.NbBlocs() == 3);
    r.Fixer(1, Position{500});
    r.Fixer(3, Position{700});
    CHECK(r.PositionBloc(1) == Position{500});
    CHECK(r.PositionBloc(2) == Position{});
    CHECK(r.PositionBloc(3) == Position{700});
    for (const std::uint32_t bloc : {0U, 4U, 0xFFFFFFFFU})
        CHECK(r.PositionBloc(bloc) == Position{});
    r.Vider();
    CHECK(r.PositionBloc(1) == Position{});
}

TEST_CASE("Repertoire: entry k stands at bytes 4k-3 to 4k, and a second half behind a first") {
    Repertoire r{4, 1000};
    r.Decoder(NumVersChaine4(0x01020304) + NumVersChaine4(9), 0);
    r.Decoder(NumVersChaine4(7), 2);
    CHECK(r.PositionBloc(1) == Position{0x01020304});
    CHECK(r.PositionBloc(3) == Position{7});
    CHECK(r.Octets(0, 2) == NumVersChaine4(0x01020304) + NumVersChaine4(9));
    CHECK(r.Octets(2, 1) == NumVersChaine4(7));
}

TEST_CASE("Repertoire: what does not fit is left, what is missing is written as 0") {
    Repertoire r{2, 1000};
    r.Decoder(NumVersChaine4(1) + NumVersChaine4(2) + NumVersChaine4(3) + "ab", 0);
    CHECK(r.PositionBloc(2) == Position{2});
    CHECK(r.Octets(1, 3) == NumVersChaine4(2) + std::string(8, '\0'));
    r.Decoder(NumVersChaine4(8), 5);
    CHECK(r.Octets(0, 2) == NumVersChaine4(1) + NumVersChaine4(2));
}

TEST_CASE("Repertoire: entries in the header or past the end of the file are dropped") {
    Repertoire r{5, 1000};
    const std::uint32_t positions[] = {200, 201, 10000, 10001, 0xFFFFFFFF};
    for (std::uint32_t i = 0; i < 5; ++i)
        r.Fixer(i + 1, Position{positions[i]});
    // A block that begins in the file counts whole, even where its end is missing.
    CHECK(r.Verifier(10000) == 10999);
    CHECK(r.PositionBloc(1) == Position{});
    CHECK(r.PositionBloc(2) == Position{201});
    CHECK(r.PositionBloc(3) == Position{10000});
    CHECK(r.PositionBloc(4) == Position{});
    CHECK(r.PositionBloc(5) == Position{});
    CHECK(Repertoire{5, 1000}.Verifier(10000) == 0);
}

#include "app/Systeme.h"

#include <new>
#include <ostream>
#include <sstream>
#include <stdexcept>

#include <doctest/doctest.h>

using namespace dorvane::outil;

namespace {

std::string Filtrer(const std::string& texte) {
    std::ostringstream recu;
    FiltreTerminal filtre{*recu.rdbuf()};
    std::ostream{&filtre} << texte << std::flush;
    return recu.str();
}

}  // namespace

TEST_CASE("FiltreTerminal: control characters are shown, line ends and tabs pass") {
    CHECK(Filtrer("Élodie\tDupont\n") == "Élodie\tDupont\n");
    CHECK(Filtrer("\x1b[2J\a") == "␛[2J␇");
    CHECK(Filtrer(std::string{"a\0b\x7f", 4}) == "a␀b␡");
    // U+009B begins an order to a terminal as ESC [ does; U+00AB is a quotation mark.
    CHECK(Filtrer("a\u009bz") == "a\uFFFDz");
    CHECK(Filtrer("«\u00a0é»") == "«\u00a0é»");
}

TEST_CASE("ExecuterProgramme: the status of the command, 3 when memory runs out") {
    CHECK(ExecuterProgramme([] { return 2; }) == 2);
    CHECK(ExecuterProgramme([]() -> int { throw std::bad_alloc{}; }) == 3);
    CHECK(ExecuterProgramme([]() -> int { throw std::runtime_error{"x"}; }) == 3);
}

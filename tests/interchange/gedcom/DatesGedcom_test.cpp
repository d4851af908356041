#include "interchange/gedcom/DatesGedcom.h"

#include <ostream>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane::interchange;

namespace dorvane::interchange {
static std::ostream& operator<<(std::ostream& flux, const DateLue& date) {
    return flux << '"' << date.jourMois << "\" \"" << date.annee << '"';
}
}  // namespace dorvane::interchange

TEST_CASE("LireDateGedcom: the last four characters are the year") {
    CHECK(LireDateGedcom("1820") == DateLue{"", "1820"});
    CHECK(LireDateGedcom("12 MAY 1800") == DateLue{"12/5", "1800"});
    CHECK(LireDateGedcom("1 JAN 1700") == DateLue{"1/1", "1700"});
    CHECK(LireDateGedcom("31 DEC 1999") == DateLue{"31/12", "1999"});
    CHECK(LireDateGedcom("MAY 1800") == DateLue{"MAY", "1800"});
    CHECK(LireDateGedcom("ABT 1640") == DateLue{"ABT", "1640"});
    CHECK(LireDateGedcom("BET 1800 AND 1810") == DateLue{"BET 1800 AND", "1810"});
    CHECK(LireDateGedcom("12 MAY 850") == DateLue{"12/5", "850"});
}

TEST_CASE("LireDateGedcom: fewer than four characters are all the year") {
    CHECK(LireDateGedcom("850") == DateLue{"", "850"});
    CHECK(LireDateGedcom("?") == DateLue{"", "?"});
    CHECK(LireDateGedcom("") == DateLue{});
}

TEST_CASE("LireDateGedcom: years before our era get a minus") {
    CHECK(LireDateGedcom("44 BC") == DateLue{"", "-44"});
    CHECK(LireDateGedcom("15 MAR 44 B.C.") == DateLue{"15/3", "-44"});
    CHECK(LireDateGedcom("ABT 44 BC") == DateLue{"ABT", "-44"});
}

TEST_CASE("LireDateGedcom: words of French and English become tokens") {
    CHECK(LireDateGedcom("12 mars 1820") == DateLue{"12/3", "1820"});
    CHECK(LireDateGedcom("vers 1820") == DateLue{"ABT", "1820"});
    CHECK(LireDateGedcom("before January 1820") == DateLue{"BEF JAN", "1820"});
}

TEST_CASE("LireDateGedcom: every month both short ways") {
    const char* const mois[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    for (int m = 1; m <= 12; ++m) {
        CAPTURE(m);
        CHECK(LireDateGedcom("7 " + std::string{mois[m - 1]} + " 1801") ==
              DateLue{"7/" + std::to_string(m), "1801"});
        // Two blanks take the long way, which gives the same.
        CHECK(LireDateGedcom("ABT 7 " + std::string{mois[m - 1]} + " 1801").annee == "1801");
    }
}

TEST_CASE("LireDateGedcom: dates of digits keep their bars") {
    CHECK(LireDateGedcom("12/5/1800") == DateLue{"12/5", "1800"});
    CHECK(LireDateGedcom("1699/1700") == DateLue{"1699", "1700"});
}

TEST_CASE("LireDateGedcom: a Republican date comes back as the Gregorian one") {
    CHECK(LireDateGedcom("@#DFRENCH R@ 1 VEND 1") == DateLue{"22/9", "1792"});
    CHECK(LireDateGedcom("ABT @#DFRENCH R@ 18 BRUM 8") == DateLue{"ABT 9 NOV", "1799"});
    CHECK(LireDateGedcom("@#DGREGORIAN@ 12 MAY 1800") == DateLue{"12/5", "1800"});
}

TEST_CASE("LireDateGedcom: no semicolon reaches a name line") {
    CHECK(LireDateGedcom("avril; mai 1800").jourMois.find(';') == std::string::npos);
}

TEST_CASE("DateEntiere: only a whole day of the calendar") {
    CHECK(DateEntiere({"12/5", "1800"}) == "12/5/1800");
    CHECK(DateEntiere({"31/2", "1800"}).empty());
    CHECK(DateEntiere({"", "1800"}).empty());
    CHECK(DateEntiere({"MAY", "1800"}).empty());
}

#include "interchange/lgr/DatesLgr.h"

#include "values/Texte1252.h"

#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

TEST_CASE("EcrireDateLgr: a whole day is joined by strokes, words stand before a year of four") {
    CHECK(EcrireDateLgr("12/3", "1820") == "12/3/1820");
    CHECK(EcrireDateLgr("ABT", "1820") == "ABT 1820");
    CHECK(EcrireDateLgr("ABT", "950") == "ABT  950");
    CHECK(EcrireDateLgr("12/3", "") == "12/3     ");
    CHECK(EcrireDateLgr("", "1820") == "1820");
    CHECK(EcrireDateLgr("", "-44") == " -44");
    CHECK(EcrireDateLgr("", "") == "");
    // No day of the calendar, and a year that would be read as one of our own time.
    CHECK(EcrireDateLgr("31/2", "1820") == "31/2 1820");
    CHECK(EcrireDateLgr("12/3", "44") == "12/3   44");
}

TEST_CASE("LireDateLgr: every day and year that was written comes back") {
    const std::vector<std::string> jours{"",       "12/3",  "31/2",    "ABT",      "BET 1800 AND",
                                         "12 MAR", "mai",   "1/2/3",   "ABT 12/3", "12 mars 1820",
                                         "12 - 3", "vers ", "x - 1820"};
    const std::vector<std::string> annees{"",  "1820", "950", "44",   "-44", "18?",
                                          "?", "1/2",  "9",   "an V", "1-2", "185?"};
    for (const std::string& jour : jours)
        for (const std::string& annee : annees) {
            CAPTURE(jour);
            CAPTURE(annee);
            CHECK(LireDateLgr(EcrireDateLgr(jour, annee)) == DateLgr{jour, annee});
        }
}

TEST_CASE("LireDateLgr: trailing blanks that an editor took away are no year") {
    CHECK(LireDateLgr("12/3") == DateLgr{"12/3", ""});
    CHECK(LireDateLgr("12 mars") == DateLgr{"12 mars", ""});
    CHECK(LireDateLgr("mars 1820") == DateLgr{"mars", "1820"});
}

TEST_CASE("Dates of a union: the year of the end follows behind a dash") {
    CHECK(EcrireDatesUnionLgr({{"12/3", "1820"}, "1835"}) == "12/3/1820 - 1835");
    CHECK(EcrireDatesUnionLgr({{"", "1820"}, ""}) == "1820");
    CHECK(EcrireDatesUnionLgr({{"", ""}, "1835"}) == " - 1835");
    CHECK(LireDatesUnionLgr("1820-1835 - 1836") == DatesUnionLgr{{"1820-", "1835"}, "1836"});
}

TEST_CASE("Dates of a union: beginning and end come back, also where words hold a dash") {
    for (const std::string& jour : {std::string{}, std::string{"12/3"}, std::string{"x -"},
                                    std::string{"12 - 3"}, std::string{"ABT"}})
        for (const std::string& annee : {std::string{}, std::string{"1820"}, std::string{"-44"}})
            for (const std::string& fin :
                 {std::string{}, std::string{"1835"}, std::string{"-40"}}) {
                CAPTURE(jour);
                CAPTURE(annee);
                CAPTURE(fin);
                const DatesUnionLgr dates{{jour, annee}, fin};
                CHECK(LireDatesUnionLgr(EcrireDatesUnionLgr(dates)) == dates);
            }
}

TEST_CASE("EstAnneeSeule: one to four digits, dashes and question marks") {
    CHECK(EstAnneeSeule("1820"));
    CHECK(EstAnneeSeule("18??"));
    CHECK(EstAnneeSeule("-44"));
    CHECK_FALSE(EstAnneeSeule(""));
    CHECK_FALSE(EstAnneeSeule("18200"));
    CHECK_FALSE(EstAnneeSeule("Lyon"));
}

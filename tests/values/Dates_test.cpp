#include "values/Dates.h"

#include "values/Texte1252.h"

#include <array>
#include <ostream>

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

constexpr OrdreDate Jour = OrdreDate::JourMoisAnnee;
constexpr std::array<OrdreDate, 5> Ordres{OrdreDate::JourMoisAnnee, OrdreDate::MoisJourAnnee,
                                          OrdreDate::AnneeMoisJour, OrdreDate::AnneeJourMois,
                                          OrdreDate::MoisAnneeJour};

std::optional<DateCivile> Date(int jour, int mois, int annee) {
    return DateCivile{jour, mois, annee};
}

}  // namespace

namespace dorvane {

static std::ostream& operator<<(std::ostream& flux, const std::optional<DateCivile>& date) {
    if (!date) return flux << "no date";
    return flux << date->jour << '/' << date->mois << '/' << date->annee;
}

}  // namespace dorvane

TEST_CASE("LireOrdreDate: the five orders, and nothing else") {
    CHECK(LireOrdreDate("dd/mm/yyyy") == OrdreDate::JourMoisAnnee);
    CHECK(LireOrdreDate("mm/dd/yyyy") == OrdreDate::MoisJourAnnee);
    CHECK(LireOrdreDate("yyyy/mm/dd") == OrdreDate::AnneeMoisJour);
    CHECK(LireOrdreDate("yyyy/dd/mm") == OrdreDate::AnneeJourMois);
    CHECK(LireOrdreDate("mm/yyyy/dd") == OrdreDate::MoisAnneeJour);
    CHECK_FALSE(LireOrdreDate("mm/yy/yyyy"));
    CHECK_FALSE(LireOrdreDate(""));
}

TEST_CASE("LireDate: the parts stand in the system's order") {
    CHECK(LireDate("12/3/1820", OrdreDate::JourMoisAnnee) == Date(12, 3, 1820));
    CHECK(LireDate("3/12/1820", OrdreDate::MoisJourAnnee) == Date(12, 3, 1820));
    CHECK(LireDate("1820/3/12", OrdreDate::AnneeMoisJour) == Date(12, 3, 1820));
    CHECK(LireDate("1820/12/3", OrdreDate::AnneeJourMois) == Date(12, 3, 1820));
    CHECK(LireDate("3/1820/12", OrdreDate::MoisAnneeJour) == Date(12, 3, 1820));
    CHECK(LireDate("1820/12/3", OrdreDate::JourMoisAnnee) == std::nullopt);
}

TEST_CASE("LireDate: a month is a number, a token, a French or English name or three letters") {
    for (const std::string_view mois : {"2", "02", "FEB", "feb", "FEV", "February"})
        CHECK(LireDate("12 " + std::string(mois) + " 1820", Jour) == Date(12, 2, 1820));
    CHECK(LireDate("12 février 1820"_1252, Jour) == Date(12, 2, 1820));
    CHECK(LireDate("12 fév 1820"_1252, Jour) == Date(12, 2, 1820));
    CHECK(LireDate("12/août/1820"_1252, Jour) == Date(12, 8, 1820));
    CHECK(LireDate("12 MAY 1820", Jour) == LireDate("12 mai 1820", Jour));
    CHECK(LireDate("12 feu 1820", Jour) == std::nullopt);
    CHECK(LireDate("12 fe 1820", Jour) == std::nullopt);
    CHECK(LireDate("12 febr 1820", Jour) == std::nullopt);
    CHECK(LireDate("12 juillet 1820", Jour) == Date(12, 7, 1820));
    CHECK(LireDate("12 jul 1820", Jour) == Date(12, 7, 1820));
}

TEST_CASE("LireDate: 29 February only in leap years of the Gregorian rule") {
    CHECK(LireDate("29/2/2000", Jour) == Date(29, 2, 2000));
    CHECK(LireDate("29/2/1820", Jour) == Date(29, 2, 1820));
    CHECK(LireDate("29/2/1900", Jour) == std::nullopt);
    CHECK(LireDate("29/2/1821", Jour) == std::nullopt);
    CHECK(LireDate("31/4/1820", Jour) == std::nullopt);
    CHECK(LireDate("0/4/1820", Jour) == std::nullopt);
    CHECK(LireDate("1/0/1820", Jour) == std::nullopt);
    CHECK(LireDate("1/13/1820", Jour) == std::nullopt);
}

TEST_CASE("LireDate: year 100 is the earliest, and two digits fall in 1930 to 2029") {
    CHECK(LireDate("1/1/100", Jour) == Date(1, 1, 100));
    CHECK(LireDate("31/12/99", Jour) == Date(31, 12, 1999));
    CHECK(LireDate("31/12/29", Jour) == Date(31, 12, 2029));
    CHECK(LireDate("31/12/30", Jour) == Date(31, 12, 1930));
    CHECK(LireDate("31/12/5", Jour) == Date(31, 12, 2005));
    CHECK(LireDate("31/12/099", Jour) == std::nullopt);
    CHECK(LireDate("31/12/9999", Jour) == Date(31, 12, 9999));
    CHECK(LireDate("31/12/10000", Jour) == std::nullopt);
    CHECK(LireDate("31/12/99999999999999999999", Jour) == std::nullopt);
    CHECK(LireDate("1/1/-44", Jour) == std::nullopt);
}

TEST_CASE("LireDate: exactly three parts, parted by slashes or by blanks, never both") {
    CHECK(LireDate("12  mars 1820", Jour) == Date(12, 3, 1820));
    CHECK(LireDate(" 12 mars   1820 ", Jour) == Date(12, 3, 1820));
    CHECK(LireDate("12 mars/1820", Jour) == std::nullopt);
    CHECK(LireDate("12 /3/1820", Jour) == std::nullopt);
    CHECK(LireDate("12/3", Jour) == std::nullopt);
    CHECK(LireDate("12/3/", Jour) == std::nullopt);
    CHECK(LireDate("12/3/1820/", Jour) == std::nullopt);
    CHECK(LireDate("12/3/1820/4", Jour) == std::nullopt);
    CHECK(LireDate("12 3 1820 4", Jour) == std::nullopt);
    CHECK(LireDate("//", Jour) == std::nullopt);
    CHECK(LireDate("", Jour) == std::nullopt);
    CHECK(LireDate("   ", Jour) == std::nullopt);
}

TEST_CASE("DateVersSerie: day 0 is 30 December 1899, and days before it are negative") {
    CHECK(DateVersSerie(DateCivile{30, 12, 1899}) == 0);
    CHECK(DateVersSerie(DateCivile{29, 12, 1899}) == -1);
    CHECK(DateVersSerie(DateCivile{1, 1, 2000}) == 36526);
    CHECK(DateVersSerie(DateCivile{1, 1, 100}) == -657434);
    CHECK(DateVersSerie(DateCivile{31, 12, 9999}) == 2958465);
}

TEST_CASE("SerieVersDate: gives back every day, and nothing past the two ends") {
    for (Serie serie = -657434; serie <= 2958465; serie += 997) {
        const std::optional<DateCivile> date = SerieVersDate(serie);
        REQUIRE(date);
        CHECK(DateVersSerie(*date) == serie);
    }
    CHECK(SerieVersDate(-657434) == Date(1, 1, 100));
    CHECK(SerieVersDate(2958465) == Date(31, 12, 9999));
    CHECK(SerieVersDate(-657435) == std::nullopt);
    CHECK(SerieVersDate(2958466) == std::nullopt);
    CHECK(SerieVersDate(INT32_MIN) == std::nullopt);
}

TEST_CASE("JourDeSemaine: Sunday is 0") {
    CHECK(JourDeSemaine({2, 1, 2000}) == 0);
    CHECK(JourDeSemaine({1, 3, 1820}) == 3);
    CHECK(JourDeSemaine({1, 1, 2000}) == 6);
}

TEST_CASE("PermuteJourMois: swaps for month-last orders, and a text without a slash stays") {
    CHECK(PermuteJourMois("12/3", OrdreDate::JourMoisAnnee) == "12/3");
    CHECK(PermuteJourMois("12/3", OrdreDate::AnneeJourMois) == "12/3");
    CHECK(PermuteJourMois("12/3", OrdreDate::MoisJourAnnee) == "3/12");
    CHECK(PermuteJourMois("12/3", OrdreDate::AnneeMoisJour) == "3/12");
    CHECK(PermuteJourMois("12/3", OrdreDate::MoisAnneeJour).empty());
    CHECK(PermuteJourMois("12/3/1820", OrdreDate::MoisJourAnnee) == "3/1820/12");
    CHECK(PermuteJourMois("/", OrdreDate::MoisJourAnnee) == "/");
    for (const OrdreDate ordre : Ordres)
        CHECK(PermuteJourMois("ABT", ordre) == "ABT");
}

TEST_CASE("DateValide: fewer than three parts are no event date") {
    CHECK(DateValide("12/3/1820", Jour));
    CHECK(DateValide("12 mars 1820", Jour));
    CHECK_FALSE(DateValide("3/1820", Jour));
    CHECK_FALSE(DateValide("1820", Jour));
    CHECK_FALSE(DateValide("12 mars", Jour));
    CHECK_FALSE(DateValide("", Jour));
}

TEST_CASE("DateValide: blanks around slashes are forgiven, a mixed text is not") {
    CHECK(DateValide(" 12 / 3 / 1820 ", Jour));
    CHECK(DateValide("12  mars 1820", Jour));
    CHECK_FALSE(DateValide("12 mars/1820", Jour));
    CHECK_FALSE(DateValide("12 / mars/1820 x", Jour));
    CHECK_FALSE(DateValide("12/3/1820/4", Jour));
}

TEST_CASE("DateValide: year-first systems take a day-first text, month-first ones take none") {
    CHECK(DateValide("12/3/1820", OrdreDate::AnneeMoisJour));
    CHECK(DateValide("12/3/1820", OrdreDate::AnneeJourMois));
    CHECK(DateValide("12 mars 1820", OrdreDate::AnneeMoisJour));
    CHECK_FALSE(DateValide("12/3/1820", OrdreDate::MoisJourAnnee));
    CHECK_FALSE(DateValide("3/12/1820", OrdreDate::MoisJourAnnee));
    CHECK_FALSE(DateValide("12/3/1820", OrdreDate::MoisAnneeJour));
}

TEST_CASE("DateVersSerie: 31/12/99 is never stored as year 99") {
    CHECK(DateVersSerie("31/12/99", Jour) == DateVersSerie(DateCivile{31, 12, 1999}));
    CHECK(DateVersSerie("1/1/100", Jour) == -657434);
    CHECK(DateVersSerie("1/1/1000000", Jour) == std::nullopt);
}

TEST_CASE("DateVersSerie: the serial does not depend on the order in which a date is written") {
    for (const OrdreDate ordre :
         {OrdreDate::JourMoisAnnee, OrdreDate::AnneeMoisJour, OrdreDate::AnneeJourMois})
        CHECK(DateVersSerie("12/3/1820", ordre) == DateVersSerie(DateCivile{12, 3, 1820}));
}

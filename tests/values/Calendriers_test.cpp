#include "values/Calendriers.h"

#include "messages/Messages.h"
#include "values/Texte1252.h"

#include <array>
#include <chrono>
#include <ostream>

#include <doctest/doctest.h>

using namespace dorvane;

namespace dorvane {

[[maybe_unused]] static std::ostream& operator<<(std::ostream& flux, const DateDeListe& date) {
    return flux << date.jour << ' ' << date.mois << ' ' << date.annee;
}

}  // namespace dorvane

namespace {

constexpr int An1792 = 1;
constexpr int An1793 = 2;

DateDeListe VersR(const DateDeListe& date) {
    const DateConvertie resultat = GregorienVersRepublicain(date);
    REQUIRE_FALSE(resultat.refus);
    return resultat.date;
}

DateDeListe VersG(const DateDeListe& date) {
    const DateConvertie resultat = RepublicainVersGregorien(date);
    REQUIRE_FALSE(resultat.refus);
    return resultat.date;
}

/// The same day in both calendars, told by the September days on which the years began.
struct Jumeaux {
    DateDeListe gregorien, republicain;
};

Jumeaux JumeauxDe(std::chrono::sys_days jour) {
    using namespace std::chrono;
    constexpr std::array<unsigned, 14> Debuts{22, 22, 22, 23, 22, 22, 22,
                                              23, 23, 23, 23, 24, 23, 23};
    int annee = 0;
    int rang = 0;
    for (int i = 0; i < 14; ++i) {
        const sys_days debut{year{1792 + i} / 9 / day{Debuts[static_cast<std::size_t>(i)]}};
        if (jour < debut) break;
        annee = i + 1;
        rang = static_cast<int>((jour - debut).count());
    }
    const year_month_day g{jour};
    return {{static_cast<int>(static_cast<unsigned>(g.day())),
             static_cast<int>(static_cast<unsigned>(g.month())), static_cast<int>(g.year()) - 1791},
            {rang % 30 + 1, rang / 30 + 1, annee}};
}

}  // namespace

TEST_CASE("GregorienVersRepublicain: 22 September 1792 is 1 Vendémiaire I") {
    CHECK(VersR({22, 9, An1792}) == DateDeListe{1, 1, 1});
}

TEST_CASE("GregorienVersRepublicain: 1 January 1793 is 12 Nivôse I") {
    CHECK(VersR({1, 1, An1793}) == DateDeListe{12, 4, 1});
    CHECK(MoisRepublicain(4) == "Nivôse"_1252);
}

TEST_CASE("RepublicainVersGregorien: 1 Vendémiaire I is 22 September 1792") {
    CHECK(VersG({1, 1, 1}) == DateDeListe{22, 9, An1792});
}

TEST_CASE("RepublicainVersGregorien: the autumn of the year IV is one day early, as in the table") {
    CHECK(VersG({1, 1, 4}) == DateDeListe{22, 9, 4});
    CHECK(VersG({30, 2, 4}) == DateDeListe{20, 11, 4});
    CHECK(VersG({1, 3, 4}) == DateDeListe{22, 11, 4});
}

TEST_CASE("Calendriers: every day agrees with the calendars, but for IV and for March 1800") {
    using namespace std::chrono;
    for (sys_days jour{year{1792} / 9 / 22}; jour <= sys_days{year{1805} / 12 / 31};
         jour += days{1}) {
        const auto [g, r] = JumeauxDe(jour);
        CAPTURE(g);
        const bool mars1800 = g.mois == 3 && g.annee == 9;
        if (!mars1800) CHECK(VersR(g) == r);
        const bool automneIV = r.annee == 4 && r.mois <= 2;
        const bool ventoseVIII = mars1800 && r.mois == 6;
        if (!automneIV && !ventoseVIII) CHECK(VersG(r) == g);
    }
}

TEST_CASE("Calendriers: 1800 is read as leap") {
    CHECK(VersG({10, 6, 8}) == DateDeListe{29, 2, 9});
    CHECK(VersR({1, 3, 9}) == DateDeListe{11, 6, 8});
}

TEST_CASE("GregorienVersRepublicain: 1792 before September is not shifted") {
    CHECK(VersR({1, 1, An1792}) == DateDeListe{1, 4, 0});
    CHECK(VersR({31, 8, An1792}) == DateDeListe{1, 12, 0});
}

TEST_CASE("GregorienVersRepublicain: the end of Fructidor goes to Sans-culottide") {
    CHECK(VersR({16, 9, An1793}) == DateDeListe{30, 12, 1});
    CHECK(VersR({17, 9, An1793}) == DateDeListe{1, 13, 1});
    CHECK(VersR({21, 9, An1793}) == DateDeListe{5, 13, 1});
    CHECK(VersR({22, 9, An1793}) == DateDeListe{1, 1, 2});
}

TEST_CASE(
    "GregorienVersRepublicain: day 6 of Sans-culottide exists in positions 4, 8 and 12 only") {
    for (int annee = 1; annee <= 14; ++annee) {
        CAPTURE(annee);
        bool sixieme = false;
        for (int jour = 1; jour <= 30; ++jour) {
            const DateDeListe r = VersR({jour, 9, annee});
            if (r.mois == 13 && r.jour == 6) sixieme = true;
        }
        CHECK(sixieme == (annee == 4 || annee == 8 || annee == 12));
    }
}

TEST_CASE("RepublicainVersGregorien: a result may stand past the last year of the list") {
    CHECK(VersG({1, 5, 14}).annee == 15);
}

TEST_CASE("Calendriers: a day out of range is refused first, then the month, then the year") {
    CHECK(RepublicainVersGregorien({0, 0, 0}).refus == message::JourHorsDe1A30);
    CHECK(RepublicainVersGregorien({31, 1, 1}).refus == message::JourHorsDe1A30);
    CHECK(RepublicainVersGregorien({30, 14, 1}).refus == message::MoisNonChoisi);
    CHECK(RepublicainVersGregorien({30, 13, 15}).refus == message::AnneeNonChoisie);
    CHECK(GregorienVersRepublicain({32, 1, 1}).refus == message::JourHorsDe1A31);
    CHECK(GregorienVersRepublicain({-1, 1, 1}).refus == message::JourHorsDe1A31);
    CHECK(GregorienVersRepublicain({31, 13, 1}).refus == message::MoisNonChoisi);
    CHECK(GregorienVersRepublicain({31, 12, 0}).refus == message::AnneeNonChoisie);
}

TEST_CASE("Calendriers: every entry of the lists gives a day and a month that exist") {
    for (int annee = 1; annee <= 14; ++annee)
        for (int mois = 1; mois <= 13; ++mois)
            for (int jour = 1; jour <= 30; ++jour) {
                const DateDeListe g = VersG({jour, mois, annee});
                const bool bon = g.jour >= 1 && g.jour <= 31 && g.mois >= 1 && g.mois <= 12;
                if (!bon) FAIL("from ", jour, " ", mois, " ", annee, " to ", g);
            }
}

TEST_CASE("Calendriers: the lists have their names, and none outside") {
    CHECK(MoisRepublicain(1) == "Vendémiaire"_1252);
    CHECK(MoisRepublicain(13) == "Sans-culottide");
    CHECK(AnneeRepublicaine(14) == "XIV");
    CHECK(AnneeGregorienne(1) == "1792");
    CHECK(AnneeGregorienne(14) == "1805");
    CHECK(MoisRepublicain(0).empty());
    CHECK(MoisRepublicain(14).empty());
    CHECK(AnneeRepublicaine(-1).empty());
    CHECK(AnneeGregorienne(15).empty());
}

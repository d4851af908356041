#include "interchange/releves/LectureActe.h"

#include "values/Texte1252.h"

#include <string>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::interchange {

namespace {

Serie Jour(int jour, int mois, int annee) {
    return DateVersSerie(DateCivile{jour, mois, annee});
}

}  // namespace

TEST_CASE("a whole date is the day of the act") {
    const DateActe lue = LireDateActe("1780", "mars", "12");
    CHECK(lue.serie == Jour(12, 3, 1780));
    CHECK(lue.date == DateLue{"12/3", "1780"});
    CHECK_FALSE(lue.approchee);
    CHECK(LireDateActe(" 1780 ", "03", "12").serie == Jour(12, 3, 1780));
    CHECK(LireDateActe("1780", "août"_1252, "1").serie == Jour(1, 8, 1780));
}

TEST_CASE("a year alone is the first of January") {
    const DateActe lue = LireDateActe("1780", "", "");
    CHECK(lue.serie == Jour(1, 1, 1780));
    CHECK(lue.date == DateLue{"", "1780"});
    CHECK_FALSE(lue.approchee);
}

TEST_CASE("a month without a day is its first day, and the person keeps the month alone") {
    const DateActe lue = LireDateActe("1780", "3", "");
    CHECK(lue.serie == Jour(1, 3, 1780));
    CHECK(lue.date == DateLue{"MAR", "1780"});
    CHECK_FALSE(lue.approchee);
}

TEST_CASE("a day or month that is none is passed over and told") {
    CHECK(LireDateActe("1780", "2", "31").serie == Jour(1, 2, 1780));
    CHECK(LireDateActe("1780", "2", "31").approchee);
    CHECK(LireDateActe("1780", "13", "1").serie == Jour(1, 1, 1780));
    CHECK(LireDateActe("1780", "?", "").approchee);
}

TEST_CASE("a year that is none gives no day") {
    for (const char* annee : {"", "an IV", "85", "17?0", "99999"}) {
        CAPTURE(annee);
        CHECK_FALSE(LireDateActe(annee, "1", "1").serie.has_value());
    }
}

TEST_CASE("a date in one column is read in numbers and in words") {
    CHECK(LireDateLibre("12/03/1780") == DateLue{"12/3", "1780"});
    CHECK(LireDateLibre("12 mars 1780") == DateLue{"12/3", "1780"});
    CHECK(LireDateLibre("vers 1780") == DateLue{"ABT", "1780"});
    CHECK(LireDateLibre("1780") == DateLue{"", "1780"});
    CHECK(LireDateLibre("").EstVide());
}

TEST_CASE("ages are read in weeks, days, months and years") {
    const auto lire = [](std::string_view texte) {
        const Age age = LireAge(texte).value();
        return std::vector<int>{age.ans, age.mois, age.jours, age.enAns ? 1 : 0};
    };
    CHECK(lire("2 sem") == std::vector<int>{0, 0, 14, 0});
    CHECK(lire("1 jour") == std::vector<int>{0, 0, 1, 0});
    CHECK(lire("3 jours") == std::vector<int>{0, 0, 3, 0});
    CHECK(lire("6 mois") == std::vector<int>{0, 6, 0, 0});
    CHECK(lire("1 an") == std::vector<int>{1, 0, 0, 1});
    CHECK(lire("45 ans") == std::vector<int>{45, 0, 0, 1});
    CHECK(lire("45") == std::vector<int>{45, 0, 0, 1});
    CHECK(lire("1 an et 6 mois") == std::vector<int>{1, 6, 0, 0});
    CHECK(lire("2ans 3mois") == std::vector<int>{2, 3, 0, 0});
    for (const char* texte : {"", "majeur", "45 lunes", "ans", "-3 ans", "999999999999 ans"}) {
        CAPTURE(texte);
        CHECK_FALSE(LireAge(texte).has_value());
    }
}

TEST_CASE("an age in years gives two years of birth, a shorter one the day") {
    const std::optional<Serie> jour = Jour(12, 3, 1780);
    CHECK(NaissanceSelonAge(*LireAge("45 ans"), jour) == DateLue{"BET 1734 AND", "1735"});
    CHECK(NaissanceSelonAge(*LireAge("3 jours"), jour) == LireDateGedcom("CAL 9 MAR 1780"));
    CHECK(NaissanceSelonAge(*LireAge("1 an 6 mois"), jour) == LireDateGedcom("CAL 12 SEP 1778"));
    CHECK(NaissanceSelonAge(*LireAge("1 mois"), Jour(31, 3, 1780)) ==
          LireDateGedcom("CAL 2 MAR 1780"));
    CHECK(AnneeSelonAge(*LireAge("25 ans"), jour) == DateLue{"CAL", "1755"});
    CHECK(NaissanceSelonAge(*LireAge("45 ans"), {}).EstVide());
    CHECK(NaissanceSelonAge(*LireAge("90000 mois"), jour).EstVide());
}

TEST_CASE("feu and feue in front of a parent tell a death") {
    CHECK(LireParent("", "feu Jean").prenoms == "Jean");
    CHECK(LireParent("", "Feue Anne Marie").prenoms == "Anne Marie");
    CHECK(LireParent("Roux", "feue Anne").decede);
    CHECK(LireParent("", "feu").decede);
    CHECK(LireParent("feue Le Roux", "Anne").nom == "Le Roux");
    CHECK(LireParent("feue Le Roux", "Anne").decede);
    CHECK_FALSE(LireParent("Feu", "Feuillet").decede);
    CHECK_FALSE(LireParent("Roux", "Jean").decede);
}

}  // namespace dorvane::interchange

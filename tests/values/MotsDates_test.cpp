#include "values/MotsDates.h"

#include "doublures/MotsDeTest.h"
#include "messages/Messages.h"

#include <array>

#include <doctest/doctest.h>

using namespace dorvane;
using essais::MotsAnglais;
using essais::MotsFrancais;

namespace {

constexpr OrdreDate Jour = OrdreDate::JourMoisAnnee;
constexpr std::array<OrdreDate, 4> OrdresAvecPaire{
    OrdreDate::JourMoisAnnee, OrdreDate::MoisJourAnnee, OrdreDate::AnneeMoisJour,
    OrdreDate::AnneeJourMois};

std::string Premier(std::string_view texte) {
    return CvtPremierDuMois(texte, MotsFrancais());
}
std::string Saisie(std::string_view texte) {
    return CvtSaisieDate(texte, Jour, MotsFrancais());
}
std::string Affichage(std::string_view texte) {
    return CvtDateAffichage(texte, MotsFrancais());
}
std::string Locale(std::string_view texte) {
    return CvtDateLocale(texte, MotsFrancais());
}
std::string JourDe(std::string_view texte) {
    return NomJourSemaine(texte, Jour, MotsFrancais());
}

}  // namespace

TEST_CASE(
    "CvtPremierDuMois: the word becomes 1 where a blank stands on each side, or at the head") {
    CHECK(Premier("1er mars") == "1 mars");
    CHECK(Premier("du 1er au 1er mars") == "du 1 au 1 mars");
    CHECK(Premier("1er 1er x") == "1 1 x");
}

TEST_CASE("CvtPremierDuMois: at the very end, in another case or inside a word it stays") {
    CHECK(Premier("1er") == "1er");
    CHECK(Premier("mars 1er") == "mars 1er");
    CHECK(Premier("1ER mars") == "1ER mars");
    CHECK(Premier("11er mars") == "11er mars");
    CHECK(Premier("").empty());
}

TEST_CASE("CvtPremierDuMois: a catalogue without the word, or with 1 for it, ends as well") {
    CHECK(CvtPremierDuMois("1er 1 mars", MotsDates{}) == "1er 1 mars");
    const MotsDates mots = essais::MotsDeListe({{message::PremierDuMois, "1"}});
    CHECK(CvtPremierDuMois("1 1 mars", mots) == "1 1 mars");
}

TEST_CASE("CvtSaisieDate: 29/2 without a year is a date, through a leap year") {
    CHECK(Saisie("29/2") == "29/2");
    CHECK(Saisie("29 février"_1252) == "29/2");
    CHECK(Saisie("30 février"_1252) == "30 FEB");
}

TEST_CASE("CvtSaisieDate: the 29th of February of a common year is stored as 29 FEB 1821") {
    CHECK(Saisie("29 février 1821"_1252) == "29 FEB 1821");
    CHECK(Saisie("29 février 1820"_1252) == "29/2/1820");
}

TEST_CASE("CvtSaisieDate: a day and a month word become numbers, with the year behind if typed") {
    CHECK(Saisie("12 mars") == "12/3");
    CHECK(Saisie("  12 MARS  ") == "12/3");
    CHECK(Saisie("12 décembre 1820"_1252) == "12/12/1820");
    CHECK(Saisie("05 mai") == "05/5");
    CHECK(Saisie("12 mars.") == "12/3");
    CHECK(Saisie("12/3") == "12/3");
    CHECK(Saisie("01/3") == "01/3");
}

TEST_CASE("CvtSaisieDate: the first of a month becomes 1/3 on storing and shows again as a word") {
    CHECK(Saisie("1er mars") == "1/3");
    CHECK(Affichage("1/3") == "1er mars");
}

TEST_CASE("CvtSaisieDate: about and a year is stored as ABT 1820") {
    CHECK(Saisie("vers 1820") == "ABT 1820");
    CHECK(Saisie("Vers 1820") == "ABT 1820");
}

TEST_CASE("CvtSaisieDate: every word of dates gives its token") {
    CHECK(Saisie("janvier") == "JAN");
    CHECK(Saisie("après mars"_1252) == "AFT MAR");
    CHECK(Saisie("avant le 3 août"_1252) == "BEF LE 3 AUG");
    CHECK(Saisie("estimée"_1252) == "EST");
    CHECK(Saisie("calculée"_1252) == "CAL");
    CHECK(Saisie("entre juin et juillet") == "BET JUN AND JUL");
}

TEST_CASE("CvtSaisieDate: only the first occurrence of a word is replaced, even inside a word") {
    CHECK(Saisie("mars mars") == "MAR MARS");
    CHECK(Saisie("Marseille") == "MAREILLE");
    CHECK(Saisie("vers été et"_1252) == "ABT ANDE ET");
}

TEST_CASE("CvtSaisieDate: a text with no known word keeps its case, with one it is folded whole") {
    CHECK(Saisie("Saint-Jean d'Hiver, à l'aube"_1252) == "Saint-Jean d'Hiver, à l'aube"_1252);
    CHECK(Saisie("Saint-Jean, mars") == "SAINT JEAN  MAR");
    CHECK(Saisie("").empty());
}

TEST_CASE("CvtSaisieDate: what is no date and has no word stays as typed") {
    CHECK(Saisie("12/3/1820") == "12/3/1820");
    CHECK(Saisie("12 3") == "12 3");
    CHECK(Saisie("31/4") == "31/4");
    CHECK(Saisie("99 mars") == "99 MAR");
    CHECK(Saisie("+12 mars") == "+12 MAR");
}

TEST_CASE("CvtSaisieDate: the stored pair is day then month in every order") {
    for (const OrdreDate ordre : OrdresAvecPaire) {
        CHECK(CvtSaisieDate("12 mars", ordre, MotsFrancais()) == "12/3");
        CHECK(CvtSaisieDate("12/3", ordre, MotsFrancais()) == "12/3");
        CHECK(CvtSaisieDate("25 mars 1820", ordre, MotsFrancais()) == "25/3/1820");
    }
    CHECK(CvtSaisieDate("12 mars", OrdreDate::MoisAnneeJour, MotsFrancais()) == "12 MAR");
}

TEST_CASE("CvtSaisieDate: an English catalogue stores the same") {
    CHECK(CvtSaisieDate("12 March", Jour, MotsAnglais()) == "12/3");
    CHECK(CvtSaisieDate("1st May 1820", Jour, MotsAnglais()) == "1/5/1820");
    CHECK(CvtSaisieDate("between May and June", Jour, MotsAnglais()) == "BET MAY AND JUN");
}

TEST_CASE("CvtSaisieDate: an empty catalogue replaces nothing") {
    CHECK(CvtSaisieDate("12 mars", Jour, MotsDates{}) == "12 mars");
}

TEST_CASE("CvtDateAffichage: a pair shows the month word, a year behind it is dropped") {
    CHECK(Affichage("12/3") == "12 mars");
    CHECK(Affichage("12/3/1820") == "12 mars");
    CHECK(Affichage(" 12/12 ") == "12 décembre"_1252);
}

TEST_CASE("CvtDateAffichage: 01/3 shows with the word of the first day") {
    CHECK(Affichage("01/3") == "1er mars");
    CHECK(Affichage("02/3") == "2 mars");
    CHECK(CvtDateAffichage("01/3", MotsAnglais()) == "1st March");
}

TEST_CASE("CvtDateAffichage: month 0, above 12 or not numeric leaves the text unchanged") {
    CHECK(Affichage("0/0") == "0/0");
    CHECK(Affichage(" 12/13 ") == "12/13");
    CHECK(Affichage("12/mars") == "12/mars");
    CHECK(Affichage("12/") == "12/");
    CHECK(Affichage("01/99999999999999999999") == "01/99999999999999999999");
}

TEST_CASE("CvtDateAffichage: the tokens show as words") {
    CHECK(Affichage("ABT") == "vers");
    CHECK(Affichage("AFT 12 MAR") == "après 12 mars"_1252);
    CHECK(Affichage("BET 3 JAN AND") == "entre 3 janvier et");
    CHECK(Affichage("BEF DEC") == "avant décembre"_1252);
    CHECK(Affichage("EST") == "estimée"_1252);
    CHECK(Affichage("CAL 1820") == "calculée 1820"_1252);
    CHECK(Affichage("1 FEB") == "1er février"_1252);
}

TEST_CASE("CvtDateAffichage: only the first occurrence, with its case and a blank on each side") {
    CHECK(Affichage("MAR MAR") == "mars MAR");
    CHECK(Affichage("mar") == "mar");
    CHECK(Affichage("AMAR MARS") == "AMAR MARS");
}

TEST_CASE("CvtDateAffichage: before the month of May the text is lost, what follows it stays") {
    CHECK(Affichage("ABT 12 MAY") == "mai");
    CHECK(Affichage("BET MAY AND") == "mai et");
    CHECK(Affichage("MAY") == "mai");
    CHECK(Affichage("12/5") == "12 mai");
}

TEST_CASE("CvtDateAffichage: a text with a literal MAI before the token keeps what stands there") {
    CHECK(Affichage("12 MAI x 3 MAY") == "12 mai");
}

TEST_CASE("CvtDateLocale: English names and tokens become words of the catalogue") {
    CHECK(Locale("12 MARCH 1820") == "12 mars 1820");
    CHECK(Locale("ABT FEB 1820") == "vers février 1820"_1252);
    CHECK(Locale("BET 3 MAY 1820 AND 4 JUN 1821") == "entre 3 mai 1820 et 4 juin 1821");
    CHECK(Locale("CAL 1820 AFT 1 BEF 2") == "calculée 1820 après 1 avant 2"_1252);
    CHECK(CvtDateLocale("12 MARCH 1820", MotsAnglais()) == "12 March 1820");
}

TEST_CASE("CvtDateLocale: case and accents of catalogue words are restored") {
    CHECK(Locale("12 FEVRIER 1820") == "12 février 1820"_1252);
    CHECK(Locale("12 Août 1820"_1252) == "12 août 1820"_1252);
    CHECK(Locale("MAR MAR MAR 1820") == "mars mars mars 1820");
}

TEST_CASE("CvtDateLocale: the word of the first day and the second bound of a span") {
    CHECK(Locale("BET 1ER MARS AND 2 AVRIL 1800") == "entre 1er mars et 2 avril 1800");
}

TEST_CASE("CvtDateLocale: 01 becomes the word of the first day, the other days lose the zero") {
    CHECK(Locale("01 MARCH 1820") == "1er mars 1820");
    CHECK(Locale("09 MARCH 1820") == "9 mars 1820");
    CHECK(Locale("010 MARCH 1820") == "010 mars 1820");
}

TEST_CASE("CvtDateLocale: BC becomes a hyphen before the year") {
    CHECK(Locale("ABT 44 BC") == "vers -44");
    CHECK(Locale("44 BC") == "-44");
    CHECK(Locale("44BC") == "-44");
    CHECK(Locale("44 bc") == "44 bc");
    CHECK(Locale("BC").empty());
}

TEST_CASE("CvtDateLocale: a word at the very end has no blank behind it and stays") {
    CHECK(Locale("12 MAR") == "12 MAR");
    CHECK(Locale("12 MAR ") == "12 mars ");
    CHECK(Locale("").empty());
}

TEST_CASE("CvtDateLocale: the lower-case word est inside a sentence stops everything after it") {
    CHECK(Locale("Il est né AND CAL 1820"_1252) == "Il est né AND CAL 1820"_1252);
    CHECK(Locale("Il est né le 12 MAR 1820"_1252) == "Il est né le 12 mars 1820"_1252);
    CHECK(Locale("EST 1820 il est AND 1820") == "estimée 1820 il est AND 1820"_1252);
}

TEST_CASE("CvtDateLocale: EST in any other form is the token") {
    CHECK(Locale("EST 1820") == "estimée 1820"_1252);
    CHECK(Locale("Est 1820") == "estimée 1820"_1252);
    CHECK(Locale("l'est-ouest") == "l'estimée-ouest"_1252);
}

TEST_CASE("CvtDateLocale: a catalogue in capitals or without words ends as well") {
    const MotsDates mots = essais::MotsDeListe(
        {{message::TagMAR, "MARS"}, {message::TagEST, "EST"}, {message::TagAND, "AND"}});
    CHECK(CvtDateLocale("EST MARCH MAR AND EST 1820", mots) == "EST MARS MARS AND EST 1820");
    CHECK(CvtDateLocale("ABT 12 MAR 1820", MotsDates{}) == " 12  1820");
}

TEST_CASE("CvtDateMotsCles: French and English words become tokens, the text is folded") {
    CHECK(CvtDateMotsCles("1er mars 1820") == "1 MAR 1820");
    CHECK(CvtDateMotsCles("1st March 1820") == "1 MAR 1820");
    CHECK(CvtDateMotsCles("vers août 1820"_1252) == "ABT AUG 1820");
    CHECK(CvtDateMotsCles("entre mai 1820 et juin 1821") == "BET MAY 1820 AND JUN 1821");
    CHECK(CvtDateMotsCles("estimée calculated après before 1"_1252) == "EST CAL AFT BEF 1");
    CHECK(CvtDateMotsCles("mars mars 1") == "MAR MAR 1");
}

TEST_CASE("CvtDateMotsCles: a word at the very end of the text is not replaced") {
    CHECK(CvtDateMotsCles("12 mars") == "12 MARS");
    CHECK(CvtDateMotsCles("").empty());
}

TEST_CASE("CvtDateMotsCles: a hyphen in the last word becomes BC, one before it a blank") {
    CHECK(CvtDateMotsCles("vers -44") == "ABT 44 BC");
    CHECK(CvtDateMotsCles("-44") == "44 BC");
    CHECK(CvtDateMotsCles("12-3 44") == "12 3 44");
    CHECK(CvtDateMotsCles("-44 ") == " 44 ");
}

TEST_CASE("NomJourSemaine: the weekday and a blank of a whole displayed date") {
    CHECK(JourDe("1er mars 1820") == "mercredi ");
    CHECK(JourDe("2 janvier 2000") == "dimanche ");
    CHECK(JourDe("1 janvier 850") == "samedi ");
    CHECK(NomJourSemaine("1st March 1820", Jour, MotsAnglais()) == "Wednesday ");
}

TEST_CASE("NomJourSemaine: works in every order that has a place for a pair") {
    for (const OrdreDate ordre : OrdresAvecPaire)
        CHECK(NomJourSemaine("25 mars 1820", ordre, MotsFrancais()) == "samedi ");
    CHECK(NomJourSemaine("25 mars 1820", OrdreDate::MoisAnneeJour, MotsFrancais()).empty());
}

TEST_CASE("NomJourSemaine: is empty for what does not begin with a digit, is short or is no date") {
    CHECK(JourDe("mars 1820").empty());
    CHECK(JourDe("1/1/1").empty());
    CHECK(JourDe("30 février 1820"_1252).empty());
    CHECK(JourDe("12 mars 18?0").empty());
    CHECK(JourDe("12 mars -044").empty());
    CHECK(JourDe("").empty());
}

TEST_CASE("AfficherDateEvenement: the words of the catalogue, the year without padding") {
    const Serie mars = DateVersSerie(DateCivile{1, 3, 1820});
    CHECK(AfficherDateEvenement(mars, MotsFrancais()) == "1er mars 1820");
    CHECK(AfficherDateEvenement(mars, MotsAnglais()) == "1st March 1820");
    CHECK(AfficherDateEvenement(DateVersSerie(DateCivile{9, 8, 850}), MotsFrancais()) ==
          "9 août 850"_1252);
    CHECK(AfficherDateEvenement(INT32_MAX, MotsFrancais()).empty());
}

TEST_CASE("SaisirDateEvenement: what is shown of a date is read again") {
    for (Serie serie = -657434; serie <= 2958465; serie += 9973) {
        CHECK(SaisirDateEvenement(AfficherDateEvenement(serie, MotsFrancais()), Jour,
                                  MotsFrancais()) == serie);
        CHECK(SaisirDateEvenement(AfficherDateEvenement(serie, MotsAnglais()),
                                  OrdreDate::AnneeMoisJour, MotsAnglais()) == serie);
    }
}

TEST_CASE("SaisirDateEvenement: words of either language are tried, and a partial date refused") {
    CHECK(SaisirDateEvenement("12/3/1820", Jour, MotsFrancais()) ==
          DateVersSerie(DateCivile{12, 3, 1820}));
    CHECK(SaisirDateEvenement("1ST MARCH 1820", Jour, MotsFrancais()) ==
          DateVersSerie(DateCivile{1, 3, 1820}));
    CHECK_FALSE(SaisirDateEvenement("mars 1820", Jour, MotsFrancais()));
    CHECK_FALSE(SaisirDateEvenement("vers 1820", Jour, MotsFrancais()));
    CHECK_FALSE(SaisirDateEvenement("", Jour, MotsFrancais()));
    CHECK_FALSE(SaisirDateEvenement("12/3/1820", OrdreDate::MoisJourAnnee, MotsFrancais()));
}

TEST_CASE("QuitterJourMois: a pair is rewritten in words, anything else stays") {
    CHECK(QuitterJourMois("12/3", Jour, MotsFrancais()) == "12 mars");
    CHECK(QuitterJourMois("1/3", Jour, MotsFrancais()) == "1er mars");
    CHECK(QuitterJourMois("29/2", Jour, MotsFrancais()) == "29 février"_1252);
    for (const OrdreDate ordre : OrdresAvecPaire)
        CHECK(QuitterJourMois("12/3", ordre, MotsFrancais()) == "12 mars");
    for (const std::string_view texte : {"", "vers", "31/4", "12 mars", "12/3/1820"})
        CHECK(QuitterJourMois(texte, Jour, MotsFrancais()) == texte);
}

TEST_CASE("DateDeMotCle: a whole date is d/m/yyyy, any other a text and a padded year") {
    CHECK(DateDeMotCle("12/3", "1820", Jour) == "12/3/1820");
    CHECK(DateDeMotCle("01/03", " 850", OrdreDate::AnneeMoisJour) == "1/3/850");
    CHECK(DateDeMotCle("ABT", "850", Jour) == "ABT  850");
    // The year 44 of a person is not 1944.
    CHECK(DateDeMotCle("12/3", "44", Jour) == "12/3   44");
    CHECK(DateDeMotCle("12/3", "  44", Jour) == "12/3   44");
    CHECK(DateDeMotCle("29/2", "1821", Jour) == "29/2 1821");
    CHECK(DateDeMotCle("", "", Jour) == "     ");
}

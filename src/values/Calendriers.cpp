#include "values/Calendriers.h"

#include "messages/Messages.h"
#include "values/Texte1252.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace dorvane {

namespace {

constexpr std::array<std::string_view, 13> NomsRepublicains{
    "Vendémiaire"_1252, "Brumaire"_1252,  "Frimaire"_1252,      "Nivôse"_1252,   "Pluviôse"_1252,
    "Ventôse"_1252,     "Germinal"_1252,  "Floréal"_1252,       "Prairial"_1252, "Messidor"_1252,
    "Thermidor"_1252,   "Fructidor"_1252, "Sans-culottide"_1252};

constexpr std::array<std::string_view, 14> AnneesRepublicaines{
    "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII", "XIII", "XIV"};

constexpr std::array<std::string_view, 14> AnneesGregoriennes{
    "1792", "1793", "1794", "1795", "1796", "1797", "1798",
    "1799", "1800", "1801", "1802", "1803", "1804", "1805"};

/// Days to add, by year position 1 to 14.
using Decalages = std::array<int, 14>;

// One row to a Republican month; the columns are the years I to XIV.
constexpr std::array<Decalages, 13> VersGregorien{{
    {21, 21, 21, 21, 21, 21, 21, 22, 22, 22, 22, 23, 22, 22},
    {21, 21, 21, 21, 21, 21, 21, 22, 22, 22, 22, 23, 22, 22},
    {20, 20, 20, 21, 20, 20, 20, 21, 21, 21, 21, 22, 21, 21},
    {20, 20, 20, 21, 20, 20, 20, 21, 21, 21, 21, 22, 21, 21},
    {19, 19, 19, 20, 19, 19, 19, 20, 20, 20, 20, 21, 20, 19},
    {18, 18, 18, 19, 18, 18, 18, 19, 19, 19, 19, 20, 19, 18},
    {20, 20, 20, 20, 20, 20, 20, 21, 21, 21, 21, 21, 21, 20},
    {19, 19, 19, 19, 19, 19, 19, 20, 20, 20, 20, 20, 20, 19},
    {19, 19, 19, 19, 19, 19, 19, 20, 20, 20, 20, 20, 20, 19},
    {18, 18, 18, 18, 18, 18, 18, 19, 19, 19, 19, 19, 19, 18},
    {18, 18, 18, 18, 18, 18, 18, 19, 19, 19, 19, 19, 19, 18},
    {17, 17, 17, 17, 17, 17, 17, 18, 18, 18, 18, 18, 18, 17},
    {16, 16, 16, 16, 16, 16, 16, 17, 17, 17, 17, 17, 17, 16},
}};

// One row to a Gregorian month; the columns are the years 1792 to 1805. The calendar begins in
// September 1792: the months before it have no shift.
constexpr std::array<Decalages, 12> VersRepublicain{{
    {0, 11, 11, 11, 10, 11, 11, 11, 10, 10, 10, 10, 9, 10},
    {0, 12, 12, 12, 11, 12, 12, 12, 11, 11, 11, 11, 10, 11},
    {0, 10, 10, 10, 10, 10, 10, 10, 10, 9, 9, 9, 9, 9},
    {0, 11, 11, 11, 11, 11, 11, 11, 10, 10, 10, 10, 10, 10},
    {0, 11, 11, 11, 11, 11, 11, 11, 10, 10, 10, 10, 10, 10},
    {0, 12, 12, 12, 12, 12, 12, 12, 11, 11, 11, 11, 11, 11},
    {0, 12, 12, 12, 12, 12, 12, 12, 11, 11, 11, 11, 11, 11},
    {0, 13, 13, 13, 13, 13, 13, 13, 12, 12, 12, 12, 12, 12},
    {14, 14, 14, 14, 14, 14, 14, 14, 13, 13, 13, 13, 13, 13},
    {9, 9, 9, 8, 9, 9, 9, 8, 8, 8, 8, 7, 8, 8},
    {10, 10, 10, 9, 10, 10, 10, 9, 9, 9, 9, 8, 9, 9},
    {10, 10, 10, 9, 10, 10, 10, 9, 9, 9, 9, 8, 9, 9},
}};

template <std::size_t N>
std::string_view Rubrique(const std::array<std::string_view, N>& liste, int position) {
    if (position < 1 || position > static_cast<int>(N)) return {};
    return liste[static_cast<std::size_t>(position) - 1];
}

template <std::size_t N>
int Decalage(const std::array<Decalages, N>& table, const DateDeListe& date) {
    return table[static_cast<std::size_t>(date.mois) - 1][static_cast<std::size_t>(date.annee) - 1];
}

/// The message that refuses a date of the screen, or none.
NoMessage Refuser(const DateDeListe& date, int dernierJour, NoMessage refusDuJour, int nbMois) {
    if (date.jour < 1 || date.jour > dernierJour) return refusDuJour;
    if (date.mois < 1 || date.mois > nbMois) return message::MoisNonChoisi;
    if (date.annee < 1 || date.annee > NbAnneesRepublicaines) return message::AnneeNonChoisie;
    return {};
}

int LongueurMois(int mois, int annee) {
    if (mois == 2) {
        // The year 1800 (position 9) is read as leap, as the tables were made.
        return annee == 5 || annee == 9 || annee == 13 ? 29 : 28;
    }
    return mois == 4 || mois == 6 || mois == 9 || mois == 11 ? 30 : 31;
}

}  // namespace

std::string_view MoisRepublicain(int position) {
    return Rubrique(NomsRepublicains, position);
}

std::string_view AnneeRepublicaine(int position) {
    return Rubrique(AnneesRepublicaines, position);
}

std::string_view AnneeGregorienne(int position) {
    return Rubrique(AnneesGregoriennes, position);
}

DateConvertie RepublicainVersGregorien(const DateDeListe& date) {
    const NoMessage refus = Refuser(date, 30, message::JourHorsDe1A30, NbMoisRepublicains);
    if (refus) return {refus, {}};

    DateDeListe g{date.jour + Decalage(VersGregorien, date), date.mois + 8, date.annee};
    if (g.mois > 12) {
        g.mois -= 12;
        ++g.annee;
    }
    const int longueur = LongueurMois(g.mois, g.annee);
    if (g.jour > longueur) {
        g.jour -= longueur;
        ++g.mois;
        if (g.mois > 12) {
            g.mois = 1;
            ++g.annee;
        }
    }
    return {NoMessage{}, g};
}

DateConvertie GregorienVersRepublicain(const DateDeListe& date) {
    const NoMessage refus = Refuser(date, 31, message::JourHorsDe1A31, 12);
    if (refus) return {refus, {}};

    // k counts months from January, with a place between September and October for the
    // complementary days.
    int jour = date.jour + Decalage(VersRepublicain, date);
    int k = date.mois > 9 ? date.mois + 1 : date.mois;
    if (jour > 30) {
        const bool sextile = date.annee == 4 || date.annee == 8 || date.annee == 12;
        const int complementaires = sextile ? 6 : 5;
        if (k == 9 && jour > 30 + complementaires) {
            jour -= 30 + complementaires;
            k = 11;
        } else {
            jour -= 30;
            ++k;
        }
    }
    DateDeListe r{jour, k + 3, date.annee};
    if (r.mois > 13) {
        r.mois = k - 10;
        ++r.annee;
    }
    --r.annee;
    return {NoMessage{}, r};
}

}  // namespace dorvane

#include "values/Dates.h"

#include "values/Comparaison.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <chrono>
#include <cstddef>

namespace dorvane {

namespace {

constexpr std::array<std::string_view, 5> TextesOrdre{"dd/mm/yyyy", "mm/dd/yyyy", "yyyy/mm/dd",
                                                      "yyyy/dd/mm", "mm/yyyy/dd"};

constexpr int PremiereAnnee = 100;
constexpr int DerniereAnnee = 9999;

/// Names of a month, folded. Their first three letters are accepted, too.
struct NomsDeMois {
    std::string_view francais;
    std::string_view anglais;
};

// "JUI" begins two French months; it is read as the first of them.
constexpr std::array<NomsDeMois, 12> LesMois{{{"JANVIER", "JANUARY"},
                                              {"FEVRIER", "FEBRUARY"},
                                              {"MARS", "MARCH"},
                                              {"AVRIL", "APRIL"},
                                              {"MAI", "MAY"},
                                              {"JUIN", "JUNE"},
                                              {"JUILLET", "JULY"},
                                              {"AOUT", "AUGUST"},
                                              {"SEPTEMBRE", "SEPTEMBER"},
                                              {"OCTOBRE", "OCTOBER"},
                                              {"NOVEMBRE", "NOVEMBER"},
                                              {"DECEMBRE", "DECEMBER"}}};

using Parties = std::array<std::string_view, 3>;

/// The whole number that a text of digits spells, bounded so that no length overflows; -1 for
/// anything else.
int LireEntier(std::string_view texte) {
    if (texte.empty() || !std::ranges::all_of(texte, EstChiffre)) return -1;
    int nombre = 0;
    for (const char chiffre : texte)
        nombre = std::min(nombre * 10 + (chiffre - '0'), 1'000'000);
    return nombre;
}

int LireMois(std::string_view texte) {
    if (!texte.empty() && EstChiffre(texte[0])) return LireEntier(texte);
    const std::string replie = Replie(texte);
    const auto nomme = [&replie](std::string_view nom) {
        return replie == nom || replie == nom.substr(0, 3);
    };
    for (std::size_t i = 0; i < LesMois.size(); ++i)
        if (nomme(LesMois[i].francais) || nomme(LesMois[i].anglais)) return static_cast<int>(i) + 1;
    return -1;
}

int LireAnnee(std::string_view texte) {
    const int annee = LireEntier(texte);
    if (annee < 0 || texte.size() > 2) return annee;
    return annee < 30 ? 2000 + annee : 1900 + annee;
}

/// Cuts at one separator and nothing else: a text that mixes them is no date.
std::optional<Parties> Couper(std::string_view texte) {
    texte = SansBlancs(texte);
    const bool barres = texte.find('/') != std::string_view::npos;
    if (barres && texte.find(' ') != std::string_view::npos) return std::nullopt;
    const char separateur = barres ? '/' : ' ';

    Parties parties;
    for (std::size_t i = 0; i < parties.size(); ++i) {
        const std::size_t fin = std::min(texte.find(separateur), texte.size());
        parties[i] = texte.substr(0, fin);
        texte.remove_prefix(fin);
        if (texte.empty()) return i + 1 == parties.size() ? std::optional{parties} : std::nullopt;
        texte.remove_prefix(1);
        if (!barres) texte = SansBlancsAGauche(texte);
    }
    return std::nullopt;
}

/// At which places of a written date its day, month and year stand.
struct Places {
    std::size_t jour, mois, annee;
};

Places PlacesDe(OrdreDate ordre) {
    switch (ordre) {
        case OrdreDate::JourMoisAnnee:
            return {0, 1, 2};
        case OrdreDate::MoisJourAnnee:
            return {1, 0, 2};
        case OrdreDate::AnneeMoisJour:
            return {2, 1, 0};
        case OrdreDate::AnneeJourMois:
            return {1, 2, 0};
        case OrdreDate::MoisAnneeJour:
            return {2, 0, 1};
    }
    assert(false);
    return {0, 1, 2};
}

std::chrono::year_month_day VersCalendrier(int jour, int mois, int annee) {
    return {std::chrono::year{annee}, std::chrono::month{static_cast<unsigned>(mois)},
            std::chrono::day{static_cast<unsigned>(jour)}};
}

constexpr std::chrono::sys_days JourZero{std::chrono::year{1899} / 12 / 30};

/// A day-month-year text written in the system's order; nothing for fewer than three parts, and
/// for the orders in which no event date is taken.
std::optional<std::string> RemettreEnOrdre(std::string_view texte, OrdreDate ordre) {
    const bool barres = texte.find('/') != std::string_view::npos;
    const char separateur = barres ? '/' : ' ';
    const std::size_t un = texte.find(separateur);
    if (un == std::string_view::npos) return std::nullopt;
    const std::size_t deux = texte.find(separateur, un + 1);
    if (deux == std::string_view::npos) return std::nullopt;

    Parties p{texte.substr(0, un), texte.substr(un + 1, deux - un - 1), texte.substr(deux + 1)};
    if (barres)
        for (std::string_view& partie : p)
            partie = SansBlancs(partie);
    const auto joindre = [separateur](std::string_view a, std::string_view b, std::string_view c) {
        return std::string(a).append(1, separateur).append(b).append(1, separateur).append(c);
    };
    switch (ordre) {
        case OrdreDate::JourMoisAnnee:
            return joindre(p[0], p[1], p[2]);
        case OrdreDate::AnneeJourMois:
            return joindre(p[2], p[0], p[1]);
        case OrdreDate::AnneeMoisJour:
            return joindre(p[2], p[1], p[0]);
        case OrdreDate::MoisJourAnnee:
        case OrdreDate::MoisAnneeJour:
            // Month-first systems take no event date, on purpose: only day-first and year-first do.
            return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

std::optional<OrdreDate> LireOrdreDate(std::string_view texte) {
    const auto* const trouve = std::ranges::find(TextesOrdre, texte);
    if (trouve == TextesOrdre.end()) return std::nullopt;
    return static_cast<OrdreDate>(trouve - TextesOrdre.begin());
}

std::optional<DateCivile> LireDate(std::string_view texte, OrdreDate ordre) {
    const std::optional<Parties> parties = Couper(texte);
    if (!parties) return std::nullopt;
    const Places places = PlacesDe(ordre);
    const int jour = LireEntier((*parties)[places.jour]);
    const int mois = LireMois((*parties)[places.mois]);
    const int annee = LireAnnee((*parties)[places.annee]);
    if (jour < 1 || jour > 31 || mois < 1 || mois > 12) return std::nullopt;
    if (annee < PremiereAnnee || annee > DerniereAnnee) return std::nullopt;
    if (!VersCalendrier(jour, mois, annee).ok()) return std::nullopt;
    return DateCivile{jour, mois, annee};
}

Serie DateVersSerie(const DateCivile& date) {
    const std::chrono::sys_days jour{VersCalendrier(date.jour, date.mois, date.annee)};
    return static_cast<Serie>((jour - JourZero).count());
}

std::optional<DateCivile> SerieVersDate(Serie serie) {
    static const Serie Premiere = DateVersSerie(DateCivile{1, 1, PremiereAnnee});
    static const Serie Derniere = DateVersSerie(DateCivile{31, 12, DerniereAnnee});
    if (serie < Premiere || serie > Derniere) return std::nullopt;
    const std::chrono::year_month_day jour{JourZero + std::chrono::days{serie}};
    return DateCivile{static_cast<int>(static_cast<unsigned>(jour.day())),
                      static_cast<int>(static_cast<unsigned>(jour.month())),
                      static_cast<int>(jour.year())};
}

int JourDeSemaine(const DateCivile& date) {
    const std::chrono::sys_days jour{VersCalendrier(date.jour, date.mois, date.annee)};
    return static_cast<int>(std::chrono::weekday{jour}.c_encoding());
}

std::string PermuteJourMois(std::string_view texte, OrdreDate ordre) {
    const std::size_t barre = texte.find('/');
    if (barre == std::string_view::npos) return std::string(texte);
    switch (ordre) {
        case OrdreDate::JourMoisAnnee:
        case OrdreDate::AnneeJourMois:
            return std::string(texte);
        case OrdreDate::MoisJourAnnee:
        case OrdreDate::AnneeMoisJour:
            return std::string(texte.substr(barre + 1)).append(1, '/').append(texte, 0, barre);
        case OrdreDate::MoisAnneeJour:
            return {};
    }
    return {};
}

std::string JoindreAnnee(std::string_view jourMois, std::string_view annee, OrdreDate ordre) {
    switch (ordre) {
        case OrdreDate::JourMoisAnnee:
        case OrdreDate::MoisJourAnnee:
            return PermuteJourMois(jourMois, ordre).append(1, '/').append(annee);
        case OrdreDate::AnneeMoisJour:
        case OrdreDate::AnneeJourMois:
            return std::string(annee).append(1, '/').append(PermuteJourMois(jourMois, ordre));
        case OrdreDate::MoisAnneeJour:
            return {};
    }
    return {};
}

bool DateValide(std::string_view texte, OrdreDate ordre) {
    return DateVersSerie(texte, ordre).has_value();
}

std::optional<Serie> DateVersSerie(std::string_view texte, OrdreDate ordre) {
    const std::optional<std::string> ecrite = RemettreEnOrdre(texte, ordre);
    if (!ecrite) return std::nullopt;
    const std::optional<DateCivile> date = LireDate(*ecrite, ordre);
    if (!date) return std::nullopt;
    return DateVersSerie(*date);
}

}  // namespace dorvane

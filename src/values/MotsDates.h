#pragma once

#include "values/Dates.h"
#include "values/Numeros.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace dorvane {

/// A word of the catalogue and its comparison form.
struct MotDate {
    std::string mot;
    std::string replie;
};

/// The words of dates in the language of the catalogue, in code page 1252.
struct MotsDates {
    std::array<MotDate, 12> mois;        ///< January to December
    std::array<std::string, 7> semaine;  ///< Sunday to Saturday
    MotDate vers, apres, avant, estimee, entre, et, calculee;
    MotDate premier;  ///< the word for the first day of a month
};

/// Takes the words from a catalogue, which answers the text of a message.
[[nodiscard]] MotsDates LireMotsDates(const std::function<std::string(NoMessage)>& texteDe);

/// Replaces the word for the first day, where it has a blank on each side or stands at the head
/// and has one behind it, by "1". The case must be that of the catalogue.
[[nodiscard]] std::string CvtPremierDuMois(std::string_view texte, const MotsDates& mots);

/// The entry rule of every day-month field: the text to store for what was typed. "12 mars" gives
/// "12/3"; words of dates give tokens in upper case; a text without any stays as typed. Words are
/// replaced inside longer ones too: the field is meant for dates. Nothing is ever refused.
[[nodiscard]] std::string CvtSaisieDate(std::string_view saisie, OrdreDate ordre,
                                        const MotsDates& mots);

/// What the user sees of a stored day-month text; a year behind it is dropped.
[[nodiscard]] std::string CvtDateAffichage(std::string_view jourMois, const MotsDates& mots);

/// A date in tokens or English words, written in the words of the catalogue. A word is seen when it
/// has a blank behind it, so the last one of a text stays.
[[nodiscard]] std::string CvtDateLocale(std::string_view texte, const MotsDates& mots);

/// A date in French or English words, folded, written in tokens. The last word of the text stays:
/// a date ends in its year.
[[nodiscard]] std::string CvtDateMotsCles(std::string_view texte);

/// The weekday of a displayed date ("1er mars 1820") and a blank; empty when it is no date.
[[nodiscard]] std::string NomJourSemaine(std::string_view date, OrdreDate ordre,
                                         const MotsDates& mots);

/// How an event date is shown: "1er mars 1820", the year without padding. Empty outside the years
/// 100 to 9999.
[[nodiscard]] std::string AfficherDateEvenement(Serie serie, const MotsDates& mots);

/// The serial for what was typed as the date of an event; nothing when it is no whole date.
[[nodiscard]] std::optional<Serie> SaisirDateEvenement(std::string_view saisie, OrdreDate ordre,
                                                       const MotsDates& mots);

/// What a field becomes when it loses focus: a whole pair of day and month is written in words
/// ("12/3" becomes "12 mars"). Other texts stay.
[[nodiscard]] std::string QuitterJourMois(std::string_view saisie, OrdreDate ordre,
                                          const MotsDates& mots);

/// The date of a keyword as its index text holds it: "d/m/yyyy" when day, month and year are a
/// date; otherwise the text, a blank, and the year padded on the left with blanks to 4.
[[nodiscard]] std::string DateDeMotCle(std::string_view jourMois, std::string_view annee,
                                       OrdreDate ordre);

}  // namespace dorvane

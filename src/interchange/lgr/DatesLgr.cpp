#include "interchange/lgr/DatesLgr.h"

#include "values/Comparaison.h"
#include "values/Dates.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

constexpr std::size_t TailleAnnee = 4;
constexpr std::string_view Jusque = " - ";

bool EstLettre(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Day and month and a year that the date check takes when joined by "/". A year of two digits
/// would be read as one of our own time.
bool EstJourEntier(std::string_view jourMois, std::string_view annee) {
    if (annee.size() < 3 || !std::ranges::all_of(annee, EstChiffre)) return false;
    if (jourMois.empty() || !EstChiffre(jourMois.front())) return false;
    return EstDate(std::string{jourMois}.append(1, '/').append(annee), OrdreDate::JourMoisAnnee);
}

std::string Cadrer(std::string_view annee) {
    annee = annee.substr(0, TailleAnnee);
    return std::string(TailleAnnee - annee.size(), ' ').append(annee);
}

/// Four characters that a reader would take for a word and not for a year.
bool EstMot(std::string_view quatre) {
    return std::ranges::all_of(quatre, EstLettre);
}

}  // namespace

std::string EcrireDateLgr(std::string_view jourMois, std::string_view annee) {
    annee = SansBlancs(annee);
    if (jourMois.empty()) {
        if (annee.empty()) return {};
        // A blank in front keeps an odd year apart from a day without its year.
        const bool ambigue = annee.find('/') != std::string_view::npos;
        return (ambigue ? " " : "") + Cadrer(annee);
    }
    if (EstJourEntier(jourMois, annee)) return std::string{jourMois}.append(1, '/').append(annee);
    const std::string quatre = Cadrer(annee);
    return std::string{jourMois}.append(EstMot(quatre) ? "  " : " ").append(quatre);
}

DateLgr LireDateLgr(std::string_view texte) {
    if (const std::size_t barre = texte.rfind('/'); barre != std::string_view::npos) {
        const std::string_view annee = SansBlancs(texte.substr(barre + 1));
        if (EstJourEntier(texte.substr(0, barre), annee))
            return {std::string{texte.substr(0, barre)}, std::string{annee}};
    }
    if (texte.size() <= TailleAnnee) {
        // "12/3": the blanks of its missing year were lost.
        if (texte.find('/') != std::string_view::npos) return {std::string{texte}, {}};
        return {{}, std::string{SansBlancs(texte)}};
    }
    const std::string_view quatre = texte.substr(texte.size() - TailleAnnee);
    std::string_view mots = texte.substr(0, texte.size() - TailleAnnee);
    // "12 mars": the same.
    if (EstMot(quatre) && (!mots.ends_with(' ') || !mots.ends_with("  ")))
        return {std::string{texte}, {}};
    if (mots.ends_with(' ')) mots.remove_suffix(EstMot(quatre) ? 2 : 1);
    return {std::string{mots}, std::string{SansBlancs(quatre)}};
}

std::string EcrireDatesUnionLgr(const DatesUnionLgr& dates) {
    std::string texte = EcrireDateLgr(dates.debut.jourMois, dates.debut.annee);
    const std::string_view fin = SansBlancs(dates.fin);
    // A beginning that ends like a year of the end is told apart by an empty one.
    if (fin.empty() && LireDatesUnionLgr(texte).debut == LireDateLgr(texte)) return texte;
    return texte.append(Jusque).append(Cadrer(fin));
}

DatesUnionLgr LireDatesUnionLgr(std::string_view texte) {
    const std::size_t place = texte.rfind(Jusque);
    if (place != std::string_view::npos) {
        const std::string_view fin = texte.substr(place + Jusque.size());
        if (fin.size() <= TailleAnnee)
            return {LireDateLgr(texte.substr(0, place)), std::string{SansBlancs(fin)}};
    }
    return {LireDateLgr(texte), {}};
}

bool EstAnneeSeule(std::string_view texte) {
    return !texte.empty() && texte.size() <= TailleAnnee &&
           std::ranges::all_of(texte, [](char c) { return EstChiffre(c) || c == '-' || c == '?'; });
}

}  // namespace dorvane::interchange

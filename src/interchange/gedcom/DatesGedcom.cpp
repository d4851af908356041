#include "interchange/gedcom/DatesGedcom.h"

#include "values/Calendriers.h"
#include "values/Comparaison.h"
#include "values/Dates.h"
#include "values/MotsDates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace dorvane::interchange {
namespace {

constexpr std::string_view Mois = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";

/// The number of an English month of three capitals, 0 for none.
int NumeroDuMois(std::string_view mot) {
    if (mot.size() != 3) return 0;
    for (std::size_t i = 0; i < Mois.size(); i += 3)
        if (Mois.substr(i, 3) == mot) return static_cast<int>(i / 3 + 1);
    return 0;
}

bool TousChiffres(std::string_view texte) {
    return !texte.empty() && std::ranges::all_of(texte, EstChiffre);
}

/// "12 MAY" as "12/5"; nothing when it is not a day and a month.
std::optional<std::string> JourEtMois(std::string_view texte) {
    const std::size_t blanc = texte.find(' ');
    if (blanc == std::string_view::npos || blanc == 0 || blanc > 2) return std::nullopt;
    const int mois = NumeroDuMois(texte.substr(blanc + 1));
    if (mois == 0 || !TousChiffres(texte.substr(0, blanc))) return std::nullopt;
    std::string jourMois{texte.substr(0, blanc)};
    jourMois += '/';
    if (mois > 9) jourMois += '1';
    jourMois += static_cast<char>('0' + mois % 10);
    return jourMois;
}

/// The two forms that most dates of a file have, "1640" and "12 MAY 1640", behind one known
/// qualifier or none. Nothing for any other, which takes the long way to the same answer.
std::optional<DateLue> LireDateSimple(std::string_view valeur) {
    if (valeur.size() < 4 || !TousChiffres(valeur.substr(valeur.size() - 4))) return std::nullopt;
    DateLue date;
    date.annee = valeur.substr(valeur.size() - 4);
    std::string_view tete = valeur.substr(0, valeur.size() - 4);
    if (tete.empty()) return date;
    if (tete.back() != ' ') return std::nullopt;
    tete.remove_suffix(1);
    constexpr std::array<std::string_view, 5> Qualificatifs{"ABT", "BEF", "AFT", "EST", "CAL"};
    if (std::ranges::find(Qualificatifs, tete) != Qualificatifs.end()) {
        date.jourMois = tete;
        return date;
    }
    std::optional<std::string> jourMois = JourEtMois(tete);
    if (!jourMois) return std::nullopt;
    date.jourMois = std::move(*jourMois);
    return date;
}

/// "44 BC" at the end of a folded text becomes "-44"; folding has made "B C" of "B.C.".
void ConvertirAvantJC(std::string& texte) {
    const std::size_t longueur = texte.ends_with("BC") ? 2 : texte.ends_with("B C") ? 3 : 0;
    if (longueur == 0) return;
    texte.resize(texte.size() - longueur);
    while (!texte.empty() && texte.back() == ' ')
        texte.pop_back();
    const std::size_t blanc = texte.rfind(' ');
    texte.insert(blanc == std::string::npos ? 0 : blanc + 1, 1, '-');
}

struct DateRepublicaine {
    std::string_view prefixe;  ///< what stands in front of the escape ("ABT ")
    DateDeListe date;
};

/// "@#DFRENCH R@ 13 VEND 4"; nothing when the day, month or year is missing or unknown.
std::optional<DateRepublicaine> LireRepublicaine(std::string_view valeur) {
    constexpr std::string_view Echappement = "@#DFRENCH R@";
    constexpr std::array<std::string_view, NbMoisRepublicains> MoisGedcom{
        "VEND", "BRUM", "FRIM", "NIVO", "PLUV", "VENT", "GERM",
        "FLOR", "PRAI", "MESS", "THER", "FRUC", "COMP"};
    const std::size_t ou = valeur.find(Echappement);
    if (ou == std::string_view::npos) return std::nullopt;
    std::string_view reste = SansBlancs(valeur.substr(ou + Echappement.size()));

    DateRepublicaine lue{valeur.substr(0, ou), {}};
    const auto nombre = [](std::string_view mot, int& valeurLue) {
        const auto [fin, erreur] = std::from_chars(mot.data(), mot.data() + mot.size(), valeurLue);
        return erreur == std::errc{} && fin == mot.data() + mot.size();
    };
    const std::size_t b1 = reste.find(' ');
    const std::size_t b2 = b1 == std::string_view::npos ? b1 : reste.find(' ', b1 + 1);
    if (b2 == std::string_view::npos || !nombre(reste.substr(0, b1), lue.date.jour) ||
        !nombre(reste.substr(b2 + 1), lue.date.annee))
        return std::nullopt;
    const auto* const mois = std::ranges::find(MoisGedcom, reste.substr(b1 + 1, b2 - b1 - 1));
    if (mois == MoisGedcom.end()) return std::nullopt;
    lue.date.mois = static_cast<int>(mois - MoisGedcom.begin()) + 1;
    return lue;
}

/// The date with its calendar brought to the Gregorian one where that can be done.
std::string SansEchappement(std::string_view valeur) {
    constexpr std::string_view Gregorien = "@#DGREGORIAN@";
    std::string texte{valeur};
    if (const std::size_t ou = texte.find(Gregorien); ou != std::string::npos) {
        texte.erase(ou, Gregorien.size());
        return std::string{SansBlancs(texte)};
    }
    const auto republicaine = LireRepublicaine(valeur);
    if (!republicaine) return texte;
    const DateConvertie convertie = RepublicainVersGregorien(republicaine->date);
    const std::string_view annee = AnneeGregorienne(convertie.date.annee);
    if (convertie.refus || annee.empty() || convertie.date.mois < 1 || convertie.date.mois > 12)
        return texte;
    texte = republicaine->prefixe;
    texte += std::to_string(convertie.date.jour) + ' ';
    texte += Mois.substr(static_cast<std::size_t>(convertie.date.mois - 1) * 3, 3);
    texte.append(1, ' ').append(annee);
    return texte;
}

}  // namespace

DateLue LireDateGedcom(std::string_view valeur) {
    valeur = SansBlancs(valeur);
    if (auto simple = LireDateSimple(valeur)) return *simple;

    std::string texte =
        valeur.find("@#") == std::string_view::npos ? std::string{valeur} : SansEchappement(valeur);
    texte = SansBlancs(CvtDateMotsCles(texte));
    ConvertirAvantJC(texte);
    std::ranges::replace(texte, ';', ',');
    DateLue date;
    if (texte.size() < 4) {
        date.annee = texte;
        return date;
    }
    date.annee = SansBlancs(std::string_view{texte}.substr(texte.size() - 4));
    std::string_view tete = SansBlancs(std::string_view{texte}.substr(0, texte.size() - 4));
    // "12/5/1800": the bar in front of the year belongs to neither.
    if (tete.size() > 3 && tete.back() == '/' && EstChiffre(tete.front())) tete.remove_suffix(1);
    if (auto jourMois = JourEtMois(tete))
        date.jourMois = std::move(*jourMois);
    else
        date.jourMois = tete;
    return date;
}

std::string DateEntiere(const DateLue& date) {
    std::string texte = date.jourMois + '/' + date.annee;
    return !date.jourMois.empty() && DateValide(texte, OrdreDate::JourMoisAnnee) ? texte
                                                                                 : std::string{};
}

namespace {

std::string_view NomDuMois(int mois) {
    return Mois.substr(static_cast<std::size_t>(mois - 1) * 3, 3);
}

/// A word of a stored date: "12/5" in the words of the format, any other as it stands.
std::string EcrireMot(std::string_view mot) {
    const std::size_t barre = mot.find('/');
    if (barre == std::string_view::npos) return std::string{mot};
    const std::string_view jour = mot.substr(0, barre);
    const std::string_view mois = mot.substr(barre + 1);
    int numero = 0;
    std::from_chars(mois.data(), mois.data() + mois.size(), numero);
    if (!TousChiffres(jour) || !TousChiffres(mois) || numero < 1 || numero > 12)
        return std::string{mot};
    return std::string{jour} + ' ' + std::string{NomDuMois(numero)};
}

}  // namespace

std::string EcrireDateGedcom(std::string_view jourMois, std::string_view annee) {
    std::string date;
    for (std::string_view reste = SansBlancs(jourMois); !reste.empty();) {
        const std::size_t fin = std::min(reste.find(' '), reste.size());
        if (!date.empty()) date += ' ';
        date += EcrireMot(reste.substr(0, fin));
        reste = SansBlancsAGauche(reste.substr(fin));
    }
    annee = SansBlancs(annee);
    if (annee.empty()) return date;
    if (!date.empty()) date += ' ';
    const bool avant = annee.front() == '-' && TousChiffres(annee.substr(1));
    return date += avant ? std::string{annee.substr(1)} + " BC" : std::string{annee};
}

std::string EcrireJourGedcom(int jour, int mois, int annee) {
    return std::to_string(jour) + ' ' + std::string{NomDuMois(mois)} + ' ' + std::to_string(annee);
}

}  // namespace dorvane::interchange

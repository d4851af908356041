#include "values/Phonetique.h"

#include "values/Comparaison.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace dorvane {

namespace {

constexpr std::size_t Longueur = 4;
constexpr std::string_view CleVide = "0000";
constexpr char Absente = '\0';

/// The letter at `rang`, from 0; `Absente` past the end, which is no vowel and like no letter.
char Lettre(std::string_view texte, std::size_t rang) {
    return rang < texte.size() ? texte[rang] : Absente;
}

bool EstVoyelle(char lettre) {
    return lettre != Absente && std::string_view("AEIOUY").find(lettre) != std::string_view::npos;
}

/// The code of a letter, or '0' for one that has none.
char Classe(char lettre) {
    switch (lettre) {
        case 'B':
        case 'P':
            return 'B';
        case 'C':
        case 'K':
        case 'Q':
            return 'C';
        case 'D':
        case 'T':
            return 'D';
        case 'L':
            return 'L';
        case 'M':
        case 'N':
            return 'M';
        case 'R':
            return 'R';
        case 'G':
        case 'J':
            return 'G';
        case 'S':
        case 'X':
        case 'Z':
            return 'S';
        case 'F':
        case 'V':
            return 'F';
        default:
            return '0';
    }
}

void RemplacerPremier(std::string& s, std::string_view cherche, std::string_view valeur) {
    const std::size_t place = s.find(cherche);
    if (place != std::string::npos) s.replace(place, cherche.size(), valeur);
}

/// A pair such as "ST", past the head, becomes its second letter. What follows is taken from two
/// places behind the first such letter of the text, not behind the pair: the letter that is lost
/// ("BASTIEN" gives "BATEN") is a trait of the key and known keys hang on it.
void ReduirePaire(std::string& s, std::string_view paire) {
    const std::size_t place = s.find(paire);
    if (place == std::string::npos || place == 0) return;
    const std::size_t suite = s.find(paire[1]) + 2;
    std::string reduit = s.substr(0, place) + paire[1];
    if (suite < s.size()) reduit.append(s, suite);
    s = std::move(reduit);
}

void RemplacerTete(std::string& s, std::string_view tete, std::string_view valeur) {
    if (s.starts_with(tete)) s.replace(0, tete.size(), valeur);
}

void ReduireConsonnes(std::string& s) {
    RemplacerTete(s, "H", "");
    RemplacerPremier(s, "PH", "F");
    RemplacerPremier(s, "CH", "S");
    RemplacerPremier(s, "CE", "SE");
    RemplacerPremier(s, "CI", "SI");
    RemplacerPremier(s, "CY", "SI");
    RemplacerPremier(s, "GN", "N");
    for (const std::string_view paire : {"ST", "SN", "LN", "SM"})
        ReduirePaire(s, paire);
    if (s.ends_with("ER")) s.pop_back();
}

void ReduireTete(std::string& s) {
    if (s.starts_with('C')) {
        const char suivante = Lettre(s, 1);
        s[0] = suivante == 'E' || suivante == 'I' || suivante == 'Y' ? 'S' : 'K';
    }
    if (s.starts_with("GE") || s.starts_with("GI") || s.starts_with("GY")) s[0] = 'J';
    RemplacerTete(s, "Y", "I");
    RemplacerTete(s, "QU", "K");
    RemplacerTete(s, "W", "V");
    RemplacerTete(s, "AU", "O");
    RemplacerTete(s, "EAU", "O");
}

/// True when the last letter of the nasal of `longueur` letters at the head sounds as one: what
/// follows is neither the same letter nor a vowel.
bool EstNasale(std::string_view s, std::size_t longueur) {
    const char suivante = Lettre(s, longueur);
    return s[longueur - 1] != suivante && !EstVoyelle(suivante);
}

bool CommenceParUnDe(std::string_view s, const std::array<std::string_view, 4>& tetes) {
    return std::ranges::any_of(tetes, [s](std::string_view t) { return s.starts_with(t); });
}

void ReduireNasale(std::string& s) {
    if (CommenceParUnDe(s, {"EN", "EM", "AN", "AM"}) && EstNasale(s, 2))
        s.replace(0, 2, "1");
    else if (CommenceParUnDe(s, {"IN", "IM", "UN", "UM"}) && EstNasale(s, 2))
        s.replace(0, 2, "2");
    else if (s.starts_with("OU") && !EstVoyelle(Lettre(s, 2)))
        s.replace(0, 2, "3");
    if (CommenceParUnDe(s, {"AIN", "AIM", "EIN", "EIM"}) && EstNasale(s, 3)) s.replace(0, 3, "2");
}

void ReduireFin(std::string& s) {
    if (s.ends_with('S')) s.pop_back();
    if (s.size() > 1 && !EstVoyelle(s[s.size() - 1]) && !EstVoyelle(s[s.size() - 2])) s.pop_back();
    if (s.ends_with('X')) s.pop_back();
}

std::string SansSuites(std::string_view codes) {
    std::string sortie;
    for (const char code : codes)
        if (sortie.empty() || sortie.back() != code) sortie.push_back(code);
    return sortie;
}

/// One letter more in `b` is tolerated: `a` is walked, and `b` may be left behind once.
bool SAlignent(std::string_view a, std::string_view b) {
    std::size_t j = 0;
    for (std::size_t i = 0; i < Longueur - 1; ++i) {
        if (Lettre(a, i) == Lettre(b, j))
            ++j;
        else if (j == i && Lettre(a, i) == Lettre(b, i + 1))
            j = i + 2;
        else
            return false;
    }
    return true;
}

std::string AvecClasse(std::string_view cle) {
    std::string sortie(cle.substr(0, Longueur));
    if (!sortie.empty()) sortie[0] = Classe(sortie[0]);
    return sortie;
}

}  // namespace

std::string ClePhonetique(std::string_view nom) {
    const std::string replie = Replie(nom);
    std::string s(SansBlancs(replie));
    if (s.size() > 1) {
        ReduireConsonnes(s);
        ReduireTete(s);
        ReduireNasale(s);
        ReduireFin(s);
    }

    std::string codes = s.substr(0, 1);
    for (std::size_t i = 1; i < s.size(); ++i) {
        const char classe = Classe(s[i]);
        if (classe != '0') codes.push_back(classe);
    }
    std::string cle = SansSuites(codes);
    cle.resize(Longueur, '0');
    return cle;
}

bool ClesProches(std::string_view a, std::string_view b) {
    if (a == b || a == CleVide || b == CleVide) return true;
    const std::string x = AvecClasse(a);
    const std::string y = AvecClasse(b);
    std::size_t communes = 0;
    for (std::size_t i = 0; i < Longueur; ++i)
        if (Lettre(x, i) == Lettre(y, i)) ++communes;
    return communes >= Longueur - 1 || SAlignent(x, y) || SAlignent(y, x);
}

}  // namespace dorvane

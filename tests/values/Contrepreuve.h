#pragma once

#include "values/Texte1252.h"

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// A second writing of some rules on values, as naive and as near to their wording as can be: texts
// are walked by 1-based positions and copied at each step. It uses nothing of the program but the
// code page, and is slow on purpose.
namespace dorvane::contrepreuve {

/// The first place of `cherche` from 1 on, 0 when it is not there; an empty one is nowhere.
inline std::size_t Ou(const std::string& texte, const std::string& cherche) {
    if (cherche.empty()) return 0;
    const std::size_t place = texte.find(cherche);
    return place == std::string::npos ? 0 : place + 1;
}
inline std::string Gauche(const std::string& texte, std::size_t nombre) {
    return texte.substr(0, nombre);
}
inline std::string Droite(const std::string& texte, std::size_t nombre) {
    return texte.size() <= nombre ? texte : texte.substr(texte.size() - nombre);
}
/// From 1-based `debut` on; empty past the end.
inline std::string Milieu(const std::string& texte, std::size_t debut,
                          std::size_t nombre = std::string::npos) {
    return debut > texte.size() ? std::string() : texte.substr(debut - 1, nombre);
}
inline std::string Rogne(std::string texte) {
    while (!texte.empty() && texte.front() == ' ')
        texte.erase(0, 1);
    while (!texte.empty() && texte.back() == ' ')
        texte.pop_back();
    return texte;
}
inline bool Dans(char c, std::string_view ensemble) {
    return ensemble.find(c) != std::string_view::npos;
}
inline bool Numerique(const std::string& texte) {
    std::string t = Rogne(texte);
    if (!t.empty() && Dans(t[0], "+-")) t.erase(0, 1);
    if (t.empty()) return false;
    for (const char c : t)
        if (!Dans(c, "0123456789")) return false;
    return true;
}

inline constexpr std::string_view Petites =
    "abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþœšžÿ"_1252;
inline constexpr std::string_view Grandes =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŒŠŽŸ"_1252;

inline char Change(char c, std::string_view de, std::string_view vers) {
    const std::size_t place = de.find(c);
    return place == std::string_view::npos ? c : vers[place];
}
inline std::string Majuscules(std::string texte) {
    for (char& c : texte)
        c = Change(c, Petites, Grandes);
    return texte;
}
inline std::string Minuscules(std::string texte) {
    for (char& c : texte)
        c = Change(c, Grandes, Petites);
    return texte;
}

inline std::string Plie(const std::string& texte) {
    std::string sortie;
    for (const char c : Majuscules(texte)) {
        if (Dans(c, "ÈÉÊË"_1252))
            sortie += 'E';
        else if (Dans(c, "ÀÁÂÃÄÅ"_1252))
            sortie += 'A';
        else if (Dans(c, "Ç"_1252))
            sortie += 'C';
        else if (Dans(c, "ÌÍÎÏ"_1252))
            sortie += 'I';
        else if (Dans(c, "Ñ"_1252))
            sortie += 'N';
        else if (Dans(c, "ÒÓÔÕÖØ"_1252))
            sortie += 'O';
        else if (Dans(c, "ÙÚÛÜ"_1252))
            sortie += 'U';
        else if (Dans(c, "Ð"_1252))
            sortie += 'D';
        else if (Dans(c, "Ý"_1252))
            sortie += 'Y';
        else if (Dans(c, "'-._’´,;:"_1252))
            sortie += ' ';
        else
            sortie += c;
    }
    return sortie;
}

/// Texts made by chance of the words given, with separators between them and letters that stray.
class Hasard {
public:
    Hasard(std::uint32_t graine, std::vector<std::string> mots)
        : tirage_{graine}, mots_{std::move(mots)} {}

    std::size_t Nombre(std::size_t auPlus) { return tirage_() % (auPlus + 1); }

    std::string Texte() {
        static constexpr std::array<std::string_view, 14> Entre{
            " ", " ", " ", " ", " ", "  ", "-", "/", "'", ".", "", "", "’"_1252, "_"};
        std::string texte;
        if (Nombre(9) == 0) texte += Entre[Nombre(Entre.size() - 1)];
        for (std::size_t i = Nombre(6); i > 0; --i) {
            texte += Mot();
            if (i > 1) texte += Entre[Nombre(Entre.size() - 1)];
        }
        if (Nombre(9) == 0) texte += Entre[Nombre(Entre.size() - 1)];
        return texte;
    }

private:
    std::string Mot() {
        std::string mot = mots_[Nombre(mots_.size() - 1)];
        switch (Nombre(7)) {
            case 0:
                return Majuscules(mot);
            case 1:
                return Minuscules(mot);
            case 2:
                if (!mot.empty()) mot[Nombre(mot.size() - 1)] = static_cast<char>(Nombre(255));
                return mot;
            default:
                return mot;
        }
    }

    std::mt19937 tirage_;
    std::vector<std::string> mots_;
};

/// A table of words as a list that a `Hasard` takes.
template <std::size_t N>
std::vector<std::string> Liste(const std::array<std::string_view, N>& mots) {
    return {mots.begin(), mots.end()};
}

}  // namespace dorvane::contrepreuve

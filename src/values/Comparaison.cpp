#include "values/Comparaison.h"

#include "values/Texte1252.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace dorvane {

namespace {

constexpr std::size_t Rang(char octet) {
    return static_cast<unsigned char>(octet);
}

using Table = std::array<char, 256>;

constexpr Table Identite() {
    Table table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<char>(i);
    return table;
}

// The pairs that stand apart from the two regular rows of the code page.
constexpr std::string_view HorsRangMinuscules = "œšžÿ"_1252;
constexpr std::string_view HorsRangMajuscules = "ŒŠŽŸ"_1252;

constexpr void AjouterPaire(Table& versMajuscule, Table& versMinuscule, std::size_t majuscule,
                            std::size_t minuscule) {
    versMajuscule[minuscule] = static_cast<char>(majuscule);
    versMinuscule[majuscule] = static_cast<char>(minuscule);
}

struct Casses {
    Table majuscules = Identite();
    Table minuscules = Identite();

    constexpr Casses() {
        for (std::size_t i = 'A'; i <= 'Z'; ++i)
            AjouterPaire(majuscules, minuscules, i, i + 32);
        for (std::size_t i = 0xC0; i <= 0xDE; ++i)
            if (i != Rang(u'×'_1252)) AjouterPaire(majuscules, minuscules, i, i + 32);
        for (std::size_t i = 0; i < HorsRangMajuscules.size(); ++i)
            AjouterPaire(majuscules, minuscules, Rang(HorsRangMajuscules[i]),
                         Rang(HorsRangMinuscules[i]));
    }
};

constexpr Casses LesCasses;

constexpr void Remplacer(Table& table, std::string_view octets, char valeur) {
    for (const char octet : octets)
        table[Rang(octet)] = valeur;
}

constexpr Table FaireTableReplie() {
    Table replis = Identite();
    Remplacer(replis, "ÈÉÊË"_1252, 'E');
    Remplacer(replis, "ÀÁÂÃÄÅ"_1252, 'A');
    Remplacer(replis, "Ç"_1252, 'C');
    Remplacer(replis, "ÌÍÎÏ"_1252, 'I');
    Remplacer(replis, "Ñ"_1252, 'N');
    Remplacer(replis, "ÒÓÔÕÖØ"_1252, 'O');
    Remplacer(replis, "ÙÚÛÜ"_1252, 'U');
    Remplacer(replis, "Ð"_1252, 'D');
    Remplacer(replis, "Ý"_1252, 'Y');
    Remplacer(replis, "'-._’´,;:"_1252, ' ');

    Table table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = replis[Rang(LesCasses.majuscules[i])];
    return table;
}

std::string Traduire(std::string_view texte, const Table& table) {
    std::string sortie(texte);
    for (char& octet : sortie)
        octet = table[Rang(octet)];
    return sortie;
}

}  // namespace

constinit const std::array<char, 256> TableReplie = FaireTableReplie();

char EnMajuscule(char octet) {
    return LesCasses.majuscules[Rang(octet)];
}

char EnMinuscule(char octet) {
    return LesCasses.minuscules[Rang(octet)];
}

std::string EnMajuscules(std::string_view texte) {
    return Traduire(texte, LesCasses.majuscules);
}

std::string EnMinuscules(std::string_view texte) {
    return Traduire(texte, LesCasses.minuscules);
}

std::string Replie(std::string_view texte) {
    return Traduire(texte, TableReplie);
}

void ReplieDans(std::string& sortie, std::string_view texte) {
    const std::size_t debut = sortie.size();
    sortie.resize(debut + texte.size());
    char* place = sortie.data() + debut;
    for (const char octet : texte)
        *place++ = TableReplie[Rang(octet)];
}

int CompareReplies(std::string_view a, std::string_view b) {
    const std::size_t commun = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < commun; ++i) {
        const auto x = static_cast<unsigned char>(TableReplie[Rang(a[i])]);
        const auto y = static_cast<unsigned char>(TableReplie[Rang(b[i])]);
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::vector<std::string> CouperEnMots(std::string_view texte) {
    std::vector<std::string> mots;
    for (std::size_t i = 0; i < texte.size();) {
        const std::size_t fin = std::min(texte.find(' ', i), texte.size());
        if (fin > i) mots.emplace_back(texte.substr(i, fin - i));
        i = fin + 1;
    }
    return mots;
}

bool ContientTout(std::string_view texte, const std::vector<std::string>& mots) {
    return std::ranges::all_of(mots, [texte](const std::string& mot) {
        return texte.find(mot) != std::string_view::npos;
    });
}

std::string_view SansBlancsAGauche(std::string_view texte) {
    const std::size_t debut = texte.find_first_not_of(' ');
    return debut == std::string_view::npos ? texte.substr(texte.size()) : texte.substr(debut);
}

std::string_view SansBlancsADroite(std::string_view texte) {
    return texte.substr(0, texte.find_last_not_of(' ') + 1);
}

std::string_view SansBlancs(std::string_view texte) {
    return SansBlancsADroite(SansBlancsAGauche(texte));
}

std::string BlancsEnPoints(std::string_view texte) {
    std::string sortie(SansBlancs(texte));
    std::ranges::replace(sortie, ' ', '.');
    return sortie;
}

std::string PointsEnBlancs(std::string_view texte) {
    std::string sortie(SansBlancs(texte));
    std::ranges::replace(sortie, '.', ' ');
    return sortie;
}

bool EstNumerique(std::string_view texte) {
    texte = SansBlancs(texte);
    if (!texte.empty() && (texte[0] == '+' || texte[0] == '-')) texte.remove_prefix(1);
    return !texte.empty() && std::ranges::all_of(texte, EstChiffre);
}

void RemplacerTout(std::string& texte, std::string_view cherche, std::string_view valeur) {
    if (cherche.empty()) return;
    std::size_t place = texte.find(cherche);
    if (place == std::string::npos) return;

    std::string sortie;
    sortie.reserve(texte.size());
    std::size_t lu = 0;
    for (; place != std::string::npos; place = texte.find(cherche, lu)) {
        sortie.append(texte, lu, place - lu).append(valeur);
        lu = place + cherche.size();
    }
    sortie.append(texte, lu);
    texte = std::move(sortie);
}

}  // namespace dorvane

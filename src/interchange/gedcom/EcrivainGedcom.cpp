#include "interchange/gedcom/EcrivainGedcom.h"

#include "values/Comparaison.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace dorvane::interchange {

namespace {

constexpr std::size_t LongueurAuPlus = 60;  ///< characters of a text on one line
/// Bytes of a value on one line: with level and tag no line is longer than 255.
constexpr std::size_t ValeurAuPlus = 240;

/// Names, dates and references are one line whatever their length: no reader joins them again.
constexpr std::array<std::string_view, 7> Insecables{"NAME", "DATE", "FILE", "REFN",
                                                     "RELA", "ROLE", "CONT"};

/// A value as a file can hold it: marks twice, no control character but the ends of lines.
std::string Preparer(std::string_view valeur) {
    std::string prete{valeur};
    RemplacerTout(prete, "@", "@@");
    std::ranges::replace_if(
        prete, [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\r' && c != '\n'; },
        ' ');
    return prete;
}

/// Nothing in it is to be changed.
bool EstPrete(std::string_view valeur) {
    return std::ranges::none_of(
        valeur, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '@'; });
}

std::string Prefixe(int niveau, std::string_view etiquette) {
    return std::to_string(niveau) + ' ' + std::string{etiquette} + ' ';
}

}  // namespace

void EcrivainGedcom::Debuter(int niveau, std::string_view etiquette) {
    sortie_ += static_cast<char>('0' + niveau);
    sortie_ += ' ';
    sortie_ += etiquette;
}

void EcrivainGedcom::Numero(char sorte, std::uint32_t numero) {
    std::array<char, 10> chiffres{};
    const auto [fin, erreur] =
        std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), numero);
    sortie_ += '@';
    sortie_ += sorte;
    sortie_.append(chiffres.data(), fin);
    sortie_ += '@';
}

void EcrivainGedcom::Encoder(std::string& sortie, std::string_view texte) {
    encodeur_.Ecrire(sortie, texte);
    perdus_ += encodeur_.Perdus(texte);
}

void EcrivainGedcom::Ligne(int niveau, std::string_view etiquette) {
    Debuter(niveau, etiquette);
    Finir();
}

bool EcrivainGedcom::Valeur(int niveau, std::string_view etiquette, std::string_view valeur) {
    std::string prete;
    if (!EstPrete(valeur)) {
        prete = Preparer(valeur);
        RemplacerTout(prete, "\r\n", " ");
        std::ranges::replace(prete, '\r', ' ');
        std::ranges::replace(prete, '\n', ' ');
        valeur = prete;
    }
    const std::string_view texte = SansBlancs(valeur);
    if (texte.empty()) return false;
    const std::size_t debut = sortie_.size();
    Debuter(niveau, etiquette);
    sortie_ += ' ';
    const std::size_t ou = sortie_.size();
    Encoder(sortie_, texte);
    if (sortie_.size() - ou > ValeurAuPlus &&
        std::ranges::find(Insecables, etiquette) == Insecables.end()) {
        const std::string octets = sortie_.substr(ou);
        sortie_.resize(debut);
        Paragraphe(Prefixe(niveau, etiquette), Prefixe(niveau + 1, "CONC"), octets);
        return true;
    }
    Finir();
    return true;
}

void EcrivainGedcom::Renvoi(int niveau, std::string_view etiquette, char sorte,
                            std::uint32_t numero) {
    Debuter(niveau, etiquette);
    sortie_ += ' ';
    Numero(sorte, numero);
    Finir();
}

void EcrivainGedcom::Enregistrement(char sorte, std::uint32_t numero, std::string_view etiquette) {
    sortie_ += "0 ";
    Numero(sorte, numero);
    sortie_ += ' ';
    sortie_ += etiquette;
    Finir();
}

bool EcrivainGedcom::Texte(std::string_view debut, int niveau, std::string_view texte) {
    std::string octets;
    Encoder(octets, EstPrete(texte) ? std::string{texte} : Preparer(texte));
    const std::string cont = Prefixe(niveau, "CONT");
    const std::string conc = Prefixe(niveau, "CONC");
    bool premier = true;
    for (std::string_view reste = octets; !reste.empty();) {
        const std::size_t fin = std::min({reste.find('\r'), reste.find('\n'), reste.size()});
        if (const std::string_view paragraphe = reste.substr(0, fin); !paragraphe.empty()) {
            Paragraphe(premier ? debut : std::string_view{cont}, conc, paragraphe);
            premier = false;
        }
        reste.remove_prefix(std::min(fin + 1, reste.size()));
    }
    return !premier;
}

void EcrivainGedcom::Paragraphe(std::string_view debut, std::string_view suite,
                                std::string_view paragraphe) {
    const auto ecrire = [this](std::string_view prefixe, std::string_view morceau) {
        sortie_ += prefixe;
        sortie_ += morceau;
        Finir();
    };
    if (paragraphe.size() <= LongueurAuPlus) return ecrire(debut, paragraphe);
    std::string_view prefixe = debut;
    while (paragraphe.size() >= LongueurAuPlus) {
        const std::size_t blanc = paragraphe.rfind(' ', LongueurAuPlus - 1);
        // A blank at the very front would leave the line without a value.
        const bool coupe = blanc != std::string_view::npos && blanc > 0;
        const std::size_t fin = coupe ? blanc : Reculer(paragraphe, LongueurAuPlus);
        ecrire(prefixe, paragraphe.substr(0, fin));
        paragraphe.remove_prefix(coupe ? fin + 1 : fin);
        prefixe = suite;
    }
    if (!paragraphe.empty()) ecrire(prefixe, paragraphe);
}

/// A cut never goes through the bytes of one character.
std::size_t EcrivainGedcom::Reculer(std::string_view texte, std::size_t fin) const {
    if (fin >= texte.size()) return texte.size();
    std::size_t coupe = fin;
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(texte[i]); };
    switch (encodeur_.Jeu()) {
        case JeuExport::Utf8:
            while (coupe > 0 && (octet(coupe) & 0xC0U) == 0x80)
                --coupe;
            break;
        case JeuExport::Ansel:
            while (coupe > 0 && octet(coupe - 1) >= 0xE0)
                --coupe;
            break;
        case JeuExport::Html: {
            const std::size_t debut = texte.rfind('&', coupe - 1);
            if (debut != std::string_view::npos && texte.find(';', debut) >= coupe) coupe = debut;
            break;
        }
        case JeuExport::Ascii:
        case JeuExport::Ansi:
            break;
    }
    // Two marks are one sign.
    std::size_t marques = 0;
    while (marques < coupe && texte[coupe - 1 - marques] == '@')
        ++marques;
    if (marques % 2 == 1 && texte[coupe] == '@') --coupe;
    return coupe > 0 ? coupe : fin;
}

}  // namespace dorvane::interchange

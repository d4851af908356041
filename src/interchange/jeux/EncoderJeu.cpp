#include "interchange/jeux/EncoderJeu.h"

#include "interchange/jeux/TablesDeCaracteres.h"
#include "values/Equivalents.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace dorvane::interchange {

namespace {

char32_t CodeDe1252(unsigned char octet) {
    return octet >= 0x80 && octet < 0xA0 ? HautDe1252[octet - 0x80U] : char32_t{octet};
}

/// An accented letter as its base and its mark.
struct Decomposition {
    char lettre;
    char32_t marque;
};

std::optional<Decomposition> Decomposer(unsigned char octet) {
    constexpr std::string_view Lettres = "AEIOUYCNSZaeiouycnsz";
    for (const char lettre : Lettres)
        for (char32_t marque = 0x300; marque < 0x330; ++marque)
            if (static_cast<unsigned char>(ComposerDans1252(lettre, marque)) == octet)
                return Decomposition{lettre, marque};
    return std::nullopt;
}

/// The byte of a set whose table goes from byte to Unicode; 0 for none.
template <class CodeDe>
unsigned char OctetDe(char32_t code, CodeDe codeDe) {
    for (unsigned octet = 0x80; octet < 0x100; ++octet)
        if (codeDe(static_cast<unsigned char>(octet)) == code)
            return static_cast<unsigned char>(octet);
    return 0;
}

std::string SansForme(unsigned char octet) {
    const auto parties = Decomposer(octet);
    return std::string(1, parties ? parties->lettre : '?');
}

std::string Forme437(unsigned char octet) {
    const unsigned char trouve = OctetDe(CodeDe1252(octet), CodeDe437);
    return trouve != 0 ? std::string(1, static_cast<char>(trouve)) : SansForme(octet);
}

/// ANSEL writes a mark in front of its letter.
std::string FormeAnsel(unsigned char octet) {
    if (const unsigned char seul = OctetDe(CodeDe1252(octet), CodeDeAnsel); seul != 0)
        return std::string(1, static_cast<char>(seul));
    const auto parties = Decomposer(octet);
    if (!parties) return "?";
    const unsigned char marque = OctetDe(parties->marque, CodeDeAnsel);
    if (marque == 0) return std::string(1, parties->lettre);
    return {static_cast<char>(marque), parties->lettre};
}

/// The names of HTML for the letters from 0xC0 on, without those that have always been copied as
/// they are. 0xF6 has always been written with the name of its neighbour: readers of our files
/// know it.
constexpr std::array<std::string_view, 64> Entites{
    "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "",
    "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "",
    "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",
    "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil",
    "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "",       "otilde", "",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

std::string FormeHtml(unsigned char octet) {
    if (octet == 0xA9) return "&copy;";
    if (octet < 0xC0 || Entites[octet - 0xC0U].empty())
        return std::string(1, static_cast<char>(octet));
    return '&' + std::string{Entites[octet - 0xC0U]} + ';';
}

std::string FormeHaute(JeuExport jeu, unsigned char octet) {
    switch (jeu) {
        case JeuExport::Ascii:
            return Forme437(octet);
        case JeuExport::Ansel:
            return FormeAnsel(octet);
        case JeuExport::Html:
            return FormeHtml(octet);
        case JeuExport::Utf8:
            return TexteVersUtf8(std::string(1, static_cast<char>(octet)));
        case JeuExport::Ansi:
            break;
    }
    return std::string(1, static_cast<char>(octet));
}

std::string FormeBasse(JeuExport jeu, char octet) {
    if (jeu != JeuExport::Html) return std::string(1, octet);
    switch (octet) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        default:
            return std::string(1, octet);
    }
}

}  // namespace

JeuExport JeuDuReglage(std::string_view reglage) {
    constexpr std::array<JeuExport, 5> Jeux{JeuExport::Ascii, JeuExport::Ansi, JeuExport::Ansel,
                                            JeuExport::Html, JeuExport::Utf8};
    const bool connu = reglage.size() == 1 && reglage[0] >= '0' && reglage[0] <= '4';
    return connu ? Jeux[static_cast<std::size_t>(reglage[0] - '0')] : JeuExport::Ansi;
}

std::string_view NomDeclare(JeuExport jeu) {
    switch (jeu) {
        case JeuExport::Ascii:
            return "ASCII";
        case JeuExport::Ansel:
            return "ANSEL";
        case JeuExport::Html:
            return "HTML";
        case JeuExport::Utf8:
            return "UTF-8";
        case JeuExport::Ansi:
            break;
    }
    return "ANSI";
}

Encodeur::Encodeur(JeuExport jeu) : jeu_{jeu} {
    for (unsigned octet = 0; octet < formes_.size(); ++octet)
        formes_[octet] = octet < 0x80 ? FormeBasse(jeu, static_cast<char>(octet))
                                      : FormeHaute(jeu, static_cast<unsigned char>(octet));
    if (jeu != JeuExport::Ascii && jeu != JeuExport::Ansel) return;
    // A form without a high byte is the one of another character.
    for (unsigned octet = 0x80; octet < formes_.size(); ++octet)
        perdus_[octet] = static_cast<unsigned char>(formes_[octet].front()) < 0x80;
    perd_ = true;
}

std::size_t Encodeur::Perdus(std::string_view texte) const {
    if (!perd_) return 0;
    return static_cast<std::size_t>(std::ranges::count_if(
        texte, [this](char octet) { return perdus_[static_cast<unsigned char>(octet)]; }));
}

void Encodeur::Ecrire(std::string& sortie, std::string_view texte) const {
    if (jeu_ == JeuExport::Ansi) {
        sortie += texte;
        return;
    }
    for (const char octet : texte)
        sortie += formes_[static_cast<unsigned char>(octet)];
}

std::string Encodeur::Encoder(std::string_view texte) const {
    std::string sortie;
    Ecrire(sortie, texte);
    return sortie;
}

}  // namespace dorvane::interchange

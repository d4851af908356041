#include "interchange/jeux/JeuxDeCaracteres.h"

#include "interchange/jeux/TablesDeCaracteres.h"
#include "values/Equivalents.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace dorvane::interchange {
namespace {

constexpr std::size_t EnTeteLu = 16384;  ///< bytes in which the CHAR line is looked for

unsigned char Octet(char c) {
    return static_cast<unsigned char>(c);
}

bool EstAscii8(const char* octets) {
    std::uint64_t huit = 0;
    std::memcpy(&huit, octets, sizeof huit);
    return (huit & 0x8080808080808080ULL) == 0;
}

/// Length of the run of 7-bit bytes at the front.
std::size_t PrefixeAscii(std::string_view texte) {
    std::size_t i = 0;
    while (i + 8 <= texte.size() && EstAscii8(texte.data() + i))
        i += 8;
    while (i < texte.size() && Octet(texte[i]) < 0x80)
        ++i;
    return i;
}

/// Valid UTF-8 with at least one byte above 127.
bool EstUtf8(std::string_view texte) {
    bool haut = false;
    while (true) {
        texte.remove_prefix(PrefixeAscii(texte));
        if (texte.empty()) return haut;
        const CodeLu lu = LireUtf8(texte);
        if (lu.rompu) return false;
        haut = true;
        texte.remove_prefix(lu.longueur);
    }
}

/// UTF-8 but for a few broken bytes, or a character cut by the end of the file.
bool EstSurtoutUtf8(std::string_view texte) {
    std::size_t justes = 0;
    std::size_t faux = 0;
    while (true) {
        texte.remove_prefix(PrefixeAscii(texte));
        if (texte.empty()) return justes > faux;
        const CodeLu lu = LireUtf8(texte);
        (lu.rompu ? faux : justes) += 1;
        texte.remove_prefix(lu.longueur);
    }
}

/// ANSEL leaves bytes free: a text with more than a few of them is none.
bool PeutEtreAnsel(std::string_view texte) {
    constexpr std::size_t Megaoctet = 1U << 20U;
    std::size_t hauts = 0;
    std::size_t libres = 0;
    for (const char c : texte.substr(0, Megaoctet)) {
        if (Octet(c) < 0x80) continue;
        ++hauts;
        libres += CodeDeAnsel(Octet(c)) == 0 ? 1U : 0U;
    }
    return libres * 50 <= hauts;
}

/// The text can be read in the set that its header names. Of the others every byte has a sense.
bool PeutSeLire(std::string_view texte, Jeu jeu) {
    if (jeu == Jeu::Utf8) return PrefixeAscii(texte) == texte.size() || EstSurtoutUtf8(texte);
    return jeu != Jeu::Ansel || PeutEtreAnsel(texte);
}

bool EstBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\0';
}

/// The value of the first "1 CHAR" line, in the text's own bytes.
std::string ChercherDeclaration(std::string_view texte) {
    texte = texte.substr(0, EnTeteLu);
    while (!texte.empty()) {
        const std::size_t fin = std::min(texte.find_first_of("\r\n"), texte.size());
        std::string_view ligne = texte.substr(0, fin);
        texte.remove_prefix(std::min(fin + 1, texte.size()));
        while (!ligne.empty() && EstBlanc(ligne.front()))
            ligne.remove_prefix(1);
        if (!ligne.starts_with("1 ")) continue;
        ligne.remove_prefix(2);
        while (!ligne.empty() && EstBlanc(ligne.front()))
            ligne.remove_prefix(1);
        if (!ligne.starts_with("CHAR ")) continue;
        ligne.remove_prefix(5);
        while (!ligne.empty() && EstBlanc(ligne.front()))
            ligne.remove_prefix(1);
        while (!ligne.empty() && EstBlanc(ligne.back()))
            ligne.remove_suffix(1);
        return std::string{ligne};
    }
    return {};
}

struct NomDeclare {
    std::string_view nom;
    Jeu jeu;
};

constexpr auto NomsDeclares = std::to_array<NomDeclare>({
    {"ANSEL", Jeu::Ansel},         {"ANSI", Jeu::Ansi},        {"ASCII", Jeu::Ascii437},
    {"HTML", Jeu::Html},           {"IBMPC", Jeu::Ascii437},   {"IBM", Jeu::Ascii437},
    {"IBM DOS", Jeu::Ascii437},    {"IBM_DOS", Jeu::Ascii437}, {"MSDOS", Jeu::Ascii437},
    {"MS-DOS", Jeu::Ascii437},     {"CP437", Jeu::Ascii437},   {"IBM WINDOWS", Jeu::Ansi},
    {"IBM_WINDOWS", Jeu::Ansi},    {"WINDOWS", Jeu::Ansi},     {"WINDOWS-1252", Jeu::Ansi},
    {"CP1252", Jeu::Ansi},         {"LATIN1", Jeu::Ansi},      {"ISO-8859-1", Jeu::Ansi},
    {"ISO8859-1", Jeu::Ansi},      {"UTF-8", Jeu::Utf8},       {"UTF8", Jeu::Utf8},
    {"MACINTOSH", Jeu::Macintosh}, {"MAC", Jeu::Macintosh},
});

std::optional<Jeu> JeuDeclare(std::string_view nom) {
    std::string majuscules{nom};
    for (char& c : majuscules)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    for (const NomDeclare& n : NomsDeclares)
        if (n.nom == majuscules) return n.jeu;
    return std::nullopt;
}

/// Takes characters one by one and lays them down in code page 1252.
class Compositeur {
public:
    explicit Compositeur(std::size_t place) { decode_.octets.reserve(place); }

    void Poser(std::string_view ascii) { decode_.octets.append(ascii); }

    void Poser(char32_t code) {
        if (const int octet = ChercherOctet(code); octet >= 0 && code != 0xFFFD) {
            decode_.octets.push_back(static_cast<char>(octet));
        } else if (EstMarque(code)) {
            PoserMarque(code);
        } else if (EstInvisible(code)) {
            ++decode_.translitteres;
        } else if (const std::string_view texte = EquivalentDans1252(code); !texte.empty()) {
            decode_.octets.append(texte);
            ++decode_.translitteres;
        } else {
            PoserPerte();
        }
    }

    void PoserPerte() {
        decode_.octets.push_back('?');
        ++decode_.perdus;
    }

    [[nodiscard]] TexteDecode Rendre() { return std::move(decode_); }

private:
    /// Joins the mark to the letter laid down last, or drops it.
    void PoserMarque(char32_t marque) {
        const char compose =
            decode_.octets.empty() ? '\0' : ComposerDans1252(decode_.octets.back(), marque);
        if (compose != '\0')
            decode_.octets.back() = compose;
        else
            ++decode_.translitteres;
    }

    TexteDecode decode_;
};

TexteDecode DecoderUtf8(std::string_view texte) {
    Compositeur sortie{texte.size()};
    while (!texte.empty()) {
        const std::size_t ascii = PrefixeAscii(texte);
        sortie.Poser(texte.substr(0, ascii));
        texte.remove_prefix(ascii);
        if (texte.empty()) break;
        const CodeLu lu = LireUtf8(texte);
        sortie.Poser(lu.rompu ? 0xFFFD : lu.code);
        texte.remove_prefix(lu.longueur);
    }
    return sortie.Rendre();
}

TexteDecode DecoderUtf16(std::string_view texte, bool grosBoutiste) {
    Compositeur sortie{texte.size() / 2};
    const auto unite = [&](std::size_t i) -> char32_t {
        const unsigned char a = Octet(texte[i]);
        const unsigned char b = Octet(texte[i + 1]);
        return grosBoutiste ? a * 256U + b : b * 256U + a;
    };
    for (std::size_t i = 0; i + 1 < texte.size(); i += 2) {
        char32_t code = unite(i);
        if (code >= 0xD800 && code < 0xE000) {
            const char32_t suite = i + 3 < texte.size() ? unite(i + 2) : 0;
            const bool paire = code < 0xDC00 && suite >= 0xDC00 && suite < 0xE000;
            code = paire ? 0x10000 + ((code - 0xD800) << 10U) + (suite - 0xDC00) : 0xFFFD;
            if (paire) i += 2;
        }
        sortie.Poser(code);
    }
    if (texte.size() % 2 != 0) sortie.PoserPerte();
    return sortie.Rendre();
}

/// A set of one byte to a character.
TexteDecode DecoderTable(std::string_view texte, char32_t (*table)(unsigned char)) {
    Compositeur sortie{texte.size()};
    while (!texte.empty()) {
        const std::size_t ascii = PrefixeAscii(texte);
        sortie.Poser(texte.substr(0, ascii));
        texte.remove_prefix(ascii);
        if (texte.empty()) break;
        sortie.Poser(table(Octet(texte[0])));
        texte.remove_prefix(1);
    }
    return sortie.Rendre();
}

/// Marks stand before their letter, the one nearest to the letter last.
TexteDecode DecoderAnsel(std::string_view texte) {
    Compositeur sortie{texte.size()};
    std::u32string marques;
    const auto poserMarques = [&] {
        for (const char32_t marque : marques)
            sortie.Poser(marque);
        marques.clear();
    };
    for (const char c : texte) {
        const char32_t code = Octet(c) < 0x80 ? Octet(c) : CodeDeAnsel(Octet(c));
        if (EstMarque(code) && marques.size() < 8) {
            marques.push_back(code);
            continue;
        }
        // A mark before a line end belongs to nothing: it must not pass to the next line.
        if (c == '\r' || c == '\n') poserMarques();
        if (code == 0 && c != '\0')
            sortie.PoserPerte();
        else
            sortie.Poser(code);
        poserMarques();
    }
    poserMarques();
    return sortie.Rendre();
}

/// Value of "eacute", "#233" or "#xE9"; 0 for what is no character that a text may hold.
char32_t LireEntite(std::string_view nom, bool otildeNotre) {
    if (otildeNotre && nom == "otilde") return 0xF6;
    if (!nom.starts_with('#')) return CodeDeEntite(nom);
    nom.remove_prefix(1);
    const bool seize = nom.starts_with('x') || nom.starts_with('X');
    if (seize) nom.remove_prefix(1);
    if (nom.empty() || nom.size() > 6) return 0;
    char32_t code = 0;
    for (const char c : nom) {
        const int chiffre = c >= '0' && c <= '9'            ? c - '0'
                            : seize && c >= 'a' && c <= 'f' ? c - 'a' + 10
                            : seize && c >= 'A' && c <= 'F' ? c - 'A' + 10
                                                            : -1;
        if (chiffre < 0) return 0;
        code = code * (seize ? 16U : 10U) + static_cast<char32_t>(chiffre);
    }
    // A control character written as a number could end a line or a record.
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code > 0x10FFFF ? 0 : code;
}

TexteDecode DecoderHtml(std::string_view texte, bool otildeNotre) {
    constexpr std::size_t NomLePlusLong = 10;
    Compositeur sortie{texte.size()};
    while (!texte.empty()) {
        const std::size_t esperluette = std::min(texte.find('&'), texte.size());
        sortie.Poser(texte.substr(0, esperluette));
        texte.remove_prefix(esperluette);
        if (texte.empty()) break;
        const std::size_t fin = texte.substr(0, NomLePlusLong + 2).find(';');
        const char32_t code =
            fin == std::string_view::npos ? 0 : LireEntite(texte.substr(1, fin - 1), otildeNotre);
        if (code != 0) sortie.Poser(code);
        if (code == 0) sortie.Poser(texte.substr(0, 1));
        texte.remove_prefix(code != 0 ? fin + 1 : 1);
    }
    return sortie.Rendre();
}

/// UTF-16 without a mark: a GEDCOM file begins with "0 ", in one order of the bytes or the other.
std::optional<Jeu> JeuDesZeros(std::string_view fichier) {
    using namespace std::string_view_literals;
    if (fichier.starts_with("0\0 \0"sv)) return Jeu::Utf16Le;
    if (fichier.starts_with("\0000\0 "sv)) return Jeu::Utf16Be;
    return std::nullopt;
}

}  // namespace

std::string_view NomDeJeu(Jeu jeu) {
    switch (jeu) {
        case Jeu::Ascii437:
            return "IBM PC (437)";
        case Jeu::Ansi:
            return "ANSI (1252)";
        case Jeu::Ansel:
            return "ANSEL";
        case Jeu::Html:
            return "HTML";
        case Jeu::Utf8:
            return "UTF-8";
        case Jeu::Utf16Le:
            return "UTF-16 LE";
        case Jeu::Utf16Be:
            return "UTF-16 BE";
        case Jeu::Macintosh:
            return "Macintosh";
    }
    return {};
}

ChoixDeJeu ChoisirJeu(std::string_view fichier) {
    ChoixDeJeu choix;
    if (fichier.starts_with("\xEF\xBB\xBF")) {
        choix = {Jeu::Utf8, RaisonDuJeu::Marque, {}, 3};
    } else if (fichier.starts_with("\xFF\xFE")) {
        return {Jeu::Utf16Le, RaisonDuJeu::Marque, {}, 2};
    } else if (fichier.starts_with("\xFE\xFF")) {
        return {Jeu::Utf16Be, RaisonDuJeu::Marque, {}, 2};
    } else if (const auto jeu = JeuDesZeros(fichier)) {
        return {*jeu, RaisonDuJeu::SansMarque16, {}, 0};
    }
    choix.declare = ChercherDeclaration(fichier.substr(choix.marque));
    if (choix.marque > 0) return choix;

    const std::optional<Jeu> declare = JeuDeclare(choix.declare);
    if (EstUtf8(fichier)) {
        choix.jeu = Jeu::Utf8;
        choix.raison = declare == Jeu::Utf8 ? RaisonDuJeu::Declare : RaisonDuJeu::ContenuUtf8;
    } else if (declare && PeutSeLire(fichier, *declare)) {
        choix.jeu = *declare;
        choix.raison = RaisonDuJeu::Declare;
    }
    return choix;
}

TexteDecode Decoder(std::string_view texte, Jeu jeu, bool otildeNotre) {
    switch (jeu) {
        case Jeu::Ansi:
            return {std::string{texte}, 0, 0};
        case Jeu::Ascii437:
            return DecoderTable(texte, CodeDe437);
        case Jeu::Macintosh:
            return DecoderTable(texte, CodeDeMacintosh);
        case Jeu::Ansel:
            return DecoderAnsel(texte);
        case Jeu::Html:
            return DecoderHtml(texte, otildeNotre);
        case Jeu::Utf8:
            return DecoderUtf8(texte);
        case Jeu::Utf16Le:
            return DecoderUtf16(texte, false);
        case Jeu::Utf16Be:
            return DecoderUtf16(texte, true);
    }
    return {};
}

}  // namespace dorvane::interchange

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::interchange {

/// The character sets in which a GEDCOM file comes.
enum class Jeu : std::uint8_t { Ascii437, Ansi, Ansel, Html, Utf8, Utf16Le, Utf16Be, Macintosh };

/// The usual name of a set, for the report.
[[nodiscard]] std::string_view NomDeJeu(Jeu jeu);

/// Why a set was taken.
enum class RaisonDuJeu : std::uint8_t {
    Marque,        ///< the file begins with a byte order mark
    Declare,       ///< the header names it, and the text can be read in it
    SansMarque16,  ///< every other byte of the beginning is 0
    ContenuUtf8,   ///< the text is valid UTF-8, whatever the header says
    Defaut         ///< neither declared nor told by the text
};

struct ChoixDeJeu {
    Jeu jeu = Jeu::Ansi;
    RaisonDuJeu raison = RaisonDuJeu::Defaut;
    std::string declare;     ///< the value of the CHAR line as it stands; empty when there is none
    std::size_t marque = 0;  ///< bytes of the byte order mark in front of the text
};

/// Finds the set of a whole file: a byte order mark decides; else UTF-8 when the whole text is
/// valid and has bytes above 127; else the declared set when the text can be read in it; else ANSI.
/// A few broken bytes do not make a text that is declared UTF-8 another.
[[nodiscard]] ChoixDeJeu ChoisirJeu(std::string_view fichier);

/// A text brought into code page 1252.
struct TexteDecode {
    std::string octets;
    std::size_t translitteres = 0;  ///< characters replaced by their nearest equivalent
    std::size_t perdus = 0;         ///< characters, or broken bytes, that became "?"
};

/// Brings a whole file, without its mark, into code page 1252. Marks that stand apart join their
/// letter. The set `Ansi` needs no decoding: its bytes come back as they are. `otildeNotre`: the
/// file is one of our own, in which "&otilde;" has always stood for "ö".
[[nodiscard]] TexteDecode Decoder(std::string_view texte, Jeu jeu, bool otildeNotre);

}  // namespace dorvane::interchange

#include "interchange/jeux/EncoderJeu.h"

#include "interchange/jeux/JeuxDeCaracteres.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

/// The accented letters of French and its neighbours, which every set holds in its way.
constexpr auto Lettres = "ÀÂÄÇÉÈÊËÎÔÖÙÛÜàâäçéèêëîïôöùûüñÑßæÆ"_1252;

Jeu Lu(JeuExport jeu) {
    switch (jeu) {
        case JeuExport::Ascii:
            return Jeu::Ascii437;
        case JeuExport::Ansel:
            return Jeu::Ansel;
        case JeuExport::Html:
            return Jeu::Html;
        case JeuExport::Utf8:
            return Jeu::Utf8;
        case JeuExport::Ansi:
            break;
    }
    return Jeu::Ansi;
}

}  // namespace

TEST_CASE("Encodeur: each accented letter that a set holds comes back") {
    for (const JeuExport jeu :
         {JeuExport::Ascii, JeuExport::Ansi, JeuExport::Ansel, JeuExport::Html, JeuExport::Utf8}) {
        const Encodeur encodeur{jeu};
        for (const char lettre : std::string_view{Lettres}) {
            CAPTURE(NomDeclare(jeu));
            CAPTURE(static_cast<int>(static_cast<unsigned char>(lettre)));
            // Code page 437 has no capitals but these: the others lose their accent.
            const std::string ecrite = encodeur.Encoder({&lettre, 1});
            const std::string relue = Decoder(ecrite, Lu(jeu), true).octets;
            if (jeu == JeuExport::Ascii && static_cast<unsigned char>(ecrite[0]) < 0x80)
                CHECK(std::string_view{"AEIOU"}.find(relue[0]) != std::string_view::npos);
            else
                CHECK(relue == std::string(1, lettre));
        }
    }
}

TEST_CASE("Encodeur: the forms of each set") {
    CHECK(Encodeur{JeuExport::Ascii}.Encoder("é À"_1252) == "\x82 A");
    CHECK(Encodeur{JeuExport::Ansel}.Encoder("é"_1252) ==
          "\xE2"
          "e");
    CHECK(Encodeur{JeuExport::Html}.Encoder("é ö Ï <&>"_1252) ==
          "&eacute; &otilde; \xCF &lt;&amp;&gt;");
    CHECK(Encodeur{JeuExport::Utf8}.Encoder("é €"_1252) == "é €");
    CHECK(Encodeur{JeuExport::Ansi}.Encoder("é €"_1252) == "\xE9 \x80");
}

TEST_CASE("Encodeur: what a set lacks loses its accent or becomes a question mark") {
    CHECK(Encodeur{JeuExport::Ascii}.Encoder("Êš€"_1252) == "Es?");
    CHECK(Encodeur{JeuExport::Ansel}.Encoder("…"_1252) == "?");
}

TEST_CASE("JeuDuReglage: the number of the settings, ANSI for junk") {
    CHECK(JeuDuReglage("0") == JeuExport::Ascii);
    CHECK(JeuDuReglage("2") == JeuExport::Ansel);
    CHECK(JeuDuReglage("4") == JeuExport::Utf8);
    for (const char* reglage : {"", "5", "x", "11"})
        CHECK(JeuDuReglage(reglage) == JeuExport::Ansi);
}

TEST_CASE("NomDeclare: what the header says") {
    CHECK(NomDeclare(JeuExport::Ascii) == "ASCII");
    CHECK(NomDeclare(JeuExport::Html) == "HTML");
    CHECK(NomDeclare(JeuExport::Utf8) == "UTF-8");
}

TEST_CASE("Encodeur: the characters that a set has no form of are counted") {
    const std::string texte{"Ève, « Bœuf » été €"_1252};
    CHECK(Encodeur{JeuExport::Ansi}.Perdus(texte) == 0);
    CHECK(Encodeur{JeuExport::Html}.Perdus(texte) == 0);
    CHECK(Encodeur{JeuExport::Utf8}.Perdus(texte) == 0);
    // "È", "œ" and "€".
    CHECK(Encodeur{JeuExport::Ascii}.Perdus(texte) == 3);
    // The quotation marks.
    CHECK(Encodeur{JeuExport::Ansel}.Perdus(texte) == 2);
}

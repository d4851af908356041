#include "values/TexteRiche.h"

#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

std::string Clair(std::string_view texte) {
    std::string tampon = "left from before";
    return std::string(TexteSansRtf(texte, tampon));
}

std::string Segment(std::string_view corps) {
    return std::string(R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}\f0 )").append(corps) + "}";
}

}  // namespace

TEST_CASE("TexteSansRtf: a text without any segment is answered itself, and costs no copy") {
    std::string tampon;
    const std::string_view texte = "Notaire à {Rouen} \\par"_1252;
    CHECK(TexteSansRtf(texte, tampon).data() == texte.data());
    CHECK(TexteSansRtf("", tampon).empty());
}

TEST_CASE("TexteSansRtf: what stands around a segment stays, the segment gives its words") {
    CHECK(Clair("avant " + Segment("dedans") + std::string(" après"_1252)) ==
          "avant dedans après"_1252);
    CHECK(Clair(Segment("un") + "-" + Segment("deux")) == "un-deux");
}

TEST_CASE("TexteSansRtf: fonts, colours, pictures and optional groups give no text") {
    CHECK(Clair(Segment(R"({\colortbl;\red0;}{\pict 0102}{\*\generator Riched;}x)")) == "x");
}

TEST_CASE("TexteSansRtf: a control word takes its number and one blank, no more") {
    CHECK(Clair(Segment(R"(\b gras\b0  puis\fs-20 fin)")) == "gras puisfin");
}

TEST_CASE("TexteSansRtf: paragraphs and tabs are kept, line ends of the writing are not") {
    CHECK(Clair(Segment("un\\par\r\ndeux\\line trois\\tab quatre")) ==
          "un\r\ndeux\r\ntrois\tquatre");
}

TEST_CASE("TexteSansRtf: bytes in hexadecimal are bytes of the code page") {
    CHECK(Clair(Segment(R"(\'e9t\'E9 \'9c)")) == "été œ"_1252);
    CHECK(Clair(Segment(R"(a\'zzb)")) == "azzb");
}

TEST_CASE("TexteSansRtf: a Unicode character replaces the ones that stand in for it") {
    CHECK(Clair(Segment(R"(\u233?t)")) == "ét"_1252);
    CHECK(Clair(Segment(R"(\u8364\'80x)")) == "€x"_1252);
    CHECK(Clair(Segment(R"(\uc0\u233 t)")) == "ét"_1252);
    CHECK(Clair(Segment(R"({\uc2\u233 ab}\u233 cd)")) == "ééd"_1252);
}

TEST_CASE("TexteSansRtf: what the code page lacks becomes ?") {
    CHECK(Clair(Segment(R"(\u26085 *!)")) == "?!");
    CHECK(Clair(Segment(R"(\u-3 *!)")) == "?!");
}

TEST_CASE("TexteSansRtf: escaped braces and backslashes are text and close nothing") {
    CHECK(Clair(Segment(R"(\{a\}\\b)") + "c") == "{a}\\bc");
}

TEST_CASE("TexteSansRtf: signs that have a word of their own") {
    CHECK(Clair(Segment(R"(l\rquote an \endash\~x\_y\-z)")) == "l’an –\u00A0x-yz"_1252);
}

TEST_CASE("TexteSansRtf: a segment without its closing brace goes to the end of the text") {
    CHECK(Clair("a{\\rtf1 b{c") == "abc");
    CHECK(Clair("a{\\rtf1") == "a");
    CHECK(Clair("a{\\rtf1\\") == "a");
    CHECK(Clair("a{\\rtf1\\'e") == "ae");
}

TEST_CASE("TexteSansRtf: a binary length past the end of the text stops there") {
    CHECK(Clair("{\\rtf1 a\\bin99999999999999999999 b}c") == "a");
    CHECK(Clair("{\\rtf1 a\\bin2 {{b}c") == "abc");
}

TEST_CASE("TexteSansRtf: groups nested past the limit are left out, the rest is read") {
    const std::string ouvrantes(100'000, '{');
    const std::string fermantes(100'000, '}');
    CHECK(Clair("{\\rtf1 a" + ouvrantes + "x" + fermantes + "b}c") == "abc");
}

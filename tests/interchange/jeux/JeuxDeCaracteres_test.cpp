#include "interchange/jeux/JeuxDeCaracteres.h"

#include "values/Texte1252.h"

#include <string>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;
using namespace std::string_literals;

namespace {

std::string Lire(std::string_view octets, Jeu jeu) {
    return Decoder(octets, jeu, false).octets;
}

std::string EnTete(std::string_view jeu, std::string_view suite) {
    return "0 HEAD\r\n1 CHAR " + std::string{jeu} + "\r\n0 @I1@ INDI\r\n1 NAME " +
           std::string{suite} + "\r\n";
}

}  // namespace

TEST_CASE("ChoisirJeu: a byte order mark decides, whatever is declared") {
    CHECK(ChoisirJeu("\xEF\xBB\xBF" + EnTete("ANSEL", "x")).jeu == Jeu::Utf8);
    CHECK(ChoisirJeu("\xFF\xFE"
                     "0\0 \0"s)
              .jeu == Jeu::Utf16Le);
    CHECK(ChoisirJeu("\xFE\xFF\0"
                     "0\0 "s)
              .jeu == Jeu::Utf16Be);
    CHECK(ChoisirJeu("\xEF\xBB\xBF" + EnTete("ANSEL", "x")).marque == 3);
}

TEST_CASE("ChoisirJeu: UTF-16 without a mark shows by its zeros") {
    const ChoixDeJeu choix = ChoisirJeu("0\0 \0H\0"s);
    CHECK(choix.jeu == Jeu::Utf16Le);
    CHECK(choix.raison == RaisonDuJeu::SansMarque16);
    CHECK(ChoisirJeu("\0"
                     "0\0 \0H"s)
              .jeu == Jeu::Utf16Be);
}

TEST_CASE("ChoisirJeu: the names that mean the same sets") {
    CHECK(ChoisirJeu(EnTete("ANSI", "\xE9")).jeu == Jeu::Ansi);
    CHECK(ChoisirJeu(EnTete("CP1252", "\xE9")).jeu == Jeu::Ansi);
    CHECK(ChoisirJeu(EnTete("IBM WINDOWS", "\xE9")).jeu == Jeu::Ansi);
    CHECK(ChoisirJeu(EnTete("ASCII", "\x82")).jeu == Jeu::Ascii437);
    CHECK(ChoisirJeu(EnTete("IBMPC", "\x82")).jeu == Jeu::Ascii437);
    CHECK(ChoisirJeu(EnTete("ANSEL",
                            "\xE2"
                            "e"))
              .jeu == Jeu::Ansel);
    CHECK(ChoisirJeu(EnTete("HTML", "&eacute;")).jeu == Jeu::Html);
    CHECK(ChoisirJeu(EnTete("MACINTOSH", "\x8E")).jeu == Jeu::Macintosh);
    CHECK(ChoisirJeu(EnTete("macintosh", "\x8E")).jeu == Jeu::Macintosh);
    CHECK(ChoisirJeu(EnTete("UTF-8", "é")).jeu == Jeu::Utf8);
}

TEST_CASE("ChoisirJeu: a declaration that lies gives way to the text") {
    const ChoixDeJeu utf8 = ChoisirJeu(EnTete("ANSI", "Hélène"));
    CHECK(utf8.jeu == Jeu::Utf8);
    CHECK(utf8.raison == RaisonDuJeu::ContenuUtf8);
    CHECK(utf8.declare == "ANSI");
    const ChoixDeJeu ansi = ChoisirJeu(EnTete("UTF-8", "H\xE9l\xE8ne"));
    CHECK(ansi.jeu == Jeu::Ansi);
    CHECK(ansi.raison == RaisonDuJeu::Defaut);
}

TEST_CASE("ChoisirJeu: nothing declared is ANSI, or UTF-8 where the bytes are") {
    CHECK(ChoisirJeu("0 HEAD\n0 TRLR\n").jeu == Jeu::Ansi);
    CHECK(ChoisirJeu("0 HEAD\n1 NOTE é\n0 TRLR\n").jeu == Jeu::Utf8);
    CHECK(ChoisirJeu("0 HEAD\n1 NOTE \xE9\n0 TRLR\n").jeu == Jeu::Ansi);
    CHECK(ChoisirJeu("").jeu == Jeu::Ansi);
}

TEST_CASE("Decoder: each set gives the letters of code page 1252") {
    const std::string_view attendu = "Éléonore à Nîmes, Çà où"_1252;
    CHECK(Lire("\x90l\x82onore \x85 N\x8Cmes, \x80\x85 o\x97", Jeu::Ascii437) == attendu);
    CHECK(Lire("\x83l\x8Eonore \x88 N\x94mes, \x82\x88 o\x9D", Jeu::Macintosh) == attendu);
    CHECK(Lire("\xE2"
               "El\xE2"
               "eonore \xE1"
               "a N\xE3imes, \xF0"
               "C\xE1"
               "a o\xE1u",
               Jeu::Ansel) == attendu);
    CHECK(Lire("&Eacute;l&#233;onore &agrave; N&icirc;mes, &Ccedil;&#xE0; o&ugrave;", Jeu::Html) ==
          attendu);
    CHECK(Lire("Éléonore à Nîmes, Çà où", Jeu::Utf8) == attendu);
    CHECK(Lire(attendu, Jeu::Ansi) == attendu);
}

TEST_CASE("Decoder: UTF-16 in both orders, surrogates and an odd last byte") {
    CHECK(Lire("\xE9\0t\0\xE9\0"s, Jeu::Utf16Le) == "été"_1252);
    CHECK(Lire("\0\xE9\0t\0\xE9"s, Jeu::Utf16Be) == "été"_1252);
    CHECK(Decoder("\x3D\xD8\x00\xDE"s, Jeu::Utf16Le, false).perdus == 1);
    CHECK(Decoder("\x3D\xD8"s, Jeu::Utf16Le, false).perdus == 1);
    CHECK(Decoder("a\0b"s, Jeu::Utf16Le, false).octets == "a?");
}

TEST_CASE("Decoder: an accent that stands apart joins its letter") {
    const TexteDecode decode = Decoder("E\u0301ve\u0302que, a\u030A", Jeu::Utf8, false);
    CHECK(decode.octets == "Évêque, å"_1252);
    CHECK(decode.translitteres == 0);
}

TEST_CASE("Decoder: what the code page lacks loses its mark, and is counted") {
    const TexteDecode decode = Decoder("Łódź, Dvořák, Ștefan, ế, x\u0323", Jeu::Utf8, false);
    CHECK(decode.octets == "Lódz, Dvorák, Stefan, ê, x"_1252);
    CHECK(decode.translitteres == 6);
    CHECK(decode.perdus == 0);
}

TEST_CASE("Decoder: other scripts and broken bytes become question marks, and are counted") {
    const TexteDecode grec = Decoder("αβ é", Jeu::Utf8, false);
    CHECK(grec.octets == "?? é"_1252);
    CHECK(grec.perdus == 2);
    CHECK(Decoder("a\xC3", Jeu::Utf8, false).octets == "a?");
    CHECK(Decoder("\xC0\x80", Jeu::Utf8, false).perdus == 2);
    CHECK(Decoder("\xCD\xCD", Jeu::Ascii437, false).perdus == 2);
}

TEST_CASE("Decoder: ANSEL marks without a letter of the code page") {
    CHECK(Lire("\xE5"
               "o",
               Jeu::Ansel) == "o");
    CHECK(Lire("\xE3\xE2"
               "e",
               Jeu::Ansel) == "ê"_1252);
    SUBCASE("a mark before a line end stays on its line") {
        CHECK(Lire("a\xE2\r\ne", Jeu::Ansel) == "á\r\ne"_1252);
    }
    SUBCASE("a mark at the very end") {
        CHECK(Lire("\xE2", Jeu::Ansel).empty());
    }
}

TEST_CASE("Decoder: HTML names it does not know stand as they are") {
    CHECK(Lire("&amp; &toto; & &; &#7; &eacute", Jeu::Html) == "& &toto; & &; &#7; &eacute");
    CHECK(Decoder("&otilde;", Jeu::Html, true).octets == "ö"_1252);
    CHECK(Decoder("&otilde;", Jeu::Html, false).octets == "õ"_1252);
    CHECK(Lire("&#10;&#x0D;", Jeu::Html) == "&#10;&#x0D;");
}

TEST_CASE("ChoisirJeu: UTF-8 that is declared stays so with a few broken bytes") {
    const std::string juste = EnTete("UTF-8", "Hélène /Müller/");
    CHECK(ChoisirJeu(juste + "\xC3").jeu == Jeu::Utf8);
    CHECK(ChoisirJeu(juste + "\xC3").raison == RaisonDuJeu::Declare);
    CHECK(Decoder(juste + "\xC3", Jeu::Utf8, false).perdus == 1);
    CHECK(ChoisirJeu(EnTete("UTF-8", "H\xE9l\xE8ne /M\xFCller/")).jeu == Jeu::Ansi);
    CHECK(ChoisirJeu(EnTete("ANSI", "H\xE9l\xE8ne /M\xC3\xBCller/")).jeu == Jeu::Ansi);
}

TEST_CASE("ChoisirJeu: a text that ANSEL cannot hold is not read as ANSEL") {
    CHECK(ChoisirJeu(EnTete("ANSEL",
                            "H\xE2"
                            "el\xE1"
                            "ene"))
              .jeu == Jeu::Ansel);
    const ChoixDeJeu choix = ChoisirJeu(EnTete("ANSEL", "\x93Jean\x94 \x96 \x85"));
    CHECK(choix.jeu == Jeu::Ansi);
    CHECK(choix.raison == RaisonDuJeu::Defaut);
    CHECK(choix.declare == "ANSEL");
}

#include "values/NoteRiche.h"

#include "values/Texte1252.h"
#include "values/TexteRiche.h"

#include <random>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

std::string TexteDe(std::string_view note) {
    std::string tampon;
    return std::string{TexteSansRtf(note, tampon)};
}

Troncon Morceau(std::string_view texte, StyleCaracteres style = {}) {
    return {std::move(style), std::string{texte}, {}};
}

/// Written, read, written: nothing more may change.
void EstStable(const NoteRiche& note) {
    const std::string ecrite = EcrireNoteRiche(note);
    CAPTURE(ecrite);
    CHECK(EcrireNoteRiche(LireNoteRiche(ecrite)) == ecrite);
}

}  // namespace

TEST_CASE("NoteRiche: a plain note stays plain bytes") {
    for (const std::string& note :
         {std::string{}, std::string{"Sabotier."}, std::string{"un\r\ndeux\r\n\r\nquatre\r\n"},
          std::string{"n\xB0 {3} \\ fin"}}) {
        const NoteRiche lue = LireNoteRiche(note);
        CHECK(lue.EstSimple());
        CHECK(EcrireNoteRiche(lue) == note);
    }
}

TEST_CASE("NoteRiche: bold, underline, italic and alignment are read and written") {
    const NoteRiche note = LireNoteRiche(
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\pard\\qc Un {\\b gras}\\i  ici\\i0\\par\\pard\\ul "
        "sous\\ulnone\\par}");
    REQUIRE(note.paragraphes.size() == 3);
    CHECK(note.entete == "\\ansi{\\fonttbl{\\f0 Arial;}}");
    CHECK(note.paragraphes[0].alignement == Alignement::Centre);
    CHECK(note.paragraphes[0].troncons ==
          std::vector<Troncon>{Morceau("Un "), Morceau("gras", {.gras = true}),
                               Morceau(" ici", {.italique = true})});
    CHECK(note.paragraphes[1].alignement == Alignement::Gauche);
    CHECK(note.paragraphes[1].troncons ==
          std::vector<Troncon>{Morceau("sous", {.souligne = true})});
    const std::string ecrite = EcrireNoteRiche(note);
    CHECK(EstNoteRiche(ecrite));
    CHECK(LireNoteRiche(ecrite) == note);
    CHECK(TexteDe(ecrite) == "Un gras ici\r\nsous\r\n");
}

TEST_CASE("NoteRiche: what the editor has no button for is kept") {
    const std::string source =
        "{\\rtf1\\ansi\\deff0{\\colortbl;\\red255\\green0\\blue0;}\\li720\\fs24\\cf1 Rouge "
        "{\\pict\\wmetafile8 0102ab}{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt lien}} "
        "\\u8805? fin\\par}";
    const NoteRiche note = LireNoteRiche(source);
    const std::string ecrite = EcrireNoteRiche(note);
    CAPTURE(ecrite);
    for (const char* morceau :
         {"{\\colortbl;\\red255\\green0\\blue0;}", "\\fs24\\cf1", "\\li720",
          "{\\pict\\wmetafile8 0102ab}", "{\\*\\fldinst HYPERLINK \"x\"}", "\\u8805"})
        CHECK(ecrite.find(morceau) != std::string::npos);
    CHECK(TexteDe(ecrite) == TexteDe(source));
    CHECK(LireNoteRiche(ecrite) == note);
}

TEST_CASE("NoteRiche: a later size replaces the former one of a run") {
    const NoteRiche note = LireNoteRiche("{\\rtf1\\fs20\\f1\\fs28 a{\\super b}\\nosupersub c}");
    const std::vector<Troncon>& troncons = note.paragraphes[0].troncons;
    REQUIRE(troncons.size() == 3);
    CHECK(troncons[0].style.reste == "\\f1\\fs28");
    CHECK(troncons[1].style.reste == "\\f1\\fs28\\super");
    CHECK(troncons[2].style.reste == "\\f1\\fs28");
}

TEST_CASE("NoteRiche: braces, accents, tabs and line breaks survive both ways") {
    NoteRiche note;
    note.paragraphes = {{Alignement::Droite,
                         {},
                         {Morceau("{n\xB0} \\ \t \x80\vsuite # et \xE9t\xE9", {.gras = true})}}};
    const std::string ecrite = EcrireNoteRiche(note);
    CHECK(LireNoteRiche(ecrite).paragraphes == note.paragraphes);
    CHECK(TexteDe(ecrite) == "{n\xB0} \\ \t \x80\r\nsuite # et \xE9t\xE9");
}

TEST_CASE("NoteRiche: a rich segment inside plain text is read in its place") {
    const std::string source = "avant\r\n{\\rtf1 {\\b gras}}\r\napr\xE8s";
    const NoteRiche note = LireNoteRiche(source);
    REQUIRE(note.paragraphes.size() == 3);
    CHECK(note.paragraphes[1].troncons == std::vector<Troncon>{Morceau("gras", {.gras = true})});
    CHECK(TexteDe(EcrireNoteRiche(note)) == TexteDe(source));
}

TEST_CASE("NoteRiche: unbalanced, deep and endless notes are read without harm") {
    const std::string profonde = "{\\rtf1 a" + std::string(100000, '{');
    for (const std::string& source :
         {std::string{"{\\rtf1"}, std::string{"{\\rtf1 a{\\b b"}, std::string{"{\\rtf1}}}"},
          std::string{"{\\rtf1 {\\*\\x {{{"}, std::string{"{\\rtf1\\u"},
          std::string{"{\\rtf1\\uc9\\u8805"}}) {
        const NoteRiche note = LireNoteRiche(source);
        CHECK_FALSE(note.paragraphes.empty());
        EstStable(note);
    }
    // What lies deeper is one object, so that no depth of braces costs more than its bytes.
    const NoteRiche note = LireNoteRiche(profonde);
    REQUIRE(note.paragraphes.size() == 1);
    CHECK(note.paragraphes[0].troncons.size() == 2);
    CHECK(EcrireNoteRiche(note).size() < 3 * profonde.size());
}

TEST_CASE("NoteRiche: any note settles after one writing and keeps its plain text") {
    std::mt19937 hasard{20};
    static constexpr const char* Bouts[] = {
        "a",       "\xE9",       " ",        "{",       "}",       "\\b ",        "\\b0 ",
        "\\i",     "\\par ",     "\\pard ",  "\\qc",    "\\fs20",  "\\cf1 ",      "\\tab ",
        "\\line ", "\\u233?",    "\\u8805?", "\\'e9",   "\\~",     "{\\pict 01}", "\\plain ",
        "\\_",     "{\\*\\x y}", "\\uc0 ",   "\\trowd", "\\cell ", "\r\n"};
    for (int essai = 0; essai < 3000; ++essai) {
        std::string source = "{\\rtf1\\ansi ";
        for (auto i = hasard() % 30; i > 0; --i)
            source += Bouts[hasard() % std::size(Bouts)];
        CAPTURE(source);
        const NoteRiche note = LireNoteRiche(source);
        EstStable(note);
        if (!note.EstSimple()) CHECK(LireNoteRiche(EcrireNoteRiche(note)) == note);
    }
}

#include "storage/Slots.h"

#include "storage/Essai.h"
#include "values/Texte1252.h"

using namespace dorvane;
using namespace dorvane::storage;

namespace {

DefinitionSlots Definition() {
    DefinitionSlots d;
    d.slots[0] = {'\\', ' '};
    d.slots[1] = {u'°'_1252, '1'};
    d.slots[2] = {'^', '1'};
    d.libelles = {"OCCU", "CHR", "BURI"};
    return d;
}
TexteDecoupe Decouper(const std::string& lignes) {
    return DecouperTexte("|DURAND\r\n" + lignes, Definition());
}
using V = ValeurSlot;

}  // namespace

namespace dorvane::storage {
std::ostream& operator<<(std::ostream& sortie, const ValeurSlot& v) {
    return sortie << '[' << v.jourMois << '|' << v.annee << '|' << v.lieu << ']';
}
}  // namespace dorvane::storage

TEST_CASE_FIXTURE(Essai,
                  "Places: the tokens $Saint.Malo and ~Rennes read as Saint Malo and Rennes") {
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|DURAND $Saint.Malo ~Rennes\r\nnote");
    CHECK(LieuNaissance(*base, NoOrdre{1}) == "Saint Malo");
    CHECK(LieuDeces(*base, NoOrdre{1}) == "Rennes");
    CHECK(LieuNaissance(*base, NoOrdre{2}).empty());
    base->R_TEXTE.EcrireTexte(NoOrdre{2}, "|DURAND\r\nvaut 100 $abc");
    CHECK(LieuNaissance(*base, NoOrdre{2}) == "abc");
    CHECK(LieuDeces(*base, NoOrdre{2}).empty());
}

TEST_CASE_FIXTURE(Essai, "A text with no line break has an empty note and no slots") {
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|DURAND OCCU meunier");
    CHECK(NoteDe(*base, NoOrdre{1}).empty());
    CHECK(SlotsDe(*base, NoOrdre{1}).empty());
    base->R_TEXTE.EcrireTexte(NoOrdre{2}, "|DURAND\r\n");
    CHECK(NoteDe(*base, NoOrdre{2}).empty());
}

TEST_CASE("Slots: a dated slot with a place") {
    const TexteDecoupe d = Decouper("BURI 12/05/1850 ^Paris\r\n");
    REQUIRE(d.slots.size() == 3);
    CHECK(d.slots[2] == V{"12/5", "1850", "Paris"});
    CHECK(d.note.empty());
    CHECK(Decouper("BURI 12/5/850\r\n").slots[2] == V{"12/5", "850", ""});
    CHECK(Decouper("BURI 12/5/ 850\r\n").slots[2] == V{"12/5", "850", ""});
}

TEST_CASE("Slots: a value that is no date gives its last four characters as the year") {
    CHECK(Decouper("CHR vers 1850\r\n").slots[1] == V{"vers", "1850", ""});
    CHECK(Decouper("CHR 1850\r\n").slots[1] == V{"", "1850", ""});
    CHECK(Decouper("CHR ABT 12/3/1850\r\n").slots[1] == V{"ABT 12/3", "1850", ""});
    CHECK(Decouper("CHR 12 mars     \r\n").slots[1] == V{"12 mars", "", ""});
    CHECK(Decouper("CHR 185\r\n").slots[1] == V{"", "185", ""});
    CHECK(Decouper("CHR vers 1850 \xB0"
                   "Brest\r\n")
              .slots[1] == V{"vers", "1850", "Brest"});
    // The joints of a day, a month and a short year that is none.
    CHECK(Decouper("CHR 12/3/44?\r\n").slots[1] == V{"12/3", "44?", ""});
    CHECK(Decouper("CHR 12/3/185?\r\n").slots[1] == V{"12/3", "185?", ""});
}

TEST_CASE("Slots: a plain slot takes its word, or its place if it has one") {
    CHECK(Decouper("OCCU meunier\r\n").slots[0] == V{"", "", "meunier"});
    CHECK(Decouper("OCCU \\maitre.meunier\r\n").slots[0] == V{"", "", "maitre meunier"});
    CHECK(Decouper("OCCU ignore \\meunier\r\n").slots[0] == V{"", "", "meunier"});
}

TEST_CASE("Slots: a dated slot may hold a place alone") {
    CHECK(Decouper("BURI ^Le.Mans\r\n").slots[2] == V{"", "", "Le Mans"});
}

TEST_CASE("Slots: lines are found by their label at the start of a line, in any order") {
    const TexteDecoupe d =
        Decouper("BURI 1851\r\nCHRISTOPHE\r\nvoir CHR ici\r\nOCCU meunier\r\nCHR 1850\r\nfin\r\n");
    CHECK(d.slots[0] == V{"", "", "meunier"});
    CHECK(d.slots[1] == V{"", "1850", ""});
    CHECK(d.slots[2] == V{"", "1851", ""});
    CHECK(d.note == "CHRISTOPHE\r\nvoir CHR ici\r\nfin");
}

TEST_CASE("Notes: outer line breaks and blanks are taken away, inner ones stay") {
    CHECK(Decouper("\r\n\r\nun\r\n\r\ndeux \r\n\r\n").note == "un\r\n\r\ndeux");
    CHECK(Decouper("OCCU meunier\r\n\r\nnote\r\n").note == "note");
    CHECK(Decouper("OCCU x\nnote").note == "note");
}

TEST_CASE("Slots: slots behind a blank symbol are not read") {
    DefinitionSlots d = Definition();
    d.slots[1] = {};
    CHECK(DecouperTexte("x\r\nOCCU a\r\nBURI 1850\r\n", d).slots.size() == 1);
    CHECK(DecouperTexte("x\r\nOCCU a\r\nBURI 1850\r\n", d).note == "BURI 1850");
}

TEST_CASE_FIXTURE(Essai, "Unions: date words, place, slots and note") {
    base->R_TXTMAR.EcrireTexte(NoMariage{1},
                               "ABT 12/3 @Saint.Malo\r\nDIV 3/4/1900 \xA4Nantes\r\nnote");
    CHECK(DateMariageBrute(*base, NoMariage{1}) == "ABT 12/3");
    CHECK(LieuMariage(*base, NoMariage{1}) == "Saint Malo");
    CHECK(NoteMariage(*base, NoMariage{1}) == "note");
    REQUIRE(SlotsMariageDe(*base, NoMariage{1}).size() == 1);
    CHECK(SlotsMariageDe(*base, NoMariage{1})[0] == V{"3/4", "1900", "Nantes"});
    base->R_TXTMAR.EcrireTexte(NoMariage{2}, "12/3");
    CHECK(DateMariageBrute(*base, NoMariage{2}) == "12/3");
    CHECK(LieuMariage(*base, NoMariage{2}).empty());
}

TEST_CASE_FIXTURE(Essai, "A new base finds its slots by the labels of its keywords") {
    const DefinitionSlots d = base->DefinitionIndividu();
    CHECK(d.libelles[0] == "OCCU");
    CHECK(d.libelles[1] == "CHR");
    CHECK(d.libelles[2] == "BURI");
    CHECK(base->DefinitionMariage().libelles[0] == "DIV");
}

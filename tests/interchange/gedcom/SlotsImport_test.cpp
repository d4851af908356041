#include "interchange/gedcom/SlotsImport.h"

#include "interchange/EssaiImport.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE_FIXTURE(
    EssaiImport, "MarqueursImport: keywords of every base keep theirs, others take the next free") {
    Importer("0 @I1@ INDI\n");
    MarqueursImport marqueurs{*base, [](char) { return false; }};
    CHECK(marqueurs.Marqueur("OCCU") == '\\');
    CHECK(marqueurs.Marqueur("NICK") == u'µ'_1252);
    CHECK(marqueurs.Marqueur("EMIG") == u'£'_1252);
    CHECK(marqueurs.Marqueur("NICK") == u'µ'_1252);
    CHECK(base->motsCles.Nombre() == 13);
    CHECK(base->motsCles.LibelleType(NoMotCle{12}).libelle == "NICK");
}

TEST_CASE_FIXTURE(EssaiImport,
                  "MarqueursImport: no marker that a text of the file holds is given") {
    Importer(
        "0 @I1@ INDI\n1 NAME Jean /Martin/\n1 EMIG\n2 PLAC Québec\n1 NOTE £200, µ, §3 et ¬ ± 5\n");
    CHECK(base->entete.SlotsIndividu[0].symbole == u'¹'_1252);
    CHECK(storage::SlotsDe(*base, NoOrdre{1})[0].lieu == "Québec"_1252);
    CHECK(storage::NoteDe(*base, NoOrdre{1}) == "£200, µ, §3 et ¬ ± 5"_1252);
}

TEST_CASE_FIXTURE(EssaiImport, "MarqueursImport: when no marker is left there is none") {
    Importer("0 @I1@ INDI\n");
    MarqueursImport marqueurs{*base, [](char) { return false; }};
    for (int i = 0; i < 14; ++i)
        CHECK(marqueurs.Marqueur("T" + std::to_string(i)) != '\0');
    CHECK(marqueurs.Marqueur("PLUS") == '\0');
    CHECK(base->motsCles.Nombre() == 25);
}

TEST_CASE_FIXTURE(EssaiImport, "The default rows of a sheet stand behind those of the file") {
    Importer("0 @I1@ INDI\n1 EMIG\n2 DATE 1850\n1 CHR\n");
    const storage::Slots& slots = base->entete.SlotsIndividu;
    CHECK(slots[0] == storage::Slot{u'µ'_1252, '1'});
    CHECK(slots[1] == storage::Slot{u'°'_1252, '1'});
    CHECK(slots[2].symbole == '\\');
    CHECK(slots[3].symbole == '^');
    CHECK(storage::NbSlots(slots) == 4);
}

TEST_CASE_FIXTURE(EssaiImport, "A row line keeps its columns whatever part is missing") {
    Importer(
        "0 @I1@ INDI\n1 CHR\n2 DATE 850\n1 EMIG\n2 DATE ABT MAY 1850\n1 OCCU maire\n"
        "1 CENS\n2 DATE 29 FEB 1821\n");
    CHECK(Texte(1) ==
          "\r\nCHR  850\r\nEMIG ABT MAY 1850\r\nOCCU      \\maire\r\nCENS 29/2 1821\r\n");
    const storage::TableSlots slots = storage::SlotsDe(*base, NoOrdre{1});
    CHECK(slots[0] == storage::ValeurSlot{"", "850", ""});
    CHECK(slots[1] == storage::ValeurSlot{"ABT MAY", "1850", ""});
    CHECK(slots[2] == storage::ValeurSlot{"", "", "maire"});
}

TEST_CASE_FIXTURE(EssaiImport, "Words of rows are in the index right after the import") {
    Importer("0 @I1@ INDI\n1 NAME A /B/\n1 OCCU maître tailleur\n"_1252);
    const NoMotCle occu = base->motsCles.TypeDuSymbole('\\');
    const NoIndex mot = base->R_INDEX.ChercherMot(occu, "MAITRE TAILLEUR");
    CHECK(base->R_INDEX.PersonnesIndex(mot) == std::vector{NoOrdre{1}});
}

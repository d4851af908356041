#include "interchange/gedcom/LecteurIndividu.h"

#include "interchange/EssaiImport.h"
#include "messages/Messages.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: sex M is a man, any other value a woman, none neither") {
    Importer("0 @I1@ INDI\n1 SEX M\n0 @I2@ INDI\n1 SEX U\n0 @I3@ INDI\n1 SEX m\n0 @I4@ INDI\n");
    CHECK(base->R_SEXE.LireCellule(NoOrdre{1}) == Sexe::Homme);
    CHECK(base->R_SEXE.LireCellule(NoOrdre{2}) == Sexe::Femme);
    CHECK(base->R_SEXE.LireCellule(NoOrdre{3}) == Sexe::Femme);
    CHECK(base->R_SEXE.LireCellule(NoOrdre{4}) == Sexe::Indetermine);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "INDI.SEX") == 2);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: birth and death go to cells, name line and keywords") {
    Importer(
        "0 @I1@ INDI\n1 NAME Jean /Dupont/\n1 NOTE avant\n1 BIRT\n2 DATE 12 MAR 1820\n"
        "2 PLAC Saint Malo\n1 DEAT\n2 DATE ABT 1880\n2 PLAC Rennes\n");
    CHECK(Nom(1) == "Dupont;Jean;;12/3;ABT");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1820");
    CHECK(base->R_DECES.LireCellule(NoOrdre{1}) == "1880");
    CHECK(Texte(1) == "|Dupont ¶Jean $Saint.Malo ~Rennes\r\navant"_1252);
    CHECK(storage::LieuNaissance(*base, NoOrdre{1}) == "Saint Malo");
    CHECK(storage::NoteDe(*base, NoOrdre{1}) == "avant");
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: four digits under a birth or an event are a year") {
    Importer("0 @I1@ INDI\n1 NAME A /B/\n1 BIRT\n2 DATE 1820\n1 CHR\n2 DATE 1821\n");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1820");
    const storage::TableSlots slots = storage::SlotsDe(*base, NoOrdre{1});
    REQUIRE(slots.size() >= 1);
    CHECK(slots[0].annee == "1821");
    CHECK(slots[0].jourMois.empty());
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: an event row holds date, place and word") {
    Importer(
        "0 @I1@ INDI\n1 NAME A /B/\n1 CHR\n2 DATE 13 MAR 1820\n2 PLAC Saint Malo\n"
        "1 OCCU tailleur de pierre\n2 DATE 1845\n2 PLAC Rennes\n");
    CHECK(Texte(1) ==
          "|B ¶A\r\nCHR 13/3/1820 °Saint.Malo\r\n"
          "OCCU 1845 \\Rennes.tailleur.de.pierre\r\n"_1252);
    const storage::TableSlots slots = storage::SlotsDe(*base, NoOrdre{1});
    CHECK(slots[0] == storage::ValeurSlot{"13/3", "1820", "Saint Malo"});
    CHECK(slots[1] == storage::ValeurSlot{"", "1845", "Rennes tailleur de pierre"});
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: an eleventh tag of the file finds no row and is lost") {
    std::string lignes = "0 @I1@ INDI\n1 NAME A /B/\n";
    for (const char* tag :
         {"OCCU", "CHR", "BURI", "CREM", "CONF", "EMIG", "IMMI", "CENS", "ORDN", "BLES", "BARM"})
        lignes += std::string{"1 "} + tag + "\n2 DATE 1830\n";
    Importer(lignes + "0 @I2@ INDI\n1 BARM\n2 DATE 1860\n0 @I3@ INDI\n1 BLES\n2 DATE 1861\n");
    CHECK(Texte(1).find("BLES 1830") != std::string::npos);
    CHECK(Texte(1).find("BARM") == std::string::npos);
    CHECK(Texte(2).empty());
    CHECK(Texte(3).find("BLES 1861") != std::string::npos);
    CHECK(importation.rapport.Nombre(Constat::SansPlace, "INDI.BARM") == 2);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: BAPM and CHRA are christenings") {
    Importer("0 @I1@ INDI\n1 BAPM\n2 DATE 1820\n0 @I2@ INDI\n1 CHRA\n2 DATE 1821\n");
    CHECK(Texte(1) == "\r\nCHR 1820\r\n");
    CHECK(Texte(2) == "\r\nCHR 1821\r\n");
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: a second event of one kind goes to the note, not lost") {
    Importer(
        "0 @I1@ INDI\n1 NAME A /B/\n1 OCCU forgeron\n1 OCCU maire\n2 DATE 1850\n2 PLAC Vitré\n"_1252);
    CHECK(Texte(1) == "|B ¶A\r\nOCCU      \\forgeron\r\nProfession: 1850, Vitré, maire"_1252);
    CHECK(Constats(Constat::DansLaNote) == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: an EVEN is kept in the note under its type") {
    Importer("0 @I1@ INDI\n1 EVEN\n2 TYPE Voyage\n2 DATE 12 MAY 1800\n2 PLAC Brest\n");
    CHECK(storage::NoteDe(*base, NoOrdre{1}) == "Voyage: 12/5/1800, Brest");
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: texts come with their message, and the event's label") {
    Importer(
        "0 @I1@ INDI\n1 DEAT\n2 CAUS noyade\n2 AGE 60y\n2 AGNC Mairie\n1 REFN 12\n"
        "1 ADDR Rue Haute\n2 CITY Rennes\n1 ALIA le Grand\n");
    CHECK(storage::NoteDe(*base, NoOrdre{1}) ==
          "Décès - Cause: noyade\r\nDécès - 60 ans\r\nDécès - Autorité: Mairie\r\n"
          "Document: 12\r\nAdresse postale: Rue Haute, Rennes"_1252);
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.ALIA") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: CONT begins a line, CONC a blank") {
    Importer("0 @I1@ INDI\n1 NOTE un\n2 CONC deux\n2 CONT trois\n2 CONT\n2 CONT quatre\n");
    CHECK(Texte(1) == "\r\nun deux\r\ntrois\r\n\r\nquatre");
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: a date under a source or a change is no birth date") {
    Importer(
        "0 @I1@ INDI\n1 NAME A /B/\n1 BIRT\n2 SOUR @S1@\n3 DATA\n4 DATE 1900\n1 CHAN\n"
        "2 DATE 3 MAY 2003\n3 TIME 12:00\n");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}).empty());
    CHECK(storage::NoteDe(*base, NoOrdre{1}) == "Modification: 3 MAY 2003 - 12:00");
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.BIRT.SOUR.DATA.DATE") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: pieces of the name serve when NAME is empty") {
    Importer(
        "0 @I1@ INDI\n1 NAME\n2 GIVN Jean Paul\n2 SURN Dupont\n0 @I2@ INDI\n"
        "1 NAME Luc /Petit/\n2 GIVN Autre\n2 SURN Autre\n2 NICK Lulu\n");
    CHECK(Nom(1) == "Dupont;Jean;Paul");
    CHECK(Nom(2) == "Petit;Luc;");
    CHECK(Texte(2).find("NICK") != std::string::npos);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: what stands under an unknown line is named in the report") {
    Importer("0 @I1@ INDI\n1 OBJE\n2 FILE a.jpg\n2 TITL Portrait\n1 NAME A /B/\n");
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.OBJE") == 1);
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.OBJE.FILE") == 1);
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.OBJE.TITL") == 1);
    CHECK(Nom(1) == "B;A;");
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: a line whose level jumps belongs to nothing") {
    Importer("0 @I1@ INDI\n1 BIRT\n3 DATE 1821\n1 NAME A /B/\n99 NOTE x\n");
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}).empty());
    CHECK(Constats(Constat::SansParent) == 2);
    CHECK(Nom(1) == "B;A;");
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: a number sign cannot cut a record") {
    Importer("0 @I1@ INDI\n1 NAME A /B/\n1 NOTE n#1\n1 BIRT\n2 PLAC D # E\n");
    CHECK(Texte(1) == "|B ¶A $D.-.E\r\nn-1"_1252);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: a suffix behind the surname goes to the note") {
    Importer("0 @I1@ INDI\n1 NAME Jean /Dupont/ fils\n1 OCCU maire\n");
    CHECK(Nom(1) == "Dupont;Jean;");
    CHECK(storage::NoteDe(*base, NoOrdre{1}) ==
          session.Message(message::NomCite) + ": Jean /Dupont/ fils");
    CHECK(importation.rapport.Nombre(Constat::DansLaNote, "INDI.NAME") == 1);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: words on the line of an event follow its label in the note") {
    Importer(
        "0 @I1@ INDI\n1 NAME A /B/\n1 BIRT peut-être ici\n2 CONT ou là\n2 DATE 1820\n1 DEAT Y\n"
        "1 CHR à la maison\n2 PLAC Rennes\n1 BURI Y\n2 PLAC Vitré\n"_1252);
    CHECK(base->R_NAISS.LireCellule(NoOrdre{1}) == "1820");
    CHECK(Texte(1) ==
          "|B ¶A\r\nCHR      °Rennes\r\nBURI      ^Vitré\r\n"
          "Naissance - peut-être ici\r\nou là\r\nBaptême - à la maison"_1252);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: a TITL that is a reference hangs a document on the person") {
    Importer(
        "0 @I1@ INDI\n1 TITL @T1@\n1 TITL Comte\n1 SOUR @S1@\n2 TITL @N1@\n0 @T1@ TITL Acte\n"
        "0 @N1@ NOTE Copie\n0 @S1@ SOUR\n");
    CHECK(base->R_LSTIMG.Elements(NoOrdre{1}) == std::vector{NoDocument{1}});
    CHECK(base->R_EVT.Documents(NoEvenement{1}) == std::vector{NoDocument{2}});
    CHECK(Texte(1) == "\r\nTITL      µComte\r\n"_1252);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: pieces of a name that say something else are in the report") {
    Importer(
        "0 @I1@ INDI\n1 NAME Luc Émile /De Petit/\n2 GIVN LUC, Emile\n2 SURN petit\n"
        "0 @I2@ INDI\n1 NAME Luc /Petit/\n2 GIVN Lucien\n2 SURN Petit\n"_1252);
    CHECK(Constats(Constat::NonRepris) == 1);
    CHECK(importation.rapport.Nombre(Constat::NonRepris, "INDI.NAME.GIVN") == 1);
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: what a record cannot hold as it stands is in the report") {
    Importer(
        "0 @I1@ INDI\n1 NAME A;C /B/\n1 NOTE n#1\n1 BIRT\n2 DATE 12 MAR 1820; ou 1821\n"
        "1 OCCU maire #2\n1 RESI L'Haÿ\n0 @S1@ SOUR\n1 PLAC L'Haÿ\n0 @N1@ NOTE n#2\n0 @I2@ INDI\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 NOTE n#3\n"_1252);
    CHECK(Constats(Constat::Remplace) == 7);
    CHECK(Nom(1).starts_with("B;A,C;;"));
    CHECK(importation.rapport.Nombre(Constat::Remplace, "SOUR.PLAC") == 1);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "INDI.RESI") == 0);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "NOTE") == 1);
    CHECK(importation.rapport.Nombre(Constat::Remplace, "FAM.NOTE") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: the cemetery of a burial has a row of its own") {
    Importer("0 @I1@ INDI\n1 BURI\n2 DATE 1850\n2 CEME Saint Louis\n");
    CHECK(Texte(1).find("BURP") != std::string::npos);
    CHECK(Texte(1).find("Saint.Louis") != std::string::npos);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: who adopted is told by the label of the parent") {
    Importer(
        "0 @I1@ INDI\n1 ADOP\n2 DATE 1850\n2 FAMC @F1@\n3 ADOP HUSB\n0 @I2@ INDI\n1 ADOP\n"
        "2 ADOP WIFE\n0 @I3@ INDI\n1 ADOP\n2 ADOP BOTH\n2 FAMC @F9@\n0 @F1@ FAM\n");
    const auto note = [&](std::uint32_t n) { return storage::NoteDe(*base, NoOrdre{n}); };
    CHECK(note(1) == "Adoption - Adoption: Père"_1252);
    CHECK(note(2) == "Adoption - Adoption: Mère"_1252);
    CHECK(note(3).starts_with("Adoption - Adoption: "));
    CHECK(importation.rapport.Nombre(Constat::Reference, "INDI.FAMC @F9@") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: quality, page and filiation in the user's words") {
    Importer(
        "0 @I1@ INDI\n1 SOUR Acte\n2 PAGE 12\n2 QUAY 0\n1 SOUR Acte\n2 QUAY 3\n1 SOUR x\n2 QUAY 7\n"
        "1 FAMC @F1@\n2 PEDI adopted\n1 FAMC @F1@\n2 PEDI inconnu\n0 @F1@ FAM\n");
    const std::string note = storage::NoteDe(*base, NoOrdre{1});
    const auto texte = [&](NoMessage message) { return session.Message(message); };
    CHECK(note == texte(message::Source) + ": Acte " + texte(message::MotPage) + " - 12\r\n" +
                      texte(message::Fiabilite) + ": " + texte(message::FiabiliteNulle) + "\r\n" +
                      texte(message::Source) + ": Acte\r\n" + texte(message::Fiabilite) + ": " +
                      texte(message::FiabiliteSourceOriginale) + "\r\n" + texte(message::Source) +
                      ": x\r\n" + texte(message::Fiabilite) + ": 7\r\n" + texte(message::TagPEDI) +
                      ": " + texte(message::FiliationAdoptive) + "\r\n" + texte(message::TagPEDI) +
                      ": inconnu");
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: ages as words and as years, months and days") {
    Importer(
        "0 @I1@ INDI\n1 DEAT\n2 AGE CHILD\n0 @I2@ INDI\n1 DEAT\n2 AGE INFANT\n0 @I3@ INDI\n1 DEAT\n"
        "2 AGE STILLBORN\n0 @I4@ INDI\n1 DEAT\n2 AGE > 3y 2m 1d\n");
    const auto note = [&](std::uint32_t n) { return storage::NoteDe(*base, NoOrdre{n}); };
    const auto texte = [&](NoMessage message) { return session.Message(message); };
    const std::string debut = texte(message::TagDEAT) + " - ";
    CHECK(note(1) == debut + texte(message::TagCHIL));
    CHECK(note(2) == debut + texte(message::AgeNourrisson));
    CHECK(note(3) == debut + texte(message::AgeMortNe));
    CHECK(note(4) == debut + "> 3" + texte(message::AgeAns) + " 2" + texte(message::AgeMois) +
                         " 1" + texte(message::AgeJours));
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: each attribute has a row with its word") {
    for (const char* tag :
         {"CAST", "DSCR", "EDUC", "ENDL", "FCOM", "GIVN", "GRAD", "LEGA", "IDNO", "MEDI", "MILI",
          "NAMR", "RETI", "NATI", "NATU", "NCHI", "NICK", "NMR",  "NPFX", "NSFX", "OCCU", "PROB",
          "PROP", "RELI", "RESI", "SIGN", "SITE", "SSN",  "STAT", "SPFX", "SURN", "WILL", "TITL"}) {
        CAPTURE(tag);
        Importer(std::string{"0 @I1@ INDI\n1 "} + tag + " un mot\n2 DATE 12 MAR 1820\n");
        CHECK(Texte(1).starts_with("\r\n" + std::string{tag} + " 12/3/1820 "));
        CHECK(base->DefinitionIndividu().libelles[0] == tag);
        CHECK(storage::SlotsDe(*base, NoOrdre{1}).at(0) ==
              storage::ValeurSlot{"12/3", "1820", "un mot"});
        CHECK(Constats(Constat::NonRepris) + Constats(Constat::DansLaNote) == 0);
    }
}

TEST_CASE_FIXTURE(EssaiImport,
                  "An individual: each event has a dated row that only its place fills") {
    for (const char* tag : {"BARM", "BASM", "BLES", "BURI", "CENS", "CHR", "CONF", "CONL", "CREM",
                            "EMIG", "IMMI", "ORDI", "ORDN", "ADOP", "BAPM", "CHRA", "BAPL"}) {
        CAPTURE(tag);
        const std::string nom{tag};
        const std::string libelle = nom == "BAPM" || nom == "CHRA" || nom == "BAPL" ? "CHR" : nom;
        std::string lignes{"0 @I1@ INDI\n1 "};
        lignes.append(nom).append(" Y\n2 PLAC Saint Malo\n0 @I2@ INDI\n1 ").append(nom);
        Importer(lignes.append("\n"));
        CHECK(Texte(1).starts_with("\r\n" + libelle + "      "));
        CHECK(storage::SlotsDe(*base, NoOrdre{1}).at(0) ==
              storage::ValeurSlot{"", "", "Saint Malo"});
        CHECK(Texte(2) == "\r\n" + libelle + "     \r\n");
        CHECK(base->entete.SlotsIndividu[0].drapeau == '1');
        CHECK(Constats(Constat::NonRepris) == 0);
    }
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: a baptism of another church has a row beside CHR") {
    Importer("0 @I1@ INDI\n1 CHR\n2 DATE 1820\n1 BAPL\n2 DATE 1821\n1 BAPM\n2 DATE 1822\n");
    CHECK(Texte(1).starts_with("\r\nCHR 1820\r\nCHR 1821\r\n"));
    CHECK(importation.rapport.Nombre(Constat::DansLaNote, "INDI.BAPM") == 1);
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: each text has its message, alone and in an event") {
    for (const auto& [tag, no] : {std::pair{"AGNC", message::Autorite},
                                  {"CAUS", message::Cause},
                                  {"CHAN", message::Modification},
                                  {"GODP", message::ParrainEtMarraine},
                                  {"TEMP", message::Temple},
                                  {"AUTH", message::TagAUTH},
                                  {"CORP", message::Organisme},
                                  {"PUBL", message::TagPUBL},
                                  {"REFN", message::Document}}) {
        CAPTURE(tag);
        std::string lignes{"0 @I1@ INDI\n1 "};
        lignes.append(tag).append(" un\n2 CONC mot\n1 DEAT\n2 ").append(tag);
        lignes.append(" deux\n0 @S1@ SOUR\n1 ").append(tag).append(" trois\n");
        Importer(lignes);
        const std::string message = session.Message(no);
        REQUIRE_FALSE(message.empty());
        std::string note = message + ": un mot\r\n";
        note.append(session.Message(message::TagDEAT))
            .append(" - ")
            .append(message)
            .append(": deux");
        CHECK(storage::NoteDe(*base, NoOrdre{1}) == note);
        CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) == message + ": trois");
    }
}

TEST_CASE_FIXTURE(EssaiImport, "An individual: a second name and a time are texts") {
    Importer(
        "0 @I1@ INDI\n1 NAME A /B/\n1 NAME C /D/\n1 DEAT\n2 DATE 1850\n3 TIME 12:30\n2 NAME E\n"
        "2 NOTE mort\n2 ADDR Rue Haute\n3 CITY Dol\n2 ADDR Autre\n");
    const std::string deces = session.Message(message::TagDEAT);
    CHECK(storage::NoteDe(*base, NoOrdre{1}) ==
          session.Message(message::NomCite) + ": C /D/\r\n" + deces + " - 12:30\r\n" + deces +
              " - " + session.Message(message::NomCite) + ": E\r\n" + deces + " - " +
              session.Message(message::Document) + ": mort");
    CHECK(storage::SlotsDe(*base, NoOrdre{1}).at(0).lieu == "Rue Haute - Dol - Autre");
}

#include "interchange/gedcom/LignesGedcom.h"

#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane::interchange;

namespace {

std::vector<std::string> Etiquettes(std::string_view texte, FinDeLigne fin) {
    LecteurDeLignes lecteur{texte, fin};
    std::vector<std::string> lues;
    LigneGedcom ligne;
    for (auto sorte = lecteur.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
         sorte = lecteur.Lire(ligne)) {
        if (sorte == LecteurDeLignes::Sorte::Ligne)
            lues.push_back(std::to_string(ligne.numero) + ':' + std::string{ligne.etiquette});
        else
            lues.emplace_back(sorte == LecteurDeLignes::Sorte::Vide ? "vide" : "illisible");
    }
    return lues;
}

LigneGedcom LireUne(std::string_view texte) {
    LecteurDeLignes lecteur{texte, FinDeLigne::Lf};
    LigneGedcom ligne;
    REQUIRE(lecteur.Lire(ligne) == LecteurDeLignes::Sorte::Ligne);
    return ligne;
}

using Lues = std::vector<std::string>;

}  // namespace

TEST_CASE("ChercherFinDeLigne: the first of CR LF, LF CR, LF, CR within 1000 characters") {
    CHECK(ChercherFinDeLigne("a\r\nb") == FinDeLigne::CrLf);
    CHECK(ChercherFinDeLigne("a\n\rb") == FinDeLigne::LfCr);
    CHECK(ChercherFinDeLigne("a\nb") == FinDeLigne::Lf);
    CHECK(ChercherFinDeLigne("a\rb") == FinDeLigne::Cr);
    CHECK(ChercherFinDeLigne(std::string(999, 'x') + "\n") == FinDeLigne::Lf);
    CHECK_FALSE(ChercherFinDeLigne(std::string(1000, 'x') + "\n"));
    CHECK_FALSE(ChercherFinDeLigne(""));
}

TEST_CASE("LecteurDeLignes: every kind of line end, and mixtures of them") {
    const Lues deux{"1:HEAD", "2:TRLR"};
    CHECK(Etiquettes("0 HEAD\r\n0 TRLR\r\n", FinDeLigne::CrLf) == deux);
    CHECK(Etiquettes("0 HEAD\n\r0 TRLR\n\r", FinDeLigne::LfCr) == deux);
    CHECK(Etiquettes("0 HEAD\n0 TRLR", FinDeLigne::Lf) == deux);
    CHECK(Etiquettes("0 HEAD\r0 TRLR", FinDeLigne::Cr) == deux);
    CHECK(Etiquettes("0 HEAD\r\n1 SOUR X\n0 TRLR\n", FinDeLigne::CrLf) ==
          Lues{"1:HEAD", "2:SOUR", "3:TRLR"});
}

TEST_CASE("LecteurDeLignes: a blank line between LF CR ends does not shift the count") {
    CHECK(Etiquettes("0 HEAD\n\r\n\r0 TRLR\n\r", FinDeLigne::LfCr) ==
          Lues{"1:HEAD", "vide", "3:TRLR"});
}

TEST_CASE("LecteurDeLignes: blank lines, indents and lines that are none") {
    CHECK(Etiquettes("0 HEAD\n\n   \n\t 1 SOUR X\nprose\n0\nX NAME\n-1 NOTE\n0 @@ INDI\n0 TRLR",
                     FinDeLigne::Lf) == Lues{"1:HEAD", "vide", "vide", "4:SOUR", "illisible",
                                             "illisible", "illisible", "illisible", "illisible",
                                             "10:TRLR"});
}

TEST_CASE("LecteurDeLignes: a text of returns alone is not walked through for each of them") {
    std::string texte;
    for (int i = 0; i < 200000; ++i)
        texte += "1 A\r";
    CHECK(Etiquettes(texte, FinDeLigne::Cr).size() == 200000);
}

TEST_CASE("LecteurDeLignes: the parts of a line are trimmed") {
    const LigneGedcom ligne = LireUne("  01   NAME \t Jean /Dupont/  ");
    CHECK(ligne.niveau == 1);
    CHECK(ligne.etiquette == "NAME");
    CHECK(ligne.valeur == "Jean /Dupont/");
    CHECK(ligne.cle.empty());
}

TEST_CASE("LecteurDeLignes: an identifier stands in front of the tag") {
    CHECK(LireUne("0 @I1@ INDI").cle == "I1");
    CHECK(LireUne("0  @I1@  INDI ").etiquette == "INDI");
    CHECK(LireUne("0 @un deux@ INDI").cle == "un deux");
    const LigneGedcom note = LireUne("0 @N1@ NOTE Texte @ et suite");
    CHECK(note.cle == "N1");
    CHECK(note.valeur == "Texte @ et suite");
}

TEST_CASE("CleDeReference: what is no reference has no key") {
    CHECK(CleDeReference("@I1@") == "I1");
    CHECK(CleDeReference("@ I1 @") == "I1");
    CHECK(CleDeReference("I1").empty());
    CHECK(CleDeReference("@I1").empty());
    CHECK(CleDeReference("@@I1@").empty());
    CHECK(CleDeReference("@#DJULIAN@ 1 JAN 1700").empty());
    CHECK(CleDeReference("@").empty());
    CHECK(CleDeReference("").empty());
}

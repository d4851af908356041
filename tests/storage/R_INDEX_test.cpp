#include "storage/R_INDEX.h"

#include "storage/BureauIndex.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE("MotsDuTexte: tokens, folding and the places where a token ends") {
    CHECK(MotsDuTexte("|Durand $Saint.Malo ~Rennes\r\nnote", '$') == Mots{"SAINT MALO"});
    CHECK(MotsDuTexte("$a $b\r$c", '$') == Mots{"A", "B", "C"});
    CHECK(MotsDuTexte("$ $\r$", '$').empty());
    CHECK(MotsDuTexte("$a$b x", '$') == Mots{"A$B", "B"});
    CHECK(MotsDuTexte("$A.", '$') == Mots{"A"});
    CHECK(MotsDuTexte("|...", '|') == Mots{"..."});
    CHECK(MotsDuTexte("", '|').empty());
    CHECK(MotsDuTexte("$a {\\rtf1\\b $gras\\b0} fin", '$') == Mots{"A", "GRAS"});
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: words enter sorted lists, unchanged words cost nothing") {
    Ecrire(1, "|DURAND \xB6Jean");
    Ecrire(2, "|ABEL \xB6Jean");
    CHECK(MotsDe(1) == Mots{"ABEL", "DURAND"});
    CHECK(De(2) == Index{{"JEAN", {1, 2}}});
    CHECK(De(3).empty());
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_INDEX.MajIndex(NoOrdre{1}, "|DURAND \xB6Jean", "\xB6Jean |Durand\r\nautre note");
    CHECK(base->volume.FinFichier() == fin);
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    const unsigned cellule = lgd.Cellule("INDEX", 1);
    CHECK(lgd.Texte(lgd.Num4(cellule)) == "DURAND");
    CHECK(lgd.Num2(cellule + 4) == 1);
    CHECK(lgd.Num2(lgd.Num4(cellule + 6)) == 1);
    // The other keywords still share the empty list.
    const unsigned fiche = lgd.Num4(201 + 8);
    CHECK(lgd.Num4(fiche + 6) == 3574);
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: a rename between two existing words changes no word list") {
    Ecrire(1, "|DURAND");
    Ecrire(2, "|ABEL");
    Ecrire(3, "|DURAND");
    const Position liste = base->motsCles.PosMotsType(NoMotCle{1});
    Ecrire(3, "|ABEL");
    CHECK(base->motsCles.PosMotsType(NoMotCle{1}) == liste);
    CHECK(De(1) == Index{{"ABEL", {2, 3}}, {"DURAND", {1}}});
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: the last carrier leaves and the entry dies, NbIndex stays") {
    Ecrire(1, "|DURAND");
    const NoIndex e = base->R_INDEX.ChercherMot(NoMotCle{1}, "DURAND");
    REQUIRE(e);
    Ecrire(1, "|ABEL");
    CHECK(MotsDe(1) == Mots{"ABEL"});
    CHECK(base->R_INDEX.CelluleIndex(e) == CelluleMot{});
    CHECK(base->R_INDEX.PersonnesIndex(e).empty());
    CHECK(base->entete.NbIndex == 2);
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: a word twice enters the person twice, one leaves at a time") {
    Ecrire(1, "|DURAND |DURAND");
    CHECK(De(1) == Index{{"DURAND", {1, 1}}});
    Ecrire(1, "|DURAND");
    CHECK(De(1) == Index{{"DURAND", {1}}});
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: a list of one that holds somebody else is left alone") {
    Ecrire(1, "|DURAND");
    base->R_INDEX.MajIndex(NoOrdre{2}, "|DURAND", "");
    CHECK(De(1) == Index{{"DURAND", {1}}});
}

TEST_CASE_FIXTURE(Bureau,
                  "MajIndex: persons stand by birth year, and are placed anew when it changes") {
    base->R_NAISS.EcrireCellule(NoOrdre{1}, "1850");
    base->R_NAISS.EcrireCellule(NoOrdre{2}, "1800");
    base->R_NAISS.EcrireCellule(NoOrdre{3}, "1850");
    for (std::uint32_t n = 1; n <= 3; ++n)
        Ecrire(n, "|DURAND");
    CHECK(De(1) == Index{{"DURAND", {2, 1, 3}}});
    base->R_NAISS.EcrireCellule(NoOrdre{2}, "1900");
    base->R_INDEX.ReclasserIndex(NoOrdre{2}, base->R_TEXTE.LireTexte(NoOrdre{2}));
    CHECK(De(1) == Index{{"DURAND", {1, 3, 2}}});
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: the 64001st entry is left out and told once") {
    ObservateurEssai observateur;
    base->marques.observateur = &observateur;
    base->entete.NbIndex = 63999;
    Ecrire(1, "|A |B |C");
    CHECK(MotsDe(1) == Mots{"A"});
    CHECK(base->entete.NbIndex == 64000);
    CHECK(observateur.incidents == std::vector{std::pair{Incident::IndexPlein, 0U}});
}

TEST_CASE("MotsDuTexte: a run of more than 1023 bytes is no word, what follows it is read") {
    CHECK(MotsDuTexte("$" + std::string(1023, 'a') + " $b", '$') ==
          Mots{std::string(1023, 'A'), "B"});
    CHECK(MotsDuTexte("$" + std::string(1024, 'a') + " $b", '$') == Mots{"B"});
}

TEST_CASE("MotsDuTexte: a hostile run of symbols gives no more than its last 1023 bytes") {
    std::string texte;
    for (int i = 0; i < 200000; ++i)
        texte += "$a";
    CHECK(MotsDuTexte(texte, '$').size() == 512);
}

TEST_CASE_FIXTURE(Bureau, "MajIndex: a # that rich text spells cuts no word record") {
    const std::string texte = "x {\\rtf1 |A\\'23B}";
    Ecrire(1, texte);
    CHECK(De(1) == Index{{"A B", {1}}});
    Ecrire(1, "{\\rtf1 |\\'23 }");
    CHECK(De(1) == Index{{"-", {1}}});
    Ecrire(1, "");
    CHECK(De(1).empty());
}

TEST_CASE_FIXTURE(Bureau,
                  "MajIndex: as many equal words as there are go in pairs, the rest change") {
    Ecrire(1, "|A |B |A |C");
    CHECK(De(1) == Index{{"A", {1, 1}}, {"B", {1}}, {"C", {1}}});
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_INDEX.MajIndex(NoOrdre{1}, "|A |B |A |C", "|C |A |B |A .");
    CHECK(base->volume.FinFichier() == fin);
    Ecrire(1, "|A |A |A");
    CHECK(De(1) == Index{{"A", {1, 1, 1}}});
}

TEST_CASE_FIXTURE(Bureau,
                  "MajIndex: a long text with a thousand words costs one change for one word") {
    std::string texte;
    for (int i = 0; i < 60000; ++i)
        texte += "$m" + std::to_string(i % 40) + " ";
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, texte);
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_INDEX.MajIndex(NoOrdre{1}, texte, texte + "$nouveau");
    CHECK(MotsDe(3) == Mots{"NOUVEAU"});
    CHECK(base->volume.FinFichier() < fin + 100);
}

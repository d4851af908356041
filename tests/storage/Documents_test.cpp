#include "storage/Documents.h"

#include "storage/Essai.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai, "EcrireDoc: a document reads back, from the base and from the bytes") {
    const NoDocument d = base->NouveauDocument();
    const Document document{"Acte", "c:\\a\\b.jpg", "PHOTO", "ligne un\r\nligne deux"};
    base->R_IMAGE.EcrireDoc(d, document);
    Rouvrir();
    CHECK(base->R_IMAGE.LireDoc(d) == document);
    CHECK(base->R_IMAGE.TitreDoc(d) == "Acte");
    CHECK(base->R_IMAGE.FichierDoc(d) == "c:\\a\\b.jpg");
    CHECK(base->R_IMAGE.TypeDoc(d) == "PHOTO");
    CHECK(base->R_IMAGE.NoteDoc(d) == "ligne un\r\nligne deux");
    const LecteurLgd lgd = Lire();
    const unsigned fiche = lgd.Num4De("IMAGE", 1);
    CHECK(lgd.Texte(lgd.Num4(fiche)) == "ligne un\r\nligne deux");
    CHECK(lgd.Texte(fiche + 4) == std::string("Acte\0c:\\a\\b.jpg\xFFPHOTO", 21));
}

TEST_CASE_FIXTURE(Essai, "A file name with no byte 255 has an empty type") {
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireDoc(d, {"T", "HTTP://exemple/x", "", ""});
    CHECK(base->R_IMAGE.TypeDoc(d).empty());
    CHECK(base->R_IMAGE.FichierDoc(d) == "HTTP://exemple/x");
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Num4(Lire().Num4De("IMAGE", 1)) == 0);
}

TEST_CASE_FIXTURE(Essai, "A note with only line breaks reads as empty") {
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireDoc(d, {"T", "F", "", "\r\n\r\n"});
    CHECK(base->R_IMAGE.NoteDoc(d).empty());
    base->R_IMAGE.EcrireDoc(d, {"T", "F", "", "\r\nun\r\n"});
    CHECK(base->R_IMAGE.NoteDoc(d) == "un");
}

TEST_CASE_FIXTURE(Essai, "EcrireDoc: a note that did not change keeps its place") {
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireDoc(d, {"T", "F", "", "une longue note"});
    REQUIRE(base->Enregistrer());
    const unsigned avant = Lire().Num4(Lire().Num4De("IMAGE", 1));
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_IMAGE.EcrireDoc(d, {"Titre", "F", "", "une longue note"});
    CHECK(base->volume.FinFichier() - fin == std::string_view{"nnnnTitre F#"}.size());
    Rouvrir();
    CHECK(base->R_IMAGE.LireDoc(d) == Document{"Titre", "F", "", "une longue note"});
    CHECK(Lire().Num4(Lire().Num4De("IMAGE", 1)) == avant);
    SUBCASE("another note is appended, the first stays in the file") {
        base->R_IMAGE.EcrireDoc(d, {"Titre", "F", "", "une autre"});
        REQUIRE(base->Enregistrer());
        CHECK(Lire().Num4(Lire().Num4De("IMAGE", 1)) > avant);
        CHECK(Lire().Texte(avant) == "une longue note");
    }
    SUBCASE("none has no place") {
        base->R_IMAGE.EcrireDoc(d, {"Titre", "F", "", ""});
        REQUIRE(base->Enregistrer());
        CHECK(Lire().Num4(Lire().Num4De("IMAGE", 1)) == 0);
    }
}

TEST_CASE_FIXTURE(Essai, "A note whose position holds the byte of # does not cut the record") {
    base->volume.Ajouter(std::string(0x2300 - base->volume.FinFichier() % 0x2300 + 0x23 - 1, '\0'));
    const Position note = base->volume.Ajouter("la note#");
    REQUIRE(NumVersChaine4(note.valeur).find('#') != std::string::npos);
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireCellule(
        d, base->volume.Ajouter(NumVersChaine4(note.valeur) + std::string("T\0F#", 4)));
    CHECK(base->R_IMAGE.LireDoc(d) == Document{"T", "F", "", "la note"});
}

TEST_CASE_FIXTURE(Essai, "A document or a note without an end is an incident and reads empty") {
    ObservateurEssai observateur;
    base->marques.observateur = &observateur;
    const NoDocument d = base->NouveauDocument();
    const Position longue = base->volume.Ajouter(std::string(40000, 'x'));
    base->R_IMAGE.EcrireCellule(d, longue);
    CHECK(base->R_IMAGE.LireDoc(d) == Document{});
    base->R_IMAGE.InitColonne();
    base->R_IMAGE.EcrireCellule(
        d, base->volume.Ajouter(NumVersChaine4(longue.valeur) + std::string("T\0F#", 4)));
    CHECK(base->R_IMAGE.TitreDoc(d).empty());
    CHECK(observateur.incidents == std::vector{std::pair{Incident::DocumentAbime, 1U},
                                               std::pair{Incident::DocumentAbime, 1U}});
}

TEST_CASE_FIXTURE(Essai, "A document that is taken away has cell 0") {
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireDoc(d, {"T", "F", "", ""});
    base->R_IMAGE.EffacerDoc(d);
    CHECK(base->R_IMAGE.LireCellule(d) == Position{});
    CHECK(base->R_IMAGE.LireDoc(d) == Document{});
}

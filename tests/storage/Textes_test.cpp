#include "storage/Textes.h"

#include "storage/Essai.h"

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Essai, "R_NOM: a line of surname and first name leaves the other fields empty") {
    base->R_NOM.EcrireNom(NoOrdre{1}, "DURAND;Jean Pierre");
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "DURAND");
    CHECK(base->R_NOM.PrenomDe(NoOrdre{1}) == "Jean Pierre");
    CHECK(base->R_NOM.LireNom(NoOrdre{1}).autrePrenom.empty());
    CHECK(base->R_NOM.JourMoisNaissance(NoOrdre{1}).empty());
    CHECK(base->R_NOM.JourMoisDeces(NoOrdre{1}).empty());
}

TEST_CASE("DecouperNom: fields, missing fields and what stands behind the fourth separator") {
    LigneNom ligne = DecouperNom(";;;;");
    CHECK((ligne.nom.empty() && ligne.prenom.empty() && ligne.autrePrenom.empty() &&
           ligne.jourMoisNaissance.empty() && ligne.jourMoisDeces.empty()));
    ligne = DecouperNom("A;B;C;1/2;3/4;5");
    CHECK(ligne.nom == "A");
    CHECK(ligne.autrePrenom == "C");
    CHECK(ligne.jourMoisNaissance == "1/2");
    CHECK(ligne.jourMoisDeces == "3/4;5");
    ligne = DecouperNom(";B");
    CHECK(ligne.nom.empty());
    CHECK(ligne.prenom == "B");
    CHECK(DecouperNom("").nom.empty());
    CHECK(DecouperNom("SEUL").nom == "SEUL");
}

TEST_CASE_FIXTURE(Essai,
                  "R_NOM: a damaged name without an end stops at 1024 bytes, a text does not") {
    const Position longue = base->volume.Ajouter(std::string(5000, 'x') + "#");
    base->R_NOM.EcrireCellule(NoOrdre{1}, longue);
    CHECK(base->R_NOM.LireTexte(NoOrdre{1}).size() == 1024);
    base->R_TEXTE.EcrireCellule(NoOrdre{1}, longue);
    CHECK(base->R_TEXTE.LireTexte(NoOrdre{1}).size() == 5000);
}

TEST_CASE_FIXTURE(
    Essai, "R_TEXTE: an empty text after a filled one sets the cell to 0 and leaves the record") {
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|DURAND");
    const Position ancienne = base->R_TEXTE.LireCellule(NoOrdre{1});
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "");
    CHECK(base->R_TEXTE.LireCellule(NoOrdre{1}) == Position{});
    CHECK(base->R_TEXTE.LireTexte(NoOrdre{1}).empty());
    CHECK(base->volume.FinFichier() == fin);
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Texte(ancienne.valeur) == "|DURAND");
}

TEST_CASE_FIXTURE(Essai, "A text record ends with one # and a change writes a new one") {
    base->R_TXTMAR.EcrireTexte(NoMariage{2}, "12/5@Paris");
    const Position premiere = base->R_TXTMAR.LireCellule(NoMariage{2});
    base->R_TXTMAR.EcrireTexte(NoMariage{2}, "13/5@Paris");
    CHECK(base->R_TXTMAR.LireCellule(NoMariage{2}) == Position{premiere.valeur + 11});
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Brut(premiere.valeur, 22) == "12/5@Paris#13/5@Paris#");
}

TEST_CASE_FIXTURE(Essai, "A text without an end gives what there is before the end of the file") {
    base->R_TEXTE.EcrireCellule(NoOrdre{1}, base->volume.Ajouter("sans fin"));
    CHECK(base->R_TEXTE.LireTexte(NoOrdre{1}) == "sans fin");
}

TEST_CASE_FIXTURE(Essai, "Texts of all lengths read back across pages and tail") {
    std::vector<std::string> textes;
    for (std::uint32_t n = 1; n <= 300; ++n) {
        textes.emplace_back(n * 37 % 9000, static_cast<char>('a' + n % 26));
        base->R_TEXTE.EcrireTexte(NoOrdre{n}, textes.back());
    }
    for (int tour = 0; tour < 2; ++tour) {
        for (std::uint32_t n = 1; n <= 300; ++n)
            CHECK(base->R_TEXTE.LireTexte(NoOrdre{n}) == textes[n - 1]);
        Rouvrir();
    }
}

TEST_CASE("SansDiese: # becomes a dash, inside rich text an escape; ; in a field becomes a comma") {
    CHECK(SansDiese("A#B") == "A-B");
    CHECK(SansDiese("sans") == "sans");
    CHECK(SansDiese("#{\\rtf1 a#b\\{#}#") == "-{\\rtf1 a\\'23b\\{\\'23}-");
    CHECK(SansDiese("{\\rtf1 {#}#}#") == "{\\rtf1 {\\'23}\\'23}-");
    CHECK(SansDiese("{\\rtf1 \\#") == "{\\rtf1 \\\\'23");
    CHECK(SansSeparateur("12;3#") == "12,3-");
}

TEST_CASE_FIXTURE(Essai, "A # in any text cuts no record") {
    base->R_NOM.EcrireNom(NoOrdre{1}, "A#B;C");
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Ajouter, "X#Y");
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "A-B");
    Rouvrir();
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "A-B");
    CHECK(base->R_NOM.PrenomDe(NoOrdre{1}) == "C");
    CHECK(base->R_LIEN.TexteElement(NoOrdre{1}, 1) == "X-Y");
}

TEST_CASE_FIXTURE(Essai,
                  "A text whose end lies gigabytes further on is given up in bounded memory") {
    const NoOrdre n = Creer("Martin;Jean;;;", "1820");
    base->R_TEXTE.EcrireTexte(n, "x");
    REQUIRE(base->Enregistrer());
    base->R_TEXTE.EcrireTexte(n, "le dernier");
    REQUIRE(base->Fermer());
    base.reset();
    std::string octets = disque->Octets(Chemin);
    REQUIRE(octets.ends_with("le dernier#"));
    octets.pop_back();
    disque->Poser(Chemin, octets + std::string(MaxTexte + 4096, '\0'));
    Ouvrir();
    CHECK(base->R_TEXTE.LireTexte(n).size() == MaxTexte);
    CHECK(base->R_NOM.NomDe(n) == "Martin");
}

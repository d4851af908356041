#include "records/LignesFiche.h"

#include "records/EssaiFamille.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

std::string Dites(const std::vector<LigneLue>& lignes) {
    std::string texte;
    for (const LigneLue& ligne : lignes)
        texte +=
            ligne.libelle + '=' + ligne.texte + ' ' + std::to_string(ligne.individu.valeur) + '\n';
    return texte;
}

}  // namespace

TEST_CASE_FIXTURE(EssaiFamille, "LignesFiche: a person of whom nothing is known has one line") {
    const NoOrdre n = Creer(Sexe::Indetermine, "Noir", "Paul");
    CHECK(Dites(LignesFiche(session, n)) == "Personne=n° 1, Sexe indéterminé 0\n"_1252);
}

TEST_CASE_FIXTURE(EssaiFamille, "LignesFiche: parents, unions and children name their person") {
    const NoOrdre paul = Creer(Sexe::Homme, "Noir", "Paul", "1820", "1890");
    const NoOrdre anne = Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    const NoOrdre luc = Creer(Sexe::Homme, "Noir", "Luc", "1850");
    const NoMariage m = Marier(paul, anne, "1848");
    base.R_FINMAR.EcrireCellule(m, "1860");
    Parents(luc, paul, anne);
    CHECK(Dites(LignesFiche(session, paul)) ==
          "Personne=n° 1, Sexe masculin 0\nNaissance=1820 0\nDécès=1890 0\n"
          "Union=Anne Blanc (o1825), 1848, jusqu'en 1860 2\nEnfant=Luc Noir (o1850) 3\n"_1252);
    CHECK(Dites(LignesFiche(session, luc)) ==
          "Personne=n° 3, Sexe masculin 0\nNaissance=1850 0\nPère=Paul Noir (1820-1890) 1\n"
          "Mère=Anne Blanc (o1825) 2\n"_1252);
}

TEST_CASE_FIXTURE(EssaiFamille, "LignesFiche: a note of several lines is one line of plain text") {
    const NoOrdre n = Creer(Sexe::Femme, "Noir", "Eve");
    const std::string texte = "|NOIR\r\nVenue de\r\n{\\rtf1 \\b Brest\\par}";
    base.R_TEXTE.EcrireTexte(n, texte);
    base.R_INDEX.MajIndex(n, "", texte);
    const std::vector<LigneLue> lignes = LignesFiche(session, n);
    REQUIRE(lignes.size() == 2);
    CHECK(lignes[1].libelle == "Note");
    CHECK(lignes[1].texte == "Venue de  Brest");
}

TEST_CASE_FIXTURE(EssaiFamille, "LignesFiche: nobody has no line") {
    CHECK(LignesFiche(session, {}).empty());
    CHECK(LignesFiche(session, NoOrdre{7}).empty());
    doublures::SessionEssai sansBase;
    CHECK(LignesFiche(sansBase.session, NoOrdre{1}).empty());
}

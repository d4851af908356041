#include "interchange/gedcom/MemoireImport.h"

#include "interchange/EssaiImport.h"

#include <vector>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

namespace {

/// Two persons and the union of both, as an import leaves them in memory.
struct Memoire : EssaiImport {
    Memoire() {
        Importer("0 @I1@ INDI\n0 @I2@ INDI\n");
        familles.AjouterIndividu(Sexe::Homme);
        familles.AjouterIndividu(Sexe::Femme);
        memoire.AjouterIndividu("Zola;Jean;;12/3", "1850", "texte un");
        memoire.AjouterIndividu("Abel;Anne;", "1840", "");
    }
    TextesImport textes{session};
    RapportImport rapport;
    PileEtiquettes pile;
    std::unique_ptr<storage::Base> autre =
        storage::NouvelleBase(disque, dossier / "autre.LGD", {}).base;
    FamillesImport familles{ContexteImport{*autre, textes, rapport, pile}};
    MemoireImport memoire{familles};
};

}  // namespace

TEST_CASE_FIXTURE(Memoire, "MemoireImport: gives names and years for the sort") {
    const storage::ElementTri element = memoire.ElementDe(NoOrdre{1});
    CHECK(element.nom == "Zola");
    CHECK(element.prenom == "Jean");
    CHECK(element.annee == "1850");
    CHECK(memoire.ElementDe(NoOrdre{2}).nom == "Abel");
}

TEST_CASE_FIXTURE(
    Memoire, "MemoireImport: the texts of a person are the person's, then those of the unions") {
    CHECK(familles.Unir(NoOrdre{1}, NoOrdre{2}, {}) == NoMariage{1});
    memoire.AjouterUnion("texte de l'union");
    familles.Ecrire();
    std::vector<std::string_view> lus;
    memoire.TextesDe(NoOrdre{1}, lus);
    CHECK(lus == std::vector<std::string_view>{"texte un", "texte de l'union"});
    lus.clear();
    memoire.TextesDe(NoOrdre{2}, lus);
    CHECK(lus == std::vector<std::string_view>{"", "texte de l'union"});
}

TEST_CASE_FIXTURE(Memoire, "MemoireImport: knows whether the persons came in order") {
    CHECK_FALSE(memoire.EstTriee(TypeTri::Naissance, ReglesInitiales()));
    CHECK_FALSE(memoire.EstTriee(TypeTri::Nom, ReglesInitiales()));
    CHECK(memoire.EstTriee(TypeTri::Creation, ReglesInitiales()));
    MemoireImport dansLOrdre{familles};
    dansLOrdre.AjouterIndividu("Zola;Jean;", "1830", "");
    dansLOrdre.AjouterIndividu("Abel;Anne;", "1840", "");
    CHECK(dansLOrdre.EstTriee(TypeTri::Naissance, ReglesInitiales()));
    CHECK_FALSE(dansLOrdre.EstTriee(TypeTri::Nom, ReglesInitiales()));
}

#include "storage/Listes.h"

#include "storage/Essai.h"
#include "values/Octets.h"

#include <algorithm>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

std::vector<std::uint32_t> Numeros(std::string_view liste, std::size_t taille) {
    std::vector<std::uint32_t> numeros;
    for (std::size_t i = 0; i < liste.size(); i += taille)
        numeros.push_back(Chaine2VersNum(liste.substr(i, 2)));
    return numeros;
}
using Suite = std::vector<std::uint32_t>;

}  // namespace

TEST_CASE_FIXTURE(Essai, "R_ENFANT: children stand by birth year, a new one behind equal years") {
    const char* annees[] = {"1850", "1840", "1850", "", "1845"};
    for (std::uint32_t n = 1; n <= 5; ++n)
        base->R_NAISS.EcrireCellule(NoOrdre{n}, annees[n - 1]);
    for (std::uint32_t n = 1; n <= 5; ++n)
        base->R_ENFANT.ModifierListe(NoOrdre{9}, NoOrdre{n}, storage::ActionListe::Ajouter);
    CHECK(Numeros(base->R_ENFANT.ListeDe(NoOrdre{9}), 2) == Suite{4, 2, 5, 1, 3});
    REQUIRE(base->Enregistrer());
    CHECK(Lire().Liste("ENFANT", 9, 2) == std::vector<unsigned>{4, 2, 5, 1, 3});
    base->R_ENFANT.ModifierListe(NoOrdre{9}, NoOrdre{5}, storage::ActionListe::Supprimer);
    CHECK(Numeros(base->R_ENFANT.ListeDe(NoOrdre{9}), 2) == Suite{4, 2, 1, 3});
    CHECK(base->R_ENFANT.ElementListe(NoOrdre{9}, 2) == NoOrdre{2});
    CHECK(base->R_ENFANT.ElementListe(NoOrdre{9}, 0) == NoOrdre{});
    CHECK(base->R_ENFANT.ElementListe(NoOrdre{9}, 5) == NoOrdre{});
}

TEST_CASE_FIXTURE(
    Essai, "R_ENFANT: taking the last child away sets the position to 0 and appends nothing") {
    base->R_ENFANT.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Ajouter);
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_ENFANT.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Supprimer);
    CHECK(base->R_ENFANT.LireCellule(NoOrdre{1}) == Position{});
    CHECK(base->R_ENFANT.ListeDe(NoOrdre{1}).empty());
    CHECK(base->volume.FinFichier() == fin);
}

TEST_CASE_FIXTURE(Essai, "A list of over 200 entries is stored and reads back as 200") {
    for (std::uint32_t i = 1; i <= 200; ++i)
        base->R_MARIAG.ModifierListe(NoOrdre{1}, NoMariage{i}, storage::ActionListe::Ajouter);
    CHECK(base->R_MARIAG.NbElements(NoOrdre{1}) == 200);
    std::string liste;
    for (std::uint32_t i = 1; i <= 201; ++i)
        liste += NumVersChaine2(i);
    base->R_MARIAG.EcrireListe(NoOrdre{2}, liste);
    CHECK(base->R_MARIAG.NbElements(NoOrdre{2}) == 200);
    Rouvrir();
    CHECK(base->R_MARIAG.NbElements(NoOrdre{1}) == 200);
    CHECK(base->R_MARIAG.NbElements(NoOrdre{2}) == 200);
    CHECK(base->R_MARIAG.ElementListe(NoOrdre{2}, 200) == NoMariage{200});
    CHECK(Lire().Liste("MARIAG", 2, 2).size() == 201);
}

TEST_CASE_FIXTURE(
    Essai, "R_MARIAG and R_LSTIMG keep the order of creation and cut out the first equal entry") {
    for (const std::uint32_t d : {7U, 3U, 7U, 5U})
        base->R_LSTIMG.ModifierListe(NoOrdre{1}, NoDocument{d}, storage::ActionListe::Ajouter);
    base->R_LSTIMG.ModifierListe(NoOrdre{1}, NoDocument{7}, storage::ActionListe::Supprimer);
    CHECK(Numeros(base->R_LSTIMG.ListeDe(NoOrdre{1}), 2) == Suite{3, 7, 5});
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_LSTIMG.ModifierListe(NoOrdre{1}, NoDocument{99}, storage::ActionListe::Supprimer);
    CHECK(base->volume.FinFichier() == fin);
}

TEST_CASE_FIXTURE(
    Essai, "A removal that finds nothing leaves the list; the display is stale except for unions") {
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, ActionListe::Ajouter, "GODP");
    base->R_MARIAG.ModifierListe(NoOrdre{1}, NoMariage{2}, ActionListe::Ajouter);
    const std::uint32_t fin = base->volume.FinFichier();
    base->marques.AffichagePerime = false;
    base->R_MARIAG.ModifierListe(NoOrdre{1}, NoMariage{3}, ActionListe::Supprimer);
    CHECK_FALSE(base->marques.AffichagePerime);
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{3}, ActionListe::Supprimer);
    CHECK(base->marques.AffichagePerime);
    base->marques.AffichagePerime = false;
    base->R_ENFANT.ModifierListe(NoOrdre{1}, NoOrdre{3}, ActionListe::Supprimer);
    CHECK(base->marques.AffichagePerime);
    CHECK(base->volume.FinFichier() == fin);
    CHECK(base->R_LIEN.NbElements(NoOrdre{1}) == 1);
}

TEST_CASE_FIXTURE(Essai, "R_LIEN: the label record stands in front of the list record") {
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{258}, storage::ActionListe::Ajouter, "GODP");
    REQUIRE(base->Enregistrer());
    const LecteurLgd lgd = Lire();
    CHECK(lgd.Brut(fin + 1, 5) == "GODP#");
    const unsigned liste = lgd.Num4De("LIEN", 1);
    CHECK(liste == fin + 6);
    CHECK(lgd.Num2(liste) == 258);
    CHECK(lgd.Num4(liste + 2) == fin + 1);
    CHECK(lgd.Num2(liste + 6) == 0);
}

TEST_CASE_FIXTURE(Essai,
                  "R_LIEN: a removal takes the first entry with that person and that label") {
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Ajouter, "A");
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Ajouter, "B");
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Supprimer, "C");
    CHECK(base->R_LIEN.NbElements(NoOrdre{1}) == 2);
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Supprimer, "B");
    REQUIRE(base->R_LIEN.NbElements(NoOrdre{1}) == 1);
    CHECK(base->R_LIEN.TexteElement(NoOrdre{1}, 1) == "A");
}

TEST_CASE_FIXTURE(Essai, "R_LIEN: a change of label names the entry by its rank") {
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{20}, storage::ActionListe::Ajouter, "A");
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{30}, storage::ActionListe::Ajouter, "B");
    base->R_LIEN.ChangerTexte(NoOrdre{1}, 2, "NEUF");
    base->R_LIEN.ChangerTexte(NoOrdre{1}, 3, "RIEN");
    base->R_LIEN.ChangerTexte(NoOrdre{1}, 0, "RIEN");
    CHECK(base->R_LIEN.ElementListe(NoOrdre{1}, 2) == NoOrdre{30});
    CHECK(base->R_LIEN.TexteElement(NoOrdre{1}, 1) == "A");
    CHECK(base->R_LIEN.TexteElement(NoOrdre{1}, 2) == "NEUF");
    CHECK(base->R_LIEN.TexteElement(NoOrdre{1}, 3).empty());
}

TEST_CASE_FIXTURE(
    Essai, "A label of 60 characters is cut at 49, and one of 50 in the file is read whole") {
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Ajouter,
                               std::string(60, 'L'));
    CHECK(base->R_LIEN.TexteElement(NoOrdre{1}, 1) == std::string(49, 'L'));
    base->R_LIEN.ModifierListe(NoOrdre{1}, NoOrdre{2}, storage::ActionListe::Supprimer,
                               std::string(60, 'L'));
    CHECK(base->R_LIEN.NbElements(NoOrdre{1}) == 0);
    const Position texte = base->volume.Ajouter(std::string(60, 'M') + "#");
    base->R_LIEN.EcrireListe(NoOrdre{3}, NumVersChaine2(2) + NumVersChaine4(texte.valeur));
    CHECK(base->R_LIEN.TexteElement(NoOrdre{3}, 1) == std::string(50, 'M'));
}

TEST_CASE_FIXTURE(Essai, "R_LSTEVT: events stand by date, equal dates in order of arrival") {
    const std::int32_t dates[] = {300, 100, 200, 100};
    for (const std::int32_t date : dates) {
        const NoEvenement e = base->NouvelEvenement();
        base->R_EVT.EcrireEvt(e, {.cleDate = date});
        base->R_LSTEVT.ModifierListe(NoOrdre{1}, e, storage::ActionListe::Ajouter,
                                     "ROLE" + std::to_string(e.valeur));
    }
    CHECK(Numeros(base->R_LSTEVT.ListeDe(NoOrdre{1}), 6) == Suite{2, 4, 3, 1});
    CHECK(base->R_LSTEVT.TexteElement(NoOrdre{1}, 2) == "ROLE4");
    base->R_EVT.EcrireEvt(NoEvenement{2}, {.cleDate = 250});
    base->R_LSTEVT.TrierEvenements(NoOrdre{1});
    CHECK(Numeros(base->R_LSTEVT.ListeDe(NoOrdre{1}), 6) == Suite{4, 3, 2, 1});
    const std::uint32_t fin = base->volume.FinFichier();
    base->R_LSTEVT.TrierEvenements(NoOrdre{1});
    CHECK(base->volume.FinFichier() == fin);
    base->R_LSTEVT.ModifierListe(NoOrdre{1}, NoEvenement{3}, storage::ActionListe::Supprimer);
    CHECK(Numeros(base->R_LSTEVT.ListeDe(NoOrdre{1}), 6) == Suite{4, 2, 1});
}

TEST_CASE_FIXTURE(Essai,
                  "R_LSTEVT: fifty events of two days keep their order of arrival within each") {
    Suite attendu;
    for (std::uint32_t i = 0; i < 50; ++i) {
        const NoEvenement e = base->NouvelEvenement();
        base->R_EVT.EcrireEvt(e, {.cleDate = i % 2 == 0 ? 200 : 100});
        base->R_LSTEVT.ModifierListe(NoOrdre{1}, e, storage::ActionListe::Ajouter, "CHIL");
    }
    for (std::uint32_t e = 2; e <= 50; e += 2)
        attendu.push_back(e);
    for (std::uint32_t e = 1; e <= 50; e += 2)
        attendu.push_back(e);
    CHECK(Numeros(base->R_LSTEVT.ListeDe(NoOrdre{1}), 6) == attendu);
    // Two dates change before the list is sorted once.
    base->R_EVT.EcrireEvt(NoEvenement{50}, {.cleDate = 50});
    base->R_EVT.EcrireEvt(NoEvenement{2}, {.cleDate = 300});
    base->R_LSTEVT.TrierEvenements(NoOrdre{1});
    attendu.erase(attendu.begin());
    attendu.erase(std::find(attendu.begin(), attendu.end(), 50U));
    attendu.insert(attendu.begin(), 50);
    attendu.push_back(2);
    CHECK(Numeros(base->R_LSTEVT.ListeDe(NoOrdre{1}), 6) == attendu);
}

TEST_CASE_FIXTURE(Essai, "The memo of a list follows the person asked for") {
    base->R_ENFANT.ModifierListe(NoOrdre{1}, NoOrdre{10}, storage::ActionListe::Ajouter);
    base->R_ENFANT.ModifierListe(NoOrdre{2}, NoOrdre{20}, storage::ActionListe::Ajouter);
    CHECK(base->R_ENFANT.ElementListe(NoOrdre{1}, 1) == NoOrdre{10});
    CHECK(base->R_ENFANT.ElementListe(NoOrdre{2}, 1) == NoOrdre{20});
    CHECK(base->R_ENFANT.ListeDe(NoOrdre{}).empty());
    base->R_ENFANT.EcrireListe(NoOrdre{1}, base->R_ENFANT.ListeDe(NoOrdre{2}));
    CHECK(base->R_ENFANT.ElementListe(NoOrdre{1}, 1) == NoOrdre{20});
}

TEST_CASE_FIXTURE(Essai, "A list whose position points past the end of the file is empty") {
    base->R_ENFANT.EcrireCellule(NoOrdre{1}, Position{0x7FFFFFFF});
    CHECK(base->R_ENFANT.ListeDe(NoOrdre{1}).empty());
    base->R_ENFANT.EcrireCellule(NoOrdre{2}, Position{0xFFFFFFFF});
    CHECK(base->R_ENFANT.ListeDe(NoOrdre{2}).empty());
}

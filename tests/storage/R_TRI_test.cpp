#include "storage/R_TRI.h"

#include "storage/Essai.h"

using namespace dorvane;
using namespace dorvane::storage;

namespace {

std::vector<std::uint32_t> Table(const Base& base) {
    std::vector<std::uint32_t> numeros;
    for (std::uint32_t r = 1; r <= base.entete.NbTriIndividus; ++r)
        numeros.push_back(base.R_TRI.IndividuAuRang(r).valeur);
    return numeros;
}
using Suite = std::vector<std::uint32_t>;

/// A table of `nombre` persons without names, by number.
void Remplir(Base& base, std::uint32_t nombre) {
    base.FixerDernierIndividu(nombre);
    for (std::uint32_t n = 1; n <= nombre; ++n)
        base.R_TRI.FixerRang(n, NoOrdre{n});
    base.entete.NbTriIndividus = nombre;
}

}  // namespace

TEST_CASE_FIXTURE(Essai, "An empty base has three empty tables") {
    CHECK(base->R_TRI.IndividuAuRang(0) == NoOrdre{});
    CHECK(base->R_TRI.IndividuAuRang(1) == NoOrdre{});
    CHECK(base->R_TRI.EvtAuRang(1) == NoEvenement{});
    CHECK(base->R_TRI.DocumentAuRang(1) == NoDocument{});
    CHECK(base->R_TRI.RangIndividu(NoOrdre{1}) == 0);
}

TEST_CASE_FIXTURE(Essai, "Persons stand by birth year then name, or by name, or by creation") {
    Creer("MARTIN;Paul", "1860");
    Creer("DURAND;Jean", "1850");
    Creer("DURAND;Anne", "1860");
    Creer("ABEL;Luc", "");
    CHECK(Table(*base) == Suite{4, 2, 3, 1});
    base->entete.TypeTri = TypeTri::Nom;
    CHECK(base->R_TRI.TrierIndividus(muet));
    CHECK(Table(*base) == Suite{4, 3, 2, 1});
    CHECK(base->R_TRI.RangIndividu(NoOrdre{2}) == 3);
    base->entete.TypeTri = TypeTri::Creation;
    CHECK(base->R_TRI.TrierIndividus(muet));
    CHECK(Table(*base) == Suite{1, 2, 3, 4});
    Creer("AAA;A", "1000");
    CHECK(Table(*base) == Suite{1, 2, 3, 4, 5});
    Rouvrir();
    CHECK(Table(*base) == Suite{1, 2, 3, 4, 5});
    CHECK(Lire().Tri("TRI", 5) == std::vector<unsigned>{1, 2, 3, 4, 5});
}

TEST_CASE_FIXTURE(Essai, "Under creation order a rename does not change the rank") {
    base->entete.TypeTri = TypeTri::Creation;
    Creer("B;", "");
    Creer("A;", "");
    base->R_NOM.EcrireNom(NoOrdre{1}, "Z;");
    CHECK(base->R_TRI.RangIndividu(NoOrdre{1}) == 1);
    CHECK(base->R_TRI.RangIndividu(NoOrdre{2}) == 2);
}

TEST_CASE_FIXTURE(Essai, "Of two persons with one key the later one stands behind") {
    for (int i = 0; i < 5; ++i)
        Creer("DURAND;Jean", "1850");
    CHECK(Table(*base) == Suite{1, 2, 3, 4, 5});
    for (std::uint32_t n = 1; n <= 5; ++n)
        CHECK(base->R_TRI.RangIndividu(NoOrdre{n}) == n);
    CHECK(base->R_TRI.TrierIndividus(muet));
    CHECK(Table(*base) == Suite{1, 2, 3, 4, 5});
    base->R_TRI.RetirerIndividu(NoOrdre{3});
    CHECK(Table(*base) == Suite{1, 2, 4, 5});
    CHECK(base->R_TRI.RangIndividu(NoOrdre{3}) == 0);
}

TEST_CASE_FIXTURE(Essai, "Insertion at rank 1 with 32001 entries pushes all others on") {
    Remplir(*base, 32001);
    base->FixerDernierIndividu(32002);
    base->R_TRI.ModifierTri(1, NoOrdre{32002}, storage::ActionListe::Ajouter);
    base->entete.NbTriIndividus = 32002;
    Rouvrir();
    CHECK(base->R_TRI.IndividuAuRang(1) == NoOrdre{32002});
    CHECK(base->R_TRI.IndividuAuRang(32000) == NoOrdre{31999});
    CHECK(base->R_TRI.IndividuAuRang(32001) == NoOrdre{32000});
    CHECK(base->R_TRI.IndividuAuRang(32002) == NoOrdre{32001});
    CHECK(Lire().Num2De("TRI", 32001) == 32000);
}

TEST_CASE_FIXTURE(Essai, "The count may change before or after ModifierTri") {
    bool avant = false;
    SUBCASE("before") {
        avant = true;
    }
    SUBCASE("after") {}
    Remplir(*base, 32000);
    if (avant) base->entete.NbTriIndividus = 32001;
    base->R_TRI.ModifierTri(1, NoOrdre{40000}, storage::ActionListe::Ajouter);
    base->entete.NbTriIndividus = 32001;
    CHECK(base->R_TRI.IndividuAuRang(1) == NoOrdre{40000});
    CHECK(base->R_TRI.IndividuAuRang(32001) == NoOrdre{32000});
    if (avant) base->entete.NbTriIndividus = 32000;
    base->R_TRI.ModifierTri(2, NoOrdre{1}, storage::ActionListe::Supprimer);
    base->entete.NbTriIndividus = 32000;
    CHECK(base->R_TRI.IndividuAuRang(2) == NoOrdre{2});
    CHECK(base->R_TRI.IndividuAuRang(32000) == NoOrdre{32000});
}

TEST_CASE_FIXTURE(Essai, "A removal that does not find the person is told and goes on") {
    ObservateurEssai observateur;
    base->marques.observateur = &observateur;
    Remplir(*base, 3);
    base->R_TRI.ModifierTri(2, NoOrdre{9}, storage::ActionListe::Supprimer);
    base->entete.NbTriIndividus = 2;
    CHECK(Table(*base) == Suite{1, 3});
    CHECK(observateur.incidents == std::vector{std::pair{Incident::TableDeTri, 0U}});
}

TEST_CASE_FIXTURE(Essai, "FixerRang replaces, appends just behind the last, and goes no further") {
    Remplir(*base, 2);
    base->R_TRI.FixerRang(1, NoOrdre{8});
    base->R_TRI.FixerRang(5, NoOrdre{9});
    base->R_TRI.FixerRang(0, NoOrdre{9});
    base->R_TRI.FixerRang(3, NoOrdre{7});
    base->entete.NbTriIndividus = 9;
    CHECK(Table(*base) == Suite{8, 2, 7, 0, 0, 0, 0, 0, 0});
}

TEST_CASE_FIXTURE(Essai, "The last block of a table is padded with blanks and cut at loading") {
    Remplir(*base, 3);
    REQUIRE(base->Enregistrer());
    const unsigned bloc = Lire().Bloc("TRI", 1);
    CHECK(Lire().Brut(bloc + 6, 4) == "    ");
    Rouvrir();
    CHECK(base->R_TRI.individus.Taille() == 3);
}

TEST_CASE_FIXTURE(Essai, "A changed rank rewrites only the blocks that differ") {
    Remplir(*base, 5000);
    REQUIRE(base->Enregistrer());
    const int avant = disque->ecritures;
    base->R_TRI.FixerRang(2500, NoOrdre{9});
    REQUIRE(base->Enregistrer());
    // Journal, fixed zone, one block, header.
    CHECK(disque->ecritures - avant == 4);
}

TEST_CASE_FIXTURE(Essai, "Events come in by date and documents by folded title") {
    for (const std::int32_t date : {100, 300, 200}) {
        const NoEvenement e = base->NouvelEvenement();
        base->R_EVT.EcrireEvt(e, {.cleDate = date});
        base->R_TRI.AjouterEvt(e);
    }
    const auto evts = [this] {
        return Suite{base->R_TRI.EvtAuRang(1).valeur, base->R_TRI.EvtAuRang(2).valeur,
                     base->R_TRI.EvtAuRang(3).valeur};
    };
    CHECK(evts() == Suite{1, 3, 2});
    for (const char* titre : {"Zo\xE9",
                              "\xE9"
                              "cole",
                              "Eclair"}) {
        const NoDocument d = base->NouveauDocument();
        base->R_IMAGE.EcrireDoc(d, {titre, "f", "", ""});
        base->R_TRI.AjouterDocument(d);
    }
    const auto docs = [this] {
        return Suite{base->R_TRI.DocumentAuRang(1).valeur, base->R_TRI.DocumentAuRang(2).valeur,
                     base->R_TRI.DocumentAuRang(3).valeur};
    };
    CHECK(docs() == Suite{3, 2, 1});
    Rouvrir();
    CHECK(docs() == Suite{3, 2, 1});
    CHECK(evts() == Suite{1, 3, 2});
    base->R_TRI.RetirerEvt(NoEvenement{3});
    CHECK(base->entete.NbTriEvenements == 2);
    CHECK(base->R_TRI.EvtAuRang(2) == NoEvenement{2});
}

TEST_CASE_FIXTURE(Essai, "A full sort tells its phases and can be given up") {
    class Temoin final : public Progression {
    public:
        void Commencer(const Phrase& titre, const Phrase& texte) override {
            textes.emplace_back(titre.valeur);
            textes.emplace_back(texte.valeur);
        }
        void Phase(const Phrase& texte) override { textes.emplace_back(texte.valeur); }
        [[nodiscard]] bool Avancer(std::uint32_t fait, std::uint32_t /*total*/) override {
            pas.push_back(fait);
            return fait < limite;
        }
        void Terminer() override {}
        [[nodiscard]] bool EnCours() const override { return false; }
        void Sablier(bool /*attente*/) override {}
        std::vector<std::string> textes;
        Suite pas;
        std::uint32_t limite = 1000;
    } temoin;
    for (int i = 0; i < 250; ++i)
        Creer(std::string(1, static_cast<char>('Z' - i % 26)) + ";", "1850");
    const Suite avant = Table(*base);
    temoin.limite = 200;
    base->entete.TypeTri = TypeTri::Nom;
    CHECK_FALSE(base->R_TRI.TrierIndividus(temoin));
    CHECK(Table(*base) == avant);
    CHECK(temoin.pas == Suite{0, 100, 200});
    temoin.limite = 1000;
    temoin.textes.clear();
    CHECK(base->R_TRI.TrierIndividus(temoin));
    CHECK(temoin.textes == std::vector<std::string>{"Constitution du tri"});
}

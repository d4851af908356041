#include "storage/ConstruireIndex.h"

#include "doublures/ProgressionScript.h"
#include "storage/BureauIndex.h"

#include <algorithm>
#include <random>

using namespace dorvane;
using namespace dorvane::storage;

TEST_CASE_FIXTURE(Bureau, "ConstruireIndex: building anew gives the lists of the running index") {
    const char* textes[] = {"|DURAND \xB6Jean $Brest", "|ABEL \xB6Jean", "|DURAND \xB6Paul |...",
                            "|Zo\xEB |DURAND"};
    const char* annees[] = {"1850", "1800", "", "1850"};
    for (std::uint32_t n = 1; n <= 4; ++n) {
        Creer("X;Y", annees[n - 1]);
        Ecrire(n, textes[n - 1]);
    }
    const NoMariage m = base->NouveauMariage();
    base->R_TXTMAR.EcrireTexte(m, "1/1@Lyon");
    for (const std::uint32_t n : {1U, 2U}) {
        base->R_MARIAG.ModifierListe(NoOrdre{n}, m, storage::ActionListe::Ajouter);
        base->R_INDEX.MajIndex(NoOrdre{n}, "", "1/1@Lyon");
    }
    std::vector<Index> avant;
    for (std::uint32_t k = 1; k <= 11; ++k)
        avant.push_back(De(k));
    CHECK(avant[3] == Index{{"LYON", {2, 1}}});
    std::vector<NoMotCle> types;
    for (std::uint32_t k = 1; k <= 11; ++k)
        types.emplace_back(k);
    CHECK(ConstruireIndex(*base, types, muet));
    for (std::uint32_t k = 1; k <= 11; ++k) {
        CAPTURE(k);
        CHECK(De(k) == avant[k - 1]);
    }
    CHECK(ConstruireIndex(*base, '@', muet));
    CHECK(De(4) == avant[3]);
}

TEST_CASE_FIXTURE(Bureau,
                  "ConstruireIndex: the word list stands first, then each word with its persons") {
    Creer("X;Y", "1850");
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|B |A");
    REQUIRE(base->Enregistrer());
    const std::uint32_t fin = base->volume.FinFichier();
    const NoMotCle k{1};
    CHECK(ConstruireIndex(*base, std::span{&k, 1}, muet));
    REQUIRE(base->Enregistrer());
    const std::string attendu = std::string("\0\2\0\1\0\2", 6) + "A#" + std::string("\0\1", 2) +
                                "B#" + std::string("\0\1", 2);
    CHECK(Lire().Brut(fin + 1, attendu.size()) == attendu);
    CHECK(base->motsCles.PosMotsType(k) == Position{fin + 1});
}

TEST_CASE_FIXTURE(Bureau, "ConstruireIndex: given up by the user it changes nothing") {
    doublures::ProgressionScript stop;
    stop.annulerAu = 1;
    Creer("X;Y", "1850");
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|B");
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK_FALSE(ConstruireIndex(*base, '|', stop));
    CHECK(base->volume.FinFichier() == fin);
    CHECK(stop.pas == 1);
    CHECK(De(1).empty());
}

namespace {

/// The words of one symbol, looked for byte by byte.
Mots Recompter(const std::string& texte, char symbole) {
    Mots mots;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] != symbole) continue;
        std::string mot;
        for (std::size_t j = i + 1; j < texte.size() && texte[j] != ' ' && texte[j] != '\r'; ++j)
            mot += texte[j] >= 'a' && texte[j] <= 'z' ? static_cast<char>(texte[j] - 32)
                   : texte[j] == '.'                  ? ' '
                                                      : texte[j];
        while (mot.ends_with(' '))
            mot.pop_back();
        if (!mot.empty()) mots.push_back(mot);
    }
    return mots;
}

struct Atelier : Bureau {
    std::string TexteAuHasard() {
        constexpr const char* Mots_[] = {"DURAND", "durand", "Abel",  "Saint.Malo", "a.",
                                         "b|c",    "$",      "Lyon$", "X",          "zz"};
        constexpr const char* Entre[] = {" ", " ", "\r\n", "\r"};
        constexpr const char* Symboles[] = {"|", "|", "$", "\\", ""};
        std::string texte;
        for (std::size_t i = hasard() % 7; i > 0; --i)
            texte +=
                std::string{Symboles[hasard() % 5]} + Mots_[hasard() % 10] + Entre[hasard() % 4];
        return texte;
    }
    /// Who carries which word, by `AnneeTri`, equal years in the order of the sort table.
    [[nodiscard]] Index Attendu(char symbole) const {
        std::vector<std::uint32_t> ordre;
        for (std::uint32_t rang = 1; rang <= base->entete.NbTriIndividus; ++rang)
            ordre.push_back(base->R_TRI.IndividuAuRang(rang).valeur);
        std::stable_sort(ordre.begin(), ordre.end(), [this](std::uint32_t a, std::uint32_t b) {
            return base->R_NAISS.AnneeTri(NoOrdre{a}) < base->R_NAISS.AnneeTri(NoOrdre{b});
        });
        Index index;
        for (const std::uint32_t n : ordre)
            for (const std::string& mot : Recompter(textes[n], symbole))
                index[mot].push_back(n);
        return index;
    }
    static Index SansOrdre(Index index) {
        for (auto& [mot, personnes] : index)
            std::sort(personnes.begin(), personnes.end());
        return index;
    }
    void VerifierOrdre(std::uint32_t k) const {
        const Mots mots = MotsDe(k);
        CHECK(std::is_sorted(mots.begin(), mots.end()));
        CHECK(std::adjacent_find(mots.begin(), mots.end()) == mots.end());
        for (const auto& [mot, personnes] : De(k))
            CHECK(std::is_sorted(
                personnes.begin(), personnes.end(), [this](std::uint32_t a, std::uint32_t b) {
                    return base->R_NAISS.AnneeTri(NoOrdre{a}) < base->R_NAISS.AnneeTri(NoOrdre{b});
                }));
    }
    std::mt19937 hasard{5};
    std::vector<std::string> textes = std::vector<std::string>(41);
    std::vector<NoMotCle> types{NoMotCle{1}, NoMotCle{3}, NoMotCle{6}};
    std::string symboles = "|$\\";
};

}  // namespace

TEST_CASE_FIXTURE(Atelier,
                  "ConstruireIndex and MajIndex: a recount from the texts equals the index") {
    constexpr const char* Annees[] = {"1850", "1800", "", "-44", "1850", "18?"};
    for (std::uint32_t n = 1; n <= 40; ++n)
        Creer("X;Y" + std::to_string(n % 7), Annees[hasard() % 6]);
    for (int tour = 0; tour < 400; ++tour) {
        const auto n = static_cast<std::uint32_t>(1 + hasard() % 40);
        if (tour % 5 == 4) {
            base->R_NAISS.EcrireCellule(NoOrdre{n}, Annees[hasard() % 6]);
            base->R_INDEX.ReclasserIndex(NoOrdre{n}, textes[n]);
        } else {
            textes[n] = TexteAuHasard();
            Ecrire(n, textes[n]);
        }
    }
    for (std::size_t i = 0; i < types.size(); ++i) {
        CAPTURE(symboles[i]);
        VerifierOrdre(types[i].valeur);
        CHECK(SansOrdre(De(types[i].valeur)) == SansOrdre(Attendu(symboles[i])));
    }
    for (const TypeTri tri : {TypeTri::Creation, TypeTri::Naissance, TypeTri::Nom}) {
        base->entete.TypeTri = tri;
        REQUIRE(base->R_TRI.TrierIndividus(muet));
        REQUIRE(ConstruireIndex(*base, types, muet));
        for (std::size_t i = 0; i < types.size(); ++i) {
            CAPTURE(tri);
            VerifierOrdre(types[i].valeur);
            CHECK(De(types[i].valeur) == Attendu(symboles[i]));
        }
    }
    Rouvrir();
    CHECK(De(1) == Attendu('|'));
}

TEST_CASE_FIXTURE(Bureau,
                  "ConstruireIndex: a type without words keeps the empty list that it shares") {
    Creer("X;Y", "1850");
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|B");
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK(ConstruireIndex(*base, '$', muet));
    CHECK(base->volume.FinFichier() == fin);
    CHECK(base->motsCles.PosMotsType(NoMotCle{3}) == Position{3574});
}

TEST_CASE_FIXTURE(Bureau, "ConstruireIndex: entries of a list that is built anew die") {
    Creer("X;Y", "1850");
    Ecrire(1, "|B");
    CHECK(ConstruireIndex(*base, '|', muet));
    CHECK(base->R_INDEX.CelluleIndex(NoIndex{1}) == CelluleMot{});
    CHECK(base->entete.NbIndex == 2);
    CHECK(De(1) == Index{{"B", {1}}});
}

TEST_CASE_FIXTURE(Bureau, "ConstruireIndex: persons out of the sort table are passed over") {
    Creer("X;Y", "1850");
    Creer("X;Z", "1851");
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|B");
    base->R_TEXTE.EcrireTexte(NoOrdre{2}, "|B");
    base->R_TRI.RetirerIndividu(NoOrdre{1});
    CHECK(ConstruireIndex(*base, '|', muet));
    CHECK(De(1) == Index{{"B", {2}}});
}

TEST_CASE_FIXTURE(Bureau, "ConstruireIndex: a symbol that no keyword has changes nothing") {
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK(ConstruireIndex(*base, '!', muet));
    CHECK(base->volume.FinFichier() == fin);
}

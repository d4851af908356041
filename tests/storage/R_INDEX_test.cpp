#include "storage/R_INDEX.h"

#include "storage/ConstruireIndex.h"
#include "storage/Essai.h"
#include "values/Octets.h"

#include <map>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

using Mots = std::vector<std::string>;
using Index = std::map<std::string, std::vector<std::uint32_t>>;

struct Bureau : Essai {
    void Ecrire(std::uint32_t n, const std::string& texte) const {
        base->R_INDEX.MajIndex(NoOrdre{n}, base->R_TEXTE.LireTexte(NoOrdre{n}), texte);
        base->R_TEXTE.EcrireTexte(NoOrdre{n}, texte);
    }
    [[nodiscard]] Index De(std::uint32_t k) const {
        Index index;
        for (const NoIndex e : base->R_INDEX.ListeMots(NoMotCle{k}))
            for (const NoOrdre n : base->R_INDEX.PersonnesIndex(e))
                index[base->R_INDEX.MotIndex(e)].push_back(n.valeur);
        return index;
    }
    [[nodiscard]] Mots MotsDe(std::uint32_t k) const {
        Mots mots;
        for (const NoIndex e : base->R_INDEX.ListeMots(NoMotCle{k}))
            mots.push_back(base->R_INDEX.MotIndex(e));
        return mots;
    }
};

}  // namespace

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
        base->R_MARIAG.ModifierListe(NoOrdre{n}, m, 'A');
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
    class Stop final : public Avancement {
    public:
        void Commencer(const TexteAvancement& titre, const TexteAvancement& texte) override {
            vu = std::string{titre.litteral} + " " + std::to_string(texte.message.valeur);
        }
        void Phase(const TexteAvancement& /*texte*/) override {}
        [[nodiscard]] bool Avancer(std::uint32_t /*fait*/, std::uint32_t /*total*/) override {
            return false;
        }
        void Terminer() override {}
        std::string vu;
    } stop;
    Creer("X;Y", "1850");
    base->R_TEXTE.EcrireTexte(NoOrdre{1}, "|B");
    const std::uint32_t fin = base->volume.FinFichier();
    CHECK_FALSE(ConstruireIndex(*base, '|', stop));
    CHECK(base->volume.FinFichier() == fin);
    CHECK(stop.vu == "BIRN 968");
    CHECK(De(1).empty());
}

// Random operations on a base and on a plain model side by side: they must always say the same,
// across commits, reopenings and sessions given up.
#include "storage/Essai.h"

#include <array>
#include <map>
#include <random>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

struct Modele {
    std::map<std::uint32_t, std::string> annees;
    std::map<std::uint32_t, std::string> noms;
    std::map<std::uint32_t, std::uint32_t> peres;
    std::map<std::uint32_t, std::vector<std::uint32_t>> unions;
    std::map<std::uint32_t, std::map<std::string, int>> mots;  // by person, words behind "|"
};

std::string Court(std::string annee) {
    annee = annee.substr(0, 4);
    annee.insert(0, 4 - annee.size(), ' ');
    while (!annee.empty() && annee.back() == ' ')
        annee.pop_back();
    return annee;
}

struct Jeu : Essai {
    std::uint32_t Tirer(std::uint32_t sur) {
        return static_cast<std::uint32_t>(hasard() % std::uint64_t{sur});
    }
    /// Numbers far apart, so that blocks are pushed out all the time.
    std::uint32_t Numero() { return 1 + Tirer(9) * 1000 + Tirer(3); }

    void Agir() {
        const std::uint32_t n = Numero();
        switch (Tirer(5)) {
            case 0: {
                const std::string annee = std::to_string(Tirer(3000)).substr(0, Tirer(6));
                base->R_NAISS.EcrireCellule(NoOrdre{n}, annee);
                modele.annees[n] = Court(annee);
                break;
            }
            case 1: {
                const std::string nom(Tirer(70), static_cast<char>('A' + Tirer(26)));
                base->R_NOM.EcrireNom(NoOrdre{n}, nom);
                modele.noms[n] = nom;
                break;
            }
            case 2: {
                const std::uint32_t pere = Tirer(65536);
                base->R_PERE.EcrireCellule(NoOrdre{n}, NoOrdre{pere});
                modele.peres[n] = pere;
                break;
            }
            case 3: {
                const std::uint32_t m = 1 + Tirer(60000);
                auto& liste = modele.unions[n];
                if (liste.size() >= 200) break;
                base->R_MARIAG.ModifierListe(NoOrdre{n}, NoMariage{m},
                                             storage::ActionListe::Ajouter);
                liste.push_back(m);
                break;
            }
            default: {
                std::string texte;
                std::map<std::string, int> mots;
                for (std::uint32_t i = Tirer(4); i > 0; --i) {
                    const std::string mot(1 + Tirer(2), static_cast<char>('A' + Tirer(4)));
                    texte += "|" + mot + " ";
                    ++mots[mot];
                }
                base->R_INDEX.MajIndex(NoOrdre{n}, base->R_TEXTE.LireTexte(NoOrdre{n}), texte);
                base->R_TEXTE.EcrireTexte(NoOrdre{n}, texte);
                modele.mots[n] = mots;
                break;
            }
        }
    }

    void Comparer() {
        for (std::uint32_t bloc = 0; bloc < 9; ++bloc)
            for (std::uint32_t i = 1; i <= 3; ++i) {
                const std::uint32_t n = bloc * 1000 + i;
                CAPTURE(n);
                CHECK(base->R_NAISS.LireCellule(NoOrdre{n}) == modele.annees[n]);
                CHECK(base->R_NOM.LireTexte(NoOrdre{n}) == modele.noms[n]);
                CHECK(base->R_PERE.LireCellule(NoOrdre{n}).valeur == modele.peres[n]);
                std::vector<std::uint32_t> unions;
                for (const NoMariage m : base->R_MARIAG.Elements(NoOrdre{n}))
                    unions.push_back(m.valeur);
                CHECK(unions == modele.unions[n]);
            }
        ComparerIndex();
    }

    /// The index is exactly what a recount from the model gives.
    void ComparerIndex() {
        std::map<std::string, std::map<std::uint32_t, int>> attendu;
        for (const auto& [n, mots] : modele.mots)
            for (const auto& [mot, fois] : mots)
                attendu[mot][n] = fois;
        std::map<std::string, std::map<std::uint32_t, int>> lu;
        std::string precedent;
        for (const NoIndex e : base->R_INDEX.ListeMots(NoMotCle{1})) {
            const std::string mot = base->R_INDEX.MotIndex(e);
            CHECK(precedent < mot);
            precedent = mot;
            for (const NoOrdre n : base->R_INDEX.PersonnesIndex(e))
                ++lu[mot][n.valeur];
        }
        CHECK((lu == attendu));
    }

    std::mt19937 hasard{2024};
    Modele modele;
};

}  // namespace

TEST_CASE_FIXTURE(Jeu,
                  "Random work, commits, reopenings and sessions given up: base and model agree") {
    base->FixerDernierIndividu(9000);
    REQUIRE(base->Enregistrer());
    Modele commis;
    for (int tour = 0; tour < 120; ++tour) {
        base->volume.FixerTampons(1000 + Tirer(20000), 5000 + Tirer(30000));
        for (std::uint32_t i = Tirer(40); i > 0; --i)
            Agir();
        switch (Tirer(4)) {
            case 0:
                REQUIRE(base->Enregistrer());
                commis = modele;
                break;
            case 1:
                Rouvrir();
                commis = modele;
                break;
            case 2:
                // Given up: the last commit is what remains.
                base.reset();
                Ouvrir();
                modele = commis;
                break;
            default:
                break;
        }
        Comparer();
    }
}

#include "shell/Numerotation.h"

#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"

#include <algorithm>
#include <map>
#include <random>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;

namespace {

/// A session with a new base, and short words to people it.
struct Famille : doublures::SessionEssai {
    Famille() {
        Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Famille.LGD");
        MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
    }

    storage::Base& B() { return *session.base; }

    NoOrdre Creer(Sexe sexe, const char* nom = "Martin", const char* prenom = "Jean") {
        const NoOrdre n = B().NouvelIndividu();
        B().R_SEXE.EcrireCellule(n, sexe);
        B().R_NOM.EcrireNom(n, std::string{nom} + ';' + prenom + ";;;");
        B().R_TRI.AjouterIndividu(n);
        return n;
    }
    /// Both cells and both lists of children.
    void Parents(NoOrdre enfant, NoOrdre pere, NoOrdre mere) {
        B().R_PERE.EcrireCellule(enfant, pere);
        B().R_MERE.EcrireCellule(enfant, mere);
        if (pere) B().R_ENFANT.ModifierListe(pere, enfant, storage::ActionListe::Ajouter);
        if (mere) B().R_ENFANT.ModifierListe(mere, enfant, storage::ActionListe::Ajouter);
    }
    void Marier(NoOrdre mari, NoOrdre femme) {
        const NoMariage m = B().NouveauMariage();
        B().R_EPOUX.EcrireCellule(m, mari);
        B().R_EPOUSE.EcrireCellule(m, femme);
        if (mari) B().R_MARIAG.ModifierListe(mari, m, storage::ActionListe::Ajouter);
        if (femme) B().R_MARIAG.ModifierListe(femme, m, storage::ActionListe::Ajouter);
    }
    void Choisir(NoOrdre n, int k = 1) {
        session.deCujus[static_cast<std::size_t>(k - 1)].individu = n;
        NumeroterDeCujus(session, k);
    }
    std::string Numero(NoOrdre n, int k = 1) {
        return session.deCujus[static_cast<std::size_t>(k - 1)].NumeroDe(n);
    }
};

/// The rule again, told in the plainest way: maps, strings and no bound but the depths.
struct Reference {
    storage::Base& base;
    std::map<std::uint32_t, std::int32_t> asc{};
    std::map<std::uint32_t, std::string> desc{};

    void Monter(NoOrdre n, std::int32_t s, int g) {
        if (!n) return;
        if (asc.count(n.valeur) != 0 && asc[n.valeur] < s) return;
        asc[n.valeur] = s;
        if (g == 13) return;
        Monter(base.R_PERE.LireCellule(n), 2 * s, g + 1);
        Monter(base.R_MERE.LireCellule(n), 2 * s + 1, g + 1);
    }

    void Descendre(NoOrdre p, const std::string& prefixe, int d) {
        if (d > 9) return;
        const bool homme = base.R_SEXE.LireCellule(p) == Sexe::Homme;
        std::vector<NoOrdre> conjoints;
        for (const NoMariage m : base.R_MARIAG.Elements(p))
            if (conjoints.size() < 26)
                conjoints.push_back(homme ? base.R_EPOUSE.LireCellule(m)
                                          : base.R_EPOUX.LireCellule(m));
        std::vector<int> compteurs(conjoints.size() + 1, 0);
        std::vector<NoOrdre> enfants = base.R_ENFANT.Elements(p);
        if (enfants.size() > 50) enfants.resize(50);
        for (const NoOrdre e : enfants) {
            const NoOrdre autre = homme ? base.R_MERE.LireCellule(e) : base.R_PERE.LireCellule(e);
            std::size_t k = 0;
            while (k < conjoints.size() && conjoints[k] != autre)
                ++k;
            std::string separateur = "*";
            if (k < conjoints.size())
                separateur =
                    conjoints.size() == 1 ? "." : std::string(1, "abcdefghijklmnopqrstuvwxyz"[k]);
            const std::string texte = prefixe + separateur + std::to_string(++compteurs[k]);
            if (asc.count(e.valeur) != 0) continue;
            if (desc.count(e.valeur) != 0 && !homme) continue;
            desc[e.valeur] = texte;
            Descendre(e, texte, d + 1);
        }
    }
};

}  // namespace

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: a person without parents has one ascendant entry, and "
                  "only descendants get strings") {
    const NoOrdre jean = Creer(Sexe::Homme);
    const NoOrdre anne = Creer(Sexe::Femme);
    const NoOrdre paul = Creer(Sexe::Homme);
    const NoOrdre seul = Creer(Sexe::Homme);
    Marier(jean, anne);
    Parents(paul, jean, anne);
    Choisir(jean);
    const DeCujus& cujus = session.deCujus[0];
    CHECK(cujus.numerosAsc == std::vector<std::int32_t>{0, 1});
    CHECK(Numero(jean) == "1");
    CHECK(Numero(paul) == ".1");
    CHECK(Numero(anne).empty());
    CHECK(Numero(seul).empty());
    CHECK(Numero(NoOrdre{}).empty());
    CHECK(Numero(NoOrdre{5000}).empty());
}

TEST_CASE_FIXTURE(Famille, "NumeroterDeCujus: father and mother of s have 2s and 2s+1") {
    const NoOrdre moi = Creer(Sexe::Homme);
    const NoOrdre pere = Creer(Sexe::Homme);
    const NoOrdre mere = Creer(Sexe::Femme);
    const NoOrdre aieul = Creer(Sexe::Homme);
    const NoOrdre aieule = Creer(Sexe::Femme);
    Parents(moi, pere, mere);
    Parents(mere, aieul, aieule);
    Choisir(moi);
    CHECK(Numero(pere) == "2");
    CHECK(Numero(mere) == "3");
    CHECK(Numero(aieul) == "6");
    CHECK(Numero(aieule) == "7");
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: a person reached by two paths keeps the smaller number") {
    const NoOrdre moi = Creer(Sexe::Homme);
    const NoOrdre pere = Creer(Sexe::Homme);
    const NoOrdre mere = Creer(Sexe::Femme);
    const NoOrdre commun = Creer(Sexe::Homme);
    const NoOrdre grandPere = Creer(Sexe::Homme);
    Parents(moi, pere, mere);
    Parents(mere, commun, {});
    Parents(pere, grandPere, {});
    Parents(grandPere, commun, {});
    // By the father at 8, by the mother at 6.
    Choisir(moi);
    CHECK(Numero(commun) == "6");
    CHECK(std::count(session.deCujus[0].numerosAsc.begin(), session.deCujus[0].numerosAsc.end(),
                     8) == 0);
}

TEST_CASE_FIXTURE(Famille, "NumeroterDeCujus: generation 13 gets numbers, generation 14 none") {
    std::vector<NoOrdre> lignee{Creer(Sexe::Homme)};
    for (int g = 1; g <= 14; ++g) {
        lignee.push_back(Creer(Sexe::Femme));
        Parents(lignee[lignee.size() - 2], {}, lignee.back());
    }
    Choisir(lignee[0]);
    CHECK(Numero(lignee[13]) == "16383");
    CHECK(Numero(lignee[14]).empty());
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: someone who is an ancestor of himself ends the walk") {
    const NoOrdre a = Creer(Sexe::Homme);
    const NoOrdre b = Creer(Sexe::Homme);
    Parents(a, b, {});
    Parents(b, a, {});
    Choisir(a);
    CHECK(Numero(a) == "1");
    CHECK(Numero(b) == "2");
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: one union gives a point, several give letters, and a "
                  "child of none a star") {
    const NoOrdre jean = Creer(Sexe::Homme);
    const NoOrdre anne = Creer(Sexe::Femme);
    const NoOrdre zoe = Creer(Sexe::Femme);
    const NoOrdre inconnue = Creer(Sexe::Femme);
    Marier(jean, anne);
    std::vector<NoOrdre> enfants;
    for (const NoOrdre mere : {anne, anne, inconnue, zoe, NoOrdre{}}) {
        enfants.push_back(Creer(Sexe::Femme));
        Parents(enfants.back(), jean, mere);
    }
    Choisir(jean);
    CHECK(Numero(enfants[0]) == ".1");
    CHECK(Numero(enfants[1]) == ".2");
    CHECK(Numero(enfants[2]) == "*1");
    CHECK(Numero(enfants[3]) == "*2");
    CHECK(Numero(enfants[4]) == "*3");
    Marier(jean, zoe);
    Choisir(jean);
    CHECK(Numero(enfants[0]) == "a1");
    CHECK(Numero(enfants[1]) == "a2");
    CHECK(Numero(enfants[2]) == "*1");
    CHECK(Numero(enfants[3]) == "b1");
    CHECK(Numero(enfants[4]) == "*2");
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: the child of a single mother is *1, and of a union "
                  "without partner .1") {
    const NoOrdre mere = Creer(Sexe::Femme);
    const NoOrdre enfant = Creer(Sexe::Homme);
    Parents(enfant, {}, mere);
    Choisir(mere);
    CHECK(Numero(enfant) == "*1");
    Marier({}, mere);
    Choisir(mere);
    CHECK(Numero(enfant) == ".1");
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: of more than 26 unions only the first 26 give letters") {
    const NoOrdre jean = Creer(Sexe::Homme);
    std::vector<NoOrdre> enfants;
    for (int i = 0; i < 28; ++i) {
        const NoOrdre femme = Creer(Sexe::Femme);
        Marier(jean, femme);
        enfants.push_back(Creer(Sexe::Homme));
        Parents(enfants.back(), jean, femme);
    }
    Choisir(jean);
    CHECK(Numero(enfants[0]) == "a1");
    CHECK(Numero(enfants[25]) == "z1");
    CHECK(Numero(enfants[26]) == "*1");
    CHECK(Numero(enfants[27]) == "*2");
}

TEST_CASE_FIXTURE(Famille, "NumeroterDeCujus: of more than 50 children the first 50 get strings") {
    const NoOrdre jean = Creer(Sexe::Homme);
    std::vector<NoOrdre> enfants;
    for (int i = 0; i < 52; ++i) {
        enfants.push_back(Creer(Sexe::Homme));
        Parents(enfants.back(), jean, {});
    }
    Choisir(jean);
    CHECK(Numero(enfants[49]) == "*50");
    CHECK(Numero(enfants[50]).empty());
}

TEST_CASE_FIXTURE(Famille, "NumeroterDeCujus: the line of descendants ends below depth 9") {
    std::vector<NoOrdre> lignee{Creer(Sexe::Homme)};
    std::string attendu;
    for (int d = 1; d <= 12; ++d) {
        lignee.push_back(Creer(Sexe::Homme));
        Parents(lignee.back(), lignee[lignee.size() - 2], {});
    }
    Choisir(lignee[0]);
    for (std::size_t d = 1; d <= 10; ++d) {
        attendu += "*1";
        CHECK(Numero(lignee[d]) == attendu);
    }
    CHECK(Numero(lignee[11]).empty());
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: between cousins the line through the father wins, "
                  "whatever comes first") {
    for (const bool fillePremiere : {true, false}) {
        CAPTURE(fillePremiere);
        const NoOrdre ancetre = Creer(Sexe::Homme);
        const NoOrdre fils = Creer(Sexe::Homme);
        const NoOrdre fille = Creer(Sexe::Femme);
        const NoOrdre enfant = Creer(Sexe::Homme);
        const NoOrdre petit = Creer(Sexe::Homme);
        Parents(fillePremiere ? fille : fils, ancetre, {});
        Parents(fillePremiere ? fils : fille, ancetre, {});
        Parents(enfant, fils, fille);
        Parents(petit, enfant, {});
        Choisir(ancetre);
        const std::string parFils = Numero(fils) + "*1";
        CHECK(Numero(enfant) == parFils);
        CHECK(Numero(petit) == parFils + "*1");
    }
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: random families with implex and cycles give what the "
                  "plain rule gives") {
    std::mt19937 hasard{2024};
    const auto tirer = [&hasard](std::uint32_t n) {
        return static_cast<std::uint32_t>(hasard() % n);
    };
    for (int tour = 0; tour < 60; ++tour) {
        const std::uint32_t premier = B().entete.DernierIndividu + 1;
        const std::uint32_t taille = 6 + tirer(25);
        std::vector<NoOrdre> gens;
        for (std::uint32_t i = 0; i < taille; ++i)
            gens.push_back(Creer(static_cast<Sexe>("HFI"[tirer(3)])));
        for (std::uint32_t i = 0; i < taille; ++i) {
            const auto parent = [&] {
                return tirer(4) == 0 ? NoOrdre{} : gens[tirer(tour % 3 == 0 ? taille : i + 1)];
            };
            if (tirer(3) != 0) Parents(gens[i], parent(), parent());
            if (tirer(2) == 0) Marier(parent(), parent());
        }
        const NoOrdre choisi = gens[tirer(taille)];
        Choisir(choisi);
        Reference reference{B()};
        reference.asc[choisi.valeur] = 1;
        reference.Monter(B().R_PERE.LireCellule(choisi), 2, 1);
        reference.Monter(B().R_MERE.LireCellule(choisi), 3, 1);
        reference.Descendre(choisi, "", 0);
        for (std::uint32_t n = premier; n < premier + taille; ++n) {
            CAPTURE(tour);
            CAPTURE(n);
            std::string attendu;
            if (reference.asc.count(n) != 0)
                attendu = std::to_string(reference.asc[n]);
            else if (reference.desc.count(n) != 0)
                attendu = reference.desc[n];
            CHECK(Numero(NoOrdre{n}) == attendu);
        }
    }
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: the captions tell who is chosen, in the brackets of each") {
    CHECK(session.deCujus[0].libelle == "[...]");
    CHECK(session.deCujus[1].libelle == "{...}");
    const NoOrdre jean = Creer(Sexe::Homme, "Dupont", "Jean Marie");
    Choisir(jean, 1);
    Choisir(jean, 2);
    CHECK(session.deCujus[0].libelle == "[Dupont Jean Marie]");
    CHECK(session.deCujus[1].libelle == "{Dupont Jean Marie}");
    Choisir({}, 1);
    CHECK(session.deCujus[0].libelle == "[...]");
    CHECK(session.deCujus[0].sosa.empty());
}

TEST_CASE_FIXTURE(Famille,
                  "MnuDeCujus: the chooser starts on the present one, else on the current "
                  "person") {
    const NoOrdre jean = Creer(Sexe::Homme);
    const NoOrdre anne = Creer(Sexe::Femme);
    session.PersonneEnCours = jean;
    CHECK_FALSE(MnuDeCujus(session, 1));
    CHECK(dialogue.demandesPersonne.back().depart == jean);
    CHECK_FALSE(session.deCujus[0].individu);
    B().marques.AffichagePerime = false;
    dialogue.personnes.push_back(anne);
    CHECK(MnuDeCujus(session, 1));
    CHECK(session.deCujus[0].individu == anne);
    CHECK(Numero(anne) == "1");
    CHECK(B().marques.AffichagePerime);
    CHECK_FALSE(MnuDeCujus(session, 1));
    CHECK(dialogue.demandesPersonne.back().depart == anne);
    CHECK(session.deCujus[0].individu == anne);
    CHECK_FALSE(MnuDeCujus(session, 2));
    CHECK(dialogue.demandesPersonne.back().depart == jean);
}

TEST_CASE_FIXTURE(Famille,
                  "Session: a parent link of a numbered person makes the numbering stale, "
                  "and the timer mends it") {
    const NoOrdre moi = Creer(Sexe::Homme);
    const NoOrdre pere = Creer(Sexe::Homme);
    const NoOrdre autre = Creer(Sexe::Homme);
    const NoOrdre sien = Creer(Sexe::Homme);
    Choisir(moi);
    Parents(sien, autre, {});
    CHECK_FALSE(session.deCujus[0].perime);
    Parents(moi, pere, {});
    CHECK(session.deCujus[0].perime);
    CHECK_FALSE(session.deCujus[1].perime);
    CHECK(Numero(pere).empty());
    Minuterie1(session);
    CHECK_FALSE(session.deCujus[0].perime);
    CHECK(Numero(pere) == "2");
}

TEST_CASE_FIXTURE(Famille, "Session: the tables follow a new person and keep their contents") {
    const NoOrdre moi = Creer(Sexe::Homme);
    Choisir(moi);
    const NoOrdre nouveau = Creer(Sexe::Homme);
    AgrandirNumerotations(session);
    CHECK(session.deCujus[0].sosa.size() == 3);
    CHECK(Numero(moi) == "1");
    CHECK(Numero(nouveau).empty());
    CHECK(session.deCujus[1].sosa.empty());
    Parents(nouveau, moi, {});
    CHECK(session.deCujus[0].perime);
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: a tree that fills the base is numbered to its last leaf") {
    // Everybody has two children with the next ones: a tree that fills the base.
    constexpr std::uint32_t Taille = 64000;
    for (std::uint32_t n = 1; n <= Taille; ++n) {
        const NoOrdre p = B().NouvelIndividu();
        REQUIRE(p.valeur == n);
        B().R_SEXE.EcrireCellule(p, n % 2 == 0 ? Sexe::Femme : Sexe::Homme);
    }
    for (std::uint32_t n = 1; 3 * n + 1 <= Taille; ++n) {
        std::string enfants;
        for (std::uint32_t e = 3 * n - 1; e <= 3 * n + 1; ++e) {
            enfants += static_cast<char>(e >> 8U);
            enfants += static_cast<char>(e & 0xFFU);
            (n % 2 == 0 ? B().R_MERE : B().R_PERE).EcrireCellule(NoOrdre{e}, NoOrdre{n});
        }
        B().R_ENFANT.EcrireListe(NoOrdre{n}, enfants);
    }
    session.deCujus[0].individu = NoOrdre{1};
    NumeroterDeCujus(session, 1);
    CHECK(Numero(NoOrdre{40}) == "*3*3*3");
    CHECK(session.deCujus[0].numerosDesc.size() > 60000);
}

TEST_CASE_FIXTURE(Famille,
                  "NumeroterDeCujus: a base in which everybody is a child of everybody ends "
                  "soon") {
    std::string tous;
    for (std::uint32_t n = 1; n <= 50; ++n) {
        Creer(Sexe::Homme);
        tous += '\0';
        tous += static_cast<char>(n);
    }
    for (std::uint32_t n = 1; n <= 50; ++n)
        B().R_ENFANT.EcrireListe(NoOrdre{n}, tous);
    Choisir(NoOrdre{1});
    CHECK(Numero(NoOrdre{1}) == "1");
    CHECK_FALSE(Numero(NoOrdre{50}).empty());
}

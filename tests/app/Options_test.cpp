#include "app/Options.h"

#include "app/Statuts.h"

#include <doctest/doctest.h>

using namespace dorvane::outil;

namespace {

enum class Couleur : std::uint8_t { Rouge, Vert };

struct OptionsEssai {
    std::string fichier;
    std::optional<std::string> nom;
    std::uint32_t generations = 2;
    std::vector<std::string> lignes;
    Couleur couleur = Couleur::Rouge;
    bool oui = false;
    bool non = false;
};

OptionsEssai lues;

/// A line with one verb, `essai`, that keeps what it was given and answers 1.
struct Ligne {
    LigneDeCommande ligne{"Essai", "essais"};

    Ligne() {
        lues = {};
        Declarer<OptionsEssai>(
            ligne.Verbes(), "essai", "Un verbe",
            [](Verbe& v, OptionsEssai& o) {
                v.Ajouter("FICHIER", o.fichier).Requise();
                const Option nom = v.Ajouter("--nom", o.nom);
                v.Ajouter("--generations", o.generations).Entre(1, 9).Exige(nom);
                v.Ajouter("--ligne", o.lignes).ParGroupes(2);
                v.Choix<Couleur>("--couleur", o.couleur,
                                 {{"rouge", Couleur::Rouge}, {"vert", Couleur::Vert}}, "");
                const Option oui = v.Drapeau("--oui", o.oui).Verifier([nom] {
                    return nom.EstDonnee() ? std::string{"sans --nom"} : std::string{};
                });
                v.Drapeau("--non", o.non).Exclut(oui);
            },
            [](const OptionsEssai& o) {
                lues = o;
                return 1;
            });
    }

    /// The exit status of the line: 1 when it was done.
    int Executer(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "essais");
        const std::optional<int> statut =
            ligne.Lire(static_cast<int>(arguments.size()), arguments.data());
        return statut ? *statut : ligne.Executer();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Ligne, "Options: a verb works with what the line gives it, and keeps the rest") {
    CHECK(Executer({"essai", "a.LGD"}) == 1);
    CHECK(lues.fichier == "a.LGD");
    CHECK_FALSE(lues.nom);
    CHECK(lues.generations == 2);
    CHECK(lues.couleur == Couleur::Rouge);
}

TEST_CASE_FIXTURE(Ligne,
                  "Options: options stand anywhere behind their verb, in groups and by word") {
    CHECK(Executer({"essai", "--nom", "Martin", "--ligne", "a", "b", "f", "--ligne", "c", "d",
                    "--couleur", "vert", "--generations", "9", "--non"}) == 1);
    CHECK(lues.fichier == "f");
    CHECK(lues.nom == "Martin");
    CHECK(lues.generations == 9);
    CHECK(lues.lignes == std::vector<std::string>{"a", "b", "c", "d"});
    CHECK(lues.couleur == Couleur::Vert);
    CHECK(lues.non);
}

TEST_CASE_FIXTURE(Ligne, "Options: a line that breaks a rule is wrong usage and does nothing") {
    SUBCASE("no verb") {
        CHECK(Executer({}) == MauvaisUsage);
    }
    SUBCASE("an argument missing") {
        CHECK(Executer({"essai"}) == MauvaisUsage);
    }
    SUBCASE("an option without the one that it needs") {
        CHECK(Executer({"essai", "f", "--generations", "3"}) == MauvaisUsage);
    }
    SUBCASE("a number out of its limits") {
        CHECK(Executer({"essai", "f", "--nom", "n", "--generations", "10"}) == MauvaisUsage);
    }
    SUBCASE("half a group") {
        CHECK(Executer({"essai", "f", "--ligne", "a"}) == MauvaisUsage);
    }
    SUBCASE("an unknown word") {
        CHECK(Executer({"essai", "f", "--couleur", "bleu"}) == MauvaisUsage);
    }
    SUBCASE("options that exclude one another") {
        CHECK(Executer({"essai", "f", "--oui", "--non"}) == MauvaisUsage);
    }
    SUBCASE("what the verb itself finds wrong") {
        CHECK(Executer({"essai", "f", "--nom", "n", "--oui"}) == MauvaisUsage);
    }
    CHECK(lues.fichier.empty());
}

TEST_CASE_FIXTURE(Ligne, "Options: help is no failure, and does nothing") {
    CHECK(Executer({"essai", "--help"}) == Fait);
    CHECK(lues.fichier.empty());
}

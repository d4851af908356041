#include "storage/BaseCommunes.h"

#include "doublures/DisqueMemoire.h"
#include "values/Octets.h"
#include "values/Phonetique.h"
#include "values/Texte1252.h"

#include <random>

#include <doctest/doctest.h>

namespace dorvane::storage {

namespace {

constexpr const char* Chemin = "France.lgx";

Commune Nommer(std::string nom, std::string precision = {}) {
    Commune c;
    c.nom = std::move(nom);
    c.precision = std::move(precision);
    return c;
}

Commune Blois() {
    return {std::string{"Blois"},
            "41000",
            "4118",
            "Blois-Centre",
            "Loir-et-Cher",
            std::string{"Château royal ; ville haute et ville basse."_1252}};
}

/// A base of communes on a disk in memory, empty at first.
struct EssaiCommunes {
    EssaiCommunes() {
        disque.Poser(Chemin, ImageLgx{}.Octets());
        Ouvrir();
    }
    void Ouvrir() {
        ResultatCommunes r = BaseCommunes::OuvrirCommunes(disque, Chemin);
        REQUIRE(r.etat == OuvertureCommunes::Faite);
        base = std::move(r.base);
    }
    void Rouvrir() {
        REQUIRE(base->EnregistrerCommunes() == EcritureCommunes::Faite);
        Ouvrir();
    }
    [[nodiscard]] std::vector<std::string> Noms(const std::vector<NoCommune>& numeros) const {
        std::vector<std::string> noms;
        for (const NoCommune n : numeros)
            noms.push_back(base->LireCommune(n).nom);
        return noms;
    }
    DisqueMemoire disque;
    std::unique_ptr<BaseCommunes> base;
    ProgressionMuette muet;
};

using Numeros = std::vector<NoCommune>;
using Textes = std::vector<std::string>;

/// Both indexes and all records against the communes that should be there.
void Verifier(const EssaiCommunes& e, const std::vector<Commune>& attendues) {
    REQUIRE(e.base->Nombre() == attendues.size());
    std::size_t vivantes = 0;
    for (std::uint32_t n = 1; n <= attendues.size(); ++n) {
        const Commune& c = attendues[n - 1];
        REQUIRE(e.base->LireCommune(NoCommune{n}) == c);
        if (c.nom.empty()) continue;
        ++vivantes;
        const Numeros parNom = e.base->ChercherCommune(c.nom);
        CHECK(std::count(parNom.begin(), parNom.end(), NoCommune{n}) == 1);
        const Numeros parSon = e.base->ChercherSoundex(ClePhonetique(c.nom));
        CHECK(std::count(parSon.begin(), parSon.end(), NoCommune{n}) == 1);
    }
    const Numeros toutes = e.base->ChercherDebut("", 100000);
    CHECK(toutes.size() == vivantes);
    for (std::size_t i = 1; i < toutes.size(); ++i)
        CHECK(CleCommune(e.base->LireCommune(toutes[i - 1]).nom) <=
              CleCommune(e.base->LireCommune(toutes[i]).nom));
}

}  // namespace

TEST_CASE("a commune comes back as it was typed, with its comment") {
    EssaiCommunes e;
    const NoCommune n = e.base->AjouterCommune(Blois());
    CHECK(n == NoCommune{1});
    e.Rouvrir();
    CHECK(e.base->LireCommune(n) == Blois());
    CHECK(e.base->Nombre() == 1);
}

TEST_CASE("the areas of the head stand at 1, 265, 525 and 785") {
    EssaiCommunes e;
    e.base->AjouterCommune(Blois());
    REQUIRE(e.base->EnregistrerCommunes() == EcritureCommunes::Faite);
    const std::string octets = e.disque.Octets(Chemin);
    CHECK(Chaine4VersNum(octets) == octets.size());
    CHECK(Chaine4VersNum(octets.substr(4)) == 1);
    CHECK(Chaine4VersNum(octets.substr(264)) == 2);  // the commune and the sentinel
    CHECK(Chaine4VersNum(octets.substr(524)) == 2);
    CHECK(Chaine4VersNum(octets.substr(784)) == 1);
    for (const std::size_t repertoire : {8U, 268U, 528U, 788U}) {
        CAPTURE(repertoire);
        CHECK(Chaine4VersNum(octets.substr(repertoire)) > ImageLgx::TailleTete);
        CHECK(Chaine4VersNum(octets.substr(repertoire + 4)) == 0);
    }
    const std::size_t blocNoms = Chaine4VersNum(octets.substr(268)) - 1;
    const std::size_t entree = Chaine4VersNum(octets.substr(blocNoms)) - 1;
    CHECK(octets.substr(entree, 10) == std::string{"BLOIS#\0\0\0\1", 10});
    const std::size_t derniere = Chaine4VersNum(octets.substr(blocNoms + 4)) - 1;
    CHECK(octets.substr(derniere, 11) == "Zzzzzzzzzz#");
}

TEST_CASE("a commune with an empty code has a record that starts with #") {
    EssaiCommunes e;
    e.base->AjouterCommune(Nommer("Mer"));
    REQUIRE(e.base->EnregistrerCommunes() == EcritureCommunes::Faite);
    const std::string octets = e.disque.Octets(Chemin);
    const std::size_t bloc = Chaine4VersNum(octets.substr(8)) - 1;
    const std::size_t debut = Chaine4VersNum(octets.substr(bloc)) - 1;
    CHECK(octets.substr(debut, 16) == std::string{"##Mer###"
                                                  "#\0\0\0\0\0\0\0",
                                                  16});
    e.Ouvrir();
    CHECK(e.base->LireCommune(NoCommune{1}) == Nommer("Mer"));
}

TEST_CASE("commune 2501 falls in the second block") {
    EssaiCommunes e;
    std::vector<Commune> communes;
    for (int i = 1; i <= 2501; ++i)
        communes.push_back(Nommer("Lieu " + std::to_string(i)));
    std::string octets;
    REQUIRE(ComposerLgx(communes, e.muet, octets));
    CHECK(Chaine4VersNum(octets.substr(12)) != 0);
    CHECK(Chaine4VersNum(octets.substr(16)) == 0);
    e.disque.Poser(Chemin, octets);
    e.Ouvrir();
    Verifier(e, communes);
}

TEST_CASE("a record whose fields are all empty but the name reads back, comment or none") {
    for (const char* commentaire : {"", "lieu-dit"}) {
        CAPTURE(commentaire);
        EssaiCommunes e;
        Commune c = Nommer(std::string{"Le Gué"_1252});
        c.commentaire = commentaire;
        e.base->AjouterCommune(c);
        e.Rouvrir();
        CHECK(e.base->LireCommune(NoCommune{1}) == c);
    }
}

TEST_CASE("the position of a comment may hold the byte of #") {
    EnregistrementCommune e;
    e.commune = Nommer("Mer");
    e.commentaire = Position{0x23232323};
    e.suivanteNom = NoCommune{0x2323};
    const std::string octets = ComposerCommune(e) + "suite";
    EnregistrementCommune lu;
    CHECK(AnalyserCommune(octets, lu) == octets.size() - 5 - 8);
    CHECK(lu.commune == e.commune);
    CHECK(lu.commentaire == e.commentaire);
    CHECK(lu.suivanteNom == e.suivanteNom);
}

TEST_CASE("all communes of one name are found, whatever case and accents") {
    EssaiCommunes e;
    e.base->AjouterCommune(Nommer("Saint-Denis", "Seine"));
    e.base->AjouterCommune(Nommer("Mer"));
    e.base->AjouterCommune(Nommer("SAINT DENIS", std::string{"Réunion"_1252}));
    e.Rouvrir();
    CHECK(e.base->ChercherCommune("saint-denis") == Numeros{NoCommune{1}, NoCommune{3}});
    CHECK(e.base->ChercherCommune("Saint").empty());
    CHECK(e.base->ChercherDebut("sai", 10) == Numeros{NoCommune{1}, NoCommune{3}});
    CHECK(e.base->ChercherDebut("sai", 1) == Numeros{NoCommune{1}});
}

TEST_CASE("communes that sound alike are found by their key") {
    EssaiCommunes e;
    for (const char* nom : {"Dupond", "Mer", "Dupont"})
        e.base->AjouterCommune(Nommer(nom));
    e.Rouvrir();
    CHECK(e.base->ChercherSoundex(ClePhonetique("Duppon")) == Numeros{NoCommune{1}, NoCommune{3}});
    CHECK(e.base->ChercherSoundex("XXXX").empty());
}

TEST_CASE("a name changed leaves its old key and its homonyms keep theirs") {
    EssaiCommunes e;
    std::vector<Commune> c{Nommer("Mer"), Nommer("MER"), Nommer("Mer", "Var"),
                           Nommer(std::string{"Suèvres"_1252})};
    for (const Commune& commune : c)
        e.base->AjouterCommune(commune);
    for (const std::uint32_t n :
         {2U, 1U, 3U}) {  // from the middle, the head and the last of a chain
        c[n - 1].nom = "Avaray";
        REQUIRE(e.base->MajCommune(NoCommune{n}, c[n - 1]));
        Verifier(e, c);
    }
    e.Rouvrir();
    Verifier(e, c);
    CHECK(e.base->ChercherCommune("Mer").empty());
}

TEST_CASE("a commune deleted is found no more and its number stays unused") {
    EssaiCommunes e;
    for (const char* nom : {"Mer", "Mer", "Blois"})
        e.base->AjouterCommune(Nommer(nom));
    CHECK(e.base->SupprimerCommune(NoCommune{1}));
    CHECK_FALSE(e.base->SupprimerCommune(NoCommune{1}));
    CHECK_FALSE(e.base->MajCommune(NoCommune{1}, Nommer("Mer")));
    CHECK(e.base->AjouterCommune(Nommer("Mer")) == NoCommune{4});
    e.Rouvrir();
    Verifier(e, {{}, Nommer("Mer"), Nommer("Blois"), Nommer("Mer")});
}

TEST_CASE("what a record cannot hold is taken out before it is stored") {
    EssaiCommunes e;
    Commune c{" Mer#ville\n", "41\x01", "", std::string("a\0b", 3), "x\r\ny", "un # deux"};
    e.base->AjouterCommune(c);
    e.Rouvrir();
    const Commune lue = e.base->LireCommune(NoCommune{1});
    CHECK(lue.nom == "Mer-ville");
    CHECK(lue.rattachement == "a b");
    CHECK(lue.precision == "x  y");
    CHECK(lue.commentaire == "un - deux");
    CHECK_FALSE(e.base->AjouterCommune(Nommer(" \n")));
}

TEST_CASE("random edits give what a list in memory gives") {
    for (std::uint32_t graine = 1; graine <= 4; ++graine) {
        CAPTURE(graine);
        std::mt19937 hasard{graine};
        const auto tirer = [&hasard](std::uint32_t n) {
            return static_cast<std::uint32_t>(hasard() % n);
        };
        EssaiCommunes e;
        std::vector<Commune> c;
        for (int pas = 0; pas < 400; ++pas) {
            Commune nouvelle = Nommer(std::string(1 + tirer(2), static_cast<char>('A' + tirer(5))));
            if (tirer(3) == 0) nouvelle.commentaire = "note " + std::to_string(pas);
            const std::uint32_t n = c.empty() ? 0 : tirer(static_cast<std::uint32_t>(c.size())) + 1;
            switch (n == 0 ? 0 : tirer(4)) {
                case 0:
                case 1:
                    e.base->AjouterCommune(nouvelle);
                    c.push_back(nouvelle);
                    break;
                case 2:
                    CHECK(e.base->MajCommune(NoCommune{n}, nouvelle) == !c[n - 1].nom.empty());
                    if (!c[n - 1].nom.empty()) c[n - 1] = nouvelle;
                    break;
                default:
                    e.base->SupprimerCommune(NoCommune{n});
                    c[n - 1] = {};
            }
            if (pas % 50 == 0) e.Rouvrir();
        }
        Verifier(e, c);
        REQUIRE(e.base->ReorganiserCommunes(e.muet) == EcritureCommunes::Faite);
        Verifier(e, c);
        e.Ouvrir();
        Verifier(e, c);
        const std::string une = e.disque.Octets(Chemin);
        REQUIRE(e.base->ReorganiserCommunes(e.muet) == EcritureCommunes::Faite);
        CHECK(e.disque.Octets(Chemin) == une);
    }
}

TEST_CASE("a reorganisation drops what is dead and leaves nothing beside") {
    EssaiCommunes e;
    for (int i = 0; i < 50; ++i)
        e.base->AjouterCommune(Blois());
    for (std::uint32_t n = 2; n <= 50; ++n)
        e.base->SupprimerCommune(NoCommune{n});
    e.Rouvrir();
    const std::size_t avant = e.disque.Octets(Chemin).size();
    REQUIRE(e.base->ReorganiserCommunes(e.muet) == EcritureCommunes::Faite);
    CHECK(e.disque.Octets(Chemin).size() < avant - 49 * Blois().nom.size());
    CHECK_FALSE(e.disque.Existe("Commune.reo"));
    e.Ouvrir();
    CHECK(e.base->LireCommune(NoCommune{1}) == Blois());
}

TEST_CASE("a base written anew has its counts, and its sentinels behind the last entries") {
    const auto compte = [](const std::string& octets, std::size_t decalage) {
        return Chaine4VersNum(std::string_view{octets}.substr(decalage));
    };
    // The text that an entry of an index begins with.
    const auto entree = [&](const std::string& octets, std::size_t repertoire, std::size_t i) {
        const std::size_t cellule = compte(octets, repertoire) - 1 + 4 * (i - 1);
        const std::string texte = octets.substr(compte(octets, cellule) - 1, 20);
        return texte.substr(0, texte.find('#'));
    };
    EssaiCommunes e;
    SUBCASE("of an empty base") {
        REQUIRE(e.base->ReorganiserCommunes(e.muet) == EcritureCommunes::Faite);
        const std::string octets = e.disque.Octets(Chemin);
        CHECK(compte(octets, 4) == 0);
        CHECK(compte(octets, 264) == 1);
        CHECK(compte(octets, 524) == 1);
        CHECK(compte(octets, 784) == 0);
        CHECK(entree(octets, 268, 1) == "Zzzzzzzzzz");
        CHECK(entree(octets, 528, 1) == "Zzzz");
    }
    SUBCASE("of homonyms and others") {
        for (const Commune& c : {Nommer("Mer"), Blois(), Nommer("Mer", "Sarthe"), Blois()})
            e.base->AjouterCommune(c);
        Commune muette = Blois();
        muette.commentaire.clear();
        REQUIRE(e.base->MajCommune(NoCommune{4}, muette));
        e.Rouvrir();
        CHECK(compte(e.disque.Octets(Chemin), 784) == 1);
        REQUIRE(e.base->ReorganiserCommunes(e.muet) == EcritureCommunes::Faite);
        const std::string octets = e.disque.Octets(Chemin);
        CHECK(compte(octets, 0) == octets.size());
        CHECK(compte(octets, 4) == 4);
        CHECK(compte(octets, 264) == 3);
        CHECK(compte(octets, 524) == 3);
        CHECK(compte(octets, 784) == 1);
        CHECK(entree(octets, 268, 2) == CleCommune("Mer"));
        CHECK(entree(octets, 268, 3) == "Zzzzzzzzzz");
        CHECK(entree(octets, 528, 3) == "Zzzz");
    }
}

TEST_CASE("a base that has been saved is not written again") {
    EssaiCommunes e;
    e.base->AjouterCommune(Blois());
    REQUIRE(e.base->EnregistrerCommunes() == EcritureCommunes::Faite);
    CHECK_FALSE(e.base->Modifiee());
    const int avant = e.disque.operations;
    CHECK(e.base->EnregistrerCommunes() == EcritureCommunes::Faite);
    CHECK(e.disque.operations == avant);
}

TEST_CASE("a new file that cannot take its place is not left beside") {
    for (const bool reorganise : {false, true}) {
        EssaiCommunes temoin;
        temoin.base->AjouterCommune(Blois());
        const auto ecrire = [reorganise](EssaiCommunes& e) {
            return (reorganise ? e.base->ReorganiserCommunes(e.muet)
                               : e.base->EnregistrerCommunes()) == EcritureCommunes::Faite;
        };
        const int debut = temoin.disque.operations;
        REQUIRE(ecrire(temoin));
        const int nombre = temoin.disque.operations - debut;
        for (int operation = 1; operation <= nombre; ++operation) {
            CAPTURE(operation);
            EssaiCommunes e;
            e.base->AjouterCommune(Blois());
            e.disque.panne = Panne::Refus;
            e.disque.panneA = e.disque.operations + operation;
            static_cast<void>(ecrire(e));
            CHECK_FALSE(e.disque.Existe("France.lgx.nouveau"));
            CHECK_FALSE(e.disque.Existe("Commune.reo"));
        }
    }
}

TEST_CASE("a full base takes no further commune") {
    EssaiCommunes e;
    std::string octets;
    REQUIRE(ComposerLgx(std::vector<Commune>(BaseCommunes::MaxCommunes, Nommer("Mer")), e.muet,
                        octets));
    e.disque.Poser(Chemin, octets);
    e.Ouvrir();
    CHECK_FALSE(bool{e.base->AjouterCommune(Blois())});
    CHECK(e.base->Nombre() == BaseCommunes::MaxCommunes);
    CHECK_FALSE(e.base->Modifiee());
    CHECK_FALSE(ComposerLgx(std::vector<Commune>(BaseCommunes::MaxCommunes + 1, Nommer("Mer")),
                            e.muet, octets));
}

TEST_CASE("a disk that refuses leaves the old file, at whatever operation") {
    for (const Panne panne : {Panne::Refus, Panne::Plein, Panne::Dechirure}) {
        for (int operation = 1; operation <= 6; ++operation) {
            CAPTURE(operation);
            EssaiCommunes e;
            e.base->AjouterCommune(Blois());
            e.Rouvrir();
            const std::string avant = e.disque.Octets(Chemin);
            e.base->AjouterCommune(Nommer("Mer"));
            e.disque.panne = panne;
            e.disque.panneA = e.disque.operations + operation;
            const bool reorganisee = operation % 2 == 0;
            const bool fait =
                (reorganisee ? e.base->ReorganiserCommunes(e.muet)
                             : e.base->EnregistrerCommunes()) == EcritureCommunes::Faite;
            const std::unique_ptr<DisqueMemoire> apres = e.disque.Survivre();
            ResultatCommunes r = BaseCommunes::OuvrirCommunes(*apres, Chemin);
            REQUIRE(r.etat == OuvertureCommunes::Faite);
            CHECK(r.base->Nombre() == (fait ? 2 : 1));
            if (!fait) CHECK(apres->Octets(Chemin) == avant);
        }
    }
}

TEST_CASE("a file that somebody else has written meanwhile is left alone") {
    EssaiCommunes e;
    e.base->AjouterCommune(Blois());
    EssaiCommunes autre;
    autre.base->AjouterCommune(Nommer("Mer"));
    autre.Rouvrir();
    const std::string deLAutre = autre.disque.Octets(Chemin);
    e.disque.Poser(Chemin, deLAutre);
    CHECK(e.base->EnregistrerCommunes() == EcritureCommunes::ChangeeAilleurs);
    CHECK(e.disque.Octets(Chemin) == deLAutre);
}

TEST_CASE("a file that is missing or of another kind is told apart") {
    DisqueMemoire disque;
    CHECK(BaseCommunes::OuvrirCommunes(disque, Chemin).etat == OuvertureCommunes::Absente);
    disque.Poser(Chemin, "");
    CHECK(BaseCommunes::OuvrirCommunes(disque, Chemin).etat == OuvertureCommunes::Illisible);
    disque.Poser(Chemin, std::string(5000, 'x'));
    CHECK(BaseCommunes::OuvrirCommunes(disque, Chemin).etat == OuvertureCommunes::Illisible);
}

TEST_CASE("damaged bases are read, searched, edited and reorganised without harm") {
    EssaiCommunes source;
    for (const char* nom : {"Mer", "Blois", "Mer", "Avaray", "Talcy"}) {
        Commune c = Blois();
        c.nom = nom;
        source.base->AjouterCommune(c);
    }
    source.Rouvrir();
    const std::string sain = source.disque.Octets(Chemin);
    std::mt19937 hasard{7};
    int ouvertes = 0;
    for (int essai = 0; essai < 2000; ++essai) {
        std::string octets = sain;
        for (std::uint32_t k = hasard() % 4 + 1; k > 0; --k)
            octets[hasard() % 2 == 0 ? hasard() % 1044 : hasard() % octets.size()] =
                static_cast<char>(hasard() % 3 == 0 ? 0 : hasard());
        if (hasard() % 8 == 0) octets.resize(hasard() % octets.size());
        EssaiCommunes e;
        e.disque.Poser(Chemin, octets);
        ResultatCommunes r = BaseCommunes::OuvrirCommunes(e.disque, Chemin);
        if (r.etat != OuvertureCommunes::Faite) continue;
        ++ouvertes;
        CHECK(r.base->ChercherDebut("", 20).size() <= 20);
        CHECK(r.base->ChercherCommune("Mer").size() <= r.base->Nombre());
        r.base->MajCommune(NoCommune{2}, Nommer("Mer"));
        r.base->SupprimerCommune(NoCommune{1});
        r.base->AjouterCommune(Nommer("Talcy"));
        if (r.base->Nombre() < 1000)
            CHECK(r.base->ReorganiserCommunes(e.muet) == EcritureCommunes::Faite);
    }
    CHECK(ouvertes > 200);
}

}  // namespace dorvane::storage

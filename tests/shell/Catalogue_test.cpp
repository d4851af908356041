#include "shell/Catalogue.h"

#include "doublures/DialogueScript.h"
#include "doublures/DossierTemporaire.h"
#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CompilerCatalogue.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <random>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

/// Serves bytes from memory and counts the reads.
struct Memoire {
    std::string octets;
    int lectures = 0;

    [[nodiscard]] Catalogue::Lecteur Lecteur() {
        return [this](std::uint64_t decalage, std::span<char> sortie) -> std::size_t {
            ++lectures;
            if (decalage >= octets.size()) return 0;
            const std::size_t n = std::min(sortie.size(), octets.size() - decalage);
            std::memcpy(sortie.data(), octets.data() + decalage, n);
            return n;
        };
    }
};

void PoserEntier(std::string& octets, std::size_t position, std::uint32_t valeur) {
    for (std::size_t i = 0; i < 4; ++i)
        octets[position - 1 + i] = static_cast<char>((valeur >> (8 * i)) & 0xFFU);
}

/// A file laid out by hand: block tables and texts stand where the caller says.
struct Plan {
    std::string octets = std::string(20000, '\xEE');

    Plan() { std::fill_n(octets.begin(), 128, '\0'); }
    void Bloc(std::uint32_t bloc, std::uint32_t position) {
        PoserEntier(octets, 4 * bloc - 3, position);
        std::fill_n(octets.begin() + position - 1, 4000, '\0');
    }
    void Texte(std::uint32_t positionBloc, std::uint32_t rang, std::uint32_t position,
               std::string_view texte) {
        PoserEntier(octets, positionBloc + 4 * (rang - 1), position);
        octets.replace(position - 1, texte.size(), texte);
        octets[position - 1 + texte.size()] = '\0';
    }
};

CatalogueCompile Compiler(std::string_view tsv, std::string_view colonne = "fr") {
    const SourceCatalogue source{"essai.tsv", std::string{tsv}};
    return CompilerCatalogue({&source, 1}, colonne);
}

}  // namespace

TEST_CASE_FIXTURE(SessionEssai, "Composer: what follows stands on a line of its own") {
    session.catalogue.Ouvrir(dossier / "partage/Français.mes");
    Phrase literale = Litteral("Acte");
    literale.suite = message::ConfirmerSuppression;
    CHECK(session.catalogue.Composer(literale) == "Acte\nConfirmez-vous la suppression ?");
    Phrase seule = Litteral("");
    seule.suite = message::ConfirmerSuppression;
    CHECK(session.catalogue.Composer(seule) == "Confirmez-vous la suppression ?");
    Phrase remplie = Msg(message::TitreFamilleDe, "Paul");
    remplie.suite = message::ConfirmerSuppression;
    CHECK(session.catalogue.Composer(remplie) ==
          "Famille de Paul\nConfirmez-vous la suppression ?");
}

TEST_CASE_FIXTURE(SessionEssai,
                  "Composer: \"de\" and \"que\" lose their \"e\" before a name in a vowel") {
    session.catalogue.Ouvrir(dossier / "partage/Français.mes");
    const auto famille = [this](std::string_view nom) {
        return TexteVersUtf8(session.catalogue.Composer(Msg(message::TitreFamilleDe, nom)));
    };
    CHECK(famille("Antoinette") == "Famille d'Antoinette");
    CHECK(famille("Émile"_1252) == "Famille d'Émile");
    CHECK(famille("Œdipe"_1252) == "Famille d'Œdipe");
    CHECK(famille("Paul") == "Famille de Paul");
    CHECK(famille("Henri") == "Famille de Henri");
    CHECK(famille("Yann") == "Famille de Yann");
    CHECK(famille("essai.LGD") == "Famille de essai.LGD");
    CHECK(famille("1850") == "Famille de 1850");
    CHECK(famille("") == "Famille de ");
    CHECK(session.catalogue.Composer(Msg(message::DemanderSiEpouseEstLaMere, "Anne", "Ida")) ==
          std::string{"Ida est-elle la mère d'Anne ?"_1252});
    session.catalogue.Ouvrir(dossier / "partage/English.mes");
    CHECK(famille("Antoinette") == "Family of Antoinette");
}

TEST_CASE("Catalogue: message 1000 is entry 1000 of block 1, and 1001 entry 1 of block 2") {
    Plan plan;
    plan.Bloc(1, 9001);
    plan.Bloc(2, 200);
    plan.Texte(9001, 1000, 15000, "mille");
    plan.Texte(200, 1, 14000, "mille et un");
    plan.Texte(9001, 1, 16000, "premier");
    Memoire memoire{plan.octets};
    Catalogue catalogue;
    catalogue.Ouvrir(memoire.Lecteur());
    CHECK(catalogue.Message(NoMessage{1000}) == "mille");
    CHECK(catalogue.Message(NoMessage{1001}) == "mille et un");
    CHECK(catalogue.Message(NoMessage{1}) == "premier");
    CHECK(catalogue.Message(NoMessage{2}).empty());
}

TEST_CASE("Catalogue: an absent block gives empty texts for all its numbers, with no read") {
    Plan plan;
    plan.Bloc(1, 9001);
    plan.Texte(9001, 5, 15000, "cinq");
    Memoire memoire{plan.octets};
    Catalogue catalogue;
    catalogue.Ouvrir(memoire.Lecteur());
    REQUIRE(catalogue.Message(NoMessage{5}) == "cinq");
    const int avant = memoire.lectures;
    for (std::uint32_t n = 1001; n <= 2000; ++n)
        CHECK(catalogue.Message(NoMessage{n}).empty());
    CHECK(memoire.lectures == avant);
}

TEST_CASE("Catalogue: a text in the block held costs one read of 200 bytes") {
    Plan plan;
    plan.Bloc(1, 9001);
    plan.Texte(9001, 5, 15000, "cinq");
    plan.Texte(9001, 6, 15100, "six");
    Memoire memoire{plan.octets};
    Catalogue catalogue;
    catalogue.Ouvrir(memoire.Lecteur());
    CHECK(catalogue.Message(NoMessage{5}) == "cinq");
    CHECK(memoire.lectures == 3);
    CHECK(catalogue.Message(NoMessage{6}) == "six");
    CHECK(memoire.lectures == 4);
}

TEST_CASE("Catalogue: a text of 200 bytes has no end within reach and is empty") {
    Plan plan;
    plan.Bloc(1, 9001);
    plan.Texte(9001, 1, 15000, std::string(200, 'x'));
    plan.Texte(9001, 2, 16000, std::string(199, 'y'));
    Memoire memoire{plan.octets};
    Catalogue catalogue;
    catalogue.Ouvrir(memoire.Lecteur());
    CHECK(catalogue.Message(NoMessage{1}).empty());
    CHECK(catalogue.Message(NoMessage{2}) == std::string(199, 'y'));
}

TEST_CASE("Catalogue: after a switch to a file of another layout no stale table is used") {
    Plan un;
    un.Bloc(1, 9001);
    un.Texte(9001, 7, 15000, "sept");
    Plan deux;
    deux.Bloc(1, 4001);
    deux.Texte(4001, 7, 12000, "seven");
    Memoire francais{un.octets};
    Memoire anglais{deux.octets};
    Catalogue catalogue;
    catalogue.Ouvrir(francais.Lecteur());
    CHECK(catalogue.Message(NoMessage{7}) == "sept");
    catalogue.Ouvrir(anglais.Lecteur());
    CHECK(catalogue.Message(NoMessage{7}) == "seven");
    catalogue.OublierMessages();
    CHECK(catalogue.Message(NoMessage{7}) == "seven");
}

TEST_CASE("Catalogue: numbers outside 1 to 32000, no file and a missing file give empty texts") {
    Catalogue catalogue;
    CHECK(catalogue.Message(NoMessage{1}).empty());
    CHECK_FALSE(catalogue.Ouvrir("/nulle/part/Français.mes"));
    CHECK(catalogue.Message(NoMessage{1}).empty());
    Memoire memoire{Compiler("number\tfr\n1\tun\n32000\tdernier\n").octets};
    catalogue.Ouvrir(memoire.Lecteur());
    CHECK(catalogue.Message(NoMessage{}).empty());
    CHECK(catalogue.Message(NoMessage{32000}) == "dernier");
    CHECK(catalogue.Message(NoMessage{32001}).empty());
    CHECK(catalogue.Message(NoMessage{4000000000U}).empty());
}

TEST_CASE("Catalogue: cut and wild files give no text that they do not hold") {
    const std::string entier = Compiler("number\tfr\n1\tun\n2\tdeux\n").octets;
    for (std::size_t longueur = 0; longueur <= entier.size(); ++longueur) {
        Memoire memoire{entier.substr(0, longueur)};
        Catalogue catalogue;
        catalogue.Ouvrir(memoire.Lecteur());
        const std::string texte = catalogue.Message(NoMessage{2});
        CHECK((texte.empty() || texte == "deux"));
    }
    // Positions before the file, past it, and those that overflow.
    for (const std::uint32_t position : {0xFFFFFFFFU, 0x80000000U, 0x7FFFFFFFU, 20001U}) {
        Plan plan;
        plan.Bloc(1, 9001);
        PoserEntier(plan.octets, 9001, position);
        PoserEntier(plan.octets, 4 * 2 - 3, position);
        Memoire memoire{plan.octets};
        Catalogue catalogue;
        catalogue.Ouvrir(memoire.Lecteur());
        CHECK(catalogue.Message(NoMessage{1}).empty());
        CHECK(catalogue.Message(NoMessage{1001}).empty());
    }
}

TEST_CASE("Catalogue: values take the place of &1 and &2, and are not searched themselves") {
    Memoire memoire{Compiler("number\tfr\n1\t&2 est-elle la mère de &1 ?\n2\t100 & 3 &3 &\n"
                             "3\tSûr ?\n")
                        .octets};
    Catalogue catalogue;
    catalogue.Ouvrir(memoire.Lecteur());
    CHECK(catalogue.Composer(Msg(NoMessage{1}, "Jean &2", "Marie")) ==
          "Marie est-elle la m\xE8re de Jean &2 ?");
    CHECK(catalogue.Composer(Msg(NoMessage{2}, "x", "y")) == "100 & 3 &3 &");
    CHECK(catalogue.Composer(Litteral("tel &1 quel")) == "tel &1 quel");
    Phrase double_ = Msg(NoMessage{2});
    double_.suite = NoMessage{3};
    CHECK(catalogue.Composer(double_) == "100 & 3 &3 &\nS\xFBr ?");
}

TEST_CASE("Catalogue: a file on disk stays readable after it has been removed") {
    const DossierTemporaire dossier;
    EcrireFichier(dossier / "Français.mes", Compiler("number\tfr\n754\tNaissance\n").octets);
    Catalogue catalogue;
    CHECK(catalogue.Ouvrir(dossier / "Français.mes"));
    std::filesystem::remove(dossier / "Français.mes");
    CHECK(catalogue.Message(NoMessage{754}) == "Naissance");
}

TEST_CASE("CompilerCatalogue: every text comes back under its number, in both languages") {
    std::string tsv = "number\tfr\ten\tkind\tnote\n";
    std::map<std::uint32_t, std::string> attendus;
    std::mt19937 hasard{11};
    for (int i = 0; i < 500; ++i) {
        const std::uint32_t n = 1 + static_cast<std::uint32_t>(hasard() % 32000);
        if (!attendus.emplace(n, std::string(1 + hasard() % 199, 'a')).second) continue;
        attendus[n][0] = static_cast<char>('A' + i % 26);
        tsv +=
            std::to_string(n) + '\t' + attendus[n] + "\ten" + attendus[n].substr(0, 3) + "\t\t\n";
    }
    Memoire fr{Compiler(tsv, "fr").octets};
    Memoire en{Compiler(tsv, "en").octets};
    Catalogue francais;
    Catalogue anglais;
    francais.Ouvrir(fr.Lecteur());
    anglais.Ouvrir(en.Lecteur());
    for (const auto& [n, texte] : attendus) {
        CHECK(francais.Message(NoMessage{n}) == texte);
        CHECK(anglais.Message(NoMessage{n}) == "en" + texte.substr(0, 3));
    }
}

TEST_CASE("CompilerCatalogue: texts are kept in code page 1252, comments and empty lines skipped") {
    const CatalogueCompile compile =
        Compiler("# notre liste\n\nnumber\tfr\r\n10\tœuvre d’été €\r\n# fin\n11\t suivi \n");
    REQUIRE(compile.erreurs.empty());
    Memoire memoire{compile.octets};
    Catalogue catalogue;
    catalogue.Ouvrir(memoire.Lecteur());
    CHECK(catalogue.Message(NoMessage{10}) == "\x9Cuvre d\x92\xE9t\xE9 \x80");
    CHECK(catalogue.Message(NoMessage{11}) == " suivi ");
}

TEST_CASE("CompilerCatalogue: what is wrong is told with its line, and nothing is made") {
    const auto refus = [](std::string_view tsv) {
        const CatalogueCompile compile = Compiler(tsv);
        CHECK(compile.octets.empty());
        REQUIRE(compile.erreurs.size() == 1);
        return compile.erreurs[0];
    };
    CHECK(refus("number\tfr\n1\t" + std::string(200, 'x') + "\n").texte == "text over 199 bytes");
    CHECK(Compiler("number\tfr\n1\t" + std::string(199, 'x') + "\n").erreurs.empty());
    const ErreurCatalogue lettre = refus("number\tfr\n1\tun\n2\tŁódź\n");
    CHECK(lettre.texte == "a character that code page 1252 lacks");
    CHECK(lettre.ligne == 3);
    CHECK(lettre.source == "essai.tsv");
    CHECK(refus("number\tfr\n0\tun\n").texte == "number out of 1 to 32000: 0");
    CHECK(refus("number\tfr\n32001\tun\n").texte == "number out of 1 to 32000: 32001");
    CHECK(refus("number\tfr\n-1\tun\n").texte == "number out of 1 to 32000: -1");
    CHECK(refus("number\tfr\n1x\tun\n").texte == "number out of 1 to 32000: 1x");
    CHECK(refus("number\tfr\n7\tun\n7\tdeux\n").texte == "number given twice: 7");
    CHECK(refus("number\tfr\n7\n").texte == "missing columns");
    CHECK(refus("number\tfr\n7\t\n").texte == "empty text");
    CHECK(refus("number\tfr\n7\ta\x01z\n").texte == "a control character");
    CHECK(refus("number\ten\n7\ta\n").texte == "no column \"fr\"");
    CHECK(refus("no\tfr\n7\ta\n").texte == "no column \"number\"");
}

TEST_CASE("CompilerCatalogue: a number may stand in one list only") {
    const SourceCatalogue sources[] = {{"a.tsv", "number\tfr\n1\tun\n"},
                                       {"b.tsv", "number\tkind\tfr\n2\t\tdeux\n1\t\tencore\n"}};
    const CatalogueCompile compile = CompilerCatalogue(sources, "fr");
    REQUIRE(compile.erreurs.size() == 1);
    CHECK(compile.erreurs[0] == ErreurCatalogue{"b.tsv", 3, "number given twice: 1"});
}

TEST_CASE("CompilerCatalogue: the program's own lists compile in French and English") {
    const std::vector<SourceCatalogue> sources = doublures::TextesDuProjet();
    for (const char* colonne : {"fr", "en"}) {
        CAPTURE(colonne);
        const CatalogueCompile compile = CompilerCatalogue(sources, colonne);
        for (const ErreurCatalogue& erreur : compile.erreurs)
            MESSAGE(erreur.source << ':' << erreur.ligne << ' ' << erreur.texte);
        CHECK(compile.erreurs.empty());
        Memoire memoire{compile.octets};
        Catalogue catalogue;
        catalogue.Ouvrir(memoire.Lecteur());
        CHECK(catalogue.Message(message::TagBIRT) ==
              (colonne == std::string_view{"fr"} ? "Naissance" : "Birth"));
        CHECK_FALSE(catalogue.Message(message::ReglagesAbimes).empty());
    }
}

#include "records/FicheMotsCles.h"

#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "messages/Messages.h"
#include "messages/Mots.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

namespace {

constexpr auto Ind = TableLignes::Individu;
constexpr auto Mar = TableLignes::Mariage;

/// A new base in French: the eleven keywords, one person.
struct Bureau : doublures::SessionEssai {
    Bureau() {
        shell::Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Mots.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        dialogue.entendu.clear();
        jean = doublures::FamilleEssai{B()}.Creer(Sexe::Homme, "Martin", "Jean", "1820");
    }

    storage::Base& B() { return *session.base; }
    [[nodiscard]] std::vector<std::string> Libelles() {
        std::vector<std::string> libelles;
        for (const LigneMotCle& ligne : ListerMotsCles(session))
            libelles.push_back(ligne.libelle);
        return libelles;
    }
    [[nodiscard]] std::vector<std::string> Lignes(TableLignes table) {
        std::vector<std::string> libelles;
        for (const LigneFiche& ligne : ListerLignes(session, table))
            libelles.push_back(ligne.libelle);
        return libelles;
    }
    void Ecrire(std::string_view texte) {
        B().R_INDEX.MajIndex(jean, B().R_TEXTE.LireTexte(jean), texte);
        B().R_TEXTE.EcrireTexte(jean, texte);
    }
    [[nodiscard]] std::vector<std::string> MotsDe(NoMotCle k) {
        std::vector<std::string> mots;
        for (const NoIndex e : B().R_INDEX.ListeMots(k))
            if (!B().R_INDEX.PersonnesIndex(e).empty()) mots.push_back(B().R_INDEX.MotIndex(e));
        return mots;
    }
    /// The only message heard since.
    [[nodiscard]] NoMessage Entendu() {
        const NoMessage no = dialogue.entendu.size() == 1 ? dialogue.entendu[0].no : NoMessage{};
        dialogue.entendu.clear();
        return no;
    }

    NoOrdre jean;
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Mots-clés: a new base lists its eleven with their codes") {
    const auto lignes = ListerMotsCles(session);
    REQUIRE(lignes.size() == 11);
    CHECK(lignes[0].code == '|');
    CHECK(lignes[0].fixe);
    CHECK(lignes[5].libelle == "Profession");
    CHECK_FALSE(lignes[5].datable);
    CHECK(lignes[6].datable);
    CHECK(Lignes(Ind) ==
          std::vector<std::string>{"Profession", std::string{"Baptême"_1252}, "Inhumation"});
    CHECK(Lignes(Mar) == std::vector<std::string>{"Divorce"});
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: a code is one character that is no letter, digit or blank") {
    for (const std::string_view code :
         {"#", "A", "e", "\xE9", "5", "-", " ", "", "+*", ".", "'", "\t"}) {
        CAPTURE(code);
        CHECK_FALSE(AjouterMotCle(session, {std::string{code}, "Taille", false}));
        CHECK(Entendu() == message::CodeMotCleNonAutorise);
    }
    CHECK(Libelles().size() == 11);
    CHECK(AjouterMotCle(session, {"\xB5", "Taille", false}) == NoMotCle{12});
    CHECK(dialogue.entendu.empty());
    CHECK(B().motsCles.TypeDuSymbole('\xB5') == NoMotCle{12});
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: a known code, an empty or a known label are refused") {
    CHECK_FALSE(AjouterMotCle(session, {"|", "Taille", false}));
    CHECK(Entendu() == message::CodeMotCleDejaPris);
    CHECK_FALSE(AjouterMotCle(session, {"+", "  ", false}));
    CHECK(Entendu() == message::LibelleMotCleVide);
    // "Baptême" is the tag CHR, which is a keyword already.
    CHECK_FALSE(AjouterMotCle(session, {"+", std::string{"Baptême"_1252}, false}));
    CHECK(Entendu() == message::CodeMotCleDejaPris);
    REQUIRE(AjouterMotCle(session, {"+", "Acte", false}));
    CHECK_FALSE(AjouterMotCle(session, {"=", "Acte", false}));
    CHECK(Entendu() == message::LibelleMotCleDejaPris);
    CHECK_FALSE(AjouterMotCle(session, {"=", "Acte de notaire", false}));
    CHECK(Entendu() == message::LibelleMotCleSeConfond);
    CHECK_FALSE(AjouterMotCle(session, {"=", std::string(35, 'x'), false}));
    CHECK(Entendu() == message::LibelleMotCleNonAutorise);
    CHECK_FALSE(AjouterMotCle(session, {"=", "un#deux", false}));
    CHECK(Entendu() == message::LibelleMotCleNonAutorise);
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: a label of the language is stored neutral") {
    const NoMotCle k = AjouterMotCle(session, {"+", "Recensement", false});
    REQUIRE(k);
    CHECK(B().motsCles.LibelleType(k).libelle == "CENS");
    CHECK(ListerMotsCles(session).back().datable);
}

TEST_CASE_FIXTURE(Bureau,
                  "Mots-clés: a ticked index holds the words that were there and that come") {
    Ecrire("|Martin \xB6Jean +notaire");
    const NoMotCle k = AjouterMotCle(session, {"+", "Charge", true});
    CHECK(MotsDe(k) == std::vector<std::string>{"NOTAIRE"});
    const NoMotCle vide = AjouterMotCle(session, {"=", "Grade", true});
    CHECK(MotsDe(vide).empty());
    Ecrire("|Martin \xB6Jean +notaire =sergent");
    CHECK(MotsDe(vide) == std::vector<std::string>{"SERGENT"});
    SUBCASE("turned off, only the flag is dropped; turned on, the list is built") {
        CHECK(ModifierMotCle(session, k, {"+", "Charge", false}));
        CHECK_FALSE(B().motsCles.LibelleType(k).indexe);
        Ecrire("|Martin \xB6Jean +greffier =sergent");
        CHECK(ModifierMotCle(session, k, {"+", "Charge", true}));
        CHECK(MotsDe(k) == std::vector<std::string>{"GREFFIER"});
        CHECK(dialogue.entendu.empty());
    }
    SUBCASE("given up, the keyword stays without a list") {
        progression.annulerAu = progression.pas + 1;
        const NoMotCle autre = AjouterMotCle(session, {"<", "Arme", true});
        REQUIRE(autre);
        CHECK_FALSE(B().motsCles.LibelleType(autre).indexe);
    }
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: an update refuses what an addition refuses") {
    const NoMotCle k = AjouterMotCle(session, {"+", "Charge", false});
    CHECK_FALSE(ModifierMotCle(session, k, {"#", "Charge", false}));
    CHECK(Entendu() == message::CodeMotCleNonAutorise);
    CHECK_FALSE(ModifierMotCle(session, k, {"+", " ", false}));
    CHECK(Entendu() == message::LibelleMotCleVide);
    CHECK_FALSE(ModifierMotCle(session, k, {"|", "Charge", false}));
    CHECK(Entendu() == message::CodePrisParAutreMotCle);
    CHECK_FALSE(ModifierMotCle(session, NoMotCle{1}, {"=", "Nom", false}));
    CHECK(Entendu() == message::MotCleReserve);
    CHECK(ModifierMotCle(session, k, {"+", "Charge", false}));
    CHECK_FALSE(Entendu());
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: a new code follows into the lines of the sheet after a yes") {
    const NoMotCle k = AjouterMotCle(session, {"+", "Charge", true});
    REQUIRE(AjouterLigne(session, Ind, k, false));
    Ecrire("|Martin +notaire");
    SUBCASE("no") {
        CHECK_FALSE(ModifierMotCle(session, k, {"=", "Charge", true}));
        CHECK(B().motsCles.LibelleType(k).symbole == '+');
    }
    SUBCASE("yes") {
        dialogue.reponses = {shell::Reponse::Oui};
        CHECK(ModifierMotCle(session, k, {"=", "Charge", true}));
        CHECK(Lignes(Ind).back() == "Charge");
        CHECK(MotsDe(k).empty());
    }
    CHECK(Entendu() == message::ConfirmerChangerMotCle);
}

TEST_CASE_FIXTURE(Bureau,
                  "Mots-clés: a removed place is passed over and is the first to serve again") {
    const NoMotCle profession{6};
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(SupprimerMotCle(session, profession));
    CHECK(dialogue.entendu.back() == shell::Msg(message::ConfirmerSupprimerMotCle, "Profession"));
    CHECK(Libelles().size() == 10);
    CHECK(Lignes(Ind) == std::vector<std::string>{std::string{"Baptême"_1252}, "Inhumation"});
    CHECK(AjouterMotCle(session, {"+", "Charge", false}) == profession);
    CHECK(Libelles()[5] == "Charge");
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: those of names and places cannot be removed") {
    for (const LigneMotCle& ligne : ListerMotsCles(session)) {
        if (!ligne.fixe) continue;
        CHECK_FALSE(SupprimerMotCle(session, ligne.mot));
        CHECK(Entendu() == message::MotCleReserve);
    }
    CHECK(Libelles().size() == 11);
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: what a removed keyword wrote stays in the texts as a note") {
    Ecrire("|Martin\r\nOCCU \\sabotier\r\nUne note.");
    dialogue.reponses = {shell::Reponse::Oui};
    REQUIRE(SupprimerMotCle(session, NoMotCle{6}));
    CHECK(B().R_TEXTE.LireTexte(jean) == "|Martin\r\nOCCU \\sabotier\r\nUne note.");
    CHECK(storage::NoteDe(B(), jean) == "OCCU \\sabotier\r\nUne note.");
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: fifty at most") {
    std::string codes;
    for (int c = 0x21; c < 0xFF && codes.size() < 39; ++c) {
        const std::string code(1, static_cast<char>(c));
        if (AjouterMotCle(session, {code, "Mot " + std::to_string(100 + codes.size()), false}))
            codes += code;
    }
    REQUIRE(codes.size() == 39);
    dialogue.entendu.clear();
    CHECK(Libelles().size() == 50);
    bool refuse = false;
    for (int c = 0x21; c < 0xFF && !refuse; ++c) {
        const std::string code(1, static_cast<char>(c));
        CHECK_FALSE(AjouterMotCle(session, {code, "Encore", false}));
        refuse = Entendu() == message::MaximumMotsClesAtteint;
    }
    CHECK(refuse);
}

TEST_CASE_FIXTURE(Bureau, "Mots-clés: moving one changes the list and no text") {
    Ecrire("|Martin\r\nOCCU \\sabotier");
    const auto avant = Libelles();
    CHECK(DeplacerMotCle(session, NoMotCle{6}, 1) == NoMotCle{7});
    CHECK(Libelles()[6] == "Profession");
    CHECK(MotsDe(B().motsCles.TypeDuSymbole('|')) == std::vector<std::string>{"MARTIN"});
    CHECK(DeplacerMotCle(session, NoMotCle{7}, -1) == NoMotCle{6});
    CHECK(Libelles() == avant);
    CHECK_FALSE(DeplacerMotCle(session, NoMotCle{1}, -1));
    CHECK_FALSE(DeplacerMotCle(session, NoMotCle{11}, 1));
}

TEST_CASE_FIXTURE(Bureau, "Lignes: an eleventh does nothing, nor one that is there") {
    for (int i = 0; i < 8; ++i) {
        const NoMotCle k = AjouterMotCle(
            session, {std::string(1, "+=<>?!*&"[i]), "Ligne " + std::to_string(i), false});
        REQUIRE(k);
        CHECK(AjouterLigne(session, Ind, k, i % 2 == 0) == (i < 7));
    }
    CHECK(Lignes(Ind).size() == 10);
    CHECK_FALSE(AjouterLigne(session, Mar, NoMotCle{10}, true));
    CHECK_FALSE(AjouterLigne(session, Mar, NoMotCle{3}, true));
    CHECK(Lignes(Mar).size() == 1);
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Bureau, "Lignes: they move, go, and are in the file after a save") {
    CHECK(DeplacerLigne(session, Ind, 0, 1));
    CHECK_FALSE(DeplacerLigne(session, Ind, 0, -1));
    CHECK_FALSE(DeplacerLigne(session, Ind, 2, 1));
    CHECK(RetirerLigne(session, Ind, 2));
    CHECK_FALSE(RetirerLigne(session, Ind, 2));
    const NoMotCle k = AjouterMotCle(session, {"+", "Charge", false});
    CHECK(AjouterLigne(session, Mar, k, true));
    CHECK(shell::MnuEnregistrer(session));
    shell::MnuFermer(session);
    REQUIRE(shell::OuvrirChemin(session, dossier / "Mots.LGD"));
    REQUIRE(session.BaseOuverte());
    CHECK(Lignes(Ind) == std::vector<std::string>{std::string{"Baptême"_1252}, "Profession"});
    const auto mariage = ListerLignes(session, Mar);
    REQUIRE(mariage.size() == 2);
    CHECK(mariage[1].libelle == "Charge");
    CHECK(mariage[1].datee);
}

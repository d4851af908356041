#include "records/MotsUsuels.h"

#include "doublures/SessionEssai.h"
#include "shell/Demarrage.h"
#include "values/Texte1252.h"

#include <algorithm>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

namespace {

/// A session at its first start, in French.
struct Bureau : doublures::SessionEssai {
    Bureau() { shell::Demarrage(session); }

    [[nodiscard]] bool ALeMot(std::string_view rubrique, std::string_view mot) const {
        const auto mots = ListerMotsUsuels(session, rubrique);
        return std::ranges::find(mots, mot) != mots.end();
    }
    [[nodiscard]] bool ALaRubrique(std::string_view rubrique) const {
        const auto rubriques = ListerRubriques(session);
        return std::ranges::find(rubriques, rubrique) != rubriques.end();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Mots usuels: three rubriques stand, shown in the language in use") {
    CHECK(ListerRubriques(session).size() == 3);
    CHECK(session.parametres.Mots("Liste Rubriques") ==
          std::vector<std::string>{"TITL", "RELA", "EVEN"});
    CHECK(ALeMot("Événement"_1252, "Naissance"));
    CHECK(session.parametres.Mots("Rubrique EVEN").front() == "BIRT");
}

TEST_CASE_FIXTURE(Bureau, "Mots usuels: a word with outer blanks is stored trimmed") {
    CHECK(AjouterMotUsuel(session, "Événement"_1252, "  Tirage au sort "));
    CHECK(ALeMot("Événement"_1252, "Tirage au sort"));
    CHECK(session.parametres.Mots("Rubrique EVEN").back() == "Tirage au sort");
    SUBCASE("twice the same is once") {
        CHECK_FALSE(AjouterMotUsuel(session, "Événement"_1252, "Tirage au sort"));
    }
    SUBCASE("blanks alone and control characters are no word") {
        CHECK_FALSE(AjouterMotUsuel(session, "Événement"_1252, "   "));
        CHECK_FALSE(AjouterMotUsuel(session, "Événement"_1252, "a\nb"));
    }
    SUBCASE("no such rubrique") {
        CHECK_FALSE(AjouterMotUsuel(session, "Inconnue", "mot"));
    }
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Bureau, "Mots usuels: a word is deleted after a yes only") {
    SUBCASE("no") {
        dialogue.reponses = {shell::Reponse::Non};
        CHECK_FALSE(SupprimerMotUsuel(session, "Événement"_1252, "Naissance"));
        CHECK(ALeMot("Événement"_1252, "Naissance"));
    }
    SUBCASE("yes") {
        dialogue.reponses = {shell::Reponse::Oui};
        CHECK(SupprimerMotUsuel(session, "Événement"_1252, "Naissance"));
        CHECK_FALSE(ALeMot("Événement"_1252, "Naissance"));
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "Mots usuels: deleting a rubrique with words deletes its section at once") {
    CHECK(AjouterRubrique(session, " Métiers "_1252));
    CHECK(ALaRubrique("Métiers"_1252));
    CHECK(session.parametres.Valeur("Liste Rubriques", "Métiers", "absent") == "0");
    CHECK(AjouterMotUsuel(session, "Métiers"_1252, "sabotier"));
    CHECK_FALSE(AjouterRubrique(session, "Métiers"_1252));
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(SupprimerRubrique(session, "Métiers"_1252));
    CHECK_FALSE(ALaRubrique("Métiers"_1252));
    CHECK(session.parametres.Mots("Rubrique Métiers").empty());
    const auto sections = session.parametres.magasin.Sections();
    CHECK(std::ranges::find(sections, "Rubrique Métiers") == sections.end());
}

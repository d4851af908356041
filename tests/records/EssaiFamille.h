#pragma once

#include "doublures/Coherence.h"
#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "messages/Noms.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <string>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::records {

using shell::Reponse;
using enum shell::Reponse;

/// A new base in a started session. It fits together at the end of each test, and also while a
/// message or a question stands: the program may be saved or killed there.
class EssaiFamille : public doublures::SessionEssai, public doublures::FamilleEssai {
public:
    explicit EssaiFamille(TypeTri tri = TypeTri::Nom)
        : doublures::FamilleEssai{*NouvelleBase(*this, tri)}, base{*session.base} {
        dialogue.pendant = [this] { CHECK(doublures::Ecarts(base) == ""); };
    }
    ~EssaiFamille() { CHECK(doublures::Ecarts(base) == ""); }
    EssaiFamille(const EssaiFamille&) = delete;
    EssaiFamille& operator=(const EssaiFamille&) = delete;

    /// What was said and asked since the last call: "DemanderSiEpouseEstLaMere(Paul Noir, Anne
    /// Blanc)" in order.
    [[nodiscard]] std::vector<std::string> Dit() {
        std::vector<std::string> dits;
        for (const shell::Phrase& phrase : dialogue.entendu) {
            std::string dit{message::Nom(phrase.no)};
            if (!phrase.valeur.empty())
                dit += "(" + phrase.valeur + (phrase.valeur2.empty() ? "" : ", " + phrase.valeur2) +
                       ")";
            if (phrase.suite) dit.append("+").append(message::Nom(phrase.suite));
            dits.push_back(dit);
        }
        CHECK(dialogue.reponses.empty());
        dialogue.entendu.clear();
        dialogue.titres.clear();
        dialogue.questions.clear();
        dialogue.reponses.clear();
        return dits;
    }
    void Repondre(std::initializer_list<Reponse> reponses) { dialogue.reponses.assign(reponses); }

    /// "father mother" of a person, by number.
    [[nodiscard]] std::string ParentsDe(NoOrdre n) {
        return std::to_string(base.R_PERE.LireCellule(n).valeur) + ' ' +
               std::to_string(base.R_MERE.LireCellule(n).valeur);
    }
    [[nodiscard]] std::vector<NoOrdre> EnfantsDe(NoOrdre n) { return base.R_ENFANT.Elements(n); }

    storage::Base& base;

private:
    static storage::Base* NouvelleBase(doublures::SessionEssai& essai, TypeTri tri) {
        shell::Demarrage(essai.session);
        essai.session.TypeTri = tri;
        essai.dialogue.fichiers.emplace_back(essai.dossier / "Famille.LGD");
        shell::MnuNouveau(essai.session);
        REQUIRE(essai.session.BaseOuverte());
        REQUIRE(essai.session.base->entete.TypeTri == tri);
        essai.dialogue.entendu.clear();
        return essai.session.base.get();
    }
};

}  // namespace dorvane::records

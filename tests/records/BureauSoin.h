#pragma once

#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <string>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::records {

/// A new base that tests may damage, in a started session.
class BureauSoin : public doublures::SessionEssai, public doublures::FamilleEssai {
public:
    explicit BureauSoin(TypeTri tri = TypeTri::Naissance)
        : doublures::FamilleEssai{*NouvelleBase(*this, tri)} {}

    [[nodiscard]] storage::Base& B() const { return *session.base; }

    /// The messages told since the last call.
    [[nodiscard]] std::vector<NoMessage> Dit() {
        std::vector<NoMessage> messages;
        for (const shell::Phrase& phrase : dialogue.entendu)
            messages.push_back(phrase.no);
        dialogue.entendu.clear();
        return messages;
    }

private:
    static storage::Base* NouvelleBase(doublures::SessionEssai& essai, TypeTri tri) {
        shell::Demarrage(essai.session);
        essai.session.TypeTri = tri;
        essai.dialogue.fichiers.emplace_back(essai.dossier / "Famille.LGD");
        shell::MnuNouveau(essai.session);
        REQUIRE(essai.session.BaseOuverte());
        essai.dialogue.entendu.clear();
        essai.dialogue.annonces.clear();
        return essai.session.base.get();
    }
};

}  // namespace dorvane::records

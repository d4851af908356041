// Long random stories of editing: after each step, and while each question stands, the base fits
// together. Now and then it is saved, closed and opened, or given up as if the program had died.
// DORVANE_HISTOIRES runs that many more stories, from seed 100 on.
#include "doublures/Coherence.h"
#include "doublures/HistoireEssai.h"
#include "doublures/Inventaire.h"
#include "doublures/SessionEssai.h"
#include "messages/Noms.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <cstdlib>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane;

namespace {

constexpr int NbGestes = 1000;

/// A story with its base, told until something does not fit.
class Recit : public doublures::SessionEssai {
public:
    /// `libelles`: labels of links are changed as well, after which both sides may differ.
    Recit(std::uint32_t graine, TypeTri tri, bool libelles)
        : histoire_{*this, graine}, libelles_{libelles} {
        shell::Demarrage(session);
        session.TypeTri = tri;
        dialogue.fichiers.emplace_back(dossier / "Histoire.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        dialogue.pendant = [this] {
            dialogue.reponses.assign(1, histoire_.Repondre());
            Verifier("while a question stands");
        };
        Enregistrer();
    }

    [[nodiscard]] const storage::EnTete& EnTete() const { return session.base->entete; }

    /// What happened, and what is wrong; empty when all went well.
    [[nodiscard]] std::string Raconter() {
        for (int pas = 0; pas < NbGestes && faute_.empty(); ++pas) {
            dialogue.entendu.clear();
            dialogue.titres.clear();
            dialogue.questions.clear();
            const std::uint32_t sort = histoire_.Tirer(80);
            geste_ = std::to_string(pas) + ": ";
            if (sort < 3)
                Enregistrer();
            else if (sort == 3)
                Rouvrir();
            else if (sort == 4)
                Mourir();
            else
                geste_ += libelles_ && sort == 5 ? histoire_.ChangerLibelle() : histoire_.Agir();
            Verifier(geste_);
        }
        return faute_;
    }

private:
    void Verifier(std::string_view quand) {
        if (!faute_.empty()) return;
        std::string ecarts = doublures::Coherence{*session.base, {!libelles_}}.Ecarts();
        for (const auto& [incident, numero] : session.incidents)
            ecarts += "incident " + std::to_string(static_cast<int>(incident)) + '\n';
        if (ecarts.empty()) return;
        faute_ = std::string{quand} + " (" + geste_ + ")\n" + ecarts;
        for (const shell::Phrase& phrase : dialogue.entendu)
            faute_.append("said: ").append(message::Nom(phrase.no)) += ' ' + phrase.valeur + '\n';
    }
    void Enregistrer() {
        geste_ += "save";
        REQUIRE(session.base->Enregistrer());
        enregistree_ = storage::Inventaire{*session.base}.Texte();
    }
    void Ouvrir() {
        storage::ProgressionMuette muet;
        storage::ResultatOuverture ouverte =
            storage::OuvrirBase(disque, dossier / "Histoire.LGD", muet);
        REQUIRE(ouverte.etat == storage::Ouverture::Faite);
        session.PoserBase(std::move(ouverte.base));
        if (storage::Inventaire{*session.base}.Texte() != enregistree_)
            faute_ = geste_ + ": what was opened is not what was saved";
    }
    void Rouvrir() {
        Enregistrer();
        geste_ += " and open again";
        REQUIRE(session.base->Fermer());
        session.PoserBase(nullptr);
        Ouvrir();
    }
    void Mourir() {
        geste_ += "die";
        session.PoserBase(nullptr);
        Ouvrir();
    }

    doublures::HistoireEssai histoire_;
    bool libelles_;
    std::string geste_;
    std::string faute_;
    std::string enregistree_;
};

/// What is left of stories, so that they are known to have been eventful.
struct Bilan {
    std::uint32_t individus = 0;
    std::uint32_t supprimes = 0;
    std::uint32_t unions = 0;
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
};

void Raconter(std::uint32_t graine, Bilan& bilan) {
    const auto tri = static_cast<TypeTri>("120"[graine % 3]);
    CAPTURE(graine);
    CAPTURE(tri);
    Recit recit{graine, tri, graine % 4 == 0};
    CHECK(recit.Raconter() == "");
    bilan.individus += recit.EnTete().NbTriIndividus;
    bilan.supprimes += recit.EnTete().DernierIndividu - recit.EnTete().NbTriIndividus;
    bilan.unions += recit.EnTete().DernierMariage;
    bilan.evenements += recit.EnTete().NbTriEvenements;
    bilan.documents += recit.EnTete().NbTriDocuments;
}

}  // namespace

TEST_CASE("Whatever is done in whatever order, the base fits together at each step") {
    constexpr std::uint32_t Histoires = 6;
    Bilan bilan;
    for (std::uint32_t graine = 1; graine <= Histoires; ++graine)
        Raconter(graine, bilan);
    CHECK(bilan.individus > 30 * Histoires);
    CHECK(bilan.supprimes > 2 * Histoires);
    CHECK(bilan.unions > 10 * Histoires);
    CHECK(bilan.evenements > 10 * Histoires);
    CHECK(bilan.documents > 5 * Histoires);
    const char* plus = std::getenv("DORVANE_HISTOIRES");
    const auto autres = static_cast<std::uint32_t>(plus == nullptr ? 0 : std::atoi(plus));
    for (std::uint32_t graine = 100; graine < 100 + autres; ++graine)
        Raconter(graine, bilan);
}

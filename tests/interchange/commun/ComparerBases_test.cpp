// The comparison that the round trips rest on sees every kind of difference.
#include "doublures/ComparerBases.h"

#include "interchange/lgr/EssaiLgr.h"

#include <functional>
#include <string>
#include <vector>

using namespace dorvane;
using doublures::ComparerBases;
using doublures::EssaiLgr;

namespace {

/// Two bases that hold the same.
struct Jumelles : EssaiLgr {
    Jumelles() {
        const NoOrdre jean = F().Creer(Sexe::Homme, "Dupont", "Jean", "1820", "1890");
        const NoOrdre anne = F().Creer(Sexe::Femme, "Le Goff", "Anne", "1825");
        const NoOrdre luc = F().Creer(Sexe::Homme, "Dupont", "Luc", "1850");
        F().Creer(Sexe::Femme, "Dupont", "Eve", "1852");
        F().Parents(luc, jean, anne);
        F().Marier(jean, anne, "1848");
        F().Lier(jean, luc, "ami");
        F().Lier(luc, jean, "ami");
        B().R_LSTIMG.ModifierListe(luc, Document("Photo"), storage::ActionListe::Ajouter);
        Participer(Evenement(-20000, "CHR"), luc, "CHIL");
        B().R_INDEX.MajIndex(jean, {}, "|Dupont");
        B().R_TEXTE.EcrireTexte(jean, "|Dupont");
        Importer(Exporter());
        REQUIRE(ComparerBases{B(), *neuve}.Ecarts() == "");
    }
    void Voit(const std::string& quoi, const std::function<void(storage::Base&)>& changer) {
        changer(*neuve);
        CAPTURE(quoi);
        const std::string ecarts = ComparerBases{B(), *neuve}.Ecarts();
        CHECK(ecarts.find(quoi) != std::string::npos);
        // The other way round as well.
        CHECK(ComparerBases{*neuve, B()}.Ecarts() != "");
    }
};

constexpr NoOrdre Jean{1};
constexpr NoOrdre Luc{3};

}  // namespace

TEST_CASE_FIXTURE(Jumelles, "ComparerBases: fields of a person") {
    using storage::Base;
    SUBCASE("surname") {
        Voit("surname", [](Base& b) { b.R_NOM.EcrireNom(Luc, "Durand;Luc;"); });
    }
    SUBCASE("first name") {
        Voit("first name", [](Base& b) { b.R_NOM.EcrireNom(Luc, "Dupont;Lucien;"); });
    }
    SUBCASE("other name") {
        Voit("other name", [](Base& b) { b.R_NOM.EcrireNom(Luc, "Dupont;Luc;Max"); });
    }
    SUBCASE("days") {
        Voit("birth day", [](Base& b) { b.R_NOM.EcrireNom(Luc, "Dupont;Luc;;1/2;"); });
        Voit("death day", [](Base& b) { b.R_NOM.EcrireNom(Luc, "Dupont;Luc;;;1/2"); });
    }
    SUBCASE("years") {
        Voit("birth year", [](Base& b) { b.R_NAISS.EcrireCellule(Jean, "1821"); });
        Voit("death year", [](Base& b) { b.R_DECES.EcrireCellule(Jean, ""); });
    }
    SUBCASE("sex") {
        Voit("sex 3", [](Base& b) { b.R_SEXE.EcrireCellule(Luc, Sexe::Indetermine); });
    }
    SUBCASE("text") {
        Voit("text 1", [](Base& b) { b.R_TEXTE.EcrireTexte(Jean, "|Dupont "); });
    }
    SUBCASE("parents") {
        Voit("father", [](Base& b) { b.R_PERE.EcrireCellule(Luc, {}); });
        Voit("mother", [](Base& b) { b.R_MERE.EcrireCellule(Luc, Jean); });
    }
    SUBCASE("a person less") {
        Voit("person is missing 3", [](Base& b) { b.R_TRI.RetirerIndividu(Luc); });
    }
    SUBCASE("order") {
        Voit("order of persons", [](Base& b) {
            b.R_TRI.FixerRang(1, NoOrdre{2});
            b.R_TRI.FixerRang(2, NoOrdre{1});
        });
    }
}

TEST_CASE_FIXTURE(Jumelles, "ComparerBases: lists of a person") {
    using storage::Base;
    SUBCASE("children") {
        Voit("children 1", [](Base& b) {
            b.R_ENFANT.ModifierListe(Jean, NoOrdre{4}, storage::ActionListe::Ajouter);
        });
    }
    SUBCASE("unions") {
        Voit("unions 1", [](Base& b) { b.R_MARIAG.EcrireListe(Jean, {}); });
    }
    SUBCASE("documents") {
        Voit("documents 3", [](Base& b) { b.R_LSTIMG.EcrireListe(Luc, {}); });
    }
    SUBCASE("links") {
        Voit("links 1", [](Base& b) { b.R_LIEN.ChangerTexte(Jean, 1, "voisin"); });
    }
    SUBCASE("events") {
        Voit("events 3", [](Base& b) { b.R_LSTEVT.ChangerTexte(Luc, 1, "WITN"); });
    }
}

TEST_CASE_FIXTURE(Jumelles, "ComparerBases: unions") {
    using storage::Base;
    static constexpr NoMariage Un{1};
    SUBCASE("partners") {
        Voit("wife", [](Base& b) { b.R_EPOUSE.EcrireCellule(Un, NoOrdre{4}); });
        Voit("husband", [](Base& b) { b.R_EPOUX.EcrireCellule(Un, Luc); });
    }
    SUBCASE("years and text") {
        Voit("beginning", [](Base& b) { b.R_DEBMAR.EcrireCellule(Un, "1849"); });
        Voit("end", [](Base& b) { b.R_FINMAR.EcrireCellule(Un, "1870"); });
        Voit("text of union", [](Base& b) { b.R_TXTMAR.EcrireTexte(Un, "@Brest"); });
    }
    SUBCASE("one less") {
        Voit("union is missing", [](Base& b) { b.R_EPOUX.EcrireCellule(Un, {}); });
    }
    SUBCASE("one more") {
        Voit("union too many", [](Base& b) { b.R_EPOUX.EcrireCellule(b.NouveauMariage(), Luc); });
    }
}

TEST_CASE_FIXTURE(Jumelles, "ComparerBases: events and documents") {
    using storage::Base;
    static constexpr NoEvenement Un{1};
    SUBCASE("date and note") {
        Voit("date of event", [](Base& b) { b.R_EVT.EcrireEvt(Un, {.cleDate = 5}); });
        Voit("note of event", [](Base& b) { b.R_EVT.EcrireEvt(Un, {.note = "x"}); });
    }
    SUBCASE("words") {
        Voit("place of event", [](Base& b) {
            b.R_EVT.EcrireEvt(Un, {.description = storage::DescriptionEvt{"Brest", "", "CHR"}});
        });
        Voit("title of event", [](Base& b) {
            b.R_EVT.EcrireEvt(Un, {.description = storage::DescriptionEvt{"", "x", "CHR"}});
        });
        Voit("kind of event", [](Base& b) {
            b.R_EVT.EcrireEvt(Un, {.description = storage::DescriptionEvt{"", "", "BURI"}});
        });
    }
    SUBCASE("persons and documents") {
        Voit("persons of event", [](Base& b) {
            b.R_EVT.EcrireEvt(Un, {.liens = std::vector<storage::LienEvenement>{{Luc, "WITN"}}});
        });
        Voit("documents of event",
             [](Base& b) { b.R_EVT.EcrireEvt(Un, {.documents = std::vector{NoDocument{1}}}); });
    }
    SUBCASE("one less") {
        Voit("event is missing", [](Base& b) { b.R_TRI.RetirerEvt(Un); });
        Voit("document is missing", [](Base& b) { b.R_TRI.RetirerDocument(NoDocument{1}); });
    }
    SUBCASE("a document") {
        static constexpr NoDocument D{1};
        Voit("title of document", [](Base& b) { b.R_IMAGE.EcrireDoc(D, {"x", "", "", ""}); });
        Voit("file of document", [](Base& b) { b.R_IMAGE.EcrireDoc(D, {"Photo", "f", "", ""}); });
        Voit("kind of document", [](Base& b) { b.R_IMAGE.EcrireDoc(D, {"Photo", "", "t", ""}); });
        Voit("note of document", [](Base& b) { b.R_IMAGE.EcrireDoc(D, {"Photo", "", "", "n"}); });
    }
}

TEST_CASE_FIXTURE(Jumelles, "ComparerBases: what is of the whole base") {
    using storage::Base;
    SUBCASE("settings and description") {
        Voit("name setting 1", [](Base& b) { b.entete.OptParticules = true; });
        Voit("name setting 2", [](Base& b) { b.entete.OptPrenomUnique = true; });
        Voit("description", [](Base& b) { b.entete.DocBase = NoDocument{1}; });
    }
    SUBCASE("rows") {
        Voit("rows of persons", [](Base& b) { b.entete.SlotsIndividu[0].drapeau = '1'; });
        Voit("rows of unions", [](Base& b) { b.entete.SlotsMariage[1].symbole = '%'; });
    }
    SUBCASE("keywords") {
        Voit("symbol of keyword 6", [](Base& b) {
            b.motsCles.CreerType(NoMotCle{6}, {'!', "OCCU", true, {}});
        });
        Voit("label of keyword 6", [](Base& b) {
            b.motsCles.CreerType(NoMotCle{6}, {'\\', "Autre", true, {}});
        });
        Voit("index of keyword 6", [](Base& b) {
            b.motsCles.CreerType(NoMotCle{6}, {'\\', "OCCU", false, {}});
        });
    }
    SUBCASE("words") {
        Voit("words of keyword 1", [](Base& b) { b.R_INDEX.MajIndex(Jean, "|Dupont", "|Durand"); });
    }
    SUBCASE("counts") {
        Voit("number of persons", [](Base& b) {
            const NoOrdre n = b.NouvelIndividu();
            b.R_TRI.AjouterIndividu(n);
        });
    }
}

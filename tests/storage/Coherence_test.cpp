// The checker of bases is checked itself: each kind of damage is found and named.
#include "doublures/Coherence.h"

#include "doublures/DisqueMemoire.h"
#include "doublures/FamilleEssai.h"
#include "storage/Base.h"

#include <memory>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

/// A small family with one of everything.
struct Scene {
    Scene() {
        famille.Parents(luc, paul, anne);
        famille.Parents(zoe, paul, anne);
        famille.Lier(paul, luc, "ami");
        famille.Lier(luc, paul, "ami");
        base->R_INDEX.MajIndex(luc, "", "|Noir $Brest");
        base->R_TEXTE.EcrireTexte(luc, "|Noir $Brest");
        base->R_INDEX.MajIndex(paul, "", "@Brest");
        base->R_INDEX.MajIndex(anne, "", "@Brest");
        base->R_TXTMAR.EcrireTexte(mariage, "@Brest");
        Evenement(naissance, 10, "CHIL");
        Evenement(deces, 20, "DEAD");
        base->R_IMAGE.EcrireDoc(doc, {"A", "a.jpg", "", ""});
        base->R_IMAGE.EcrireDoc(doc2, {"B", "b.jpg", "", ""});
        base->R_TRI.AjouterDocument(doc);
        base->R_TRI.AjouterDocument(doc2);
        base->R_LSTIMG.ModifierListe(paul, doc, storage::ActionListe::Ajouter);
    }
    void Evenement(NoEvenement e, std::int32_t cle, const char* role) {
        PartiesEvt parties;
        parties.cleDate = cle;
        parties.note = "";
        parties.liens = {{luc, role}};
        parties.documents = {doc};
        parties.description = DescriptionEvt{"", "", "BIRT"};
        base->R_EVT.EcrireEvt(e, parties);
        base->R_TRI.AjouterEvt(e);
        base->R_LSTEVT.ModifierListe(luc, e, storage::ActionListe::Ajouter, role);
    }
    DisqueMemoire disque;
    std::unique_ptr<Base> base = NouvelleBase(disque, "/f.LGD", {TypeTri::Nom, false, false}).base;
    doublures::FamilleEssai famille{*base};
    NoOrdre paul = famille.Creer(Sexe::Homme, "Noir", "Paul", "1820");
    NoOrdre anne = famille.Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    NoOrdre luc = famille.Creer(Sexe::Homme, "Noir", "Luc", "1850");
    NoOrdre zoe = famille.Creer(Sexe::Femme, "Noir", "Eve", "1852");
    NoMariage mariage = famille.Marier(paul, anne, "1848");
    NoEvenement naissance = base->NouvelEvenement();
    NoEvenement deces = base->NouvelEvenement();
    NoDocument doc = base->NouveauDocument();
    NoDocument doc2 = base->NouveauDocument();
};

struct Degat {
    const char* attendu;
    void (*faire)(Scene& s);
};

constexpr Degat Degats[] = {
    {"sort table: no such person", [](Scene& s) { s.base->R_TRI.FixerRang(1, NoOrdre{99}); }},
    {"sort table: person twice", [](Scene& s) { s.base->R_TRI.FixerRang(1, s.luc); }},
    {"sort table: no such event", [](Scene& s) { s.base->R_TRI.FixerRang(1, NoEvenement{99}); }},
    {"sort table: event twice", [](Scene& s) { s.base->R_TRI.FixerRang(1, s.deces); }},
    {"sort table: no such document", [](Scene& s) { s.base->R_TRI.FixerRang(1, NoDocument{99}); }},
    {"sort table: document twice", [](Scene& s) { s.base->R_TRI.FixerRang(1, s.doc2); }},
    {"count of persons", [](Scene& s) { --s.base->entete.NbTriIndividus; }},
    {"count of events", [](Scene& s) { --s.base->entete.NbTriEvenements; }},
    {"count of documents", [](Scene& s) { --s.base->entete.NbTriDocuments; }},
    {"deleted person is not empty", [](Scene& s) { s.base->R_TRI.RetirerIndividu(s.zoe); }},
    {"parent is nobody", [](Scene& s) { s.base->R_TRI.RetirerIndividu(s.paul); }},
    {"sex of parent", [](Scene& s) { s.base->R_SEXE.EcrireCellule(s.paul, Sexe::Femme); }},
    {"child not once in the list",
     [](Scene& s) {
         s.base->R_ENFANT.ModifierListe(s.paul, s.luc, storage::ActionListe::Supprimer);
     }},
    {"child not once in the list",
     [](Scene& s) {
         s.base->R_ENFANT.ModifierListe(s.paul, s.luc, storage::ActionListe::Ajouter);
     }},
    {"its own ancestor", [](Scene& s) { s.base->R_PERE.EcrireCellule(s.paul, s.luc); }},
    {"same father and mother", [](Scene& s) { s.base->R_PERE.EcrireCellule(s.luc, s.anne); }},
    {"child in the list without a cell", [](Scene& s) { s.base->R_PERE.EcrireCellule(s.luc, {}); }},
    {"children out of order", [](Scene& s) { s.base->R_NAISS.EcrireCellule(s.luc, "1860"); }},
    {"no such union",
     [](Scene& s) {
         s.base->R_MARIAG.ModifierListe(s.luc, NoMariage{9}, storage::ActionListe::Ajouter);
     }},
    {"union twice",
     [](Scene& s) {
         s.base->R_MARIAG.ModifierListe(s.paul, s.mariage, storage::ActionListe::Ajouter);
     }},
    {"union in the list without a cell",
     [](Scene& s) { s.base->R_EPOUX.EcrireCellule(s.mariage, {}); }},
    {"union not once in the list",
     [](Scene& s) {
         s.base->R_MARIAG.ModifierListe(s.paul, s.mariage, storage::ActionListe::Supprimer);
     }},
    {"partner is nobody", [](Scene& s) { s.base->R_EPOUX.EcrireCellule(s.mariage, NoOrdre{9}); }},
    {"husband is a woman", [](Scene& s) { s.base->R_SEXE.EcrireCellule(s.paul, Sexe::Femme); }},
    {"wife is a man", [](Scene& s) { s.base->R_SEXE.EcrireCellule(s.anne, Sexe::Homme); }},
    {"union with oneself", [](Scene& s) { s.base->R_EPOUX.EcrireCellule(s.mariage, s.anne); }},
    {"removed union is not empty",
     [](Scene& s) {
         s.base->R_EPOUX.EcrireCellule(s.mariage, {});
         s.base->R_EPOUSE.EcrireCellule(s.mariage, {});
     }},
    {"link on one side",
     [](Scene& s) {
         s.base->R_LIEN.ModifierListe(s.luc, s.paul, storage::ActionListe::Supprimer, "ami");
     }},
    {"link twice",
     [](Scene& s) {
         s.base->R_LIEN.ModifierListe(s.luc, s.paul, storage::ActionListe::Ajouter, "ami");
     }},
    {"link with oneself",
     [](Scene& s) {
         s.base->R_LIEN.ModifierListe(s.luc, s.luc, storage::ActionListe::Ajouter, "ami");
     }},
    {"link with nobody",
     [](Scene& s) {
         s.base->R_LIEN.ModifierListe(s.luc, NoOrdre{9}, storage::ActionListe::Ajouter, "ami");
     }},
    {"person with a lost event", [](Scene& s) { s.base->R_TRI.RetirerEvt(s.deces); }},
    {"event and sort table", [](Scene& s) { s.base->R_EVT.EffacerEvt(s.deces); }},
    {"events of a person out of order",
     [](Scene& s) {
         PartiesEvt parties;
         parties.cleDate = 30;
         s.base->R_EVT.EcrireEvt(s.naissance, parties);
     }},
    {"event does not know its person",
     [](Scene& s) {
         s.base->R_LSTEVT.ModifierListe(s.zoe, s.deces, storage::ActionListe::Ajouter, "WITN");
     }},
    {"person does not know its event",
     [](Scene& s) {
         s.base->R_LSTEVT.ModifierListe(s.luc, s.deces, storage::ActionListe::Supprimer);
     }},
    {"person does not know its event",
     [](Scene& s) { s.base->R_LSTEVT.ChangerTexte(s.luc, 1, "WITN"); }},
    {"with a lost document", [](Scene& s) { s.base->R_TRI.RetirerDocument(s.doc); }},
    {"with a document twice",
     [](Scene& s) {
         s.base->R_LSTIMG.ModifierListe(s.paul, s.doc, storage::ActionListe::Ajouter);
     }},
    {"document without a record", [](Scene& s) { s.base->R_IMAGE.EffacerDoc(s.doc2); }},
    {"persons out of order", [](Scene& s) { s.base->R_NOM.EcrireNom(s.anne, "Zola;Anne"); }},
    {"documents out of order",
     [](Scene& s) {
         s.base->R_IMAGE.EcrireDoc(s.doc, {"C", "c.jpg", "", ""});
     }},
    {"words missing", [](Scene& s) { s.base->R_TEXTE.EcrireTexte(s.luc, "|Noir"); }},
    {"words missing", [](Scene& s) { s.base->R_TEXTE.EcrireTexte(s.luc, "|Noir $Brest $Lyon"); }},
    {"persons of a word", [](Scene& s) { s.base->R_TEXTE.EcrireTexte(s.zoe, "|Noir"); }},
    {"persons of a word", [](Scene& s) { s.base->R_EPOUX.EcrireCellule(s.mariage, {}); }},
    {"persons of a word out of order",
     [](Scene& s) { s.base->R_NAISS.EcrireCellule(s.paul, "1830"); }},
};

}  // namespace

TEST_CASE("Coherence: a whole base has nothing wrong, and each damage is named") {
    CHECK(doublures::Ecarts(*Scene{}.base) == "");
    for (const Degat& degat : Degats) {
        Scene scene;
        degat.faire(scene);
        const std::string ecarts = doublures::Ecarts(*scene.base);
        CAPTURE(degat.attendu);
        CAPTURE(ecarts);
        CHECK(ecarts.find(degat.attendu) != std::string::npos);
    }
}

TEST_CASE("Coherence: links of one side are right where labels have been changed") {
    const Scene scene;
    scene.base->R_LIEN.ModifierListe(NoOrdre{3}, NoOrdre{1}, storage::ActionListe::Supprimer,
                                     "ami");
    CHECK(doublures::Coherence{*scene.base, {.liensDoubles = false}}.Ecarts() == "");
}

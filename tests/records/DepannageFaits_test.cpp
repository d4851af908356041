// What a repair does to links, events, documents and the word index.
#include "doublures/Inventaire.h"
#include "records/ControleBase.h"
#include "records/EssaiDepannage.h"
#include "records/Individus.h"

#include <algorithm>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Bureau = EssaiDepannage;
using Numeros = std::vector<std::uint32_t>;

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Repair: links with nobody go, links on one side are made double") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre paul = Homme("Paul");
    Lier(jean, NoOrdre{900}, "ami");
    Lier(jean, paul, "voisin");
    CHECK(Depanner().size() == 2);
    CHECK(B().R_LIEN.NbElements(jean) == 1);
    CHECK(B().R_LIEN.TexteElement(paul, 1) == "voisin");
    Sain();
    // A label that was changed on one side is no damage.
    B().R_LIEN.ChangerTexte(paul, 1, "parrain");
    Depanner();
    CHECK(bilan.reparations == 0);
}

TEST_CASE_FIXTURE(Bureau, "Repair: events and documents against the lists of persons") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireDoc(d, {"Titre", "a.jpg", "", ""});
    B().R_TRI.AjouterDocument(d);
    B().R_LSTIMG.ModifierListe(jean, d, storage::ActionListe::Ajouter);
    B().R_LSTIMG.ModifierListe(jean, NoDocument{30000}, storage::ActionListe::Ajouter);
    const NoEvenement e = B().NouvelEvenement();
    B().R_EVT.EcrireEvt(e, {.cleDate = 5,
                            .liens = {{{jean, "WITN"}, {NoOrdre{800}, "WITN"}}},
                            .documents = {{d, NoDocument{77}}},
                            .description = storage::DescriptionEvt{"Brest", "", "MARR"}});
    B().R_TRI.AjouterEvt(e);
    B().R_LSTEVT.ModifierListe(anne, e, storage::ActionListe::Ajouter, "WIFE");
    B().R_LSTEVT.ModifierListe(anne, NoEvenement{31000}, storage::ActionListe::Ajouter, "WIFE");
    CHECK(Depanner().size() == 6);
    CHECK(B().R_LSTIMG.Elements(jean) == std::vector{d});
    CHECK(B().R_EVT.Documents(e) == std::vector{d});
    CHECK(B().R_EVT.Liens(e) ==
          std::vector<storage::LienEvenement>{{jean, "WITN"}, {anne, "WIFE"}});
    CHECK(B().R_LSTEVT.TexteElement(jean, 1) == "WITN");
    CHECK(B().R_LSTEVT.NbElements(anne) == 1);
    Sain();
}

TEST_CASE_FIXTURE(
    Bureau, "Repair: documents and events that persons name come back when their rank is lost") {
    const NoOrdre jean = Homme("Jean");
    const auto document = [&](const char* titre) {
        const NoDocument d = B().NouveauDocument();
        B().R_IMAGE.EcrireDoc(d, {titre, "a.jpg", "", "Une note"});
        B().R_TRI.AjouterDocument(d);
        return d;
    };
    const NoDocument abbaye = document("Abbaye");
    const NoDocument pont = document("Pont");
    const NoDocument zinc = document("Zinc");
    const NoDocument inutile = document("Inutile");
    const NoDocument efface = document("Moulin");
    std::vector<NoEvenement> actes;
    for (const std::int32_t date : {100, 300}) {
        const NoEvenement e = actes.emplace_back(B().NouvelEvenement());
        B().R_EVT.EcrireEvt(e, {.cleDate = date,
                                .liens = {{{jean, "WITN"}}},
                                .documents = {{zinc}},
                                .description = storage::DescriptionEvt{"Brest", "", "CENS"}});
        B().R_TRI.AjouterEvt(e);
        B().R_LSTEVT.ModifierListe(jean, e, storage::ActionListe::Ajouter, "WITN");
    }
    for (const NoDocument d : {abbaye, efface})
        B().R_LSTIMG.ModifierListe(jean, d, storage::ActionListe::Ajouter);
    B().R_IMAGE.EffacerDoc(efface);
    // Each rank of the documents names the second one, that of the events the later one.
    for (std::uint32_t rang = 1; rang <= 5; ++rang)
        B().R_TRI.FixerRang(rang, pont);
    B().R_TRI.FixerRang(1, actes[1]);
    Depanner();
    CHECK(B().R_TRI.evenements.Numeros() ==
          std::vector{static_cast<std::uint16_t>(actes[0].valeur),
                      static_cast<std::uint16_t>(actes[1].valeur)});
    // One that nobody names may be a deleted one.
    CHECK(B().R_TRI.documents.Numeros() == std::vector{static_cast<std::uint16_t>(abbaye.valeur),
                                                       static_cast<std::uint16_t>(pont.valeur),
                                                       static_cast<std::uint16_t>(zinc.valeur)});
    CHECK(B().entete.NbTriDocuments == 3);
    CHECK(B().entete.NbTriEvenements == 2);
    CHECK(B().R_LSTIMG.Elements(jean) == std::vector{abbaye});
    CHECK(B().R_EVT.Documents(actes[0]) == std::vector{zinc});
    CHECK(B().R_LSTEVT.NbElements(jean) == 2);
    B().R_IMAGE.EffacerDoc(inutile);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: a record in no rank that is nobody's, or garbage, stays away") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    // An event of Anne alone, and a document whose record has no end.
    const NoEvenement e = B().NouvelEvenement();
    B().R_EVT.EcrireEvt(e, {.cleDate = 5,
                            .liens = {{{anne, "WITN"}}},
                            .description = storage::DescriptionEvt{"Brest", "", "CENS"}});
    B().R_LSTEVT.ModifierListe(jean, e, storage::ActionListe::Ajouter, "WITN");
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireCellule(d, B().volume.Ajouter(std::string(40000, 'x')));
    B().R_LSTIMG.ModifierListe(jean, d, storage::ActionListe::Ajouter);
    Depanner();
    CHECK(B().R_TRI.evenements.Numeros().empty());
    CHECK(B().R_TRI.documents.Numeros().empty());
    CHECK(B().R_LSTEVT.NbElements(jean) == 0);
    CHECK(B().R_LSTIMG.NbElements(jean) == 0);
    Depanner();
    CHECK(bilan.reparations == 0);
}

TEST_CASE_FIXTURE(Bureau, "Repair: word lists that do not tell the texts are made anew") {
    const NoOrdre jean = Homme("Jean");
    EcrireTexteIndividu(session, jean, "$Brest ~Lyon");
    SUBCASE("a word is missing") {
        B().R_TEXTE.EcrireTexte(jean, "$Brest $Caen ~Lyon");
    }
    SUBCASE("a word is too many") {
        B().R_TEXTE.EcrireTexte(jean, "~Lyon");
    }
    SUBCASE("another person stands in the list") {
        const NoOrdre paul = Homme("Paul");
        B().R_INDEX.MajIndex(jean, "$Brest", "");
        B().R_INDEX.MajIndex(paul, "", "$Brest");
    }
    SUBCASE("the order is broken") {
        EcrireTexteIndividu(session, jean, "$Brest $Lyon ~Lyon");
        std::vector<NoIndex> mots = B().R_INDEX.ListeMots(NoMotCle{3});
        std::swap(mots[0], mots[1]);
        B().R_INDEX.EcrireListeMots(NoMotCle{3}, mots);
    }
    SUBCASE("an entry is dead") {
        B().R_INDEX.EcrireCelluleIndex(B().R_INDEX.ListeMots(NoMotCle{3})[0], {});
    }
    const std::vector<std::string> lignes = Depanner();
    REQUIRE(lignes.size() == 1);
    CHECK(lignes[0] == "Index\tListe de mots refaite : BIRT");
    Sain();
}

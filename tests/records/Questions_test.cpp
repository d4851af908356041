// What the user reads before something goes: who or what it is, what goes with it, and the
// question.
#include "records/Questions.h"

#include "records/AccordEvenements.h"
#include "records/EssaiFamille.h"
#include "records/FicheDocument.h"
#include "records/FicheEvenement.h"
#include "records/FicheMotsCles.h"
#include "records/Filiation.h"
#include "records/Individus.h"
#include "records/Liens.h"
#include "records/MotsUsuels.h"
#include "records/Unions.h"
#include "shell/Reglages.h"

#include <functional>
#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::records;

namespace {

struct Questions : EssaiFamille {
    NoOrdre paul = Creer(Sexe::Homme, "Noir", "Paul", "1820");
    NoOrdre anne = Creer(Sexe::Femme, "Blanc", "Anne", "1825");
    NoOrdre luc = Creer(Sexe::Homme, "Noir", "Luc", "1850");
    NoOrdre seul = Creer(Sexe::Homme, "Vert", "Ange", "1790");
    NoMariage mariage = Marier(paul, anne, "1849");

    Questions() { Parents(luc, paul, anne); }

    /// What is read in the language in use; answered by closing the box, which changes nothing.
    std::string Lue(const std::function<bool()>& action) {
        dialogue.questions.clear();
        CHECK_FALSE(action());
        REQUIRE(dialogue.questions.size() == 1);
        const shell::Question& question = dialogue.questions.back();
        CHECK(question.defaut != Oui);
        return TexteVersUtf8(session.catalogue.Composer(question.texte));
    }
    void Lire(const std::function<bool()>& action, const char* francais, const char* anglais) {
        CHECK(Lue(action) == francais);
        REQUIRE(shell::ChoisirLangue(session, "English"));
        CHECK(Lue(action) == anglais);
        REQUIRE(shell::ChoisirLangue(session, "Français"));
        static_cast<void>(Dit());
    }
    NoEvenement Mariage() {
        SaisieEvenement saisie;
        saisie.date = "4/5/1849";
        saisie.type = "MARR";
        saisie.liens = {{paul, "HUSB"}, {anne, "WIFE"}, {seul, "WITN"}};
        dialogue.reponses.assign(4, Non);
        static_cast<void>(ValiderEvenement(session, saisie));
        dialogue.reponses.clear();
        REQUIRE(saisie.evenement);
        return saisie.evenement;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Questions, "a person: the name, and what goes with the sheet") {
    Lire([this] { return SupprimerIndividu(session, seul); },
         "La fiche d'Ange Vert (o1790) sera supprimée, avec ses dates, ses lieux, ses rubriques et "
         "sa note.\nConfirmez-vous la suppression ?",
         "The sheet of Ange Vert (o1790) will be deleted, with its dates, its places, its rows and "
         "its note.\nDo you confirm the deletion?");
}

TEST_CASE_FIXTURE(Questions, "a person without a name is told by its number") {
    const NoOrdre sansNom = Creer(Sexe::Indetermine, "", "");
    Lire([this, sansNom] { return SupprimerIndividu(session, sansNom); },
         "La fiche numéro 5, qui n'a pas de nom, sera supprimée, avec ses dates, ses lieux, ses "
         "rubriques et sa note.\nConfirmez-vous la suppression ?",
         "Sheet number 5, which has no name, will be deleted, with its dates, its places, its rows "
         "and its note.\nDo you confirm the deletion?");
}

TEST_CASE_FIXTURE(Questions, "an event: what it is, whose, and how many sheets it leaves") {
    const NoEvenement e = Mariage();
    Lire([this, e] { return SupprimerEvenement(session, e); },
         "L'événement « Mariage, 4 mai 1849 : Paul Noir, Anne Blanc » sera supprimé, avec sa note. "
         "Nombre de personnes dont il quittera la fiche : 3.\nConfirmez-vous la suppression ?",
         "The event \"Marriage, 4 May 1849 : Paul Noir, Anne Blanc\" will be deleted, with its "
         "note. Number of persons whose sheet it will leave: 3.\nDo you confirm the deletion?");
}

TEST_CASE_FIXTURE(Questions, "a person in an event: who, in which role, and which event") {
    const NoEvenement e = Mariage();
    Lire([this, e] { return DelierPersonne(session, e, seul, "WITN"); },
         "Ange Vert (Témoin) ne sera plus dans l'événement « Mariage, 4 mai 1849 : Paul Noir, Anne "
         "Blanc ».\nConfirmez-vous la suppression ?",
         "Ange Vert (Witness) will no longer be in the event \"Marriage, 4 May 1849 : Paul Noir, "
         "Anne Blanc\".\nDo you confirm the deletion?");
}

TEST_CASE_FIXTURE(Questions, "a document: its title, and how many sheets and events lose it") {
    SaisieDocument saisie;
    saisie.valeurs.titre = "Acte";
    saisie.valeurs.fichier = "a.jpg";
    REQUIRE(ValiderDocument(session, saisie).etat == IssueDocument::Etat::Ecrit);
    const NoDocument document = saisie.document;
    REQUIRE(AttacherDocument(session, paul, document));
    REQUIRE(AttacherDocument(session, Mariage(), document));
    Lire([&] { return SupprimerDocument(session, document); },
         "Le document « Acte » sera supprimé de la base ; son fichier reste sur le disque. Nombre "
         "de fiches et d'événements qui le perdront : 2.\nConfirmez-vous la suppression ?",
         "The document \"Acte\" will be deleted from the database; its file stays on the disk. "
         "Number of sheets and events that will lose it: 2.\nDo you confirm the deletion?");
    Lire([&] { return DetacherDocument(session, paul, 1); },
         "Le document « Acte » sera détaché. Il reste dans la liste des documents.\nConfirmez-vous "
         "la suppression ?",
         "The document \"Acte\" will be detached. It stays in the list of documents.\nDo you "
         "confirm the deletion?");
}

TEST_CASE_FIXTURE(Questions, "relatives: who is no longer whose, and what stays") {
    Lire([this] { return RetirerParent(session, luc, Cote::Mere); },
         "Anne Blanc ne sera plus la mère de Luc Noir.\nConfirmez-vous la suppression ?",
         "Anne Blanc will no longer be the mother of Luc Noir.\nDo you confirm the deletion?");
    Lire([this] { return RetirerEnfant(session, paul, luc); },
         "Paul Noir ne sera plus le père de Luc Noir.\nConfirmez-vous la suppression ?",
         "Paul Noir will no longer be the father of Luc Noir.\nDo you confirm the deletion?");
    Lire(
        [this] { return RetirerUnion(session, mariage); },
        "L'union de Paul Noir et d'Anne Blanc sera supprimée, avec ses dates, son lieu et sa note. "
        "Les enfants gardent leurs parents.\nConfirmez-vous la suppression ?",
        "The union of Paul Noir and Anne Blanc will be removed, with its dates, its place and its "
        "note. The children keep their parents.\nDo you confirm the deletion?");
    REQUIRE(AjouterLien(session, paul, seul, "voisin"));
    Lire([this] { return RetirerLien(session, paul, 1); },
         "Le lien « voisin » avec Ange Vert sera supprimé pour les deux personnes.\nConfirmez-vous "
         "la suppression ?",
         "The link \"voisin\" with Ange Vert will be removed for both persons.\nDo you confirm the "
         "deletion?");
}

TEST_CASE_FIXTURE(Questions, "a parent in the place of another") {
    const NoOrdre autre = Creer(Sexe::Femme, "Rose", "Emma", "1826");
    Lire([this, autre] { return AttacherEnfant(session, autre, luc); },
         "Luc Noir a déjà un parent de ce sexe, qui sera remplacé.\nConfirmez-vous l'opération ?",
         "Luc Noir already has a parent of this sex, who will be replaced.\nDo you confirm this "
         "operation?");
}

TEST_CASE_FIXTURE(Questions, "words: which one, of which heading, and what stays in the texts") {
    REQUIRE(AjouterRubrique(session, "Terrains"));
    REQUIRE(AjouterMotUsuel(session, "Terrains", "pré"_1252));
    REQUIRE(AjouterMotUsuel(session, "Terrains", "bois"));
    Lire([this] { return SupprimerMotUsuel(session, "Terrains", "bois"); },
         "Le mot « bois » sera retiré de la rubrique « Terrains ». Ce qui est déjà écrit ne change "
         "pas.\nConfirmez-vous la suppression ?",
         "The word \"bois\" will be removed from the heading \"Terrains\". What is already written "
         "does not change.\nDo you confirm the deletion?");
    Lire([this] { return SupprimerRubrique(session, "Terrains"); },
         "La rubrique « Terrains » sera supprimée, avec ses mots. Nombre de mots : 2. Ce qui est "
         "déjà écrit ne change pas.\nConfirmez-vous la suppression ?",
         "The heading \"Terrains\" will be deleted, with its words. Number of words: 2. What is "
         "already written does not change.\nDo you confirm the deletion?");
    const NoMotCle mot = AjouterMotCle(session, {"=", "Terrain", false});
    REQUIRE(mot);
    Lire([this, mot] { return SupprimerMotCle(session, mot); },
         "Supprimer le mot-clé « Terrain » ? Ce qui est déjà écrit reste dans les textes.",
         "Delete the keyword \"Terrain\"? What is already written stays in the texts.");
}

#include "records/Individus.h"

#include "doublures/FicheEssai.h"
#include "messages/Dorvane.h"
#include "messages/Fiche.h"
#include "messages/Messages.h"
#include "records/AccordEvenements.h"
#include "records/Fiche.h"
#include "records/NomsAffiches.h"
#include "shell/Numerotation.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;
using shell::Msg;

namespace {

using Etat = IssueFiche::Etat;
using Phrases = std::vector<shell::Phrase>;

SaisieFiche Personne(std::string_view nom, std::string_view prenom, std::string_view annee,
                     Sexe sexe = Sexe::Homme) {
    SaisieFiche fiche;
    fiche.nom = nom;
    fiche.prenom = prenom;
    fiche.anneeNaissance = annee;
    fiche.sexe = sexe;
    return fiche;
}

struct Registre : doublures::FicheEssai {
    NoOrdre Creer(SaisieFiche fiche) {
        const IssueFiche issue = CreerIndividu(session, fiche);
        REQUIRE(issue.etat == Etat::Ecrite);
        return issue.individu;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Registre,
                  "CreerIndividu: a whole person is written, in the table and the index") {
    SaisieFiche fiche = Personne("Dupont", "Jean Marie", "1820");
    fiche.jourMoisNaissance = "12 mars";
    fiche.lieuNaissance = "Saint Malo";
    fiche.anneeDeces = "1890";
    fiche.jourMoisDeces = "vers 2 mars";
    fiche.lieuDeces = "Rennes";
    fiche.note = "Une note";
    const IssueFiche issue = CreerIndividu(session, fiche);
    CHECK(issue.etat == Etat::Ecrite);
    CHECK(issue.individu == NoOrdre{1});
    CHECK(fiche.individu == NoOrdre{1});
    CHECK(dialogue.entendu.empty());
    CHECK(B().R_NOM.LireTexte(NoOrdre{1}) == "Dupont;Jean Marie;;12/3;ABT 2 MAR");
    CHECK(B().R_SEXE.LireCellule(NoOrdre{1}) == Sexe::Homme);
    CHECK(B().R_NAISS.LireCellule(NoOrdre{1}) == "1820");
    CHECK(B().R_DECES.LireCellule(NoOrdre{1}) == "1890");
    CHECK(B().R_TEXTE.LireTexte(NoOrdre{1}) ==
          "|Dupont ¶Jean.Marie $Saint.Malo ~Rennes\r\nUne note"_1252);
    CHECK(Ordre() == std::vector{NoOrdre{1}});
    CHECK(session.PersonneEnCours == NoOrdre{1});
    CHECK(B().marques.ModifTriIndividus);
    VerifierIndex();
    CHECK_FALSE(FicheModifiee(session, fiche));
}

TEST_CASE_FIXTURE(Registre,
                  "CreerIndividu: a birth year that is missing is told, and blocks nothing") {
    SaisieFiche fiche = Personne("Dupont", "Jean", "");
    const IssueFiche issue = CreerIndividu(session, fiche);
    CHECK(issue.etat == Etat::Ecrite);
    CHECK(issue.champ == Champ::AnneeNaissance);
    CHECK(dialogue.entendu == Phrases{Msg(message::InfoAnneeNaissanceVide)});
}

TEST_CASE_FIXTURE(Registre,
                  "CreerIndividu: a person without any name is refused, nothing is written") {
    SaisieFiche fiche = Personne("", "  ", "1820");
    IssueFiche issue = CreerIndividu(session, fiche);
    CHECK(issue.etat == Etat::Refusee);
    CHECK(issue.champ == Champ::Nom);
    CHECK(dialogue.entendu == Phrases{Msg(message::PersonneSansNomNiPrenom)});
    CHECK(B().entete.DernierIndividu == 0);
    CHECK_FALSE(fiche.individu);
    dialogue.entendu.clear();

    fiche.anneeNaissance.clear();
    issue = CreerIndividu(session, fiche);
    CHECK(dialogue.entendu ==
          Phrases{Msg(message::InfoAnneeNaissanceVide), Msg(message::PersonneSansNomNiPrenom)});
    CHECK(issue.champ == Champ::Nom);
    // The third name alone is none.
    fiche.autrePrenom = "Jeannot";
    CHECK(CreerIndividu(session, fiche).etat == Etat::Refusee);
    CHECK(B().entete.DernierIndividu == 0);
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: the 64001st person is refused before anything else") {
    B().FixerDernierIndividu(storage::MaxIndividus);
    SaisieFiche fiche = Personne("", "", "");
    CHECK(CreerIndividu(session, fiche).etat == Etat::Refusee);
    CHECK(dialogue.entendu == Phrases{Msg(message::MaximumPersonnesBaseAtteint)});
    CHECK(B().entete.DernierIndividu == storage::MaxIndividus);
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: the 64000th person is made") {
    B().FixerDernierIndividu(storage::MaxIndividus - 1);
    CHECK(Creer(Personne("Dupont", "Jean", "1820")) == NoOrdre{storage::MaxIndividus});
    CHECK(NomAffiche(session, NoOrdre{storage::MaxIndividus}) == "Jean Dupont");
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: the 32001st person gets the base its further zone") {
    B().FixerDernierIndividu(storage::SeuilSuite);
    CHECK_FALSE(B().entete.PosSuiteIndividus);
    Creer(Personne("Dupont", "Jean", "1820"));
    CHECK(B().entete.PosSuiteIndividus);
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: the numberings of the two reference persons grow") {
    session.deCujus[0].individu = Creer(Personne("Dupont", "Jean", "1820"));
    shell::NumeroterDeCujus(session, 1);
    Creer(Personne("Dupont", "Anne", "1822", Sexe::Femme));
    CHECK(session.deCujus[0].sosa.size() == 3);
    CHECK(session.deCujus[1].sosa.empty());
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: a sex that is not determined leaves the cell blank") {
    const NoOrdre n = Creer(Personne("Dupont", "Camille", "1820", Sexe::Indetermine));
    CHECK(B().R_SEXE.LireCellule(n) == Sexe::Vide);
    SaisieFiche fiche = ChargerFiche(session, n);
    CHECK(fiche.sexe == Sexe::Indetermine);
    CHECK_FALSE(FicheModifiee(session, fiche));
    CHECK(ValiderFiche(session, fiche).etat == Etat::Ecrite);
    CHECK(B().R_SEXE.LireCellule(n) == Sexe::Indetermine);
}

TEST_CASE_FIXTURE(Registre,
                  "CreerIndividu: names typed in one field are spread, also in the index") {
    SaisieFiche fiche = Personne("Dupont;Jean;Jeannot", "", "1820");
    CHECK(CreerIndividu(session, fiche).etat == Etat::Ecrite);
    CHECK(fiche.nom == "Dupont");
    CHECK(fiche.prenom == "Jean");
    CHECK(fiche.autrePrenom == "Jeannot");
    CHECK(B().R_TEXTE.LireTexte(fiche.individu) == "|Dupont ¶Jean"_1252);
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: the table is kept in the order of the base") {
    SUBCASE("by birth year") {
        Creer(Personne("Zola", "Anne", "1800"));
        Creer(Personne("Abel", "Jean", "1900"));
        Creer(Personne("Martin", "Luc", ""));
        CHECK(Ordre() == std::vector{NoOrdre{3}, NoOrdre{1}, NoOrdre{2}});
    }
    SUBCASE("by name") {
        B().entete.TypeTri = TypeTri::Nom;
        Creer(Personne("Zola", "Anne", "1800"));
        Creer(Personne("Abel", "Jean", "1900"));
        CHECK(Ordre() == std::vector{NoOrdre{2}, NoOrdre{1}});
    }
    SUBCASE("by number") {
        B().entete.TypeTri = TypeTri::Creation;
        Creer(Personne("Zola", "Anne", "1800"));
        Creer(Personne("Abel", "Jean", "1700"));
        CHECK(Ordre() == std::vector{NoOrdre{1}, NoOrdre{2}});
    }
}

TEST_CASE_FIXTURE(Registre,
                  "CreerIndividu: names that would not be read back whole are refused, with the "
                  "field to shorten") {
    SaisieFiche fiche = Personne("Dupont", std::string(1000, 'j'), "1820");
    const IssueFiche issue = CreerIndividu(session, fiche);
    CHECK(issue.etat == Etat::Refusee);
    CHECK(issue.champ == Champ::Prenom);
    CHECK(dialogue.entendu == Phrases{Msg(message::NomsEtDatesTropLongs, "1000", "Prénoms"_1252)});
    CHECK(B().entete.DernierIndividu == 0);
    // "Dupont;" and ";" are the eight other bytes.
    fiche.prenom.resize(992);
    CHECK(CreerIndividu(session, fiche).etat == Etat::Ecrite);
    REQUIRE(B().Enregistrer());
    B().InitColonnes();
    CHECK(ChargerFiche(session, fiche.individu).prenom == fiche.prenom);
}

TEST_CASE_FIXTURE(Registre, "CreerIndividu: marks of records in any field harm no record") {
    SaisieFiche fiche = Personne("Du#pont", "Jean;#", "18#0");
    fiche.jourMoisNaissance = "12;3#";
    fiche.lieuNaissance = "A#B";
    fiche.note = "# un\n{\\rtf1 #";
    fiche.slots[0] = {"#", "#", "#"};
    CHECK(CreerIndividu(session, fiche).etat == Etat::Ecrite);
    const NoOrdre suivante = Creer(Personne("Martin", "Luc", "1850"));
    REQUIRE(B().Enregistrer());
    B().InitColonnes();
    CHECK(B().R_NOM.NomDe(fiche.individu) == "Du-pont");
    CHECK(B().R_NOM.LireNom(fiche.individu).jourMoisDeces.empty());
    CHECK(B().R_NOM.NomDe(suivante) == "Martin");
    CHECK(B().R_TEXTE.LireTexte(fiche.individu).find('#') == std::string_view::npos);
    VerifierIndex();
}

TEST_CASE_FIXTURE(Registre,
                  "ChangerAnneeNaissance: table, lists of both parents and word lists follow") {
    const NoOrdre pere = Creer(Personne("Dupont", "Jean", "1800"));
    const NoOrdre mere = Creer(Personne("Martin", "Anne", "1802", Sexe::Femme));
    const NoOrdre ainee = Creer(Personne("Dupont", "Luce", "1825", Sexe::Femme));
    const NoOrdre cadet = Creer(Personne("Dupont", "Paul", "1830"));
    for (const NoOrdre enfant : {ainee, cadet})
        F().Parents(enfant, pere, mere);
    const NoMariage m = F().Marier(cadet, ainee);
    EcrireTexteMariage(session, m, "12/3 @Brest");

    ChangerAnneeNaissance(session, cadet, "1822");
    CHECK(B().R_NAISS.LireCellule(cadet) == "1822");
    CHECK(Ordre() == std::vector{pere, mere, cadet, ainee});
    CHECK(B().R_ENFANT.Elements(pere) == std::vector{cadet, ainee});
    CHECK(B().R_ENFANT.Elements(mere) == std::vector{cadet, ainee});
    VerifierIndex();

    ChangerAnneeNaissance(session, cadet, "");
    CHECK(B().R_ENFANT.Elements(mere) == std::vector{cadet, ainee});
    CHECK(Ordre().front() == cadet);
    VerifierIndex();
    VerifierOrdres();
}

TEST_CASE_FIXTURE(Registre, "ChangerAnneeNaissance: the same year changes nothing") {
    const NoOrdre n = Creer(Personne("Dupont", "Jean", "80"));
    REQUIRE(B().Enregistrer());
    ChangerAnneeNaissance(session, n, " 80 ");
    CHECK_FALSE(B().marques.Modifie());
}

TEST_CASE_FIXTURE(Registre, "EcrireTexteMariage: the index follows for both partners") {
    const NoOrdre epoux = Creer(Personne("Dupont", "Jean", "1800"));
    const NoOrdre epouse = Creer(Personne("Martin", "Anne", "1802", Sexe::Femme));
    const NoMariage m = F().Marier(epoux, epouse);
    EcrireTexteMariage(session, m, "12/3 @Brest");
    VerifierIndex();
    const NoMotCle lieux = B().motsCles.TypeDuSymbole('@');
    CHECK(B().R_INDEX.PersonnesIndex(B().R_INDEX.ChercherMot(lieux, "BREST")) ==
          std::vector{epoux, epouse});
    EcrireTexteMariage(session, m, "12/3 @Lyon");
    CHECK_FALSE(B().R_INDEX.ChercherMot(lieux, "BREST"));
    EcrireTexteMariage(session, m, "");
    CHECK(B().R_TXTMAR.LireTexte(m).empty());
    VerifierIndex();
}

namespace {

struct Suppression : Registre {
    NoOrdre jean = Creer(Personne("Dupont", "Jean", "1800"));
    NoOrdre anne = Creer(Personne("Martin", "Anne", "1802", Sexe::Femme));
    shell::Phrase titre = Msg(message::TitreSuppression);

    void Refusee(NoMessage message) {
        CHECK_FALSE(SupprimerIndividu(session, jean));
        CHECK(dialogue.entendu == Phrases{Msg(message)});
        CHECK(dialogue.titres == Phrases{titre});
        CHECK(B().R_NOM.NomDe(jean) == "Dupont");
        dialogue.entendu.clear();
        dialogue.titres.clear();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Suppression, "SupprimerIndividu: what holds a person is told in its order") {
    // From the last test to the first: the one added last is the one that is told.
    B().R_MERE.EcrireCellule(jean, anne);
    Refusee(message::SuppressionImpossibleMere);
    B().R_PERE.EcrireCellule(jean, anne);
    Refusee(message::SuppressionImpossiblePere);
    B().R_LSTEVT.EcrireListe(jean, std::string("\0\1\0\0\0\0", 6));
    Refusee(message::SuppressionImpossibleEvenements);
    B().R_LSTIMG.ModifierListe(jean, NoDocument{1}, storage::ActionListe::Ajouter);
    Refusee(message::SuppressionImpossibleDocuments);
    F().Lier(jean, anne, "GODP");
    Refusee(message::SuppressionImpossibleLiens);
    F().Marier(jean, anne);
    Refusee(message::SuppressionImpossibleUnion);
    B().R_ENFANT.ModifierListe(jean, anne, storage::ActionListe::Ajouter);
    Refusee(message::SuppressionImpossibleEnfants);
}

TEST_CASE_FIXTURE(Suppression,
                  "SupprimerIndividu: asks with the name, and a no leaves all as it is") {
    CHECK_FALSE(SupprimerIndividu(session, jean));
    CHECK(dialogue.entendu == Phrases{{message::ConfirmerSupprimerPersonne, "Jean Dupont (o1800)",
                                       "", message::ConfirmerSuppression}});
    CHECK(dialogue.titres == Phrases{titre});
    CHECK(dialogue.questions[0].defaut == shell::Reponse::Non);
    CHECK(Ordre() == std::vector{jean, anne});
}

TEST_CASE_FIXTURE(Suppression,
                  "SupprimerIndividu: the record is emptied and leaves table and index, the number "
                  "is not given again") {
    session.PersonneEnCours = jean;
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(SupprimerIndividu(session, jean));
    CHECK(Ordre() == std::vector{anne});
    CHECK(B().entete.NbTriIndividus == 1);
    CHECK(B().entete.DernierIndividu == 2);
    CHECK(B().R_SEXE.LireCellule(jean) == Sexe::Vide);
    CHECK(B().R_NAISS.LireCellule(jean).empty());
    CHECK(B().R_NOM.LireTexte(jean).empty());
    CHECK(B().R_TEXTE.LireTexte(jean).empty());
    CHECK(session.PersonneEnCours == anne);
    VerifierIndex();
    CHECK(Creer(Personne("Dupont", "Luc", "1810")) == NoOrdre{3});
}

TEST_CASE_FIXTURE(Suppression,
                  "SupprimerIndividu: of the last in the order, the one before is current") {
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(SupprimerIndividu(session, anne));
    CHECK(session.PersonneEnCours == jean);
}

TEST_CASE_FIXTURE(Suppression,
                  "SupprimerIndividu: the last person of all is told, nobody is current") {
    dialogue.reponses = {shell::Reponse::Oui, shell::Reponse::Oui};
    CHECK(SupprimerIndividu(session, anne));
    dialogue.entendu.clear();
    CHECK(SupprimerIndividu(session, jean));
    REQUIRE(dialogue.entendu.size() == 2);
    CHECK(dialogue.entendu[1] == Msg(message::InfoPlusAucunePersonne));
    CHECK_FALSE(session.PersonneEnCours);
    CHECK(Ordre().empty());
}

TEST_CASE_FIXTURE(Suppression, "SupprimerIndividu: a reference person who goes is no longer one") {
    session.deCujus[1].individu = jean;
    shell::NumeroterDeCujus(session, 2);
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(SupprimerIndividu(session, jean));
    CHECK_FALSE(session.deCujus[1].individu);
    CHECK(session.deCujus[1].libelle == "{...}");
    CHECK(session.deCujus[1].sosa.empty());
}

TEST_CASE_FIXTURE(Suppression, "SupprimerIndividu: what is gone is gone after save and opening") {
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(SupprimerIndividu(session, jean));
    const std::filesystem::path chemin = session.CheminBase;
    REQUIRE(shell::Clore(session));
    REQUIRE(shell::OuvrirChemin(session, chemin));
    CHECK(Ordre() == std::vector{anne});
    VerifierIndex();
}

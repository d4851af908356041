#include "records/Fiche.h"

#include "doublures/FicheEssai.h"
#include "messages/Fiche.h"
#include "messages/Messages.h"
#include "records/AccordEvenements.h"
#include "records/Individus.h"
#include "records/Liens.h"
#include "records/TexteFiche.h"
#include "shell/Numerotation.h"
#include "values/Texte1252.h"

#include <filesystem>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;
using shell::Msg;

namespace {

using Etat = IssueFiche::Etat;
using Phrases = std::vector<shell::Phrase>;

struct Foyer : doublures::FicheEssai {
    Foyer() {
        SaisieFiche fiche;
        fiche.nom = "Dupont";
        fiche.prenom = "Jean";
        fiche.sexe = Sexe::Homme;
        fiche.anneeNaissance = "1820";
        fiche.jourMoisNaissance = "12 mars";
        fiche.lieuNaissance = "Saint Malo";
        fiche.anneeDeces = "1890";
        jean = Inscrire(fiche);
        SaisieFiche epouse;
        epouse.nom = "Martin";
        epouse.prenom = "Anne";
        epouse.sexe = Sexe::Femme;
        epouse.anneeNaissance = "1825";
        anne = Inscrire(epouse);
    }

    NoOrdre Inscrire(SaisieFiche fiche) {
        const IssueFiche issue = CreerIndividu(session, fiche);
        REQUIRE(issue.etat == Etat::Ecrite);
        return issue.individu;
    }
    SaisieFiche Fiche(NoOrdre n) { return ChargerFiche(session, n); }
    IssueFiche Valider(SaisieFiche fiche) { return ValiderFiche(session, fiche); }
    /// Nothing waits for a commit any more.
    void Poser() { REQUIRE(B().Enregistrer()); }

    NoOrdre jean;
    NoOrdre anne;
};

}  // namespace

TEST_CASE_FIXTURE(Foyer,
                  "ChargerFiche: stored values, dates as shown, places and note of the text") {
    EcrireTexteIndividu(session, jean,
                        "|Dupont ¶Jean $Saint.Malo ~Rennes\r\n\r\nUne note\r\n"_1252);
    const SaisieFiche fiche = Fiche(jean);
    CHECK(fiche.individu == jean);
    CHECK(fiche.nom == "Dupont");
    CHECK(fiche.jourMoisNaissance == "12 mars");
    CHECK(fiche.anneeNaissance == "1820");
    CHECK(fiche.lieuNaissance == "Saint Malo");
    CHECK(fiche.lieuDeces == "Rennes");
    CHECK(fiche.note == "Une note");
    CHECK(fiche.sexe == Sexe::Homme);
    CHECK_FALSE(fiche.mariage);
}

TEST_CASE_FIXTURE(Foyer, "ChargerFiche: a price in the note is no birth place") {
    EcrireTexteIndividu(session, anne, "|Martin ¶Anne\r\nLoyer 5$par.an ~cher"_1252);
    CHECK(Fiche(anne).lieuNaissance.empty());
    CHECK(Fiche(anne).lieuDeces.empty());
}

TEST_CASE_FIXTURE(Foyer,
                  "ChargerFiche: nobody, numbers out of reach and no base give empty fields") {
    CHECK(ChargerFiche(session, {}) == SaisieFiche{});
    CHECK(ChargerFiche(session, NoOrdre{99}) == SaisieFiche{});
    REQUIRE(shell::Clore(session));
    CHECK(ChargerFiche(session, jean) == SaisieFiche{});
    SaisieFiche fiche;
    fiche.individu = jean;
    CHECK(ValiderFiche(session, fiche).etat == Etat::Refusee);
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: an untouched sheet writes nothing") {
    Poser();
    const IssueFiche issue = Valider(Fiche(jean));
    CHECK(issue.etat == Etat::Inchangee);
    CHECK(issue.individu == jean);
    CHECK_FALSE(B().marques.Modifie());
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Foyer,
                  "ValiderFiche: what was typed comes back, and the index is that of the texts") {
    SaisieFiche fiche = Fiche(jean);
    fiche.nom = "du Pont";
    fiche.prenom = "Jean Paul";
    fiche.autrePrenom = "Jeannot";
    fiche.jourMoisNaissance = "vers 2 mars";
    fiche.jourMoisDeces = "3 avril";
    fiche.lieuDeces = "Pont Croix";
    fiche.slots[1] = {"12 mai", "1850", "Brest"};
    fiche.note = "Une note\r\nde deux lignes";
    CHECK(FicheModifiee(session, fiche));
    B().marques.AffichagePerime = false;
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(B().marques.AffichagePerime);
    Poser();
    B().InitColonnes();
    CHECK(Fiche(jean) == fiche);
    CHECK_FALSE(FicheModifiee(session, fiche));
    VerifierIndex();
    VerifierOrdres();
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a rich note comes back byte for byte") {
    SaisieFiche fiche = Fiche(jean);
    fiche.note = "{\\rtf1\\ansi\\deff0 {\\b Jean} \\'e9tait l\\'e0.\\par}";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(Fiche(jean).note == fiche.note);
    VerifierIndex();
}

TEST_CASE_FIXTURE(Foyer,
                  "ValiderFiche: a slot whose date has no year commits and reloads unchanged") {
    SaisieFiche fiche = Fiche(jean);
    fiche.slots[1] = {"12 mars", "", ""};
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(Fiche(jean).slots[1] == storage::ValeurSlot{"12 mars", "", ""});
    CHECK(Valider(Fiche(jean)).etat == Etat::Inchangee);
}

TEST_CASE_FIXTURE(Foyer,
                  "ValiderFiche: the birth year that is missing is told, and the rest is written") {
    SaisieFiche fiche = Fiche(jean);
    fiche.anneeNaissance = " ";
    fiche.prenom = "Luc";
    const IssueFiche issue = Valider(fiche);
    CHECK(issue.etat == Etat::Ecrite);
    CHECK(issue.champ == Champ::AnneeNaissance);
    CHECK(dialogue.entendu == Phrases{Msg(message::InfoAnneeNaissanceVide)});
    CHECK(B().R_NAISS.LireCellule(jean).empty());
    CHECK(B().R_NOM.PrenomDe(jean) == "Luc");
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a sheet with a birth year and no name is refused whole") {
    Poser();
    SaisieFiche fiche = Fiche(jean);
    fiche.nom.clear();
    fiche.prenom.clear();
    fiche.anneeNaissance = "1900";
    const IssueFiche issue = Valider(fiche);
    CHECK(issue.etat == Etat::Refusee);
    CHECK(issue.champ == Champ::Nom);
    CHECK(dialogue.entendu == Phrases{Msg(message::PersonneSansNomNiPrenom)});
    CHECK_FALSE(B().marques.Modifie());
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: names too long for their record are refused whole") {
    Poser();
    SaisieFiche fiche = Fiche(jean);
    fiche.autrePrenom = std::string(999, 'x');
    CHECK(Valider(fiche).champ == Champ::AutrePrenom);
    CHECK(dialogue.entendu ==
          Phrases{Msg(message::NomsEtDatesTropLongs, "1000", "Autres prénoms"_1252)});
    CHECK_FALSE(B().marques.Modifie());
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: the sex changes while there is neither child nor union") {
    SaisieFiche fiche = Fiche(jean);
    fiche.sexe = Sexe::Femme;
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(B().R_SEXE.LireCellule(jean) == Sexe::Femme);
    fiche.sexe = Sexe::Indetermine;
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(B().R_SEXE.LireCellule(jean) == Sexe::Indetermine);
}

TEST_CASE_FIXTURE(Foyer,
                  "ValiderFiche: the sex of a person with a union stays, even without a spouse") {
    SUBCASE("a union without a spouse") {
        F().Marier(jean, {});
    }
    SUBCASE("a child") {
        F().Parents(anne, jean, {});
    }
    Poser();
    SaisieFiche fiche = Fiche(jean);
    fiche.sexe = Sexe::Femme;
    fiche.prenom = "Jeanne";
    const IssueFiche issue = ValiderFiche(session, fiche);
    CHECK(issue.etat == Etat::Refusee);
    CHECK(issue.champ == Champ::Sexe);
    CHECK(dialogue.entendu == Phrases{Msg(message::SexeNonModifiable)});
    // The old option is set again; what else was typed stays in its field, unwritten.
    CHECK(fiche.sexe == Sexe::Homme);
    CHECK(fiche.prenom == "Jeanne");
    CHECK_FALSE(B().marques.Modifie());
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a blank sex cell becomes \"I\", also for a parent") {
    B().R_SEXE.EcrireCellule(jean, Sexe::Vide);
    F().Parents(anne, jean, {});
    CHECK(Valider(Fiche(jean)).etat == Etat::Ecrite);
    CHECK(B().R_SEXE.LireCellule(jean) == Sexe::Indetermine);
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a ';' in a name moves words to the next field") {
    SaisieFiche fiche = Fiche(jean);
    SUBCASE("one in the surname") {
        fiche.nom = "Dupont;Luc";
        CHECK(ValiderFiche(session, fiche).etat == Etat::Ecrite);
        CHECK(fiche.nom == "Dupont");
        CHECK(fiche.prenom == "Luc");
        CHECK(fiche.autrePrenom == "Jean");
    }
    SUBCASE("two in the surname: the second moves again") {
        fiche.nom = "Dupont;Luc;Lucas";
        CHECK(ValiderFiche(session, fiche).etat == Etat::Ecrite);
        CHECK(fiche.prenom == "Luc");
        CHECK(fiche.autrePrenom == "Lucas;Jean");
        // What stands behind a ';' of the last name begins the next field of the record.
        CHECK(Fiche(jean).autrePrenom == "Lucas");
    }
    SUBCASE("the whole line in the first field") {
        fiche.nom = "Dupont;Luc;Lucas;1/5;2/6";
        fiche.prenom.clear();
        fiche.jourMoisNaissance.clear();
        CHECK(ValiderFiche(session, fiche).etat == Etat::Ecrite);
        CHECK(Fiche(jean).jourMoisNaissance == "1er mai");
        CHECK(Fiche(jean).jourMoisDeces == "2 juin");
    }
    VerifierIndex();
    VerifierOrdres();
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a new name or year moves the person once in the table") {
    const auto placer = [this](TypeTri tri) {
        B().entete.TypeTri = tri;
        REQUIRE(B().R_TRI.TrierIndividus(session.progression));
    };
    SUBCASE("by year, a new year") {
        placer(TypeTri::Naissance);
        SaisieFiche fiche = Fiche(jean);
        fiche.anneeNaissance = "1830";
        CHECK(Valider(fiche).etat == Etat::Ecrite);
        CHECK(Ordre() == std::vector{anne, jean});
    }
    SUBCASE("by year, a new name under the same year") {
        placer(TypeTri::Naissance);
        SaisieFiche autre = Fiche(anne);
        autre.anneeNaissance = "1820";
        CHECK(Valider(autre).etat == Etat::Ecrite);
        CHECK(Ordre() == std::vector{jean, anne});
        SaisieFiche fiche = Fiche(jean);
        fiche.nom = "Zola";
        CHECK(Valider(fiche).etat == Etat::Ecrite);
        CHECK(Ordre() == std::vector{anne, jean});
    }
    SUBCASE("by name, a new name and a new year at once") {
        placer(TypeTri::Nom);
        SaisieFiche fiche = Fiche(jean);
        fiche.nom = "Zola";
        fiche.anneeNaissance = "1700";
        CHECK(Valider(fiche).etat == Etat::Ecrite);
        CHECK(Ordre() == std::vector{anne, jean});
    }
    SUBCASE("by number, nothing moves") {
        placer(TypeTri::Creation);
        SaisieFiche fiche = Fiche(jean);
        fiche.nom = "Zola";
        fiche.anneeNaissance = "1900";
        CHECK(Valider(fiche).etat == Etat::Ecrite);
        CHECK(Ordre() == std::vector{jean, anne});
    }
    VerifierOrdres();
    VerifierIndex();
    CHECK(B().entete.NbTriIndividus == 2);
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a change that sorts the same leaves the table untouched") {
    Poser();
    SaisieFiche fiche = Fiche(jean);
    fiche.nom = "DUPONT";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK_FALSE(B().marques.ModifTriIndividus);
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: only the year of a child changes: it moves in both lists") {
    SaisieFiche enfant;
    enfant.nom = "Dupont";
    enfant.prenom = "Luce";
    enfant.anneeNaissance = "1850";
    const NoOrdre luce = Inscrire(enfant);
    enfant.prenom = "Paul";
    enfant.anneeNaissance = "1852";
    const NoOrdre paul = Inscrire(enfant);
    for (const NoOrdre n : {luce, paul})
        F().Parents(n, jean, anne);
    SaisieFiche fiche = Fiche(paul);
    fiche.anneeNaissance = "1848";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(B().R_ENFANT.Elements(jean) == std::vector{paul, luce});
    CHECK(B().R_ENFANT.Elements(anne) == std::vector{paul, luce});
    VerifierIndex();
    VerifierOrdres();
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: the year of a child among 200 changes, and all 200 stay") {
    SaisieFiche enfant;
    enfant.nom = "Dupont";
    std::vector<NoOrdre> enfants;
    for (int i = 0; i < 200; ++i) {
        enfant.anneeNaissance = std::to_string(1600 + i);
        enfants.push_back(Inscrire(enfant));
        F().Parents(enfants.back(), jean, {});
    }
    SaisieFiche fiche = Fiche(enfants[0]);
    fiche.anneeNaissance = "1900";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(B().R_ENFANT.NbElements(jean) == 200);
    CHECK(B().R_ENFANT.ElementListe(jean, 200) == enfants[0]);
}

TEST_CASE_FIXTURE(
    Foyer, "ValiderFiche: after a change of the flags an untouched sheet writes its text anew") {
    SaisieFiche fiche = Fiche(jean);
    fiche.prenom = "Jean Paul";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    B().entete.OptPrenomUnique = true;
    session.indexationFaite = false;
    CHECK(Valider(Fiche(jean)).etat == Etat::Ecrite);
    CHECK(B().R_TEXTE.LireTexte(jean) == "|Dupont ¶Jean Paul $Saint.Malo"_1252);
    CHECK(B().R_NOM.LireTexte(jean) == "Dupont;Jean Paul;;12/3;");
    VerifierIndex();
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: the caption of a reference person follows its name") {
    session.deCujus[0].individu = jean;
    shell::NumeroterDeCujus(session, 1);
    SaisieFiche fiche = Fiche(jean);
    fiche.prenom = "Luc";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(session.deCujus[0].libelle == "[Dupont Luc]");
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: the union of the sheet, its years, text and index") {
    const NoMariage m = F().Marier(jean, anne);
    SaisieFiche fiche = Fiche(jean);
    fiche.mariage = ChargerUnion(session, m);
    fiche.mariage->jourMois = "15 juin";
    fiche.mariage->debut = "1845";
    fiche.mariage->fin = "1880";
    fiche.mariage->lieu = "La Rochelle";
    fiche.mariage->slots[0] = {"", "1845", "Brest"};
    fiche.mariage->note = "Contrat chez le notaire";
    CHECK(FicheModifiee(session, fiche));
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    CHECK(B().R_DEBMAR.LireCellule(m) == "1845");
    CHECK(B().R_FINMAR.LireCellule(m) == "1880");
    CHECK(B().R_TXTMAR.LireTexte(m).starts_with("15/6 @La.Rochelle\r\n"));
    CHECK(ChargerUnion(session, m) == *fiche.mariage);
    CHECK_FALSE(FicheModifiee(session, fiche));
    VerifierIndex();
    Poser();
    CHECK(Valider(fiche).etat == Etat::Inchangee);
    CHECK_FALSE(B().marques.Modifie());
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a union that is no longer the person's is not written") {
    const NoMariage m = F().Marier(jean, anne);
    B().R_MARIAG.ModifierListe(jean, m, storage::ActionListe::Supprimer);
    SaisieFiche fiche = Fiche(jean);
    fiche.mariage = ChargerUnion(session, m);
    fiche.mariage->debut = "1845";
    CHECK(Valider(fiche).etat == Etat::Inchangee);
    CHECK(B().R_DEBMAR.LireCellule(m).empty());
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: the label of the link in edit") {
    F().Lier(jean, anne, "MARR");
    SaisieFiche fiche = Fiche(jean);
    fiche.lien = ChargerLien(session, jean, 1);
    CHECK(fiche.lien->libelle == "Mariage");
    SUBCASE("a new one is stored on this side") {
        fiche.lien->libelle = "Voisin";
        CHECK(FicheModifiee(session, fiche));
        CHECK(Valider(fiche).etat == Etat::Ecrite);
        CHECK(B().R_LIEN.TexteElement(jean, 1) == "Voisin");
    }
    SUBCASE("the same is not written") {
        Poser();
        CHECK(Valider(fiche).etat == Etat::Inchangee);
        CHECK_FALSE(B().marques.Modifie());
    }
    SUBCASE("an empty one stops at its turn: what comes before is written") {
        fiche.lien->libelle = "  ";
        fiche.prenom = "Luc";
        const IssueFiche issue = Valider(fiche);
        CHECK(issue.etat == Etat::Refusee);
        CHECK(issue.champ == Champ::Lien);
        CHECK(dialogue.entendu == Phrases{Msg(message::LibelleLienVide)});
        CHECK(B().R_NOM.PrenomDe(jean) == "Luc");
        CHECK(B().R_LIEN.TexteElement(jean, 1) == "MARR");
    }
    SUBCASE("one that would be cut is refused before anything is written") {
        Poser();
        fiche.lien->libelle = std::string(50, 'x');
        fiche.prenom = "Luc";
        CHECK(Valider(fiche).champ == Champ::Lien);
        CHECK(dialogue.entendu.size() == 1);
        CHECK_FALSE(B().marques.Modifie());
    }
    SUBCASE("one that would say the same as another link is refused") {
        REQUIRE(AjouterLien(session, jean, B().R_LIEN.ElementListe(jean, 1), "Parrain"));
        Poser();
        fiche.lien->libelle = "Parrain";
        CHECK(Valider(fiche).champ == Champ::Lien);
        CHECK(dialogue.entendu.size() == 1);
        CHECK(B().R_LIEN.TexteElement(jean, 1) == "MARR");
    }
    SUBCASE("a rank that is gone is passed over") {
        fiche.lien->rang = 7;
        fiche.lien->libelle.clear();
        CHECK(Valider(fiche).etat == Etat::Inchangee);
    }
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: a new person is made, then it is that person's sheet") {
    SaisieFiche fiche;
    fiche.nom = "Dupont";
    fiche.sexe = Sexe::Femme;
    CHECK(FicheModifiee(session, fiche));
    const IssueFiche issue = ValiderFiche(session, fiche);
    CHECK(issue.etat == Etat::Ecrite);
    CHECK(issue.individu == NoOrdre{3});
    CHECK(fiche.individu == NoOrdre{3});
    CHECK(dialogue.entendu == Phrases{Msg(message::InfoAnneeNaissanceVide)});
    fiche.prenom = "Luce";
    CHECK(ValiderFiche(session, fiche).individu == NoOrdre{3});
    CHECK(B().entete.DernierIndividu == 3);
}

TEST_CASE_FIXTURE(Foyer, "FicheModifiee: blanks at the ends and kinds of line end do not count") {
    SaisieFiche fiche = Fiche(jean);
    fiche.note = "deux\r\nlignes";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    fiche.note = "deux\nlignes\n\n";
    fiche.nom = " Dupont ";
    CHECK_FALSE(FicheModifiee(session, fiche));
    fiche.note = "deux lignes";
    CHECK(FicheModifiee(session, fiche));
    CHECK_FALSE(FicheModifiee(session, SaisieFiche{}));
}

TEST_CASE_FIXTURE(Foyer, "ValiderFiche: saved, the file opens to the same sheet") {
    SaisieFiche fiche = Fiche(jean);
    fiche.lieuDeces = "Rennes";
    fiche.note = "Une note";
    CHECK(Valider(fiche).etat == Etat::Ecrite);
    const std::filesystem::path chemin = session.CheminBase;
    REQUIRE(shell::Clore(session));
    REQUIRE(shell::OuvrirChemin(session, chemin));
    CHECK(Fiche(jean) == fiche);
    VerifierIndex();
    VerifierOrdres();
}

TEST_CASE_FIXTURE(Foyer,
                  "FratrieDe: the other children of both parents by year, with who is shared") {
    SaisieFiche enfant;
    enfant.nom = "Dupont";
    std::vector<NoOrdre> enfants;
    for (const char* annee : {"1850", "1848", "1860"}) {
        enfant.anneeNaissance = annee;
        enfants.push_back(Inscrire(enfant));
    }
    F().Parents(enfants[0], jean, anne);
    F().Parents(enfants[1], jean, anne);
    F().Parents(enfants[2], {}, anne);
    CHECK(FratrieDe(session, enfants[0]) ==
          std::vector<Fratrie>{{enfants[1], true, true}, {enfants[2], false, true}});
    CHECK(FratrieDe(session, jean).empty());
}

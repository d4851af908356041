#include "records/FicheEvenement.h"

#include "messages/Messages.h"
#include "records/AccordEvenements.h"
#include "records/EssaiFamille.h"
#include "values/Octets.h"

#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Etat = IssueEvenement::Etat;
using Mots = std::vector<std::string>;

/// Louis and Rose Martin, and Paul, who is no child of theirs yet.
struct Scene : EssaiFamille {
    NoOrdre louis = Creer(Sexe::Homme, "Martin", "Louis", "1790");
    NoOrdre rose = Creer(Sexe::Femme, "Blanc", "Rose", "1795");
    NoOrdre paul = Creer(Sexe::Homme, "Martin", "Paul", "1820");

    /// Saves an event and answers its number.
    NoEvenement Evenement(std::string_view date, std::string_view type,
                          std::vector<storage::LienEvenement> liens = {}) {
        SaisieEvenement saisie;
        saisie.date = date;
        saisie.type = type;
        saisie.liens = std::move(liens);
        static_cast<void>(ValiderEvenement(session, saisie));
        REQUIRE(saisie.evenement);
        return saisie.evenement;
    }
    std::vector<std::uint32_t> Tri() {
        std::vector<std::uint32_t> tri;
        for (std::uint32_t rang = 1; rang <= base.entete.NbTriEvenements; ++rang)
            tri.push_back(base.R_TRI.EvtAuRang(rang).valeur);
        return tri;
    }
    std::vector<std::uint32_t> EvtsDe(NoOrdre n) {
        std::vector<std::uint32_t> evenements;
        for (std::size_t k = 1; k <= base.R_LSTEVT.NbElements(n); ++k)
            evenements.push_back(base.R_LSTEVT.ElementListe(n, k).valeur);
        return evenements;
    }
    /// Nothing was appended and no mark is set.
    void Oublier() {
        base.marques.ModifBase = base.marques.ModifTriEvenements = false;
        base.marques.ModifTriIndividus = base.marques.ModifTriDocuments = false;
        fin = base.volume.FinFichier();
    }
    [[nodiscard]] bool Intacte() const {
        return !base.marques.Modifie() && base.volume.FinFichier() == fin;
    }
    std::uint32_t fin = 0;
};

}  // namespace

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: an empty date, a bad date and a missing kind are refused in "
                  "this order, and nothing is written") {
    SaisieEvenement saisie = NouvelEvenement(paul, "CENS");
    Oublier();
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Date});
    saisie.date = "   ";
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Date});
    for (const char* date : {"1820", "3/1820", "30 février 1820", "32/1/1820", "12 mars"}) {
        saisie.date = Utf8VersTexte(date).octets;
        CAPTURE(date);
        CHECK(ValiderEvenement(session, saisie) ==
              IssueEvenement{Etat::Refuse, ChampEvenement::Date});
    }
    saisie.date = "12 mars 1820";
    saisie.type = " ";
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Type});
    CHECK(Dit() == Mots{"DateEvenementVide", "DateEvenementVide", "DateEvenementInvalide",
                        "DateEvenementInvalide", "DateEvenementInvalide", "DateEvenementInvalide",
                        "DateEvenementInvalide", "TypeEvenementVide"});
    CHECK(Intacte());
    CHECK_FALSE(saisie.evenement);
    CHECK(base.entete.DernierEvenement == 0);
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: the 29th of February of a leap year is a date") {
    CHECK(LigneDe(session, Evenement("29 février 1820"_1252, "CENS", {{paul, "MAIN"}})).date ==
          "29 février 1820"_1252);
    SaisieEvenement saisie = NouvelEvenement(paul, "MAIN");
    saisie.date = "29/2/1821";
    saisie.type = "CENS";
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Refuse);
    CHECK(Dit() == Mots{"DateEvenementInvalide"});
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: a year of two digits is never stored as a year below 100") {
    SaisieEvenement saisie = NouvelEvenement(paul, "MAIN");
    saisie.date = "31/12/99";
    saisie.type = "CENS";
    REQUIRE(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(LigneDe(session, saisie.evenement).date == "31 décembre 1999"_1252);
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: a new event opened from a person is linked, numbered, sorted "
                  "and counted") {
    SaisieEvenement saisie = NouvelEvenement(paul, "MAIN");
    saisie.date = "1er mars 1841";
    saisie.type = "CENS";
    saisie.lieu = "Saint-Malo";
    saisie.libelle = "Rôle d'équipage"_1252;
    saisie.note = "Feuillet 12";
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Ecrit, ChampEvenement::Aucun});
    CHECK(saisie.evenement == NoEvenement{1});
    CHECK(base.entete.DernierEvenement == 1);
    CHECK(base.entete.NbTriEvenements == 1);
    CHECK(base.marques.ModifTriEvenements);
    CHECK(base.marques.AffichagePerime);
    CHECK(EvtsDe(paul) == std::vector<std::uint32_t>{1});
    CHECK(base.R_LSTEVT.TexteElement(paul, 1) == "MAIN");
    CHECK(Dit().empty());
    CHECK(EvenementsDe(session, paul) ==
          std::vector<LigneEvenement>{{NoEvenement{1}, "MAIN", "1er mars 1841", "Recensement",
                                       "Saint-Malo", std::string{"Rôle d'équipage"_1252}}});
    CHECK(ResumeEvenement(session, NoEvenement{1}) ==
          "Recensement, Rôle d'équipage, 1er mars 1841, Saint-Malo : Paul Martin"_1252);
    // What was saved is what is loaded.
    CHECK(ChargerEvenement(session, NoEvenement{1}) == saisie);
    CHECK_FALSE(EvenementModifie(session, saisie));
}

TEST_CASE_FIXTURE(Scene, "EvenementModifie: of a new event, all but the person it was opened for") {
    SaisieEvenement pourPaul = NouvelEvenement(paul, "");
    CHECK_FALSE(EvenementModifie(session, pourPaul));
    SUBCASE("taken out, nothing is left to lose") {
        pourPaul.liens.clear();
        CHECK_FALSE(EvenementModifie(session, pourPaul));
    }
    SUBCASE("a second role of the person") {
        pourPaul.liens.push_back({paul, "WITN"});
        CHECK(EvenementModifie(session, pourPaul));
    }
    SUBCASE("another person instead") {
        pourPaul.liens.front().individu = louis;
        CHECK(EvenementModifie(session, pourPaul));
    }
    SUBCASE("one person in an event opened for nobody") {
        SaisieEvenement pourNul = NouvelEvenement({}, "");
        CHECK_FALSE(EvenementModifie(session, pourNul));
        pourNul.liens.push_back({paul, "MAIN"});
        CHECK(EvenementModifie(session, pourNul));
    }
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: an event that did not change costs no byte") {
    SaisieEvenement saisie =
        ChargerEvenement(session, Evenement("12 mars 1841", "CENS", {{paul, "MAIN"}}));
    Oublier();
    // The same day in another form is no change either.
    saisie.date = "12/3/1841";
    CHECK_FALSE(EvenementModifie(session, saisie));
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Inchange);
    CHECK(Intacte());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: changing only the comment leaves sort table and lists "
                  "untouched") {
    SaisieEvenement saisie =
        ChargerEvenement(session, Evenement("12 mars 1841", "CENS", {{paul, "MAIN"}}));
    const Position liste = base.R_LSTEVT.LireCellule(paul);
    Oublier();
    saisie.note = "Vu aux archives";
    CHECK(EvenementModifie(session, saisie));
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(base.R_EVT.NoteEvt(saisie.evenement) == "Vu aux archives");
    CHECK_FALSE(base.marques.ModifTriEvenements);
    CHECK(base.R_LSTEVT.LireCellule(paul) == liste);
    saisie.note.clear();
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(base.R_EVT.NoteEvt(saisie.evenement).empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: another date moves the event in the sort table and in the "
                  "lists of its persons") {
    const NoEvenement premier = Evenement("1/1/1830", "CENS", {{paul, "MAIN"}});
    const NoEvenement second = Evenement("1/1/1840", "CENS", {{paul, "MAIN"}});
    SaisieEvenement saisie = ChargerEvenement(session, premier);
    saisie.date = "1/1/1850";
    CHECK(EvenementModifie(session, saisie));
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(Tri() == std::vector<std::uint32_t>{second.valeur, premier.valeur});
    CHECK(EvtsDe(paul) == std::vector<std::uint32_t>{second.valeur, premier.valeur});
    CHECK(base.entete.NbTriEvenements == 2);
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: equal dates stand in order of arrival") {
    const NoEvenement a = Evenement("1/1/1830", "CENS", {{paul, "MAIN"}});
    const NoEvenement b = Evenement("1/1/1830", "CENS", {{paul, "MAIN"}});
    CHECK(Tri() == std::vector<std::uint32_t>{a.valeur, b.valeur});
    CHECK(EvtsDe(paul) == std::vector<std::uint32_t>{a.valeur, b.valeur});
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: a marriage without a husband is stored, told, and stays "
                  "open") {
    SaisieEvenement saisie = NouvelEvenement(rose, "WIFE");
    saisie.date = "4/5/1815";
    saisie.type = "MARR";
    CHECK(ValiderEvenement(session, saisie) ==
          IssueEvenement{Etat::Incomplet, ChampEvenement::Liens});
    CHECK(Dit() == Mots{"RoleNonAttribueOuInadapte"});
    CHECK(base.R_EVT.Liens(saisie.evenement).size() == 1);
    CHECK(Tri() == std::vector<std::uint32_t>{1});
    REQUIRE(RolesManquants(session, saisie).size() == 1);
    CHECK(RolesManquants(session, saisie)[0].label == "HUSB");
    // The second save is of the same event.
    saisie.liens.push_back({louis, "HUSB"});
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(base.entete.DernierEvenement == 1);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: a role must fit the sex of its person") {
    SaisieEvenement saisie;
    saisie.date = "4/5/1815";
    saisie.type = "MARR";
    saisie.liens = {{rose, "HUSB"}, {louis, "WIFE"}};
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Incomplet);
    CHECK(Dit() == Mots{"RoleNonAttribueOuInadapte"});
    // Nobody of an unknown sex fits a role that asks for one.
    const NoOrdre inconnu = Creer(Sexe::Indetermine, "Martin", "X");
    CHECK_FALSE(RoleConvient(session, "MARR", {inconnu, "HUSB"}));
    CHECK(RoleConvient(session, "BIRT", {inconnu, "CHIL"}));
    CHECK(RoleConvient(session, "MARR", {inconnu, "Notaire"}));
}

TEST_CASE_FIXTURE(Scene,
                  "ChoisirRoles: a person without a role gets the first compulsory one that is "
                  "free and fits") {
    SaisieEvenement saisie = NouvelEvenement(rose, "");
    saisie.type = "MARR";
    ChoisirRoles(session, saisie);
    CHECK(saisie.liens[0].role == "WIFE");
    saisie.liens.push_back({paul, ""});
    saisie.liens.push_back({louis, ""});
    ChoisirRoles(session, saisie);
    CHECK(saisie.liens[1].role == "HUSB");
    CHECK(saisie.liens[2].role.empty());
    CHECK(RolesManquants(session, saisie).empty());
}

TEST_CASE_FIXTURE(Scene, "RolesDe: the roles of the kind in order, then those that it lacks") {
    SaisieEvenement saisie = NouvelEvenement(rose, "Nourrice");
    saisie.type = "BIRT";
    std::string roles;
    for (const shell::RoleEvenement& role : RolesDe(session, saisie))
        roles += (role.principal ? 'M' : ' ') + std::string(1, static_cast<char>(role.sexe)) +
                 role.label + '/';
    CHECK(roles == "M CHIL/ HFATH/ FMOTH/  WITN/  Nourrice/");
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: the 201st event of a person is refused at once") {
    for (int i = 0; i < 200; ++i)
        Evenement("1/1/1830", "CENS", {{paul, "MAIN"}});
    REQUIRE(base.R_LSTEVT.NbElements(paul) == 200);
    Oublier();
    SaisieEvenement saisie = NouvelEvenement(louis, "MAIN");
    saisie.date = "1/1/1830";
    saisie.type = "CENS";
    saisie.liens.push_back({paul, "MAIN"});
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Liens});
    CHECK_FALSE(LierPersonne(session, NoEvenement{1}, paul, "WITN"));
    CHECK(Dit() == Mots{"MaximumEvenementsPersonneAtteint(Paul Martin)",
                        "MaximumEvenementsPersonneAtteint(Paul Martin)"});
    CHECK(Intacte());
    // One that is there already may be changed.
    SaisieEvenement dernier = ChargerEvenement(session, NoEvenement{200});
    dernier.liens[0].role = "WITN";
    dernier.date = "1/1/1820";
    CHECK(ValiderEvenement(session, dernier).etat == Etat::Incomplet);
    CHECK(base.R_LSTEVT.NbElements(paul) == 200);
    CHECK(base.R_LSTEVT.ElementListe(paul, 1) == NoEvenement{200});
    CHECK(Dit() == Mots{"RoleNonAttribueOuInadapte"});
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: event 32001 is refused") {
    base.entete.DernierEvenement = storage::MaxEvenements;
    Oublier();
    SaisieEvenement saisie = NouvelEvenement(paul, "MAIN");
    saisie.date = "1/1/1830";
    saisie.type = "CENS";
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Refuse);
    CHECK(Dit() == Mots{"MaximumEvenementsBaseAtteint"});
    CHECK(Intacte());
    CHECK(base.R_LSTEVT.NbElements(paul) == 0);
    base.entete.DernierEvenement = 0;
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: texts that a record would cut, links twice and long roles are "
                  "refused") {
    SaisieEvenement saisie = NouvelEvenement(paul, "MAIN");
    saisie.date = "1/1/1830";
    saisie.type = "CENS";
    Oublier();
    saisie.lieu = std::string(20000, 'l');
    saisie.libelle = std::string(11995, 'b');
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Lieu});
    saisie.liens.push_back({paul, "MAIN"});
    saisie.libelle.clear();
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Liens});
    saisie.liens[1].role = std::string(50, 'r');
    CHECK(ValiderEvenement(session, saisie) == IssueEvenement{Etat::Refuse, ChampEvenement::Role});
    CHECK(Dit() == Mots{"LieuLibelleEtTypeTropLongs", "PersonneDejaDansLaListe", "RoleTropLong"});
    CHECK(Intacte());
    // To the byte: what just fits comes back whole.
    saisie.liens[1].role = std::string(49, 'r');
    saisie.libelle = std::string(11994, 'b');
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(ChargerEvenement(session, saisie.evenement) == saisie);
    CHECK(session.incidents.empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: what would end a record early is made harmless, and is no "
                  "change the next time") {
    SaisieEvenement saisie = NouvelEvenement(paul, "n#1");
    saisie.date = "1/1/1830";
    saisie.type = "Procès #3"_1252;
    saisie.lieu = std::string("A\0B", 3);
    saisie.libelle = "n# 5";
    saisie.note = "voir #12";
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    const SaisieEvenement lue = ChargerEvenement(session, saisie.evenement);
    CHECK(lue.type == "Procès -3"_1252);
    CHECK(lue.lieu == "A B");
    CHECK(lue.libelle == "n- 5");
    CHECK(lue.note == "voir -12");
    CHECK(lue.liens[0].role == "n-1");
    Oublier();
    CHECK_FALSE(EvenementModifie(session, saisie));
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Inchange);
    CHECK(Intacte());
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: one person may have two roles in an event") {
    const NoEvenement e =
        Evenement("1/1/1830", "CENS", {{paul, "MAIN"}, {louis, "WITN"}, {paul, "WITN"}});
    CHECK(EvtsDe(paul) == std::vector<std::uint32_t>{1, 1});
    Repondre({Oui});
    CHECK(DelierPersonne(session, e, paul, "WITN"));
    CHECK(EvtsDe(paul) == std::vector<std::uint32_t>{1});
    CHECK(base.R_LSTEVT.TexteElement(paul, 1) == "MAIN");
    CHECK(Dit() == Mots{std::string{"ConfirmerRetirerDEvenement(Paul Martin (Témoin), Recensement, "
                                    "1er janvier 1830 : Paul Martin)+ConfirmerSuppression"_1252}});
}

TEST_CASE_FIXTURE(Scene,
                  "SupprimerEvenement: asks, then clears lists, table and cell; the counter "
                  "stays") {
    const NoEvenement e = Evenement("4/5/1815", "MARR", {{louis, "HUSB"}, {rose, "WIFE"}});
    const NoEvenement autre = Evenement("1/1/1830", "CENS", {{louis, "MAIN"}});
    Oublier();
    CHECK_FALSE(SupprimerEvenement(session, e));
    CHECK(dialogue.titres.back().no == message::TitreSuppression);
    CHECK(dialogue.questions.back().defaut == Non);
    CHECK(Dit() ==
          Mots{"ConfirmerSupprimerEvenement(Mariage, 4 mai 1815 : Louis Martin, Rose Blanc, "
               "2)+ConfirmerSuppression"});
    CHECK(Intacte());
    Repondre({Oui});
    CHECK(SupprimerEvenement(session, e));
    static_cast<void>(Dit());
    CHECK_FALSE(base.R_EVT.LireCellule(e));
    CHECK(EvtsDe(louis) == std::vector<std::uint32_t>{autre.valeur});
    CHECK(EvtsDe(rose).empty());
    CHECK(Tri() == std::vector<std::uint32_t>{autre.valeur});
    CHECK(base.entete.DernierEvenement == 2);
    CHECK_FALSE(SupprimerEvenement(session, e));
    CHECK(Dit().empty());
    CHECK(ChargerEvenement(session, e) == SaisieEvenement{});
    CHECK(ResumeEvenement(session, e).empty());
}

TEST_CASE_FIXTURE(Scene, "LierPersonne: nobody, a deleted event and a link twice are refused") {
    const NoEvenement e = Evenement("1/1/1830", "CENS", {{paul, "MAIN"}});
    CHECK_FALSE(LierPersonne(session, e, NoOrdre{}, "WITN"));
    CHECK_FALSE(LierPersonne(session, e, NoOrdre{999}, "WITN"));
    CHECK_FALSE(LierPersonne(session, NoEvenement{7}, paul, "WITN"));
    CHECK(Dit().empty());
    CHECK_FALSE(LierPersonne(session, e, paul, "MAIN"));
    CHECK(Dit() == Mots{"PersonneDejaDansLaListe"});
    CHECK(LierPersonne(session, e, louis, "WITN"));
    CHECK(EvtsDe(louis) == std::vector<std::uint32_t>{1});
}

TEST_CASE_FIXTURE(Scene, "DeplacerLien: persons of an event change places, never past the ends") {
    const NoEvenement e = Evenement("1/1/1830", "CENS", {{paul, "MAIN"}, {louis, "WITN"}});
    const Position liste = base.R_LSTEVT.LireCellule(paul);
    CHECK_FALSE(DeplacerLien(session, e, 1, -1));
    CHECK_FALSE(DeplacerLien(session, e, 2, 1));
    CHECK_FALSE(DeplacerLien(session, e, 0, 1));
    CHECK_FALSE(DeplacerLien(session, e, 3, -1));
    CHECK(DeplacerLien(session, e, 2, -1));
    CHECK(base.R_EVT.Liens(e).at(0).individu == louis);
    CHECK(base.R_LSTEVT.LireCellule(paul) == liste);
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: a father or mother linked beside the child of an event "
                  "becomes the parent") {
    // Year and day of the sheet differ from the event: the question whether to change it comes
    // last.
    SaisieEvenement saisie = NouvelEvenement(paul, "CHIL");
    saisie.date = "12/3/1820";
    saisie.type = "BIRT";
    saisie.liens.push_back({louis, "FATH"});
    Repondre({Non});
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    CHECK(ParentsDe(paul) == "1 0");
    CHECK(EnfantsDe(louis) == std::vector<NoOrdre>{paul});
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});

    SUBCASE("the mother later: a union with the father is offered") {
        Repondre({Oui, Non});
        saisie.liens.push_back({rose, "MOTH"});
        CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
        CHECK(ParentsDe(paul) == "1 2");
        CHECK(Dit() ==
              Mots{"ProposerCreerUnion(Louis Martin)", "ProposerReporterEvenementSurFiche"});
        CHECK(base.entete.DernierMariage == 1);
    }
    SUBCASE("another father is asked for, with no as the answer of Enter") {
        const NoOrdre jean = Creer(Sexe::Homme, "Noir", "Jean", "1785");
        saisie.liens.push_back({jean, "FATH"});
        Repondre({Annuler, Non});
        CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
        CHECK(ParentsDe(paul) == "1 0");
        CHECK(Dit() == Mots{"ConfirmerRemplacerParent(Paul Martin)+ConfirmerOperation",
                            "ProposerReporterEvenementSurFiche"});
    }
    SUBCASE("another father, and yes") {
        const NoOrdre jean = Creer(Sexe::Homme, "Noir", "Jean", "1785");
        saisie.liens.push_back({jean, "FATH"});
        Repondre({Oui, Non});
        CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
        CHECK(base.R_PERE.LireCellule(paul) == jean);
        CHECK(EnfantsDe(louis).empty());
        CHECK(Dit() == Mots{"ConfirmerRemplacerParent(Paul Martin)+ConfirmerOperation",
                            "ProposerReporterEvenementSurFiche"});
    }
    SUBCASE("a link that stood there asks nothing again") {
        base.R_PERE.EcrireCellule(paul, NoOrdre{});
        base.R_ENFANT.ModifierListe(louis, paul, storage::ActionListe::Supprimer);
        saisie.note = "x";
        Repondre({Non});
        CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
        CHECK(ParentsDe(paul) == "0 0");
        CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
    }
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: a father made for the event is asked for as a new one") {
    Parents(paul, NoOrdre{}, rose);
    const NoOrdre jean = Creer(Sexe::Homme, "Noir", "Jean", "1785", "1810");
    SaisieEvenement saisie = NouvelEvenement(paul, "CHIL");
    saisie.date = "12/3/1820";
    saisie.type = "BIRT";
    saisie.liens.push_back({jean, "FATH"});
    saisie.crees.push_back(jean);
    Repondre({Oui, Non});
    CHECK(ValiderEvenement(session, saisie).etat == Etat::Ecrit);
    // The union with the mother, then the warning of a death before the birth.
    CHECK(Dit() == Mots{"ProposerCreerUnion(Rose Blanc)", "DecesParentAvantNaissanceEnfant",
                        "ProposerReporterEvenementSurFiche"});
    CHECK(saisie.crees.empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ChargerEvenement: a description without an end is empty, and told once read") {
    const NoEvenement e = Evenement("1/1/1830", "CENS", {{paul, "MAIN"}});
    const Position description = base.volume.Ajouter(std::string(40000, 'x'));
    const Position ancienne = base.R_EVT.LireCellule(e);
    std::string tete(20, '\0');
    base.volume.Lire(ancienne, tete);
    tete.replace(16, 4, NumVersChaine4(description.valeur));
    base.R_EVT.InitColonne();
    base.R_EVT.EcrireCellule(e, base.volume.Ajouter(tete));
    const SaisieEvenement saisie = ChargerEvenement(session, e);
    CHECK(saisie.type.empty());
    CHECK(saisie.lieu.empty());
    CHECK(saisie.date == "1er janvier 1830");
    CHECK(saisie.liens.size() == 1);
    REQUIRE(session.incidents.size() == 1);
    CHECK(session.incidents[0] == std::pair{storage::Incident::EvenementAbime, e.valeur});
    CHECK(Dit() == Mots{"IncidentEvenement(1)"});
}

TEST_CASE_FIXTURE(Scene,
                  "DepartDePersonne: sex by the role, surname of the family, date and place of "
                  "birth and death only") {
    SaisieEvenement saisie = NouvelEvenement(paul, "CHIL");
    saisie.type = "BIRT";
    saisie.date = "1/5/820";
    saisie.lieu = "Brest";
    SaisieFiche depart = DepartDePersonne(session, saisie, "FATH");
    CHECK(depart.sexe == Sexe::Homme);
    CHECK(depart.nom == "Martin");
    CHECK(depart.anneeNaissance.empty());
    CHECK(depart.lieuNaissance.empty());
    CHECK(DepartDePersonne(session, saisie, "MOTH").sexe == Sexe::Femme);
    CHECK(DepartDePersonne(session, saisie, "MOTH").nom.empty());
    depart = DepartDePersonne(session, saisie, "CHIL");
    CHECK(depart.sexe == Sexe::Indetermine);
    CHECK(depart.jourMoisNaissance == "1er mai");
    CHECK(depart.anneeNaissance == "820");
    CHECK(depart.lieuNaissance == "Brest");
    saisie.type = "DEAT";
    depart = DepartDePersonne(session, saisie, "DEAD");
    CHECK(depart.jourMoisDeces == "1er mai");
    CHECK(depart.anneeDeces == "820");
    CHECK(depart.lieuDeces == "Brest");
    CHECK(depart.anneeNaissance.empty());
    saisie.date = "?";
    CHECK(DepartDePersonne(session, saisie, "DEAD").anneeDeces.empty());
}

TEST_CASE("Operations on events do nothing without a base") {
    doublures::SessionEssai essai;
    shell::Demarrage(essai.session);
    CHECK(ChargerEvenement(essai.session, NoEvenement{1}) == SaisieEvenement{});
    CHECK_FALSE(SupprimerEvenement(essai.session, NoEvenement{1}));
    CHECK_FALSE(LierPersonne(essai.session, NoEvenement{1}, NoOrdre{1}, "MAIN"));
    CHECK(EvenementsDe(essai.session, NoOrdre{1}).empty());
}

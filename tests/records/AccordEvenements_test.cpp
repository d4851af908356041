#include "records/AccordEvenements.h"

#include "messages/Messages.h"
#include "records/EssaiFamille.h"
#include "records/Fiche.h"
#include "records/FicheEvenement.h"

#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Mots = std::vector<std::string>;

/// Louis and Rose are the parents of Paul, who was born on 12 March 1820 at Brest.
struct Scene : EssaiFamille {
    explicit Scene(TypeTri tri = TypeTri::Nom) : EssaiFamille{tri} {
        Parents(paul, louis, rose);
        SaisieFiche fiche = ChargerFiche(session, paul);
        fiche.jourMoisNaissance = "12 mars";
        fiche.lieuNaissance = "Brest";
        static_cast<void>(ValiderFiche(session, fiche));
        dialogue.entendu.clear();
    }
    NoOrdre louis = Creer(Sexe::Homme, "Martin", "Louis", "1790");
    NoOrdre rose = Creer(Sexe::Femme, "Blanc", "Rose", "1795");
    NoOrdre paul = Creer(Sexe::Homme, "Martin", "Paul", "1820");

    /// An event as another program may have left it: nothing is asked.
    NoEvenement Evenement(std::string_view type, std::string_view date, std::string_view lieu,
                          const std::vector<storage::LienEvenement>& liens) {
        const NoEvenement e = base.NouvelEvenement();
        storage::PartiesEvt parties;
        parties.cleDate = *SaisirDateEvenement(date, session.Ordre(), session.Mots());
        parties.description = storage::DescriptionEvt{std::string{lieu}, {}, std::string{type}};
        parties.liens = liens;
        base.R_EVT.EcrireEvt(e, parties);
        base.R_TRI.AjouterEvt(e);
        for (const storage::LienEvenement& lien : liens)
            base.R_LSTEVT.ModifierListe(lien.individu, e, storage::ActionListe::Ajouter, lien.role);
        return e;
    }
    /// The sheet as it stands, saved: what events say of the same is compared.
    void EnregistrerFiche(NoOrdre n) {
        SaisieFiche fiche = ChargerFiche(session, n);
        CHECK_FALSE(ValiderFiche(session, fiche).EstRefusee());
    }
    /// The event as it stands, saved: what sheets say of the same is compared.
    void EnregistrerEvenement(NoEvenement e) {
        SaisieEvenement saisie = ChargerEvenement(session, e);
        CHECK(ValiderEvenement(session, saisie).etat == IssueEvenement::Etat::Inchange);
    }
    [[nodiscard]] std::string Date(NoEvenement e) { return LigneDe(session, e).date; }
    [[nodiscard]] std::string Lieu(NoEvenement e) { return LigneDe(session, e).lieu; }
    /// "12 mars 1820, Brest" of a birth or a death.
    [[nodiscard]] std::string Naissance(NoOrdre n) {
        const SaisieFiche fiche = ChargerFiche(session, n);
        return fiche.jourMoisNaissance + ' ' + fiche.anneeNaissance + ", " + fiche.lieuNaissance;
    }
    [[nodiscard]] std::string Deces(NoOrdre n) {
        const SaisieFiche fiche = ChargerFiche(session, n);
        return fiche.jourMoisDeces + ' ' + fiche.anneeDeces + ", " + fiche.lieuDeces;
    }
    /// Row of the sheet: 1 christening, 2 burial in a new base.
    [[nodiscard]] std::string Rangee(NoOrdre n, std::size_t k) {
        const storage::ValeurSlot valeur = ChargerFiche(session, n).slots[k];
        return valeur.jourMois + ' ' + valeur.annee + ", " + valeur.lieu;
    }
};

struct SceneParAnnee : Scene {
    SceneParAnnee() : Scene{TypeTri::Naissance} {}
};

}  // namespace

TEST_CASE("MiroirDe: kinds and roles are told by their tags") {
    CHECK(MiroirDe("BIRT", "CHIL") == MiroirFiche::Naissance);
    CHECK(MiroirDe("CHR", "CHIL") == MiroirFiche::Bapteme);
    CHECK(MiroirDe("DEAT", "DEAD") == MiroirFiche::Deces);
    CHECK(MiroirDe("BURI", "DEAD") == MiroirFiche::Inhumation);
    CHECK(MiroirDe("MARR", "HUSB") == MiroirFiche::Mariage);
    CHECK(MiroirDe("MARR", "WIFE") == MiroirFiche::Mariage);
    for (const auto& [type, role] : {std::pair{"BIRT", "WITN"},
                                     {"BIRT", "FATH"},
                                     {"MARR", "WITN"},
                                     {"DEAT", "WIDW"},
                                     {"ADOP", "CHIL"},
                                     {"Naissance", "Enfant"},
                                     {"", ""}})
        CHECK(MiroirDe(type, role) == MiroirFiche::Aucun);
}

TEST_CASE_FIXTURE(Scene, "ValiderFiche: an event that says what the sheet says asks nothing") {
    Evenement("BIRT", "12/3/1820", "Brest", {{paul, "CHIL"}});
    EnregistrerFiche(paul);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderFiche: a birth that differs is brought into line after a yes, "
                  "never without") {
    const NoEvenement e = Evenement("BIRT", "13/3/1820", "Lorient", {{paul, "CHIL"}});
    EnregistrerFiche(paul);
    CHECK(dialogue.titres.back().no == message::TitreMajEvenements);
    CHECK(Dit() == Mots{"ProposerMajEvenementNaissance"});
    CHECK(Date(e) == "13 mars 1820");
    Repondre({Oui});
    EnregistrerFiche(paul);
    CHECK(Dit() == Mots{"ProposerMajEvenementNaissance"});
    CHECK(Date(e) == "12 mars 1820");
    CHECK(Lieu(e) == "Brest");
    EnregistrerFiche(paul);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderFiche: the sheet asks when it is saved") {
    const NoEvenement e = Evenement("BIRT", "12/3/1820", "Brest", {{paul, "CHIL"}});
    SaisieFiche fiche = ChargerFiche(session, paul);
    fiche.lieuNaissance = "Quimper";
    Repondre({Oui});
    static_cast<void>(ValiderFiche(session, fiche));
    CHECK(Dit() == Mots{"ProposerMajEvenementNaissance"});
    CHECK(Lieu(e) == "Quimper");
}

TEST_CASE_FIXTURE(Scene, "ValiderFiche: a witness of a birth is not compared") {
    Evenement("BIRT", "1/1/1900", "Ailleurs", {{paul, "WITN"}});
    EnregistrerFiche(paul);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderFiche: each kind has its own question, in the order of the "
                  "events") {
    Marier(louis, rose, "1815");
    Evenement("BIRT", "1/1/1801", "a", {{louis, "CHIL"}});
    Evenement("CHR", "1/1/1802", "b", {{louis, "CHIL"}});
    Evenement("MARR", "1/1/1803", "c", {{louis, "HUSB"}, {rose, "WIFE"}});
    Evenement("DEAT", "1/1/1804", "d", {{louis, "DEAD"}});
    Evenement("BURI", "1/1/1805", "e", {{louis, "DEAD"}});
    EnregistrerFiche(louis);
    CHECK(Dit() == Mots{"ProposerMajEvenementNaissance", "ProposerMajEvenementBapteme",
                        "ProposerMajEvenementMariage", "ProposerMajEvenementDeces",
                        "ProposerMajEvenementInhumation"});
    EnregistrerFiche(rose);
    CHECK(Dit() == Mots{"ProposerMajEvenementMariage"});
}

TEST_CASE_FIXTURE(Scene, "ValiderFiche: a marriage is compared only by who has exactly one union") {
    Evenement("MARR", "1/1/1803", "c", {{louis, "HUSB"}});
    EnregistrerFiche(louis);
    CHECK(Dit().empty());
    Marier(louis, rose, "1815");
    Marier(louis, Creer(Sexe::Femme, "Noir", "Anne"), "1830");
    EnregistrerFiche(louis);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderFiche: a kind whose row the base does not have is left") {
    base.entete.SlotsIndividu[1].symbole = ' ';
    Evenement("CHR", "1/1/1802", "b", {{louis, "CHIL"}});
    Evenement("BURI", "1/1/1802", "b", {{louis, "DEAD"}});
    EnregistrerFiche(louis);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderFiche: a sheet without a whole date cannot move an event; the "
                  "reason is told") {
    const NoEvenement e = Evenement("BIRT", "3/4/1790", "Brest", {{louis, "CHIL"}});
    const NoEvenement mort = Evenement("DEAT", "3/4/1860", "Brest", {{louis, "DEAD"}});
    Repondre({Oui, Oui});
    EnregistrerFiche(louis);
    CHECK(Dit() == Mots{"ProposerMajEvenementNaissance", "DateEvenementInvalide",
                        "ProposerMajEvenementDeces", "DateEvenementVide"});
    CHECK(Date(e) == "3 avril 1790");
    CHECK(Date(mort) == "3 avril 1860");
}

TEST_CASE_FIXTURE(
    SceneParAnnee,
    "ValiderEvenement: a yes gives the sheet year, day and month, and place, with all "
    "that hangs on the year") {
    const NoOrdre jeanne = Creer(Sexe::Femme, "Martin", "Jeanne", "1822");
    Parents(jeanne, louis, rose);
    SaisieEvenement saisie = NouvelEvenement(paul, "CHIL");
    saisie.date = "1er mai 1825";
    saisie.type = "BIRT";
    saisie.lieu = "Saint Malo";
    SUBCASE("no") {
        Repondre({Non});
        CHECK(ValiderEvenement(session, saisie).etat == IssueEvenement::Etat::Ecrit);
        CHECK(dialogue.titres.back().valeur == "Paul Martin (o1820)");
        CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
        CHECK(Naissance(paul) == "12 mars 1820, Brest");
    }
    SUBCASE("yes") {
        Repondre({Oui});
        CHECK(ValiderEvenement(session, saisie).etat == IssueEvenement::Etat::Ecrit);
        CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
        CHECK(base.R_NAISS.LireCellule(paul) == "1825");
        CHECK(base.R_NOM.JourMoisNaissance(paul) == "1/5");
        CHECK(base.R_NOM.NomDe(paul) == "Martin");
        CHECK(storage::LieuNaissance(base, paul) == "Saint Malo");
        CHECK(EnfantsDe(louis) == std::vector<NoOrdre>{jeanne, paul});
        CHECK(EnfantsDe(rose) == std::vector<NoOrdre>{jeanne, paul});
        CHECK(base.R_TRI.RangIndividu(paul) == 4);
        CHECK(base.entete.NbTriIndividus == 4);
        CHECK(base.R_INDEX.ChercherMot(base.motsCles.TypeDuSymbole('$'), "SAINT MALO"));
        // The same event saved again: both say the same.
        CHECK(ValiderEvenement(session, saisie).etat == IssueEvenement::Etat::Inchange);
        CHECK(Dit().empty());
    }
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: a place without a word takes the token away") {
    const NoEvenement e = Evenement("BIRT", "12/3/1820", "", {{paul, "CHIL"}});
    Repondre({Oui});
    EnregistrerEvenement(e);
    CHECK(Naissance(paul) == "12 mars 1820, ");
    CHECK(base.R_TEXTE.LireTexte(paul).find('$') == std::string_view::npos);
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: a death, a christening and a burial") {
    const NoEvenement mort = Evenement("DEAT", "4/5/1880", "Nantes", {{paul, "DEAD"}});
    const NoEvenement bapteme = Evenement("CHR", "14/3/1820", "Brest", {{paul, "CHIL"}});
    const NoEvenement tombe = Evenement("BURI", "6/5/1880", "Rennes", {{paul, "DEAD"}});
    Repondre({Oui, Oui, Oui});
    for (const NoEvenement e : {mort, bapteme, tombe})
        EnregistrerEvenement(e);
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche", "ProposerReporterEvenementSurFiche",
                        "ProposerReporterEvenementSurFiche"});
    CHECK(Deces(paul) == "4 mai 1880, Nantes");
    CHECK(Naissance(paul) == "12 mars 1820, Brest");
    CHECK(Rangee(paul, 1) == "14 mars 1820, Brest");
    CHECK(Rangee(paul, 2) == "6 mai 1880, Rennes");
    for (const NoEvenement e : {mort, bapteme, tombe})
        EnregistrerEvenement(e);
    EnregistrerFiche(paul);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: husband and wife share one union and one question") {
    const NoMariage m = Marier(louis, rose, "1815");
    const NoEvenement e =
        Evenement("MARR", "4/5/1816", "Vannes", {{louis, "HUSB"}, {rose, "WIFE"}});
    EnregistrerEvenement(e);
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
    CHECK(base.R_DEBMAR.LireCellule(m) == "1815");
    Repondre({Oui});
    EnregistrerEvenement(e);
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
    CHECK(base.R_DEBMAR.LireCellule(m) == "1816");
    CHECK(storage::DateMariageBrute(base, m) == "4/5");
    CHECK(storage::LieuMariage(base, m) == "Vannes");
    EnregistrerEvenement(e);
    EnregistrerFiche(rose);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderEvenement: a couple that married twice is told apart by the year") {
    const NoMariage premiere = Marier(louis, rose, "1815");
    const NoMariage seconde = Marier(louis, rose, "1830");
    const NoEvenement e =
        Evenement("MARR", "4/5/1830", "Vannes", {{louis, "HUSB"}, {rose, "WIFE"}});
    Repondre({Oui});
    EnregistrerEvenement(e);
    CHECK(storage::LieuMariage(base, premiere).empty());
    CHECK(storage::LieuMariage(base, seconde) == "Vannes");
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: persons without a union have nothing to compare") {
    EnregistrerEvenement(
        Evenement("MARR", "4/5/1816", "Vannes", {{louis, "HUSB"}, {rose, "WIFE"}}));
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: dots that a sheet cannot hold are no difference") {
    const NoEvenement e = Evenement("BIRT", "12/3/1820", "St. Malo", {{paul, "CHIL"}});
    Repondre({Oui});
    EnregistrerEvenement(e);
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
    EnregistrerEvenement(e);
    EnregistrerFiche(paul);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: twins are asked for one by one") {
    const NoOrdre luc = Creer(Sexe::Homme, "Martin", "Luc", "1820");
    const NoEvenement e =
        Evenement("BIRT", "13/3/1820", "Brest", {{paul, "CHIL"}, {luc, "CHIL"}, {louis, "WITN"}});
    Repondre({Non, Oui});
    EnregistrerEvenement(e);
    CHECK(dialogue.titres.back().valeur == "Luc Martin (o1820)");
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche", "ProposerReporterEvenementSurFiche"});
    CHECK(Naissance(paul) == "12 mars 1820, Brest");
    CHECK(Naissance(luc) == "13 mars 1820, Brest");
}

TEST_CASE_FIXTURE(Scene, "ValiderEvenement: the same holds in an English session") {
    REQUIRE(shell::ChoisirLangue(session, "English"));
    const NoEvenement e = Evenement("BIRT", "13 March 1820", "Brest", {{paul, "CHIL"}});
    Repondre({Oui});
    EnregistrerEvenement(e);
    CHECK(Dit() == Mots{"ProposerReporterEvenementSurFiche"});
    CHECK(base.R_NOM.JourMoisNaissance(paul) == "13/3");
    CHECK(Naissance(paul) == "13 March 1820, Brest");
    EnregistrerFiche(paul);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "EcrireRangees: keyword rows are written, the rest of the text stays") {
    SaisieFiche fiche = ChargerFiche(session, paul);
    fiche.note = "Une note";
    static_cast<void>(ValiderFiche(session, fiche));
    RangeesSlots rangees = ChargerFiche(session, paul).slots;
    rangees[0].lieu = "meunier";
    rangees[1] = {"14 mars", "1820", "Brest"};
    CHECK(EcrireRangees(session, paul, rangees));
    CHECK_FALSE(EcrireRangees(session, paul, rangees));
    CHECK(Rangee(paul, 0) == " , meunier");
    CHECK(Rangee(paul, 1) == "14 mars 1820, Brest");
    CHECK(ChargerFiche(session, paul).note == "Une note");
    CHECK(Naissance(paul) == "12 mars 1820, Brest");
    CHECK_FALSE(EcrireRangees(session, NoOrdre{99}, rangees));
}

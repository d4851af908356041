#include "records/ControleBase.h"

#include "messages/Messages.h"
#include "records/AccordEvenements.h"
#include "records/BureauSoin.h"
#include "records/Fiche.h"
#include "records/FicheEvenement.h"
#include "records/Individus.h"

#include <algorithm>
#include <ostream>
#include <set>

using namespace dorvane;
using namespace dorvane::records;

namespace dorvane::records {

/// Lets a failed check print kinds of findings by the names of their sentences.
std::ostream& operator<<(std::ostream& flux, SorteConstat sorte) {
    return flux << MessageDe(sorte);
}

std::ostream& operator<<(std::ostream& flux, const std::vector<SorteConstat>& sortes) {
    for (const SorteConstat sorte : sortes)
        flux << '[' << sorte << ']';
    return flux;
}

}  // namespace dorvane::records

namespace {

using Sortes = std::vector<SorteConstat>;
using enum SorteConstat;

struct Bureau : BureauSoin {
    using BureauSoin::BureauSoin;
    std::vector<Constat> constats;
    BilanControle bilan;

    /// The kinds of the findings about a person, in their order.
    Sortes Controler(NoOrdre n) {
        constats.clear();
        bilan = ControlerBase(session, [this](const Constat& c) { constats.push_back(c); });
        Sortes sortes;
        for (const Constat& constat : constats)
            if (constat.individu == n) sortes.push_back(constat.sorte);
        std::sort(sortes.begin(), sortes.end());
        return sortes;
    }
    [[nodiscard]] bool A(NoOrdre n, SorteConstat sorte) {
        const Sortes sortes = Controler(n);
        return std::count(sortes.begin(), sortes.end(), sorte) == 1;
    }

    /// A child of a father and a mother who are married, without any finding.
    struct Famille {
        NoOrdre pere, mere, enfant;
        NoMariage mariage;
    };
    Famille Fonder(std::string_view pere = "1820", std::string_view mere = "1825",
                   std::string_view enfant = "1850", std::string_view union_ = "1845") {
        Famille f;
        f.pere = Creer(Sexe::Homme, "DURAND", "Jean", pere);
        f.mere = Creer(Sexe::Femme, "MARTIN", "Anne", mere);
        f.enfant = Creer(Sexe::Homme, "DURAND", "Paul", enfant);
        f.mariage = Marier(f.pere, f.mere, union_);
        Parents(f.enfant, f.pere, f.mere);
        return f;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau,
                  "Check: an empty base ends at once, with the word that nothing was found") {
    CHECK(Controler({}) == Sortes{});
    CHECK(bilan.complet);
    CHECK(Dit() == std::vector{message::InfoAucuneAnomalie});
    CHECK(dialogue.annonces == std::vector{shell::Msg(message::EtatControleTermine)});
    CHECK(progression.pas == 0);
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(Bureau, "Check: each kind of finding has a sentence of its own") {
    std::set<std::string> phrases;
    for (std::size_t i = 0; i < NbSortesConstat; ++i)
        phrases.insert(session.Message(MessageDe(static_cast<SorteConstat>(i))));
    CHECK(phrases.size() == NbSortesConstat);
    CHECK_FALSE(phrases.contains(""));
}

TEST_CASE_FIXTURE(Bureau, "Check: a family in order gives no finding, and changes nothing") {
    Fonder();
    REQUIRE(shell::MnuEnregistrer(session));
    CHECK(Controler({}).empty());
    CHECK(bilan.constats == 0);
    CHECK(progression.titres.back() == shell::Msg(message::TitreControleBase));
    CHECK(progression.textes.back() == shell::Msg(message::AnomaliesRelevees));
    CHECK_FALSE(B().marques.Modifie());
    CHECK(Dit() == std::vector{message::InfoAucuneAnomalie});
}

TEST_CASE_FIXTURE(Bureau, "Check: a finding tells person, rank, message, text and identity") {
    Creer(Sexe::Homme, "ABEL", "Abel", "1700");
    const NoOrdre n = Creer(Sexe::Homme, "DURAND", "", "1850", "1840");
    CHECK(Controler(n) == Sortes{PrenomAbsent, PersonneIsolee, DecesAvantNaissance});
    const auto constat = std::find_if(constats.begin(), constats.end(), [](const Constat& c) {
        return c.sorte == DecesAvantNaissance;
    });
    CHECK(*constat == Constat{n, 2, DecesAvantNaissance,
                              session.Message(message::ConstatDecesAvantNaissance),
                              "DURAND (1850-1840)"});
    CHECK(bilan.constats == 4);
    CHECK(Dit().empty());
    CHECK(TexteDesConstats({*constat}) ==
          "2\t" + TexteVersUtf8(session.Message(message::ConstatDecesAvantNaissance)) +
              "\tDURAND (1850-1840)\n");
}

TEST_CASE_FIXTURE(Bureau, "Check: sex, year, names and ties that are missing") {
    const NoOrdre n = Creer(Sexe::Indetermine, "", " ");
    CHECK(Controler(n) ==
          Sortes{SexeIndetermine, AnneeNaissanceAbsente, NomAbsent, PrenomAbsent, PersonneIsolee});
    const NoOrdre autre = Creer(Sexe::Femme, "MARTIN", "Anne", "1850");
    CHECK(Controler(autre) == Sortes{PersonneIsolee});
    Lier(autre, n, "voisin");
    CHECK(Controler(autre) == Sortes{});
}

TEST_CASE_FIXTURE(Bureau, "Check: a person out of place in the order of birth years") {
    const NoOrdre a = Creer(Sexe::Homme, "A", "A", "1800");
    const NoOrdre b = Creer(Sexe::Homme, "B", "B", "1850");
    B().R_NAISS.EcrireCellule(a, "1900");
    CHECK(A(b, HorsOrdreDeTri));
    CHECK_FALSE(A(a, HorsOrdreDeTri));
}

TEST_CASE("Check: a person out of place in the order of names; order of creation has none") {
    Bureau bureau{TypeTri::Nom};
    const NoOrdre a = bureau.Creer(Sexe::Homme, "ABEL", "A", "1900");
    const NoOrdre b = bureau.Creer(Sexe::Homme, "BLANC", "B", "1850");
    CHECK_FALSE(bureau.A(b, HorsOrdreDeTri));
    bureau.B().R_NOM.EcrireNom(a, "ZOLA;A");
    CHECK(bureau.A(b, HorsOrdreDeTri));
    bureau.B().entete.TypeTri = TypeTri::Creation;
    CHECK_FALSE(bureau.A(b, HorsOrdreDeTri));
}

TEST_CASE_FIXTURE(Bureau, "Check: a living person with a birth year gives no finding on death") {
    const Famille f = Fonder();
    for (const NoOrdre n : {f.pere, f.mere, f.enfant})
        CHECK(Controler(n) == Sortes{});
}

TEST_CASE_FIXTURE(Bureau, "Check: a life that ends too early or lasts too long") {
    const Famille f = Fonder();
    B().R_DECES.EcrireCellule(f.enfant, "1849");
    CHECK(Controler(f.enfant) == Sortes{DecesAvantNaissance});
    B().R_DECES.EcrireCellule(f.enfant, "1950");
    CHECK(Controler(f.enfant) == Sortes{});
    B().R_DECES.EcrireCellule(f.enfant, "1951");
    CHECK(Controler(f.enfant) == Sortes{DecesPlusDe100AnsApresNaissance});
    // Not both numbers: compared as text.
    B().R_DECES.EcrireCellule(f.enfant, "184?");
    CHECK(Controler(f.enfant) == Sortes{DecesAvantNaissance});
    B().R_DECES.EcrireCellule(f.enfant, "?");
    CHECK(Controler(f.enfant) == Sortes{});
}

TEST_CASE_FIXTURE(Bureau, "Check: sex and list of the parents") {
    const Famille f = Fonder();
    B().R_ENFANT.ModifierListe(f.pere, f.enfant, storage::ActionListe::Supprimer);
    B().R_ENFANT.ModifierListe(f.mere, f.enfant, storage::ActionListe::Supprimer);
    CHECK(Controler(f.enfant) == Sortes{AbsentDesEnfantsDuPere, AbsentDesEnfantsDeLaMere});
    B().R_SEXE.EcrireCellule(f.pere, Sexe::Indetermine);
    B().R_SEXE.EcrireCellule(f.mere, Sexe::Homme);
    CHECK(Controler(f.enfant) == Sortes{PereNonMasculin, AbsentDesEnfantsDuPere, MereNonFeminine,
                                        AbsentDesEnfantsDeLaMere});
}

TEST_CASE_FIXTURE(Bureau, "Check: ages of the parents at their limits") {
    struct Cas {
        const char* pere;
        const char* mere;
        Sortes voulus;
    };
    for (const Cas& cas :
         {Cas{"1850", "1850", {PerePasNeAvantEnfant, MerePasNeeAvantEnfant}},
          Cas{"1860", "1851", {PerePasNeAvantEnfant, MerePasNeeAvantEnfant}},
          Cas{"1849", "1841", {PereMoinsDe10Ans, MereMoinsDe10Ans}},
          Cas{"1841", "1849", {PereMoinsDe10Ans, MereMoinsDe10Ans}}, Cas{"1840", "1840", {}},
          Cas{"1775", "1800", {}}, Cas{"1774", "1799", {PerePlusDe75Ans, MerePlusDe50Ans}}}) {
        CAPTURE(cas.pere);
        Bureau bureau{TypeTri::Creation};
        const Famille f = bureau.Fonder(cas.pere, cas.mere);
        CHECK(bureau.Controler(f.enfant) == cas.voulus);
    }
}

TEST_CASE_FIXTURE(Bureau, "Check: a birth after the death of a parent") {
    struct Cas {
        const char* pere;
        const char* mere;
        Sortes voulus;
    };
    for (const Cas& cas :
         {Cas{"1849", "1840", {}}, Cas{"1848", "1848", {NaissancePlusDUnAnApresDecesPere}},
          Cas{"1840",
              "1839",
              {NaissancePlusDUnAnApresDecesPere, NaissancePlusDe10AnsApresDecesMere}},
          Cas{"1835", "", {NaissancePlusDe10AnsApresDecesPere, NaissancePlusDUnAnApresDecesPere}},
          Cas{"183?",
              "183?",
              {NaissancePlusDe10AnsApresDecesPere, NaissancePlusDe10AnsApresDecesMere}},
          Cas{"184?", "184?", {}}}) {
        CAPTURE(cas.pere);
        Bureau bureau{TypeTri::Creation};
        const Famille f = bureau.Fonder("1800", "1805", "1850");
        bureau.B().R_DECES.EcrireCellule(f.pere, cas.pere);
        bureau.B().R_DECES.EcrireCellule(f.mere, cas.mere);
        CHECK(bureau.Controler(f.enfant) == cas.voulus);
    }
}

TEST_CASE_FIXTURE(Bureau, "Check: a year with an unknown digit is compared on its first three") {
    struct Cas {
        const char* pere;
        const char* mere;
        const char* enfant;
        Sortes voulus;
    };
    for (const Cas& cas :
         {Cas{"186?", "187?", "1850", {NaissanceAvantCelleDuPere, NaissanceAvantCelleDeLaMere}},
          Cas{"185?", "185?", "1850", {}},
          Cas{"1860", "1860", "185?", {NaissanceAvantCelleDuPere, NaissanceAvantCelleDeLaMere}},
          Cas{"18?", "18?", "1750", {}}}) {
        CAPTURE(cas.pere);
        Bureau bureau{TypeTri::Creation};
        const Famille f = bureau.Fonder(cas.pere, cas.mere, cas.enfant, "");
        CHECK(bureau.Controler(f.enfant) == cas.voulus);
    }
}

TEST_CASE_FIXTURE(Bureau, "Check: a person who is his own father was not born before himself") {
    const Famille f = Fonder();
    B().R_ENFANT.ModifierListe(f.pere, f.enfant, storage::ActionListe::Supprimer);
    B().R_PERE.EcrireCellule(f.enfant, f.enfant);
    B().R_ENFANT.ModifierListe(f.enfant, f.enfant, storage::ActionListe::Ajouter);
    CHECK(Controler(f.enfant) == Sortes{PerePasNeAvantEnfant, ParentsConnusPereSansUnion});
}

TEST_CASE_FIXTURE(Bureau, "Check: the union of the parents") {
    SUBCASE("the father has none") {
        const NoOrdre pere = Creer(Sexe::Homme, "DURAND", "Jean", "1820");
        const NoOrdre mere = Creer(Sexe::Femme, "MARTIN", "Anne", "1825");
        const NoOrdre enfant = Creer(Sexe::Homme, "DURAND", "Paul", "1850");
        Parents(enfant, pere, mere);
        CHECK(Controler(enfant) == Sortes{ParentsConnusPereSansUnion});
        Marier(pere, Creer(Sexe::Femme, "AUTRE", "Eve", "1825"));
        CHECK(Controler(enfant) == Sortes{});
    }
    SUBCASE("it began after the birth, or ended before it") {
        const Famille f = Fonder();
        B().R_DEBMAR.EcrireCellule(f.mariage, "1850");
        CHECK(Controler(f.enfant) == Sortes{});
        B().R_DEBMAR.EcrireCellule(f.mariage, "1851");
        CHECK(Controler(f.enfant) == Sortes{UnionParentsDebuteApresNaissance});
        B().R_DEBMAR.EcrireCellule(f.mariage, "1840");
        B().R_FINMAR.EcrireCellule(f.mariage, "1849");
        CHECK(Controler(f.enfant) == Sortes{UnionParentsFinieAvantNaissance});
    }
    SUBCASE("two unions of one couple are no finding, and one that fits is enough") {
        const Famille f = Fonder();
        B().R_FINMAR.EcrireCellule(f.mariage, "1846");
        Marier(f.pere, f.mere, "1848");
        for (const NoOrdre n : {f.pere, f.mere, f.enfant})
            CHECK(Controler(n) == Sortes{});
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "Check: children of a list who have another parent, or a parent without a sex") {
    const Famille f = Fonder();
    B().R_PERE.EcrireCellule(f.enfant, {});
    B().R_MERE.EcrireCellule(f.enfant, {});
    CHECK(Controler(f.pere) == Sortes{EnfantAvecAutrePere});
    CHECK(Controler(f.mere) == Sortes{EnfantAvecAutreMere});
    B().R_SEXE.EcrireCellule(f.pere, Sexe::Indetermine);
    CHECK(Controler(f.pere) == Sortes{SexeIndetermine, ParentDeSexeIndetermine});
}

TEST_CASE_FIXTURE(Bureau, "Check: a list that names a union of others") {
    const Famille f = Fonder();
    B().R_EPOUX.EcrireCellule(f.mariage, {});
    B().R_EPOUSE.EcrireCellule(f.mariage, {});
    CHECK(Controler(f.pere) == Sortes{UnionAvecAutreEpoux});
    CHECK(Controler(f.mere) == Sortes{UnionAvecAutreEpouse});
}

TEST_CASE_FIXTURE(Bureau, "Check: years of a union against each other and against the life") {
    const Famille f = Fonder();
    const auto essayer = [&](const char* debut, const char* fin, const char* deces) {
        B().R_DEBMAR.EcrireCellule(f.mariage, debut);
        B().R_FINMAR.EcrireCellule(f.mariage, fin);
        B().R_DECES.EcrireCellule(f.pere, deces);
        return Controler(f.pere);
    };
    CHECK(essayer("1845", "1844", "") == Sortes{FinUnionAvantDebut});
    CHECK(essayer("1819", "", "") == Sortes{UnionAvantNaissance});
    CHECK(essayer("1820", "1820", "1820") == Sortes{});
    CHECK(essayer("1845", "", "1844") == Sortes{UnionApresDeces});
    CHECK(essayer("1815", "1816", "") == Sortes{UnionAvantNaissance, FinUnionAvantNaissance});
    CHECK(essayer("1845", "1860", "1859") == Sortes{FinUnionApresDeces});
    CHECK(essayer("184?", "183?", "?") == Sortes{});
}

TEST_CASE_FIXTURE(Bureau, "Check: one message once per person, however often it holds") {
    const Famille f = Fonder();
    for (int i = 0; i < 3; ++i)
        Marier(f.pere, f.mere, "1810");
    CHECK(Controler(f.pere) == Sortes{UnionAvantNaissance});
}

TEST_CASE_FIXTURE(Bureau, "Check: events against the sheet") {
    SaisieFiche fiche;
    fiche.nom = "DURAND";
    fiche.prenom = "Paul";
    fiche.sexe = Sexe::Homme;
    fiche.jourMoisNaissance = "12 mars";
    fiche.anneeNaissance = "1850";
    fiche.lieuNaissance = "Saint Malo";
    fiche.jourMoisDeces = "1er mai";
    fiche.anneeDeces = "1900";
    fiche.lieuDeces = "Brest";
    fiche.slots[1] = {"13 mars", "1850", "Lyon"};
    fiche.slots[2] = {"3 mai", "1900", "Lyon"};
    const NoOrdre n = CreerIndividu(session, fiche).individu;
    REQUIRE(bool{n});
    const auto ajouter = [&](const char* type, const char* role, const char* date,
                             const char* lieu) {
        SaisieEvenement saisie = NouvelEvenement(n, role);
        saisie.type = type;
        saisie.date = date;
        saisie.lieu = lieu;
        dialogue.reponses = {shell::Reponse::Non};
        REQUIRE(ValiderEvenement(session, saisie).etat != IssueEvenement::Etat::Refuse);
        dialogue.reponses.clear();
    };
    SUBCASE("those that agree") {
        ajouter("BIRT", "CHIL", "12/3/1850", "Saint Malo");
        ajouter("DEAT", "DEAD", "1/5/1900", "Brest");
        ajouter("CHR", "CHIL", "13 mars 1850", "Lyon");
        ajouter("BURI", "DEAD", "3 mai 1900", "Lyon");
        ajouter("BIRT", "WITN", "1/1/1800", "Caen");
        CHECK(Controler(n) == Sortes{});
    }
    SUBCASE("dates that differ") {
        ajouter("BIRT", "CHIL", "13/3/1850", "Saint Malo");
        ajouter("DEAT", "DEAD", "2/5/1900", "Brest");
        ajouter("CHR", "CHIL", "14 mars 1850", "Lyon");
        ajouter("BURI", "DEAD", "4 mai 1900", "Lyon");
        CHECK(Controler(n) == Sortes{DateNaissanceDiffere, DateDecesDiffere, DateBaptemeDiffere,
                                     DateInhumationDiffere});
    }
    SUBCASE("places that differ") {
        ajouter("BIRT", "CHIL", "12/3/1850", "Caen");
        ajouter("DEAT", "DEAD", "1/5/1900", "Caen");
        ajouter("CHR", "CHIL", "13 mars 1850", "Caen");
        ajouter("BURI", "DEAD", "3 mai 1900", "Caen");
        CHECK(Controler(n) == Sortes{LieuNaissanceDiffere, LieuDecesDiffere, LieuBaptemeDiffere,
                                     LieuInhumationDiffere});
    }
    SUBCASE("a sheet without a row for burials has nothing to compare") {
        B().entete.SlotsIndividu[2] = {};
        ajouter("BURI", "DEAD", "4 mai 1900", "Caen");
        CHECK(Controler(n) == Sortes{});
    }
    SUBCASE("unions") {
        ajouter("MARR", "HUSB", "1/6/1875", "Brest");
        CHECK(Controler(n) == Sortes{EvenementMariageSansUnion});
        const NoMariage m = Marier(n, Creer(Sexe::Femme, "MARTIN", "Anne", "1851"), "1875");
        EcrireTexteMariage(session, m, "1/6@Brest");
        CHECK(Controler(n) == Sortes{});
        EcrireTexteMariage(session, m, "2/6@Lyon");
        CHECK(Controler(n) == Sortes{DateMariageDiffere, LieuMariageDiffere});
    }
}

TEST_CASE_FIXTURE(Bureau, "Check: a stop keeps the findings so far and says no last word") {
    for (int i = 0; i < 5; ++i)
        Creer(Sexe::Homme, "", "Paul", "1850");
    SUBCASE("by the frame") {
        progression.annulerAu = 2;
        Controler({});
        CHECK(bilan.constats == 4);
    }
    SUBCASE("by the window") {
        std::uint32_t fois = 0;
        bilan = ControlerBase(
            session, [this](const Constat& c) { constats.push_back(c); },
            [&fois] { return ++fois < 3; });
        CHECK(constats.size() == 6);
    }
    CHECK_FALSE(bilan.complet);
    CHECK(Dit().empty());
    CHECK(dialogue.annonces.empty());
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(Bureau, "Check: a base that is closed meanwhile ends the scan") {
    for (int i = 0; i < 5; ++i)
        Creer(Sexe::Homme, "DURAND", "Paul", "1850");
    progression.aChaquePas = [this] {
        if (progression.pas == 2) session.PoserBase(nullptr);
    };
    Controler({});
    CHECK_FALSE(bilan.complet);
    CHECK(progression.pas == 2);
}

TEST_CASE_FIXTURE(Bureau, "Check: ranks that name nobody or a person twice are passed over") {
    const NoOrdre n = Creer(Sexe::Homme, "DURAND", "Paul", "1850");
    for (const std::uint32_t numero : {n.valeur, 0U, 999U, 65535U}) {
        ++B().entete.NbTriIndividus;
        B().R_TRI.FixerRang(B().entete.NbTriIndividus, NoOrdre{numero});
    }
    Controler({});
    CHECK(bilan.constats == 1);
    CHECK(bilan.complet);
}

TEST_CASE_FIXTURE(Bureau, "Check: cells that point out of the base are findings, not faults") {
    const NoOrdre n = Creer(Sexe::Homme, "DURAND", "Paul", "1850");
    B().R_PERE.EcrireCellule(n, NoOrdre{65000});
    B().R_MERE.EcrireCellule(n, NoOrdre{64001});
    B().R_ENFANT.ModifierListe(n, NoOrdre{60000}, storage::ActionListe::Ajouter);
    B().R_MARIAG.ModifierListe(n, NoMariage{60000}, storage::ActionListe::Ajouter);
    CHECK(Controler(n) == Sortes{PereNonMasculin, AbsentDesEnfantsDuPere, MereNonFeminine,
                                 AbsentDesEnfantsDeLaMere, ParentsConnusPereSansUnion,
                                 EnfantAvecAutrePere, UnionAvecAutreEpoux});
}

TEST_CASE_FIXTURE(Bureau, "Check: any one tie is enough for a person not to be isolated") {
    const NoOrdre n = Creer(Sexe::Homme, "DURAND", "Paul", "1850");
    const NoOrdre autre = Creer(Sexe::Homme, "AUTRE", "Jean", "1820");
    REQUIRE(A(n, PersonneIsolee));
    SUBCASE("a father") {
        B().R_PERE.EcrireCellule(n, autre);
    }
    SUBCASE("a mother") {
        B().R_MERE.EcrireCellule(n, autre);
    }
    SUBCASE("a union") {
        Marier(n, {});
    }
    SUBCASE("a child") {
        B().R_ENFANT.ModifierListe(n, autre, storage::ActionListe::Ajouter);
    }
    SUBCASE("a link") {
        Lier(n, autre, "voisin");
    }
    SUBCASE("an event") {
        B().R_LSTEVT.ModifierListe(n, NoEvenement{1}, storage::ActionListe::Ajouter, "WITN");
    }
    SUBCASE("a document") {
        B().R_LSTIMG.ModifierListe(n, NoDocument{1}, storage::ActionListe::Ajouter);
    }
    CHECK_FALSE(A(n, PersonneIsolee));
}

TEST_CASE_FIXTURE(Bureau, "Check: a name of blanks is no name") {
    CHECK(A(Creer(Sexe::Femme, "  ", "Anne", "1850"), NomAbsent));
}

TEST_CASE_FIXTURE(Bureau, "Check: years before our era and years that are missing keep the order") {
    const NoOrdre marc = Creer(Sexe::Homme, "ANTOINE", "Marc", "-83");
    const NoOrdre inconnu = Creer(Sexe::Homme, "INCONNU", "Jean");
    const NoOrdre jean = Creer(Sexe::Homme, "DURAND", "Jean", "950");
    for (const NoOrdre n : {marc, inconnu, jean})
        CHECK_FALSE(A(n, HorsOrdreDeTri));
}

TEST_CASE_FIXTURE(Bureau, "Check: years before our era are counted as numbers") {
    const Famille f = Fonder("-100", "-95", "-70", "-75");
    for (const NoOrdre n : {f.pere, f.mere, f.enfant})
        CHECK(Controler(n) == Sortes{});
    B().R_DECES.EcrireCellule(f.enfant, "-71");
    CHECK(Controler(f.enfant) == Sortes{DecesAvantNaissance});
    B().R_DECES.EcrireCellule(f.enfant, "30");
    CHECK(Controler(f.enfant) == Sortes{});
    B().R_DECES.EcrireCellule(f.enfant, "31");
    CHECK(Controler(f.enfant) == Sortes{DecesPlusDe100AnsApresNaissance});
    B().R_DECES.EcrireCellule(f.enfant, "");
    B().R_DECES.EcrireCellule(f.pere, "-80");
    CHECK(Controler(f.enfant) == Sortes{NaissancePlusDUnAnApresDecesPere});
    B().R_DECES.EcrireCellule(f.pere, "-81");
    CHECK(Controler(f.enfant) ==
          Sortes{NaissancePlusDe10AnsApresDecesPere, NaissancePlusDUnAnApresDecesPere});
    B().R_DEBMAR.EcrireCellule(f.mariage, "-69");
    CHECK(Controler(f.enfant) == Sortes{NaissancePlusDe10AnsApresDecesPere,
                                        NaissancePlusDUnAnApresDecesPere,
                                        UnionParentsDebuteApresNaissance});
}

TEST_CASE_FIXTURE(Bureau, "Check: a year that tells no decade is compared with nothing") {
    for (const char* annee : {"?", "18?", "1?"}) {
        CAPTURE(annee);
        Bureau bureau{TypeTri::Creation};
        const Famille f = bureau.Fonder("1820", "1825", annee, "");
        CHECK(bureau.Controler(f.enfant) == Sortes{});
        const Famille g = bureau.Fonder(annee, annee, "1850", "");
        bureau.B().R_DECES.EcrireCellule(g.pere, annee);
        bureau.B().R_DECES.EcrireCellule(g.mere, annee);
        bureau.B().R_DECES.EcrireCellule(g.enfant, annee);
        for (const NoOrdre n : {g.pere, g.mere, g.enfant})
            CHECK(bureau.Controler(n) == Sortes{});
    }
}

TEST_CASE_FIXTURE(Bureau, "Check: a child of no known year after the death of a parent") {
    const Famille f = Fonder("1820", "1825", "186?");
    B().R_DECES.EcrireCellule(f.pere, "1850");
    B().R_DECES.EcrireCellule(f.mere, "1850");
    CHECK(Controler(f.enfant) == Sortes{});
    B().R_DECES.EcrireCellule(f.pere, "1849");
    B().R_DECES.EcrireCellule(f.mere, "1849");
    CHECK(Controler(f.enfant) ==
          Sortes{NaissancePlusDe10AnsApresDecesPere, NaissancePlusDe10AnsApresDecesMere});
}

TEST_CASE_FIXTURE(Bureau, "Check: only a union of both parents is compared with the birth") {
    const NoOrdre pere = Creer(Sexe::Homme, "DURAND", "Jean", "1820");
    const NoOrdre mere = Creer(Sexe::Femme, "MARTIN", "Anne", "1825");
    const NoOrdre enfant = Creer(Sexe::Homme, "DURAND", "Paul", "1850");
    Parents(enfant, pere, {});
    CHECK(Controler(enfant) == Sortes{});  // nor does one parent alone ask for any
    B().R_MERE.EcrireCellule(enfant, mere);
    B().R_ENFANT.ModifierListe(mere, enfant, storage::ActionListe::Ajouter);
    Marier(pere, Creer(Sexe::Femme, "AUTRE", "Eve", "1825"), "1860");
    CHECK(Controler(enfant) == Sortes{});
}

#include "records/Depannage.h"

#include "doublures/Coherence.h"
#include "doublures/HistoireEssai.h"
#include "doublures/Inventaire.h"
#include "records/BureauSoin.h"
#include "records/ControleBase.h"
#include "records/Individus.h"
#include "shell/FichierSur.h"

#include <algorithm>
#include <random>
#include <sstream>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Numeros = std::vector<std::uint32_t>;

struct Bureau : BureauSoin {
    using BureauSoin::BureauSoin;
    BilanDepannage bilan;

    /// Repairs without a copy; the lines of the journal, in code page 1252.
    std::vector<std::string> Depanner() {
        bilan = DepannerBase(session, false);
        REQUIRE(bilan.fait);
        const std::string texte =
            Utf8VersTexte(shell::LireTout(bilan.journal).value_or("illisible")).octets;
        std::vector<std::string> lignes;
        std::istringstream flux{texte};
        for (std::string ligne; std::getline(flux, ligne);)
            lignes.push_back(ligne);
        return lignes;
    }
    std::string Ligne(std::string_view ligne) { return std::string{ligne}; }
    /// Nothing is left to mend, and the two places of each fact agree.
    void Sain() {
        CHECK(doublures::Ecarts(B()) == "");
        B().marques = {};
        Depanner();
        CHECK(bilan.reparations == 0);
        CHECK_FALSE(B().marques.Modifie());
    }
    NoOrdre Homme(const char* prenom, const char* annee = "1820") {
        return Creer('H', "DURAND", prenom, annee);
    }
    NoOrdre Femme(const char* prenom, const char* annee = "1825") {
        return Creer('F', "MARTIN", prenom, annee);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Repair: asks for a copy first; no goes on, cancel stops") {
    const NoOrdre paul = Homme("Paul");
    B().R_PERE.EcrireCellule(paul, NoOrdre{999});
    REQUIRE(shell::MnuEnregistrer(session));
    SUBCASE("cancel") {
        dialogue.reponses = {shell::Reponse::Annuler};
        CHECK_FALSE(MnuDepannage(session).fait);
        CHECK(B().R_PERE.LireCellule(paul) == NoOrdre{999});
    }
    SUBCASE("no") {
        dialogue.reponses = {shell::Reponse::Non};
        CHECK(MnuDepannage(session).reparations == 1);
        CHECK_FALSE(std::filesystem::exists(dossier / "Famille.SAV"));
    }
    SUBCASE("yes: the copy holds the damage") {
        const std::string avant = shell::LireTout(dossier / "Famille.LGD").value_or("");
        dialogue.reponses = {shell::Reponse::Oui};
        CHECK(MnuDepannage(session).reparations == 1);
        CHECK(shell::LireTout(dossier / "Famille.SAV") == avant);
    }
    CHECK(dialogue.entendu == std::vector{shell::Msg(843)});
    CHECK(dialogue.titres.back() == shell::Msg(842));
    CHECK(dialogue.questions.back().boutons == shell::Boutons::OuiNonAnnuler);
}

TEST_CASE_FIXTURE(Bureau, "Repair: a running job is told, and nothing is asked") {
    progression.Commencer({}, {});
    CHECK_FALSE(MnuDepannage(session).fait);
    CHECK(Dit() == Numeros{503});
}

TEST_CASE_FIXTURE(Bureau, "Repair: a sound base is not touched, and the journal says so") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    Marier(jean, anne, "1845");
    Marier(jean, anne, "1848");
    Parents(Homme("Paul", "1850"), jean, anne);
    REQUIRE(shell::MnuEnregistrer(session));
    CHECK(Depanner() == std::vector{session.Message(3914)});
    CHECK_FALSE(B().marques.Modifie());
    CHECK(bilan.complet);
    CHECK(bilan.journal == session.Travail() / "Famille.TXT");
    CHECK(progression.textes[1] == shell::Msg(3911));
    CHECK(progression.textes[2] == shell::Litteral("Analyse Mariages"));
    CHECK(progression.textes[3] == shell::Litteral("Analyse Personnes"));
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: the base stays open and dirty, the next commit stores the repairs") {
    const NoOrdre paul = Homme("Paul");
    B().R_PERE.EcrireCellule(paul, NoOrdre{999});
    REQUIRE(shell::MnuEnregistrer(session));
    Depanner();
    CHECK(B().marques.ModifBase);
    REQUIRE(shell::MnuEnregistrer(session));
    shell::OuvrirChemin(session, dossier / "Famille.LGD");
    CHECK(B().R_PERE.LireCellule(paul) == NoOrdre{});
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a union with a partner out of range is cleared, with text, years "
                  "and index words") {
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier({}, anne, "1850");
    B().R_FINMAR.EcrireCellule(m, "1860");
    EcrireTexteMariage(session, m, "1/2@Brest");
    B().R_EPOUX.EcrireCellule(m, NoOrdre{500});
    const std::vector<std::string> voulues{
        "Suppression Mariage 1\tMariage 1 incohérent supprimé"_1252.data(),
        "Suppression Mariage 1\tSuppression lien mariage de Anne MARTIN (o1825) (1)"};
    CHECK(Depanner() == voulues);
    CHECK(B().R_MARIAG.NbElements(anne) == 0);
    CHECK(B().R_EPOUSE.LireCellule(m) == NoOrdre{});
    CHECK(B().R_DEBMAR.LireCellule(m).empty());
    CHECK(B().R_FINMAR.LireCellule(m).empty());
    CHECK(B().R_TXTMAR.LireTexte(m).empty());
    CHECK(B().R_INDEX.ListeMots(NoMotCle{4}).empty());
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a union of one partner stays if that one lives, and goes if not") {
    const NoOrdre anne = Femme("Anne");
    const NoOrdre eve = Femme("Eve");
    const NoMariage reste = Marier({}, anne, "1850");
    const NoMariage part = Marier({}, eve, "1860");
    const NoMariage vide = Marier({}, {}, "");
    B().R_TRI.RetirerIndividu(eve);
    B().R_NOM.EcrireNom(eve, "");
    B().R_SEXE.EcrireCellule(eve, ' ');
    B().R_NAISS.EcrireCellule(eve, "");
    B().R_MARIAG.ModifierListe(eve, part, 'S');
    CHECK(Depanner().size() == 1);
    CHECK(B().R_EPOUSE.LireCellule(reste) == anne);
    CHECK(B().R_EPOUSE.LireCellule(part) == NoOrdre{});
    CHECK(B().R_DEBMAR.LireCellule(part).empty());
    CHECK(B().R_EPOUX.LireCellule(vide) == NoOrdre{});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: a deleted partner leaves the union to the one who lives") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(jean, anne, "1850");
    B().R_TRI.RetirerIndividu(jean);
    B().R_NOM.EcrireNom(jean, "");
    B().R_SEXE.EcrireCellule(jean, ' ');
    B().R_NAISS.EcrireCellule(jean, "");
    B().R_MARIAG.ModifierListe(jean, m, 'S');
    Depanner();
    CHECK(B().R_EPOUX.LireCellule(m) == NoOrdre{});
    CHECK(B().R_MARIAG.Elements(anne) == std::vector{m});
    CHECK(B().R_DEBMAR.LireCellule(m) == "1850");
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: the words of a union leave a partner who was deleted") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(jean, anne, "1850");
    EcrireTexteMariage(session, m, "1/2@Brest");
    B().R_TRI.RetirerIndividu(jean);
    B().R_NOM.EcrireNom(jean, "");
    B().R_SEXE.EcrireCellule(jean, ' ');
    B().R_NAISS.EcrireCellule(jean, "");
    B().R_MARIAG.ModifierListe(jean, m, 'S');
    B().marques.AffichagePerime = false;
    // The list of words need not be made anew for that.
    CHECK(Depanner() ==
          std::vector<std::string>{"Suppression Conjoint 1\tSuppression conjoint du mariage 1"});
    const NoIndex brest = B().R_INDEX.ChercherMot(NoMotCle{4}, "BREST");
    CHECK(B().R_INDEX.PersonnesIndex(brest) == std::vector{anne});
    CHECK(B().marques.AffichagePerime);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: full lists make room even for who comes first in the order") {
    const NoOrdre jean = Homme("Jean", "1820");
    const NoOrdre fils = Homme("Paul", "1800");
    const NoOrdre anne = Femme("Anne");
    const NoMariage autre = Marier(Homme("Louis"), Femme("Eve"));
    const NoMariage union_ = Marier(jean, anne, "1850");
    B().R_MARIAG.ModifierListe(jean, union_, 'S');
    for (int i = 0; i < 200; ++i) {
        B().R_ENFANT.ModifierListe(jean, anne, 'A');
        B().R_MARIAG.ModifierListe(jean, autre, 'A');
    }
    REQUIRE(B().R_ENFANT.NbElements(jean) == 200);
    REQUIRE(B().R_MARIAG.NbElements(jean) == 200);
    B().R_PERE.EcrireCellule(fils, jean);
    Depanner();
    CHECK(B().R_ENFANT.Elements(jean) == std::vector{fils});
    CHECK(B().R_MARIAG.Elements(jean) == std::vector{union_});
    CHECK(B().marques.AffichagePerime);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: partners who do not list their union get it") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(jean, anne, "1850");
    B().R_MARIAG.ModifierListe(jean, m, 'S');
    B().R_MARIAG.ModifierListe(anne, m, 'S');
    const std::vector<std::string> voulues{
        "Ajout Mariage Jean DURAND (o1820) (1)\tLien mariage de Jean DURAND (o1820) (1) avec "
        "Anne MARTIN (o1825) (2) cr\xE9\xE9",
        "Ajout Mariage Anne MARTIN (o1825) (2)\tLien mariage de Anne MARTIN (o1825) (2) avec "
        "Jean DURAND (o1820) (1) cr\xE9\xE9"};
    CHECK(Depanner() == voulues);
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a woman in the husband's place and a man in the wife's change places") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoMariage m = Marier(anne, jean, "1850");
    Depanner();
    CHECK(B().R_EPOUX.LireCellule(m) == jean);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: unions of a list that are others' or nobody's leave it") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoOrdre paul = Homme("Paul");
    const NoMariage m = Marier(jean, anne, "1850");
    B().R_MARIAG.ModifierListe(paul, m, 'A');
    B().R_MARIAG.ModifierListe(anne, NoMariage{60000}, 'A');
    B().R_MARIAG.ModifierListe(anne, m, 'A');
    CHECK(Depanner().size() == 3);
    CHECK(B().R_MARIAG.NbElements(paul) == 0);
    CHECK(B().R_MARIAG.Elements(anne) == std::vector{m});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: ranks of nobody, of nothing and twice are taken out") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre paul = Homme("Paul", "1850");
    for (const std::uint32_t numero : {jean.valeur, 0U, 65535U}) {
        ++B().entete.NbTriIndividus;
        B().R_TRI.ModifierTri(2, NoOrdre{numero}, 'A');
    }
    const std::vector<std::string> lignes = Depanner();
    CHECK(lignes[0] == "Suppression Indice 2\tSuppression individu 65535");
    CHECK(lignes.size() == 3);
    CHECK(B().R_TRI.individus.Numeros() ==
          std::vector<std::uint16_t>{static_cast<std::uint16_t>(jean.valeur),
                                     static_cast<std::uint16_t>(paul.valeur)});
    CHECK(B().entete.NbTriIndividus == 2);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: a count above the table comes down") {
    Homme("Jean");
    B().entete.NbTriIndividus = 40;
    Depanner();
    CHECK(B().entete.NbTriIndividus == 1);
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a living person who is in no rank comes back at the right place") {
    const NoOrdre jean = Homme("Jean", "1820");
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre seul = Creer(' ', "DURAND", "Seul", "1840");
    const NoMariage m = Marier(seul, {}, "1870");
    B().R_TRI.RetirerIndividu(jean);
    B().R_TRI.RetirerIndividu(seul);
    Depanner();
    CHECK(B().R_TRI.IndividuAuRang(1) == jean);
    CHECK(B().R_TRI.IndividuAuRang(2) == seul);
    CHECK(B().R_TRI.IndividuAuRang(3) == paul);
    // The union of someone who only seemed to be gone is kept.
    CHECK(B().R_EPOUX.LireCellule(m) == seul);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: an order that is broken is made anew") {
    const NoOrdre jean = Homme("Jean", "1820");
    const NoOrdre paul = Homme("Paul", "1850");
    B().R_NAISS.EcrireCellule(jean, "1900");
    Depanner();
    CHECK(B().R_TRI.IndividuAuRang(1) == paul);
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: parents out of range or deleted are cleared") {
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre mere = Femme("Anne");
    B().R_PERE.EcrireCellule(paul, NoOrdre{64000});
    B().R_MERE.EcrireCellule(paul, mere);
    B().R_ENFANT.ModifierListe(mere, paul, 'A');
    SupprimerIndividu(session, mere);
    B().R_TRI.RetirerIndividu(mere);
    B().R_NOM.EcrireNom(mere, "");
    B().R_SEXE.EcrireCellule(mere, ' ');
    B().R_NAISS.EcrireCellule(mere, "");
    B().R_ENFANT.EcrireListe(mere, "");
    const std::vector<std::string> voulues{
        "Suppression P\xE8re Paul DURAND (o1850) (1)\tSuppression p\xE8re de 1",
        "Suppression M\xE8re Paul DURAND (o1850) (1)\tSuppression m\xE8re de 1"};
    CHECK(Depanner() == voulues);
    CHECK(B().R_MERE.LireCellule(paul) == NoOrdre{});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: parents who do not list their child get it, by year of birth") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre luc = Homme("Luc", "1848");
    Parents(paul, jean, anne);
    Parents(luc, jean, anne);
    B().R_ENFANT.ModifierListe(jean, luc, 'S');
    B().R_ENFANT.ModifierListe(anne, paul, 'S');
    const std::vector<std::string> lignes = Depanner();
    CHECK(lignes.size() == 2);
    CHECK(lignes[0] ==
          "Ajout Enfant Luc DURAND (o1848) (4)\tAjout lien enfant de Jean DURAND (o1820) (1) avec "
          "Luc DURAND (o1848) (4)");
    CHECK(B().R_ENFANT.Elements(jean) == std::vector{luc, paul});
    Sain();
}

TEST_CASE_FIXTURE(Bureau, "Repair: children of a list who are others' or nobody's leave it") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre paul = Homme("Paul", "1850");
    const NoOrdre indetermine = Creer('I', "DURAND", "Max", "1820");
    B().R_ENFANT.ModifierListe(jean, paul, 'A');
    B().R_ENFANT.ModifierListe(jean, NoOrdre{60000}, 'A');
    B().R_ENFANT.ModifierListe(indetermine, paul, 'A');
    B().marques.AffichagePerime = false;
    CHECK(Depanner().size() == 3);
    CHECK(B().marques.AffichagePerime);
    CHECK(B().R_ENFANT.NbElements(jean) == 0);
    Sain();
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: who is his own father keeps the link, since the list holds him") {
    const NoOrdre paul = Homme("Paul", "1850");
    B().R_PERE.EcrireCellule(paul, paul);
    B().R_ENFANT.ModifierListe(paul, paul, 'A');
    CHECK(Depanner() == std::vector{session.Message(3914)});
    CHECK(B().R_PERE.LireCellule(paul) == paul);
}

TEST_CASE_FIXTURE(Bureau, "Repair: a mother whose sex is wrong keeps her children") {
    const NoOrdre anne = Homme("Anne");
    const NoOrdre paul = Homme("Paul", "1850");
    B().R_MERE.EcrireCellule(paul, anne);
    Depanner();
    CHECK(B().R_ENFANT.Elements(anne) == std::vector{paul});
    Depanner();
    CHECK(bilan.reparations == 0);
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a list full of others makes room; one full of the right ones is told") {
    const NoOrdre jean = Homme("Jean");
    std::vector<NoOrdre> enfants;
    for (int i = 0; i < 201; ++i)
        enfants.push_back(Homme("Paul", "1850"));
    const NoOrdre dernier = enfants.back();
    SUBCASE("others") {
        for (int i = 0; i < 200; ++i)
            B().R_ENFANT.ModifierListe(jean, enfants[0], 'A');
        B().R_PERE.EcrireCellule(dernier, jean);
        Depanner();
        CHECK(B().R_ENFANT.Elements(jean) == std::vector{dernier});
        Sain();
    }
    SUBCASE("the right ones") {
        for (const NoOrdre enfant : enfants)
            B().R_PERE.EcrireCellule(enfant, jean);
        for (int i = 0; i < 200; ++i)
            B().R_ENFANT.ModifierListe(jean, enfants[static_cast<std::size_t>(i)], 'A');
        const std::vector<std::string> lignes = Depanner();
        CHECK(bilan.reparations == 0);
        CHECK(lignes.size() == 1);
        CHECK(B().R_PERE.LireCellule(dernier) == jean);
    }
}

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
    B().R_LIEN.ModifierListe(paul, NoOrdre{1}, 'M', "parrain");
    Depanner();
    CHECK(bilan.reparations == 0);
}

TEST_CASE_FIXTURE(Bureau, "Repair: events and documents against the lists of persons") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireDoc(d, {"Titre", "a.jpg", "", ""});
    B().R_TRI.AjouterDocument(d);
    B().R_LSTIMG.ModifierListe(jean, d, 'A');
    B().R_LSTIMG.ModifierListe(jean, NoDocument{30000}, 'A');
    const NoEvenement e = B().NouvelEvenement();
    B().R_EVT.EcrireEvt(e, {.cleDate = 5,
                            .liens = {{{jean, "WITN"}, {NoOrdre{800}, "WITN"}}},
                            .documents = {{d, NoDocument{77}}},
                            .description = storage::DescriptionEvt{"Brest", "", "MARR"}});
    B().R_TRI.AjouterEvt(e);
    B().R_LSTEVT.ModifierListe(anne, e, 'A', "WIFE");
    B().R_LSTEVT.ModifierListe(anne, NoEvenement{31000}, 'A', "WIFE");
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
        B().R_LSTEVT.ModifierListe(jean, e, 'A', "WITN");
    }
    for (const NoDocument d : {abbaye, efface})
        B().R_LSTIMG.ModifierListe(jean, d, 'A');
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
    B().R_LSTEVT.ModifierListe(jean, e, 'A', "WITN");
    const NoDocument d = B().NouveauDocument();
    B().R_IMAGE.EcrireCellule(d, B().volume.Ajouter(std::string(40000, 'x')));
    B().R_LSTIMG.ModifierListe(jean, d, 'A');
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

TEST_CASE_FIXTURE(Bureau, "Repair: a stop keeps what was mended") {
    for (int i = 0; i < 5; ++i)
        B().R_PERE.EcrireCellule(Homme("Paul"), NoOrdre{999});
    progression.annulerAu = 4;
    Depanner();
    CHECK_FALSE(bilan.complet);
    CHECK(bilan.reparations == 5);
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(Bureau,
                  "Repair: a base that is closed meanwhile ends the repair, the journal stands") {
    for (int i = 0; i < 5; ++i)
        B().R_PERE.EcrireCellule(Homme("Paul"), NoOrdre{999});
    progression.aChaquePas = [this] {
        if (progression.pas == 3) session.PoserBase(nullptr);
    };
    CHECK(Depanner().size() == 5);
    CHECK_FALSE(bilan.complet);
    CHECK(progression.pas == 3);
}

TEST_CASE_FIXTURE(Bureau, "Repair: a journal that cannot be written is told, the repairs stay") {
    Homme("Paul");
    std::filesystem::create_directories(session.Travail() / "Famille.TXT");
    bilan = DepannerBase(session, false);
    CHECK(bilan.fait);
    CHECK(bilan.journal.empty());
    CHECK(Dit() == Numeros{3916});
}

TEST_CASE("Repair: whatever was damaged, once is enough, nobody is lost, and the places agree") {
    // What is wrong with a family and not with the file; the user decides.
    static constexpr const char* Genealogie[] = {"sex of parent",
                                                 "person is its own ancestor",
                                                 "same father and mother",
                                                 "husband is a woman",
                                                 "wife is a man",
                                                 "union with oneself",
                                                 "children out of order",
                                                 "link with oneself",
                                                 "deleted person is not empty",
                                                 "removed union is not empty",
                                                 "link on one side"};
    for (std::uint32_t graine = 1; graine <= 25; ++graine) {
        CAPTURE(graine);
        Bureau bureau;
        doublures::HistoireEssai histoire{bureau, graine};
        bureau.dialogue.pendant = nullptr;
        for (int i = 0; i < 160; ++i) {
            bureau.dialogue.reponses.assign(8, histoire.Repondre());
            histoire.Agir();
        }
        bureau.dialogue.reponses.clear();
        storage::Base& b = bureau.B();
        std::vector<std::uint16_t> avant = b.R_TRI.individus.Numeros();
        std::mt19937 hasard{graine};
        const auto tirer = [&](std::uint32_t sur) {
            return static_cast<std::uint32_t>(hasard() % std::uint64_t{sur});
        };
        const auto personne = [&] { return NoOrdre{1 + tirer(b.entete.DernierIndividu + 3)}; };
        const auto union_ = [&] { return NoMariage{1 + tirer(b.entete.DernierMariage + 2)}; };
        for (int i = 0; i < 25; ++i) {
            const NoOrdre n{b.R_TRI.IndividuAuRang(1 + tirer(b.entete.NbTriIndividus))};
            if (!n) continue;
            switch (tirer(10)) {
                case 0:
                    b.R_PERE.EcrireCellule(n, personne());
                    break;
                case 1:
                    b.R_MERE.EcrireCellule(n, personne());
                    break;
                case 2:
                    b.R_ENFANT.ModifierListe(n, personne(), 'A');
                    break;
                case 3:
                    b.R_ENFANT.EcrireListe(n, "");
                    break;
                case 4:
                    b.R_MARIAG.EcrireListe(n, "");
                    break;
                case 5:
                    b.R_MARIAG.ModifierListe(n, union_(), 'A');
                    break;
                case 6: {
                    const NoMariage m = union_();
                    const NoOrdre epoux = personne();
                    if (b.R_EPOUSE.LireCellule(m) != epoux) b.R_EPOUX.EcrireCellule(m, epoux);
                    break;
                }
                case 7: {
                    const NoMariage m = union_();
                    const NoOrdre epouse = personne();
                    // Who is married to oneself has each word of the union once, or twice.
                    if (b.R_EPOUX.LireCellule(m) != epouse) b.R_EPOUSE.EcrireCellule(m, epouse);
                    break;
                }
                case 8:
                    b.R_TRI.FixerRang(1 + tirer(b.entete.NbTriIndividus), personne());
                    break;
                default:
                    b.R_LSTEVT.EcrireListe(n, "");
                    break;
            }
        }
        bureau.Depanner();
        std::vector<std::uint16_t> apres = b.R_TRI.individus.Numeros();
        std::sort(avant.begin(), avant.end());
        std::sort(apres.begin(), apres.end());
        CHECK(std::includes(apres.begin(), apres.end(), avant.begin(), avant.end()));
        std::istringstream ecarts{doublures::Ecarts(b)};
        for (std::string ecart; std::getline(ecarts, ecart);) {
            CAPTURE(ecart);
            CHECK(std::any_of(std::begin(Genealogie), std::end(Genealogie),
                              [&](const char* debut) { return ecart.starts_with(debut); }));
        }
        b.marques = {};
        bureau.Depanner();
        CHECK(bureau.bilan.reparations == 0);
        CHECK_FALSE(b.marques.Modifie());
        bureau.dialogue.entendu.clear();
        ControlerBase(bureau.session, [&](const Constat& constat) {
            CHECK(constat.message != 506);
            CHECK(constat.message != 512);
            CHECK(constat.message != 516);
        });
    }
}

TEST_CASE_FIXTURE(Bureau, "Repair: who and what is made while it runs is not taken for damage") {
    const NoOrdre paul = Homme("Paul", "1850");
    NoOrdre pere{};
    NoEvenement acte{};
    NoDocument photo{};
    progression.aChaquePas = [&] {
        // In the middle of the phases about persons, then of those about events.
        if (progression.textes.back() == shell::Litteral("Analyse Mariages") ||
            progression.textes.back() == shell::Litteral("Analyse Personnes")) {
            if (pere) return;
            pere = Homme("Louis");
            Parents(paul, pere, {});
        } else if (progression.textes.back() == shell::Msg(3912) && !acte) {
            acte = B().NouvelEvenement();
            storage::PartiesEvt parties;
            parties.description = storage::DescriptionEvt{"Brest", {}, "CENS"};
            parties.liens = std::vector{storage::LienEvenement{paul, "MAIN"}};
            B().R_EVT.EcrireEvt(acte, parties);
            B().R_TRI.AjouterEvt(acte);
            B().R_LSTEVT.ModifierListe(paul, acte, 'A', "MAIN");
            photo = B().NouveauDocument();
            B().R_IMAGE.EcrireDoc(photo, {"Photo", "photo.jpg", {}, {}});
            B().R_TRI.AjouterDocument(photo);
            B().R_LSTIMG.ModifierListe(paul, photo, 'A');
        }
    };
    Depanner();
    progression.aChaquePas = {};
    REQUIRE(pere);
    REQUIRE(acte);
    CHECK(bilan.reparations == 0);
    CHECK(B().R_PERE.LireCellule(paul) == pere);
    CHECK(B().R_LSTEVT.NbElements(paul) == 1);
    CHECK(B().R_LSTIMG.NbElements(paul) == 1);
    Sain();
}

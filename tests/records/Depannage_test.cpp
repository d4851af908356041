#include "doublures/Coherence.h"
#include "doublures/HistoireEssai.h"
#include "doublures/Inventaire.h"
#include "messages/Messages.h"
#include "messages/Soin.h"
#include "records/ControleBase.h"
#include "records/EssaiDepannage.h"
#include "records/Individus.h"

#include <algorithm>
#include <random>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Bureau = EssaiDepannage;

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Repair: asks for a copy first; no goes on, cancel stops") {
    const NoOrdre paul = Homme("Paul");
    B().R_PERE.EcrireCellule(paul, NoOrdre{999});
    REQUIRE(shell::MnuEnregistrer(session));
    SUBCASE("cancel") {
        dialogue.reponses = {shell::Reponse::Annuler};
        CHECK_FALSE(MnuDepannage(session).issue);
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
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::ProposerCopieAvantDepannage)});
    CHECK(dialogue.titres.back() == shell::Msg(message::ProposerCopieAvantOperation));
    CHECK(dialogue.questions.back().boutons == shell::Boutons::OuiNonAnnuler);
}

TEST_CASE_FIXTURE(Bureau, "Repair: a running job is told, and nothing is asked") {
    progression.Commencer({}, {});
    CHECK_FALSE(MnuDepannage(session).issue);
    CHECK(Dit() == std::vector{message::OperationImpossible});
}

TEST_CASE_FIXTURE(Bureau, "Repair: a sound base is not touched, and the journal says so") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre anne = Femme("Anne");
    Marier(jean, anne, "1845");
    Marier(jean, anne, "1848");
    Parents(Homme("Paul", "1850"), jean, anne);
    REQUIRE(shell::MnuEnregistrer(session));
    CHECK(Depanner() == std::vector{session.Message(message::InfoRienAReparer)});
    CHECK_FALSE(B().marques.Modifie());
    CHECK(bilan.complet);
    CHECK(bilan.journal == session.Travail() / "Famille.TXT");
    CHECK(progression.textes[1] == shell::Msg(message::EtatAnalyseOrdreDeTri));
    CHECK(progression.textes[2] == shell::Litteral("Analyse Mariages"));
    CHECK(progression.textes[3] == shell::Litteral("Analyse Personnes"));
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(Bureau, "Repair: ranks of nobody, of nothing and twice are taken out") {
    const NoOrdre jean = Homme("Jean");
    const NoOrdre paul = Homme("Paul", "1850");
    for (const std::uint32_t numero : {jean.valeur, 0U, 65535U}) {
        ++B().entete.NbTriIndividus;
        B().R_TRI.ModifierTri(2, NoOrdre{numero}, storage::ActionListe::Ajouter);
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
    const NoOrdre seul = Creer(Sexe::Vide, "DURAND", "Seul", "1840");
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
    CHECK(bilan.issue);
    CHECK(bilan.journal.empty());
    CHECK(Dit() == std::vector{message::CompteRenduNonEcrit});
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
                    b.R_ENFANT.ModifierListe(n, personne(), storage::ActionListe::Ajouter);
                    break;
                case 3:
                    b.R_ENFANT.EcrireListe(n, "");
                    break;
                case 4:
                    b.R_MARIAG.EcrireListe(n, "");
                    break;
                case 5:
                    b.R_MARIAG.ModifierListe(n, union_(), storage::ActionListe::Ajouter);
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
            CHECK(constat.sorte != SorteConstat::HorsOrdreDeTri);
            CHECK(constat.sorte != SorteConstat::AbsentDesEnfantsDuPere);
            CHECK(constat.sorte != SorteConstat::AbsentDesEnfantsDeLaMere);
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
        } else if (progression.textes.back() == shell::Msg(message::EtatAnalyseLiensEtFaits) &&
                   !acte) {
            acte = B().NouvelEvenement();
            storage::PartiesEvt parties;
            parties.description = storage::DescriptionEvt{"Brest", {}, "CENS"};
            parties.liens = std::vector{storage::LienEvenement{paul, "MAIN"}};
            B().R_EVT.EcrireEvt(acte, parties);
            B().R_TRI.AjouterEvt(acte);
            B().R_LSTEVT.ModifierListe(paul, acte, storage::ActionListe::Ajouter, "MAIN");
            photo = B().NouveauDocument();
            B().R_IMAGE.EcrireDoc(photo, {"Photo", "photo.jpg", {}, {}});
            B().R_TRI.AjouterDocument(photo);
            B().R_LSTIMG.ModifierListe(paul, photo, storage::ActionListe::Ajouter);
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

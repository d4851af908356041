#include "shell/Reorganisation.h"

#include "doublures/ContenuBase.h"
#include "doublures/DisqueMemoire.h"
#include "doublures/FamilleEssai.h"
#include "doublures/SeanceEssai.h"
#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "messages/Soin.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/FichierSur.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "storage/BaseAncienne.h"
#include "values/Texte1252.h"

#include <map>
#include <memory>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;

namespace {

struct Bureau : doublures::SessionEssai {
    Bureau() {
        Demarrage(session);
        dialogue.fichiers.emplace_back(chemin);
        MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        storage::SeanceEssai seance{*session.base, 3};
        for (int i = 0; i < 200; ++i)
            seance.Agir();
        REQUIRE(MnuEnregistrer(session));
        dialogue.entendu.clear();
        dialogue.annonces.clear();
    }
    std::filesystem::path chemin = dossier / "Famille.LGD";

    std::string Octets(const char* nom = "Famille.LGD") {
        return LireTout(dossier / nom).value_or("absent");
    }
    std::string Contenu() { return storage::ContenuBase{*session.base}.Texte(); }
};

/// The bytes of a file of version 3.1 with two persons, with words in the language of the session.
std::string VieilleBase(Session& session) {
    const std::string metier = session.Message(MessageDeTag("OCCU"));
    storage::BaseAncienne ancienne{"[Dorvane Version 3.1]"};
    ancienne.Individus({{"DURAND;Jean;;vers;12 mars", "1820"}, {"MARTIN;Paul", "1850"}});
    ancienne.MotsCles({{'|', "BIRN"}, {'\\', metier}});
    const unsigned texte = ancienne.Ajouter("|DURAND\r\n" + metier + " meunier\n#");
    ancienne.Colonne(1297, 4, '\0', {storage::BaseAncienne::Nombre(texte, 4)});
    return ancienne.Finir();
}

}  // namespace

TEST_CASE_FIXTURE(Bureau, "MnuReorganiser: asks for a copy first; no goes on, cancel stops") {
    const std::string avant = Octets();
    const std::string contenu = Contenu();
    SUBCASE("cancel") {
        dialogue.reponses = {Reponse::Annuler};
        CHECK(MnuReorganiser(session).cause == Cause::Arrete);
        CHECK(Octets() == avant);
        CHECK(ecran.fermetures == 0);
    }
    SUBCASE("no") {
        dialogue.reponses = {Reponse::Non};
        CHECK(MnuReorganiser(session).cause == Cause::Fait);
        CHECK(Octets().size() < avant.size());
        CHECK(Octets("Famille.SAV") == "absent");
    }
    SUBCASE("yes: the copy is the base as it was") {
        dialogue.reponses = {Reponse::Oui};
        CHECK(MnuReorganiser(session).cause == Cause::Fait);
        CHECK(Octets().size() < avant.size());
        CHECK(Octets("Famille.SAV") == avant);
        CHECK(ecran.fermetures > 0);
    }
    REQUIRE(dialogue.questions.size() == 1);
    CHECK(dialogue.questions[0].texte == Msg(message::ProposerCopieAvantOperation));
    CHECK(dialogue.questions[0].titre == Msg(message::TitreReorganisationBase));
    CHECK(dialogue.questions[0].boutons == Boutons::OuiNonAnnuler);
    REQUIRE(session.BaseOuverte());
    CHECK(Contenu() == contenu);
    CHECK(Octets("Reorg.fic") == "absent");
    CHECK(progression.cadres == 0);
    CHECK(progression.sabliers == 0);
}

TEST_CASE_FIXTURE(Bureau, "MnuReorganiser: a running job is told, and nothing is asked") {
    progression.Commencer({}, {});
    CHECK(MnuReorganiser(session).cause == Cause::Refuse);
    CHECK(dialogue.entendu == std::vector{Msg(message::OperationImpossible)});
}

TEST_CASE_FIXTURE(Bureau, "MnuReorganiser: a sheet that stays open stops it before the question") {
    const std::string avant = Octets();
    ecran.ficheSeFerme = false;
    CHECK(MnuReorganiser(session).cause == Cause::Arrete);
    CHECK(dialogue.questions.empty());
    CHECK(ecran.fermetures == 0);
    CHECK(Octets() == avant);
    CHECK(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: what was not saved yet is in the new file") {
    const NoOrdre n =
        doublures::FamilleEssai{*session.base}.Creer(Sexe::Homme, "NOUVEAU", "Paul", "1850");
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(session.base->R_NOM.NomDe(n) == "NOUVEAU");
    CHECK(Octets().find("NOUVEAU;Paul") != std::string::npos);
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: current person and numberings are taken up again") {
    const NoOrdre n = session.base->R_TRI.IndividuAuRang(3);
    session.PersonneEnCours = n;
    session.deCujus[0].individu = n;
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(session.PersonneEnCours == n);
    CHECK(session.deCujus[0].individu == n);
    CHECK(session.deCujus[0].NumeroDe(n) == "1");
    CHECK(session.CheminBase == chemin);
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: nobody reaches the base while it is copied") {
    bool ouverte = false;
    progression.aChaquePas = [&] {
        ouverte = ouverte || session.BaseOuverte();
        Minuterie1(session);
    };
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK_FALSE(ouverte);
    CHECK(progression.pas > 5);
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: given up, the base is as it was and open again") {
    const std::string avant = Octets();
    progression.annulerAu = 4;
    CHECK(ReorganiserBase(session, false).cause == Cause::Arrete);
    CHECK(Octets() == avant);
    CHECK(Octets("Reorg.fic") == "absent");
    CHECK(session.BaseOuverte());
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: the size before and after is told, by thousands") {
    const auto dite = [this] {
        std::string taille = std::to_string(Octets().size());
        REQUIRE(taille.size() > 3);
        REQUIRE(taille.size() <= 6);
        return taille.insert(taille.size() - 3, "\xA0");
    };
    const std::string avant = dite();
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(dialogue.annonces.back() == Msg(message::EtatReorganisationTerminee, dite(), avant));
}

TEST_CASE("Reorganisation: unions that are left out are told with their number") {
    doublures::SessionEssai essai;
    Demarrage(essai.session);
    essai.dialogue.fichiers.emplace_back(essai.dossier / "Famille.LGD");
    MnuNouveau(essai.session);
    doublures::FamilleEssai famille{*essai.session.base};
    famille.Marier({}, famille.Creer(Sexe::Femme, "MARTIN", "Anne"));
    essai.dialogue.entendu.clear();
    REQUIRE(ReorganiserBase(essai.session, false).cause == Cause::Fait);
    CHECK(essai.dialogue.entendu == std::vector{Msg(message::UnionsSansEpouxAbandonnees, "1")});
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: a leftover of an earlier one is overwritten") {
    doublures::EcrireFichier(dossier / "Reorg.fic", "un reste");
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(Octets("Reorg.fic") == "absent");
}

TEST_CASE_FIXTURE(
    Bureau, "Reorganisation: the journal of a base of that name in the folder is not touched") {
    doublures::EcrireFichier(dossier / "Reorg.LOG", "le journal d'une autre base");
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(Octets("Reorg.LOG") == "le journal d'une autre base");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: a base that bears the name of the new file is not overwritten") {
    MnuFermer(session);
    std::filesystem::rename(chemin, dossier / "Reorg.fic");
    const std::string avant = Octets("Reorg.fic");
    REQUIRE(OuvrirChemin(session, dossier / "Reorg.fic"));
    dialogue.entendu.clear();
    CHECK(ReorganiserBase(session, false).cause == Cause::Refuse);
    CHECK(dialogue.entendu.size() == 1);
    CHECK(Octets("Reorg.fic") == avant);
    CHECK(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: two at a time in one folder are refused") {
    const storage::ResultatVerrou verrou = disque.Verrouiller(dossier / "Reorg.fic");
    const std::string avant = Octets();
    CHECK(ReorganiserBase(session, false).cause == Cause::Refuse);
    CHECK(dialogue.entendu == std::vector{Msg(message::ReorganisationDejaEnCours,
                                              CheminAffiche(dossier / "Reorg.fic"))});
    CHECK(Octets() == avant);
    CHECK(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: a new file that cannot be written is told") {
    const std::string avant = Octets();
    std::filesystem::create_directories(dossier / "Reorg.fic" / "plein");
    CHECK(ReorganiserBase(session, false).cause == Cause::Systeme);
    CHECK(dialogue.entendu ==
          std::vector{Msg(message::NouveauFichierNonEcrit, CheminAffiche(dossier / "Reorg.fic"))});
    CHECK(Octets() == avant);
    CHECK(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: pairs of persons are kept, those of the deleted dropped") {
    const NoOrdre a = session.base->R_TRI.IndividuAuRang(1);
    const NoOrdre b = session.base->R_TRI.IndividuAuRang(2);
    const auto paire = [](NoOrdre p, std::uint32_t q) {
        return std::to_string(p.valeur) + "\t" + std::to_string(q) + "\r\n";
    };
    CHECK(CheminPaires(chemin) == dossier / "Famille.FUS");
    const std::string gardees = paire(a, b.valeur) + "en-tete\r\n" + paire(b, a.valeur);
    doublures::EcrireFichier(dossier / "Famille.FUS", paire(a, 64000) + gardees + paire(b, 99999) +
                                                          "70000000000000000000 1\n");
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(Octets("Famille.FUS") == gardees);
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(Octets("Famille.FUS") == gardees);
    CHECK(Octets("Famille.FUS.TMP") == "absent");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: an old base becomes neutral, dates, labels, slots and index") {
    storage::Base& b = *session.base;
    doublures::FamilleEssai famille{b};
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean", "1820", "1890");
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne", "1825");
    const NoMariage m = famille.Marier(jean, anne, "1845");
    b.R_NOM.EcrireNom(jean, "DURAND;Jean;;vers;12 mars");
    const std::string metier = session.Message(MessageDeTag("OCCU"));
    const std::string divorce = session.Message(MessageDeTag("DIV"));
    const std::string parrain = session.Message(MessageDeTag("GODF"));
    REQUIRE(metier != "OCCU");
    for (const auto& [k, libelle] : {std::pair{6U, metier}, {10U, divorce}}) {
        storage::MotCle type = b.motsCles.LibelleType(NoMotCle{k});
        type.libelle = libelle;
        b.motsCles.CreerType(NoMotCle{k}, type);
    }
    const std::string texte =
        "|DURAND\r\n" + metier + " meunier \\Brest\n" + "Note : " + metier + " ?";
    b.R_TEXTE.EcrireTexte(jean, texte);
    b.R_INDEX.MajIndex(jean, "", texte);
    b.R_TXTMAR.EcrireTexte(m, "vers @Lyon\r\n" + divorce + " 1/2/1850\n");
    for (const NoOrdre n : {jean, anne})
        b.R_INDEX.MajIndex(n, "", b.R_TXTMAR.LireTexte(m));
    famille.Lier(jean, anne, parrain);
    b.entete.LibellesNeutres = false;
    b.marques.ModifBase = true;

    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    storage::Base& neuve = *session.base;
    CHECK(neuve.entete.LibellesNeutres);
    CHECK(neuve.motsCles.LibelleType(NoMotCle{6}).libelle == "OCCU");
    CHECK(neuve.R_NOM.LireTexte(jean) == "DURAND;Jean;;ABT;12/3");
    CHECK(neuve.R_TEXTE.LireTexte(jean) ==
          "|DURAND\r\nOCCU meunier \\Brest\nNote : " + metier + " ?");
    CHECK(neuve.R_LIEN.TexteElement(jean, 1) == "GODF");
    CHECK(neuve.R_TXTMAR.LireTexte(NoMariage{neuve.R_MARIAG.ElementListe(jean, 1)}) ==
          "ABT @Lyon\r\nDIV 1/2/1850\n");
    const std::string avant = Octets();
    REQUIRE(ReorganiserBase(session, false).cause == Cause::Fait);
    CHECK(Octets() == avant);
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: an old base that is given up while it turns neutral stays old") {
    session.base->entete.LibellesNeutres = false;
    session.base->marques.ModifBase = true;
    session.base->R_NOM.EcrireNom(NoOrdre{1}, "DURAND;Jean;;vers");
    REQUIRE(MnuEnregistrer(session));
    const std::string avant = Octets();
    for (const std::uint32_t arret : {1U, 2U, 5U, 9U}) {
        progression.pas = 0;
        progression.annulerAu = arret;
        CHECK(ReorganiserBase(session, false).cause == Cause::Arrete);
        CHECK(Octets() == avant);
        CHECK_FALSE(session.base->entete.LibellesNeutres);
    }
}

TEST_CASE(
    "Reorganisation: a reading that fails, the conversion's too, is told and changes nothing") {
    doublures::SessionEssai essai;
    storage::DisqueMemoire disque;
    Session session{essai.Lieux(),
                    {essai.dialogue, essai.progression, essai.horloge, essai.ecran, disque}};
    Demarrage(session);
    const std::string vieille = VieilleBase(session);
    for (int n = 1;; ++n) {
        CAPTURE(n);
        disque.Poser("/vieille.LGD", vieille);
        essai.dialogue.entendu.clear();
        disque.lectureRefusee = disque.lectures + n;
        const Issue issue = ReecrireBase(session, "/vieille.LGD");
        if (disque.lectures < disque.lectureRefusee) {
            CHECK(issue);
            CHECK(n > 3);
            break;
        }
        CHECK(issue.cause == Cause::Systeme);
        CHECK(essai.dialogue.entendu.size() == 1);
        CHECK(disque.Octets("/vieille.LGD") == vieille);
        CHECK_FALSE(disque.Existe("/Reorg.fic"));
    }
}

TEST_CASE("Reorganisation: a file of version 3.1 comes out current and neutral") {
    doublures::SessionEssai essai;
    Demarrage(essai.session);
    doublures::EcrireFichier(essai.dossier / "vieille.LGD", VieilleBase(essai.session));

    REQUIRE(OuvrirChemin(essai.session, essai.dossier / "vieille.LGD"));
    REQUIRE_FALSE(essai.session.base->entete.LibellesNeutres);
    REQUIRE(ReorganiserBase(essai.session, true).cause == Cause::Fait);
    storage::Base& neuve = *essai.session.base;
    CHECK(
        LireTout(essai.dossier / "vieille.LGD").value_or("").starts_with(storage::MarqueCourante));
    CHECK(neuve.entete.LibellesNeutres);
    CHECK(neuve.R_NOM.LireTexte(NoOrdre{1}) == "DURAND;Jean;;ABT;12/3");
    CHECK(neuve.R_NOM.LireTexte(NoOrdre{2}) == "MARTIN;Paul");
    CHECK(neuve.R_TEXTE.LireTexte(NoOrdre{1}) == "|DURAND\r\nOCCU meunier\n");
    CHECK(neuve.motsCles.LibelleType(NoMotCle{2}).libelle == "OCCU");
    CHECK(neuve.entete.SlotsIndividu[0].symbole == '\\');
    CHECK(storage::SlotsDe(neuve, NoOrdre{1})[0].lieu == "meunier");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: without the copy that was asked for nothing is rewritten") {
    const std::string avant = Octets();
    std::filesystem::create_directories(dossier / "Famille.SAV" / "plein");
    CHECK(ReorganiserBase(session, true).cause == Cause::Systeme);
    CHECK(dialogue.entendu == std::vector{Msg(message::SauvegardeNonEcriteBaseFermee,
                                              CheminAffiche(dossier / "Famille.SAV"))});
    CHECK(Octets() == avant);
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: a base that another program has taken meanwhile is left alone") {
    const std::string avant = Octets();
    MnuFermer(session);
    const storage::ResultatVerrou verrou = disque.Verrouiller(chemin);
    dialogue.entendu.clear();
    CHECK(ReecrireBase(session, chemin).cause == Cause::Refuse);
    CHECK(dialogue.entendu == std::vector{Msg(message::BaseOccupee, CheminAffiche(chemin))});
    CHECK(Octets() == avant);
    CHECK(Octets("Reorg.fic") == "absent");
}

namespace {

/// A session whose bases lie on a disk in memory.
struct Poste {
    explicit Poste(storage::DisqueMemoire& memoire)
        : session{{dossier.chemin, dossier.chemin, dossier.chemin},
                  {dialogue, progression, horloge, ecran, memoire}} {}
    doublures::DossierTemporaire dossier;
    doublures::DialogueScript dialogue;
    doublures::ProgressionScript progression;
    doublures::HorlogeFixe horloge;
    doublures::EcranScript ecran;
    Session session;
};

constexpr const char* Chemin = "/bases/famille.LGD";

std::string ContenuSur(storage::DisqueMemoire& disque) {
    storage::ProgressionMuette muet;
    const storage::ResultatOuverture resultat = storage::OuvrirBase(disque, Chemin, muet);
    if (!resultat.base) return "illisible " + std::to_string(static_cast<int>(resultat.etat));
    return storage::ContenuBase{*resultat.base}.Texte();
}

}  // namespace

TEST_CASE(
    "Reorganisation: a death, a refusal or a power cut at any operation leaves one whole base") {
    using storage::Panne;
    storage::DisqueMemoire depart;
    {
        storage::ResultatOuverture neuve = storage::NouvelleBase(depart, Chemin, {});
        storage::SeanceEssai seance{*neuve.base, 11};
        for (int i = 0; i < 120; ++i)
            seance.Agir();
        REQUIRE(neuve.base->Fermer());
    }
    const std::string avant = depart.Octets(Chemin);
    const auto temoin = depart.Survivre();
    const std::string contenu = ContenuSur(*temoin);
    {
        Poste poste{*temoin};
        REQUIRE(OuvrirChemin(poste.session, Chemin));
        REQUIRE(ReorganiserBase(poste.session, true).cause == Cause::Fait);
    }
    const std::string apres = temoin->Octets(Chemin);
    REQUIRE(apres.size() < avant.size());
    std::map<bool, int> vus;
    for (int n = 1; n <= temoin->operations; ++n)
        for (const Panne panne :
             {Panne::Refus, Panne::Plein, Panne::Dechirure, Panne::Arret, Panne::ArretDechire}) {
            CAPTURE(n);
            CAPTURE(static_cast<int>(panne));
            const auto disque = depart.Survivre();
            disque->panne = panne;
            disque->panneA = n;
            {
                Poste poste{*disque};
                static_cast<void>(OuvrirChemin(poste.session, Chemin));
                static_cast<void>(ReorganiserBase(poste.session, true));
            }
            const auto reste = disque->Survivre();
            const std::string octets = reste->Octets(Chemin);
            CHECK((octets == avant || octets == apres));
            ++vus[octets == apres];
            for (std::uint32_t graine = 1; disque->Mort() && graine <= 3; ++graine) {
                CAPTURE(graine);
                const auto coupe = disque->CouperCourant(graine * 100 + static_cast<unsigned>(n));
                CHECK(ContenuSur(*coupe) == contenu);
            }
        }
    CHECK(vus[false] > 0);
    CHECK(vus[true] > 0);
}

#include "shell/CycleDeVie.h"

#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CopiesDatees.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

namespace fs = std::filesystem;

/// A session that has been started, and short words for what its user does.
struct Bureau : SessionEssai {
    fs::path famille = dossier / "Famille.LGD";

    Bureau() { Demarrage(session); }

    void Nouveau(const fs::path& chemin) {
        dialogue.fichiers.emplace_back(chemin);
        MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
    }
    NoOrdre Creer(const char* nom) {
        const NoOrdre n = session.base->NouvelIndividu();
        session.base->R_SEXE.EcrireCellule(n, Sexe::Homme);
        session.base->R_NOM.EcrireNom(n, std::string{nom} + ";Jean;;;");
        session.base->R_TRI.AjouterIndividu(n);
        return n;
    }
    std::string NomDe(std::uint32_t n) { return session.base->R_NOM.NomDe(NoOrdre{n}); }
    [[nodiscard]] NoMessage DernierMessage() const {
        return dialogue.entendu.empty() ? NoMessage{} : dialogue.entendu.back().no;
    }
    [[nodiscard]] std::vector<fs::path> Historique() const {
        return session.parametres.generaux.historique;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "MnuNouveau: asks with the filter of bases and makes an empty one") {
    Nouveau(famille);
    REQUIRE(dialogue.demandesFichier.size() == 1);
    const DemandeFichier& demande = dialogue.demandesFichier[0];
    CHECK(demande.sorte == DemandeFichier::Sorte::Enregistrer);
    CHECK(demande.filtre == "Généalogie (*.lgd) |*.lgd|"_1252);
    CHECK(demande.extension == ".LGD");
    CHECK(session.CheminBase == famille);
    CHECK(session.CheminJournal == dossier / "Famille.LOG");
    CHECK(session.CheminEchange == dossier / "Famille.LGR");
    CHECK(session.CheminGedcom == dossier / "Famille.GED");
    CHECK(session.NomBase == "Famille");
    CHECK_FALSE(session.PersonneEnCours);
    CHECK(session.base->entete.DernierIndividu == 0);
    CHECK(dialogue.entendu.empty());
    CHECK(progression.sabliers == 0);
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuNouveau: the open base is closed first, and cancel leaves none open") {
    Nouveau(famille);
    Creer("Martin");
    MnuNouveau(session);
    CHECK(dialogue.demandesFichier.back().depart == famille);
    CHECK_FALSE(session.BaseOuverte());
    CHECK(session.CheminBase.empty());
    CHECK(session.NomBase.empty());
    MnuOuvrir(session, famille);
    CHECK(NomDe(1) == "Martin");
}

TEST_CASE_FIXTURE(Bureau, "MnuNouveau: a new base left as it is can be opened again") {
    Nouveau(famille);
    MnuFermer(session);
    MnuOuvrir(session, famille);
    REQUIRE(session.BaseOuverte());
    CHECK(session.base->entete.NbMotsCles == 11);
    CHECK_FALSE(session.PersonneEnCours);
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuNouveau: the sort order stays as it stands, and the keyword options "
                  "come from the settings") {
    session.parametres.generaux.motCleNom = true;
    Nouveau(famille);
    CHECK(session.base->entete.TypeTri == TypeTri::Naissance);
    CHECK(session.base->entete.OptParticules);
    CHECK_FALSE(session.base->entete.OptPrenomUnique);
    CHECK(session.Regles().deplacer);
    session.base->entete.TypeTri = TypeTri::Nom;
    Nouveau(dossier / "Autre.LGD");
    CHECK(session.base->entete.TypeTri == TypeTri::Nom);
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuNouveau: on an existing file starts from nothing, whatever journal lies "
                  "beside it") {
    Nouveau(famille);
    Creer("Ancien");
    MnuFermer(session);
    EcrireFichier(dossier / "Famille.LOG", std::string(1004, 'x'));
    Nouveau(famille);
    CHECK(session.base->entete.DernierIndividu == 0);
    REQUIRE(session.base->Enregistrer());
    CHECK_FALSE(fs::exists(dossier / "Famille.LOG"));
    CHECK_FALSE(session.deCujus[0].individu);
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuNouveau: a place that cannot be written is told, and no base is open") {
    dialogue.fichiers.emplace_back(dossier / "absent" / "x.LGD");
    MnuNouveau(session);
    CHECK(DernierMessage() == message::CreationBaseRefusee);
    CHECK_FALSE(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau, "MnuOuvrir: cancel keeps the open base") {
    Nouveau(famille);
    Creer("Martin");
    MnuOuvrir(session);
    CHECK(dialogue.demandesFichier.back().sorte == DemandeFichier::Sorte::Ouvrir);
    CHECK(session.BaseOuverte());
    CHECK(NomDe(1) == "Martin");
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuOuvrir: shows the person of the last time, or the first of the order") {
    Nouveau(famille);
    Creer("Martin");
    const NoOrdre second = Creer("Bernard");
    session.PersonneEnCours = second;
    session.deCujus[0].individu = NoOrdre{1};
    MnuFermer(session);
    CHECK_FALSE(session.PersonneEnCours);
    MnuOuvrir(session, famille);
    CHECK(session.PersonneEnCours == second);
    CHECK(session.deCujus[0].individu == NoOrdre{1});
    CHECK(session.deCujus[0].libelle == "[Martin Jean]");
    session.PersonneEnCours = NoOrdre{999};
    MnuFermer(session);
    MnuOuvrir(session, famille);
    CHECK(session.PersonneEnCours == session.base->R_TRI.IndividuAuRang(1));
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuOuvrir: a base moved elsewhere starts with its person 1 and no De Cujus") {
    Nouveau(famille);
    Creer("Martin");
    const NoOrdre second = Creer("Bernard");
    session.PersonneEnCours = second;
    session.deCujus[1].individu = second;
    MnuFermer(session);
    fs::create_directories(dossier / "ailleurs");
    fs::rename(famille, dossier / "ailleurs/Famille.LGD");
    MnuOuvrir(session, dossier / "ailleurs/Famille.LGD");
    CHECK(session.PersonneEnCours == NoOrdre{1});
    CHECK_FALSE(session.deCujus[1].individu);
    CHECK(session.deCujus[1].libelle == "{...}");
}

TEST_CASE_FIXTURE(Bureau, "MnuOuvrir: a file that is no base is refused and left as it is") {
    EcrireFichier(dossier / "faux.LGD", "bonjour");
    MnuOuvrir(session, dossier / "faux.LGD");
    CHECK(DernierMessage() == message::FichierPasUneBase);
    CHECK(dialogue.entendu.back().valeur.find("faux.LGD") != std::string::npos);
    CHECK_FALSE(session.BaseOuverte());
    CHECK(session.CheminBase.empty());
    CHECK(LireFichier(dossier / "faux.LGD") == "bonjour");
}

TEST_CASE_FIXTURE(Bureau, "MnuOuvrir: a base open elsewhere is refused with a message") {
    Nouveau(famille);
    MnuEnregistrer(session);
    SessionEssai autre;
    Demarrage(autre.session);
    MnuOuvrir(autre.session, famille);
    REQUIRE(autre.dialogue.entendu.size() == 1);
    CHECK(autre.dialogue.entendu[0].no == message::BaseOccupee);
    CHECK_FALSE(autre.session.BaseOuverte());
    MnuFermer(session);
    MnuOuvrir(autre.session, famille);
    CHECK(autre.session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau, "MnuOuvrir: names outside code page 1252 open, and show what they can") {
    Nouveau(dossier / "Łódź 日本.LGD");
    Creer("Martin");
    CHECK(session.NomBase == "Lódz ??"_1252);
    MnuFermer(session);
    CHECK(fs::exists(dossier / "Łódź 日本.LGD"));
    MnuHisto(session, 0);
    REQUIRE(session.BaseOuverte());
    CHECK(NomDe(1) == "Martin");
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuFermer: forgets persons, paths and numberings, and unloads the windows") {
    Nouveau(famille);
    session.PersonneEnCours = session.PersonneFiche = Creer("Martin");
    session.deCujus[0].individu = NoOrdre{1};
    const int avant = ecran.fermetures;
    MnuFermer(session);
    CHECK_FALSE(session.BaseOuverte());
    CHECK(session.CheminBase.empty());
    CHECK(session.CheminJournal.empty());
    CHECK_FALSE(session.PersonneEnCours);
    CHECK_FALSE(session.PersonneFiche);
    CHECK_FALSE(session.deCujus[0].individu);
    CHECK(ecran.fermetures > avant);
    CHECK(Historique() == std::vector<fs::path>{famille});
}

TEST_CASE_FIXTURE(Bureau, "MnuFermer: closing with no change rewrites nothing in the file") {
    Nouveau(famille);
    Creer("Martin");
    MnuFermer(session);
    const std::string avant = LireFichier(famille);
    const auto date = fs::last_write_time(famille);
    MnuOuvrir(session, famille);
    MnuFermer(session);
    CHECK(LireFichier(famille) == avant);
    CHECK(fs::last_write_time(famille) == date);
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuEnregistrer: commits only a base that changed, and it stays open with "
                  "its person") {
    Nouveau(famille);
    session.PersonneEnCours = Creer("Martin");
    CHECK(MnuEnregistrer(session));
    CHECK(session.BaseOuverte());
    CHECK(session.PersonneEnCours == NoOrdre{1});
    CHECK_FALSE(session.base->marques.Modifie());
    CHECK_FALSE(fs::exists(dossier / "Famille.LOG"));
    const std::string avant = LireFichier(famille);
    CHECK(MnuEnregistrer(session));
    CHECK(LireFichier(famille) == avant);
    Creer("Bernard");
    CHECK(MnuEnregistrer(session));
    CHECK(LireFichier(famille) != avant);
    CHECK(session.parametres.magasin.Lire(famille.native(), "Personne en cours") == "1");
}

TEST_CASE_FIXTURE(
    Bureau, "Commands: while a long job runs each is told to be impossible and does nothing") {
    Nouveau(famille);
    Creer("Martin");
    const CadreProgression cadre{progression, Msg(message::TitreImportGedcom),
                                 Msg(message::EtatPremiereLecture)};
    const std::size_t demandes = dialogue.demandesFichier.size();
    MnuNouveau(session);
    MnuOuvrir(session);
    MnuOuvrir(session, famille);
    MnuHisto(session, 0);
    MnuFermer(session);
    CHECK_FALSE(MnuEnregistrer(session));
    MnuSauvegarde(session);
    MnuRestauration(session);
    CHECK_FALSE(ConfirmerSortie(session));
    CHECK(dialogue.entendu == std::vector<Phrase>(9, Msg(message::OperationImpossible)));
    CHECK(dialogue.demandesFichier.size() == demandes);
    CHECK(session.BaseOuverte());
    CHECK(session.base->marques.Modifie());
}

TEST_CASE_FIXTURE(Bureau, "Commands: a person sheet that the user keeps open stops each of them") {
    Nouveau(famille);
    Creer("Martin");
    ecran.ficheSeFerme = false;
    MnuFermer(session);
    MnuNouveau(session);
    MnuSauvegarde(session);
    CHECK_FALSE(MnuEnregistrer(session));
    CHECK_FALSE(ConfirmerSortie(session));
    CHECK(session.BaseOuverte());
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuSauvegarde: says what it does, asks nothing, copies, and opens again") {
    Nouveau(famille);
    session.PersonneEnCours = Creer("Martin");
    session.deCujus[0].individu = NoOrdre{1};
    EcrireFichier(dossier / "Famille.SAV", "vieille copie");
    MnuSauvegarde(session);
    REQUIRE_FALSE(dialogue.annonces.empty());
    CHECK(dialogue.annonces[0] == Msg(message::EtatSauvegardeEnCours));
    CHECK(dialogue.entendu.empty());
    REQUIRE(session.BaseOuverte());
    CHECK(session.PersonneEnCours == NoOrdre{1});
    CHECK(session.deCujus[0].individu == NoOrdre{1});
    CHECK(NomDe(1) == "Martin");
    CHECK(LireFichier(dossier / "Famille.SAV") == LireFichier(famille));
    CHECK_FALSE(fs::exists(dossier / "Famille.SAV.nouveau"));
    CHECK(progression.sabliers == 0);
}

TEST_CASE_FIXTURE(Bureau, "MnuSauvegarde: a copy that fails leaves the base closed and says so") {
    Nouveau(famille);
    Creer("Martin");
    fs::create_directories(dossier / "Famille.SAV/obstacle");
    MnuSauvegarde(session);
    CHECK(DernierMessage() == message::SauvegardeNonEcriteBaseFermee);
    CHECK_FALSE(session.BaseOuverte());
    CHECK(session.CheminBase.empty());
    CHECK_FALSE(fs::exists(dossier / "Famille.SAV.nouveau"));
    CHECK(progression.sabliers == 0);
    fs::remove_all(dossier / "Famille.SAV");
    MnuOuvrir(session, famille);
    CHECK(NomDe(1) == "Martin");
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuRestauration: brings a backup back after a question whose default is no") {
    Nouveau(famille);
    Creer("Martin");
    MnuSauvegarde(session);
    Creer("Perdu");
    REQUIRE(MnuEnregistrer(session));
    dialogue.fichiers.emplace_back(dossier / "Famille.SAV");
    SUBCASE("no") {
        dialogue.reponses = {Reponse::Non};
        MnuRestauration(session);
        CHECK(session.base->entete.DernierIndividu == 2);
    }
    SUBCASE("yes") {
        dialogue.reponses = {Reponse::Oui};
        MnuRestauration(session);
        REQUIRE(session.BaseOuverte());
        CHECK(session.CheminBase == famille);
        CHECK(session.base->entete.DernierIndividu == 1);
        CHECK(NomDe(1) == "Martin");
        // What was replaced is kept, and leads back to the same base.
        const std::vector<fs::path> gardees = ListerDatees(dossier / "Famille.SAV");
        REQUIRE(gardees.size() == 1);
        CHECK(storage::CompterPersonnes(disque, gardees[0]) == 2);
        CHECK(CheminRestauration(gardees[0]) == famille);
    }
    REQUIRE(dialogue.questions.size() == 1);
    const std::string question = session.catalogue.Composer(dialogue.questions[0].texte);
    CHECK(question.starts_with("Base : 2 personnes, 20"));
    CHECK(question.find("Sauvegarde : 1 personnes, 20") != std::string::npos);
    CHECK(question.ends_with(session.Message(message::ConfirmerRemplacerBaseParSauvegarde)));
    CHECK(dialogue.questions[0].titre == Msg(message::TitreRemplacementBase));
    CHECK(dialogue.questions[0].defaut == Reponse::Non);
    CHECK(dialogue.demandesFichier.back().titre == Msg(message::TitreRestaurationSauvegarde));
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuRestauration: without an open base and without a target nothing is asked") {
    Nouveau(famille);
    Creer("Martin");
    MnuSauvegarde(session);
    MnuFermer(session);
    fs::remove(famille);
    dialogue.fichiers.emplace_back(dossier / "Famille.SAV");
    MnuRestauration(session);
    REQUIRE(session.BaseOuverte());
    CHECK(dialogue.questions.empty());
    CHECK(NomDe(1) == "Martin");
    MnuRestauration(session);
    CHECK(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuRestauration: a journal left beside the target is never replayed over it") {
    Nouveau(famille);
    Creer("Martin");
    MnuSauvegarde(session);
    MnuFermer(session);
    std::string journal(1004, '\0');
    journal[3] = 1;
    EcrireFichier(dossier / "Famille.LOG", journal);
    dialogue.fichiers.emplace_back(dossier / "Famille.SAV");
    dialogue.reponses = {Reponse::Oui};
    MnuRestauration(session);
    REQUIRE(session.BaseOuverte());
    CHECK(NomDe(1) == "Martin");
    CHECK(LireFichier(famille) == LireFichier(dossier / "Famille.SAV"));
}

TEST_CASE_FIXTURE(Bureau, "MnuRestauration: what is no base never replaces one") {
    Nouveau(famille);
    Creer("Martin");
    MnuEnregistrer(session);
    const std::string avant = LireFichier(famille);
    EcrireFichier(dossier / "Famille.SAV", "n'importe quoi");
    dialogue.fichiers.emplace_back(dossier / "Famille.SAV");
    dialogue.reponses = {Reponse::Oui};
    MnuRestauration(session);
    CHECK(DernierMessage() == message::FichierPasUneBase);
    CHECK(dialogue.questions.empty());
    CHECK(session.BaseOuverte());
    CHECK(LireFichier(famille) == avant);
}

TEST_CASE_FIXTURE(Bureau, "MnuHisto: a file that is gone is told and stays in the list") {
    Nouveau(famille);
    MnuFermer(session);
    fs::remove(famille);
    MnuHisto(session, 0);
    CHECK(dialogue.entendu == std::vector<Phrase>{Msg(message::FichierDisparu)});
    CHECK(Historique() == std::vector<fs::path>{famille});
    MnuHisto(session, 3);
    MnuHisto(session, -1);
    CHECK(dialogue.entendu.size() == 1);
}

TEST_CASE_FIXTURE(Bureau,
                  "MnuHisto: opening entry 0 does not move the list; another moves to the head") {
    Nouveau(dossier / "a.LGD");
    Nouveau(dossier / "b.LGD");
    MnuFermer(session);
    const std::vector<fs::path> avant{dossier / "b.LGD", dossier / "a.LGD"};
    CHECK(Historique() == avant);
    MnuHisto(session, 0);
    CHECK(session.NomBase == "b");
    MnuFermer(session);
    CHECK(Historique() == avant);
    const fs::path courant = fs::current_path();
    MnuHisto(session, 1);
    CHECK(session.NomBase == "a");
    CHECK(fs::equivalent(fs::current_path(), dossier.chemin));
    fs::current_path(courant);
    MnuFermer(session);
    CHECK(Historique() == std::vector<fs::path>{dossier / "a.LGD", dossier / "b.LGD"});
    CHECK(session.parametres.magasin.Lire("Defaut", "Historique 0") ==
          (dossier / "a.LGD").native());
}

TEST_CASE_FIXTURE(Bureau,
                  "Minuterie1: with a frequency of 0 the first tick passes and the second saves") {
    Nouveau(famille);
    Creer("Martin");
    session.parametres.generaux.frequenceSauvegarde = 0;
    Minuterie1(session);
    CHECK(session.base->marques.Modifie());
    CHECK(session.compteurMinuterie == 1);
    Minuterie1(session);
    CHECK_FALSE(session.base->marques.Modifie());
    CHECK(session.compteurMinuterie == 0);
}

TEST_CASE_FIXTURE(Bureau,
                  "Minuterie1: a frequency of 15 saves at the 17th tick, even during a long job") {
    Nouveau(famille);
    Creer("Martin");
    const CadreProgression cadre{progression, {}, {}};
    for (int tic = 1; tic <= 16; ++tic)
        Minuterie1(session);
    CHECK(session.base->marques.Modifie());
    Minuterie1(session);
    CHECK_FALSE(session.base->marques.Modifie());
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Bureau,
                  "Minuterie1: without a base nothing counts, but a stale numbering is mended") {
    session.deCujus[1].perime = true;
    Minuterie1(session);
    CHECK(session.compteurMinuterie == 0);
    CHECK_FALSE(session.deCujus[1].perime);
}

TEST_CASE_FIXTURE(Bureau, "TitrePrincipal: the path, or the title of the document of the base") {
    CHECK(TitrePrincipal(session) == "Dorvane");
    Nouveau(famille);
    CHECK(TitrePrincipal(session) == CheminAffiche(famille));
    const NoDocument document = session.base->NouveauDocument();
    session.base->R_IMAGE.EcrireDoc(document, {"La famille Martin", "", "", ""});
    session.base->entete.DocBase = document;
    CHECK(TitrePrincipal(session) == "La famille Martin");
}

TEST_CASE_FIXTURE(Bureau,
                  "Session: settings that cannot be saved are told once, and the base is saved") {
    Nouveau(famille);
    fs::remove_all(dossier / "config");
    EcrireFichier(dossier / "config", "obstacle");
    Creer("Martin");
    CHECK(MnuEnregistrer(session));
    CHECK(dialogue.entendu == std::vector<Phrase>{Msg(message::ReglagesNonEnregistres)});
    Creer("Bernard");
    CHECK(MnuEnregistrer(session));
    MnuFermer(session);
    Arret(session);
    CHECK(dialogue.entendu.size() == 1);
    fs::remove(dossier / "config");
}

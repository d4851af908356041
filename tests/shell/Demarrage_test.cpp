#include "shell/Demarrage.h"

#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

namespace fs = std::filesystem;

/// Makes a base on disk, in a session of its own.
void FaireBase(const fs::path& chemin) {
    SessionEssai essai;
    Demarrage(essai.session);
    essai.dialogue.fichiers.emplace_back(chemin);
    MnuNouveau(essai.session);
    MnuFermer(essai.session);
    REQUIRE(fs::exists(chemin));
}

}  // namespace

TEST_CASE_FIXTURE(SessionEssai, "Demarrage: settings, catalogue, working folder and date order") {
    Demarrage(session);
    CHECK(session.Message(message::TagBIRT) == "Naissance");
    CHECK(session.Travail() == dossier / "partage/Temp");
    CHECK(fs::is_empty(session.Travail()));
    CHECK(session.Ordre() == OrdreDate::JourMoisAnnee);
    CHECK(session.Mots().mois[7].mot == "août"_1252);
    CHECK(session.Modele() == ModeleNom{"FNAM", "BIRN"});
    CHECK(session.TypeTri == TypeTri::Naissance);
    CHECK(session.Regles().particules.size() == 41);
    CHECK(dialogue.entendu.empty());
    CHECK_FALSE(session.BaseOuverte());
    CHECK(session.deCujus[0].libelle == "[...]");
    CHECK(session.deCujus[1].libelle == "{...}");
}

TEST_CASE_FIXTURE(SessionEssai,
                  "Demarrage: a working folder that cannot be written is replaced by "
                  "Temp without a word, and saved") {
    EcrireFichier(dossier / "config/parametres.json",
                  R"({"Defaut": {"Langue": "Français", "Travail": "/nulle/part"}})");
    Demarrage(session);
    CHECK(session.Travail() == dossier / "partage/Temp");
    CHECK(fs::is_directory(session.Travail()));
    CHECK(dialogue.entendu.empty());
    CHECK(LireFichier(dossier / "config/parametres.json").find("partage/Temp") !=
          std::string::npos);
}

TEST_CASE_FIXTURE(SessionEssai, "Demarrage: when no working folder can be had the user is told") {
    EcrireFichier(dossier / "partage/Temp", "obstacle");
    EcrireFichier(dossier / "cache", "obstacle");
    Demarrage(session);
    CHECK(dialogue.entendu == std::vector<Phrase>{Msg(message::AucunDossierDeTravail)});
}

TEST_CASE_FIXTURE(SessionEssai, "Demarrage: the date order is the one of the settings") {
    EcrireFichier(dossier / "config/parametres.json",
                  R"({"Defaut": {"Langue": "Français", "Ordre date": "yyyy/mm/dd"}})");
    Demarrage(session);
    CHECK(session.Ordre() == OrdreDate::AnneeMoisJour);
}

TEST_CASE_FIXTURE(SessionEssai,
                  "Demarrage: a language that is missing falls back to French, and a "
                  "missing French one gives empty texts and no stop") {
    EcrireFichier(dossier / "config/parametres.json", R"({"Defaut": {"Langue": "Klingon"}})");
    SUBCASE("French is there") {
        Demarrage(session);
        CHECK(session.parametres.generaux.langue == "Français");
        CHECK(session.Message(message::TagBIRT) == "Naissance");
    }
    SUBCASE("nothing is there") {
        fs::remove(dossier / "partage/Français.mes");
        Demarrage(session);
        CHECK(session.Message(message::TagBIRT).empty());
    }
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(SessionEssai, "Demarrage: a damaged settings file is set aside and told") {
    EcrireFichier(dossier / "config/parametres.json", "{\"Defaut\": {");
    Demarrage(session);
    REQUIRE(dialogue.entendu.size() == 1);
    CHECK(dialogue.entendu[0].no == message::ReglagesAbimes);
    CHECK(dialogue.entendu[0].valeur.find("parametres.json.abime") != std::string::npos);
    CHECK(LireFichier(dossier / "config/parametres.json.abime") == "{\"Defaut\": {");
    CHECK(session.Message(message::TagBIRT) == "Naissance");
}

TEST_CASE_FIXTURE(SessionEssai,
                  "Demarrage: a base on the command line is opened, its extension in any "
                  "case") {
    for (const char* nom : {"a.LGD", "b.lgd", "c.Lgd"}) {
        CAPTURE(nom);
        FaireBase(dossier / nom);
        Demarrage(session, dossier / nom);
        CHECK(session.CheminBase == dossier / nom);
        CHECK(dialogue.demandesFichier.empty());
    }
}

TEST_CASE_FIXTURE(SessionEssai,
                  "OuvrirFichierDepose: a missing file and another extension are ignored "
                  "without a message") {
    Demarrage(session, dossier / "absent.LGD");
    EcrireFichier(dossier / "note.txt", "x");
    EcrireFichier(dossier / "gd", "x");
    OuvrirFichierDepose(session, dossier / "note.txt");
    OuvrirFichierDepose(session, dossier / "gd");
    OuvrirFichierDepose(session, "x");
    OuvrirFichierDepose(session, "");
    OuvrirFichierDepose(session, dossier / "absent.ged");
    CHECK(dialogue.entendu.empty());
    CHECK_FALSE(session.BaseOuverte());
}

TEST_CASE_FIXTURE(SessionEssai, "OuvrirFichierDepose: exchange and GEDCOM files go to the import") {
    std::vector<fs::path> importes;
    Demarrage(session);
    EcrireFichier(dossier / "a.ged", "0 HEAD");
    EcrireFichier(dossier / "b.LGR", "x");
    OuvrirFichierDepose(session, dossier / "a.ged");
    CHECK(importes.empty());
    session.importer = [&importes](const fs::path& chemin) { importes.push_back(chemin); };
    OuvrirFichierDepose(session, dossier / "a.ged");
    OuvrirFichierDepose(session, dossier / "b.LGR");
    CHECK(importes == std::vector<fs::path>{dossier / "a.ged", dossier / "b.LGR"});
}

TEST_CASE_FIXTURE(SessionEssai, "ConfirmerSortie: only a yes ends the program") {
    Demarrage(session);
    CHECK_FALSE(ConfirmerSortie(session));
    dialogue.reponses = {Reponse::Non, Reponse::Oui};
    CHECK_FALSE(ConfirmerSortie(session));
    CHECK(ConfirmerSortie(session));
    CHECK(dialogue.entendu == std::vector<Phrase>(3, Msg(message::ConfirmerQuitterDorvane)));
    CHECK(ecran.fermeturesFiche == 3);
}

TEST_CASE_FIXTURE(SessionEssai,
                  "Arret: closes the base, saves the settings, deletes the temporary files") {
    FaireBase(dossier / "Famille.LGD");
    Demarrage(session, dossier / "Famille.LGD");
    session.parametres.generaux.frequenceSauvegarde = 7;
    for (const char* nom : {"CritFamille.tmp", "SuitFamille.tmp", "CritAutre.tmp"})
        EcrireFichier(session.Travail() / nom, "x");
    CHECK(FichierTemporaire(session, "Crit") == session.Travail() / "CritFamille.tmp");
    Arret(session);
    CHECK_FALSE(session.BaseOuverte());
    CHECK_FALSE(fs::exists(session.Travail() / "CritFamille.tmp"));
    CHECK_FALSE(fs::exists(session.Travail() / "SuitFamille.tmp"));
    CHECK(fs::exists(session.Travail() / "CritAutre.tmp"));
    Parametres relus{Lieux()};
    CHECK(relus.ChargerParametres() == Magasin::Etat::Lu);
    CHECK(relus.generaux.frequenceSauvegarde == 7);
    CHECK(relus.generaux.historique == std::vector<fs::path>{dossier / "Famille.LGD"});
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(SessionEssai,
                  "LanguesOffertes: captions keep the first letter and lower the rest, "
                  "while the name on disk opens the file") {
    fs::rename(dossier / "partage/English.mes", dossier / "partage/ENGLISH.mes");
    Demarrage(session);
    const std::vector<Langue> langues = LanguesOffertes(session);
    REQUIRE(langues.size() == 2);
    CHECK(langues[0].nom == "ENGLISH");
    CHECK(langues[0].libelle == "English");
    CHECK_FALSE(langues[0].courante);
    CHECK(langues[1].libelle == "Français");
    CHECK(langues[1].courante);
    CHECK(ChoisirLangue(session, "ENGLISH"));
    CHECK(session.Message(message::TagBIRT) == "Birth");
    CHECK(session.Mots().mois[7].mot == "August");
    CHECK(LanguesOffertes(session)[0].courante);
}

TEST_CASE_FIXTURE(SessionEssai, "ChoisirLangue: the switch is saved at the end and found again") {
    Demarrage(session);
    CHECK_FALSE(ChoisirLangue(session, "Klingon"));
    CHECK(session.Message(message::TagBIRT) == "Naissance");
    REQUIRE(ChoisirLangue(session, "English"));
    Arret(session);
    Session suivante{Lieux(), {dialogue, progression, horloge, ecran, disque}};
    Demarrage(suivante);
    CHECK(suivante.Message(message::TagBIRT) == "Birth");
}

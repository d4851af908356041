#include "interchange/commandes/Importer.h"

#include "interchange/EssaiImport.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EcrireFichier;
using doublures::EssaiImport;
using doublures::LireFichier;

namespace {

struct Menu : EssaiImport {
    Menu() {
        EcrireFichier(fichier, "0 HEAD\n0 @I1@ INDI\n1 NAME Jean /Dupont/\n0 TRLR\n");
        session.importer = [this](const std::filesystem::path& f) { ImporterFichier(session, f); };
    }
};

}  // namespace

TEST_CASE_FIXTURE(Menu, "MnuImporter: asks for the file, opens the base and shows the report") {
    dialogue.fichiers.emplace_back(fichier);
    CHECK(MnuImporter(session));
    CHECK(dialogue.demandesFichier.back().filtre ==
          "Export (*.ged;*.lgr)|*.ged;*.lgr|Export GEDCOM (*.ged) |*.ged|"
          "Export Dorvane (*.lgr) |*.lgr|");
    CHECK(dialogue.demandesFichier.back().extension == ".ged");
    REQUIRE(session.BaseOuverte());
    CHECK(session.CheminBase == chemin);
    CHECK(session.PersonneEnCours == NoOrdre{1});
    CHECK(ecran.titres == std::vector{shell::Msg(message::TitreRapportImport)});
    CHECK(ecran.rapport.find("Personnes : 1") != std::string::npos);
    CHECK(LireFichier(session.Travail() / "essai.IMPORT.TXT") == TexteVersUtf8(ecran.rapport));
}

TEST_CASE_FIXTURE(Menu, "MnuImporter: giving up in the dialog changes nothing") {
    dialogue.fichiers.emplace_back(std::nullopt);
    CHECK(MnuImporter(session) == shell::Issue::Arretee());
    CHECK_FALSE(session.BaseOuverte());
    CHECK_FALSE(std::filesystem::exists(chemin));
}

TEST_CASE_FIXTURE(Menu, "An existing base is replaced only after a yes; no is the default") {
    EcrireFichier(chemin, "ancienne");
    dialogue.reponses.clear();
    CHECK(ImporterFichier(session, fichier) == shell::Issue::Arretee());
    CHECK(dialogue.questions.back().texte.no == message::ConfirmerRemplacerBaseParImport);
    CHECK(dialogue.questions.back().titre.no == message::TitreRemplacementBase);
    CHECK(dialogue.questions.back().defaut == shell::Reponse::Non);
    CHECK(LireFichier(chemin) == "ancienne");
    dialogue.reponses = {shell::Reponse::Oui, shell::Reponse::Oui};
    ImporterFichier(session, fichier);
    CHECK(session.BaseOuverte());
}

TEST_CASE_FIXTURE(Menu, "While a long job runs an import is told to be impossible") {
    progression.cadres = 1;
    CHECK(ImporterFichier(session, fichier).cause == shell::Cause::Refuse);
    CHECK(dialogue.entendu.back().no == message::OperationImpossible);
    CHECK_FALSE(std::filesystem::exists(chemin));
}

TEST_CASE_FIXTURE(Menu, "A dropped file is imported, its extension in any case") {
    const std::filesystem::path majuscules = dossier / "AUTRE.GED";
    EcrireFichier(majuscules, LireFichier(fichier));
    shell::OuvrirFichierDepose(session, majuscules);
    CHECK(session.CheminBase == dossier / "AUTRE.LGD");
}

TEST_CASE("The report is in the language of the session") {
    Menu menu;
    shell::ChoisirLangue(menu.session, "English");
    menu.importation = ImporterVers(menu.session, menu.fichier, menu.chemin);
    CHECK(menu.importation.texte.find("Persons: 1") != std::string::npos);
    CHECK(menu.importation.texte.find("Everything was taken over.") != std::string::npos);
}

#include "interchange/commandes/IntegrerLgr.h"

#include "doublures/Inventaire.h"
#include "interchange/lgr/EssaiLgr.h"
#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "storage/Slots.h"

#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::Coherence;
using doublures::ComparerBases;
using doublures::EssaiLgr;

namespace {

/// A base of a family, and its exchange text.
struct Fusion : EssaiLgr {
    Fusion() {
        const NoOrdre jean = F().Creer(Sexe::Homme, "Dupont", "Jean", "1820");
        const NoOrdre anne = F().Creer(Sexe::Femme, "Le Goff", "Anne", "1825");
        const NoOrdre luc = F().Creer(Sexe::Homme, "Dupont", "Luc", "1850");
        F().Parents(luc, jean, anne);
        const NoMariage m = F().Marier(jean, anne, "1848");
        Ecrire(jean, "|Dupont \xB6Jean $Brest\r\nNote.");
        Ecrire(luc, "|Dupont \xB6Luc");
        B().R_TXTMAR.EcrireTexte(m, "@Brest");
        for (const NoOrdre n : {jean, anne})
            B().R_INDEX.MajIndex(n, {}, "@Brest");
        F().Lier(jean, luc, "ami");
        F().Lier(luc, jean, "ami");
        B().R_LSTIMG.ModifierListe(luc, Document("Photo"), storage::ActionListe::Ajouter);
        Participer(Evenement(-20000, "CHR"), luc, "CHIL");
        B().R_LSTIMG.ModifierListe(anne, Document("Acte"), storage::ActionListe::Ajouter);
        texte = Exporter();
    }
    void Ecrire(NoOrdre n, const std::string& nouveau) {
        B().R_INDEX.MajIndex(n, {}, nouveau);
        B().R_TEXTE.EcrireTexte(n, nouveau);
    }
    std::string Etat() { return storage::Inventaire{B()}.Texte(); }
    std::string Lu(std::uint32_t n) { return std::string{B().R_TEXTE.LireTexte(NoOrdre{n})}; }

    /// A file of one person with this keyword line.
    std::string Personne(const std::string& ligne, const std::string& tete = {},
                         const std::string& nom = "De La Tour;Jean Marie;") {
        return EnLignes("[Dorvane Version 99.0]\n" + tete + "[INDIVIDUS]\n 1 \n" + nom +
                        ";;\nH\n\n\n 0 \n 0 \n" + ligne + "\n#\n#\n#\n[FIN INDIVIDUS]\n[FIN]\n");
    }
    std::string texte;
};

}  // namespace

TEST_CASE_FIXTURE(Fusion, "The same file merged in twice gives two more copies of every person") {
    Importer(texte);
    REQUIRE(importation.issue);
    CHECK(Integrer(texte).issue.cause == shell::Cause::Fait);
    CHECK(Integrer(texte).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.NbTriIndividus == 9);
    CHECK(B().entete.DernierIndividu == 9);
    CHECK(B().entete.DernierMariage == 3);
    CHECK(B().entete.NbTriEvenements == 3);
    CHECK(B().entete.NbTriDocuments == 6);
    for (const std::uint32_t fois : {0U, 1U, 2U}) {
        CAPTURE(fois);
        const ComparerBases::Options options{3 * fois, 2 * fois, fois, true};
        CHECK(ComparerBases{*neuve, B(), options}.Ecarts() == "");
    }
    CHECK(B().R_PERE.LireCellule(NoOrdre{9}) == NoOrdre{7});
    CHECK(B().R_PERE.LireCellule(NoOrdre{4}) == NoOrdre{});
    CHECK(Coherence{B()}.Ecarts() == "");
    CHECK(B().marques.Modifie());
}

TEST_CASE_FIXTURE(Fusion, "Merging keeps the order of the base, and what it has") {
    const std::string avant = texte;
    CHECK(Integrer(Personne("|Abel", {}, "Abel;Max;")).issue.cause == shell::Cause::Fait);
    CHECK(B().R_TRI.individus.Numeros() == std::vector<std::uint16_t>{4, 1, 2, 3});
    CHECK(B().R_TRI.RangIndividu(NoOrdre{4}) == 1);
    CHECK(Lu(1) == "|Dupont \xB6Jean $Brest\r\nNote.");
    CHECK(B().R_INDEX.PersonnesIndex(B().R_INDEX.ChercherMot(NoMotCle{1}, "ABEL")) ==
          std::vector{NoOrdre{4}});
}

TEST_CASE_FIXTURE(Fusion, "A cancel while the file is read leaves the base as it was") {
    REQUIRE(B().Enregistrer());
    std::string lignes;
    for (int n = 1; n <= 250; ++n)
        lignes += ' ' + std::to_string(n) + " \nB;;;1800;\nH\n\n\n 0 \n 0 \n|B\n#\n#\n#\n";
    const std::string octets =
        EnLignes("[Dorvane Version 99.0]\n[INDIVIDUS]\n" + lignes + "[FIN INDIVIDUS]\n[FIN]\n");
    const std::string avant = Etat();
    for (std::uint32_t pas = 1; pas <= 3; ++pas) {
        CAPTURE(pas);
        progression.pas = 0;
        progression.annulerAu = pas;
        dialogue.entendu.clear();
        CHECK(Integrer(octets).issue.cause == shell::Cause::Arrete);
        CHECK(dialogue.entendu == std::vector{shell::Msg(message::InfoIntegrationAbandonnee)});
        CHECK(Etat() == avant);
        CHECK_FALSE(B().marques.Modifie());
        CHECK(progression.cadres == 0);
    }
    // What is being written is written whole.
    progression.pas = 0;
    progression.annulerAu = 4;
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.NbTriIndividus == 253);
    CHECK(Coherence{B()}.Ecarts() == "");
}

TEST_CASE_FIXTURE(Fusion, "A file that is none, or cannot be read, changes nothing and is told") {
    const std::string avant = Etat();
    CHECK(Integrer("0 HEAD\r\n0 TRLR\r\n").issue.cause == shell::Cause::Refuse);
    CHECK(dialogue.entendu.back() == shell::Msg(message::FichierPasUnEchange, "essai.lgr"));
    CHECK(IntegrerLgr(session, dossier / "absent.lgr").issue.cause == shell::Cause::Systeme);
    CHECK(dialogue.entendu.back() == shell::Msg(message::FichierIllisible, "absent.lgr"));
    CHECK(Etat() == avant);
}

TEST_CASE_FIXTURE(Fusion,
                  "A file without its end is merged in only after a yes; no is the default") {
    const std::string coupe = texte.substr(0, texte.size() - 7);
    const std::string avant = Etat();
    CHECK(Integrer(coupe).issue.cause == shell::Cause::Arrete);
    CHECK(dialogue.questions.back().texte ==
          shell::Msg(message::ConfirmerIntegrerFichierIncomplet, "essai.lgr"));
    CHECK(dialogue.questions.back().defaut == shell::Reponse::Non);
    CHECK(Etat() == avant);
    dialogue.reponses = {shell::Reponse::Oui};
    CHECK(Integrer(coupe).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.NbTriIndividus == 6);
}

TEST_CASE_FIXTURE(Fusion,
                  "Records that the base cannot number are refused before anything is written") {
    const auto essayer = [&](const std::string& section, NoMessage message, const char* limite) {
        CAPTURE(section);
        const std::string avant = Etat();
        const std::string octets = EnLignes("[Dorvane Version 99.0]\n" + section + "[FIN]\n");
        CHECK(Integrer(octets).issue.cause == shell::Cause::Refuse);
        CHECK(dialogue.entendu.back() == shell::Msg(message, "essai.lgr", limite));
        CHECK(Etat() == avant);
    };
    essayer("[INDIVIDUS]\n 63998 \nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n#\n[FIN INDIVIDUS]\n",
            message::IntegrationTropDePersonnes, "64000");
    essayer("[EVENEMENTS]\n 32000 \n0\n\n\n\n\n\n#\n[FIN EVENEMENTS]\n",
            message::IntegrationTropDEvenements, "32000");
    essayer("[IMAGES]\n 31999 \nA\nb\n#\n[FIN IMAGES]\n", message::IntegrationTropDeDocuments,
            "32000");
    std::string unions = "[MARIAGES]\n";
    for (int i = 0; i < 64000; ++i)
        unions += " 0 \n 0 \n\n\n#\n";
    essayer(unions + "[FIN MARIAGES]\n", message::IntegrationTropDUnions, "64000");
}

TEST_CASE_FIXTURE(Fusion,
                  "The last number that fits is taken, and the base gets its further zone") {
    const std::string octets = EnLignes(
        "[Dorvane Version 99.0]\n[INDIVIDUS]\n 63997 \nA;;;;\nH\n\n\n 0 \n 0 \n|A\n#\n#\n#\n"
        "[FIN INDIVIDUS]\n[FIN]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.DernierIndividu == 64000);
    CHECK(B().entete.PosSuiteIndividus);
    CHECK(Lu(64000) == "|A");
    CHECK(Coherence{B()}.Ecarts() == "");
    dialogue.entendu.clear();
    CHECK(Integrer(texte).issue.cause == shell::Cause::Refuse);
}

TEST_CASE_FIXTURE(Fusion, "A keyword of the same tag takes the marker that the base has for it") {
    B().motsCles.CreerType(NoMotCle{12}, {'\xB5', "Sobriquet", false, {}});
    const std::string octets = Personne("|A \xA3Petit $Brest\nn\xA3 5",
                                        "[MOTS CLES]\n\xA3\nSobriquet\n$\nBIRT\n[FIN MOTS CLES]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(Lu(4) == "|A \xB5Petit $Brest\r\nn\xB5 5");
    CHECK(B().motsCles.Nombre() == 12);
}

TEST_CASE_FIXTURE(Fusion,
                  "A keyword that the base lacks is entered, with its marker when that is free") {
    const std::string octets = Personne(
        "|A \xA3Petit \\Drapier", "[MOTS CLES]\n\xA3\nSobriquet\n\\\nPassion\n[FIN MOTS CLES]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(B().motsCles.LibelleType(NoMotCle{12}).libelle == "Sobriquet");
    CHECK(B().motsCles.LibelleType(NoMotCle{12}).symbole == '\xA3');
    CHECK(B().motsCles.LibelleType(NoMotCle{13}).libelle == "Passion");
    // "\" is that of another keyword of the base: the first free one of the list is taken.
    CHECK(B().motsCles.LibelleType(NoMotCle{13}).symbole == '\xB5');
    CHECK(Lu(4) ==
          "|A \xA3Petit \xB5"
          "Drapier");
}

TEST_CASE_FIXTURE(Fusion, "Markers change inside rich text, its commands do not") {
    const std::string octets =
        Personne("|A \\Drapier\n{\\rtf1\\ansi \\b \\\\Tisserand\\b0\\par}\n\\fin",
                 "[MOTS CLES]\n\\\nPassion\n[FIN MOTS CLES]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(Lu(4) ==
          "|A \xB5"
          "Drapier\r\n{\\rtf1\\ansi \\b \\'b5Tisserand\\b0\\par}\r\n\xB5"
          "fin");
}

TEST_CASE_FIXTURE(Fusion, "\"|\" and \"\xC2\xB6\" are the names whatever the file calls them") {
    const std::string octets =
        Personne("|A \xB6Jean", "[MOTS CLES]\n|\nSobriquet\n\xB6\nDiminutif\n[FIN MOTS CLES]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(Lu(4) == "|A \xB6Jean");
    CHECK(B().motsCles.Nombre() == 11);
}

TEST_CASE_FIXTURE(Fusion, "More than 50 keywords: the further ones are left out and counted") {
    std::string mots = "[MOTS CLES]\n";
    // All signs that are no letters: more than the base has room for.
    for (const char c :
         std::string_view{"!\"%&'()*+,./:;<=>?[]_`{}\x80\x82\x84\x85\x86\x87\x89\x8B\xA1"
                          "\xA2\xA3\xA5\xA6\xA7\xA8\xA9\xAB\xAC\xAE\xAF\xB1\xB3\xB4"
                          "\xB5\xB7\xB8\xB9"})
        mots += std::string(1, c) + "\nMot de " + std::to_string(mots.size()) + "\n";
    const Integration fait = Integrer(Personne("|A", mots + "[FIN MOTS CLES]\n"));
    CHECK(fait.issue.cause == shell::Cause::Fait);
    CHECK(B().motsCles.Nombre() == 50);
    CHECK(fait.rapport.Nombre(Constat::Limite, "MOTS CLES") > 0);
    CHECK(fait.texte.find("MOTS CLES") != std::string::npos);
}

TEST_CASE_FIXTURE(Fusion,
                  "Name settings that differ: the words of the names become those of the base") {
    const std::string nom = "de La Tour;Jean Marie;";
    SUBCASE("particles behind the name, first names one word in the file") {
        B().entete.OptPrenomUnique = true;
        const std::string octets = Personne("|Tour.(de.La) \xB6Jean.Marie $Brest\nNote | \xB6.",
                                            "[PARAMETRES]\n1\n0\n[FIN PARAMETRES]\n", nom);
        CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
        CHECK(Lu(4) == "|de.La.Tour \xB6Jean Marie $Brest\r\nNote | \xB6.");
    }
    SUBCASE("the other way") {
        B().entete.OptParticules = true;
        const std::string octets = Personne("|de.La.Tour \xB6Jean Marie $Brest",
                                            "[PARAMETRES]\n0\n1\n[FIN PARAMETRES]\n", nom);
        CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
        CHECK(Lu(4) == "|Tour.(de.la) \xB6Jean.Marie $Brest");
    }
    SUBCASE("a text without them gets them at the start") {
        B().entete.OptParticules = true;
        const std::string octets =
            Personne("$Brest", "[PARAMETRES]\n0\n1\n[FIN PARAMETRES]\n", nom);
        CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
        CHECK(Lu(4) == "|Tour.(de.la) \xB6Jean.Marie $Brest");
    }
    SUBCASE("equal settings change nothing") {
        const std::string octets =
            Personne("|Autre", "[PARAMETRES]\n0\n0\n[FIN PARAMETRES]\n", nom);
        CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
        CHECK(Lu(4) == "|Autre");
    }
}

TEST_CASE_FIXTURE(Fusion, "Settings and description of the base stay") {
    B().entete.DocBase = NoDocument{1};
    const std::string octets = EnLignes(
        "[Dorvane Version 99.0]\n[INI]\nAuteur=Autre\n[FIN INI]\n[DESCRIPTION]\n 1 \n"
        "[FIN DESCRIPTION]\n[IMAGES]\n 1 \nLa leur\n\n#\n[FIN IMAGES]\n[FIN]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.DocBase == NoDocument{1});
    CHECK(session.parametres.base.auteur.empty());
    CHECK(B().R_IMAGE.TitreDoc(NoDocument{3}) == "La leur");
}

TEST_CASE_FIXTURE(Fusion, "Rows of the file that the base lacks come behind its own") {
    const std::string octets =
        Personne("|A\nRESI 1850 %Lyon",
                 "[MOTS CLES]\n%\nRESI\n[FIN MOTS CLES]\n"
                 "[DONNEES INDIVIDUS]\n%\n1\n\\\n \n[FIN DONNEES INDIVIDUS]\n");
    CHECK(Integrer(octets).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.SlotsIndividu[0].symbole == '\\');
    CHECK(B().entete.SlotsIndividu[3].symbole == '%');
    CHECK(storage::SlotsDe(B(), NoOrdre{4})[3].lieu == "Lyon");
}

TEST_CASE_FIXTURE(Fusion, "When entries of the index run short, new words are entered one by one") {
    Importer(texte);
    B().entete.NbIndex = storage::MaxIndex - 5;
    CHECK(Integrer(Personne("|Dupont \xB6Nouveau")).issue.cause == shell::Cause::Fait);
    CHECK(B().entete.NbIndex == storage::MaxIndex - 4);
    CHECK(B().R_INDEX.PersonnesIndex(B().R_INDEX.ChercherMot(NoMotCle{1}, "DUPONT")).size() == 3);
    CHECK(B().R_INDEX.ChercherMot(NoMotCle{2}, "NOUVEAU"));
}

TEST_CASE_FIXTURE(Fusion, "The menu asks for the file, merges it in and shows the report") {
    dialogue.fichiers.emplace_back(fichier);
    dialogue.reponses = {shell::Reponse::Oui};
    doublures::EcrireFichier(fichier, texte);
    CHECK(MnuIntegrer(session));
    CHECK(dialogue.demandesFichier.back().filtre == "Export Dorvane (*.lgr) |*.lgr|");
    CHECK(B().entete.NbTriIndividus == 6);
    CHECK(ecran.titres == std::vector{shell::Msg(message::TitreIntegration)});
    CHECK(ecran.rapport.find("Personnes : 3") != std::string::npos);
    CHECK(std::filesystem::exists(shell::CheminSauvegarde(session.CheminBase)));
    progression.cadres = 1;
    CHECK(MnuIntegrer(session).cause == shell::Cause::Refuse);
    CHECK(dialogue.entendu.back().no == message::OperationImpossible);
    progression.cadres = 0;
    CHECK(B().entete.NbTriIndividus == 6);
}

TEST_CASE_FIXTURE(Fusion, "Before it is merged in, the question says what the file holds") {
    doublures::EcrireFichier(fichier, texte);
    const std::string avant = Etat();
    IntegrerFichier(session, fichier);
    REQUIRE(dialogue.questions.size() == 1);
    const shell::Question& question = dialogue.questions.back();
    CHECK(question.texte.no == message::ConfirmerIntegration);
    CHECK(question.texte.valeur == fichier.filename().string());
    CHECK(question.texte.valeur2 ==
          "personnes : 3, unions : 1, \xE9v\xE9nements : 1, documents : 2");
    CHECK(question.texte.suite == message::CopieAvantIntegration);
    CHECK(question.boutons == shell::Boutons::ValiderAnnuler);
    CHECK(question.defaut == shell::Reponse::Annuler);
    // It was closed without an answer: nothing happened, and nothing more is said.
    CHECK(dialogue.entendu.size() == 1);
    CHECK(Etat() == avant);
}

TEST_CASE_FIXTURE(Fusion, "The backup is the base as it was before, what was not saved included") {
    doublures::EcrireFichier(fichier, texte);
    const std::string avant = Etat();
    dialogue.reponses = {shell::Reponse::Oui};
    IntegrerFichier(session, fichier);
    CHECK(B().entete.NbTriIndividus == 6);
    const std::filesystem::path copie = shell::CheminSauvegarde(session.CheminBase);
    REQUIRE(std::filesystem::exists(copie));
    storage::ProgressionMuette muet;
    const auto sauvee = storage::OuvrirBase(disque, copie, muet).base;
    REQUIRE(sauvee != nullptr);
    CHECK(storage::Inventaire{*sauvee}.Texte() == avant);
}

TEST_CASE_FIXTURE(Fusion, "Without the backup that was asked for nothing is merged in") {
    doublures::EcrireFichier(fichier, texte);
    // A folder stands where the backup should be.
    std::filesystem::create_directories(shell::CheminSauvegarde(session.CheminBase) / "plein");
    const std::filesystem::path ouverte = session.CheminBase;
    dialogue.reponses = {shell::Reponse::Oui};
    IntegrerFichier(session, fichier);
    CHECK(dialogue.entendu.back().no == message::SauvegardeNonEcriteBaseFermee);
    CHECK_FALSE(session.BaseOuverte());
    storage::ProgressionMuette muet;
    const auto base = storage::OuvrirBase(disque, ouverte, muet).base;
    REQUIRE(base != nullptr);
    CHECK(base->entete.NbTriIndividus == 3);
}

TEST_CASE_FIXTURE(Fusion, "What is no exchange file is told, and no question is asked") {
    doublures::EcrireFichier(fichier, "0 HEAD\r\n");
    IntegrerFichier(session, fichier);
    CHECK(dialogue.questions.empty());
    CHECK(dialogue.entendu.back().no == message::FichierPasUnEchange);
}

#include "interchange/commandes/LancerExport.h"

#include "doublures/FicheEssai.h"
#include "interchange/lgr/LireLgr.h"
#include "messages/Export.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "shell//FichierSur.h"
#include "storage/Base.h"

#include <string>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

constexpr NoOrdre Louis{1};
constexpr NoOrdre Rose{2};
constexpr NoOrdre Paul{3};

/// Louis and Rose are the parents of Paul and of Luc; Paul and Anne those of Jean, born in 1901.
/// Paul's christening, an event with a picture, and an event that hangs on nobody.
struct Depart : doublures::FicheEssai {
    Depart() {
        const NoOrdre louis = F().Creer(Sexe::Homme, "Martin", "Louis", "1790");
        const NoOrdre rose = F().Creer(Sexe::Femme, "Blanc", "Rose", "1795");
        const NoOrdre paul = F().Creer(Sexe::Homme, "Martin", "Paul", "1820");
        const NoOrdre luc = F().Creer(Sexe::Homme, "Martin", "Luc", "1822");
        const NoOrdre anne = F().Creer(Sexe::Femme, "\xC9vrard", "Anne", "1825");
        const NoOrdre jean = F().Creer(Sexe::Homme, "Martin", "Jean", "1901");
        F().Marier(louis, rose);
        F().Marier(paul, anne);
        F().Parents(paul, louis, rose);
        F().Parents(luc, louis, rose);
        F().Parents(jean, paul, anne);
        dialogue.fichiers.clear();
    }
    NoDocument Document(const char* titre) {
        const NoDocument d = B().NouveauDocument();
        storage::Document document;
        document.titre = titre;
        B().R_IMAGE.EcrireDoc(d, document);
        B().R_TRI.AjouterDocument(d);
        return d;
    }
    NoEvenement Evenement(NoOrdre participant, std::vector<NoDocument> documents = {}) {
        const NoEvenement e = B().NouvelEvenement();
        storage::PartiesEvt parties;
        parties.description = storage::DescriptionEvt{"Mer", "", "CHR"};
        parties.documents = std::move(documents);
        if (participant) {
            parties.liens = {{participant, "CHIL"}};
            B().R_LSTEVT.ModifierListe(participant, e, storage::ActionListe::Ajouter);
        }
        B().R_EVT.EcrireEvt(e, parties);
        B().R_TRI.AjouterEvt(e);
        return e;
    }
    /// Where the user says that the file shall be.
    void Vers(const char* nom) { dialogue.fichiers.emplace_back(dossier / nom); }
    std::string Lu(const char* nom) const {
        return shell::LireTout(dossier / nom).value_or("(none)");
    }
    static DemandeExport Ascendants(NoOrdre depart, std::uint32_t generations = 100) {
        DemandeExport demande;
        demande.entiere = false;
        demande.parcours = {{depart, SensExport::Ascendants, generations}};
        return demande;
    }
};

std::size_t Nombre(const std::string& texte, std::string_view morceau) {
    std::size_t nombre = 0;
    for (std::size_t ou = texte.find(morceau); ou != std::string::npos;
         ou = texte.find(morceau, ou + 1))
        ++nombre;
    return nombre;
}

}  // namespace

TEST_CASE_FIXTURE(Depart, "LancerExport: the whole base goes to a file of the name of the base") {
    Vers("Famille.ged");
    const Lancement l = LancerExport(session, {});
    CHECK(l.issue.cause == shell::Cause::Fait);
    CHECK(l.fichier == dossier / "Famille.ged");
    CHECK(l.comptes.individus == 6);
    CHECK(l.comptes.unions == 2);
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::InfoExportTermine)});
    const shell::DemandeFichier& demande = dialogue.demandesFichier.back();
    CHECK(demande.sorte == shell::DemandeFichier::Sorte::Enregistrer);
    CHECK(demande.depart == dossier / "Famille.ged");
    CHECK(demande.extension == ".ged");
    CHECK(demande.filtre == "Export GEDCOM (*.ged) |*.ged|");
    CHECK(Nombre(Lu("Famille.ged"), " INDI\r\n") == 6);
}

TEST_CASE_FIXTURE(Depart, "LancerExport: the format decides the writer and the proposed name") {
    Vers("Famille.lgr");
    DemandeExport demande;
    demande.format = FormatExport::Dorvane;
    CHECK(LancerExport(session, demande).issue.cause == shell::Cause::Fait);
    CHECK(dialogue.demandesFichier.back().depart == dossier / "Famille.lgr");
    CHECK(dialogue.demandesFichier.back().filtre == "Export Dorvane (*.lgr) |*.lgr|");
    CHECK(Lu("Famille.lgr").starts_with("[Dorvane Version 99.0]\r\n"));
}

TEST_CASE_FIXTURE(
    Depart, "LancerExport: while a long job runs it is told to be impossible, and nothing asked") {
    progression.cadres = 1;
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Refuse);
    progression.cadres = 0;
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::OperationImpossible)});
    CHECK(dialogue.demandesFichier.size() == 1);  // that of the base
}

TEST_CASE_FIXTURE(Depart, "LancerExport: nobody selected is told before a file is asked") {
    DemandeExport demande;
    demande.entiere = false;
    SUBCASE("nothing at all") {}
    SUBCASE("a person whom the base does not have") {
        demande.liste = {NoOrdre{77}, NoOrdre{0}};
        demande.parcours = {{NoOrdre{77}, SensExport::Descendants, 5}};
    }
    SUBCASE("only births after 1900") {
        demande.liste = {NoOrdre{6}};
        demande.reglages.ecarter1900 = true;
    }
    CHECK(LancerExport(session, demande).vide);
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::ExportSansPersonneChoisie)});
    CHECK(dialogue.demandesFichier.size() == 1);
}

TEST_CASE_FIXTURE(Depart, "LancerExport: a list and walks add up, each person once") {
    DemandeExport demande = Ascendants(Paul);
    CHECK(CompterExport(session, demande).individus == 4);  // Anne is his wife
    demande.liste = {NoOrdre{4}, Paul};
    CHECK(CompterExport(session, demande).individus == 5);
    Vers("partie.ged");
    CHECK(LancerExport(session, demande).comptes.individus == 5);
    const std::string ged = Lu("partie.ged");
    CHECK(Nombre(ged, " INDI\r\n") == 5);
    CHECK(ged.find("/Jean/") == std::string::npos);
    CHECK(ged.find("Jean") == std::string::npos);
}

TEST_CASE_FIXTURE(Depart, "LancerExport: depth 1 is the person and the spouse, kin only if asked") {
    DemandeExport demande = Ascendants(Paul, 1);
    ComptesSelection comptes = CompterExport(session, demande);
    CHECK(comptes.retenus == 2);
    CHECK(comptes.marques == 5);
    CHECK(comptes.individus == 2);
    demande.reglages.collateraux = true;
    CHECK(CompterExport(session, demande).individus == 5);
    Vers("proches.lgr");
    demande.format = FormatExport::Dorvane;
    CHECK(LancerExport(session, demande).comptes.individus == 5);
}

TEST_CASE_FIXTURE(Depart, "LancerExport: a person born in 1901 stays out of both formats") {
    DemandeExport demande;
    demande.reglages.ecarter1900 = true;
    for (const FormatExport format : {FormatExport::Gedcom, FormatExport::Dorvane}) {
        demande.format = format;
        const char* nom = format == FormatExport::Gedcom ? "x.ged" : "x.lgr";
        Vers(nom);
        CHECK(LancerExport(session, demande).comptes.individus == 5);
        CHECK(Lu(nom).find("Jean") == std::string::npos);
    }
}

TEST_CASE_FIXTURE(Depart, "CompterExport: what it counts is what both writers write") {
    const NoDocument photo = Document("Photo");
    const NoDocument acte = Document("Acte");
    Document("Libre");
    Evenement(Paul, {acte});
    Evenement(NoOrdre{});
    B().R_LSTIMG.ModifierListe(Rose, photo, storage::ActionListe::Ajouter);
    for (const FormatExport format : {FormatExport::Gedcom, FormatExport::Dorvane})
        for (const int cas : {0, 1, 2, 3, 4}) {
            CAPTURE(cas);
            DemandeExport demande = cas == 0 ? DemandeExport{} : Ascendants(Paul, cas == 1 ? 1 : 9);
            demande.format = format;
            demande.reglages.complet = cas >= 3;
            demande.reglages.ecarter1900 = cas == 4;
            const ComptesSelection prevus = CompterExport(session, demande);
            Vers(format == FormatExport::Gedcom ? "c.ged" : "c.lgr");
            const Lancement l = LancerExport(session, demande);
            CHECK(l.comptes.individus == prevus.individus);
            CHECK(l.comptes.evenements == prevus.evenements);
            CHECK(l.comptes.documents == prevus.documents);
            // Whole; Paul alone; his ancestors too; all of the base; births left out.
            const std::uint32_t evenements[] = {2, 1, 1, 2, 1};
            const std::uint32_t documents[] = {3, 1, 2, 3, 2};
            CHECK(prevus.evenements == evenements[cas]);
            CHECK(prevus.documents == documents[cas]);
        }
}

TEST_CASE_FIXTURE(Depart,
                  "LancerExport: a name without the extension gets it, and is asked about") {
    doublures::EcrireFichier(dossier / "Essai.v2.ged", "old");
    SUBCASE("no: the file stays") {
        Vers("Essai.v2");
        CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Arrete);
        CHECK(dialogue.entendu ==
              std::vector{shell::Msg(message::ConfirmerRemplacerExport, "Essai.v2.ged")});
        CHECK(dialogue.questions.back().defaut == shell::Reponse::Non);
        CHECK(Lu("Essai.v2.ged") == "old");
    }
    SUBCASE("yes: it is replaced") {
        Vers("Essai.v2");
        dialogue.reponses = {shell::Reponse::Oui};
        CHECK(LancerExport(session, {}).fichier == dossier / "Essai.v2.ged");
        CHECK(Lu("Essai.v2.ged").starts_with("0 HEAD"));
    }
    SUBCASE("the extension in capitals stands, and the dialog itself has asked") {
        Vers("MARTIN.GED");
        CHECK(LancerExport(session, {}).fichier == dossier / "MARTIN.GED");
        CHECK(dialogue.questions.empty());
    }
}

TEST_CASE_FIXTURE(Depart, "LancerExport: the open base is never written over") {
    Vers("Famille.LGD");
    // The extension is added: the base is safe by its name already.
    CHECK(LancerExport(session, {}).fichier == dossier / "Famille.LGD.ged");
    session.base->marques.ModifBase = true;
    REQUIRE(session.base->Enregistrer());
    std::filesystem::create_symlink(session.CheminBase, dossier / "lien.ged");
    Vers("lien.ged");
    dialogue.entendu.clear();
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Refuse);
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::FichierDeLaBaseOuverte, "lien.ged")});
    CHECK(std::filesystem::is_symlink(dossier / "lien.ged"));
}

TEST_CASE_FIXTURE(Depart, "LancerExport: giving up the file dialog writes and says nothing") {
    dialogue.fichiers.emplace_back(std::nullopt);
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Arrete);
    CHECK(dialogue.entendu.empty());
    CHECK_FALSE(std::filesystem::exists(dossier / "Famille.ged"));
}

TEST_CASE_FIXTURE(Depart, "LancerExport: a stopped export leaves the former file, and its rest") {
    for (int i = 0; i < 200; ++i)
        F().Creer(Sexe::Homme, "Durand", "Jean", "1850");
    doublures::EcrireFichier(dossier / "Famille.ged", "former");
    const std::filesystem::path partiel = shell::CheminPartiel(dossier / "Famille.ged");
    progression.annulerAu = progression.pas + 2;
    Vers("Famille.ged");
    SUBCASE("kept unless the user wants it deleted") {
        CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Arrete);
        CHECK(std::filesystem::exists(partiel));
    }
    SUBCASE("deleted on a yes") {
        dialogue.reponses = {shell::Reponse::Oui};
        CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Arrete);
        CHECK_FALSE(std::filesystem::exists(partiel));
    }
    CHECK(Lu("Famille.ged") == "former");
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::ConfirmerSupprimerExportPartiel,
                                                     shell::CheminAffiche(partiel))});
    CHECK(dialogue.questions.back().defaut == shell::Reponse::Non);
}

TEST_CASE_FIXTURE(Depart, "LancerExport: a folder that cannot be written to is named") {
    dialogue.fichiers.emplace_back(dossier / "absent/Famille.ged");
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Systeme);
    CHECK(dialogue.entendu ==
          std::vector{shell::Msg(message::FichierNonEcrit,
                                 shell::CheminAffiche(dossier / "absent/Famille.ged"))});
}

TEST_CASE_FIXTURE(Depart, "LancerExport: what the set lacks is counted and told after the end") {
    B().R_NOM.EcrireNom(Louis, "Martin;Lou\x80s;;;");
    DemandeExport demande;
    demande.jeu = JeuExport::Ascii;
    Vers("a.ged");
    const Lancement l = LancerExport(session, demande);
    CHECK(l.comptes.perdus == 1);
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::InfoExportTermine),
                                          shell::Msg(message::CaracteresPerdusALExport, "1")});
    Vers("u.ged");
    demande.jeu = JeuExport::Utf8;
    CHECK(LancerExport(session, demande).comptes.perdus == 0);
    CHECK(Lu("u.ged").find("Lou\xE2\x82\xACs") != std::string::npos);
}

TEST_CASE_FIXTURE(Depart, "LancerExport: a union that the format has no place for is told") {
    F().Marier(NoOrdre{}, Rose);
    DemandeExport demande;
    demande.format = FormatExport::Dorvane;
    Vers("a.lgr");
    const Lancement l = LancerExport(session, demande);
    CHECK(l.comptes.unions == 2);
    CHECK(l.comptes.omis == 1);
    CHECK(dialogue.entendu == std::vector{shell::Msg(message::InfoExportTermine),
                                          shell::Msg(message::UnionsEtEntreesOmises, "1")});
}

TEST_CASE_FIXTURE(Depart,
                  "LancerExport: the next file is proposed where the last one was written") {
    std::filesystem::create_directory(dossier / "envois");
    Vers("envois/a.ged");
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Fait);
    Vers("b.ged");
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Fait);
    CHECK(dialogue.demandesFichier.back().depart == dossier / "envois/Famille.ged");
    std::filesystem::remove_all(dossier / "envois");
    Vers("c.ged");
    CHECK(LancerExport(session, {}).issue.cause == shell::Cause::Fait);
    CHECK(dialogue.demandesFichier.back().depart.parent_path() == dossier.chemin);
}

TEST_CASE_FIXTURE(Depart, "DernierExport: the choices are as they were left") {
    CHECK(DernierExport(session).entiere);
    CHECK(DernierExport(session).parcours.front().generations == GenerationsParDefaut);
    DemandeExport demande;
    demande.format = FormatExport::Dorvane;
    demande.entiere = false;
    demande.reglages = {true, true, true};
    demande.parcours = {{Paul, SensExport::Descendants, 7}};
    RetenirExport(session, demande);
    const DemandeExport relue = DernierExport(session);
    CHECK(relue.format == FormatExport::Dorvane);
    CHECK_FALSE(relue.entiere);
    CHECK(relue.reglages.collateraux);
    CHECK(relue.reglages.complet);
    CHECK(relue.reglages.ecarter1900);
    // The person is the current one each time.
    CHECK(relue.parcours == std::vector<ParcoursExport>{{NoOrdre{}, SensExport::Descendants, 7}});
}

TEST_CASE_FIXTURE(Depart,
                  "DernierExport: the set is the last one taken, until the setting changes") {
    session.parametres.generaux.jeuExport = "1";
    CHECK(DernierExport(session).jeu == JeuExport::Ansi);
    DemandeExport demande;
    demande.jeu = JeuExport::Utf8;
    RetenirExport(session, demande);
    CHECK(DernierExport(session).jeu == JeuExport::Utf8);
    session.parametres.generaux.jeuExport = "2";
    CHECK(DernierExport(session).jeu == JeuExport::Ansel);
}

TEST_CASE_FIXTURE(Depart, "DernierExport: settings that somebody has spoilt count as none") {
    for (const char* texte : {"", "/", "1", "1/1/1/1/1/1/1/1", "1/1/1/1/1/1/1/1/1/1", "x/y/z"}) {
        static_cast<void>(session.parametres.SauverValeur("Export", "Choix", texte));
        CAPTURE(texte);
        CHECK(DernierExport(session).entiere);
    }
    static_cast<void>(session.parametres.SauverValeur("Export", "Choix", "9/1/9/-5/9/9/9/99/1/"));
    const DemandeExport demande = DernierExport(session);
    CHECK(demande.format == FormatExport::Gedcom);
    CHECK(demande.parcours.front().generations == 1);
    CHECK(demande.jeu == JeuExport::Ansi);
}

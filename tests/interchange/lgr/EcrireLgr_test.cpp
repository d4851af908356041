#include "interchange/lgr/EcrireLgr.h"

#include "interchange/lgr/EssaiLgr.h"
#include "messages/Messages.h"
#include "values/Octets.h"

#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiLgr;

namespace {

/// A couple with a child, a document and an event.
struct Foyer : EssaiLgr {
    Foyer() {
        jean = F().Creer(Sexe::Homme, "Dupont", "Jean", "1820", "1890");
        anne = F().Creer(Sexe::Femme, "Le Goff", "Anne", "1825");
        luc = F().Creer(Sexe::Homme, "Dupont", "Luc", "1850");
        F().Parents(luc, jean, anne);
        mariage = F().Marier(jean, anne, "1848");
        B().R_NOM.EcrireNom(jean, "Dupont;Jean;Yves;12/3;ABT");
        B().R_TEXTE.EcrireTexte(jean,
                                "|Dupont \xB6Jean $Saint.Malo ~Brest\r\nOCCU meunier\r\nNote.");
        B().R_TXTMAR.EcrireTexte(mariage, "1/5 @Brest\r\nUne note.");
        B().R_FINMAR.EcrireCellule(mariage, "1870");
        photo = Document("Une photo");
        B().R_IMAGE.EcrireDoc(photo, {"Une photo", "a/b.jpg", "PHOTO", "Au moulin.\r\nEn 1860."});
        B().R_LSTIMG.ModifierListe(jean, photo, storage::ActionListe::Ajouter);
        F().Lier(jean, anne, "voisin");
        bapteme = Evenement(-20000, "CHR");
        Participer(bapteme, luc, "CHIL");
        B().R_EVT.EcrireEvt(bapteme,
                            {.cleDate = -20000,
                             .note = "En l'\xE9glise.",
                             .documents = std::vector{photo},
                             .description = storage::DescriptionEvt{"Brest", "Le sien", "CHR"}});
    }
    NoOrdre jean;
    NoOrdre anne;
    NoOrdre luc;
    NoMariage mariage;
    NoDocument photo;
    NoEvenement bapteme;
};

}  // namespace

TEST_CASE_FIXTURE(Foyer, "An exchange text: the sections stand in their order, each closed") {
    B().entete.DocBase = photo;
    const std::string octets = Exporter();
    std::string sections;
    for (std::size_t ou = 0; ou < octets.size(); ou = octets.find("\r\n", ou) + 2)
        if (octets[ou] == '[') sections += octets.substr(ou, octets.find("\r\n", ou) - ou);
    CHECK(sections ==
          "[Dorvane Version 99.0][PARAMETRES][FIN PARAMETRES][INI][FIN INI]"
          "[DESCRIPTION][FIN DESCRIPTION][MOTS CLES][FIN MOTS CLES]"
          "[DONNEES INDIVIDUS][FIN DONNEES INDIVIDUS][DONNEES MARIAGES][FIN DONNEES MARIAGES]"
          "[INDIVIDUS][FIN INDIVIDUS][MARIAGES][FIN MARIAGES][IMAGES][FIN IMAGES]"
          "[EVENEMENTS][FIN EVENEMENTS][INDEX][FIN INDEX][FIN]");
    CHECK(octets.ends_with("[FIN]\r\n"));
    CHECK(Section(octets, "[DESCRIPTION]", "[") == " 1 \n");
}

TEST_CASE_FIXTURE(Foyer, "An exchange text: without a description there is no such section") {
    CHECK(Section(Exporter(), "[DESCRIPTION]", "[") == "absent");
}

TEST_CASE_FIXTURE(Foyer, "An exchange text: the record of a person") {
    const std::string individus = Section(Exporter(), "[INDIVIDUS]", "[FIN INDIVIDUS]");
    const std::string attendu = std::string{
        " 1 \nDupont;Jean;Yves;12/3/1820;ABT 1890\nH\nSaint Malo\nBrest\n 0 \n 0 \n"
        "|Dupont \xB6Jean $Saint.Malo ~Brest\nOCCU meunier\nNote.\n#\n 1 \n#\n"
        " 2 \nvoisin\n{Mariages}\n 1 \n#\n"};
    CHECK(individus.substr(0, attendu.size()) == attendu);
}

TEST_CASE_FIXTURE(Foyer, "An exchange text: a person without a text has \"#\" behind line 7") {
    const std::string individus = Section(Exporter(), "[INDIVIDUS]", "[FIN INDIVIDUS]");
    const std::string attendu = std::string{" 3 \nDupont;Luc;;1850;\nH\n\n\n 1 \n 2 \n#\n#\n"} +
                                "{Ev\xE9nements}\n" + " 1 ;CHIL\n#\n";
    CHECK(individus.find(attendu) != std::string::npos);
}

TEST_CASE_FIXTURE(Foyer, "An exchange text: the records of a union, a document and an event") {
    const std::string octets = Exporter();
    CHECK(Section(octets, "[MARIAGES]", "[FIN MARIAGES]") ==
          " 1 \n 2 \n1/5/1848 - 1870\nBrest\n1/5 @Brest\nUne note.\n#\n");
    CHECK(Section(octets, "[IMAGES]", "[FIN IMAGES]") ==
          " 1 \nUne photo\na/b.jpg\xFFPHOTO\nAu moulin.\nEn 1860.\n#\n");
    CHECK(Section(octets, "[EVENEMENTS]", "[FIN EVENEMENTS]") ==
          " 1 \n-20000\nBrest\nCHR\nLe sien\n 3 ;\n 1 ;\nEn l'\xE9glise.\n#\n");
    CHECK(comptes.individus == 3);
    CHECK(comptes.unions == 1);
    CHECK(comptes.evenements == 1);
    CHECK(comptes.documents == 1);
}

TEST_CASE_FIXTURE(Foyer, "An exchange text: keywords, rows, name settings and indexes") {
    B().entete.OptParticules = true;
    B().motsCles.EffacerType(NoMotCle{9});
    const std::string octets = Exporter();
    CHECK(Section(octets, "[PARAMETRES]", "[") == "1\n0\n");
    CHECK(Section(octets, "[MOTS CLES]", "[") ==
          "|\nBIRN\n\xB6\nFNAM\n$\nBIRT\n@\nMARR\n~\nDEAT\n\\\nOCCU\n\xB0\nCHR\n^\nBURI\n"
          "\xA4\nDIV\n\xB2\nOTHR\n");
    CHECK(Section(octets, "[DONNEES INDIVIDUS]", "[") == "\\\n \n\xB0\n1\n^\n1\n");
    CHECK(Section(octets, "[DONNEES MARIAGES]", "[") == "\xA4\n1\n");
    CHECK(Section(octets, "[INDEX]", "[") == "|\n\xB6\n$\n@\n~\n\\\n\xB0\n^\n\xA4\n\xB2\n");
}

TEST_CASE_FIXTURE(Foyer, "An exchange text: the persons stand in the order of the sort table") {
    F().Creer(Sexe::Homme, "Avant", "Tous", "1700");
    const std::string individus = Section(Exporter(), "[INDIVIDUS]", "[FIN INDIVIDUS]");
    CHECK(individus.starts_with(" 4 \nAvant;Tous;;1700;\n"));
}

TEST_CASE_FIXTURE(Foyer,
                  "An exchange text: the settings of the base, the persons only when written") {
    session.PersonneEnCours = jean;
    session.deCujus[0].individu = luc;
    session.deCujus[1].individu = anne;
    session.parametres.base.auteur = "Moi";
    session.parametres.base.typeDocument = "Photo/Acte/";
    ChoixExport options;
    options.choisis = {false, true, true, false};
    const std::string ini = Section(Exporter(options), "[INI]", "[FIN INI]");
    CHECK(ini.starts_with("Couleur Fond=16711808\nD\xE9grad\xE9=1\n"));
    CHECK(ini.find("Personne en cours=1\nDe Cujus 2=2\nAffichage Nom=FNAM/BIRN/\n") !=
          std::string::npos);
    CHECK(ini.find("De Cujus=") == std::string::npos);
    CHECK(ini.ends_with("Auteur=Moi\nType Document 1=Photo\nType Document 2=Acte\n"));
}

TEST_CASE_FIXTURE(Foyer,
                  "A selection: others are neither parents, partners, links nor participants") {
    Participer(bapteme, anne, "MOTH");
    ChoixExport options;
    options.choisis = {false, true, false, true};
    const std::string octets = Exporter(options);
    CHECK(comptes.individus == 2);
    CHECK(Section(octets, "[EVENEMENTS]", "[FIN EVENEMENTS]").find("\nLe sien\n 3 ;\n 1 ;\n") !=
          std::string::npos);
    const std::string individus = Section(octets, "[INDIVIDUS]", "[FIN INDIVIDUS]");
    CHECK(individus.find("voisin") == std::string::npos);
    CHECK(individus.find("\nH\n\n\n 1 \n 0 \n#\n") != std::string::npos);
    CHECK(Section(octets, "[MARIAGES]", "[FIN MARIAGES]").starts_with(" 1 \n 0 \n"));
}

TEST_CASE_FIXTURE(Foyer, "A selection without a husband leaves his union out") {
    ChoixExport options;
    options.choisis = {false, false, true, false};
    const std::string octets = Exporter(options);
    CHECK(Section(octets, "[MARIAGES]", "[FIN MARIAGES]") == "");
    CHECK(octets.find("{Mariages}") == std::string::npos);
}

TEST_CASE_FIXTURE(Foyer, "A selection takes its own events and documents, a complete one all") {
    Document("Autre");
    Evenement(0, "BIRT");
    ChoixExport options;
    options.choisis = {false, false, true, true};
    Exporter(options);
    CHECK(comptes.evenements == 2);
    CHECK(comptes.documents == 2);
    options.complet = false;
    Exporter(options);
    // The document of the event of Luc, not that of Jean only.
    CHECK(comptes.evenements == 1);
    CHECK(comptes.documents == 1);
    options.choisis = {false, false, true, false};
    Exporter(options);
    CHECK(comptes.evenements == 0);
    CHECK(comptes.documents == 0);
}

TEST_CASE_FIXTURE(EssaiLgr, "A person with 201 unions is written with 200") {
    const NoOrdre jean = F().Creer(Sexe::Homme, "Dupont", "Jean", "1820");
    std::string liste;
    for (int i = 0; i < 201; ++i) {
        const NoOrdre femme = F().Creer(Sexe::Femme, "Femme", std::to_string(i), "1820");
        liste += NumVersChaine2(F().Marier(jean, femme).valeur);
    }
    B().R_MARIAG.EcrireListe(jean, liste);
    Importer(Exporter());
    REQUIRE(importation.issue);
    CHECK(neuve->R_MARIAG.NbElements(jean) == 200);
    // The 201st has its record; the husband, whose list is full, is not one of it any more.
    CHECK(neuve->entete.DernierMariage == 201);
    CHECK(neuve->R_EPOUX.LireCellule(NoMariage{201}) == NoOrdre{});
    CHECK(importation.rapport.Nombre(Constat::Limite, "MARIAGES") == 1);
}

TEST_CASE_FIXTURE(Foyer, "A line end inside a value of one line is a blank, and is counted") {
    B().R_IMAGE.EcrireDoc(photo, {"Une\r\nphoto", "b.jpg", "", ""});
    CHECK(Section(Exporter(), "[IMAGES]", "[").starts_with(" 1 \nUne photo\nb.jpg\n#\n"));
    CHECK(comptes.retouches == 1);
}

TEST_CASE_FIXTURE(EssaiLgr, "The export shows its counts every 100 persons and ends when told to") {
    for (int i = 0; i < 250; ++i)
        F().Creer(Sexe::Homme, "Dupont", std::to_string(i), "1820");
    progression.textes.clear();
    const std::filesystem::path sortie = dossier / "sortie.lgr";
    CHECK(ExporterLgr(session, sortie, {}).issue.cause == shell::Cause::Fait);
    std::vector<std::string> textes;
    for (const shell::Phrase& texte : progression.textes)
        textes.push_back(texte.valeur);
    const std::string personnes = session.Message(message::EtatPersonnesExportees);
    CHECK(textes == std::vector<std::string>{personnes, personnes, personnes + " 100",
                                             personnes + " 200",
                                             session.Message(message::EtatUnionsExportees),
                                             session.Message(message::EtatDocumentsExportes),
                                             session.Message(message::EtatEnregistrementsTraites)});
    CHECK(progression.cadres == 0);

    progression.pas = 0;
    progression.annulerAu = 2;
    CHECK(ExporterLgr(session, sortie, {}).issue.cause == shell::Cause::Arrete);
    CHECK(doublures::LireFichier(sortie).ends_with("[FIN]\r\n"));
    const std::string octets = doublures::LireFichier(shell::CheminPartiel(sortie));
    CHECK(octets.find("\r\n 199 \r\n") != std::string::npos);
    CHECK(octets.find("\r\n 200 \r\n") == std::string::npos);
    CHECK(octets.find("[FIN INDIVIDUS]") == std::string::npos);
}

TEST_CASE_FIXTURE(Foyer, "An export that the system refuses leaves the former file") {
    const std::filesystem::path absent = dossier / "absent" / "sortie.lgr";
    CHECK(ExporterLgr(session, absent, {}).issue.cause == shell::Cause::Systeme);
    CHECK_FALSE(std::filesystem::exists(absent));
}

// Whole files, byte for byte, in each character set.
#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "doublures/VerificateurGedcom.h"
#include "interchange/gedcom/ExportGedcom.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "values/Texte1252.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;

namespace {

/// Three generations with every letter of the code page in a note, a union, a pair without one, an
/// event, documents and a description of the base.
struct Bureau : doublures::SessionEssai {
    Bureau() {
        shell::Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Attendu.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        session.parametres.base.auteur = "Hélène Évrard"_1252;
        session.parametres.base.adresse[0] = "12, rue de l'Église"_1252;
        session.parametres.base.adresse[1] = "29200 Brest";
        Peupler();
    }

    storage::Base& B() { return *session.base; }

    void Peupler() {
        doublures::FamilleEssai f{B()};
        const NoOrdre pere = f.Creer(Sexe::Homme, "de la Motte", "François"_1252, "1820", "1890");
        const NoOrdre mere = f.Creer(Sexe::Femme, "Évrard"_1252, "Anaïs"_1252, "-44");
        const NoOrdre fils = f.Creer(Sexe::Homme, "de la Motte", "Noël"_1252, "1850");
        const NoOrdre fille = f.Creer(Sexe::Indetermine, "de la Motte", "Zoé"_1252, "1852");
        const NoOrdre amie = f.Creer(Sexe::Femme, "Bœuf"_1252, "Ève"_1252, "1855");
        const NoOrdre petit = f.Creer(Sexe::Homme, "de la Motte", "Aÿmar"_1252, "1880");
        B().R_NOM.EcrireNom(pere, "de la Motte;François;Marie René;12/3;ABT"_1252);
        B().R_TEXTE.EcrireTexte(
            pere,
            "|de.la.Motte ¶François.Marie.René $Châteauneuf ~Saint.Malo\r\n"
            "OCCU \\maître.tonnelier\r\nCHR 13/3/1820 °Aÿ,.Marne\r\n"
            "Il écrivit à a@b & c : « <rien> »\r\n\r\n"
            "Une ligne plus longue que ce que tient une ligne d'un fichier, coupée à un blanc."
            ""_1252);
        std::string lettres{"|Évrard ¶Anaïs\r\n"_1252};
        for (unsigned octet = 0xA0; octet < 0xFF; ++octet)
            lettres += static_cast<char>(octet);
        lettres += "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"_1252;
        B().R_TEXTE.EcrireTexte(mere, lettres);
        const NoMariage m = f.Marier(pere, mere, "1849");
        B().R_TXTMAR.EcrireTexte(m, "3/5 @Saint.Malo\r\nMariés « sans dispense »"_1252);
        f.Parents(fils, pere, mere);
        f.Parents(fille, pere, mere);
        f.Parents(petit, fils, amie);
        f.Lier(fils, amie, "parrain de l'aînée"_1252);
        f.Lier(amie, fils, "parrain de l'aînée"_1252);
        const NoDocument description = Creer("Description", "", "", "Une base d'été"_1252);
        B().entete.DocBase = description;
        const NoDocument acte =
            Creer("Acte de décès"_1252, "actes/été.png"_1252, "Photo", "Vu aux archives");
        B().R_LSTIMG.ModifierListe(pere, acte, storage::ActionListe::Ajouter);
        const NoEvenement e = B().NouvelEvenement();
        B().R_EVT.EcrireEvt(e, {.cleDate = -20000,
                                .note = std::string{"Cité à comparaître"_1252},
                                .liens = std::vector<storage::LienEvenement>{{pere, "WITN"}},
                                .documents = std::vector<NoDocument>{acte},
                                .description = storage::DescriptionEvt{
                                    std::string{"Évron"_1252}, std::string{"Procès"_1252}, "CHR"}});
        B().R_TRI.AjouterEvt(e);
        B().R_LSTEVT.ModifierListe(pere, e, storage::ActionListe::Ajouter, "WITN");
        B().R_LSTEVT.ModifierListe(fils, e, storage::ActionListe::Ajouter, "CHIL");
    }
    NoDocument Creer(std::string_view titre, std::string_view fichier, std::string_view type,
                     std::string_view note) {
        const NoDocument d = B().NouveauDocument();
        B().R_IMAGE.EcrireDoc(
            d, {std::string{titre}, std::string{fichier}, std::string{type}, std::string{note}});
        B().R_TRI.AjouterDocument(d);
        return d;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: the whole file, byte for byte, in each character set") {
    const std::filesystem::path attendus = std::filesystem::path{DONNEES_TESTS} / "export";
    for (const auto& [jeu, nom] : {std::pair{JeuExport::Ascii, "ascii.ged"},
                                   {JeuExport::Ansi, "ansi.ged"},
                                   {JeuExport::Ansel, "ansel.ged"},
                                   {JeuExport::Html, "html.ged"},
                                   {JeuExport::Utf8, "utf8.ged"}}) {
        CAPTURE(nom);
        OptionsGedcom options;
        options.jeu = jeu;
        const ResultatExport resultat = ExporterGedcom(session, dossier / "famille.ged", options);
        REQUIRE(resultat.issue.cause == shell::Cause::Fait);
        // Only these two sets lack any character.
        CHECK((resultat.comptes.perdus > 0) ==
              (jeu == JeuExport::Ascii || jeu == JeuExport::Ansel));
        const std::string octets = doublures::LireFichier(dossier / "famille.ged");
        CHECK(doublures::VerificateurGedcom{octets}.Texte() == "");
        CHECK(octets == doublures::LireFichier(attendus / nom));
    }
}

TEST_CASE_FIXTURE(Bureau, "ExporterGedcom: the whole file of a selection, byte for byte") {
    OptionsGedcom options;
    options.reduit = true;
    options.choix.complet = false;
    options.choix.choisis = {false, true, false, true, false, false, true};
    REQUIRE(ExporterGedcom(session, dossier / "famille.ged", options).issue.cause ==
            shell::Cause::Fait);
    const std::string octets = doublures::LireFichier(dossier / "famille.ged");
    CHECK(doublures::VerificateurGedcom(octets, true).Texte() == "");
    CHECK(octets ==
          doublures::LireFichier(std::filesystem::path{DONNEES_TESTS} / "export/choix.ged"));
}

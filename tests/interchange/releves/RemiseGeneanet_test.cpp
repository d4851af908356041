#include "interchange/releves/RemiseGeneanet.h"

#include "doublures/FicheEssai.h"
#include "messages/Export.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

namespace dorvane::interchange {

namespace {

namespace fs = std::filesystem;

/// A base with one person, and a tool that keeps how it was called.
struct EssaiRemise : doublures::FicheEssai {
    EssaiRemise() {
        F().Creer(Sexe::Homme, "Dupont", "Jean", "1820");
        session.parametres.generaux.geneanet = dossier / "outil";
    }
    void Remettre(const std::string& trouve = "perl") {
        MnuGeneanet(
            session,
            [&](const AppelOutil& appel) {
                appels.push_back(appel);
                if (appel.programme != trouve) return false;
                if (ecrireCompteRendu)
                    doublures::EcrireFichier(
                        fs::path{appel.arguments.at(1)}.replace_extension("err"), "fait");
                return true;
            },
            [&](const fs::path& fichier) { montres.push_back(fichier); });
    }
    [[nodiscard]] fs::path Sortie() const {
        return dossier / "outil" / "geneanet" / (session.base->Chemin().stem().string() + ".ged");
    }
    std::vector<AppelOutil> appels;
    std::vector<fs::path> montres;
    bool ecrireCompteRendu = true;
};

}  // namespace

TEST_CASE_FIXTURE(EssaiRemise, "the tool runs in its folder on the file, and its report is shown") {
    Remettre();
    REQUIRE(appels.size() == 2);  // perl.exe was not found
    CHECK(appels[0].programme == "perl.exe");
    CHECK(appels[1].programme == "perl");
    CHECK(appels[1].arguments == std::vector<std::string>{"ged2gen.pl", Sortie().string()});
    CHECK(appels[1].dossier == dossier / "outil");
    REQUIRE(montres.size() == 1);
    CHECK(montres[0].extension() == ".err");
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(EssaiRemise, "the header of the file is reduced, and missing folders are made") {
    Remettre();
    const std::string ged = doublures::LireFichier(Sortie());
    CHECK(ged.find("0 @I1@ INDI") != std::string::npos);
    for (const char* absent : {"1 FILE", "1 LANG", "1 SUBM", "SUBM\r\n", "1 NOTE"}) {
        CAPTURE(absent);
        CHECK(ged.find(absent) == std::string::npos);
    }
}

TEST_CASE_FIXTURE(EssaiRemise, "a folder that depends on where the program runs is made whole") {
    session.parametres.generaux.geneanet = fs::relative(dossier / "outil", fs::current_path());
    Remettre();
    REQUIRE(appels.size() == 2);
    // The tool runs elsewhere: a relative name would lead it astray.
    CHECK(fs::path{appels[1].arguments.at(1)}.is_absolute());
    CHECK(appels[1].dossier.is_absolute());
    CHECK(fs::exists(Sortie()));
    CHECK(montres.size() == 1);
}

TEST_CASE_FIXTURE(EssaiRemise, "without perl the failing call is told") {
    Remettre("python");
    REQUIRE(dialogue.entendu.size() == 1);
    CHECK(dialogue.entendu[0].valeur == "Erreur appel Généanet"_1252);
    CHECK(montres.empty());
}

TEST_CASE_FIXTURE(EssaiRemise, "the report of an earlier run is not shown again") {
    Remettre();
    ecrireCompteRendu = false;
    Remettre();
    CHECK(montres.size() == 1);
}

TEST_CASE_FIXTURE(EssaiRemise, "a folder that cannot be written is told, and nothing is run") {
    doublures::EcrireFichier(dossier / "outil", "un fichier");
    Remettre();
    CHECK(appels.empty());
    REQUIRE(dialogue.entendu.size() == 1);
    CHECK(dialogue.entendu[0].no == message::FichierNonEcrit);
}

}  // namespace dorvane::interchange

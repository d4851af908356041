#include "windows/echange/LanceurOutil.h"

#include <QPlainTextEdit>

#include "shell/FichierSur.h"
#include "windows/Essai.h"
#include "windows/controles/FrmRapport.h"

#include <string_view>
#include <utility>
#include <vector>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

namespace fs = std::filesystem;

void FaireProgramme(const fs::path& fichier, std::string_view commandes) {
    fs::create_directories(fichier.parent_path());
    doublures::EcrireFichier(fichier, "#!/bin/sh\n" + std::string{commandes});
    fs::permissions(fichier, fs::perms::owner_all);
}

/// Writes its arguments, one a line, into the folder where it runs.
constexpr std::string_view NoterArguments =
    "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > arguments\n";

/// What a shell would take apart, carry out or replace.
const std::vector<std::string> Arguments{"ged2gen.pl",
                                         "l'aîné \"Luc\" & fils; x",
                                         "$(touch pris)",
                                         "`touch pris`",
                                         "-e",
                                         "--",
                                         "*",
                                         "$HOME",
                                         "deux\nlignes",
                                         "fin \\ > pris"};

struct Outil : doublures::SessionEssai {
    interchange::AppelOutil Appel(std::string_view commandes) {
        FaireProgramme(dossier / "outil", commandes);
        fs::create_directories(dossier / "le travail");
        return {(dossier / "outil").string(), {}, dossier / "le travail"};
    }
};

/// The family under a name that a shell would stumble over, with a tool in its folder and nothing
/// else on the path.
struct Remise : FenetreEssai {
    explicit Remise(const std::string& nom = "-l'aîné $(touch pris).LGD") {
        qputenv("PATH", (dossier / "programmes").string().c_str());
        for (auto& [variable, valeur] : avant)
            if (variable != std::string_view{"PATH"}) qunsetenv(variable);
        const fs::path autre = dossier / nom;
        fs::copy_file(base, autre);
        Demarrer(autre);
        S().parametres.generaux.geneanet = dossier / "l'outil";
        fs::create_directories(dossier / "l'outil");
    }
    ~Remise() {
        for (auto& [variable, valeur] : avant)
            valeur.isNull() ? qunsetenv(variable) : qputenv(variable, valeur);
    }
    Remise(const Remise&) = delete;
    Remise& operator=(const Remise&) = delete;

    [[nodiscard]] fs::path Sortie(const char* extension) const {
        fs::path sortie = dossier / "l'outil/geneanet" / S().base->Chemin().stem();
        return sortie += extension;
    }
    /// Text of the report window; nothing when none has come.
    [[nodiscard]] QString Rapport() const {
        auto* rapport = Fenetre().findChild<FrmRapport*>();
        return rapport == nullptr ? QString{}
                                  : rapport->findChild<QPlainTextEdit*>()->toPlainText();
    }
    std::vector<std::pair<const char*, QByteArray>> avant{
        {"PATH", qgetenv("PATH")}, {"VISUAL", qgetenv("VISUAL")}, {"EDITOR", qgetenv("EDITOR")}};
};

}  // namespace

TEST_CASE_FIXTURE(Outil, "LanceurOutil: arguments arrive as they are, in the folder of the call") {
    interchange::AppelOutil appel = Appel(NoterArguments);
    appel.arguments = Arguments;
    CHECK(LancerEtAttendre(session, appel));
    std::string attendu;
    for (const std::string& argument : Arguments)
        attendu += argument + '\n';
    CHECK(doublures::LireFichier(appel.dossier / "arguments") == attendu);
    CHECK_FALSE(fs::exists(appel.dossier / "pris"));
    CHECK(progression.cadres == 0);
}

TEST_CASE_FIXTURE(Outil, "LanceurOutil: a program that is not there or crashes has failed") {
    interchange::AppelOutil appel = Appel("kill -9 $$\n");
    CHECK_FALSE(LancerEtAttendre(session, appel));
    appel.programme = (dossier / "absent").string();
    CHECK_FALSE(LancerEtAttendre(session, appel));
    appel = Appel("exit 0\n");
    appel.dossier = dossier / "sans dossier";
    CHECK_FALSE(LancerEtAttendre(session, appel));
    CHECK(progression.cadres == 0);
    // What it found wrong stands in its report.
    CHECK(LancerEtAttendre(session, Appel("exit 3\n")));
}

TEST_CASE_FIXTURE(Outil, "LanceurOutil: the cancel button ends the program, which has not failed") {
    progression.annulerAu = 2;
    // By itself it would never end.
    CHECK(LancerEtAttendre(session, Appel("exec tail -f /dev/null\n")));
    CHECK(progression.pas == 2);
}

TEST_CASE_FIXTURE(Remise,
                  "MnuGénéanet: the tool gets the file of the base, and its report is shown") {
    FaireProgramme(dossier / "programmes/perl",
                   std::string{NoterArguments} + "echo '1 erreur' > \"${2%.ged}.err\"\n");
    Action("MnuGénéanet").trigger();
    CHECK(doublures::LireFichier(dossier / "l'outil/arguments") ==
          "ged2gen.pl\n" + Sortie(".ged").string() + '\n');
    CHECK(doublures::LireFichier(Sortie(".ged")).starts_with("0 HEAD\r\n1 SOUR DORVANE\r\n"));
    CHECK_FALSE(fs::exists(dossier / "l'outil/pris"));
    CHECK(Rapport() == "1 erreur\n");
}

TEST_CASE_FIXTURE(Remise, "MnuGénéanet: the report opens in the editor of the desktop") {
    FaireProgramme(dossier / "programmes/perl", "echo fait > \"${2%.ged}.err\"\n");
    FaireProgramme(dossier / "programmes/xdg-open",
                   "printf '%s' \"$1\" > '" + (dossier / "montré").string() + "'\n");
    Action("MnuGénéanet").trigger();
    CHECK(QTest::qWaitFor([this] {
        return shell::LireTout(dossier / "montré").value_or("") == Sortie(".err").string();
    }));
    CHECK(Rapport().isEmpty());
}

TEST_CASE_FIXTURE(Remise, "MnuGénéanet: a report in the code page is read as such") {
    FaireProgramme(dossier / "programmes/perl", "printf 'n\\351' > \"${2%.ged}.err\"\n");
    Action("MnuGénéanet").trigger();
    CHECK(Rapport() == "né");
}

TEST_CASE_FIXTURE(Remise, "MnuGénéanet: without perl the failing call is told") {
    const auto texte = RepondreBoite(QMessageBox::Ok);
    Action("MnuGénéanet").trigger();
    CHECK(*texte == "Erreur appel Généanet");
}

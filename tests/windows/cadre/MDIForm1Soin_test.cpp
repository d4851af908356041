#include <QPlainTextEdit>
#include <QStatusBar>

#include "messages/Messages.h"
#include "shell/FichierSur.h"
#include "windows/Conduite.h"
#include "windows/cadre/ProgressionQt.h"
#include "windows/controles/FrmRapport.h"
#include "windows/faits/FrmLstEvt.h"
#include "windows/soin/FrmControle.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The Martins; the desktop has no program that shows texts.
struct Soin : FenetreEssai {
    Soin() {
        chemins = qgetenv("PATH");
        qputenv("PATH", (dossier / "vide").string().c_str());
        DemarrerFamille();
    }
    ~Soin() { qputenv("PATH", chemins); }
    Soin(const Soin&) = delete;
    Soin& operator=(const Soin&) = delete;

    template <class Fille>
    Fille* Fenetre_() const {
        auto* fille = Fenetre().findChild<Fille*>();
        return fille != nullptr && fille->isVisible() ? fille : nullptr;
    }
    /// Opens the sheet of the current person and types a first name that is not saved.
    void TaperPrenom() const {
        Action("MnuModif").trigger();
        auto* fiche = Fenetre_<FrmMisajour>();
        REQUIRE(fiche != nullptr);
        Remplir(*fiche, "T_Prénom", "Pierre");
    }
    [[nodiscard]] std::string Prenom() const { return S().base->R_NOM.PrenomDe(NoOrdre{3}); }
    [[nodiscard]] QString Annonce() const { return Fenetre().statusBar()->currentMessage(); }
    [[nodiscard]] std::string Octets(const char* nom) const {
        return shell::LireTout(dossier / nom).value_or("absent");
    }
    QByteArray chemins;
};

}  // namespace

TEST_CASE_FIXTURE(Soin,
                  "MnuControle: opens the window and checks; a row leads to sheet and chart") {
    S().base->R_NAISS.EcrireCellule(NoOrdre{8}, "");
    Action("MnuControle").trigger();
    auto* controle = Fenetre_<FrmControle>();
    REQUIRE(controle != nullptr);
    CHECK(controle->windowTitle() == QStringLiteral("Contrôle de la base"));
    CHECK(Annonce() == QStringLiteral("Contrôle terminé"));
    auto& grille = Controler<QTableView>(*controle, "GrdAno");
    REQUIRE(grille.model()->rowCount() == 1);
    Cliquer(*controle, "CmdAller");
    CHECK(EnCours() == 8);
    QTest::keyClick(&grille, Qt::Key_Return);
    auto* fiche = Fenetre_<FrmMisajour>();
    REQUIRE(fiche != nullptr);
    CHECK(fiche->Individu() == NoOrdre{8});
    fiche->close();
    // The menu again brings the same window, and checks again.
    S().base->R_NAISS.EcrireCellule(NoOrdre{8}, "1861");
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Action("MnuControle").trigger();
    CHECK(*dit == QStringLiteral("Aucune anomalie n'a été trouvée"));
    CHECK(grille.model()->rowCount() == 0);
    CHECK(Fenetre().findChildren<FrmControle*>().size() == 1);
}

TEST_CASE_FIXTURE(Soin, "MnuControle: a long job is told, and no window opens") {
    const shell::CadreProgression cadre{S().progression,
                                        shell::Msg(message::TitreReorganisationBase),
                                        shell::Msg(message::TitreReorganisationBase)};
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Action("MnuControle").trigger();
    CHECK(dit->startsWith(QStringLiteral("Opération impossible")));
    CHECK(Fenetre_<FrmControle>() == nullptr);
}

TEST_CASE_FIXTURE(Soin, "The entries that look after a base need one") {
    Action("MnuFermer").trigger();
    for (const char* nom : {"MnuControle", "MnuDépannage", "MnuRéorganiser"})
        CHECK_FALSE(Action(nom).isEnabled());
}

TEST_CASE_FIXTURE(Soin, "MnuDépannage: mends, shows the journal and reads the windows again") {
    S().base->R_PERE.EcrireCellule(NoOrdre{6}, NoOrdre{1});
    AllerA(6);
    Action("MnuModif").trigger();
    const auto question = RepondreBoite(QMessageBox::No);
    Action("MnuDépannage").trigger();
    CHECK(question->startsWith(QStringLiteral("Voulez-vous copier la base")));
    auto* rapport = Fenetre_<FrmRapport>();
    REQUIRE(rapport != nullptr);
    CHECK(rapport->windowTitle() == QStringLiteral("Compte rendu du dépannage"));
    const QString texte = Controler<QPlainTextEdit>(*rapport, "TxtRapport").toPlainText();
    CHECK(texte.contains(QStringLiteral("Ajout lien enfant de Louis Martin")));
    CHECK(texte.contains(QStringLiteral("Suppression lien enfant de Paul Martin")));
    CHECK(Annonce() == QStringLiteral("Dépannage terminé. Réparations\u00A0: 2."));
    // The base is open, and dirty.
    CHECK(EnCours() == 6);
    CHECK(S().base->marques.Modifie());
    CHECK(Octets("Martin.SAV") == "absent");
}

TEST_CASE_FIXTURE(Soin, "MnuDépannage: yes copies the base first; cancel changes nothing") {
    S().base->R_PERE.EcrireCellule(NoOrdre{6}, NoOrdre{1});
    REQUIRE(shell::MnuEnregistrer(S()));
    const std::string avant = Octets("Martin.LGD");
    SUBCASE("yes") {
        RepondreBoite(QMessageBox::Yes);
        Action("MnuDépannage").trigger();
        CHECK(Octets("Martin.SAV") == avant);
        CHECK(EnCours() == 3);
        CHECK(Fenetre_<FrmRapport>() != nullptr);
    }
    SUBCASE("cancel") {
        RepondreBoite(QMessageBox::Cancel);
        Action("MnuDépannage").trigger();
        CHECK(Octets("Martin.SAV") == "absent");
        CHECK(Fenetre_<FrmRapport>() == nullptr);
        CHECK_FALSE(S().base->marques.Modifie());
    }
}

TEST_CASE_FIXTURE(Soin, "MnuRéorganiser: closes the windows, keeps the person, tells both sizes") {
    for (int i = 0; i < 20; ++i)
        S().base->R_NOM.EcrireNom(NoOrdre{8}, "Martin;Jules" + std::string(100, 'x') + ";;;");
    REQUIRE(shell::MnuEnregistrer(S()));
    const std::size_t avant = Octets("Martin.LGD").size();
    AllerA(6);
    Action("MnuLstEvt").trigger();
    REQUIRE(Fenetre_<FrmLstEvt>() != nullptr);
    const auto question = RepondreBoite(QMessageBox::Yes);
    Action("MnuRéorganiser").trigger();
    CHECK(question->startsWith(QStringLiteral("Faire une copie de sauvegarde")));
    const std::size_t apres = Octets("Martin.LGD").size();
    CHECK(apres < avant);
    CHECK(Octets("Martin.SAV").size() == avant);
    const QString annonce = Annonce().remove(QChar{0x00A0});
    CHECK(annonce.contains(QString::number(apres)));
    CHECK(annonce.contains(QString::number(avant)));
    CHECK(EnCours() == 6);
    CHECK(Graphe().isVisible());
    CHECK(Graphe().windowTitle().contains(QStringLiteral("Luc")));
    CHECK(Fenetre_<FrmLstEvt>() == nullptr);
    CHECK_FALSE(S().progression.EnCours());
}

TEST_CASE_FIXTURE(Soin, "MnuRéorganiser: an unsaved sheet is asked about before the question") {
    TaperPrenom();
    const char* garde = "Pierre";
    {
        Enchainement boites;
        SUBCASE("yes saves it into the new file") {
            boites.Boite(QMessageBox::Yes, QStringLiteral("La fiche a été modifiée"));
        }
        SUBCASE("no drops it") {
            boites.Boite(QMessageBox::No, QStringLiteral("La fiche a été modifiée"));
            garde = "Paul";
        }
        boites.Boite(QMessageBox::No, QStringLiteral("Faire une copie de sauvegarde"));
        Action("MnuRéorganiser").trigger();
    }
    CHECK(Fenetre_<FrmMisajour>() == nullptr);
    CHECK(Prenom() == garde);
}

TEST_CASE_FIXTURE(Soin, "MnuRéorganiser: a sheet that cannot be saved stops it") {
    TaperPrenom();
    auto* fiche = Fenetre_<FrmMisajour>();
    for (const char* champ : {"T_Nom", "T_Prénom"})
        Controler<QLineEdit>(*fiche, champ).clear();
    const std::string avant = Octets("Martin.LGD");
    {
        Enchainement boites;
        boites.Boite(QMessageBox::Yes, QStringLiteral("La fiche a été modifiée"));
        boites.Boite(QMessageBox::Ok, QStringLiteral("Indiquez au moins"));
        Action("MnuRéorganiser").trigger();
    }
    CHECK(Fenetre_<FrmMisajour>() == fiche);
    CHECK(Octets("Martin.LGD") == avant);
}

TEST_CASE_FIXTURE(Soin, "MnuRéorganiser: cancel leaves windows and base as they are") {
    Action("MnuLstEvt").trigger();
    const std::string avant = Octets("Martin.LGD");
    RepondreBoite(QMessageBox::Cancel);
    Action("MnuRéorganiser").trigger();
    CHECK(Fenetre_<FrmLstEvt>() != nullptr);
    CHECK(Octets("Martin.LGD") == avant);
}

TEST_CASE_FIXTURE(Soin, "MnuRéorganiser: a file that cannot be written is told; the base is open") {
    std::filesystem::create_directories(dossier / "Reorg.fic/plein");
    const std::string avant = Octets("Martin.LGD");
    Enchainement boites;
    boites.Boite(QMessageBox::No, QStringLiteral("Faire une copie de sauvegarde"));
    boites.Boite(QMessageBox::Ok, QStringLiteral("n'a pas pu être écrit"));
    Action("MnuRéorganiser").trigger();
    CHECK(EnCours() == 3);
    CHECK(Octets("Martin.LGD") == avant);
}

TEST_CASE_FIXTURE(Soin, "A job that has closed the base leaves nothing to open in its place") {
    REQUIRE(Graphe().isVisible());
    {
        const shell::CadreProgression cadre{S().progression,
                                            shell::Msg(message::TitreReorganisationBase),
                                            shell::Msg(message::TitreReorganisationBase)};
        REQUIRE(shell::FermerEtMemoriser(S()));
        Fenetre().Actualiser();
        CHECK_FALSE(Trouver<QWidget>("CmdAccueilOuvrir").isVisible());
        CHECK(Graphe().isVisible());
    }
    Fenetre().Actualiser();
    CHECK(Trouver<QWidget>("CmdAccueilOuvrir").isVisible());
}

// What was typed is never lost without a question, and the question can always be left.
#include <QPointer>
#include <QTableWidget>
#include <QToolBar>

#include "records/FicheMotsCles.h"
#include "records/MotsUsuels.h"
#include "windows/Conduite.h"
#include "windows/communes/FrmCommune.h"
#include "windows/controles/EditeurNote.h"
#include "windows/controles/FrmTexte.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/mots/FrmMot.h"
#include "windows/mots/FrmMotCle.h"
#include "windows/mots/FrmUsuels.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmNouveauLien.h"
#include "windows/reglages/FrmParametre.h"

#include <algorithm>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// A window over the family in which something was typed.
struct Quitter : FenetreEssai {
    Quitter() { DemarrerFamille(); }
    ~Quitter() { delete fenetre.data(); }
    Quitter(const Quitter&) = delete;
    Quitter& operator=(const Quitter&) = delete;

    template <class Forme, class... Args>
    Forme& Montrer(Args&&... args) {
        auto* forme = new Forme{S(), std::forward<Args>(args)..., &Fenetre()};
        fenetre = forme;
        forme->show();
        forme->activateWindow();
        REQUIRE(QTest::qWaitFor([forme] { return QApplication::activeWindow() == forme; }));
        return *forme;
    }
    [[nodiscard]] QString Texte(const char* champ) const {
        const auto* liste = fenetre->findChild<QComboBox*>(QString::fromUtf8(champ));
        return liste != nullptr ? liste->currentText()
                                : Controler<QLineEdit>(*fenetre, champ).text();
    }

    /// The next box offers to stay, by the button and by Escape, and is left by the key.
    static void RefermerBoite(bool& vue) {
        SurModal([&vue](QWidget& dialogue) {
            auto* boite = qobject_cast<QMessageBox*>(&dialogue);
            REQUIRE(boite != nullptr);
            CAPTURE(boite->text().toStdString());
            CHECK((boite->standardButtons() ==
                   (QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)));
            CHECK((boite->escapeButton() == boite->button(QMessageBox::Cancel)));
            QTest::keyClick(boite, Qt::Key_Escape);
            vue = true;
        });
    }
    /// Escape twice, then the close button twice: the window stays, and what was typed in it. Only
    /// a clear no gives it up.
    void Tenir(const char* champ) {
        const QString saisi = Texte(champ);
        REQUIRE(saisi.contains(QStringLiteral("zut")));
        for (const bool touche : {true, false}) {
            CAPTURE(touche);
            bool vue = false;
            RefermerBoite(vue);
            if (touche)
                QTest::keyClick(fenetre->focusWidget(), Qt::Key_Escape);
            else
                fenetre->close();
            CHECK(vue);
            REQUIRE(fenetre != nullptr);
            CHECK(fenetre->isVisible());
            CHECK(Texte(champ) == saisi);
        }
        RepondreBoite(QMessageBox::No);
        QTest::keyClick(fenetre->focusWidget(), Qt::Key_Escape);
        CHECK((fenetre == nullptr || !fenetre->isVisible()));
    }

    QPointer<QWidget> fenetre;
};

}  // namespace

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a changed sheet open with its text") {
    REQUIRE(Montrer<FrmMisajour>().Ouvrir(NoOrdre{3}));
    Remplir(*fenetre, "Tx_PrénomAutres", "zut");
    Tenir("Tx_PrénomAutres");
    CHECK(S().base->R_NOM.LireNom(NoOrdre{3}).autrePrenom.empty());
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a changed event open with its text") {
    Montrer<FrmDesEvt>(NoEvenement{}, NoOrdre{3}, std::string{});
    Remplir(*fenetre, "TxtLib", "zut");
    Tenir("TxtLib");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a changed document open with its text") {
    Montrer<FrmDesImage>(NoDocument{});
    Remplir(*fenetre, "TxtIntitulé", "zut");
    Tenir("TxtIntitulé");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a changed commune open with its text") {
    Montrer<FrmCommune>();
    Remplir(*fenetre, "TxtNom", "zut");
    Tenir("TxtNom");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a keyword with another label open") {
    Montrer<FrmMotCle>();
    Remplir(*fenetre, "Tx_MClé", "zut");
    Tenir("Tx_MClé");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a keyword with another code open") {
    Montrer<FrmMotCle>();
    Remplir(*fenetre, "Tx_LMClé", "µ");
    Remplir(*fenetre, "Tx_MClé", "zut");
    Tenir("Tx_MClé");
}

TEST_CASE_FIXTURE(Quitter, "FrmMotClé: Yes to the question saves and closes") {
    Montrer<FrmMotCle>();
    const int avant = Controler<QTableWidget>(*fenetre, "LstMClé").rowCount();
    Remplir(*fenetre, "Tx_LMClé", "µ");
    Remplir(*fenetre, "Tx_MClé", "Taille");
    const auto texte = RepondreBoite(QMessageBox::Yes);
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Escape);
    CHECK(texte->contains(QStringLiteral("Taille")));
    CHECK((fenetre == nullptr || !fenetre->isVisible()));
    CHECK(records::ListerMotsCles(S()).size() == static_cast<std::size_t>(avant) + 1);
}

TEST_CASE_FIXTURE(Quitter, "FrmMotClé: another window's change keeps what is typed") {
    auto& mots = Montrer<FrmMotCle>();
    Remplir(*fenetre, "Tx_MClé", "zut");
    mots.Recharger();
    CHECK(Texte("Tx_MClé") == "zut");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a word that is not added") {
    Montrer<FrmUsuels>();
    Remplir(*fenetre, "TxtMot", "zut");
    Tenir("TxtMot");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a heading that is not added") {
    Montrer<FrmUsuels>();
    Remplir(*fenetre, "TxtRubrique", "zut");
    Tenir("TxtRubrique");
}

TEST_CASE_FIXTURE(Quitter, "FrmUsuels: Yes to the question adds the word and closes") {
    Montrer<FrmUsuels>();
    const std::string rubrique = records::ListerRubriques(S()).front();
    Remplir(*fenetre, "TxtMot", "zut");
    RepondreBoite(QMessageBox::Yes);
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Escape);
    CHECK((fenetre == nullptr || !fenetre->isVisible()));
    const std::vector<std::string> mots = records::ListerMotsUsuels(S(), rubrique);
    CHECK(std::ranges::find(mots, "zut") != mots.end());
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a new person open with its text") {
    Montrer<FrmCreation>(SaisieDepart{});
    Remplir(*fenetre, "T_Nom", "zut");
    Tenir("T_Nom");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a new link open with its text") {
    Montrer<FrmNouveauLien>(NoOrdre{3}, NoOrdre{1});
    Remplir(*fenetre, "CboLien", "zut");
    Tenir("CboLien");
    CHECK(S().base->R_LIEN.NbElements(NoOrdre{3}) == 0);
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves changed rows open with their text") {
    const records::SaisieEvenement evenement;
    Montrer<FrmMot>(NoOrdre{3}, evenement);
    Remplir(*fenetre, "TxtIndL(0)", "zut");
    Tenir("TxtIndL(0)");
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves changed settings open") {
    Montrer<FrmParametre>(std::vector<BoutonIcone>{});
    const char* champ = "";
    SUBCASE("a setting") {
        champ = "TxtAuteur";
    }
    SUBCASE("a kind of event that is not added") {
        champ = "TxtTypeEvt";
    }
    SUBCASE("a particle that is not added") {
        champ = "TxtParticule";
    }
    Controler<QLineEdit>(*fenetre, champ).setText(QStringLiteral("zut"));
    Tenir(champ);
}

TEST_CASE_FIXTURE(Quitter, "FrmParametre: saving adds the kind that stands in its field") {
    Montrer<FrmParametre>(std::vector<BoutonIcone>{});
    Controler<QLineEdit>(*fenetre, "TxtTypeEvt").setText(QStringLiteral("zut"));
    Cliquer(*fenetre, "CmdValider");
    const auto evenements = shell::LireReglages(S()).evenements;
    CHECK(std::ranges::find(evenements, "zut", &shell::TypeEvenement::type) != evenements.end());
}

TEST_CASE_FIXTURE(Quitter, "Escape twice leaves a changed text open") {
    Montrer<FrmTexte>();
    auto& texte = Controler<EditeurNote>(*fenetre, "TxtTexte");
    texte.setFocus();
    Taper(texte, QStringLiteral("zut"));
    for (int i = 0; i < 2; ++i) {
        bool vue = false;
        RefermerBoite(vue);
        QTest::keyClick(&texte, Qt::Key_Escape);
        CHECK(vue);
        REQUIRE(fenetre->isVisible());
        CHECK(texte.toPlainText() == "zut");
    }
}

TEST_CASE_FIXTURE(Quitter, "Quitting: Escape stays, and so does the close button of the box") {
    bool vue = false;
    RefermerBoite(vue);
    QTest::keyClick(&Fenetre(), Qt::Key_Q, Qt::ControlModifier);
    CHECK(vue);
    CHECK(Fenetre().isVisible());
    CHECK(S().BaseOuverte());
}

TEST_CASE_FIXTURE(Quitter, "After a question the window that asked is in use again") {
    REQUIRE(Montrer<FrmMisajour>().Ouvrir(NoOrdre{3}));
    Remplir(*fenetre, "Tx_PrénomAutres", "zut");
    SurModal([this](QWidget& boite) {
        CHECK(boite.parentWidget() == fenetre);
        // As a desktop does that turns to the main window.
        Fenetre().activateWindow();
        QTest::keyClick(&boite, Qt::Key_Escape);
    });
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Escape);
    CHECK(QTest::qWaitFor([this] { return QApplication::activeWindow() == fenetre; }));
    CHECK(fenetre->focusWidget()->objectName() == QStringLiteral("Tx_PrénomAutres"));
}

TEST_CASE_FIXTURE(Quitter, "The window bar says what is not saved as the frame does") {
    S().parametres.generaux.barreFenetres = true;
    Action("MnuModif").trigger();
    fenetre = Fenetre().findChild<FrmMisajour*>();
    const auto bouton = [this] {
        const auto* barre = Fenetre().findChild<QToolBar*>(QStringLiteral("Fenetre"));
        return barre->actions().isEmpty() ? QString{} : barre->actions().last()->text();
    };
    QTest::qWait(700);
    CHECK(bouton().endsWith(QStringLiteral("(1820-1890)")));
    Remplir(*fenetre, "Tx_PrénomAutres", "zut");
    CHECK(QTest::qWaitFor([&bouton] { return bouton().endsWith(QStringLiteral("(1820-1890)*")); }));
}

TEST_CASE_FIXTURE(Quitter, "Ctrl+S in the sheet saves the sheet and then the base") {
    Action("MnuModif").trigger();
    fenetre = Fenetre().findChild<FrmMisajour*>();
    Remplir(*fenetre, "Tx_PrénomAutres", "Alban");
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    QCoreApplication::processEvents();
    CHECK(S().base->R_NOM.LireNom(NoOrdre{3}).autrePrenom == "Alban");
    CHECK_FALSE(S().base->marques.Modifie());
    CHECK(fenetre->isVisible());
}

TEST_CASE_FIXTURE(Quitter, "Ctrl+S in a modal window saves it, and then the base") {
    Montrer<FrmCreation>(SaisieDepart{});
    Remplir(*fenetre, "T_Nom", "Roux");
    Remplir(*fenetre, "T_Naiss", "1800");
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    QCoreApplication::processEvents();
    CHECK_FALSE(fenetre->isVisible());
    CHECK(S().base->R_NOM.NomDe(NoOrdre{9}) == "Roux");
    CHECK_FALSE(S().base->marques.Modifie());
}

TEST_CASE_FIXTURE(Quitter, "Ctrl+Q in another window quits, after its own question") {
    const auto quitter = [this] {
        QTest::keyClick(fenetre->focusWidget(), Qt::Key_Q, Qt::ControlModifier);
        QCoreApplication::processEvents();
    };
    SUBCASE("the sheet") {
        Action("MnuModif").trigger();
        fenetre = Fenetre().findChild<FrmMisajour*>();
        Conduite::Devant(*fenetre);
        Remplir(*fenetre, "Tx_PrénomAutres", "zut");
        Enchainement boites;
        boites.Boite(QMessageBox::No, QStringLiteral("La fiche a été modifiée"))
            .Boite(QMessageBox::Yes, QStringLiteral("quitter Dorvane"));
        quitter();
    }
    SUBCASE("a modal window") {
        Montrer<FrmDesEvt>(NoEvenement{}, NoOrdre{3}, std::string{});
        Remplir(*fenetre, "TxtLib", "zut");
        Enchainement boites;
        boites.Boite(QMessageBox::No, QStringLiteral("L'événement a été modifié"))
            .Boite(QMessageBox::Yes, QStringLiteral("quitter Dorvane"));
        quitter();
    }
    CHECK_FALSE(Fenetre().isVisible());
    CHECK_FALSE(S().BaseOuverte());
}

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

#include "windows/Enchainement.h"
#include "windows/Essai.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/graphe/CaseGraphique.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmRecherche.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The family on the screen, with what a user does in the chart.
struct Bureau : FenetreEssai {
    Bureau() { DemarrerFamille(); }

    /// A child of whom one parent is not known, shown in the chart.
    NoOrdre MontrerEnfant(NoOrdre pere, NoOrdre mere) const {
        doublures::FamilleEssai famille{*S().base};
        const NoOrdre enfant = famille.Creer(Sexe::Femme, "Martin", "Luce", "1870");
        famille.Parents(enfant, pere, mere);
        Fenetre().AllerA(enfant);
        return enfant;
    }

    [[nodiscard]] FrmMisajour* Fiche() const { return Fenetre().findChild<FrmMisajour*>(); }

    /// The box of the first unknown parent on a side of a person.
    [[nodiscard]] QPoint CaseInconnue(std::uint32_t enfant, bool mere) const {
        const auto& cases = Graphe().Modele().cases;
        bool pere = true;
        for (std::size_t i = 1; i < cases.size(); ++i) {
            if (cases[i].sorte != records::CaseFamille::Sorte::Ascendant ||
                cases[cases[i].parent].individu != NoOrdre{enfant})
                continue;
            if (!cases[i].individu && pere != mere) return Graphe().CaseEcran(i).center();
            pere = false;
        }
        FAIL("no such box");
        return {};
    }
    void Deposer(const QPoint& point, const QMimeData& donnees) const {
        QDragEnterEvent entre{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(Graphe().viewport(), &entre);
        CHECK(entre.isAccepted());
        QDropEvent depot{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(Graphe().viewport(), &depot);
        QCoreApplication::processEvents();
    }
    void DoubleCliquer(std::size_t indice) const {
        QTest::mouseDClick(Graphe().viewport(), Qt::LeftButton, {},
                           Graphe().CaseEcran(indice).center());
    }
    /// Clicks a box that invites, and chooses in its menu.
    void Inviter(const QPoint& point, const char* choix) const {
        QTest::mouseClick(Graphe().viewport(), Qt::LeftButton, {}, point);
        auto* menu = Fenetre().findChild<QMenu*>(QStringLiteral("MnuParent"));
        REQUIRE(menu != nullptr);
        auto* action = menu->findChild<QAction*>(QString::fromUtf8(choix));
        REQUIRE(action != nullptr);
        menu->close();
        action->trigger();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "MnuModif: the sheet opens on the current person, in one window") {
    Action("MnuModif").trigger();
    REQUIRE(Fiche() != nullptr);
    CHECK(Fiche()->isVisible());
    CHECK(Fiche()->Individu() == NoOrdre{3});
    AllerA(1);
    Action("MnuModif").trigger();
    CHECK(Fenetre().findChildren<FrmMisajour*>().size() == 1);
    CHECK(Fiche()->Individu() == NoOrdre{1});
}

TEST_CASE_FIXTURE(Bureau, "Chart: a double click moves, on the current person it opens the sheet") {
    DoubleCliquer(0);
    REQUIRE(Fiche() != nullptr);
    CHECK(Fiche()->Individu() == NoOrdre{3});
    Fiche()->close();
    DoubleCliquer(1);
    CHECK(EnCours() != 3);
    SUBCASE("Enter opens the sheet too") {
        Touche(Qt::Key_Return);
        CHECK(Fiche()->Individu().valeur == EnCours());
    }
}

TEST_CASE_FIXTURE(Bureau, "Chart: an unknown parent invites to create one") {
    const NoOrdre luce = MontrerEnfant({}, NoOrdre{4});
    Enchainement fenetres;
    fenetres
        .Fenetre("FrmCréation",
                 [](QWidget& forme) {
                     CHECK(forme.findChild<QLineEdit*>(QStringLiteral("T_Nom"))->text() ==
                           QStringLiteral("Martin"));
                     QTest::keyClicks(forme.findChild<QLineEdit*>(QStringLiteral("T_Prénom")),
                                      QStringLiteral("Jules"));
                     QTest::keyClicks(forme.findChild<QLineEdit*>(QStringLiteral("T_Naiss")),
                                      QStringLiteral("1830"));
                     QTest::keyClick(&forme, Qt::Key_Return);
                 })
        .Boite(QMessageBox::No, QStringLiteral("créer une union avec Anne Évrard"));
    Inviter(CaseInconnue(luce.valeur, false), "CréerParent");
    CHECK(S().base->R_PERE.LireCellule(luce) == NoOrdre{10});
    CHECK(S().base->R_ENFANT.Elements(NoOrdre{10}) == std::vector<NoOrdre>{luce});
    CHECK(EnCours() == luce.valeur);
}

TEST_CASE_FIXTURE(Bureau, "Chart: closing the form of a new parent creates nobody") {
    const NoOrdre luce = MontrerEnfant(NoOrdre{3}, {});
    SurModal([](QWidget& forme) { QTest::keyClick(&forme, Qt::Key_Escape); });
    Inviter(CaseInconnue(luce.valeur, true), "CréerParent");
    CHECK(S().base->entete.DernierIndividu == 9);
    CHECK_FALSE(S().base->R_MERE.LireCellule(luce));
}

TEST_CASE_FIXTURE(Bureau, "Chart: a person dropped on an unknown parent becomes it") {
    const NoOrdre luce = MontrerEnfant({}, NoOrdre{4});
    const QPoint place = CaseInconnue(luce.valeur, false);
    // Paul and Anne are married: nothing is asked.
    const std::unique_ptr<QMimeData> paul{PersonneVersMime(S(), NoOrdre{3})};
    Deposer(place, *paul);
    CHECK(S().base->R_PERE.LireCellule(luce) == NoOrdre{3});
}

TEST_CASE_FIXTURE(Bureau, "Chart: a person dropped on the ground is shown, another base's is not") {
    const std::unique_ptr<QMimeData> jules{PersonneVersMime(S(), NoOrdre{8})};
    CHECK(jules->text().contains(QStringLiteral("Jules Martin")));
    Deposer({2, 2}, *jules);
    CHECK(EnCours() == 8);
    QMimeData autre;
    autre.setData(QStringLiteral("application/x-dorvane-personne"), "3 1 /autre.LGD");
    CHECK_FALSE(PersonneDeMime(S(), &autre));
    QMimeData texte;
    texte.setText(QStringLiteral("3"));
    CHECK_FALSE(PersonneDeMime(S(), &texte));
}

TEST_CASE_FIXTURE(Bureau, "MnuNouvInd: the new person becomes the current one") {
    SurModal([](QWidget& forme) {
        QTest::keyClicks(forme.findChild<QLineEdit*>(QStringLiteral("T_Nom")),
                         QStringLiteral("Durand"));
        QTest::keyClicks(forme.findChild<QLineEdit*>(QStringLiteral("T_Naiss")),
                         QStringLiteral("1900"));
        QTest::keyClick(&forme, Qt::Key_Return);
    });
    Action("MnuNouvInd").trigger();
    CHECK(EnCours() == 9);
    CHECK(S().base->R_NOM.NomDe(NoOrdre{9}) == "Durand");
}

TEST_CASE_FIXTURE(Bureau, "MnuSupprInd: refused with a family, done after a yes without") {
    RepondreBoite(QMessageBox::Ok);
    Action("MnuSupprInd").trigger();
    CHECK(EnCours() == 3);
    const NoOrdre seul =
        doublures::FamilleEssai{*S().base}.Creer(Sexe::Indetermine, "Seul", "Jean", "1900");
    Fenetre().AllerA(seul);
    RepondreBoite(QMessageBox::Yes);
    Action("MnuSupprInd").trigger();
    CHECK(EnCours() != seul.valeur);
    CHECK(S().base->R_TRI.RangIndividu(seul) == 0);
}

TEST_CASE_FIXTURE(Bureau, "A move with an unsaved sheet asks: yes saves, no drops") {
    Action("MnuModif").trigger();
    auto* prenom = Fiche()->findChild<QLineEdit*>(QStringLiteral("T_Prénom"));
    REQUIRE(prenom != nullptr);
    prenom->selectAll();
    QTest::keyClicks(prenom, QStringLiteral("Pierre"));
    std::shared_ptr<QString> dit;
    SUBCASE("yes") {
        dit = RepondreBoite(QMessageBox::Yes);
        Action("MnuSuivant").trigger();
        CHECK(S().base->R_NOM.PrenomDe(NoOrdre{3}) == "Pierre");
    }
    SUBCASE("no") {
        dit = RepondreBoite(QMessageBox::No);
        Action("MnuSuivant").trigger();
        CHECK(S().base->R_NOM.PrenomDe(NoOrdre{3}) == "Paul");
    }
    CHECK(dit->contains(QStringLiteral("La fiche a été modifiée")));
    CHECK(EnCours() != 3);
    QCoreApplication::processEvents();
    CHECK(QApplication::activeModalWidget() == nullptr);
}

TEST_CASE_FIXTURE(Bureau, "MnuListe: the person chosen in the search is shown in the chart") {
    Action("MnuListe").trigger();
    auto* recherche = Fenetre().findChild<FrmRecherche*>();
    REQUIRE(recherche != nullptr);
    auto* texte = recherche->findChild<QLineEdit*>(QStringLiteral("T_Recherche"));
    QTest::keyClicks(texte, QStringLiteral("jeanne"));
    QTest::keyClick(texte, Qt::Key_Return);
    QTest::mouseClick(recherche->findChild<QPushButton*>(QStringLiteral("C_Affichage")),
                      Qt::LeftButton);
    CHECK(EnCours() == 5);
}

TEST_CASE_FIXTURE(FenetreEssai, "An empty base offers to create its first person") {
    Demarrer({});
    RepondreFichier(dossier / "Vide.LGD");
    Action("MnuNouveau").trigger();
    REQUIRE(S().BaseOuverte());
    Enchainement fenetres;
    fenetres.Fenetre("FrmCréation", [](QWidget& forme) {
        QTest::keyClicks(forme.findChild<QLineEdit*>(QStringLiteral("T_Nom")),
                         QStringLiteral("Martin"));
        QTest::keyClicks(forme.findChild<QLineEdit*>(QStringLiteral("T_Naiss")),
                         QStringLiteral("1820"));
        QTest::keyClick(&forme, Qt::Key_Return);
    });
    auto& bouton = Trouver<QPushButton>("CmdAccueilPersonne");
    REQUIRE(bouton.isVisible());
    QTest::mouseClick(&bouton, Qt::LeftButton);
    CHECK(EnCours() == 1);
    CHECK(Graphe().isVisible());
    CHECK_FALSE(bouton.isVisible());
}

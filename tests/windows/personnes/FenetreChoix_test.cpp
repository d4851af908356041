#include "windows/personnes/FenetreChoix.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include "windows/Essai.h"
#include "windows/personnes/FrmConjoints.h"
#include "windows/personnes/FrmEnfants.h"
#include "windows/personnes/FrmLiens.h"
#include "windows/personnes/FrmPere.h"

#include <string>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The Martins, and a way to the controls of a chooser.
struct Famille : FenetreEssai {
    Famille() { DemarrerFamille(); }

    template <class Controle>
    static Controle& C(const QWidget& fenetre, const char* nom) {
        auto* controle = fenetre.findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    static QStringList Noms(const QWidget& fenetre) {
        const auto& grille = C<QTableView>(fenetre, "Grille1");
        QStringList noms;
        for (int i = 0; i < grille.model()->rowCount(); ++i)
            noms << grille.model()->index(i, 1).data().toString();
        return noms;
    }
    static QString Texte(const QWidget& fenetre, const char* nom) {
        return C<QLabel>(fenetre, nom).text();
    }
    static void Cliquer(const QWidget& fenetre, const char* nom) {
        QTest::mouseClick(&C<QAbstractButton>(fenetre, nom), Qt::LeftButton);
    }
    storage::Base& B() const { return *S().base; }
    /// Men who could be the father of Paul, who was born in 1820.
    void Peupler(int combien) const {
        doublures::FamilleEssai famille{B()};
        for (int i = 0; i < combien; ++i)
            famille.Creer(Sexe::Homme, "Nom" + std::to_string(100 + i), "P", "1780");
    }
    /// A click on the row, then the double click that a user makes.
    static void DoubleCliquer(const QWidget& fenetre, int rangee) {
        auto& grille = C<QTableView>(fenetre, "Grille1");
        const QPoint place = grille.visualRect(grille.model()->index(rangee, 1)).center();
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, place);
    }
};

}  // namespace

TEST_CASE_FIXTURE(
    Famille, "FrmPère: starts with the surname, shows marks, names, dates and the years in words") {
    FrmPere fenetre{S(), NoOrdre{6}, Cote::Pere, &Fenetre()};
    fenetre.show();
    CHECK(fenetre.objectName() == QStringLiteral("FrmPère"));
    CHECK(fenetre.windowTitle() == QStringLiteral("Chercher le père de Luc Martin"));
    CHECK(C<QLineEdit>(fenetre, "TxtNom").text() == "MARTIN");
    CHECK(fenetre.focusWidget() == &C<QLineEdit>(fenetre, "TxtNom"));
    CHECK(Texte(fenetre, "LblFenetre") == QStringLiteral("Personnes nées de 1751 à 1841."));
    CHECK(Noms(fenetre) == QStringList{"Louis Martin", "Paul Martin"});
    const auto& grille = C<QTableView>(fenetre, "Grille1");
    CHECK(grille.model()->index(0, 0).data().toString() == "*");
    CHECK(grille.model()->index(0, 0).data(Qt::ToolTipRole).toString() == "Parents inconnus");
    CHECK(grille.model()->index(1, 0).data().toString().isEmpty());
    CHECK(grille.model()->index(0, 2).data().toString() == "1790-1860");
    CHECK(grille.model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString() == "Dates");
    CHECK(fenetre.Choisie() == NoOrdre{1});
    CHECK(Texte(fenetre, "LblApercu") ==
          QStringLiteral("n° 1 – conjoint\u00A0: Rose Blanc (o1795)"));
    QTest::keyClick(&C<QLineEdit>(fenetre, "TxtNom"), Qt::Key_Down);
    CHECK(Texte(fenetre, "LblApercu")
              .startsWith(QStringLiteral("n° 3 – père\u00A0: Louis Martin (1790-1860)")));
}

TEST_CASE_FIXTURE(Famille,
                  "FrmPère: what is typed is folded at each change, and the cursor stays") {
    FrmPere fenetre{S(), NoOrdre{4}, Cote::Mere, &Fenetre()};
    fenetre.show();
    auto& nom = C<QLineEdit>(fenetre, "TxtNom");
    CHECK(nom.text() == "EVRARD");
    CHECK(Noms(fenetre).isEmpty());
    QTest::keyClick(&nom, Qt::Key_Delete);
    Taper(nom, QStringLiteral("rô"));
    CHECK(nom.text() == "RO");
    QTest::keyClick(&nom, Qt::Key_Home);
    Taper(nom, QStringLiteral("é"));
    CHECK(nom.text() == "ERO");
    CHECK(nom.cursorPosition() == 1);
    QTest::keyClick(&nom, Qt::Key_Backspace);
    CHECK(Noms(fenetre) == QStringList{"Rose Blanc"});
}

TEST_CASE_FIXTURE(Famille,
                  "FrmPère: a double click makes the link, with its questions, and closes") {
    FrmPere fenetre{S(), NoOrdre{4}, Cote::Pere, &Fenetre()};
    fenetre.show();
    C<QLineEdit>(fenetre, "TxtNom").clear();
    CHECK(Noms(fenetre) == QStringList{"Louis Martin"});
    const auto question = RepondreBoite(QMessageBox::Yes);
    DoubleCliquer(fenetre, 0);
    CHECK(*question == QStringLiteral("Rose Blanc est-elle la mère d'Anne Évrard\u00A0?"));
    CHECK(fenetre.result() == QDialog::Accepted);
    CHECK_FALSE(fenetre.isVisible());
    CHECK(B().R_PERE.LireCellule(NoOrdre{4}) == NoOrdre{1});
    CHECK(B().R_MERE.LireCellule(NoOrdre{4}) == NoOrdre{2});
}

TEST_CASE_FIXTURE(Famille, "FrmPère: a refusal keeps the window open") {
    FrmPere fenetre{S(), NoOrdre{1}, Cote::Pere, &Fenetre()};
    fenetre.show();
    auto& nom = C<QLineEdit>(fenetre, "TxtNom");
    nom.clear();
    // Paul, past the years, by number: he is the son of Louis.
    Taper(nom, QStringLiteral("3"));
    CHECK(Noms(fenetre) == QStringList{"Paul Martin"});
    const auto refus = RepondreBoite(QMessageBox::Ok);
    QTest::keyClick(&nom, Qt::Key_Return);
    CHECK(refus->startsWith(QStringLiteral("Paul Martin descend de Louis Martin")));
    CHECK(fenetre.isVisible());
    CHECK_FALSE(B().R_PERE.LireCellule(NoOrdre{1}));
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    CHECK_FALSE(fenetre.isVisible());
    CHECK(fenetre.result() == QDialog::Rejected);
}

TEST_CASE_FIXTURE(Famille,
                  "FrmPère: pages of 20, turned by buttons, keys and the ends of the list") {
    Peupler(45);
    FrmPere fenetre{S(), NoOrdre{3}, Cote::Pere, &Fenetre()};
    fenetre.show();
    auto& nom = C<QLineEdit>(fenetre, "TxtNom");
    auto& grille = C<QTableView>(fenetre, "Grille1");
    const auto& avant = C<QPushButton>(fenetre, "C_Préc");
    const auto& apres = C<QPushButton>(fenetre, "C_Suiv");
    Taper(nom, QStringLiteral("nom"));
    CHECK(Noms(fenetre).size() == 20);
    CHECK(Texte(fenetre, "LblPage") == QStringLiteral("Personnes\u00A0: 45, page 1/3"));
    CHECK_FALSE(avant.isEnabled());
    Cliquer(fenetre, "C_Suiv");
    CHECK(Noms(fenetre).constFirst() == "P Nom120");
    Cliquer(fenetre, "C_Suiv");
    CHECK(Noms(fenetre).size() == 5);
    CHECK_FALSE(apres.isEnabled());
    CHECK(avant.isEnabled());
    // The arrow goes on to the page before at the top of the list.
    nom.setFocus();
    QTest::keyClick(&nom, Qt::Key_Up);
    CHECK(Texte(fenetre, "LblPage") == QStringLiteral("Personnes\u00A0: 45, page 2/3"));
    CHECK(grille.currentIndex().row() == 19);
    QTest::keyClick(&nom, Qt::Key_Down);
    CHECK(Texte(fenetre, "LblPage") == QStringLiteral("Personnes\u00A0: 45, page 3/3"));
    CHECK(grille.currentIndex().row() == 0);
    QTest::keyClick(&nom, Qt::Key_Down);
    CHECK(grille.currentIndex().row() == 1);
    QTest::keyClick(&nom, Qt::Key_PageUp);
    CHECK(Texte(fenetre, "LblPage") == QStringLiteral("Personnes\u00A0: 45, page 2/3"));
    Taper(nom, QStringLiteral("1"));
    CHECK(Texte(fenetre, "LblPage").endsWith("page 1/3"));
}

TEST_CASE_FIXTURE(Famille, "FrmPère: an empty list says why and what to do") {
    FrmPere fenetre{S(), NoOrdre{6}, Cote::Pere, &Fenetre()};
    fenetre.show();
    auto& nom = C<QLineEdit>(fenetre, "TxtNom");
    const auto& vide = C<QLabel>(fenetre, "LblVide");
    CHECK_FALSE(vide.isVisible());
    Taper(nom, QStringLiteral("zz"));
    CHECK(vide.isVisible());
    CHECK(vide.text().contains(QStringLiteral("«\u00A0ZZ\u00A0»")));
    CHECK(vide.text().contains(QStringLiteral("Toutes les années")));
    CHECK_FALSE(C<QPushButton>(fenetre, "CmdChoisir").isEnabled());
    QTest::keyClick(&nom, Qt::Key_Return);
    CHECK(fenetre.isVisible());
    C<QCheckBox>(fenetre, "ChkAnnees").setChecked(true);
    CHECK_FALSE(vide.text().contains(QStringLiteral("Toutes les années")));
    CHECK(Texte(fenetre, "LblFenetre").startsWith(QStringLiteral("Toutes les personnes")));
    nom.clear();
    CHECK(Noms(fenetre).size() == 3);
    Taper(nom, QStringLiteral("77"));
    CHECK(vide.text().contains(QStringLiteral("77")));
}

TEST_CASE_FIXTURE(Famille, "FrmPère: for a child without a year the window says who is offered") {
    doublures::FamilleEssai famille{B()};
    const NoOrdre sans = famille.Creer(Sexe::Homme, "Noir", "Jean", "");
    const FrmPere fenetre{S(), sans, Cote::Pere, &Fenetre()};
    CHECK(Texte(fenetre, "LblFenetre")
              .startsWith(QStringLiteral("L'année de naissance de Jean Noir n'est pas connue")));
}

TEST_CASE_FIXTURE(
    Famille,
    "FrmEnfants, FrmConjoints, FrmLiens: Enter gives the person back, and nothing is written") {
    B().marques.ModifBase = false;
    FrmEnfants enfants{S(), NoOrdre{2}, &Fenetre()};
    enfants.show();
    CHECK(enfants.windowTitle() == "Chercher un enfant de Rose Blanc");
    CHECK(C<QLineEdit>(enfants, "TxtNom").text() == "BLANC");
    C<QLineEdit>(enfants, "TxtNom").clear();
    CHECK(Noms(enfants).constFirst() == QStringLiteral("Anne Évrard"));
    QTest::keyClick(&C<QLineEdit>(enfants, "TxtNom"), Qt::Key_Return);
    CHECK(enfants.result() == QDialog::Accepted);
    CHECK(enfants.Choisie() == NoOrdre{4});

    FrmConjoints conjoints{S(), NoOrdre{6}, &Fenetre()};
    conjoints.show();
    CHECK(conjoints.windowTitle() == "Chercher un conjoint de Luc Martin");
    CHECK(Noms(conjoints) == QStringList{"Rose Blanc", QStringLiteral("Anne Évrard"),
                                         "Marie Martin", QStringLiteral("Jeanne Noël")});
    QTest::keyClick(&C<QLineEdit>(conjoints, "TxtNom"), Qt::Key_Down);
    QTest::keyClick(&C<QTableView>(conjoints, "Grille1"), Qt::Key_Return);
    CHECK(conjoints.Choisie() == NoOrdre{4});

    FrmLiens liens{S(), NoOrdre{6}, &Fenetre()};
    liens.show();
    CHECK(liens.windowTitle() == QStringLiteral("Choisir une personne à lier à Luc Martin"));
    CHECK(Texte(liens, "LblFenetre").contains("Luc Martin"));
    CHECK(Noms(liens).size() == 7);
    Cliquer(liens, "CmdAnnuler");
    CHECK(liens.result() == QDialog::Rejected);
    CHECK_FALSE(B().marques.ModifBase);
}

TEST_CASE_FIXTURE(Famille, "A chooser keeps its columns for the next time, each window its own") {
    {
        FrmPere fenetre{S(), NoOrdre{6}, Cote::Pere, &Fenetre()};
        fenetre.show();
        C<QTableView>(fenetre, "Grille1").setColumnHidden(2, true);
        QTest::keyClick(&fenetre, Qt::Key_Escape);
    }
    const FrmPere encore{S(), NoOrdre{6}, Cote::Mere, &Fenetre()};
    CHECK(C<QTableView>(encore, "Grille1").isColumnHidden(2));
    const FrmLiens autre{S(), NoOrdre{6}, &Fenetre()};
    CHECK_FALSE(C<QTableView>(autre, "Grille1").isColumnHidden(2));
}

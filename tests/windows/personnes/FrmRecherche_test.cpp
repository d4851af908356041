#include "windows/personnes/FrmRecherche.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTableView>

#include "windows/Essai.h"
#include "windows/controles/GlisserPersonne.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The search over the Martins, open.
struct Recherche : FenetreEssai {
    Recherche() {
        DemarrerFamille();
        fenetre = std::make_unique<FrmRecherche>(S(), &Fenetre());
        fenetre->show();
    }
    template <class Controle>
    Controle& C(const char* nom) const {
        auto* controle = fenetre->findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Chercher(const char* texte) const {
        C<QLineEdit>("T_Recherche").clear();
        Taper(C<QLineEdit>("T_Recherche"), QString::fromUtf8(texte));
        QTest::keyClick(&C<QLineEdit>("T_Recherche"), Qt::Key_Return);
    }
    QStringList Noms() const {
        QStringList noms;
        const auto* modele = C<QTableView>("Grille1").model();
        for (int i = 0; i < modele->rowCount(); ++i)
            noms << modele->index(i, 1).data().toString();
        return noms;
    }
    bool Actif(const char* nom) const { return C<QPushButton>(nom).isEnabled(); }
    void Cliquer(const char* nom) const {
        QTest::mouseClick(&C<QAbstractButton>(nom), Qt::LeftButton);
    }
    std::unique_ptr<FrmRecherche> fenetre;
};

}  // namespace

TEST_CASE_FIXTURE(
    Recherche, "FrmRecherche: the text is folded while typing, and empty text cannot be searched") {
    CHECK(fenetre->focusWidget() == &C<QLineEdit>("T_Recherche"));
    CHECK_FALSE(Actif("C_Recherche"));
    Taper(C<QLineEdit>("T_Recherche"), QStringLiteral("évr"));
    CHECK(C<QLineEdit>("T_Recherche").text() == "EVR");
    CHECK(Actif("C_Recherche"));
    C<QLineEdit>("T_Recherche").clear();
    CHECK_FALSE(Actif("C_Recherche"));
    CHECK(C<QLabel>("LblVide").isVisible());
}

TEST_CASE_FIXTURE(Recherche,
                  "FrmRecherche: Enter searches; rows stand by number with mark and dates") {
    Chercher("martin");
    CHECK(Noms() ==
          QStringList{"Louis Martin", "Paul Martin", "Luc Martin", "Marie Martin", "Jules Martin"});
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Personnes\u00A0: 5"));
    const auto* modele = C<QTableView>("Grille1").model();
    CHECK(modele->index(0, 0).data().toString() == "*");
    CHECK(modele->index(1, 2).data().toString() == "1820-1890");
    CHECK(fenetre->focusWidget() == &C<QTableView>("Grille1"));
    CHECK(fenetre->Choisie() == NoOrdre{1});
    for (const char* bouton : {"C_Affichage", "C_Maj", "CmdEcarter"})
        CHECK(Actif(bouton));
}

TEST_CASE_FIXTURE(Recherche, "FrmRecherche: nobody found is told, and the actions are off") {
    const auto message = RepondreBoite(QMessageBox::Ok);
    Chercher("zzz");
    CHECK(*message == "Aucune personne ne porte ce nom");
    CHECK(Noms().isEmpty());
    for (const char* bouton : {"C_Affichage", "C_Maj", "CmdEcarter"})
        CHECK_FALSE(Actif(bouton));
    CHECK(C<QLabel>("LblVide").isVisible());
    CHECK(C<QLabel>("LblVide").text().contains("ZZZ"));
}

TEST_CASE_FIXTURE(Recherche,
                  "FrmRecherche: the list is kept and completed when asked, without doubles") {
    Chercher("rose");
    C<QCheckBox>("ChxCumul").setChecked(true);
    Chercher("luc");
    CHECK(Noms() == QStringList{"Rose Blanc", "Luc Martin"});
    const auto message = RepondreBoite(QMessageBox::Ok);
    Chercher("luc");
    CHECK(Noms().size() == 2);
    C<QCheckBox>("ChxCumul").setChecked(false);
    Chercher("anne");
    CHECK(Noms() == QStringList{QStringLiteral("Anne Évrard"), QStringLiteral("Jeanne Noël")});
}

TEST_CASE_FIXTURE(Recherche,
                  "FrmRecherche: the current person is added at its place, rows are taken off") {
    Chercher("rose");
    C<QCheckBox>("ChxCumul").setChecked(true);
    Chercher("luc");
    Cliquer("CmdAjouter");
    CHECK(Noms() == QStringList{"Rose Blanc", "Paul Martin", "Luc Martin"});
    CHECK(fenetre->Choisie() == NoOrdre{3});
    Cliquer("CmdAjouter");
    CHECK(Noms().size() == 3);
    Cliquer("CmdEcarter");
    CHECK(Noms() == QStringList{"Rose Blanc", "Luc Martin"});
    QTest::keyClick(&C<QTableView>("Grille1"), Qt::Key_Delete);
    QTest::keyClick(&C<QTableView>("Grille1"), Qt::Key_Delete);
    CHECK(Noms().isEmpty());
    CHECK_FALSE(Actif("CmdEcarter"));
}

TEST_CASE_FIXTURE(
    Recherche,
    "FrmRecherche: button, Enter and double click ask for the chart, C_Maj for the sheet") {
    Chercher("martin");
    const QSignalSpy aller{fenetre.get(), &FenetreFille::allerDemande};
    const QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    auto& grille = C<QTableView>("Grille1");
    QTest::keyClick(&grille, Qt::Key_Down);
    QTest::keyClick(&grille, Qt::Key_Return);
    Cliquer("C_Affichage");
    const QPoint place = grille.visualRect(grille.model()->index(2, 1)).center();
    QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, place);
    Cliquer("C_Maj");
    REQUIRE(aller.size() == 3);
    CHECK(aller[0][0].toUInt() == 3);
    CHECK(aller[1][0].toUInt() == 3);
    CHECK(aller[2][0].toUInt() == 6);
    REQUIRE(fiche.size() == 1);
    CHECK(fiche[0][0].toUInt() == 6);
}

TEST_CASE_FIXTURE(Recherche, "FrmRecherche: the list lives as long as the window is open") {
    Chercher("martin");
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
    fenetre->show();
    CHECK(Noms().isEmpty());
    CHECK(C<QLineEdit>("T_Recherche").text() == "MARTIN");
}

TEST_CASE_FIXTURE(Recherche,
                  "FrmRecherche: who was deleted leaves the list when the base is read again") {
    Chercher("martin");
    storage::Base& ouverte = *S().base;
    ouverte.R_TRI.RetirerIndividu(NoOrdre{8});
    ouverte.R_NOM.EcrireNom(NoOrdre{8}, "");
    fenetre->Recharger();
    CHECK(Noms().size() == 4);
}

TEST_CASE_FIXTURE(Recherche, "FrmRecherche: a person dropped on the window joins the list") {
    Chercher("rose");
    const std::unique_ptr<QMimeData> donnees{PersonneVersMime(S(), NoOrdre{7})};
    QDragEnterEvent entree{QPoint{20, 20}, Qt::CopyAction, donnees.get(), Qt::LeftButton, {}};
    QApplication::sendEvent(fenetre.get(), &entree);
    CHECK(entree.isAccepted());
    QDropEvent depot{QPointF{20, 20}, Qt::CopyAction, donnees.get(), Qt::LeftButton, {}};
    QApplication::sendEvent(fenetre.get(), &depot);
    CHECK(Noms() == QStringList{"Rose Blanc", "Marie Martin"});
}

TEST_CASE_FIXTURE(Recherche, "FrmRecherche: what has no window yet is not shown") {
    for (const char* nom : {"CmdParenté", "CmdStats", "CmdImprimer"})
        CHECK_FALSE(C<QPushButton>(nom).isVisible());
}

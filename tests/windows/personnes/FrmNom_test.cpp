#include "windows/personnes/FrmNom.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTableView>

#include "windows/Essai.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/personnes/ModeleNoms.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

struct Noms : FenetreEssai {
    Noms() { DemarrerFamille(); }

    template <class Controle>
    static Controle& C(const QWidget& fenetre, const char* nom) {
        auto* controle = fenetre.findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    static QString Ligne(const QWidget& fenetre, int rangee) {
        return C<QTableView>(fenetre, "LstNoms").model()->index(rangee, 0).data().toString();
    }
    static void CliquerEntete(const QWidget& fenetre, int colonne) {
        QHeaderView& entete = *C<QTableView>(fenetre, "LstNoms").horizontalHeader();
        const QPoint place{entete.sectionViewportPosition(colonne) + 20, entete.height() / 2};
        QTest::mouseClick(entete.viewport(), Qt::LeftButton, {}, place);
    }
};

}  // namespace

TEST_CASE_FIXTURE(
    Noms, "FrmNom: TxPosition goes to the first person at or after a name, and hides nobody") {
    FrmNom fenetre{S(), {NoOrdre{3}, {}, {}}, &Fenetre()};
    fenetre.show();
    auto& position = C<QLineEdit>(fenetre, "TxPosition");
    Taper(position, QStringLiteral("évr"));
    CHECK(fenetre.Choisie() == NoOrdre{4});
    CHECK(C<QTableView>(fenetre, "LstNoms").model()->rowCount() == 8);
    position.clear();
    Taper(position, QStringLiteral("martin p"));
    CHECK(fenetre.Choisie() == NoOrdre{3});
    position.clear();
    Taper(position, QStringLiteral("zz"));
    CHECK(fenetre.Choisie() == NoOrdre{5});
    // Together with the filter it looks among the rows that are shown.
    Taper(C<QLineEdit>(fenetre, "TxtFiltre"), QStringLiteral("martin"));
    position.clear();
    Taper(position, QStringLiteral("e"));
    CHECK(fenetre.Choisie() == NoOrdre{8});
    QTest::keyClick(&position, Qt::Key_Down);
    CHECK(fenetre.Choisie() == NoOrdre{1});
    QTest::keyClick(&position, Qt::Key_Return);
    CHECK(fenetre.result() == QDialog::Accepted);
}

TEST_CASE_FIXTURE(Noms, "FrmNom: in a base by years TxPosition takes a year") {
    S().base->entete.TypeTri = TypeTri::Naissance;
    storage::ProgressionMuette muet;
    S().base->R_TRI.TrierIndividus(muet);
    FrmNom fenetre{S(), {}, &Fenetre()};
    fenetre.show();
    CHECK(C<QLabel>(fenetre, "LblPosition").text() == QStringLiteral("A&ller à l'année\u00A0:"));
    Taper(C<QLineEdit>(fenetre, "TxPosition"), QStringLiteral("1852"));
    CHECK(fenetre.Choisie() == NoOrdre{7});
}

TEST_CASE_FIXTURE(
    Noms, "FrmNom: among some persons, and in a base by creation, there is no place to go to") {
    const FrmNom choix{S(), {{}, {}, {NoOrdre{4}, NoOrdre{1}}}, &Fenetre()};
    CHECK(C<QLineEdit>(choix, "TxPosition").isHidden());
    S().base->entete.TypeTri = TypeTri::Creation;
    const FrmNom tous{S(), {}, &Fenetre()};
    CHECK(C<QLineEdit>(tous, "TxPosition").isHidden());
    CHECK(C<QLabel>(tous, "LblPosition").isHidden());
}

TEST_CASE_FIXTURE(
    Noms,
    "FrmNom: columns sort both ways, then give the order of the base back; the selection stays") {
    FrmNom fenetre{S(), {NoOrdre{3}, {}, {}}, &Fenetre()};
    fenetre.show();
    CHECK(Ligne(fenetre, 0) == "Rose Blanc");
    CliquerEntete(fenetre, ModeleNoms::Dates);
    CHECK(Ligne(fenetre, 0) == "Louis Martin");
    CHECK(Ligne(fenetre, 7) == "Jules Martin");
    CHECK(fenetre.Choisie() == NoOrdre{3});
    CliquerEntete(fenetre, ModeleNoms::Dates);
    CHECK(Ligne(fenetre, 0) == "Jules Martin");
    Taper(C<QLineEdit>(fenetre, "TxtFiltre"), QStringLiteral("martin"));
    CHECK(Ligne(fenetre, 0) == "Jules Martin");
    CHECK(Ligne(fenetre, 4) == "Louis Martin");
    CHECK(fenetre.Choisie() == NoOrdre{3});
    C<QLineEdit>(fenetre, "TxtFiltre").clear();
    CliquerEntete(fenetre, ModeleNoms::Dates);
    CHECK(Ligne(fenetre, 0) == "Rose Blanc");
    CliquerEntete(fenetre, ModeleNoms::Nom);
    CHECK(Ligne(fenetre, 0) == QStringLiteral("Anne Évrard"));
    // A place by name is a place in the order of the base.
    Taper(C<QLineEdit>(fenetre, "TxPosition"), QStringLiteral("b"));
    CHECK(Ligne(fenetre, 0) == "Rose Blanc");
    CHECK(fenetre.Choisie() == NoOrdre{2});
}

TEST_CASE_FIXTURE(Noms,
                  "FrmNom: the menu of the header hides columns, which stay hidden the next time") {
    {
        FrmNom fenetre{S(), {}, &Fenetre()};
        fenetre.show();
        QHeaderView& entete = *C<QTableView>(fenetre, "LstNoms").horizontalHeader();
        QTimer::singleShot(50, qApp, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            REQUIRE(menu != nullptr);
            REQUIRE(menu->actions().size() == 5);
            CHECK(menu->actions()[ModeleNoms::Sexe]->text() == "Sexe");
            menu->actions()[ModeleNoms::Sexe]->trigger();
            menu->close();
        });
        Q_EMIT entete.customContextMenuRequested({5, 5});
        CHECK(entete.isSectionHidden(ModeleNoms::Sexe));
        fenetre.reject();
    }
    FrmNom encore{S(), {}, &Fenetre()};
    const QHeaderView& entete = *C<QTableView>(encore, "LstNoms").horizontalHeader();
    CHECK(entete.isSectionHidden(ModeleNoms::Sexe));
    CHECK_FALSE(entete.isSectionHidden(ModeleNoms::Nom));
}

TEST_CASE_FIXTURE(Noms, "FrmNom: a row that is dragged carries its person") {
    const FrmNom fenetre{S(), {}, &Fenetre()};
    const auto& liste = C<QTableView>(fenetre, "LstNoms");
    CHECK(liste.dragEnabled());
    const std::unique_ptr<QMimeData> donnees{
        liste.model()->mimeData({liste.model()->index(0, ModeleNoms::Nom)})};
    CHECK(PersonneDeMime(S(), donnees.get()) == NoOrdre{2});
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmNom: typing narrows the list, and the count says what is hidden") {
    DemarrerFamille();
    FrmNom fenetre{S(), {NoOrdre{3}, {}, {}}, &Fenetre()};
    fenetre.show();
    auto* filtre = fenetre.findChild<QLineEdit*>(QStringLiteral("TxtFiltre"));
    auto* nombre = fenetre.findChild<QLabel*>(QStringLiteral("LblNombre"));
    auto* vide = fenetre.findChild<QLabel*>(QStringLiteral("LblVide"));
    auto* choisir = fenetre.findChild<QPushButton*>(QStringLiteral("CmdChoisir"));
    CHECK(fenetre.Choisie() == NoOrdre{3});
    CHECK(nombre->text() == QStringLiteral("Personnes\u00A0: 8"));
    QTest::keyClicks(filtre, QStringLiteral("EVRARD"));
    CHECK(nombre->text() == QStringLiteral("Personnes\u00A0: 1 sur 8"));
    CHECK(fenetre.Choisie() == NoOrdre{4});
    QTest::keyClicks(filtre, QStringLiteral(" 1825"));
    CHECK(fenetre.Choisie() == NoOrdre{4});
    QTest::keyClicks(filtre, QStringLiteral(" zz"));
    CHECK(fenetre.Choisie() == NoOrdre{});
    CHECK(vide->isVisible());
    CHECK(vide->text().contains(QStringLiteral("EVRARD 1825 zz")));
    CHECK_FALSE(choisir->isEnabled());
    filtre->clear();
    CHECK(nombre->text() == QStringLiteral("Personnes\u00A0: 8"));
    // The arrows walk in the list while the filter has the focus.
    QTest::keyClick(filtre, Qt::Key_PageUp);
    QTest::keyClick(filtre, Qt::Key_Down);
    CHECK(fenetre.Choisie() == NoOrdre{4});
    QTest::keyClick(filtre, Qt::Key_Return);
    CHECK(fenetre.result() == QDialog::Accepted);
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmNom: columns tell parents, sex and family in words as well") {
    DemarrerFamille();
    const ModeleNoms modele{S(), {NoOrdre{1}, NoOrdre{3}, NoOrdre{6}, NoOrdre{4}}, nullptr};
    const auto texte = [&](int rangee, int colonne, int role = Qt::DisplayRole) {
        return modele.data(modele.index(rangee, colonne), role).toString();
    };
    CHECK(modele.rowCount({}) == 4);
    CHECK(texte(0, ModeleNoms::Parents) == "xx");
    CHECK(texte(1, ModeleNoms::Parents).isEmpty());
    CHECK(texte(1, ModeleNoms::Parents, Qt::ToolTipRole) == QStringLiteral("Père et mère connus"));
    CHECK(texte(1, ModeleNoms::Sexe, Qt::ToolTipRole) == "Sexe masculin");
    CHECK(texte(1, ModeleNoms::Famille, Qt::ToolTipRole) == "Unions et enfants");
    CHECK(texte(2, ModeleNoms::Famille, Qt::ToolTipRole).isEmpty());
    CHECK(modele.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString() == "Nom");
    CHECK(modele.data(modele.index(9, 0), Qt::DisplayRole).isNull());
}

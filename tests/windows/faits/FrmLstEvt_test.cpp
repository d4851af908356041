#include "windows/faits/FrmLstEvt.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>

#include "windows/FaitsEssai.h"
#include "windows/TempsProcesseur.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/faits/FrmDesEvt.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

constexpr NoOrdre Paul{3};
constexpr NoOrdre Anne{4};

struct Essai : Faits<FrmLstEvt> {
    NoEvenement recensement = Evenement("1/1/1841", "CENS", "Évreux"_1252, {{Paul, "MAIN"}});
    NoEvenement mariage = Evenement("4/5/1815", "MARR", "Brest", {{NoOrdre{1}, "HUSB"}});
    NoEvenement testament = Evenement("1/1/1889", "WILL", "Brest", {{Paul, "DEAD"}});

    QString Dates() {
        QStringList dates;
        for (int rangee = 0; rangee < Rangees("GrdEvts"); ++rangee)
            dates << Case("GrdEvts", rangee, 0).right(4);
        return dates.join(u' ');
    }
};

}  // namespace

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: all events by date; the filter narrows while typing") {
    Montrer();
    CHECK(Dates() == "1815 1841 1889");
    CHECK(Case("GrdEvts", 0, 1) == "Mariage");
    CHECK(Case("GrdEvts", 0, 4) == "Louis Martin");
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Événements\u00A0: 3"));
    Frapper("bre");
    CHECK(Dates() == "1815 1889");
    Frapper(" louis");
    CHECK(Dates() == "1815");
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Événements\u00A0: 1 sur 3"));
    Frapper("x");
    CHECK(C<QLabel>("LblVide").text().contains(QStringLiteral("bre louisx")));
    CHECK(C<QLabel>("LblVide").isVisible());
    CHECK_FALSE(C<QPushButton>("CmdMaj").isEnabled());
    Taper(Champ("TxtFiltre"), "evreux");
    CHECK(Dates() == "1841");
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: Enter opens the event, and what was saved shows at once") {
    Montrer();
    QSignalSpy change{fenetre.get(), &FenetreFille::baseChangee};
    Touche(Qt::Key_Down);
    SurFenetre<FrmDesEvt>([](FrmDesEvt& evenement) {
        auto* date = evenement.findChild<QLineEdit*>(QStringLiteral("TxtDate"));
        date->setText(QStringLiteral("1/1/1800"));
        QTest::keyClick(date, Qt::Key_Return);
    });
    Touche(Qt::Key_Return);
    CHECK(Dates() == "1800 1815 1889");
    CHECK(fenetre->Choisi() == recensement);
    CHECK(change.count() == 1);
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: a new event begins with the current person") {
    Montrer();
    SurFenetre<FrmDesEvt>([](FrmDesEvt& evenement) {
        auto* table = evenement.findChild<QTableView*>(QStringLiteral("GrdLiens"));
        CHECK(table->model()->index(0, 1).data().toString() == "Paul Martin");
        QTest::keyClick(&evenement, Qt::Key_Escape);
    });
    Cliquer("CmdAjout");
    CHECK(Dates() == "1815 1841 1889");
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: Del takes an event away after a yes") {
    Montrer();
    C<QTableView>("GrdEvts").setFocus();
    auto texte = Repondre(QMessageBox::No);
    Touche(Qt::Key_Delete);
    CHECK(texte->startsWith(QStringLiteral("L'événement « Mariage, 4 mai 1815, Brest")
                                .replace(QStringLiteral("« "), QStringLiteral("«\u00A0"))));
    CHECK(texte->contains("\nConfirmez-vous la suppression"));
    CHECK(Dates() == "1815 1841 1889");
    Repondre(QMessageBox::Yes);
    Touche(Qt::Key_Delete);
    CHECK(Dates() == "1841 1889");
    CHECK(fenetre->Choisi() == recensement);
    CHECK(S().base->R_LSTEVT.NbElements(NoOrdre{1}) == 0);
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: a click on a header sorts, and the natural order comes back") {
    Montrer();
    QTableView& table = C<QTableView>("GrdEvts");
    table.horizontalHeader()->setSortIndicator(3, Qt::AscendingOrder);
    CHECK(Dates() == "1815 1889 1841");
    table.horizontalHeader()->setSortIndicator(0, Qt::DescendingOrder);
    CHECK(Dates() == "1889 1841 1815");
    table.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    CHECK(Dates() == "1815 1841 1889");
}

TEST_CASE_FIXTURE(Essai,
                  "FrmLstEvt: hidden columns stay hidden; the order is that of the dates again") {
    Montrer();
    C<QTableView>("GrdEvts").setColumnHidden(2, true);
    C<QTableView>("GrdEvts").horizontalHeader()->setSortIndicator(0, Qt::DescendingOrder);
    fenetre->close();
    Montrer();
    CHECK(C<QTableView>("GrdEvts").isColumnHidden(2));
    CHECK(Dates() == "1815 1841 1889");
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: a person dropped on a row joins that event") {
    Montrer();
    QTableView& table = C<QTableView>("GrdEvts");
    const QPoint point = table.visualRect(table.model()->index(1, 0)).center();
    const std::unique_ptr<QMimeData> donnees{PersonneVersMime(S(), Anne)};
    SurFenetre<FrmDesEvt>([](FrmDesEvt& evenement) {
        auto* liens = evenement.findChild<QTableView*>(QStringLiteral("GrdLiens"));
        CHECK(liens->model()->rowCount() == 2);
        QTest::mouseClick(evenement.findChild<QPushButton*>(QStringLiteral("CmdMaj")),
                          Qt::LeftButton);
    });
    Deposer(*table.viewport(), point, *donnees);
    CHECK(QTest::qWaitFor([this] { return S().base->R_EVT.Liens(recensement).size() == 2; }));
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: the menu of a row leads to its persons") {
    Montrer();
    QSignalSpy aller{fenetre.get(), &FenetreFille::allerDemande};
    QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    QContextMenuEvent demande{QContextMenuEvent::Keyboard, QPoint{10, 10}, QPoint{10, 10}};
    QApplication::sendEvent(fenetre.get(), &demande);
    auto* menu = fenetre->findChild<QMenu*>(QStringLiteral("MnuPersonnes"));
    REQUIRE(menu != nullptr);
    REQUIRE(menu->actions().size() == 1);
    CHECK(menu->actions()[0]->text() == "Louis Martin (1790-1860)");
    const QList<QAction*> suites = menu->actions()[0]->menu()->actions();
    suites[0]->trigger();
    suites[1]->trigger();
    REQUIRE(aller.count() == 1);
    REQUIRE(fiche.count() == 1);
    CHECK(aller[0][0].toUInt() == 1);
    CHECK(fiche[0][0].toUInt() == 1);
    menu->close();
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: as a chooser it answers the event of the row") {
    SurFenetre<FrmLstEvt>([](FrmLstEvt& liste) {
        auto* filtre = liste.findChild<QLineEdit*>(QStringLiteral("TxtFiltre"));
        filtre->setText(QStringLiteral("testament"));
        CHECK_FALSE(liste.findChild<QPushButton*>(QStringLiteral("CmdSupp"))->isVisible());
        QTest::keyClick(filtre, Qt::Key_Return);
    });
    CHECK(FrmLstEvt::Choisir(S(), &Fenetre()) == testament);
    SurFenetre<FrmLstEvt>([](FrmLstEvt& liste) { QTest::keyClick(&liste, Qt::Key_Escape); });
    CHECK_FALSE(FrmLstEvt::Choisir(S(), &Fenetre()));
}

TEST_CASE_FIXTURE(Essai, "FrmLstEvt: every text follows the language") {
    Montrer();
    REQUIRE(shell::ChoisirLangue(S(), "English"));
    fenetre->Traduire();
    CHECK(fenetre->windowTitle() == "All events");
    CHECK(C<QPushButton>("CmdAjout").text() == "&New...");
    CHECK(Case("GrdEvts", 0, 1) == "Marriage");
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Events: 3"));
}

TEST_CASE("FrmLstEvt: 32000 events open and filter without a wait") {
    Faits<FrmLstEvt> essai;
    storage::Base& base = *essai.S().base;
    for (int i = 0; i < 32000; ++i) {
        const NoEvenement e = base.NouvelEvenement();
        storage::PartiesEvt parties;
        parties.cleDate = i;
        parties.description = storage::DescriptionEvt{"Brest", {}, "CENS"};
        parties.liens = std::vector<storage::LienEvenement>{{Paul, "MAIN"}};
        base.R_EVT.EcrireEvt(e, parties);
        base.R_TRI.evenements.Fixer(static_cast<std::uint32_t>(i) + 1, e.valeur);
    }
    base.entete.NbTriEvenements = base.R_TRI.evenements.Taille();
    TempsProcesseur temps;
    essai.Montrer();
    const long ouvert = temps.Relever();
    essai.C<QLineEdit>("TxtFiltre").setText("brest 1987");
    const long filtre = temps.Relever();
    MESSAGE("opened in " << ouvert << " ms, filtered in " << filtre << " ms");
    CHECK(essai.Rangees("GrdEvts") > 200);
    CHECK(ouvert < 1000);
    CHECK(filtre < 3000);
}

#include "windows/faits/FrmDesEvt.h"

#include <QComboBox>
#include <QTextEdit>
#include <QToolButton>

#include "windows/FaitsEssai.h"
#include "windows/faits/FrmLstImage.h"
#include "windows/personnes/FrmCreation.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

using Essai = Faits<FrmDesEvt>;
constexpr NoOrdre Paul{3};
constexpr NoOrdre Anne{4};

}  // namespace

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: an event typed with the keyboard alone is saved by Enter") {
    Montrer(NoEvenement{}, Paul, std::string{});
    CHECK(Foyer() == QStringLiteral("CboTypeEvt"));
    Frapper("Recensement");
    Touche(Qt::Key_Tab);
    Frapper("12/3/1841");
    CHECK(C<QLabel>("LblAvis").text() == "vendredi");
    Touche(Qt::Key_Tab);
    CHECK(Champ("TxtDate").text() == "12 mars 1841");
    Frapper("Évreux");
    Touche(Qt::Key_Tab);
    Frapper("Rôle");
    CHECK(Case("GrdLiens", 0, 0) == QStringLiteral("Intéressé"));
    Touche(Qt::Key_Return);
    CHECK(fenetre->result() == QDialog::Accepted);
    REQUIRE(fenetre->Evenement() == NoEvenement{1});
    CHECK(fenetre->Ecrit());
    const records::SaisieEvenement lu = records::ChargerEvenement(S(), NoEvenement{1});
    CHECK(lu.type == "CENS");
    CHECK(lu.date == "12 mars 1841");
    CHECK(lu.lieu == "Évreux"_1252);
    CHECK(lu.libelle == "Rôle"_1252);
    CHECK(lu.liens == std::vector<storage::LienEvenement>{{Paul, "MAIN"}});
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: a refusal is told, and the field at fault has the focus") {
    Montrer(NoEvenement{}, Paul, std::string{"MAIN"});
    auto texte = Repondre(QMessageBox::Ok);
    Cliquer("CmdMaj");
    CHECK(texte->startsWith("Indiquez la date"));
    CHECK(Foyer() == QStringLiteral("TxtDate"));
    Frapper("1841");
    CHECK(C<QLabel>("LblAvis").text().startsWith("Indiquez le jour"));
    texte = Repondre(QMessageBox::Ok);
    Touche(Qt::Key_Return);
    CHECK(texte->contains("n'est pas valide"));
    Taper(Champ("TxtDate"), "1/2/1841");
    texte = Repondre(QMessageBox::Ok);
    Touche(Qt::Key_Return);
    CHECK(texte->startsWith("Choisissez le type"));
    CHECK(Foyer() == QStringLiteral("CboTypeEvt"));
    CHECK(fenetre->isVisible());
    CHECK(S().base->entete.DernierEvenement == 0);
}

TEST_CASE_FIXTURE(Essai,
                  "FrmDesEvt: compulsory roles show as missing until they are filled; a save "
                  "without them stays open") {
    Montrer(NoEvenement{}, Paul, std::string{});
    Taper(C<QComboBox>("CboTypeEvt"), "mariage");
    CHECK(Rangees("GrdLiens") == 2);
    CHECK(Case("GrdLiens", 0, 0) == QStringLiteral("Époux"));
    CHECK(Case("GrdLiens", 1, 0) == QStringLiteral("Épouse"));
    CHECK(Case("GrdLiens", 1, 1) == QStringLiteral("à choisir"));
    CHECK(C<QComboBox>("CboRole").currentText() == QStringLiteral("Épouse"));
    Taper(Champ("TxtDate"), "4/5/1850");
    auto texte = Repondre(QMessageBox::Ok);
    Cliquer("CmdMaj");
    CHECK(texte->startsWith("Un rôle obligatoire"));
    CHECK(fenetre->isVisible());
    CHECK(fenetre->Evenement() == NoEvenement{1});
    CHECK(C<QLabel>("LblEtat").text().contains("rôles"));
    ChoisirDansNoms("anne");
    Cliquer("CmdRechLien");
    CHECK(Rangees("GrdLiens") == 2);
    CHECK(Case("GrdLiens", 1, 1).contains("Anne"));
    // The union of 1850 has no day yet: the sheet is offered the date.
    texte = Repondre(QMessageBox::Yes);
    Cliquer("CmdMaj");
    CHECK(texte->contains("diffère de la fiche"));
    CHECK(fenetre->result() == QDialog::Accepted);
    CHECK(storage::DateMariageBrute(*S().base, NoMariage{2}) == "4/5");
    CHECK(S().base->entete.DernierEvenement == 1);
}

TEST_CASE_FIXTURE(Essai,
                  "FrmDesEvt: the usual words of relations stand behind the roles of the kind") {
    Montrer(NoEvenement{}, Paul, std::string{});
    Taper(C<QComboBox>("CboTypeEvt"), "mariage");
    const auto& roles = C<QComboBox>("CboRole");
    CHECK(roles.itemText(0) == QStringLiteral("Époux"));
    CHECK(roles.itemText(1) == QStringLiteral("Épouse"));
    CHECK(roles.findText(QStringLiteral("Témoin")) > 1);
    CHECK(roles.findText(QStringLiteral("Parrain")) > 1);
    CHECK(roles.currentText() == QStringLiteral("Épouse"));
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: a person made for a role is linked with it") {
    const NoEvenement e = Evenement("4/5/1851", "BIRT", "Brest", {{NoOrdre{6}, "CHIL"}});
    Montrer(e, NoOrdre{}, std::string{});
    C<QComboBox>("CboRole").setEditText(QStringLiteral("Témoin"));
    SurFenetre<FrmCreation>([](FrmCreation& creation) {
        creation.findChild<QLineEdit*>(QStringLiteral("T_Nom"))
            ->setText(QStringLiteral("Le Bihan"));
        creation.findChild<QLineEdit*>(QStringLiteral("T_Naiss"))->setText(QStringLiteral("1800"));
        QTest::keyClick(creation.findChild<QLineEdit*>(QStringLiteral("T_Nom")), Qt::Key_Return);
    });
    Cliquer("CmdCréLien");
    CHECK(Case("GrdLiens", 1, 0) == QStringLiteral("Témoin"));
    CHECK(Case("GrdLiens", 1, 1) == QStringLiteral("Le Bihan"));
    CHECK(fenetre->Ecrit());
    // Nothing of the event is written before it is saved.
    CHECK(S().base->R_EVT.Liens(e).size() == 1);
    auto texte = Repondre(QMessageBox::No);
    Cliquer("CmdMaj");
    CHECK(texte->contains("diffère de la fiche"));
    CHECK(S().base->R_EVT.Liens(e).at(1).role == "WITN");
    CHECK(S().base->R_LSTEVT.NbElements(NoOrdre{9}) == 1);
}

TEST_CASE_FIXTURE(Essai,
                  "FrmDesEvt: a person made as the deceased starts with the date and place") {
    Montrer(NoEvenement{}, NoOrdre{}, std::string{});
    Taper(C<QComboBox>("CboTypeEvt"), "Décès");
    Taper(Champ("TxtDate"), "4/5/1870");
    Taper(Champ("TxtLieu"), "Vannes");
    SurFenetre<FrmCreation>([](FrmCreation& creation) {
        CHECK(creation.findChild<QLineEdit*>(QStringLiteral("TxtJDécès"))->text() == "4 mai");
        CHECK(creation.findChild<QLineEdit*>(QStringLiteral("T_Décès"))->text() == "1870");
        CHECK(creation.findChild<QLineEdit*>(QStringLiteral("TxtLieuDécès"))->text() == "Vannes");
        QTest::keyClick(&creation, Qt::Key_Escape);
    });
    Cliquer("CmdCréLien");
    CHECK(Rangees("GrdLiens") == 1);
    CHECK(Case("GrdLiens", 0, 1) == QStringLiteral("à choisir"));
    Repondre(QMessageBox::No);
    Touche(Qt::Key_Escape);
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: roles are changed in their cells, rows moved and removed") {
    const NoEvenement e =
        Evenement("1/1/1841", "CENS", "", {{Paul, "MAIN"}, {Anne, "WITN"}, {NoOrdre{6}, "WITN"}});
    Montrer(e, NoOrdre{}, std::string{});
    QTableView& table = C<QTableView>("GrdLiens");
    table.setCurrentIndex(table.model()->index(1, 0));
    table.edit(table.currentIndex());
    auto* role = table.findChild<QComboBox*>();
    REQUIRE(role != nullptr);
    role->setEditText("Voisine");
    QTest::keyClick(role, Qt::Key_Return);
    CHECK(QTest::qWaitFor([this] { return Case("GrdLiens", 1, 0) == "Voisine"; }));
    table.setFocus();
    Touche(Qt::Key_Up, Qt::AltModifier);
    CHECK(Case("GrdLiens", 0, 0) == "Voisine");
    CHECK(table.currentIndex().row() == 0);
    CHECK_FALSE(C<QAbstractButton>("CmdLienUp").isEnabled());
    Cliquer("CmdLienDown");
    Cliquer("CmdLienDown");
    CHECK_FALSE(C<QAbstractButton>("CmdLienDown").isEnabled());
    table.setCurrentIndex(table.model()->index(1, 0));
    Touche(Qt::Key_Delete);
    CHECK(Rangees("GrdLiens") == 2);
    Cliquer("CmdMaj");
    CHECK(S().base->R_EVT.Liens(e) ==
          std::vector<storage::LienEvenement>{{Paul, "MAIN"}, {Anne, "Voisine"}});
    CHECK(S().base->R_LSTEVT.NbElements(NoOrdre{6}) == 0);
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: documents are attached, moved and detached with the save") {
    const NoDocument a = Document("Acte", "a.jpg");
    const NoDocument b = Document("Photo", "b.jpg");
    const NoEvenement e = Evenement("1/1/1841", "CENS", "", {{Paul, "MAIN"}});
    Montrer(e, NoOrdre{}, std::string{});
    for (int fois = 0; fois < 2; ++fois) {
        SurFenetre<FrmLstImage>([fois](FrmLstImage& liste) {
            auto* filtre = liste.findChild<QLineEdit*>(QStringLiteral("TxtFiltre"));
            filtre->setText(fois == 0 ? QStringLiteral("acte") : QStringLiteral("photo"));
            QTest::keyClick(filtre, Qt::Key_Return);
        });
        Cliquer("CmdRechDoc");
    }
    CHECK(Rangees("LstDoc") == 2);
    C<QTableView>("LstDoc").setFocus();
    Touche(Qt::Key_Up, Qt::AltModifier);
    CHECK(Case("LstDoc", 0, 0) == "Photo");
    CHECK(S().base->R_EVT.Documents(e).empty());
    Cliquer("CmdMaj");
    CHECK(S().base->R_EVT.Documents(e) == std::vector<NoDocument>{b, a});
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: Escape asks what becomes of changes, and only then") {
    const NoEvenement e = Evenement("1/1/1841", "CENS", "", {{Paul, "MAIN"}});
    Montrer(e, NoOrdre{}, std::string{});
    SUBCASE("nothing changed") {
        Touche(Qt::Key_Escape);
        CHECK_FALSE(fenetre->isVisible());
        CHECK_FALSE(fenetre->Ecrit());
    }
    SUBCASE("stay") {
        Taper(Champ("TxtLieu"), "Brest");
        Repondre(QMessageBox::Cancel);
        Touche(Qt::Key_Escape);
        CHECK(fenetre->isVisible());
        CHECK(Champ("TxtLieu").text() == "Brest");
    }
    SUBCASE("drop") {
        Taper(Champ("TxtLieu"), "Brest");
        Repondre(QMessageBox::No);
        Touche(Qt::Key_Escape);
        CHECK_FALSE(fenetre->isVisible());
        CHECK(S().base->R_EVT.LieuEvt(e).empty());
    }
    SUBCASE("save") {
        Taper(C<QTextEdit>("TxtComment"), "Vu");
        Repondre(QMessageBox::Yes);
        Touche(Qt::Key_Escape);
        CHECK_FALSE(fenetre->isVisible());
        CHECK(S().base->R_EVT.NoteEvt(e) == "Vu");
    }
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: what the base cannot hold is asked for before it is lost") {
    Montrer(NoEvenement{}, Paul, std::string{"MAIN"});
    Taper(C<QComboBox>("CboTypeEvt"), "Recensement");
    Taper(Champ("TxtDate"), "1/1/1841");
    Taper(Champ("TxtLieu"), "\xE4\xBA\xAC");
    Repondre(QMessageBox::No);
    Cliquer("CmdMaj");
    CHECK(fenetre->isVisible());
    CHECK(S().base->entete.DernierEvenement == 0);
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: Tab goes through the fields in the order of reading") {
    Montrer(NoEvenement{}, Paul, std::string{"MAIN"});
    QStringList ordre;
    for (int i = 0; i < 6; ++i) {
        QWidget* champ = fenetre->focusWidget();
        ordre << champ->objectName();
        QTest::keyClick(champ, Qt::Key_Tab);
    }
    CHECK(ordre.join(u' ') == "CboTypeEvt TxtDate TxtLieu TxtLib TxtComment CmdTxtComment");
}

TEST_CASE_FIXTURE(Essai,
                  "FrmDesEvt: every button without words has a drawing, a tip and an accessible "
                  "name") {
    Montrer(NoEvenement{}, Paul, std::string{"MAIN"});
    int nombre = 0;
    for (const QToolButton* bouton : fenetre->findChildren<QToolButton*>()) {
        if (!bouton->objectName().startsWith("Cmd")) continue;
        CAPTURE(bouton->objectName().toStdString());
        CHECK_FALSE(bouton->icon().isNull());
        CHECK_FALSE(bouton->toolTip().isEmpty());
        CHECK_FALSE(bouton->accessibleName().isEmpty());
        ++nombre;
    }
    CHECK(nombre == 8);
}

TEST_CASE_FIXTURE(Essai, "FrmDesEvt: what was changed is marked until it is as stored again") {
    const NoEvenement e = Evenement("1/1/1841", "CENS", "Brest", {{Paul, "MAIN"}});
    Montrer(e, NoOrdre{}, std::string{});
    CHECK(Champ("TxtLieu").accessibleDescription().isEmpty());
    Taper(Champ("TxtLieu"), "Vannes");
    CHECK_FALSE(Champ("TxtLieu").accessibleDescription().isEmpty());
    CHECK(Champ("TxtLib").accessibleDescription().isEmpty());
    Taper(Champ("TxtLieu"), "Brest");
    CHECK(Champ("TxtLieu").accessibleDescription().isEmpty());
    Touche(Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
}

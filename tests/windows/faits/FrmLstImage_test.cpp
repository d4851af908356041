#include "windows/faits/FrmLstImage.h"

#include <QSignalSpy>
#include <QUrl>

#include "windows/BureauEssai.h"
#include "windows/FaitsEssai.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmUtilImage.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

constexpr NoOrdre Paul{3};

struct Essai : Faits<FrmLstImage> {
    Essai() { Image("photo.png"); }
    NoDocument photo = Document("Photo / verso", "photo.png");
    NoDocument acte = Document("Acte", "absent.jpg", "Acte");
    NoDocument lettre = Document("Lettre", "jean@exemple.fr", "E-Mail");
    BureauEssai bureau;

    QString Titres() {
        QStringList titres;
        for (int rangee = 0; rangee < Rangees("LstImage"); ++rangee)
            titres << Case("LstImage", rangee, 0);
        return titres.join(u'|');
    }
    void Choisir(int rangee) {
        QTableView& table = C<QTableView>("LstImage");
        table.setCurrentIndex(table.model()->index(rangee, 0));
    }
};

}  // namespace

TEST_CASE_FIXTURE(Essai,
                  "FrmLstImage: documents by title up to the slash; a missing file is marked") {
    Montrer();
    CHECK(Titres() == "Acte|Lettre|Photo");
    CHECK(Case("LstImage", 0, 3) == "Fichier absent");
    CHECK(Case("LstImage", 1, 3) == QStringLiteral("Adresse électronique"));
    CHECK(Case("LstImage", 2, 3).isEmpty());
    CHECK(C<QLabel>("LblNombre").text() == QStringLiteral("Documents\u00A0: 3"));
    Frapper("absent");
    CHECK(Titres() == "Acte");
}

TEST_CASE_FIXTURE(Essai, "FrmLstImage: CmdMaj opens mail as mail, other documents in their sheet") {
    Montrer();
    Choisir(1);
    Cliquer("CmdMaj");
    CHECK(bureau.ouverts == QStringList{"mailto:jean@exemple.fr"});
    Choisir(0);
    SurFenetre<FrmDesImage>([](FrmDesImage& fiche) {
        auto* titre = fiche.findChild<QLineEdit*>(QStringLiteral("TxtIntitulé"));
        CHECK(titre->text() == "Acte");
        titre->setText(QStringLiteral("Testament"));
        QTest::keyClick(titre, Qt::Key_Return);
    });
    Cliquer("CmdMaj");
    CHECK(Titres() == "Lettre|Photo|Testament");
    CHECK(fenetre->Choisi() == acte);
    // The sheet of a mail document is opened by F2.
    Choisir(0);
    SurFenetre<FrmDesImage>([](FrmDesImage& fiche) { QTest::keyClick(&fiche, Qt::Key_Escape); });
    Touche(Qt::Key_F2);
}

TEST_CASE_FIXTURE(Essai, "FrmLstImage: a file is opened by the desktop; a missing one is told") {
    Montrer();
    Choisir(2);
    Cliquer("CmdOuvrir");
    REQUIRE(bureau.ouverts.size() == 1);
    CHECK(bureau.ouverts[0].endsWith("/photo.png"));
    Choisir(0);
    auto texte = Repondre(QMessageBox::Ok);
    Cliquer("CmdOuvrir");
    CHECK(texte->contains("absent.jpg"));
    CHECK(bureau.ouverts.size() == 1);
}

TEST_CASE_FIXTURE(Essai, "FrmLstImage: DocBase sets and clears the title of the base") {
    Montrer();
    QSignalSpy change{fenetre.get(), &FenetreFille::baseChangee};
    Choisir(2);
    Cliquer("DocBase");
    CHECK(S().base->entete.DocBase == photo);
    CHECK(Case("LstImage", 2, 3) == "Titre de la base");
    CHECK(C<QPushButton>("DocBase").isChecked());
    Choisir(0);
    CHECK_FALSE(C<QPushButton>("DocBase").isChecked());
    Choisir(2);
    Cliquer("DocBase");
    CHECK_FALSE(S().base->entete.DocBase);
    CHECK(change.count() == 2);
}

TEST_CASE_FIXTURE(Essai, "FrmLstImage: deleting asks with the title; the next row is selected") {
    Montrer();
    REQUIRE(records::AttacherDocument(S(), Paul, acte));
    Choisir(0);
    auto texte = Repondre(QMessageBox::Yes);
    Cliquer("CmdSupp");
    CHECK(texte->contains("Acte"));
    CHECK(texte->contains("\nConfirmez-vous la suppression"));
    CHECK(Titres() == "Lettre|Photo");
    CHECK(fenetre->Choisi() == lettre);
    CHECK(S().base->R_LSTIMG.NbElements(Paul) == 0);
}

TEST_CASE_FIXTURE(Essai, "FrmLstImage: files that are dropped become documents") {
    const std::filesystem::path image = Image("b.png");
    Montrer();
    QMimeData donnees;
    donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(image.string()))});
    SurFenetre<FrmDesImage>([](FrmDesImage& fiche) {
        CHECK(fiche.findChild<QLineEdit*>(QStringLiteral("TxtNomfic"))->text() == "b.png");
        QTest::mouseClick(fiche.findChild<QPushButton*>(QStringLiteral("CmdValider")),
                          Qt::LeftButton);
    });
    Deposer(*C<QTableView>("LstImage").viewport(), {20, 200}, donnees);
    CHECK(QTest::qWaitFor([this] { return Titres() == "Acte|b|Lettre|Photo"; }));
}

TEST_CASE_FIXTURE(Essai, "FrmLstImage: a person dropped on a row gets the document") {
    Montrer();
    QTableView& table = C<QTableView>("LstImage");
    const std::unique_ptr<QMimeData> donnees{PersonneVersMime(S(), Paul)};
    const QPoint point = table.visualRect(table.model()->index(0, 0)).center();
    Deposer(*table.viewport(), point, *donnees);
    CHECK(QTest::qWaitFor([this] { return S().base->R_LSTIMG.NbElements(Paul) == 1; }));
    CHECK(S().base->R_LSTIMG.ElementListe(Paul, 1) == acte);
}

TEST_CASE_FIXTURE(Essai, "FrmUtilImage: persons then events; a double click goes there") {
    REQUIRE(records::AttacherDocument(S(), Paul, acte));
    const NoEvenement e = Evenement("1/1/1841", "CENS", "", {{Paul, "MAIN"}});
    REQUIRE(records::AttacherDocument(S(), e, acte));
    Montrer();
    Choisir(0);
    QSignalSpy aller{fenetre.get(), &FenetreFille::allerDemande};
    QSignalSpy fiche{fenetre.get(), &FenetreFille::ficheDemandee};
    SurFenetre<FrmUtilImage>([](FrmUtilImage& usages) {
        auto* table = usages.findChild<QTableView*>(QStringLiteral("LstUtil"));
        REQUIRE(table->model()->rowCount() == 2);
        CHECK(table->model()->index(0, 1).data().toString().startsWith("Paul Martin"));
        CHECK(table->model()->index(1, 1).data().toString().startsWith("Recensement"));
        QTest::keyClick(table, Qt::Key_Return);
    });
    Cliquer("CmdUtil");
    REQUIRE(aller.count() == 1);
    CHECK(aller[0][0].toUInt() == Paul.valeur);
    SurFenetre<FrmUtilImage>([](FrmUtilImage& usages) {
        QTest::mouseClick(usages.findChild<QPushButton*>(QStringLiteral("CmdFiche")),
                          Qt::LeftButton);
    });
    Cliquer("CmdUtil");
    CHECK(fiche.count() == 1);
    SurFenetre<FrmUtilImage>([](FrmUtilImage& usages) {
        auto* table = usages.findChild<QTableView*>(QStringLiteral("LstUtil"));
        table->setCurrentIndex(table->model()->index(1, 0));
        CHECK_FALSE(usages.findChild<QPushButton*>(QStringLiteral("CmdFiche"))->isEnabled());
        SurFenetre<FrmDesEvt>([&usages](FrmDesEvt& evenement) {
            QTest::keyClick(&evenement, Qt::Key_Escape);
            QTimer::singleShot(0, &usages, &QDialog::reject);
        });
        QTest::keyClick(table, Qt::Key_Return);
    });
    Cliquer("CmdUtil");
    Choisir(2);
    SurFenetre<FrmUtilImage>([](FrmUtilImage& usages) {
        CHECK(usages.findChild<QLabel*>(QStringLiteral("LblVide"))->isVisible());
        QTest::keyClick(&usages, Qt::Key_Escape);
    });
    Cliquer("CmdUtil");
}

#include "windows/faits/FrmDesImage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTextEdit>
#include <QUrl>

#include "windows/FaitsEssai.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

using Essai = Faits<FrmDesImage>;

}  // namespace

TEST_CASE_FIXTURE(Essai,
                  "FrmDesImage: a document typed with the keyboard alone is saved by Enter") {
    Image("a.png");
    Montrer(NoDocument{});
    CHECK(fenetre->windowTitle() == "Nouveau document");
    Frapper("Acte de baptême / copie");
    Touche(Qt::Key_Tab);
    Frapper("a.png");
    CHECK_FALSE(C<QLabel>("LblAvis").isVisible());
    CHECK_FALSE(C<QLabel>("LblApercu").pixmap().isNull());
    Taper(C<QComboBox>("CboTypeDoc"), "Photo");
    Touche(Qt::Key_Return);
    CHECK(fenetre->result() == QDialog::Accepted);
    REQUIRE(fenetre->Document() == NoDocument{1});
    const storage::Document lu = S().base->R_IMAGE.LireDoc(NoDocument{1});
    CHECK(lu.titre == "Acte de baptême / copie"_1252);
    CHECK(lu.fichier == "a.png");
    CHECK(lu.type == "Photo");
    CHECK(S().parametres.base.typeDocument == "Photo/");
}

TEST_CASE_FIXTURE(Essai, "FrmDesImage: a file that is not there is marked, and no error") {
    Montrer(NoDocument{});
    Frapper("Acte");
    Taper(Champ("TxtNomfic"), "absent.jpg");
    CHECK(C<QLabel>("LblAvis").isVisible());
    CHECK(C<QLabel>("LblApercu").text() == "Fichier absent");
    Touche(Qt::Key_Return);
    CHECK(fenetre->Document() == NoDocument{1});
}

TEST_CASE_FIXTURE(Essai, "FrmDesImage: a chosen file is named from the base, and gives the title") {
    std::filesystem::create_directory(dossier / "images");
    const std::filesystem::path image = Image("images/Tante Rose.png");
    Montrer(NoDocument{});
    SurFenetre<QFileDialog>([image](QFileDialog& dialogue) {
        CHECK(dialogue.nameFilters().constFirst().startsWith("Fichiers Image"));
        auto* champ = dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        champ->setText(QString::fromStdString(image.string()));
        QTest::keyClick(champ, Qt::Key_Return);
    });
    Cliquer("CmdFichier");
    CHECK(Champ("TxtNomfic").text() == "images/Tante Rose.png");
    CHECK(Champ("TxtIntitulé").text() == "Tante Rose");
}

TEST_CASE_FIXTURE(Essai,
                  "FrmDesImage: a name that the base cannot hold is refused with its reason") {
    const std::filesystem::path image = Image("\xE4\xBA\xAC.png");
    Montrer(NoDocument{});
    auto texte = Repondre(QMessageBox::Ok);
    fenetre->ProposerFichier(image);
    CHECK(texte->contains("Renommez"));
    CHECK(Champ("TxtNomfic").text().isEmpty());
}

TEST_CASE_FIXTURE(Essai, "FrmDesImage: ChkOle goes through a link file, and back") {
    doublures::EcrireFichier(dossier / "acte.odt", "x");
    Montrer(NoDocument{});
    Frapper("Acte");
    Taper(Champ("TxtNomfic"), "acte.odt");
    Cliquer("ChkOle");
    CHECK(Champ("TxtNomfic").text() == "acte.LGO");
    CHECK(std::filesystem::exists(dossier / "acte.LGO"));
    Cliquer("ChkOle");
    CHECK(Champ("TxtNomfic").text() == "acte.odt");
    Cliquer("ChkOle");
    Cliquer("CmdValider");
    CHECK(S().base->R_IMAGE.FichierDoc(NoDocument{1}) == "acte.LGO");
}

TEST_CASE_FIXTURE(Essai, "FrmDesImage: a file dropped on the window is taken") {
    const std::filesystem::path image = Image("b.png");
    Montrer(NoDocument{});
    QMimeData donnees;
    donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(image.string()))});
    Deposer(*fenetre, {50, 50}, donnees);
    CHECK(Champ("TxtNomfic").text() == "b.png");
    CHECK(Champ("TxtIntitulé").text() == "b");
}

TEST_CASE_FIXTURE(Essai, "FrmDesImage: a comment that is typed and taken back is not saved") {
    Image("a.png");
    Montrer(Document("Acte", "a.png"));
    auto& note = C<QTextEdit>("TxtComment");
    Taper(note, "x");
    // Looking at the file reads the fields.
    Taper(Champ("TxtNomfic"), "b.png");
    note.setFocus();
    Touche(Qt::Key_Backspace);
    Cliquer("CmdValider");
    CHECK(fenetre->result() == QDialog::Accepted);
    CHECK(S().base->R_IMAGE.FichierDoc(NoDocument{1}) == "b.png");
    CHECK(S().base->R_IMAGE.NoteDoc(NoDocument{1}).empty());
}

TEST_CASE_FIXTURE(Essai, "FrmDesImage: nothing at all is refused; Escape asks about changes") {
    Montrer(NoDocument{});
    auto texte = Repondre(QMessageBox::Ok);
    Cliquer("CmdValider");
    CHECK(texte->startsWith("Indiquez un titre"));
    CHECK(Foyer() == QStringLiteral("TxtIntitulé"));
    Taper(C<QTextEdit>("TxtComment"), "x");
    texte = Repondre(QMessageBox::Cancel);
    Touche(Qt::Key_Escape);
    CHECK(texte->contains("modifié"));
    CHECK(fenetre->isVisible());
    Repondre(QMessageBox::No);
    Touche(Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
    CHECK(S().base->entete.DernierDocument == 0);
}

#include "windows/controles/FrmTexte.h"

#include <QAction>
#include <QClipboard>
#include <QListWidget>
#include <QMenu>

#include "values/NoteRiche.h"
#include "windows/Essai.h"
#include "windows/controles/EditeurNote.h"
#include "windows/controles/NoteQt.h"
#include "windows/controles/Unicode.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The editor on a note; what the user does in it is given as a function.
struct BureauTexte : FenetreEssai {
    BureauTexte() { Demarrer({}); }

    bool Editer(std::string& note, const std::function<void(FrmTexte&)>& action,
                std::size_t auPlus = 0) const {
        FrmTexte fenetre{S(), &Fenetre()};
        SurModal([&action](QWidget& modale) { action(dynamic_cast<FrmTexte&>(modale)); });
        return fenetre.Editer(note, QStringLiteral("Paul"), auPlus);
    }
};

EditeurNote& Texte(FrmTexte& fenetre) {
    return *fenetre.findChild<EditeurNote*>(QStringLiteral("TxtTexte"));
}

void Appuyer(FrmTexte& fenetre, const char* action) {
    fenetre.findChild<QAction*>(QString::fromUtf8(action))->trigger();
}

void Cliquer(FrmTexte& fenetre, const char* bouton) {
    QTest::mouseClick(fenetre.findChild<QPushButton*>(QString::fromUtf8(bouton)), Qt::LeftButton);
}

}  // namespace

TEST_CASE_FIXTURE(BureauTexte, "FrmTexte: a plain note typed on stays plain") {
    std::string note = "Sabotier.";
    CHECK(Editer(note, [](FrmTexte& fenetre) {
        Texte(fenetre).moveCursor(QTextCursor::End);
        QTest::keyClick(&Texte(fenetre), Qt::Key_Return);
        Taper(Texte(fenetre), QStringLiteral("Mort à Brest"));
        Cliquer(fenetre, "CmdSauve");
    }));
    CHECK(note == "Sabotier.\r\nMort \xE0 Brest");
}

TEST_CASE_FIXTURE(BureauTexte, "FrmTexte: bold by the key, centred by the button") {
    std::string note;
    CHECK(Editer(note, [](FrmTexte& fenetre) {
        Taper(Texte(fenetre), QStringLiteral("un "));
        QTest::keyClick(&Texte(fenetre), Qt::Key_B, Qt::ControlModifier);
        Taper(Texte(fenetre), QStringLiteral("gras"));
        Appuyer(fenetre, "Centre");
        CHECK(fenetre.findChild<QAction*>(QStringLiteral("Gras"))->isChecked());
        Cliquer(fenetre, "CmdSauve");
    }));
    REQUIRE(EstNoteRiche(note));
    const NoteRiche lue = LireNoteRiche(note);
    REQUIRE(lue.paragraphes.size() == 1);
    CHECK(lue.paragraphes[0].alignement == Alignement::Centre);
    CHECK(lue.paragraphes[0].troncons ==
          std::vector<Troncon>{{{}, "un ", {}}, {{.gras = true}, "gras", {}}});
}

TEST_CASE_FIXTURE(BureauTexte, "FrmTexte: escape with changes asks, and no leaves the note") {
    std::string note = "avant";
    SUBCASE("no") {
        CHECK_FALSE(Editer(note, [](FrmTexte& fenetre) {
            Taper(Texte(fenetre), QStringLiteral("X"));
            RepondreBoite(QMessageBox::No);
            QTest::keyClick(&fenetre, Qt::Key_Escape);
        }));
        CHECK(note == "avant");
    }
    SUBCASE("yes") {
        CHECK(Editer(note, [](FrmTexte& fenetre) {
            Taper(Texte(fenetre), QStringLiteral("X"));
            RepondreBoite(QMessageBox::Yes);
            QTest::keyClick(&fenetre, Qt::Key_Escape);
        }));
        CHECK(note == "Xavant");
    }
    SUBCASE("without changes it just closes") {
        CHECK_FALSE(
            Editer(note, [](FrmTexte& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); }));
    }
}

TEST_CASE_FIXTURE(BureauTexte, "FrmTexte: a word of a rubrique goes in at the cursor") {
    std::string note = "le ";
    CHECK(Editer(note, [](FrmTexte& fenetre) {
        Texte(fenetre).moveCursor(QTextCursor::End);
        auto* rubriques =
            fenetre.findChild<QAction*>(QStringLiteral("Rubriques"))->menu()->actions().last();
        rubriques->trigger();
        auto* mots = fenetre.findChild<QListWidget*>(QStringLiteral("LstMot"));
        REQUIRE(mots->count() > 0);
        CHECK(mots->item(0)->text() == QStringLiteral("Naissance"));
        Q_EMIT mots->itemActivated(mots->item(0));
        Cliquer(fenetre, "CmdSauve");
    }));
    CHECK(note == "le Naissance");
}

TEST_CASE_FIXTURE(BureauTexte, "FrmTexte: a note above its limit is not saved") {
    std::string note = "x";
    CHECK_FALSE(Editer(
        note,
        [](FrmTexte& fenetre) {
            Taper(Texte(fenetre), QStringLiteral("yyyyyy"));
            const auto dit = RepondreBoite(QMessageBox::Ok);
            Cliquer(fenetre, "CmdSauve");
            CHECK(dit->contains(QStringLiteral("7")));
            RepondreBoite(QMessageBox::No);
            Cliquer(fenetre, "CmdAbandon");
        },
        5));
}

TEST_CASE("EditeurNote: what it has no button for comes through an edit") {
    const std::string note =
        "{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}\\pard\\li720 {\\fs24\\cf1 Rouge} "
        "{\\pict 0102}{\\uc0\\u8805 } fin\\par\\pard }";
    EditeurNote editeur;
    editeur.Poser(note);
    CHECK_FALSE(editeur.EstModifiee());
    CHECK(editeur.Note() == note);
    editeur.moveCursor(QTextCursor::End);
    Taper(editeur, QStringLiteral("z"));
    const NoteRiche avant = LireNoteRiche(note);
    const NoteRiche apres = LireNoteRiche(editeur.Note());
    CHECK(apres.entete == avant.entete);
    REQUIRE(apres.paragraphes.size() == 2);
    CHECK(apres.paragraphes[0] == avant.paragraphes[0]);
    REQUIRE(apres.paragraphes[1].troncons.size() == 1);
    CHECK(apres.paragraphes[1].troncons[0].texte == "z");
}

TEST_CASE("EditeurNote: a character that the plain note cannot hold is counted") {
    EditeurNote editeur;
    editeur.Poser("");
    editeur.insertPlainText(QStringLiteral("a≥b"));
    CHECK(editeur.Note() == "a?b");
    CHECK(editeur.Remplaces() == 1);
    SUBCASE("in a formatted note it keeps its number") {
        editeur.selectAll();
        editeur.basculerGras();
        CHECK(editeur.Remplaces() == 0);
        CHECK(editeur.Note().find("\\u8805") != std::string::npos);
        EditeurNote autre;
        autre.Poser(editeur.Note());
        CHECK(autre.toPlainText() == QStringLiteral("a≥b"));
    }
}

TEST_CASE("EditeurNote: what is copied keeps its formatting, and undo takes it back") {
    EditeurNote editeur;
    editeur.Poser("{\\rtf1\\ansi\\pard un {\\b deux}}");
    editeur.selectAll();
    editeur.copy();
    EditeurNote autre;
    autre.Poser("t\xEAte ");
    autre.moveCursor(QTextCursor::End);
    autre.paste();
    CHECK(autre.toPlainText() == QStringLiteral("tête un deux"));
    CHECK(LireNoteRiche(autre.Note()).paragraphes[0].troncons.back() ==
          Troncon{{.gras = true}, "deux", {}});
    autre.undo();
    CHECK(autre.toPlainText() == QStringLiteral("tête "));
    CHECK_FALSE(autre.EstModifiee());
}

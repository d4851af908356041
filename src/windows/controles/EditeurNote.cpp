#include "windows/controles/EditeurNote.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include "windows/controles/NoteQt.h"
#include "windows/controles/Unicode.h"

#include <array>

namespace dorvane::windows {

namespace {

constexpr std::array<const char*, 2> TypesRiches{"text/rtf", "application/rtf"};

QByteArray TexteRicheDe(const QMimeData& donnees) {
    for (const char* type : TypesRiches)
        if (donnees.hasFormat(QLatin1String{type})) return donnees.data(QLatin1String{type});
    return {};
}

}  // namespace

EditeurNote::EditeurNote(QWidget* parent) : QTextEdit{parent} {
    setTabChangesFocus(true);
    setAcceptRichText(true);
}

void EditeurNote::Poser(const std::string& note) {
    posee_ = note;
    const NoteRiche lue = LireNoteRiche(note);
    entete_ = lue.entete;
    PoserNote(*document(), lue);
    moveCursor(QTextCursor::Start);
}

bool EditeurNote::EstModifiee() const {
    return document()->isModified() && Note() != posee_;
}

EditeurNote::Lue EditeurNote::Lire() const {
    if (!document()->isModified()) return {posee_, 0};
    const NoteLue lue = LireDocument(*document(), entete_);
    return {EcrireNoteRiche(lue.note), lue.remplaces};
}

void EditeurNote::basculerGras() {
    setFontWeight(fontWeight() > QFont::Normal ? QFont::Normal : QFont::Bold);
}

void EditeurNote::basculerItalique() {
    setFontItalic(!fontItalic());
}

void EditeurNote::basculerSouligne() {
    setFontUnderline(!fontUnderline());
}

void EditeurNote::keyPressEvent(QKeyEvent* evenement) {
    if (!isReadOnly()) {
        if (evenement->matches(QKeySequence::Bold)) return basculerGras();
        if (evenement->matches(QKeySequence::Italic)) return basculerItalique();
        if (evenement->matches(QKeySequence::Underline)) return basculerSouligne();
    }
    QTextEdit::keyPressEvent(evenement);
}

QMimeData* EditeurNote::createMimeDataFromSelection() const {
    auto* donnees = new QMimeData;
    const QTextCursor curseur = textCursor();
    const NoteLue lue =
        LireDocument(*document(), entete_, curseur.selectionStart(), curseur.selectionEnd());
    donnees->setText(curseur.selection().toPlainText());
    if (!lue.note.EstSimple())
        donnees->setData(QLatin1String{TypesRiches[0]},
                         QByteArray::fromStdString(EcrireNoteRiche(lue.note)));
    return donnees;
}

bool EditeurNote::canInsertFromMimeData(const QMimeData* donnees) const {
    return donnees->hasText() || !TexteRicheDe(*donnees).isEmpty();
}

void EditeurNote::insertFromMimeData(const QMimeData* donnees) {
    const std::string riche = TexteRicheDe(*donnees).toStdString();
    if (!EstNoteRiche(riche)) {
        textCursor().insertText(donnees->text());
        return;
    }
    NoteRiche note = LireNoteRiche(riche);
    // Fonts and colours of another text mean nothing under the header of this one.
    for (Paragraphe& paragraphe : note.paragraphes) {
        if (note.entete != entete_) paragraphe.reste.clear();
        for (Troncon& troncon : paragraphe.troncons)
            if (note.entete != entete_) troncon.style.reste.clear();
    }
    QTextCursor curseur = textCursor();
    InsererNote(curseur, note);
    setTextCursor(curseur);
}

}  // namespace dorvane::windows

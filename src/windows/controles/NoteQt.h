#pragma once

#include "values/NoteRiche.h"

#include <cstddef>

class QTextDocument;
class QTextCursor;

namespace dorvane::windows {

/// Puts a note into an editor in place of what it holds. Things that only their bytes describe
/// stand as one character each, drawn as a small frame.
void PoserNote(QTextDocument& document, const NoteRiche& note);

/// Puts a note in at the cursor, in place of the selection.
void InsererNote(QTextCursor& curseur, const NoteRiche& note);

/// What an editor holds.
struct NoteLue {
    NoteRiche note;
    std::size_t remplaces = 0;  ///< characters that a plain note cannot hold, now "?"
};

/// Reads a stretch of an editor, all of it when `fin` is not behind `debut`; positions as in Qt.
/// `entete` is that of the note that was put in.
[[nodiscard]] NoteLue LireDocument(const QTextDocument& document, const std::string& entete,
                                   int debut = 0, int fin = 0);

}  // namespace dorvane::windows

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dorvane {

/// How characters look.
struct StyleCaracteres {
    bool gras = false;
    bool souligne = false;
    bool italique = false;
    std::string reste{};  ///< further control words as they stood, such as "\fs24\cf1"
    friend bool operator==(const StyleCaracteres&, const StyleCaracteres&) = default;
};

/// Characters of one look, or something that only its bytes describe.
struct Troncon {
    StyleCaracteres style{};
    std::string texte{};  ///< code page 1252; byte 11 is a line break inside a paragraph
    /// A picture, a field, a table mark...: its rich text as it stood, kept and not edited. Empty
    /// for text. `texte` is then what may be shown in its place.
    std::string objet{};
    friend bool operator==(const Troncon&, const Troncon&) = default;
};

enum class Alignement { Gauche, Centre, Droite, Justifie };

struct Paragraphe {
    Alignement alignement = Alignement::Gauche;
    std::string reste{};  ///< further control words of the paragraph, such as "\li720"
    std::vector<Troncon> troncons{};
    friend bool operator==(const Paragraphe&, const Paragraphe&) = default;
};

/// A note taken apart for an editor. There is always one paragraph at least.
struct NoteRiche {
    std::string entete{};  ///< what stands between "{\rtf1" and the text; empty for a plain note
    std::vector<Paragraphe> paragraphes{};

    /// Nothing in it that plain text could not say.
    [[nodiscard]] bool EstSimple() const;
    friend bool operator==(const NoteRiche&, const NoteRiche&) = default;
};

/// True when the note begins with rich text.
[[nodiscard]] bool EstNoteRiche(std::string_view note);

/// Reads a note in its stored form. Rich segments that stand inside plain text are read in their
/// place; groups nested past 100 levels become objects. Nothing makes it fail.
[[nodiscard]] NoteRiche LireNoteRiche(std::string_view note);

/// The stored form: plain bytes when the note is simple, else one segment of rich text. What was
/// read and not changed reads the same again.
[[nodiscard]] std::string EcrireNoteRiche(const NoteRiche& note);

/// The object that stands for a character without a place in code page 1252: the number of its
/// UTF-16 unit, -32768 to 65535.
[[nodiscard]] std::string ObjetUnicode(long nombre);

}  // namespace dorvane

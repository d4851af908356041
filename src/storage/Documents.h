#pragma once

#include "storage/Colonnes.h"

#include <string>

namespace dorvane::storage {

/// A document: a picture or any other file.
struct Document {
    std::string titre;
    std::string fichier;  ///< path, web or mail address
    std::string type;     ///< empty: none
    std::string note;     ///< without leading and trailing line breaks
    friend bool operator==(const Document&, const Document&) = default;
};

/// `R_IMAGE`: the documents. Texts hold no "#", titles no byte 0, file names no byte 255.
class Documents : public Colonne<NoDocument, FormePosition> {
public:
    Documents(Volume& volume, Marques& marques) : Colonne{volume, marques, 32} {}

    [[nodiscard]] std::string FichierDoc(NoDocument d) { return LireDoc(d).fichier; }
    [[nodiscard]] std::string TitreDoc(NoDocument d) { return LireDoc(d).titre; }
    [[nodiscard]] std::string TypeDoc(NoDocument d) { return LireDoc(d).type; }
    [[nodiscard]] std::string NoteDoc(NoDocument d) { return LireDoc(d).note; }
    /// All of it; valid until the next call. Empty, and an incident, when the record has no end.
    [[nodiscard]] const Document& LireDoc(NoDocument d);

    /// Writes the record anew; the note is appended only when it differs from the stored one.
    void EcrireDoc(NoDocument d, const Document& document);
    /// Takes the document away: its cell becomes 0.
    void EffacerDoc(NoDocument d);
    void InitColonne();

private:
    [[nodiscard]] Position PositionNote(NoDocument d);

    NoDocument noMemo_{};
    Document memo_;
};

}  // namespace dorvane::storage

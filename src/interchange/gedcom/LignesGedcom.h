#pragma once

#include "interchange/gedcom/EtiquettesGedcom.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace dorvane::interchange {

/// One line of a GEDCOM file, cut in its parts; all of them trimmed, in the file's own bytes.
struct LigneGedcom {
    std::uint32_t numero = 0;    ///< from 1, as an editor counts
    std::uint32_t niveau = 0;    ///< levels above 99 are no level
    std::string_view cle;        ///< identifier without its "@" marks, on a line "0 @X@ TAG"
    std::string_view etiquette;  ///< tag, upper and lower case told apart
    CodeEtiquette code = 0;      ///< the tag in one number
    std::string_view valeur;     ///< what follows the tag
};

/// How the lines of a text end.
enum class FinDeLigne : std::uint8_t { CrLf, LfCr, Lf, Cr };

/// Looks at the first 1000 characters, in this order: CR LF, LF CR, LF alone, CR alone. Nothing
/// when they hold none: the text cannot be used.
[[nodiscard]] std::optional<FinDeLigne> ChercherFinDeLigne(std::string_view texte);

/// Reads a text line by line. The pair that the text uses ends one line; a return or a line feed
/// that stands alone ends one too, so that a text of mixed ends is read all the same.
class LecteurDeLignes {
public:
    /// The text outlives the reader. `depart`: 0-based offset of the first byte to read, which
    /// stands at the beginning of line `numero`.
    LecteurDeLignes(std::string_view texte, FinDeLigne fin, std::size_t depart = 0,
                    std::uint32_t numero = 1);

    enum class Sorte : std::uint8_t {
        Ligne,      ///< a line with a level and a tag
        Vide,       ///< nothing but blanks
        Illisible,  ///< no level, or no tag
        Fin         ///< the text has ended
    };

    /// Reads the next line into `ligne`. An unreadable one has its number and, as its value, the
    /// whole of it.
    Sorte Lire(LigneGedcom& ligne);

    /// 0-based offset of the line read last.
    [[nodiscard]] std::size_t Debut() const { return debut_; }

private:
    std::string_view LireBrut();

    std::string_view texte_;
    char premier_;  ///< first byte of the pair that ends a line, 0 when no pair does
    char second_;
    std::size_t ou_;
    std::size_t lf_ = 0;  ///< the next line feed and the next return, from `ou_` on
    std::size_t cr_ = 0;
    std::size_t debut_ = 0;
    std::uint32_t numero_;
};

/// The key between two "@" marks; empty for a value that is no reference.
[[nodiscard]] std::string_view CleDeReference(std::string_view valeur);

}  // namespace dorvane::interchange

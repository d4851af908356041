#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dorvane::interchange {

/// The name of a NAME line in its parts, and the words by which the person is found.
struct NomLu {
    std::string nom;
    std::string prenom;    ///< the first of the given names
    std::string autres;    ///< the other given names
    std::string motsCles;  ///< "|" and the surname, a blank, "¶" and the given names; may be empty
    bool entier = true;    ///< all of the value is in these parts

    /// The name line, without its dates: three fields, separators replaced.
    [[nodiscard]] std::string Ligne() const;
};

/// Takes the value of a NAME line apart: the surname stands between slashes. `prenomUnique`: blanks
/// between given names stay blanks in the keyword, so that only the first is one.
[[nodiscard]] NomLu LireNomGedcom(std::string_view valeur, bool prenomUnique);

/// The same from the pieces of a name that stand on lines of their own.
[[nodiscard]] NomLu FaireNom(std::string_view nom, std::string_view donne, bool prenomUnique);

/// Each part of a name is cut after this many bytes: a name line is never read past 1000, dates
/// included.
inline constexpr std::size_t NomLePlusLong = 300;

/// "@@" is how a file writes one "@".
[[nodiscard]] std::string SansDoubleArobase(std::string_view valeur);
/// Blanks in place of every "@" of a date or a place, where it would begin the place of a union. Of
/// a calendar that is not read its name is left: "@#DJULIAN@ 5 MAR". True when there was one.
[[nodiscard]] bool OterArobases(std::string& texte);

/// Every word of `piece` stands in `nom`, case, accents and punctuation apart: the piece says
/// nothing that the name does not say.
[[nodiscard]] bool RepeteLeNom(std::string_view piece, std::string_view nom);

}  // namespace dorvane::interchange

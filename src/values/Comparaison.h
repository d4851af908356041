#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane {

/// For each byte of code page 1252, its comparison form: upper case without accent, and a blank
/// for ' - . _ ’ ´ , ; and :. What has no such form (Œ, Æ, Ÿ, parentheses...) stays, in upper case.
extern const std::array<char, 256> TableReplie;

/// One byte in upper or lower case. Accented letters keep their accent; a letter whose other case
/// does not exist in code page 1252 (ß, ƒ, µ) stays as it is.
[[nodiscard]] char EnMajuscule(char octet);
[[nodiscard]] char EnMinuscule(char octet);

/// The same for a whole text; the length does not change.
[[nodiscard]] std::string EnMajuscules(std::string_view texte);
[[nodiscard]] std::string EnMinuscules(std::string_view texte);

/// The one comparison form of names and words. The length does not change, so a position in the
/// result is a position in `texte`. Folding twice changes nothing more.
[[nodiscard]] std::string Replie(std::string_view texte);

/// Appends the comparison form of `texte` to `sortie`, for the loops that reuse one buffer.
/// `texte` is not a view of `sortie`.
void ReplieDans(std::string& sortie, std::string_view texte);

/// Compares the comparison forms of two texts without making them: below 0, 0 or above 0.
[[nodiscard]] int CompareReplies(std::string_view a, std::string_view b);

/// What stands between the blanks of a text, in order; nothing is folded.
[[nodiscard]] std::vector<std::string> CouperEnMots(std::string_view texte);

/// Every one of `mots` stands somewhere in `texte`, also inside a longer word; true without words.
/// Bytes are compared: text and words are in one form, folded to pass over case and accents.
[[nodiscard]] bool ContientTout(std::string_view texte, const std::vector<std::string>& mots);

/// `texte` without its outer blanks. A blank is the byte 32 alone: tabs, line ends and the
/// no-break space stay. The views live as long as `texte`.
[[nodiscard]] std::string_view SansBlancs(std::string_view texte);
[[nodiscard]] std::string_view SansBlancsAGauche(std::string_view texte);
[[nodiscard]] std::string_view SansBlancsADroite(std::string_view texte);

/// The trimmed text with every blank turned to a dot: a text of several words as one word of a
/// keyword line.
[[nodiscard]] std::string BlancsEnPoints(std::string_view texte);

/// The way back: trimmed, then every dot turned to a blank (a dot at an end becomes an outer
/// blank).
[[nodiscard]] std::string PointsEnBlancs(std::string_view texte);

/// A digit 0 to 9, whatever the platform thinks of the other bytes.
[[nodiscard]] constexpr bool EstChiffre(char octet) {
    return octet >= '0' && octet <= '9';
}

/// True when the trimmed text is an optional sign and one digit or more, and nothing else.
[[nodiscard]] bool EstNumerique(std::string_view texte);

/// Replaces every occurrence of `cherche` by `valeur`, from left to right; what has been put in is
/// not searched again. An empty `cherche` changes nothing.
void RemplacerTout(std::string& texte, std::string_view cherche, std::string_view valeur);

}  // namespace dorvane

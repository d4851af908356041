#pragma once

#include "interchange/jeux/EncoderJeu.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace dorvane::interchange {

/// Lines of a GEDCOM file in the making: level, tag and value in the set of the export, ended by CR
/// LF. Values are in code page 1252; a value of nothing writes no line where it says so. "@" in a
/// value is doubled, as the grammar asks.
class EcrivainGedcom {
public:
    explicit EcrivainGedcom(JeuExport jeu) : encodeur_{jeu} {}
    /// About how many bytes there will be: memory is taken once, and touched as it fills.
    void Prevoir(std::size_t octets) { sortie_.reserve(octets); }

    /// A line without a value: "1 BIRT".
    void Ligne(int niveau, std::string_view etiquette);
    /// A line with a value; nothing, and false, for an empty one. Line breaks of the value become
    /// blanks. What is too long for one line goes on with CONC, except under the tags that cannot
    /// be continued.
    bool Valeur(int niveau, std::string_view etiquette, std::string_view valeur);
    /// A line that points at a record: "1 HUSB @I12@".
    void Renvoi(int niveau, std::string_view etiquette, char sorte, std::uint32_t numero);
    /// The first line of a record: "0 @I12@ INDI".
    void Enregistrement(char sorte, std::uint32_t numero, std::string_view etiquette);
    /// A text of any length, cut into lines of at most 60 characters: the first begins with `debut`
    /// ("1 NOTE "), each later paragraph with CONT, the rest of a paragraph with CONC, both at
    /// `niveau`. Paragraphs without text write nothing. False when nothing was written.
    bool Texte(std::string_view debut, int niveau, std::string_view texte);

    /// What has been written so far.
    [[nodiscard]] const std::string& Octets() const { return sortie_; }
    /// The same, given away: the writer has nothing left.
    [[nodiscard]] std::string Prendre() { return std::move(sortie_); }
    /// Characters of the values that the set has no form of.
    [[nodiscard]] std::size_t Perdus() const { return perdus_; }

private:
    void Debuter(int niveau, std::string_view etiquette);
    void Numero(char sorte, std::uint32_t numero);
    void Encoder(std::string& sortie, std::string_view texte);
    void Paragraphe(std::string_view debut, std::string_view suite, std::string_view paragraphe);
    void Finir() { sortie_ += "\r\n"; }
    [[nodiscard]] std::size_t Reculer(std::string_view texte, std::size_t fin) const;

    Encodeur encodeur_;
    std::string sortie_;
    std::size_t perdus_ = 0;
};

}  // namespace dorvane::interchange

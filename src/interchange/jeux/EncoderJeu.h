#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::interchange {

/// The character sets that an export can have.
enum class JeuExport : std::uint8_t { Ascii, Ansi, Ansel, Html, Utf8 };

/// The set that the settings name: "0" ASCII to "4" UTF-8; ANSI for anything else.
[[nodiscard]] JeuExport JeuDuReglage(std::string_view reglage);

/// What the CHAR line of the header says.
[[nodiscard]] std::string_view NomDeclare(JeuExport jeu);

/// Turns texts of code page 1252 into a set, byte by byte. `Ascii` holds accented letters as code
/// page 437. A letter that a set lacks loses its accent; what has no letter becomes "?".
class Encodeur {
public:
    explicit Encodeur(JeuExport jeu);

    /// Appends a text.
    void Ecrire(std::string& sortie, std::string_view texte) const;
    [[nodiscard]] std::string Encoder(std::string_view texte) const;
    /// Characters of a text that the set has no form of: they lose their accent or become "?".
    [[nodiscard]] std::size_t Perdus(std::string_view texte) const;
    [[nodiscard]] JeuExport Jeu() const { return jeu_; }

private:
    JeuExport jeu_;
    std::array<std::string, 256> formes_;
    std::array<bool, 256> perdus_{};
    bool perd_ = false;  ///< any of them
};

}  // namespace dorvane::interchange

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace dorvane::interchange {

/// A tag of up to 4 bytes in one number, so that a tag is told by a `switch`. Longer tags, which no
/// rule knows, are all `EtiquetteLongue`; 0 is no tag.
using CodeEtiquette = std::uint32_t;

inline constexpr CodeEtiquette EtiquetteLongue = 0xFFFFFFFFU;

[[nodiscard]] constexpr CodeEtiquette CoderEtiquette(std::string_view etiquette) {
    if (etiquette.size() > 4) return EtiquetteLongue;
    CodeEtiquette code = 0;
    for (const char c : etiquette)
        code = code << 8U | static_cast<unsigned char>(c);
    return code;
}

/// "NAME"_tag
[[nodiscard]] consteval CodeEtiquette operator""_tag(const char* texte, std::size_t longueur) {
    return CoderEtiquette({texte, longueur});
}

/// The tags of the lines that are open, by level. Levels above 5 count as 5.
class PileEtiquettes {
public:
    /// Opens a line and closes those of its level and deeper. False when no line of the level just
    /// above is open: the line belongs to nothing.
    bool Entrer(std::uint32_t niveau, std::string_view etiquette, CodeEtiquette code) {
        const std::size_t rang = Rang(niveau);
        for (std::size_t i = rang; i < Profondeur; ++i)
            lignes_[i].code = 0;
        if (rang > 0 && lignes_[rang - 1].code == 0) return false;
        lignes_[rang] = {etiquette, code};
        rang_ = rang;
        return true;
    }

    /// Tag of the line that the line entered last stands under; 0 for a line of level 0.
    [[nodiscard]] CodeEtiquette Parent() const { return rang_ > 0 ? lignes_[rang_ - 1].code : 0; }
    /// Tag of the record.
    [[nodiscard]] CodeEtiquette Racine() const { return lignes_[0].code; }
    [[nodiscard]] std::string_view Etiquette(std::size_t rang) const {
        return lignes_[rang].etiquette;
    }
    /// Level of the line entered last, at most 5.
    [[nodiscard]] std::size_t Niveau() const { return rang_; }

    static constexpr std::size_t Rang(std::uint32_t niveau) {
        return niveau < Profondeur ? niveau : Profondeur - 1;
    }

private:
    static constexpr std::size_t Profondeur = 6;
    struct Ouverte {
        std::string_view etiquette;
        CodeEtiquette code = 0;  ///< 0: no line of this level is open
    };
    std::array<Ouverte, Profondeur> lignes_;
    std::size_t rang_ = 0;
};

}  // namespace dorvane::interchange

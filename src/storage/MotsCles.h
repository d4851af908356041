#pragma once

#include "storage/EnTete.h"
#include "storage/Marques.h"
#include "storage/Volume.h"

#include <array>
#include <string>
#include <string_view>

namespace dorvane::storage {

/// One type of keyword.
struct MotCle {
    char symbole = ' ';   ///< the character in front of its words
    std::string libelle;  ///< language-neutral label, at most 34 bytes
    bool indexe = false;  ///< has a word list
    Position mots{};      ///< where the word list stands; 0: none
    friend bool operator==(const MotCle&, const MotCle&) = default;
};

/// The table of keywords, numbers 1 to `EnTete::NbMotsCles`.
class MotsCles {
public:
    MotsCles(Volume& volume, Marques& marques, EnTete& entete)
        : volume_{volume}, marques_{marques}, entete_{entete} {}

    [[nodiscard]] std::uint32_t Nombre() const { return entete_.NbMotsCles; }
    /// Symbol, label and word list of `k`; valid until the next change. Empty out of range.
    [[nodiscard]] const MotCle& LibelleType(NoMotCle k);
    [[nodiscard]] Position PosMotsType(NoMotCle k) { return LibelleType(k).mots; }
    /// Number of the first keyword with this symbol; 0 when there is none.
    [[nodiscard]] NoMotCle TypeDuSymbole(char symbole);
    /// Writes the record of `k`, 1 to 50, at the end of the file; a `k` behind the last one makes
    /// it the last. The label is cut to 34 bytes.
    void CreerType(NoMotCle k, const MotCle& type);
    /// Takes keyword `k` away: its place in the directory becomes 0 and reads as an empty keyword
    /// with a blank symbol. The number of keywords stays.
    void EffacerType(NoMotCle k);
    /// Takes the table over in memory: new number i is old number `ordre[i-1]`. Records stay.
    void Reordonner(std::span<const NoMotCle> ordre);

    /// The directory: 50 `Num4`.
    void FixerRepertoire(std::string_view octets);
    [[nodiscard]] std::string OctetsRepertoire() const;
    void Oublier();

private:
    Volume& volume_;
    Marques& marques_;
    EnTete& entete_;
    std::array<std::uint32_t, MaxMotsCles> repertoire_{};
    std::array<MotCle, MaxMotsCles> memo_;
    std::array<bool, MaxMotsCles> lu_{};
    MotCle vide_;
};

}  // namespace dorvane::storage

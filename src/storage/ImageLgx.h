#pragma once

#include "values/Numeros.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::storage {

/// The four columns of a base of communes, by number of commune or of entry.
enum class AireLgx : std::uint8_t {
    Communes,      ///< record of a commune, by its number
    Noms,          ///< entries of the name index, in ascending order
    Sons,          ///< entries of the phonetic index, in ascending order
    Commentaires,  ///< comment of a commune, by its number
};

/// The bytes of a `.LGX` file: a head with four areas (a count and 64 blocks of 2500 cells of 4
/// bytes each), blocks of cells, and records appended behind. A country fits into a few megabytes,
/// so the whole file is held in memory and written beside the old one: there is no journal.
/// Positions are 1-based. A damaged file reads as empty cells and short texts, nothing else.
class ImageLgx {
public:
    static constexpr std::uint32_t ParBloc = 2500;
    static constexpr std::uint32_t NbBlocs = 64;
    static constexpr std::uint32_t MaxCellules = ParBloc * NbBlocs;
    static constexpr std::uint32_t TailleTete = 1044;

    /// An empty base: the head alone.
    ImageLgx();
    /// A file as read. `Valide` tells whether it can be one.
    explicit ImageLgx(std::string octets);

    /// The head is there, its counts are within reach, and the end of the file that it tells and
    /// every block lie within the bytes.
    [[nodiscard]] bool Valide() const;

    [[nodiscard]] std::uint32_t Nombre(AireLgx aire) const;
    void FixerNombre(AireLgx aire, std::uint32_t nombre);

    /// What cell `n`, from 1, holds; 0 for a cell out of reach or never written.
    [[nodiscard]] Position Cellule(AireLgx aire, std::uint32_t n) const;
    /// Writes a cell, in a new block if need be. `n` is at most `MaxCellules`.
    void FixerCellule(AireLgx aire, std::uint32_t n, Position position);

    /// Appends a record and answers where it stands.
    Position Ajouter(std::string_view octets);
    /// Overwrites bytes that are there.
    void Remplacer(Position debut, std::string_view octets);
    /// The bytes from a position to the end; empty for a position outside. The view lives until
    /// the next change.
    [[nodiscard]] std::string_view Depuis(Position debut) const;

    /// The file, to be written as it is.
    [[nodiscard]] const std::string& Octets();

private:
    [[nodiscard]] std::uint32_t Nombre4(std::size_t decalage) const;
    void FixerNombre4(std::size_t decalage, std::uint32_t nombre);

    std::string octets_;
};

}  // namespace dorvane::storage

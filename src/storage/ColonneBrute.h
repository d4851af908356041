#pragma once

#include "storage/Marques.h"
#include "storage/Repertoire.h"
#include "storage/Volume.h"
#include "values/Numeros.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// Shape of a column.
struct Geometrie {
    std::uint32_t largeur;          ///< bytes of a cell
    std::uint32_t nbBlocs;          ///< entries of its directory
    char neuf;                      ///< what a block that was never written is filled with
    std::uint32_t cellulesParBloc;  ///< 1000; 400 for the word index
};

/// A row of cells of one width, in blocks reached through a directory in memory, with the two
/// blocks touched last at hand. Cells are numbered from 1.
///
/// A block gets its place in the file when it is first pushed out dirty, so `FinFichier` may change
/// during a read. Reading a block that was never written allocates nothing.
class ColonneBrute {
public:
    /// `volume` and `marques` outlive the column.
    ColonneBrute(Volume& volume, Marques& marques, const Geometrie& geometrie);

    /// Writes both blocks if they changed. Called at commit.
    void ViderColonne();
    /// Forgets both blocks without writing.
    void InitColonne();
    /// Where block `bloc` (from 1) stands; 0 when it was never written or there is no such block.
    [[nodiscard]] Position PositionBloc(std::uint32_t bloc) const {
        return repertoire.PositionBloc(bloc);
    }
    /// Highest number that has a cell.
    [[nodiscard]] std::uint32_t Portee() const {
        return geometrie_.nbBlocs * geometrie_.cellulesParBloc;
    }

    /// The directory; changed from outside only when a base is opened or made.
    Repertoire repertoire;
    [[nodiscard]] std::uint32_t TailleBloc() const {
        return geometrie_.largeur * geometrie_.cellulesParBloc;
    }

protected:
    /// The bytes of cell `n`, valid until the next call. Cell 0 and those out of reach read fresh.
    [[nodiscard]] const char* Cellule(std::uint32_t n) {
        if (n - 1U >= Portee()) return neuves_.data();
        const std::uint32_t bloc = (n - 1) / geometrie_.cellulesParBloc + 1;
        const std::size_t rang = (n - 1) % geometrie_.cellulesParBloc;
        return Choisir(bloc).octets.data() + rang * geometrie_.largeur;
    }
    /// The same for writing: the block becomes dirty, the base modified. Null out of reach.
    [[nodiscard]] char* CelluleEcrite(std::uint32_t n);

    Volume& volume_;
    Marques& marques_;

private:
    struct Emplacement {
        std::vector<char> octets;
        std::uint32_t bloc = 0;  ///< 0: empty
        bool sale = false;
    };

    Emplacement& Choisir(std::uint32_t bloc) {
        for (std::uint8_t i = 0; i < 2; ++i)
            if (emplacements_[i].bloc == bloc) {
                dernier_ = i;
                return emplacements_[i];
            }
        return Charger(bloc);
    }
    Emplacement& Charger(std::uint32_t bloc);
    void Vider(Emplacement& emplacement);

    Geometrie geometrie_;
    std::array<Emplacement, 2> emplacements_;
    std::uint8_t dernier_ = 1;  ///< the one touched last; the other is pushed out
    std::array<char, 16> neuves_;
};

}  // namespace dorvane::storage

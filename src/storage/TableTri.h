#pragma once

#include "storage/Repertoire.h"
#include "storage/Volume.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace dorvane::storage {

/// A row of record numbers in display order, held whole in memory and stored in blocks of 1000.
class TableTri {
public:
    TableTri(Volume& volume, std::uint32_t nbBlocs)
        : repertoire{nbBlocs, TailleBloc}, volume_{volume} {}

    /// Entry `rang`, from 1; 0 past the end.
    [[nodiscard]] std::uint32_t AuRang(std::uint32_t rang) const {
        return rang - 1U < numeros_.size() ? numeros_[rang - 1] : 0;
    }
    [[nodiscard]] std::uint32_t Taille() const {
        return static_cast<std::uint32_t>(numeros_.size());
    }
    /// Replaces entry `rang`, or adds it when `rang` is just behind the last. Else nothing.
    void Fixer(std::uint32_t rang, std::uint32_t numero);
    void Inserer(std::uint32_t rang, std::uint32_t numero);
    void Retirer(std::uint32_t rang);
    void Remplacer(std::vector<std::uint16_t> numeros) { numeros_ = std::move(numeros); }
    [[nodiscard]] const std::vector<std::uint16_t>& Numeros() const { return numeros_; }

    /// Reads the blocks of the directory and keeps `nombre` entries at most.
    void Charger(std::uint32_t nombre);
    /// Writes the blocks that differ from the file; the last one is padded with blanks.
    void Vider(std::uint32_t nombre);

    /// The directory; changed from outside only when a base is opened or made.
    Repertoire repertoire;

private:
    static constexpr std::uint32_t TailleBloc = 2000;

    Volume& volume_;
    std::vector<std::uint16_t> numeros_;
    std::string surDisque_;  ///< the blocks as the file has them
};

}  // namespace dorvane::storage

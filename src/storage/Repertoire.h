#pragma once

#include "values/Numeros.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// Where the blocks of a column stand: entry k is the position of block k, 0 when it was never
/// written. In the file a row of `Num4`.
class Repertoire {
public:
    Repertoire(std::uint32_t nbBlocs, std::uint32_t tailleBloc)
        : positions_(nbBlocs), tailleBloc_{tailleBloc} {}

    /// Position of block `bloc`, from 1; 0 outside.
    [[nodiscard]] Position PositionBloc(std::uint32_t bloc) const {
        return Position{bloc - 1U < positions_.size() ? positions_[bloc - 1] : 0};
    }
    /// `bloc` is in reach.
    void Fixer(std::uint32_t bloc, Position position) { positions_[bloc - 1] = position.valeur; }
    [[nodiscard]] std::uint32_t NbBlocs() const {
        return static_cast<std::uint32_t>(positions_.size());
    }
    void Vider() { positions_.assign(positions_.size(), 0); }

    /// Takes entries from `premiere` (from 0) on from a row of `Num4`; what does not fit is left.
    void Decoder(std::string_view octets, std::uint32_t premiere);
    /// `nombre` entries from `premiere` on as a row of `Num4`, 0 past the end.
    [[nodiscard]] std::string Octets(std::uint32_t premiere, std::uint32_t nombre) const;

    /// Drops the entries of a damaged file that lie in the header or past the end of the file.
    /// Answers the last byte of the last block that is left, 0 when there is none.
    std::uint64_t Verifier(std::uint64_t tailleFichier);

private:
    std::vector<std::uint32_t> positions_;
    std::uint32_t tailleBloc_;
};

}  // namespace dorvane::storage

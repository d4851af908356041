#include "storage/Repertoire.h"

#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {

void Repertoire::Decoder(std::string_view octets, std::uint32_t premiere) {
    for (std::size_t i = 0; i * 4 + 4 <= octets.size(); ++i)
        if (premiere + i < positions_.size())
            positions_[premiere + i] = Chaine4VersNum(octets.substr(i * 4, 4));
}

std::string Repertoire::Octets(std::uint32_t premiere, std::uint32_t nombre) const {
    std::string octets;
    octets.reserve(nombre * 4UL);
    for (std::uint32_t i = premiere; i < premiere + nombre; ++i)
        octets += NumVersChaine4(i < positions_.size() ? positions_[i] : 0);
    return octets;
}

std::uint64_t Repertoire::Verifier(std::uint64_t tailleFichier) {
    constexpr std::uint32_t FinEnTete = 200;
    std::uint64_t fin = 0;
    for (std::uint32_t& position : positions_) {
        if (position <= FinEnTete || position > tailleFichier)
            position = 0;
        else
            fin = std::max<std::uint64_t>(fin, std::uint64_t{position} + tailleBloc_ - 1);
    }
    return fin;
}

}  // namespace dorvane::storage

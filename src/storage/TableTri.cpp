#include "storage/TableTri.h"

#include "values/Octets.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace dorvane::storage {
namespace {

constexpr std::size_t TailleBlocTri = 2000;

}  // namespace

void TableTri::Fixer(std::uint32_t rang, std::uint32_t numero) {
    if (rang == Taille() + 1)
        Inserer(rang, numero);
    else if (rang != 0 && rang <= Taille())
        numeros_[rang - 1] = static_cast<std::uint16_t>(numero);
}

void TableTri::Inserer(std::uint32_t rang, std::uint32_t numero) {
    if (rang == 0 || rang > Taille() + 1) return;
    numeros_.insert(numeros_.begin() + static_cast<std::ptrdiff_t>(rang - 1),
                    static_cast<std::uint16_t>(numero));
}

void TableTri::Retirer(std::uint32_t rang) {
    if (rang == 0 || rang > Taille()) return;
    numeros_.erase(numeros_.begin() + static_cast<std::ptrdiff_t>(rang - 1));
}

void TableTri::Charger(std::uint32_t nombre) {
    numeros_.clear();
    surDisque_.clear();
    for (std::uint32_t bloc = 1; bloc <= repertoire.NbBlocs(); ++bloc) {
        const Position position = repertoire.PositionBloc(bloc);
        if (!position) break;
        const std::size_t debut = surDisque_.size();
        surDisque_.resize(debut + TailleBlocTri);
        volume_.LireBloc(position, std::span{surDisque_}.subspan(debut));
    }
    const std::size_t lus = std::min<std::size_t>(nombre, surDisque_.size() / 2);
    numeros_.reserve(lus);
    for (std::size_t i = 0; i < lus; ++i)
        numeros_.push_back(static_cast<std::uint16_t>(
            Chaine2VersNum(std::string_view{surDisque_}.substr(i * 2, 2))));
}

void TableTri::Vider(std::uint32_t nombre) {
    std::string octets;
    const std::size_t ecrits = std::min<std::size_t>(
        {nombre, numeros_.size(), std::size_t{repertoire.NbBlocs()} * (TailleBlocTri / 2)});
    octets.reserve(ecrits * 2 + TailleBlocTri);
    for (std::size_t i = 0; i < ecrits; ++i) {
        octets += static_cast<char>(numeros_[i] >> 8U);
        octets += static_cast<char>(numeros_[i] & 0xFFU);
    }
    const std::size_t nbBlocs = (octets.size() + TailleBlocTri - 1) / TailleBlocTri;
    octets.resize(nbBlocs * TailleBlocTri, ' ');
    if (surDisque_.size() < octets.size()) surDisque_.resize(octets.size());
    for (std::size_t i = 0; i < nbBlocs; ++i) {
        const auto bloc = static_cast<std::uint32_t>(i + 1);
        const auto morceau = std::string_view{octets}.substr(i * TailleBlocTri, TailleBlocTri);
        const Position position = repertoire.PositionBloc(bloc);
        if (!position)
            repertoire.Fixer(bloc, volume_.Ajouter(morceau));
        else if (surDisque_.compare(i * TailleBlocTri, TailleBlocTri, morceau) != 0)
            volume_.EcrireBloc(position, morceau);
        surDisque_.replace(i * TailleBlocTri, TailleBlocTri, morceau);
    }
}

}  // namespace dorvane::storage

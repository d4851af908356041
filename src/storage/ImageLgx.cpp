#include "storage/ImageLgx.h"

#include "values/Octets.h"

#include <array>
#include <utility>

namespace dorvane::storage {

namespace {

constexpr std::uint32_t TailleBloc = ImageLgx::ParBloc * 4;

/// Where an area keeps its count and its directory, in bytes from the start of the file. The
/// first area has the end of the file in front of its count.
struct PlaceAire {
    std::size_t nombre;
    std::size_t repertoire;
};
constexpr std::array<PlaceAire, 4> Places{{{4, 8}, {264, 268}, {524, 528}, {784, 788}}};

constexpr const PlaceAire& PlaceDe(AireLgx aire) {
    return Places[static_cast<std::size_t>(aire)];
}

}  // namespace

ImageLgx::ImageLgx() : octets_(TailleTete, '\0') {}

ImageLgx::ImageLgx(std::string octets) : octets_{std::move(octets)} {
    const std::uint32_t fin = Nombre4(0);
    if (fin >= TailleTete && fin < octets_.size()) octets_.resize(fin);
}

bool ImageLgx::Valide() const {
    const std::uint32_t fin = Nombre4(0);
    if (octets_.size() < TailleTete || (fin != 0 && fin < TailleTete) || fin > octets_.size())
        return false;
    for (const PlaceAire& place : Places) {
        if (Nombre4(place.nombre) > MaxCellules) return false;
        for (std::size_t b = 0; b < NbBlocs; ++b) {
            const std::uint32_t debut = Nombre4(place.repertoire + b * 4);
            if (debut == 0) continue;
            if (debut <= TailleTete || std::size_t{debut} - 1 + TailleBloc > octets_.size())
                return false;
        }
    }
    return true;
}

std::uint32_t ImageLgx::Nombre(AireLgx aire) const {
    return Nombre4(PlaceDe(aire).nombre);
}

void ImageLgx::FixerNombre(AireLgx aire, std::uint32_t nombre) {
    FixerNombre4(PlaceDe(aire).nombre, nombre);
}

Position ImageLgx::Cellule(AireLgx aire, std::uint32_t n) const {
    if (n - 1U >= MaxCellules) return {};
    const std::uint32_t bloc =
        Nombre4(PlaceDe(aire).repertoire + std::size_t{(n - 1) / ParBloc} * 4);
    if (bloc == 0) return {};
    return Position{Nombre4(std::size_t{bloc} - 1 + std::size_t{(n - 1) % ParBloc} * 4)};
}

void ImageLgx::FixerCellule(AireLgx aire, std::uint32_t n, Position position) {
    const std::size_t entree = PlaceDe(aire).repertoire + std::size_t{(n - 1) / ParBloc} * 4;
    std::uint32_t bloc = Nombre4(entree);
    if (bloc == 0) {
        bloc = Ajouter(std::string(TailleBloc, '\0')).valeur;
        FixerNombre4(entree, bloc);
    }
    FixerNombre4(std::size_t{bloc} - 1 + std::size_t{(n - 1) % ParBloc} * 4, position.valeur);
}

Position ImageLgx::Ajouter(std::string_view octets) {
    octets_ += octets;
    return Position{static_cast<std::uint32_t>(octets_.size() - octets.size() + 1)};
}

void ImageLgx::Remplacer(Position debut, std::string_view octets) {
    octets_.replace(debut.valeur - 1, octets.size(), octets);
}

std::string_view ImageLgx::Depuis(Position debut) const {
    if (debut.valeur - 1U >= octets_.size()) return {};
    return std::string_view{octets_}.substr(debut.valeur - 1);
}

const std::string& ImageLgx::Octets() {
    FixerNombre4(0, static_cast<std::uint32_t>(octets_.size()));
    return octets_;
}

std::uint32_t ImageLgx::Nombre4(std::size_t decalage) const {
    if (decalage >= octets_.size()) return 0;
    return Chaine4VersNum(std::string_view{octets_}.substr(decalage));
}

void ImageLgx::FixerNombre4(std::size_t decalage, std::uint32_t nombre) {
    octets_.replace(decalage, 4, NumVersChaine4(nombre));
}

}  // namespace dorvane::storage

#include "storage/ColonneBrute.h"

#include <algorithm>

namespace dorvane::storage {

ColonneBrute::ColonneBrute(Volume& volume, Marques& marques, const Geometrie& geometrie)
    : repertoire{geometrie.nbBlocs, geometrie.largeur * geometrie.cellulesParBloc},
      volume_{volume},
      marques_{marques},
      geometrie_{geometrie} {
    neuves_.fill(geometrie.neuf);
}

void ColonneBrute::Vider(Emplacement& emplacement) {
    if (!emplacement.sale) return;
    emplacement.sale = false;
    const std::string_view octets{emplacement.octets.data(), emplacement.octets.size()};
    if (const Position position = PositionBloc(emplacement.bloc))
        volume_.EcrireBloc(position, octets);
    else
        repertoire.Fixer(emplacement.bloc, volume_.Ajouter(octets));
}

ColonneBrute::Emplacement& ColonneBrute::Charger(std::uint32_t bloc) {
    dernier_ = dernier_ == 0 ? 1 : 0;
    Emplacement& victime = emplacements_[dernier_];
    Vider(victime);
    victime.octets.resize(TailleBloc());
    if (const Position position = PositionBloc(bloc))
        volume_.LireBloc(position, victime.octets);
    else
        std::fill(victime.octets.begin(), victime.octets.end(), geometrie_.neuf);
    victime.bloc = bloc;
    return victime;
}

char* ColonneBrute::CelluleEcrite(std::uint32_t n) {
    if (n - 1U >= Portee()) return nullptr;
    const std::uint32_t bloc = (n - 1) / geometrie_.cellulesParBloc + 1;
    const std::size_t rang = (n - 1) % geometrie_.cellulesParBloc;
    Emplacement& emplacement = Choisir(bloc);
    emplacement.sale = true;
    marques_.ModifBase = true;
    return emplacement.octets.data() + rang * geometrie_.largeur;
}

void ColonneBrute::ViderColonne() {
    for (Emplacement& emplacement : emplacements_)
        Vider(emplacement);
}

void ColonneBrute::InitColonne() {
    for (Emplacement& emplacement : emplacements_) {
        emplacement.bloc = 0;
        emplacement.sale = false;
    }
    dernier_ = 1;
}

}  // namespace dorvane::storage

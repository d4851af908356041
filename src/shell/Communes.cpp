#include "shell/Communes.h"

#include "shell/Parametres.h"
#include "storage/BaseCommunes.h"

#include <system_error>
#include <utility>

namespace dorvane::shell {

Communes::Communes(storage::Disque& disque, const Parametres& parametres)
    : disque_{disque}, parametres_{parametres} {}

Communes::~Communes() = default;

Communes::Etat Communes::EtatDuFichier() const {
    Etat etat;
    etat.chemin = parametres_.generaux.fichierCommunes;
    // A file that is not there has no date and no size, and is read once it has.
    std::error_code erreur;
    etat.date = std::filesystem::last_write_time(etat.chemin, erreur);
    if (erreur) etat.date = {};
    etat.taille = std::filesystem::file_size(etat.chemin, erreur);
    if (erreur) etat.taille = 0;
    return etat;
}

const storage::BaseCommunes* Communes::Base() {
    Etat etat = EtatDuFichier();
    if (etat == lu_) return base_.get();
    lu_ = std::move(etat);
    base_.reset();
    // A pipe or a device has no size, and would be waited for.
    if (lu_.taille != 0) base_ = storage::BaseCommunes::OuvrirCommunes(disque_, lu_.chemin).base;
    return base_.get();
}

}  // namespace dorvane::shell

// links: shell
// Any bytes as the settings file and as an older .ini: they are read, saved and read again.
#include "doublures/DossierTemporaire.h"
#include "shell/Parametres.h"

#include <cstdint>
#include <cstdlib>

using namespace dorvane::shell;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    static const dorvane::doublures::DossierTemporaire dossier;
    const std::string texte{donnees, donnees + taille};
    std::error_code erreur;
    std::filesystem::remove_all(dossier / "config", erreur);
    // One half of the inputs is the store, the other an older file at a first run.
    const bool ini = taille > 0 && donnees[0] == '[';
    dorvane::doublures::EcrireFichier(
        dossier / (ini ? "config/Dorvane.ini" : "config/parametres.json"), texte);

    const Lieux lieux{dossier / "programme", dossier / "config", dossier / "cache"};
    Parametres parametres{lieux};
    static_cast<void>(parametres.ChargerParametres());
    static_cast<void>(parametres.LireParametresBase(dossier / "a.LGD"));
    static_cast<void>(parametres.RolesEvenement("BIRT"));
    if (!parametres.SauverParametresBase(dossier / "a.LGD") || !parametres.SauverParametres())
        std::abort();
    Parametres relus{lieux};
    if (relus.ChargerParametres() != Magasin::Etat::Lu) std::abort();
    return 0;
}

#pragma once

#include "storage/Disque.h"

namespace dorvane::storage {

/// The disk of the machine.
class DisqueReel final : public Disque {
public:
    [[nodiscard]] std::unique_ptr<Fichier> Ouvrir(const std::filesystem::path& chemin,
                                                  ModeOuverture mode) override;
    [[nodiscard]] bool Existe(const std::filesystem::path& chemin) override;
    [[nodiscard]] bool Supprimer(const std::filesystem::path& chemin) override;
    [[nodiscard]] bool Renommer(const std::filesystem::path& de,
                                const std::filesystem::path& vers) override;
    [[nodiscard]] bool Copier(const std::filesystem::path& de,
                              const std::filesystem::path& vers) override;
    void DonnerDroits(const std::filesystem::path& chemin,
                      const std::filesystem::path& comme) override;
    bool ViderDossier(const std::filesystem::path& fichier) override;
    [[nodiscard]] ResultatVerrou Verrouiller(const std::filesystem::path& base) override;
};

}  // namespace dorvane::storage

#pragma once

#include "windows/fiche/PageFiche.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <vector>

namespace Ui {
class PageDocuments;
}

namespace dorvane::windows {

/// The documents of a person in the user's order. Files that are dropped become documents of the
/// person.
class PageDocuments final : public PageFiche {
public:
    PageDocuments(shell::Session& session, ServicesFiche& fiche, QWidget* parent);
    ~PageDocuments() override;

    void Charger(NoOrdre individu, bool garder) override;
    void Traduire() override;
    [[nodiscard]] QList<QWidget*> Ordre() const override;
    [[nodiscard]] QString Compte() const override;

private:
    [[nodiscard]] std::size_t Rang() const;
    [[nodiscard]] NoDocument Document() const;
    void Ajouter();
    void AjouterFichiers(const std::vector<std::filesystem::path>& fichiers);
    void Modifier();
    void Voir();
    void Retirer();
    void Ranger(int pas);
    void PoserBoutons();

    std::unique_ptr<Ui::PageDocuments> ui_;
};

}  // namespace dorvane::windows

#pragma once

#include "windows/fiche/PageFiche.h"

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class PageEvts;
}

namespace dorvane::windows {

/// The events of a person by date.
class PageEvts final : public PageFiche {
public:
    PageEvts(shell::Session& session, ServicesFiche& fiche, QWidget* parent);
    ~PageEvts() override;

    void Charger(NoOrdre individu, bool garder) override;
    void Traduire() override;
    [[nodiscard]] QList<QWidget*> Ordre() const override;
    [[nodiscard]] QString Compte() const override;

private:
    void Ajouter();
    void Modifier();
    void Retirer();
    void Editer(NoEvenement evenement);

    std::unique_ptr<Ui::PageEvts> ui_;
    std::vector<std::string> roles_;  ///< as stored, by row
};

}  // namespace dorvane::windows

#pragma once

#include "windows/fiche/PageFiche.h"

#include <memory>

namespace Ui {
class PageFratrie;
}

namespace dorvane::windows {

/// Brothers and sisters by year of birth.
class PageFratrie final : public PageFiche {
public:
    PageFratrie(shell::Session& session, ServicesFiche& fiche, QWidget* parent);
    ~PageFratrie() override;

    void Charger(NoOrdre individu, bool garder) override;
    void Traduire() override;
    [[nodiscard]] QList<QWidget*> Ordre() const override;
    [[nodiscard]] QString Compte() const override;

private:
    std::unique_ptr<Ui::PageFratrie> ui_;
};

}  // namespace dorvane::windows

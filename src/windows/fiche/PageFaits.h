#pragma once

#include "windows/fiche/PageFiche.h"

#include <memory>
#include <string>

namespace Ui {
class PageFaits;
}

namespace dorvane::windows {

/// The rows of keywords and the note of a person.
class PageFaits final : public PageFiche {
public:
    PageFaits(shell::Session& session, ServicesFiche& fiche, QWidget* parent);
    ~PageFaits() override;

    void Charger(NoOrdre individu, bool garder) override;
    void Lire(records::SaisieFiche& saisie, std::size_t& remplaces) const override;
    void Traduire() override;
    [[nodiscard]] QList<QWidget*> Ordre() const override;
    /// Years of the life as they are typed.
    void PoserVie(const records::SaisieFiche& saisie);
    void AllerALaNote();

private:
    void Marquer();

    std::unique_ptr<Ui::PageFaits> ui_;
    std::string note_;  ///< as stored
};

}  // namespace dorvane::windows

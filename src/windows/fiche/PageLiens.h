#pragma once

#include "windows/fiche/PageFiche.h"

#include <cstddef>
#include <memory>

namespace Ui {
class PageLiens;
}

namespace dorvane::windows {

/// The persons linked with a person, and the label of the link that is selected.
class PageLiens final : public PageFiche {
public:
    PageLiens(shell::Session& session, ServicesFiche& fiche, QWidget* parent);
    ~PageLiens() override;

    void Charger(NoOrdre individu, bool garder) override;
    void Lire(records::SaisieFiche& saisie, std::size_t& remplaces) const override;
    void Traduire() override;
    [[nodiscard]] QList<QWidget*> Ordre() const override;
    [[nodiscard]] QString Compte() const override;
    void AllerAuLibelle();

private:
    void Lister();
    void ChoisirLien();
    void MontrerLien(std::size_t rang, bool garder = false);
    void Ajouter();
    void Lier(NoOrdre autre);
    void Retirer();
    [[nodiscard]] bool LienModifie() const;

    std::unique_ptr<Ui::PageLiens> ui_;
    std::size_t rang_ = 0;  ///< of the link whose label is shown; 0: none
    bool charge_ = false;
};

}  // namespace dorvane::windows

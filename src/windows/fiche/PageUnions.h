#pragma once

#include "windows/fiche/PageFiche.h"

#include <memory>
#include <string>

namespace Ui {
class PageUnions;
}

namespace dorvane::windows {

/// Unions and children of a person, and the fields of the union that is selected.
class PageUnions final : public PageFiche {
public:
    PageUnions(shell::Session& session, ServicesFiche& fiche, QWidget* parent);
    ~PageUnions() override;

    void Charger(NoOrdre individu, bool garder) override;
    void Lire(records::SaisieFiche& saisie, std::size_t& remplaces) const override;
    void Traduire() override;
    [[nodiscard]] QList<QWidget*> Ordre() const override;
    [[nodiscard]] QString Compte() const override;

private:
    void RelierUnions();
    void RelierEnfants();
    void RelierChamps();
    void ChoisirUnion();
    void MontrerUnion(NoMariage mariage, bool garder = false);
    void PoserBoutons();
    void Changer();
    [[nodiscard]] records::SaisieUnion LireUnion(std::size_t& remplaces) const;
    [[nodiscard]] bool UnionModifiee() const;

    void ListerUnions();
    void ListerEnfants();
    void Unir(NoOrdre partenaire);
    void AllerALaDate();
    void ChercherConjoint();
    void CreerConjoint();
    void RetirerUnion();
    void Ranger(int pas);
    void ChercherEnfant();
    void CreerEnfant();
    void RetirerEnfant();
    void Attacher(NoOrdre enfant);

    std::unique_ptr<Ui::PageUnions> ui_;
    NoMariage mariage_{};  ///< whose fields are shown
    std::string note_;     ///< of the union, as stored
    bool charge_ = false;  ///< lists or fields are being filled
};

}  // namespace dorvane::windows

#pragma once

#include "storage/Progression.h"

#include <functional>
#include <vector>

namespace dorvane::doublures {

/// Keeps what a long job has shown, and cancels it at a given step.
class ProgressionScript final : public storage::Progression {
public:
    std::vector<Phrase> titres;
    std::vector<Phrase> textes;   ///< first texts and phases, in order
    std::uint32_t pas = 0;        ///< calls of `Avancer`
    std::uint32_t annulerAu = 0;  ///< the call that answers no; 0: never
    int cadres = 0;               ///< frames shown now
    int sabliers = 0;             ///< wait cursors held now
    int sabliersVus = 0;
    std::function<void()> aChaquePas;  ///< what the user does meanwhile

    void Commencer(const Phrase& titre, const Phrase& texte) override {
        ++cadres;
        titres.push_back(titre);
        textes.push_back(texte);
    }
    void Phase(const Phrase& texte) override { textes.push_back(texte); }
    [[nodiscard]] bool Avancer(std::uint32_t /*fait*/, std::uint32_t /*total*/) override {
        ++pas;
        if (aChaquePas) aChaquePas();
        return annulerAu == 0 || pas < annulerAu;
    }
    void Terminer() override { --cadres; }
    [[nodiscard]] bool EnCours() const override { return cadres > 0; }
    void Sablier(bool attente) override {
        sabliers += attente ? 1 : -1;
        if (attente) ++sabliersVus;
    }
};

}  // namespace dorvane::doublures

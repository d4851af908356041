#pragma once

#include "storage/Base.h"
#include "storage/Progression.h"
#include "storage/Reorganiser.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace dorvane::storage {

/// The phases of a reorganisation. Each goes over its records under its title, until the user gives
/// up, the new file cannot be written, or it grows beyond what live records can fill.
class ParcoursReorganisation {
public:
    /// All outlive the object.
    ParcoursReorganisation(Base& source, Base& cible, Progression& progression)
        : source_{source},
          cible_{cible},
          progression_{progression},
          // Each live record is written once, and blocks hardly differ: what grows beyond that
          // comes of records that run into one another.
          limite_{2 * source.volume.TailleDisque() + (1U << 20U)} {}

    /// One phase: `travail` for 1 to `nombre`. False: the whole work ends, `Issue` tells why.
    template <class Travail>
    [[nodiscard]] bool Parcourir(std::string_view titre, std::size_t nombre, Travail travail) {
        progression_.Phase(Litteral(titre));
        const auto total = static_cast<std::uint32_t>(nombre);
        for (std::uint32_t i = 1; i <= total; ++i) {
            if ((i - 1) % PasCompteur == 0 && !Continuer(i - 1, total)) return false;
            travail(i);
            if (cible_.volume.FinFichier() > limite_) return Continuer(i, total);
        }
        return true;
    }

    [[nodiscard]] IssueReorganisation Issue() const { return issue_; }

private:
    static constexpr std::uint32_t PasCompteur = 100;

    bool Continuer(std::uint32_t fait, std::uint32_t total) {
        if (source_.EnDefaut() || cible_.EnDefaut())
            issue_ = IssueReorganisation::Refusee;
        else if (cible_.volume.FinFichier() > limite_)
            issue_ = IssueReorganisation::TropAbimee;
        else if (!progression_.Avancer(fait, total))
            issue_ = IssueReorganisation::Abandonnee;
        else
            return true;
        return false;
    }

    Base& source_;
    Base& cible_;
    Progression& progression_;
    std::uint64_t limite_;
    IssueReorganisation issue_ = IssueReorganisation::Abandonnee;
};

}  // namespace dorvane::storage

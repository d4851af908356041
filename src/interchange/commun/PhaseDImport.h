#pragma once

#include "shell/Progression.h"
#include "storage/Avancement.h"

#include <string>

namespace dorvane::interchange {

/// Shows a job of the storage floor as one more phase of the frame that is already there.
class PhaseDImport final : public storage::Avancement {
public:
    /// `progression` outlives the object.
    explicit PhaseDImport(shell::Progression& progression) : progression_{progression} {}

    void Commencer(const storage::TexteAvancement& titre,
                   const storage::TexteAvancement& /*texte*/) override {
        Phase(titre);
    }
    void Phase(const storage::TexteAvancement& texte) override {
        progression_.Phase({texte.message, std::string{texte.litteral}, {}, {}});
    }
    [[nodiscard]] bool Avancer(std::uint32_t fait, std::uint32_t total) override {
        return progression_.Avancer(fait, total);
    }
    void Terminer() override {}

private:
    shell::Progression& progression_;
};

}  // namespace dorvane::interchange

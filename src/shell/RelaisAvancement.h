#pragma once

#include "shell/Libelles.h"
#include "shell/Progression.h"
#include "storage/Avancement.h"

namespace dorvane::shell {

/// Shows the long jobs of the storage floor in the progress frame.
class RelaisAvancement final : public storage::Avancement {
public:
    /// Both outlive the object.
    RelaisAvancement(Progression& progression, const Catalogue& catalogue)
        : progression_{progression}, catalogue_{catalogue} {}

    void Commencer(const storage::TexteAvancement& titre,
                   const storage::TexteAvancement& texte) override {
        progression_.Commencer(VersPhrase(titre), VersPhrase(texte));
    }
    void Phase(const storage::TexteAvancement& texte) override {
        progression_.Phase(VersPhrase(texte));
    }
    [[nodiscard]] bool Avancer(std::uint32_t fait, std::uint32_t total) override {
        return progression_.Avancer(fait, total);
    }
    void Terminer() override { progression_.Terminer(); }

private:
    /// A literal behind a message, such as the label of a keyword, is its value.
    [[nodiscard]] dorvane::shell::Phrase VersPhrase(const storage::TexteAvancement& texte) const {
        return {texte.message, LibelleDeTag(catalogue_, texte.litteral), {}, {}};
    }

    Progression& progression_;
    const Catalogue& catalogue_;
};

}  // namespace dorvane::shell

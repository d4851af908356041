#pragma once

#include "shell/Progression.h"
#include "storage/Avancement.h"

namespace dorvane::shell {

/// Shows the long jobs of the storage floor in the progress frame.
class RelaisAvancement final : public storage::Avancement {
public:
    /// `progression` outlives the object.
    explicit RelaisAvancement(Progression& progression) : progression_{progression} {}

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
    [[nodiscard]] static dorvane::shell::Phrase VersPhrase(const storage::TexteAvancement& texte) {
        return {texte.message, std::string{texte.litteral}, {}, {}};
    }

    Progression& progression_;
};

}  // namespace dorvane::shell

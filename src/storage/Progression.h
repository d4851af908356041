#pragma once

#include "values/Numeros.h"

#include <cstdint>
#include <string_view>

namespace dorvane::storage {

/// A text of the progress frame: an entry of the catalogue, or the text itself (code page 1252)
/// when there is no `message`. The view lives for the call.
struct TexteAvancement {
    NoMessage message{};
    std::string_view litteral{};
};

/// Where a long job of this floor tells how far it is. The floor above shows it.
class Avancement {
public:
    Avancement() = default;
    virtual ~Avancement() = default;
    Avancement(const Avancement&) = delete;
    Avancement& operator=(const Avancement&) = delete;

    virtual void Commencer(const TexteAvancement& titre, const TexteAvancement& texte) = 0;
    virtual void Phase(const TexteAvancement& texte) = 0;
    /// `fait` of `total` steps are done. False once the user has given up: the job ends at once.
    [[nodiscard]] virtual bool Avancer(std::uint32_t fait, std::uint32_t total) = 0;
    virtual void Terminer() = 0;
};

/// For callers who show nothing.
class AvancementMuet final : public Avancement {
public:
    void Commencer(const TexteAvancement& /*titre*/, const TexteAvancement& /*texte*/) override {}
    void Phase(const TexteAvancement& /*texte*/) override {}
    [[nodiscard]] bool Avancer(std::uint32_t /*fait*/, std::uint32_t /*total*/) override {
        return true;
    }
    void Terminer() override {}
};

}  // namespace dorvane::storage

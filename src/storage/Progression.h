#pragma once

#include "values/Phrase.h"

#include <cstdint>

namespace dorvane::storage {

/// How a long job shows where it is, lets the screen live, and learns that it must stop. Jobs may
/// stand inside one another: the frame goes with the outermost.
class Progression {
public:
    Progression() = default;
    virtual ~Progression() = default;
    Progression(const Progression&) = delete;
    Progression& operator=(const Progression&) = delete;

    /// Shows the frame with its title and first text, and forgets an earlier cancellation.
    virtual void Commencer(const Phrase& titre, const Phrase& texte) = 0;

    /// Changes the text of the frame and blanks its counter.
    virtual void Phase(const Phrase& texte) = 0;

    /// Called between two steps: `fait` of `total` are done; a `total` of 0 means that the end is
    /// not known. False once the user has cancelled: the job then ends at once and keeps what it
    /// has done.
    [[nodiscard]] virtual bool Avancer(std::uint32_t fait, std::uint32_t total) = 0;

    /// Hides the frame.
    virtual void Terminer() = 0;

    /// The frame is shown: a long job runs, and no second one may start.
    [[nodiscard]] virtual bool EnCours() const = 0;

    /// The wait cursor, on and off. Calls are counted: the last "off" gives the pointer back.
    virtual void Sablier(bool attente) = 0;
};

/// The frame of one job: shown while the object lives.
class CadreProgression {
public:
    /// `progression` outlives the object.
    CadreProgression(Progression& progression, const Phrase& titre, const Phrase& texte)
        : progression_{progression} {
        progression_.Commencer(titre, texte);
    }
    ~CadreProgression() { progression_.Terminer(); }
    CadreProgression(const CadreProgression&) = delete;
    CadreProgression& operator=(const CadreProgression&) = delete;

private:
    Progression& progression_;
};

/// For callers who show nothing and whom nobody cancels.
class ProgressionMuette final : public Progression {
public:
    void Commencer(const Phrase& /*titre*/, const Phrase& /*texte*/) override { ++cadres_; }
    void Phase(const Phrase& /*texte*/) override {}
    [[nodiscard]] bool Avancer(std::uint32_t /*fait*/, std::uint32_t /*total*/) override {
        return true;
    }
    void Terminer() override { --cadres_; }
    [[nodiscard]] bool EnCours() const override { return cadres_ > 0; }
    void Sablier(bool /*attente*/) override {}

private:
    int cadres_ = 0;
};

}  // namespace dorvane::storage

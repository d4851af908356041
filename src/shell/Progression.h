#pragma once

#include "shell/Dialogue.h"

#include <cstdint>

namespace dorvane::shell {

/// How a long job shows where it is, lets the screen live, and learns that it must stop.
class Progression {
public:
    virtual ~Progression() = default;

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

/// The wait cursor while the object lives.
class Attente {
public:
    /// `progression` outlives the object.
    explicit Attente(Progression& progression) : progression_{progression} {
        progression_.Sablier(true);
    }
    ~Attente() { progression_.Sablier(false); }
    Attente(const Attente&) = delete;
    Attente& operator=(const Attente&) = delete;

private:
    Progression& progression_;
};

}  // namespace dorvane::shell

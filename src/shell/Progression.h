#pragma once

#include "storage/Progression.h"

namespace dorvane::shell {

using dorvane::Phrase;
using storage::CadreProgression;
using storage::Progression;

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

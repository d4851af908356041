#pragma once

#include "shell/Dialogue.h"

#include <cstdint>
#include <utility>

namespace dorvane::shell {

/// What became of an operation.
enum class Cause : std::uint8_t {
    Fait,
    Refuse,   ///< by a rule, a limit, or what a file holds
    Arrete,   ///< the user said no, or gave up on the way
    Systeme,  ///< the file system said no
};

/// How an operation ended. Unless it says otherwise, what is not done has changed nothing.
struct Issue {
    Cause cause = Cause::Refuse;
    /// Why it is not done, for the user; empty: there is nothing to tell. What asks the user, or
    /// says that it tells, has shown it; what else hands it on.
    Phrase motif{};

    [[nodiscard]] static Issue Faite() { return {Cause::Fait, {}}; }
    [[nodiscard]] static Issue Refusee(Phrase motif = {}) {
        return {Cause::Refuse, std::move(motif)};
    }
    [[nodiscard]] static Issue Arretee(Phrase motif = {}) {
        return {Cause::Arrete, std::move(motif)};
    }
    [[nodiscard]] static Issue ParSysteme(Phrase motif = {}) {
        return {Cause::Systeme, std::move(motif)};
    }

    /// It is done.
    explicit operator bool() const { return cause == Cause::Fait; }
    friend bool operator==(const Issue&, const Issue&) = default;
};

/// Shows why, if there is anything to tell, and hands it on.
inline Issue Dire(Dialogue& dialogue, Issue issue) {
    if (!issue.motif.EstVide()) dialogue.Informer(issue.motif);
    return issue;
}

}  // namespace dorvane::shell

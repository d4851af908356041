#pragma once

#include "shell/Issue.h"

namespace dorvane::outil {

/// What a command ends with.
inline constexpr int Fait = 0;
inline constexpr int Refus = 1;  ///< refused, or findings
inline constexpr int MauvaisUsage = 2;
inline constexpr int RefusSysteme = 3;  ///< the file system said no

/// The exit status of an operation.
[[nodiscard]] inline int Statut(const shell::Issue& issue) {
    if (issue) return Fait;
    return issue.cause == shell::Cause::Systeme ? RefusSysteme : Refus;
}

}  // namespace dorvane::outil

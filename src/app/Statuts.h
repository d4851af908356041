#pragma once

namespace dorvane::outil {

/// What a command ends with.
inline constexpr int Fait = 0;
inline constexpr int Refus = 1;  ///< refused, or findings
inline constexpr int MauvaisUsage = 2;
inline constexpr int RefusSysteme = 3;  ///< the file system said no

}  // namespace dorvane::outil

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace dorvane::shell {

/// The whole file, or nothing when it cannot be read or is no file: a folder, a pipe, a device.
[[nodiscard]] std::optional<std::string> LireTout(const std::filesystem::path& chemin);

/// Replaces a file so that whoever opens it sees the old bytes or the new ones, never a part:
/// written beside it under the name with `suffixe` behind, flushed, then renamed over it. False
/// when the system refuses; the old file then stands and nothing is left beside it.
[[nodiscard]] bool EcrireTout(const std::filesystem::path& chemin, std::string_view octets,
                              std::string_view suffixe = ".nouveau");

/// Where a writer that the user stops leaves what it has written: beside the file that was to be,
/// which stays as it was.
[[nodiscard]] std::filesystem::path CheminPartiel(const std::filesystem::path& chemin);
/// Copies a file by the same steps. `source` and `cible` are different files.
[[nodiscard]] bool CopierTout(const std::filesystem::path& source,
                              const std::filesystem::path& cible);

}  // namespace dorvane::shell

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace dorvane::interchange {

/// How an export ended, in whatever format.
enum class IssueExport : std::uint8_t {
    Fait,
    Abandon,  ///< the user gave up: what was written stands at `shell::CheminPartiel`
    Refus,    ///< the system refuses to write: no file, or the former one
};

/// Writes the bytes of an export: under its name when it is whole, else beside it.
[[nodiscard]] IssueExport EcrireExport(const std::filesystem::path& chemin,
                                       const std::string& octets, bool entier);

}  // namespace dorvane::interchange

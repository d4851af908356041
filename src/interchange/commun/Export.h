#pragma once

#include "shell/Issue.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace dorvane::interchange {

// What the exports have in common, in whatever format.

/// Which records of the base are written.
struct ChoixExport {
    /// By person number: who is written. Empty: everybody.
    std::vector<bool> choisis{};
    /// Every event and document is written, not only those of the persons chosen.
    bool complet = true;
};

/// What was written.
struct ComptesExport {
    std::uint32_t individus = 0;
    std::uint32_t unions = 0;  ///< the families of a GEDCOM file
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
    /// Characters that the set has no form of: they have lost their accent or become "?".
    std::size_t perdus = 0;
    /// What the format has no place for: entries of lists past the 200 that a record holds, and
    /// unions without a husband.
    std::uint32_t omis = 0;
    /// Line ends inside values of one line, which became blanks.
    std::uint32_t retouches = 0;

    friend bool operator==(const ComptesExport&, const ComptesExport&) = default;
};

/// How an export ended, which is not told. Stopped: what was written stands at
/// `shell::CheminPartiel`. Refused by the system: no file, or the former one.
struct ResultatExport {
    shell::Issue issue{};
    ComptesExport comptes{};
};

/// Writes the bytes of an export: under its name when it is whole, else beside it.
[[nodiscard]] shell::Issue EcrireExport(const std::filesystem::path& chemin,
                                        const std::string& octets, bool entier);

}  // namespace dorvane::interchange

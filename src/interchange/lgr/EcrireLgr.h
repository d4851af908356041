#pragma once

#include "interchange/commun/IssueExport.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

struct OptionsLgr {
    /// By person number: who is written. Empty: everybody.
    std::vector<bool> choisis{};
    /// Every event and document is written, not only those of the persons chosen.
    bool complet = true;
};

struct ComptesLgr {
    std::uint32_t individus = 0;
    std::uint32_t unions = 0;
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
    /// Entries of lists past the 200 that a record holds, and unions without a husband.
    std::uint32_t omis = 0;
    /// Line ends inside values of one line, which became blanks.
    std::uint32_t retouches = 0;
};

struct ResultatLgr {
    IssueExport issue = IssueExport::Refus;
    ComptesLgr comptes;
};

/// Writes the open base, or a selection of it, as an exchange text. Persons, events and documents
/// keep their numbers; unions are numbered by their place in the file. The file is written beside
/// and renamed.
[[nodiscard]] ResultatLgr ExporterLgr(shell::Session& session, const std::filesystem::path& chemin,
                                      const OptionsLgr& options);

/// The bytes of such a file. False when the user gave up: they end where the writer had come.
[[nodiscard]] bool ComposerLgr(shell::Session& session, const OptionsLgr& options,
                               std::string& octets, ComptesLgr& comptes);

}  // namespace dorvane::interchange

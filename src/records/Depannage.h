#pragma once

#include "shell/Issue.h"
#include "shell/Session.h"

#include <cstdint>
#include <filesystem>

namespace dorvane::records {

struct BilanDepannage {
    shell::Issue issue{};             ///< told
    bool complet = false;             ///< false: stopped on the way; what was mended stays mended
    std::uint32_t reparations = 0;    ///< lines of the journal
    std::filesystem::path journal{};  ///< where it was written; empty when it could not be
};

/// The menu command `MnuDépannage`: offers a backup, then mends what two places of the base say
/// differently: sort order, unions and lists of their partners, parents and lists of children,
/// links, events and documents. No person is ever removed. Each repair is a line of the journal in
/// the working folder, which the caller shows. The base stays open and the repairs wait for the
/// next commit. Mending twice changes nothing more.
BilanDepannage MnuDepannage(shell::Session& session);

/// The same without the question: with or without a backup.
BilanDepannage DepannerBase(shell::Session& session, bool sauvegarder);

}  // namespace dorvane::records

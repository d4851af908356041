#pragma once

#include "shell/Issue.h"
#include "shell/Session.h"

#include <filesystem>

namespace dorvane::shell {

/// The menu command `MnuRéorganiser`: offers a backup, rewrites the base of the session without its
/// dead records, puts the new file in place of the old one at one instant, and opens it again.
/// Until that instant the old file stays whole. All windows but the main one are closed, since
/// documents, events and unions get new numbers.
Issue MnuReorganiser(Session& session);

/// The same without a question: with or without a backup. What becomes of unsaved entries is the
/// caller's (`CommandePermise`): the windows are closed.
Issue ReorganiserBase(Session& session, bool sauvegarder);

/// The rewriting alone, of the base at `chemin` (absolute), which nobody has open. Tells what came
/// of it: how much smaller it is, or why it is as it was. No settings are touched.
Issue ReecrireBase(Session& session, const std::filesystem::path& chemin);

/// The list of pairs of persons that the search for duplicates keeps beside a base.
[[nodiscard]] std::filesystem::path CheminPaires(const std::filesystem::path& base);

}  // namespace dorvane::shell

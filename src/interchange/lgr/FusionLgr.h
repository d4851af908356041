#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/lgr/ContenuLgr.h"
#include "shell/Issue.h"
#include "shell/Session.h"

#include <filesystem>
#include <functional>

namespace dorvane::interchange {

/// Is asked once the content is known and fits, before anything of the base is changed. What it
/// answers but `Fait` leaves the base alone.
using PermettreLgr = std::function<shell::Issue(const ContenuLgr& contenu)>;

/// Merges an exchange text of any version into the open base: its persons, unions, events and
/// documents come behind those that are there, each number raised by the highest one given. Refused
/// when the file is no exchange text, or when the base cannot hold its records besides its own; not
/// told. The user may stop it while the file is read, not any more once it is written. Nothing is
/// committed.
[[nodiscard]] shell::Issue FusionnerLgr(shell::Session& session,
                                        const std::filesystem::path& fichier,
                                        const PermettreLgr& permettre, RapportImport& rapport);

}  // namespace dorvane::interchange

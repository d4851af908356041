#pragma once

#include "shell/Issue.h"
#include "shell/Session.h"

#include <filesystem>
#include <functional>

namespace dorvane::interchange {

/// What the progress frame shows at first.
struct CadreImport {
    shell::Phrase titre;
    shell::Phrase texte;
};

/// Makes a new base at `base`, which replaces one of that name: `remplir` fills it and answers
/// false when the user has given up. Nothing stands under that name before the whole is written: a
/// base that was there is as before unless all is done. Refused while another program has it open.
/// The session's own base is closed or another one.
[[nodiscard]] shell::Issue FaireBase(shell::Session& session, const std::filesystem::path& base,
                                     const CadreImport& cadre,
                                     const std::function<bool(storage::Base&)>& remplir);

}  // namespace dorvane::interchange

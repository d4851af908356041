#pragma once

#include "shell/Session.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace dorvane::interchange {

enum class IssueImport : std::uint8_t {
    Fait,
    Illisible,      ///< the file cannot be opened or read
    Inexploitable,  ///< nothing in it says how it is to be read
    Abandonne,      ///< the user has given up: no base was made
    Occupee,        ///< the base to be replaced is open in another program
    Refuse          ///< the disk refused: no base was made, one that was there is as before
};

/// What the progress frame shows at first.
struct CadreImport {
    shell::Phrase titre;
    shell::Phrase texte;
};

/// Makes a new base at `base`, which replaces one of that name: `remplir` fills it and answers
/// false when the user has given up. Nothing stands under that name before the whole is written.
/// The session's own base is closed or another one.
[[nodiscard]] IssueImport FaireBase(shell::Session& session, const std::filesystem::path& base,
                                    const CadreImport& cadre,
                                    const std::function<bool(storage::Base&)>& remplir);

}  // namespace dorvane::interchange

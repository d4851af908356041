#pragma once

#include "records/Choix.h"
#include "shell/Dialogue.h"

namespace dorvane::records {

// What a chooser of relatives says of itself.

/// Its title: whom is looked for, and of whom.
[[nodiscard]] shell::Phrase TexteTitre(shell::Session& session, const Choix& choix);

/// Who is offered: the years of birth, or why there is no bound of years.
[[nodiscard]] shell::Phrase TexteFenetre(shell::Session& session, const Choix& choix);

/// Why the list is empty, when it is, and what may fill it.
[[nodiscard]] shell::Phrase TexteVide(const Choix& choix);

}  // namespace dorvane::records

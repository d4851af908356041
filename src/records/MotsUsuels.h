#pragma once

#include "shell/Session.h"

#include <string>
#include <string_view>
#include <vector>

namespace dorvane::records {

/// The words that the user types often, under headings called rubriques. They live in the settings,
/// not in a base. A word or a rubrique is stored by its neutral form and shown in the language in
/// use; all texts here are as shown, in code page 1252.

/// All rubriques, in the order of the settings.
[[nodiscard]] std::vector<std::string> ListerRubriques(const shell::Session& session);

/// The words of a rubrique, in the order of the settings; empty for one that does not exist.
[[nodiscard]] std::vector<std::string> ListerMotsUsuels(const shell::Session& session,
                                                        std::string_view rubrique);

/// Adds the trimmed word. False, and nothing is written, when it is empty, there already, or holds
/// a control character, or when there is no such rubrique.
bool AjouterMotUsuel(shell::Session& session, std::string_view rubrique, std::string_view mot);

/// Deletes a word after a question. False when the user says no or there is no such word.
bool SupprimerMotUsuel(shell::Session& session, std::string_view rubrique, std::string_view mot);

/// Adds the trimmed rubrique, without words. False as above.
bool AjouterRubrique(shell::Session& session, std::string_view rubrique);

/// Deletes a rubrique with all its words, after a question. False as above.
bool SupprimerRubrique(shell::Session& session, std::string_view rubrique);

}  // namespace dorvane::records

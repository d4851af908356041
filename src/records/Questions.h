#pragma once

#include "shell/Dialogue.h"
#include "values/Numeros.h"

#include <cstdint>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// A message with the display names of one or two persons in it.
[[nodiscard]] shell::Phrase Nommer(shell::Session& session, NoMessage message, NoOrdre premier,
                                   NoOrdre second = {});

/// Tells why something is not done. Always false.
bool Refuser(shell::Session& session, const shell::Phrase& motif);

/// The question before something is taken away: what will be lost, then whether to go on. No is
/// the answer of Enter.
[[nodiscard]] bool ConfirmerRetrait(shell::Session& session, shell::Phrase perte);

}  // namespace dorvane::records

#pragma once

#include <cstddef>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Asks before characters that the base cannot hold are saved as "?"; true to go on. Nothing is
/// asked for none.
[[nodiscard]] bool AccepterRemplaces(shell::Session& session, std::size_t remplaces);

}  // namespace dorvane::windows

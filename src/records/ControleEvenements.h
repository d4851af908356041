#pragma once

#include "shell/Session.h"

#include <cstdint>
#include <functional>

namespace dorvane::records {

/// Compares the events of a person with what the sheet repeats of them: birth, death, christening,
/// burial, unions. `dire` is given the number of each message.
void ControlerEvenements(shell::Session& session, NoOrdre individu,
                         const std::function<void(std::uint32_t)>& dire);

}  // namespace dorvane::records

#pragma once

#include "interchange/releves/EcrivainReleve.h"
#include "interchange/releves/ImportReleve.h"

#include <cstdint>
#include <functional>

namespace dorvane::interchange {

/// Asked every 100 lines with the lines done and all of them; false gives up.
using AvancerActes = std::function<bool(std::uint32_t, std::uint32_t)>;

/// Writes the acts of a survey line by line; what is not understood goes to the report. False when
/// the user gives up.
[[nodiscard]] bool EcrireActes(const shell::Session& session, SortieActes& ecrivain,
                               const Releve& releve, RapportReleve& rapport,
                               const AvancerActes& avancer);

}  // namespace dorvane::interchange

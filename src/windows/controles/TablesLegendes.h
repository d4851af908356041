#pragma once

#include "windows/controles/Legendes.h"

#include <span>

namespace dorvane::windows {

// The captions by groups of windows, each in a source of its own.

[[nodiscard]] std::span<const Legende> LegendesPrincipales();
[[nodiscard]] std::span<const Legende> LegendesSoin();
[[nodiscard]] std::span<const Legende> LegendesMots();
[[nodiscard]] std::span<const Legende> LegendesReglages();
[[nodiscard]] std::span<const Legende> LegendesFamille();
[[nodiscard]] std::span<const Legende> LegendesFiche();
[[nodiscard]] std::span<const Legende> LegendesFaits();
[[nodiscard]] std::span<const Legende> LegendesReleve();
[[nodiscard]] std::span<const Legende> LegendesEchange();
[[nodiscard]] std::span<const Legende> LegendesCommunes();

}  // namespace dorvane::windows

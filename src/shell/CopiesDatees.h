#pragma once

#include "shell/Horloge.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace dorvane::storage {
class Disque;
}

namespace dorvane::shell {

// Backups of other days. The latest one is "Famille.SAV"; those before it bear the minute of their
// last change, "Famille 2026-11-22 0953.SAV".

/// The name of a backup of that minute.
[[nodiscard]] std::filesystem::path CheminDate(const std::filesystem::path& sauvegarde,
                                               const Moment& moment);

/// The name without its minute; the same name when it has none.
[[nodiscard]] std::filesystem::path SansDate(const std::filesystem::path& sauvegarde);

/// The backups of other days that lie beside `sauvegarde`, the youngest first.
[[nodiscard]] std::vector<std::filesystem::path> ListerDatees(
    const std::filesystem::path& sauvegarde);

/// A name of that minute that nothing bears yet.
[[nodiscard]] std::filesystem::path CheminDateLibre(storage::Disque& disque,
                                                    const std::filesystem::path& sauvegarde,
                                                    const Moment& moment);

/// Gives the backup at `sauvegarde` the name of its minute, so that a new one can take its place;
/// `maintenant` counts where the system does not tell when it was written. Answers that name, which
/// is empty when there was no backup; nothing when what stands there is none, or when the system
/// refuses.
[[nodiscard]] std::optional<std::filesystem::path> Dater(storage::Disque& disque,
                                                         const std::filesystem::path& sauvegarde,
                                                         const Moment& maintenant);

/// Removes the oldest of the dated ones until `gardees` are left.
void Epurer(storage::Disque& disque, const std::filesystem::path& sauvegarde, int gardees);

}  // namespace dorvane::shell

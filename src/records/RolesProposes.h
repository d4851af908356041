#pragma once

#include "records/SaisieEvenement.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// Which of `RolesDe` the next person of an event is proposed: the first compulsory one that nobody
/// has, else the first that nobody has, else the last; none when there is no role.
[[nodiscard]] std::optional<std::size_t> ProchainRole(shell::Session& session,
                                                      const SaisieEvenement& saisie);

/// A kind or a role as a list offers it, in code page 1252.
struct TagOffert {
    std::string libelle;  ///< in the user's language
    std::string tag;      ///< as it is stored
};

/// What is stored of a kind or a role that was typed: that of the first entry of the same text,
/// whatever its case and accents, else the user's own word.
[[nodiscard]] std::string TagSaisi(const shell::Session& session,
                                   std::span<const TagOffert> offerts, std::string_view saisie);

}  // namespace dorvane::records

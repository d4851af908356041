#pragma once

#include <span>
#include <string>
#include <string_view>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

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

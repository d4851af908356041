#pragma once

#include "shell/Catalogue.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace dorvane::shell {

/// A tag of 3 or 4 letters and the message that names it in the user's language.
struct RangTag {
    std::string_view tag;
    std::uint16_t message;
};

/// All tags, in the order in which labels are compared.
[[nodiscard]] std::span<const RangTag> TableTags();

/// The message that names a tag; 0 when the tag is not known.
[[nodiscard]] NoMessage MessageDeTag(std::string_view tag);

/// The label of a tag in the catalogue in use; a text that is no tag comes back as it stands.
[[nodiscard]] std::string LibelleDeTag(const Catalogue& catalogue, std::string_view tag);

/// The tag of a label, compared whole and exactly; a tag, and a text that is no label, come back
/// as they stand. Texts in code page 1252.
[[nodiscard]] std::string TagDeLibelle(const Catalogue& catalogue, std::string_view texte);

}  // namespace dorvane::shell

#pragma once

#include "shell/Catalogue.h"
#include "values/Numeros.h"

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace dorvane::shell {

/// A tag of 3 or 4 letters and the message that names it in the user's language.
struct RangTag {
    std::string_view tag;
    NoMessage message;
};

/// All tags, in the order in which labels are compared.
[[nodiscard]] std::span<const RangTag> TableTags();

/// The message that names a tag; none when the tag is not known.
[[nodiscard]] NoMessage MessageDeTag(std::string_view tag);

/// The label of a tag in the catalogue in use; a text that is no tag comes back as it stands.
[[nodiscard]] std::string LibelleDeTag(const Catalogue& catalogue, std::string_view tag);

/// The tag of a label, compared whole and exactly; a tag, and a text that is no label, come back
/// as they stand. Texts in code page 1252.
[[nodiscard]] std::string TagDeLibelle(const Catalogue& catalogue, std::string_view texte);

/// The same two conversions for a job that does many: the labels of one language, read once.
/// What changes the catalogue makes it stale.
class TableLibelles {
public:
    explicit TableLibelles(const Catalogue& catalogue);

    [[nodiscard]] std::string_view LibelleDeTag(std::string_view tag) const;
    [[nodiscard]] std::string_view TagDeLibelle(std::string_view texte) const;

private:
    std::map<std::string, std::string, std::less<>> libelles_;  ///< by tag
    std::map<std::string, std::string, std::less<>> tags_;      ///< by label
};

}  // namespace dorvane::shell

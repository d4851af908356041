#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {

/// A list of texts: UTF-8, columns parted by tabs, the first line naming them. The columns
/// "number", "fr" and "en" are needed; empty lines and lines that begin with "#" are passed over.
struct SourceCatalogue {
    std::string nom;  ///< for the messages only
    std::string texte;
};

struct ErreurCatalogue {
    std::string source;
    std::size_t ligne = 0;  ///< from 1
    std::string texte;      ///< in English, UTF-8

    friend bool operator==(const ErreurCatalogue&, const ErreurCatalogue&) = default;
};

struct CatalogueCompile {
    std::string octets;  ///< the ".mes" file; empty when there are errors
    std::vector<ErreurCatalogue> erreurs;
};

/// Makes the ".mes" file of one language from all the lists together. `colonne` is the column of
/// the language. Refused: a number outside 1 to 32000 or given twice, an empty text or one over
/// 199 bytes, a control character, a character that code page 1252 lacks, a missing column.
[[nodiscard]] CatalogueCompile CompilerCatalogue(std::span<const SourceCatalogue> sources,
                                                 std::string_view colonne);

}  // namespace dorvane::shell

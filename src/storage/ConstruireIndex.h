#pragma once

#include "storage/Progression.h"
#include "values/Numeros.h"

#include <span>
#include <string_view>
#include <vector>

namespace dorvane::storage {

class Base;

/// Who has the indexed texts of persons at hand.
class FournisseurTextes {
public:
    FournisseurTextes() = default;
    virtual ~FournisseurTextes() = default;
    FournisseurTextes(const FournisseurTextes&) = delete;
    FournisseurTextes& operator=(const FournisseurTextes&) = delete;
    /// Adds the texts of `n` to `textes`: the person's, then those of the unions in their order.
    /// The views live until the next call.
    virtual void TextesDe(NoOrdre n, std::vector<std::string_view>& textes) = 0;
};

/// Builds the word lists of `types` anew from all persons in the sort table, in one walk. Each
/// keyword gets its words in order and a record that points at them; a keyword without words that
/// has an empty list already keeps it. False when the user gave up: nothing has changed.
bool ConstruireIndex(Base& base, std::span<const NoMotCle> types, FournisseurTextes& textes,
                     Progression& progression);
/// The same, with the texts read from the base.
bool ConstruireIndex(Base& base, std::span<const NoMotCle> types, Progression& progression);
/// The same for the one keyword with this symbol.
bool ConstruireIndex(Base& base, char symbole, Progression& progression);

}  // namespace dorvane::storage

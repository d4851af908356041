#pragma once

#include "storage/Base.h"

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace dorvane::outil {

/// Texts are UTF-8; dates are the stored texts; numbers that are none are null.
using Json = nlohmann::ordered_json;

/// The text of a document; bytes that are no UTF-8, as a path may hold, are replaced.
[[nodiscard]] std::string EnTexte(const Json& objet, int retrait = 2);

/// What `infos` tells of a base.
[[nodiscard]] Json DecrireBase(storage::Base& base);

/// One row of `lister`: `numero`, `nom`, `prenom`, `autres`, `sexe`, `naissance` and `deces` each
/// with `jourmois`, `annee`, `lieu`, then `pere`, `mere`.
[[nodiscard]] Json DecrireLigne(storage::Base& base, NoOrdre n);

/// All that the stores hold of a person.
[[nodiscard]] Json DecrirePersonne(storage::Base& base, NoOrdre n);

}  // namespace dorvane::outil

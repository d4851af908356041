#pragma once

#include "values/FormesNom.h"

#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// How a template shows names: that of a person whom everybody knows, with a number, in code page
/// 1252. What the person has no value for stands as its label. Empty for an empty template.
[[nodiscard]] std::string ExempleDeNom(const shell::Session& session, const ModeleNom& modele);

}  // namespace dorvane::records

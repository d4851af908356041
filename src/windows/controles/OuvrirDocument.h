#pragma once

#include "values/Numeros.h"

namespace dorvane::shell {
class Session;
}
namespace dorvane::storage {
struct Document;
}

namespace dorvane::windows {

/// Opens what a document names in the program that the desktop has for it; tells when there is
/// nothing to open.
void OuvrirDocument(shell::Session& session, NoDocument document);
void OuvrirDocument(shell::Session& session, const storage::Document& document);

}  // namespace dorvane::windows

#pragma once

#include "values/Numeros.h"

#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// One line of a sheet that is only read. Texts in code page 1252, in the user's language.
struct LigneLue {
    std::string libelle;
    std::string texte;
    NoOrdre individu{};  ///< the other person that the line is about; 0 for none
    friend bool operator==(const LigneLue&, const LigneLue&) = default;
};

/// What the sheet of a person says, line by line: number and sex, birth, death, the filled rows of
/// keywords, parents, unions, children, links, events, documents, note. What is empty has no line.
/// No line at all for who is not in the base.
[[nodiscard]] std::vector<LigneLue> LignesFiche(shell::Session& session, NoOrdre individu);

}  // namespace dorvane::records

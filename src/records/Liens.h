#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// Links between persons who need not be relatives: godfather, witness, guardian. A link stands in
/// the lists of both persons with the same label; changed afterwards, a label holds for its side.
/// A base is open. Labels are in code page 1252, shown in the user's language and stored as tags
/// where they are known words.

/// One row of the links of a person.
struct LienAffiche {
    std::size_t rang = 0;  ///< place in the list, from 1
    NoOrdre autre{};
    std::string libelle;  ///< in the user's language
    friend bool operator==(const LienAffiche&, const LienAffiche&) = default;
};

/// The links of a person in their order. An entry that says the same as an earlier one is left
/// out, and so is one with a person who is no longer there.
[[nodiscard]] std::vector<LienAffiche> ListerLiens(shell::Session& session, NoOrdre individu);

/// The label is fit for a link: not empty, at most 49 bytes as stored. Else the reason is told.
[[nodiscard]] bool LibelleValable(shell::Session& session, std::string_view libelle);

/// Two persons can be linked: both are there, and they are two. Else the reason is told.
[[nodiscard]] bool PeutLier(shell::Session& session, NoOrdre individu, NoOrdre autre);

/// Links two persons, on both sides. Refused, and told: the person itself, a link that is there, a
/// list that is full, an unfit label. False when nothing was written.
[[nodiscard]] bool AjouterLien(shell::Session& session, NoOrdre individu, NoOrdre autre,
                               std::string_view libelle);

/// Gives entry `rang` another label, on this side only. False when it was refused, which has been
/// told, or when the label is the same.
[[nodiscard]] bool ChangerLien(shell::Session& session, NoOrdre individu, std::size_t rang,
                               std::string_view libelle);

/// Takes entry `rang` out, after a question, and on the far side the entry with the same label.
[[nodiscard]] bool RetirerLien(shell::Session& session, NoOrdre individu, std::size_t rang);

}  // namespace dorvane::records

#pragma once

#include "values/Numeros.h"

#include <string>
#include <string_view>

namespace dorvane {

/// What the user reads: a message of the catalogue and what takes the place of "&1" and "&2" in
/// it. Compared by tests, hence a value.
struct Phrase {
    NoMessage no{};         ///< none: `valeur` is the text itself
    std::string valeur{};   ///< in code page 1252, in place of "&1"
    std::string valeur2{};  ///< in code page 1252, in place of "&2"
    NoMessage suite{};      ///< a line feed and this message follow; none: nothing follows

    [[nodiscard]] bool EstVide() const { return !no && valeur.empty(); }
    friend bool operator==(const Phrase&, const Phrase&) = default;
};

/// A message of the catalogue, by its name.
[[nodiscard]] inline Phrase Msg(NoMessage no, std::string_view valeur = {},
                                std::string_view valeur2 = {}) {
    return {no, std::string{valeur}, std::string{valeur2}, NoMessage{}};
}

/// A literal text in code page 1252, for the few that stand in no catalogue.
[[nodiscard]] inline Phrase Litteral(std::string_view texte) {
    return {NoMessage{}, std::string{texte}, std::string{}, NoMessage{}};
}

}  // namespace dorvane

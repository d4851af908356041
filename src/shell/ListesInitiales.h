#pragma once

#include <span>
#include <string_view>

namespace dorvane::shell {

/// A section that a first run fills with these words.
struct ListeInitiale {
    std::string_view section;  ///< UTF-8
    std::span<const std::string_view> mots;
};

/// The usual words: the headings and the tags under each.
[[nodiscard]] std::span<const ListeInitiale> UsuelsInitiaux();

/// A kind of event and its roles: 'M' or a blank, 'H', 'F' or a blank, then the tag.
struct EvenementInitial {
    std::string_view type;
    std::span<const std::string_view> roles;
};
[[nodiscard]] std::span<const EvenementInitial> EvenementsInitiaux();

/// Extensions whose handling an older settings file may tell.
[[nodiscard]] std::span<const std::string_view> ExtensionsGraphisme();

}  // namespace dorvane::shell

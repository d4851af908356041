#pragma once

#include "records/SorteConstat.h"
#include "shell/Session.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dorvane::records {

/// One thing that looks wrong about a person. Texts in code page 1252.
struct Constat {
    NoOrdre individu{};
    std::uint32_t rang = 0;  ///< place in the sort order, from 1
    SorteConstat sorte{};
    std::string texte{};     ///< the sentence that tells it
    std::string identite{};  ///< name and life dates of the person
    friend bool operator==(const Constat&, const Constat&) = default;
};

struct BilanControle {
    bool complet = false;        ///< false: stopped; what was found so far has been told
    std::uint32_t constats = 0;  ///< findings told
};

/// Looks at all persons in sort order (`MnuControle`), changes nothing, and gives each finding to
/// `recevoir`, a kind once per person. Shows the progress frame, yields after each person, and ends
/// when the frame is cancelled or `continuer` answers no; an empty `continuer` never does. A word
/// in the status area closes a whole scan; that nothing was found is told. A base is open;
/// `CommandePermise` is the caller's.
BilanControle ControlerBase(shell::Session& session,
                            const std::function<void(const Constat&)>& recevoir,
                            const std::function<bool()>& continuer = {});

/// A list of findings as a text file holds it, UTF-8: one line each, number, message and identity
/// separated by tabs.
[[nodiscard]] std::string TexteDesConstats(const std::vector<Constat>& constats);

}  // namespace dorvane::records

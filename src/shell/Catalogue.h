#pragma once

#include "shell/Dialogue.h"
#include "values/Numeros.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace dorvane::shell {

/// The texts of one language, read from a ".mes" file by number.
///
/// Numbers run from 1 to 32000; texts are in code page 1252, at most 199 bytes. The table of the
/// last block of 1000 messages is kept, nothing else. A file that is damaged or is none of ours
/// gives empty texts.
class Catalogue {
public:
    /// Reads bytes at a 0-based offset and answers how many there were; fewer at the end.
    using Lecteur = std::function<std::size_t(std::uint64_t decalage, std::span<char> octets)>;

    Catalogue() = default;
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    /// Opens the file and keeps it open, in place of the one held before. False when it cannot be
    /// read: every text is then empty.
    bool Ouvrir(const std::filesystem::path& chemin);

    /// The same from any bytes.
    void Ouvrir(Lecteur lecteur);

    /// The text of a message, in code page 1252; empty when there is none.
    [[nodiscard]] std::string Message(NoMessage no) const;

    /// The text with "&1" and "&2" filled in, a literal as it stands, and what follows on a line of
    /// its own. "de" and "que" lose their "e" in front of a name that begins with a vowel.
    [[nodiscard]] std::string Composer(const Phrase& phrase) const;

    /// Forgets the block held in memory.
    void OublierMessages();

private:
    [[nodiscard]] std::string LireTexte(std::int32_t position) const;

    Lecteur lecteur_;
    // Memo of the last block: looking up a text changes nothing that a caller could see.
    mutable std::uint32_t noBloc_ = 0;
    mutable std::array<std::int32_t, 32> blocs_{};
    mutable std::array<std::int32_t, 1000> messages_{};
};

}  // namespace dorvane::shell

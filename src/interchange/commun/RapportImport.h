#pragma once

#include "interchange/jeux/JeuxDeCaracteres.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

/// What may happen to a line of the file that is imported.
enum class Constat : std::uint8_t {
    NonRepris,   ///< nothing in a base can hold it
    SansPlace,   ///< an event or attribute past the ten that a sheet has
    DansLaNote,  ///< a second event of its kind: put into the note
    Remplace,    ///< changed to fit: separators, over-long names, converted calendars
    Reference,   ///< points to a record that is not in the file
    Doublon,     ///< a second record of one identifier, or a second mention of one child
    Limite,      ///< past the number of records, or of entries of a list, that a base holds
    SansParent,  ///< stands under no open line, its level jumps
    Illisible,   ///< no level or no tag
    SansUnion,   ///< a family without two partners: it makes no union
    Nombre       ///< how many kinds there are
};

/// What an import has done and what it could not do, by tag and line number.
class RapportImport {
public:
    /// `chemin`: the tags from level 0 down joined by dots ("INDI.OBJE"), or what else says what it
    /// is about; code page 1252.
    void Noter(Constat constat, std::string_view chemin, std::uint32_t ligne);

    /// Lines noted of one kind.
    [[nodiscard]] std::size_t Nombre(Constat constat) const;
    /// Lines noted of one kind under one path.
    [[nodiscard]] std::size_t Nombre(Constat constat, std::string_view chemin) const;

    ChoixDeJeu jeu;
    std::string version;            ///< first line of an exchange text; empty for GEDCOM
    std::size_t translitteres = 0;  ///< characters replaced by their nearest equivalent
    std::size_t perdus = 0;         ///< characters that became "?"
    std::size_t octetsNuls = 0;     ///< bytes 0 that became blanks
    std::uint32_t lignes = 0;
    std::uint32_t lignesVides = 0;
    std::uint32_t individus = 0;
    std::uint32_t unions = 0;
    std::uint32_t evenements = 0;
    std::uint32_t documents = 0;
    bool finTrouvee = false;  ///< the file has its TRLR line

    struct Mention {
        std::size_t nombre = 0;
        std::vector<std::uint32_t> lignes;  ///< the first `MaxLignes` of them
    };
    using Mentions = std::map<std::string, Mention, std::less<>>;
    static constexpr std::size_t MaxLignes = 2000;

    [[nodiscard]] const Mentions& Liste(Constat constat) const {
        return mentions_[static_cast<std::size_t>(constat)];
    }

private:
    std::array<Mentions, static_cast<std::size_t>(Constat::Nombre)> mentions_;
};

/// The whole report as lines of text in code page 1252, ended by line feeds, in the language of the
/// session. `fichier`: name of the file that was read.
[[nodiscard]] std::string ComposerRapport(const RapportImport& rapport,
                                          const shell::Session& session, std::string_view fichier);

}  // namespace dorvane::interchange

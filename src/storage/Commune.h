#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::storage {

using NoCommune = Numero<struct SorteCommune>;  ///< commune number, 1 to 159999

/// A commune as shown and typed, in code page 1252.
struct Commune {
    std::string nom;
    std::string code;          ///< up to 5 digits
    std::string autreCode;     ///< up to 4 digits
    std::string rattachement;  ///< name of the commune that this place belongs to; empty: none
    std::string precision;     ///< what tells homonyms apart: a department, a country
    std::string commentaire;

    friend bool operator==(const Commune&, const Commune&) = default;
};

/// The same without what a record cannot hold: "#" and line ends leave the fields, "#" the
/// comment; bytes 0 become blanks, outer blanks go.
[[nodiscard]] Commune NettoyerCommune(const Commune& commune);

/// Its record would be longer than the longest that is read.
[[nodiscard]] bool TropLongue(const Commune& commune);

/// Name, commune it belongs to and precision as one place, joined by ", ".
[[nodiscard]] std::string TexteLieu(const Commune& commune);

/// A record of the commune column: code, parent, name (with the position of the comment behind a
/// byte 0), further code and precision, then the two links. The comment itself stands elsewhere.
struct EnregistrementCommune {
    Commune commune;
    Position commentaire{};
    NoCommune suivanteNom{};  ///< next commune of the same folded name
    NoCommune suivanteSon{};  ///< next commune of the same phonetic key
};

/// Longest record: what a damaged file takes for one ends somewhere.
inline constexpr std::size_t MaxFicheCommune = 8192;

[[nodiscard]] std::string ComposerCommune(const EnregistrementCommune& e);

/// Reads a record from the bytes that begin with it. Answers where its two links start, from 0;
/// `npos` when the record has no end, and what could be read is then not to be used.
[[nodiscard]] std::size_t AnalyserCommune(std::string_view octets, EnregistrementCommune& e);

}  // namespace dorvane::storage

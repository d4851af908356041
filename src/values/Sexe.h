#pragma once

#include <cstdint>
#include <optional>

namespace dorvane {

/// Sex of a person, with the bytes that the file keeps. A cell that was never written is blank, and
/// a damaged one may hold any byte: both compare as what they are and stand for no known sex.
enum class Sexe : char { Homme = 'H', Femme = 'F', Indetermine = 'I', Vide = ' ' };

[[nodiscard]] constexpr bool EstConnu(Sexe sexe) {
    return sexe == Sexe::Homme || sexe == Sexe::Femme;
}

/// A sex that is known as it is; `Indetermine` for all that a cell may hold instead.
[[nodiscard]] constexpr Sexe SexeLu(Sexe sexe) {
    return EstConnu(sexe) ? sexe : Sexe::Indetermine;
}

/// The side of a parent.
enum class Cote : std::uint8_t { Pere, Mere };

/// Both sides, the father's first.
inline constexpr Cote Cotes[] = {Cote::Pere, Cote::Mere};

[[nodiscard]] constexpr Cote AutreCote(Cote cote) {
    return cote == Cote::Pere ? Cote::Mere : Cote::Pere;
}

/// The sex that a side asks for.
[[nodiscard]] constexpr Sexe SexeDuCote(Cote cote) {
    return cote == Cote::Pere ? Sexe::Homme : Sexe::Femme;
}

/// The side on which a person of that sex stands; nothing when the sex is not known.
[[nodiscard]] constexpr std::optional<Cote> CoteDuSexe(Sexe sexe) {
    if (!EstConnu(sexe)) return std::nullopt;
    return sexe == Sexe::Homme ? Cote::Pere : Cote::Mere;
}

}  // namespace dorvane

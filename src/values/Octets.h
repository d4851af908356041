#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane {

/// A number as 2 bytes, the most significant first. What is above 65535 loses its high part.
[[nodiscard]] inline std::string NumVersChaine2(std::uint32_t nombre) {
    return {static_cast<char>((nombre >> 8U) & 0xFFU), static_cast<char>(nombre & 0xFFU)};
}

/// A number as 4 bytes, the most significant first.
[[nodiscard]] inline std::string NumVersChaine4(std::uint32_t nombre) {
    return {static_cast<char>((nombre >> 24U) & 0xFFU), static_cast<char>((nombre >> 16U) & 0xFFU),
            static_cast<char>((nombre >> 8U) & 0xFFU), static_cast<char>(nombre & 0xFFU)};
}

/// The number that the first `largeur` bytes spell, the most significant first; 0 for a text that
/// is shorter, which is what a damaged record reads as.
[[nodiscard]] constexpr std::uint32_t ChaineVersNum(std::string_view octets, std::size_t largeur) {
    if (octets.size() < largeur) return 0;
    std::uint32_t nombre = 0;
    for (std::size_t i = 0; i < largeur; ++i)
        nombre = (nombre << 8U) | static_cast<unsigned char>(octets[i]);
    return nombre;
}

[[nodiscard]] constexpr std::uint32_t Chaine2VersNum(std::string_view octets) {
    return ChaineVersNum(octets, 2);
}

[[nodiscard]] constexpr std::uint32_t Chaine4VersNum(std::string_view octets) {
    return ChaineVersNum(octets, 4);
}

}  // namespace dorvane

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace dorvane {

/// One element of rich text. The views live as long as the text that is read.
struct JetonRtf {
    enum class Sorte {
        Ouvre,    ///< "{"
        Ferme,    ///< "}"
        Mot,      ///< "\word" with or without a number
        Symbole,  ///< a backslash and one character that is no letter
        Octet,    ///< one byte of text, written as itself or as \'hh
        Rien      ///< a line end of the file, a broken \'
    };
    Sorte sorte = Sorte::Rien;
    std::string_view brut;       ///< all of it as it stands
    std::string_view mot;        ///< of `Mot`
    std::optional<long> nombre;  ///< behind a word, bounded by a thousand millions
    char octet = 0;              ///< of `Octet` and `Symbole`
};

/// Cuts rich text (RTF 1.x, the published format) into its elements. Any bytes will do.
class JetonsRtf {
public:
    /// `texte` outlives the object and the elements.
    explicit JetonsRtf(std::string_view texte) : texte_{texte} {}

    [[nodiscard]] bool Fini() const { return place_ >= texte_.size(); }
    /// The next element; not called at the end. The bytes behind "\bin" belong to it.
    [[nodiscard]] JetonRtf Lire();
    /// Bytes taken so far.
    [[nodiscard]] std::size_t Place() const { return place_; }

private:
    void LireCommande(JetonRtf& jeton);
    void LireOctetHexa(JetonRtf& jeton);
    void LireMot(JetonRtf& jeton);
    [[nodiscard]] std::optional<long> LireNombre();

    std::string_view texte_;
    std::size_t place_ = 0;
};

/// What opens rich text.
inline constexpr std::string_view TeteRtf = "{\\rtf1";

/// True for the word of a group that holds no text of the note.
[[nodiscard]] bool EstAnnexeRtf(std::string_view mot);

/// The byte of code page 1252 for the number of a "\u"; "?" when it has none.
[[nodiscard]] char OctetDeUnicodeRtf(long nombre);

/// What a word such as "par" or "emdash" writes, in code page 1252; empty for other words.
[[nodiscard]] std::string_view SigneRtf(std::string_view mot);

}  // namespace dorvane

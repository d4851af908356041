#include "values/TexteRiche.h"

#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace dorvane {

namespace {

constexpr std::string_view TeteRtf = "{\\rtf1";
constexpr std::size_t ProfondeurAuPlus = 100;

/// Groups that hold no text of the note.
constexpr std::array<std::string_view, 24> Annexes{
    "fonttbl",   "colortbl",     "stylesheet",        "info",     "pict",
    "header",    "headerl",      "headerr",           "headerf",  "footer",
    "footerl",   "footerr",      "footerf",           "footnote", "generator",
    "themedata", "datastore",    "listtable",         "xmlnstbl", "rsidtbl",
    "fldinst",   "latentstyles", "listoverridetable", "objdata"};

struct Signe {
    std::string_view mot;
    std::string_view texte;
};

constexpr std::array<Signe, 14> Signes{{{"par", "\r\n"},
                                        {"line", "\r\n"},
                                        {"row", "\r\n"},
                                        {"sect", "\r\n"},
                                        {"page", "\r\n"},
                                        {"tab", "\t"},
                                        {"cell", "\t"},
                                        {"emdash", "—"_1252},
                                        {"endash", "–"_1252},
                                        {"lquote", "‘"_1252},
                                        {"rquote", "’"_1252},
                                        {"ldblquote", "“"_1252},
                                        {"rdblquote", "”"_1252},
                                        {"bullet", "•"_1252}}};

int ValeurHexa(char octet) {
    if (EstChiffre(octet)) return octet - '0';
    const char majuscule = EnMajuscule(octet);
    return majuscule >= 'A' && majuscule <= 'F' ? majuscule - 'A' + 10 : -1;
}

bool EstLettreSimple(char octet) {
    return (octet >= 'a' && octet <= 'z') || (octet >= 'A' && octet <= 'Z');
}

/// Reads one segment, from its opening brace to the closing one, and appends its text.
class LecteurSegment {
public:
    LecteurSegment(std::string_view texte, std::string& sortie) : texte_{texte}, sortie_{sortie} {}

    /// How many bytes the segment takes.
    std::size_t Lire() {
        do {
            LireElement();
        } while (profondeur_ > 0 && place_ < texte_.size());
        return place_;
    }

private:
    struct Groupe {
        bool muet = false;
        std::size_t remplacants = 1;  ///< characters that stand in for a \u, to be skipped
    };

    // Deeper groups than are kept share the last place and are mute.
    Groupe& Courant() { return groupes_[std::min(profondeur_, ProfondeurAuPlus - 1)]; }
    bool EstMuet() { return profondeur_ >= ProfondeurAuPlus || Courant().muet; }

    void LireElement() {
        const char octet = texte_[place_++];
        switch (octet) {
            case '{':
                Ouvrir();
                break;
            case '}':
                --profondeur_;
                aSauter_ = 0;
                break;
            case '\\':
                LireCommande();
                break;
            case '\r':
            case '\n':
                break;
            default:
                Ecrire({&octet, 1});
        }
    }

    void Ouvrir() {
        const Groupe dehors = Courant();
        ++profondeur_;
        if (profondeur_ < ProfondeurAuPlus) Courant() = dehors;
        aSauter_ = 0;
    }

    void Ecrire(std::string_view texte) {
        if (aSauter_ > 0)
            --aSauter_;
        else if (!EstMuet())
            sortie_ += texte;
    }

    void RendreMuet() {
        if (profondeur_ < ProfondeurAuPlus) Courant().muet = true;
    }

    void LireCommande() {
        if (place_ == texte_.size()) return;
        if (EstLettreSimple(texte_[place_])) return LireMot();
        const char symbole = texte_[place_++];
        switch (symbole) {
            case '\'':
                LireOctetHexa();
                break;
            case '*':
                RendreMuet();
                break;
            case '~':
                Ecrire("\xA0");
                break;
            case '_':
                Ecrire("-");
                break;
            case '\r':
            case '\n':
                Ecrire("\r\n");
                break;
            case '{':
            case '}':
            case '\\':
                Ecrire({&symbole, 1});
                break;
            default:
                break;  // an optional hyphen, an index mark: nothing that is read
        }
    }

    void LireOctetHexa() {
        if (place_ + 2 > texte_.size()) return;
        const int haut = ValeurHexa(texte_[place_]);
        const int bas = ValeurHexa(texte_[place_ + 1]);
        if (haut < 0 || bas < 0) return;
        place_ += 2;
        const char octet = static_cast<char>(haut * 16 + bas);
        Ecrire({&octet, 1});
    }

    void LireMot() {
        const std::size_t debut = place_;
        while (place_ < texte_.size() && EstLettreSimple(texte_[place_]))
            ++place_;
        const std::string_view mot = texte_.substr(debut, place_ - debut);
        const std::optional<long> nombre = LireNombre();
        if (place_ < texte_.size() && texte_[place_] == ' ') ++place_;
        Executer(mot, nombre);
    }

    /// The number behind a word, bounded so that no length of digits overflows.
    std::optional<long> LireNombre() {
        const std::size_t debut = place_;
        const bool negatif =
            place_ + 1 < texte_.size() && texte_[place_] == '-' && EstChiffre(texte_[place_ + 1]);
        if (negatif) ++place_;
        long nombre = 0;
        for (; place_ < texte_.size() && EstChiffre(texte_[place_]); ++place_)
            nombre = std::min(nombre * 10 + (texte_[place_] - '0'), 1'000'000'000L);
        if (place_ == debut) return std::nullopt;
        return negatif ? -nombre : nombre;
    }

    void Executer(std::string_view mot, std::optional<long> nombre) {
        if (mot == "u" && nombre) return EcrireUnicode(*nombre);
        if (mot == "uc" && nombre) {
            Courant().remplacants = static_cast<std::size_t>(std::clamp(*nombre, 0L, 100L));
            return;
        }
        if (mot == "bin" && nombre) {
            const auto octets = static_cast<std::size_t>(std::max(*nombre, 0L));
            place_ += std::min(octets, texte_.size() - place_);
            return;
        }
        if (std::ranges::find(Annexes, mot) != Annexes.end()) return RendreMuet();
        const auto* const signe = std::ranges::find(Signes, mot, &Signe::mot);
        if (signe != Signes.end()) Ecrire(signe->texte);
    }

    void EcrireUnicode(long nombre) {
        // Values above 32767 are written as negative 16-bit numbers.
        const auto code = static_cast<char32_t>(nombre < 0 ? nombre + 65536 : nombre);
        const int octet = ChercherOctet(code);
        const char lettre = octet < 0 ? '?' : static_cast<char>(octet);
        aSauter_ = 0;
        Ecrire({&lettre, 1});
        aSauter_ = Courant().remplacants;
    }

    std::string_view texte_;
    std::string& sortie_;
    std::size_t place_ = 0;
    std::size_t profondeur_ = 0;
    std::size_t aSauter_ = 0;
    std::array<Groupe, ProfondeurAuPlus> groupes_{};
};

}  // namespace

std::string_view TexteSansRtf(std::string_view texte, std::string& tampon) {
    std::size_t segment = texte.find(TeteRtf);
    if (segment == std::string_view::npos) return texte;

    tampon.clear();
    while (segment != std::string_view::npos) {
        tampon += texte.substr(0, segment);
        texte.remove_prefix(segment);
        texte.remove_prefix(LecteurSegment{texte, tampon}.Lire());
        segment = texte.find(TeteRtf);
    }
    tampon += texte;
    return tampon;
}

}  // namespace dorvane

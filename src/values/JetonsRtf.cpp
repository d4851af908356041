#include "values/JetonsRtf.h"

#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>

namespace dorvane {

namespace {

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

}  // namespace

bool EstAnnexeRtf(std::string_view mot) {
    return std::ranges::find(Annexes, mot) != Annexes.end();
}

std::string_view SigneRtf(std::string_view mot) {
    const auto* const signe = std::ranges::find(Signes, mot, &Signe::mot);
    return signe == Signes.end() ? std::string_view{} : signe->texte;
}

char OctetDeUnicodeRtf(long nombre) {
    // Values above 32767 are written as negative 16-bit numbers.
    const int octet = ChercherOctet(static_cast<char32_t>(nombre < 0 ? nombre + 65536 : nombre));
    return octet < 0 ? '?' : static_cast<char>(octet);
}

JetonRtf JetonsRtf::Lire() {
    JetonRtf jeton;
    const std::size_t debut = place_;
    const char octet = texte_[place_++];
    switch (octet) {
        case '{':
            jeton.sorte = JetonRtf::Sorte::Ouvre;
            break;
        case '}':
            jeton.sorte = JetonRtf::Sorte::Ferme;
            break;
        case '\\':
            LireCommande(jeton);
            break;
        case '\r':
        case '\n':
            break;
        default:
            jeton.sorte = JetonRtf::Sorte::Octet;
            jeton.octet = octet;
    }
    jeton.brut = texte_.substr(debut, place_ - debut);
    return jeton;
}

void JetonsRtf::LireCommande(JetonRtf& jeton) {
    if (Fini()) return;
    if (EstLettreSimple(texte_[place_])) return LireMot(jeton);
    const char symbole = texte_[place_++];
    if (symbole == '\'') return LireOctetHexa(jeton);
    jeton.sorte = JetonRtf::Sorte::Symbole;
    jeton.octet = symbole;
}

void JetonsRtf::LireOctetHexa(JetonRtf& jeton) {
    if (place_ + 2 > texte_.size()) return;
    const int haut = ValeurHexa(texte_[place_]);
    const int bas = ValeurHexa(texte_[place_ + 1]);
    if (haut < 0 || bas < 0) return;
    place_ += 2;
    jeton.sorte = JetonRtf::Sorte::Octet;
    jeton.octet = static_cast<char>(haut * 16 + bas);
}

void JetonsRtf::LireMot(JetonRtf& jeton) {
    jeton.sorte = JetonRtf::Sorte::Mot;
    const std::size_t debut = place_;
    while (!Fini() && EstLettreSimple(texte_[place_]))
        ++place_;
    jeton.mot = texte_.substr(debut, place_ - debut);
    jeton.nombre = LireNombre();
    if (!Fini() && texte_[place_] == ' ') ++place_;
    if (jeton.mot != "bin" || !jeton.nombre) return;
    const auto octets = static_cast<std::size_t>(std::max(*jeton.nombre, 0L));
    place_ += std::min(octets, texte_.size() - place_);
}

std::optional<long> JetonsRtf::LireNombre() {
    const std::size_t debut = place_;
    const bool negatif =
        place_ + 1 < texte_.size() && texte_[place_] == '-' && EstChiffre(texte_[place_ + 1]);
    if (negatif) ++place_;
    long nombre = 0;
    for (; !Fini() && EstChiffre(texte_[place_]); ++place_)
        nombre = std::min(nombre * 10 + (texte_[place_] - '0'), 1'000'000'000L);
    if (place_ == debut) return std::nullopt;
    return negatif ? -nombre : nombre;
}

}  // namespace dorvane

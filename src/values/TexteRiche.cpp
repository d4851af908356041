#include "values/TexteRiche.h"

#include "values/JetonsRtf.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>

namespace dorvane {

namespace {

constexpr std::size_t ProfondeurAuPlus = 100;

/// Reads one segment, from its opening brace to the closing one, and appends its text.
class LecteurSegment {
public:
    LecteurSegment(std::string_view texte, std::string& sortie) : jetons_{texte}, sortie_{sortie} {}

    /// How many bytes the segment takes.
    std::size_t Lire() {
        do {
            LireElement(jetons_.Lire());
        } while (profondeur_ > 0 && !jetons_.Fini());
        return jetons_.Place();
    }

private:
    struct Groupe {
        bool muet = false;
        std::size_t remplacants = 1;  ///< characters that stand in for a \u, to be skipped
    };

    // Deeper groups than are kept share the last place and are mute.
    Groupe& Courant() { return groupes_[std::min(profondeur_, ProfondeurAuPlus - 1)]; }
    bool EstMuet() { return profondeur_ >= ProfondeurAuPlus || Courant().muet; }

    void LireElement(const JetonRtf& jeton) {
        using enum JetonRtf::Sorte;
        switch (jeton.sorte) {
            case Ouvre:
                return Ouvrir();
            case Ferme:
                --profondeur_;
                aSauter_ = 0;
                return;
            case Octet:
                return Ecrire({&jeton.octet, 1});
            case Symbole:
                return LireSymbole(jeton.octet);
            case Mot:
                return Executer(jeton);
            case Rien:
                return;
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

    void LireSymbole(char symbole) {
        switch (symbole) {
            case '*':
                return RendreMuet();
            case '~':
                return Ecrire("\xA0");
            case '_':
                return Ecrire("-");
            case '\r':
            case '\n':
                return Ecrire("\r\n");
            case '{':
            case '}':
            case '\\':
                return Ecrire({&symbole, 1});
            default:
                return;  // an optional hyphen, an index mark: nothing that is read
        }
    }

    void Executer(const JetonRtf& jeton) {
        if (jeton.mot == "u" && jeton.nombre) return EcrireUnicode(*jeton.nombre);
        if (jeton.mot == "uc" && jeton.nombre) {
            Courant().remplacants = static_cast<std::size_t>(std::clamp(*jeton.nombre, 0L, 100L));
            return;
        }
        if (EstAnnexeRtf(jeton.mot)) return RendreMuet();
        const std::string_view signe = SigneRtf(jeton.mot);
        if (!signe.empty()) Ecrire(signe);
    }

    void EcrireUnicode(long nombre) {
        const char lettre = OctetDeUnicodeRtf(nombre);
        aSauter_ = 0;
        Ecrire({&lettre, 1});
        aSauter_ = Courant().remplacants;
    }

    JetonsRtf jetons_;
    std::string& sortie_;
    std::size_t profondeur_ = 0;
    std::size_t aSauter_ = 0;
    std::array<Groupe, ProfondeurAuPlus> groupes_{};
};

}  // namespace

std::string_view TexteSansRtf(std::string_view texte, std::string& tampon) {
    assert(texte.data() < tampon.data() || texte.data() > tampon.data() + tampon.size());
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

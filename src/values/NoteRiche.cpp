#include "values/NoteRiche.h"

#include "values/Comparaison.h"
#include "values/JetonsRtf.h"
#include "values/TexteRiche.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace dorvane {

namespace {

constexpr std::size_t ProfondeurAuPlus = 100;
constexpr std::size_t ResteAuPlus = 400;  ///< bytes of unknown control words that a run carries
constexpr char Saut = '\v';
constexpr std::string_view EnteteOrdinaire = "\\ansi\\ansicpg1252\\deff0";

/// Words that set characters, and that the editor has no button for.
constexpr std::array<std::string_view, 42> MotsCaracteres{
    "f",       "fs",     "cf",   "cb",   "highlight", "strike",  "striked", "scaps",  "caps",
    "sub",     "super",  "up",   "dn",   "expnd",     "kerning", "lang",    "langfe", "langnp",
    "noproof", "outl",   "shad", "v",    "cs",        "uldb",    "uld",     "uldash", "ulw",
    "ulth",    "ulwave", "af",   "afs",  "ab",        "ai",      "alang",   "rtlch",  "ltrch",
    "loch",    "hich",   "dbch", "embo", "impr",      "expndtw"};

/// Words that set a paragraph.
constexpr std::array<std::string_view, 34> MotsParagraphe{
    "li",       "ri",     "fi",        "sb",          "sa",           "sl",
    "slmult",   "s",      "keep",      "keepn",       "tx",           "tqr",
    "tqc",      "tqdec",  "widctlpar", "nowidctlpar", "intbl",        "itap",
    "lin",      "rin",    "ls",        "ilvl",        "rtlpar",       "ltrpar",
    "aspalpha", "aspnum", "faauto",    "adjustright", "outlinelevel", "contextualspacing",
    "hyphpar",  "noline", "pagebb",    "tb"};

/// Groups that stand for something at their place, though they begin like text.
constexpr std::array<std::string_view, 8> GroupesOpaques{
    "field", "object", "shp", "shppict", "nonshppict", "pntext", "listtext", "pn"};

template <std::size_t N>
bool Contient(const std::array<std::string_view, N>& mots, std::string_view mot) {
    return std::ranges::find(mots, mot) != mots.end();
}

std::string MotEtNombre(const JetonRtf& jeton) {
    std::string texte{'\\'};
    texte += jeton.mot;
    if (jeton.nombre) texte += std::to_string(*jeton.nombre);
    return texte;
}

/// The end of the control word that begins at `debut` in a run of words.
std::size_t FinDeMot(std::string_view mots, std::size_t debut) {
    return std::min(mots.find('\\', debut + 1), mots.size());
}

void RetirerMot(std::string& reste, std::string_view nom) {
    for (std::size_t i = 0; i < reste.size();) {
        const std::size_t fin = FinDeMot(reste, i);
        const std::string_view mot = std::string_view{reste}.substr(i + 1, fin - i - 1);
        if (mot.substr(0, mot.find_first_of("-0123456789")) == nom)
            reste.erase(i, fin - i);
        else
            i = fin;
    }
}

/// Takes the former setting of the same word out of `reste` and puts the new one behind.
void PoserMot(std::string& reste, const JetonRtf& jeton) {
    RetirerMot(reste, jeton.mot);
    const std::string nouveau = MotEtNombre(jeton);
    if (reste.size() + nouveau.size() <= ResteAuPlus) reste += nouveau;
}

void OterExposant(std::string& reste) {
    RetirerMot(reste, "super");
    RetirerMot(reste, "sub");
}

/// Reads a note from its first byte to its last.
class LecteurNote {
public:
    explicit LecteurNote(NoteRiche& note) : note_{note} { note_.paragraphes.emplace_back(); }

    void LireSimple(std::string_view texte) {
        etat_ = {};
        for (std::size_t i = 0; i < texte.size(); ++i) {
            const char octet = texte[i];
            if (octet != '\r' && octet != '\n') {
                Ecrire({&octet, 1});
                continue;
            }
            if (octet == '\r' && i + 1 < texte.size() && texte[i + 1] == '\n') ++i;
            note_.paragraphes.emplace_back();
        }
    }

    /// How many bytes the segment takes.
    std::size_t LireSegment(std::string_view texte) {
        texte_ = texte;
        JetonsRtf jetons{texte};
        etat_ = {};
        pile_.clear();
        enTete_ = true;
        premier_ = note_.entete.empty();
        while (!jetons.Fini()) {
            const JetonRtf jeton = jetons.Lire();
            if (jeton.sorte == JetonRtf::Sorte::Ouvre)
                Ouvrir(jetons);
            else if (jeton.sorte == JetonRtf::Sorte::Ferme)
                Fermer();
            else
                LireElement(jeton);
            if (pile_.empty()) break;
        }
        return jetons.Place();
    }

private:
    struct Etat {
        StyleCaracteres style;
        std::size_t remplacants = 1;
    };

    Paragraphe& Courant() { return note_.paragraphes.back(); }

    void Ecrire(std::string_view texte) {
        std::vector<Troncon>& troncons = Courant().troncons;
        if (troncons.empty() || !troncons.back().objet.empty() ||
            troncons.back().style != etat_.style)
            troncons.push_back({etat_.style, {}, {}});
        troncons.back().texte += texte;
    }

    void EcrireTexte(std::string_view texte) {
        enTete_ = false;
        if (aSauter_ == 0) return Ecrire(texte);
        --aSauter_;
    }

    void EcrireObjet(std::string_view brut, std::string_view montre) {
        enTete_ = false;
        Courant().troncons.push_back({etat_.style, std::string{montre}, std::string{brut}});
    }

    void NouveauParagraphe() {
        enTete_ = false;
        Paragraphe suivant;
        suivant.alignement = Courant().alignement;
        suivant.reste = Courant().reste;
        note_.paragraphes.push_back(std::move(suivant));
    }

    void Ouvrir(JetonsRtf& jetons) {
        aSauter_ = 0;
        const std::size_t debut = jetons.Place() - 1;
        if (!pile_.empty() && (pile_.size() >= ProfondeurAuPlus || EstOpaque(jetons))) {
            const std::string brut = Capturer(jetons, debut);
            if (!enTete_) {
                std::string tampon;
                const std::string segment = std::string{TeteRtf} + ' ' + brut + '}';
                EcrireObjet(brut, TexteSansRtf(segment, tampon));
            } else if (premier_) {
                note_.entete += brut;
            }
            return;
        }
        pile_.push_back(etat_);
        // The word of the format itself opens the segment and is written again by the writer.
        if (pile_.size() == 1) static_cast<void>(jetons.Lire());
    }

    static bool EstOpaque(JetonsRtf jetons) {
        while (!jetons.Fini()) {
            const JetonRtf jeton = jetons.Lire();
            if (jeton.sorte == JetonRtf::Sorte::Rien) continue;
            if (jeton.sorte == JetonRtf::Sorte::Symbole) return jeton.octet == '*';
            return jeton.sorte == JetonRtf::Sorte::Mot &&
                   (EstAnnexeRtf(jeton.mot) || Contient(GroupesOpaques, jeton.mot));
        }
        return false;
    }

    /// The group that begins at `debut`, to its closing brace, which is put where it is missing.
    std::string Capturer(JetonsRtf& jetons, std::size_t debut) {
        std::size_t profondeur = 1;
        std::size_t fin = debut;
        while (profondeur > 0 && !jetons.Fini()) {
            const JetonRtf jeton = jetons.Lire();
            if (jeton.sorte == JetonRtf::Sorte::Ouvre) ++profondeur;
            if (jeton.sorte == JetonRtf::Sorte::Ferme) --profondeur;
            // Cut in the middle, either of these would swallow the brace that is put behind.
            const bool coupe = jeton.brut == "\\" || jeton.mot == "bin";
            if (!coupe || !jetons.Fini()) fin = jetons.Place();
        }
        std::string brut{texte_.substr(debut, fin - debut)};
        return brut.append(profondeur, '}');
    }

    void Fermer() {
        aSauter_ = 0;
        etat_ = std::move(pile_.back());
        pile_.pop_back();
    }

    void LireElement(const JetonRtf& jeton) {
        using enum JetonRtf::Sorte;
        if (jeton.sorte == Octet) return EcrireTexte({&jeton.octet, 1});
        if (jeton.sorte == Symbole) return LireSymbole(jeton);
        if (jeton.sorte == Mot) return LireMot(jeton);
    }

    void LireSymbole(const JetonRtf& jeton) {
        switch (jeton.octet) {
            case '~':
                return EcrireTexte("\xA0");
            case '{':
            case '}':
            case '\\':
                return EcrireTexte({&jeton.octet, 1});
            case '\r':
            case '\n':
                return NouveauParagraphe();
            default:
                return EcrireObjet(jeton.brut, jeton.octet == '_' ? "-" : "");
        }
    }

    void LireMot(const JetonRtf& jeton) {
        if (LireStyle(jeton) || LireAlignement(jeton)) return;
        if (jeton.mot == "bin") return;  // bytes of no picture
        if (jeton.mot == "par") return NouveauParagraphe();
        if (jeton.mot == "line") return EcrireTexte({&Saut, 1});
        if (jeton.mot == "u" && jeton.nombre) return LireUnicode(*jeton.nombre);
        if (jeton.mot == "uc" && jeton.nombre) {
            etat_.remplacants = static_cast<std::size_t>(std::clamp(*jeton.nombre, 0L, 100L));
            return;
        }
        const std::string_view signe = SigneRtf(jeton.mot);
        if (signe.size() == 1) return EcrireTexte(signe);
        if (!enTete_)
            EcrireObjet(MotEtNombre(jeton), "");
        else if (premier_)
            note_.entete += MotEtNombre(jeton);
    }

    bool LireStyle(const JetonRtf& jeton) {
        StyleCaracteres& style = etat_.style;
        const bool oui = jeton.nombre.value_or(1) != 0;
        if (jeton.mot == "b")
            style.gras = oui;
        else if (jeton.mot == "i")
            style.italique = oui;
        else if (jeton.mot == "ul")
            style.souligne = oui;
        else if (jeton.mot == "ulnone")
            style.souligne = false;
        else if (jeton.mot == "plain")
            style = {};
        else if (jeton.mot == "nosupersub")
            OterExposant(style.reste);
        else if (Contient(MotsCaracteres, jeton.mot))
            PoserMot(style.reste, jeton);
        else
            return false;
        return true;
    }

    bool LireAlignement(const JetonRtf& jeton) {
        Paragraphe& paragraphe = Courant();
        if (jeton.mot == "pard") {
            paragraphe.alignement = Alignement::Gauche;
            paragraphe.reste.clear();
        } else if (jeton.mot == "ql") {
            paragraphe.alignement = Alignement::Gauche;
        } else if (jeton.mot == "qc") {
            paragraphe.alignement = Alignement::Centre;
        } else if (jeton.mot == "qr") {
            paragraphe.alignement = Alignement::Droite;
        } else if (jeton.mot == "qj") {
            paragraphe.alignement = Alignement::Justifie;
        } else if (Contient(MotsParagraphe, jeton.mot)) {
            PoserMot(paragraphe.reste, jeton);
        } else {
            return false;
        }
        return true;
    }

    /// A character that code page 1252 lacks is an object that carries its number.
    void LireUnicode(long nombre) {
        const char lettre = OctetDeUnicodeRtf(nombre);
        aSauter_ = 0;
        if (lettre != '?' || nombre == '?')
            EcrireTexte({&lettre, 1});
        else
            EcrireObjet(ObjetUnicode(nombre), {&lettre, 1});
        aSauter_ = etat_.remplacants;
    }

    NoteRiche& note_;
    std::string_view texte_;
    Etat etat_;
    std::vector<Etat> pile_;
    std::size_t aSauter_ = 0;
    bool enTete_ = true;
    bool premier_ = true;
};

bool EstOrdinaire(const Troncon& troncon) {
    return troncon.objet.empty() && troncon.style == StyleCaracteres{};
}

/// A control word needs a blank behind it; a group and a control symbol do not.
bool EstMotSeul(std::string_view rtf) {
    if (rtf.size() < 2 || rtf[0] != '\\') return false;
    const char lettre = EnMajuscule(rtf[1]);
    return lettre >= 'A' && lettre <= 'Z';
}

void EcrireOctetHexa(std::string& sortie, unsigned char octet) {
    constexpr std::string_view Chiffres = "0123456789abcdef";
    sortie += "\\'";
    sortie += Chiffres[octet / 16];
    sortie += Chiffres[octet % 16];
}

void EcrireTexteRtf(std::string& sortie, std::string_view texte) {
    for (const char octet : texte) {
        const auto valeur = static_cast<unsigned char>(octet);
        if (octet == '\\' || octet == '{' || octet == '}')
            (sortie += '\\') += octet;
        else if (octet == Saut)
            sortie += "\\line ";
        else if (octet == '\t')
            sortie += "\\tab ";
        else if (valeur < 32 || valeur > 126)
            EcrireOctetHexa(sortie, valeur);
        else
            sortie += octet;
    }
}

void EcrireTroncon(std::string& sortie, const Troncon& troncon) {
    const StyleCaracteres& style = troncon.style;
    const bool groupe = style != StyleCaracteres{};
    if (groupe) {
        sortie += '{';
        if (style.gras) sortie += "\\b";
        if (style.italique) sortie += "\\i";
        if (style.souligne) sortie += "\\ul";
        sortie += style.reste;
        sortie += ' ';
    }
    if (troncon.objet.empty()) {
        EcrireTexteRtf(sortie, troncon.texte);
    } else {
        sortie += troncon.objet;
        if (EstMotSeul(troncon.objet)) sortie += ' ';
    }
    if (groupe) sortie += '}';
}

std::string_view MotAlignement(Alignement alignement) {
    switch (alignement) {
        case Alignement::Centre:
            return "\\qc";
        case Alignement::Droite:
            return "\\qr";
        case Alignement::Justifie:
            return "\\qj";
        case Alignement::Gauche:
            break;
    }
    return {};
}

std::string EcrireSimple(const NoteRiche& note) {
    std::string sortie;
    for (std::size_t i = 0; i < note.paragraphes.size(); ++i) {
        if (i > 0) sortie += "\r\n";
        for (const Troncon& troncon : note.paragraphes[i].troncons)
            sortie += troncon.texte;
    }
    RemplacerTout(sortie, {&Saut, 1}, "\r\n");
    return sortie;
}

}  // namespace

std::string ObjetUnicode(long nombre) {
    // A group of its own, so that "\\uc0" does not reach what follows.
    return "{\\uc0\\u" + std::to_string(nombre) + " }";
}

bool NoteRiche::EstSimple() const {
    return std::ranges::all_of(paragraphes, [](const Paragraphe& paragraphe) {
        return paragraphe.alignement == Alignement::Gauche && paragraphe.reste.empty() &&
               std::ranges::all_of(paragraphe.troncons, EstOrdinaire);
    });
}

bool EstNoteRiche(std::string_view note) {
    return note.starts_with(TeteRtf);
}

NoteRiche LireNoteRiche(std::string_view note) {
    NoteRiche lue;
    LecteurNote lecteur{lue};
    for (std::size_t segment = note.find(TeteRtf); segment != std::string_view::npos;
         segment = note.find(TeteRtf)) {
        lecteur.LireSimple(note.substr(0, segment));
        note.remove_prefix(segment);
        note.remove_prefix(lecteur.LireSegment(note));
    }
    lecteur.LireSimple(note);
    return lue;
}

std::string EcrireNoteRiche(const NoteRiche& note) {
    if (note.EstSimple()) return EcrireSimple(note);
    std::string sortie{TeteRtf};
    sortie += note.entete.empty() ? EnteteOrdinaire : std::string_view{note.entete};
    for (std::size_t i = 0; i < note.paragraphes.size(); ++i) {
        const Paragraphe& paragraphe = note.paragraphes[i];
        if (i > 0) sortie += "\\par";
        sortie += "\\pard";
        sortie += MotAlignement(paragraphe.alignement);
        sortie += paragraphe.reste;
        sortie += ' ';
        for (const Troncon& troncon : paragraphe.troncons)
            EcrireTroncon(sortie, troncon);
    }
    return sortie += '}';
}

}  // namespace dorvane

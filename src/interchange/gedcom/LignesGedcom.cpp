#include "interchange/gedcom/LignesGedcom.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

bool EstBlanc(char c) {
    return c == ' ' || c == '\t';
}

void SauterBlancs(std::string_view& texte) {
    std::size_t i = 0;
    while (i < texte.size() && EstBlanc(texte[i]))
        ++i;
    texte.remove_prefix(i);
}

void RognerFin(std::string_view& texte) {
    while (!texte.empty() && EstBlanc(texte.back()))
        texte.remove_suffix(1);
}

/// Takes the run of non-blanks at the front, and the blanks behind it.
std::string_view PrendreMot(std::string_view& texte) {
    std::size_t i = 0;
    while (i < texte.size() && !EstBlanc(texte[i]))
        ++i;
    const std::string_view mot = texte.substr(0, i);
    texte.remove_prefix(i);
    SauterBlancs(texte);
    return mot;
}

/// The shape of nearly every line, "1 NAME value", without the care that the others need. False for
/// those, with nothing changed that counts.
bool CouperSimple(std::string_view brut, LigneGedcom& ligne) {
    if (brut.size() < 3 || brut[0] < '0' || brut[0] > '9' || brut[1] != ' ' || brut[2] < 'A' ||
        brut[2] > 'Z')
        return false;
    std::size_t fin = 2;
    CodeEtiquette code = 0;
    for (; fin < brut.size() && fin < 6 && !EstBlanc(brut[fin]); ++fin)
        code = code << 8U | static_cast<unsigned char>(brut[fin]);
    if (fin < brut.size() &&
        (!EstBlanc(brut[fin]) || fin + 1 == brut.size() || EstBlanc(brut[fin + 1])))
        return false;
    ligne.niveau = static_cast<std::uint32_t>(brut[0] - '0');
    ligne.cle = {};
    ligne.etiquette = brut.substr(2, fin - 2);
    ligne.code = code;
    ligne.valeur = brut.substr(fin < brut.size() ? fin + 1 : fin);
    return true;
}

/// A level of one to three digits; nothing for anything else.
std::optional<std::uint32_t> LireNiveau(std::string_view mot) {
    if (mot.empty() || mot.size() > 3) return std::nullopt;
    std::uint32_t niveau = 0;
    for (const char c : mot) {
        if (c < '0' || c > '9') return std::nullopt;
        niveau = niveau * 10 + static_cast<std::uint32_t>(c - '0');
    }
    return niveau;
}

/// Cuts a line without leading blanks; false when it has no level or no tag.
bool Couper(std::string_view brut, LigneGedcom& ligne) {
    const auto niveau = LireNiveau(PrendreMot(brut));
    if (!niveau || brut.empty()) return false;
    ligne.niveau = *niveau;
    ligne.cle = {};
    if (brut.front() == '@') {
        // Identifiers with blanks exist in the wild: the key runs to its closing mark.
        ligne.cle = CleDeReference(brut);
        if (ligne.cle.empty()) return false;
        brut.remove_prefix(brut.find('@', 1) + 1);
        SauterBlancs(brut);
        if (brut.empty()) return false;
    }
    ligne.etiquette = PrendreMot(brut);
    ligne.code = CoderEtiquette(ligne.etiquette);
    ligne.valeur = brut;
    return true;
}

}  // namespace

std::optional<FinDeLigne> ChercherFinDeLigne(std::string_view texte) {
    texte = texte.substr(0, 1000);
    if (texte.find("\r\n") != std::string_view::npos) return FinDeLigne::CrLf;
    if (texte.find("\n\r") != std::string_view::npos) return FinDeLigne::LfCr;
    if (texte.find('\n') != std::string_view::npos) return FinDeLigne::Lf;
    if (texte.find('\r') != std::string_view::npos) return FinDeLigne::Cr;
    return std::nullopt;
}

LecteurDeLignes::LecteurDeLignes(std::string_view texte, FinDeLigne fin, std::size_t depart,
                                 std::uint32_t numero)
    : texte_{texte},
      premier_{fin == FinDeLigne::LfCr ? '\n' : '\r'},
      second_{fin == FinDeLigne::LfCr ? '\r' : '\n'},
      ou_{depart},
      numero_{numero - 1} {
    lf_ = std::min(texte_.find('\n', ou_), texte_.size());
    cr_ = std::min(texte_.find('\r', ou_), texte_.size());
}

std::string_view LecteurDeLignes::LireBrut() {
    debut_ = ou_;
    ++numero_;
    const std::size_t depart = ou_;
    // Each end is searched once: a file without line feeds is not walked through for every return.
    if (lf_ < ou_) lf_ = std::min(texte_.find('\n', ou_), texte_.size());
    if (cr_ < ou_) cr_ = std::min(texte_.find('\r', ou_), texte_.size());
    ou_ = std::min(lf_, cr_);
    const std::size_t longueur = ou_ - depart;
    if (ou_ < texte_.size()) {
        const bool paire =
            texte_[ou_] == premier_ && ou_ + 1 < texte_.size() && texte_[ou_ + 1] == second_;
        ou_ += paire ? 2 : 1;
    }
    return texte_.substr(depart, longueur);
}

LecteurDeLignes::Sorte LecteurDeLignes::Lire(LigneGedcom& ligne) {
    if (ou_ >= texte_.size()) return Sorte::Fin;
    std::string_view brut = LireBrut();
    ligne.numero = numero_;
    RognerFin(brut);
    if (CouperSimple(brut, ligne)) return Sorte::Ligne;
    SauterBlancs(brut);
    if (brut.find_first_not_of(std::string_view{"\0\x1A", 2}) == std::string_view::npos)
        return Sorte::Vide;
    if (Couper(brut, ligne)) return Sorte::Ligne;
    ligne.valeur = brut;
    return Sorte::Illisible;
}

std::string_view CleDeReference(std::string_view valeur) {
    if (valeur.size() < 3 || valeur.front() != '@') return {};
    const std::size_t fin = valeur.find('@', 1);
    // "@#DJULIAN@" opens a date, and "@@" is a written mark.
    if (fin == std::string_view::npos || fin == 1 || valeur[1] == '#') return {};
    std::string_view cle = valeur.substr(1, fin - 1);
    SauterBlancs(cle);
    RognerFin(cle);
    return cle;
}

}  // namespace dorvane::interchange

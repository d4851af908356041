#pragma once

#include "storage/LecteurLgd.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace dorvane::storage {

/// Follows everything that the header of a base leads to, by the format alone, and tells which
/// bytes behind the fixed zone nothing leads to.
class OctetsVivants {
public:
    explicit OctetsVivants(std::string octets)
        : l_{std::move(octets)}, vivant_(l_.Tout().size() + 1, false) {
        const bool suites = l_.Num4(161) != 0 || l_.Num4(165) != 0 || l_.Num4(169) != 0;
        Marquer(1, suites ? 3572 : 3088);
        Zones();
        for (const char* nom :
             {"TRI",    "SEXE",   "NAISS",  "DECES", "PERE",   "MERE",  "NOM",    "TEXTE",
              "ENFANT", "MARIAG", "LSTIMG", "LIEN",  "LSTEVT", "EPOUX", "EPOUSE", "DEBMAR",
              "FINMAR", "TXTMAR", "INDEX",  "IMAGE", "TRIDOC", "EVT",   "TRIEVT"})
            Blocs(nom);
        MotsCles();
        for (unsigned n = 1; n <= l_.Num2(37); ++n)
            Individu(n);
        for (unsigned m = 1; m <= l_.Num2(43); ++m)
            Texte(l_.Num4De("TXTMAR", m));
        for (unsigned d = 1; d <= l_.Num2(101); ++d)
            Document(l_.Num4De("IMAGE", d));
        for (unsigned e = 1; e <= l_.Num2(39); ++e)
            Evenement(l_.Num4De("EVT", e));
    }

    /// Bytes that nothing leads to.
    [[nodiscard]] std::size_t Morts() const {
        std::size_t morts = 0;
        for (std::size_t i = 1; i < vivant_.size(); ++i)
            if (!vivant_[i]) ++morts;
        return morts;
    }
    /// Something leads past the end of the file.
    [[nodiscard]] bool Deborde() const { return deborde_; }
    [[nodiscard]] const LecteurLgd& Lecteur() const { return l_; }

private:
    void Marquer(std::size_t position, std::size_t longueur) {
        for (std::size_t i = position; i < position + longueur; ++i) {
            if (i >= vivant_.size()) {
                deborde_ = true;
                return;
            }
            vivant_[i] = true;
        }
    }
    void Zones() {
        if (l_.Num4(161) != 0) Marquer(l_.Num4(161), 1664);
        if (l_.Num4(165) != 0) Marquer(l_.Num4(165), 384);
        if (l_.Num4(169) != 0) Marquer(l_.Num4(169), 640);
        for (const unsigned champ : {50U, 54U, 58U})
            if (l_.Num4(champ) != 0) Marquer(l_.Num4(champ), 128);
    }
    void Blocs(const std::string& nom) {
        const LecteurLgd::Colonne& format = LecteurLgd::Format(nom);
        const unsigned nombre = nom == "INDEX" ? 160 : format.suite < 0 ? 32 : 64;
        const unsigned parBloc = nom == "INDEX" ? 400 : 1000;
        for (unsigned b = 1; b <= nombre; ++b)
            if (l_.Bloc(nom, b) != 0) Marquer(l_.Bloc(nom, b), parBloc * format.largeur);
    }
    /// A text from `position` on, with its "#".
    void Texte(std::size_t position) {
        if (position != 0) Marquer(position, l_.Texte(position).size() + 1);
    }
    void MotsCles() {
        for (unsigned k = 1; k <= l_.Num2(46); ++k) {
            const unsigned fiche = l_.Num4(201 + 4 * (k - 1));
            if (fiche == 0) continue;
            unsigned fin = fiche + 1;
            while (l_.Octet(fin) != '#' && l_.Octet(fin) != 255)
                ++fin;
            if (l_.Octet(fin) == 255) {
                Mots(l_.Num4(fin + 1));
                fin += 5;
            }
            Marquer(fiche, (fin - fiche + 40) / 40 * 40);
        }
    }
    void Mots(unsigned liste) {
        if (liste == 0) return;
        const unsigned nombre = l_.Num2(liste);
        Marquer(liste, 2 + 2 * nombre);
        for (unsigned i = 1; i <= nombre; ++i) {
            const unsigned cellule = l_.Cellule("INDEX", l_.Num2(liste + 2 * i));
            Texte(l_.Num4(cellule));
            Marquer(l_.Num4(cellule + 6), 2 * l_.Num2(cellule + 4));
        }
    }
    /// A list of entries of `taille` bytes, with its end mark.
    void Liste(unsigned debut, unsigned taille) {
        if (debut == 0) return;
        unsigned fin = debut;
        for (; l_.Num2(fin) != 0; fin += taille)
            if (taille == 6) Texte(l_.Num4(fin + 2));
        Marquer(debut, fin - debut + 2);
    }
    void Individu(unsigned n) {
        Texte(l_.Num4De("NOM", n));
        Texte(l_.Num4De("TEXTE", n));
        for (const char* nom : {"ENFANT", "MARIAG", "LSTIMG"})
            Liste(l_.Num4De(nom, n), 2);
        for (const char* nom : {"LIEN", "LSTEVT"})
            Liste(l_.Num4De(nom, n), 6);
    }
    void Document(unsigned fiche) {
        if (fiche == 0) return;
        Marquer(fiche, 4);
        Texte(fiche + 4);
        Texte(l_.Num4(fiche));
    }
    void Evenement(unsigned tete) {
        if (tete == 0) return;
        Marquer(tete, 20);
        Texte(l_.Num4(tete + 4));
        Liste(l_.Num4(tete + 8), 6);
        Liste(l_.Num4(tete + 12), 2);
        Texte(l_.Num4(tete + 16));
    }

    LecteurLgd l_;
    std::vector<bool> vivant_;
    bool deborde_ = false;
};

}  // namespace dorvane::storage

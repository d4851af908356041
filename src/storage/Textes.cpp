#include "storage/Textes.h"

#include <algorithm>
#include <array>

namespace dorvane::storage {
namespace {

constexpr std::size_t Pas = 32;

/// Bytes read in steps until `limite` is reached.
std::size_t LimiteDeLecture(std::size_t limite) {
    return limite == 0 ? MaxTexte : (limite + Pas - 1) / Pas * Pas;
}

}  // namespace

LigneNom DecouperNom(std::string_view ligne) {
    std::array<std::string_view, 5> champs;
    for (std::size_t i = 0; i < champs.size(); ++i) {
        const std::size_t fin = i + 1 < champs.size() ? ligne.find(';') : std::string_view::npos;
        champs[i] = ligne.substr(0, fin);
        if (fin == std::string_view::npos) break;
        ligne.remove_prefix(fin + 1);
    }
    return {champs[0], champs[1], champs[2], champs[3], champs[4]};
}

std::string SansDiese(std::string_view texte) {
    std::string propre{texte};
    if (texte.find('#') == std::string_view::npos) return propre;
    propre.clear();
    std::size_t profondeur = 0;  // of braces, inside rich text
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char c = texte[i];
        if (profondeur == 0) {
            if (texte.substr(i).starts_with("{\\rtf1")) profondeur = 1;
            propre += c == '#' ? '-' : c;
        } else if (c == '#') {
            propre += "\\'23";
        } else {
            propre += c;
            if (c == '\\' && i + 1 < texte.size() && texte[i + 1] != '#')
                propre += texte[++i];
            else if (c == '{')
                ++profondeur;
            else if (c == '}')
                --profondeur;
        }
    }
    return propre;
}

std::string SansSeparateur(std::string_view champ) {
    std::string propre = SansDiese(champ);
    std::replace(propre.begin(), propre.end(), ';', ',');
    return propre;
}

template <class Cle>
std::string_view ColonneTextes<Cle>::LireTexte(Cle n) {
    if (n && n == noMemo_) return memo_;
    memo_.clear();
    noMemo_ = n;
    this->volume_.LireTexteDans(memo_, this->LireCellule(n), LimiteDeLecture(limite_));
    return memo_;
}

template <class Cle>
void ColonneTextes<Cle>::EcrireTexte(Cle n, std::string_view texte) {
    std::string propre = SansDiese(texte.substr(0, MaxTexte));
    this->EcrireCellule(n, propre.empty() ? Position{} : this->volume_.Ajouter(propre, "#"));
    memo_ = std::move(propre);
    noMemo_ = n;
}

template <class Cle>
void ColonneTextes<Cle>::InitColonne() {
    ColonneBrute::InitColonne();
    noMemo_ = {};
    memo_.clear();
}

template class ColonneTextes<NoOrdre>;
template class ColonneTextes<NoMariage>;

}  // namespace dorvane::storage

// Record: symbol, label, byte 255 and Num4 position of the word list when there is one, "#", blanks
// up to a multiple of 40 bytes.
#include "storage/MotsCles.h"

#include "storage/Textes.h"
#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {
namespace {

constexpr std::size_t TailleMorceau = 40;
constexpr std::size_t MaxLibelle = 34;
constexpr std::size_t MaxFiche = 5 * TailleMorceau;  // far more than any label needs
constexpr char Separateur = '\xFF';

MotCle DecoderFiche(std::string_view fiche) {
    MotCle type;
    type.symbole = fiche[0];
    const std::size_t fin = fiche.find_first_of("#\xFF", 1);
    type.libelle = fiche.substr(1, fin == std::string_view::npos ? MaxLibelle : fin - 1);
    // The 4 bytes behind the separator are the position whatever they hold, "#" included.
    if (fin != std::string_view::npos && fiche[fin] == Separateur) {
        type.indexe = true;
        type.mots = Position{Chaine4VersNum(fiche.substr(fin + 1, 4))};
    }
    return type;
}

std::string ComposerFiche(const MotCle& type) {
    std::string libelle = SansDiese(type.libelle.substr(0, MaxLibelle));
    std::replace(libelle.begin(), libelle.end(), Separateur, 'y');
    std::string fiche = type.symbole + libelle;
    if (type.indexe) fiche += Separateur + NumVersChaine4(type.mots.valeur);
    fiche += '#';
    fiche.resize((fiche.size() + TailleMorceau - 1) / TailleMorceau * TailleMorceau, ' ');
    return fiche;
}

}  // namespace

const MotCle& MotsCles::LibelleType(NoMotCle k) {
    const std::size_t i = k.valeur - 1ULL;
    if (i >= Nombre() || i >= MaxMotsCles) return vide_;
    if (!lu_[i]) {
        std::string fiche(MaxFiche, '\0');
        memo_[i] = {};
        if (repertoire_[i] != 0 && volume_.Lire(Position{repertoire_[i]}, fiche) > 0)
            memo_[i] = DecoderFiche(fiche);
        lu_[i] = true;
    }
    return memo_[i];
}

NoMotCle MotsCles::TypeDuSymbole(char symbole) {
    for (NoMotCle k{1}; k.valeur <= Nombre(); ++k.valeur)
        if (LibelleType(k).symbole == symbole) return k;
    return {};
}

void MotsCles::CreerType(NoMotCle k, const MotCle& type) {
    const std::size_t i = k.valeur - 1ULL;
    if (i >= MaxMotsCles) return;
    repertoire_[i] = volume_.Ajouter(ComposerFiche(type)).valeur;
    lu_[i] = false;
    entete_.NbMotsCles = std::max(entete_.NbMotsCles, k.valeur);
    marques_.ModifBase = true;
}

void MotsCles::EffacerType(NoMotCle k) {
    const std::size_t i = k.valeur - 1ULL;
    if (i >= Nombre() || i >= MaxMotsCles) return;
    repertoire_[i] = 0;
    lu_[i] = false;
    marques_.ModifBase = true;
}

void MotsCles::Reordonner(std::span<const NoMotCle> ordre) {
    std::array<std::uint32_t, MaxMotsCles> nouveau{};
    const std::size_t nombre = std::min<std::size_t>(ordre.size(), MaxMotsCles);
    for (std::size_t i = 0; i < nombre; ++i)
        if (ordre[i] && ordre[i].valeur <= MaxMotsCles)
            nouveau[i] = repertoire_[ordre[i].valeur - 1];
    repertoire_ = nouveau;
    entete_.NbMotsCles = static_cast<std::uint32_t>(nombre);
    marques_.ModifBase = true;
    Oublier();
}

void MotsCles::FixerRepertoire(std::string_view octets) {
    for (std::size_t i = 0; i < MaxMotsCles; ++i)
        repertoire_[i] = Chaine4VersNum(octets.substr(std::min(i * 4, octets.size()), 4));
    Oublier();
}

std::string MotsCles::OctetsRepertoire() const {
    std::string octets;
    for (const std::uint32_t position : repertoire_)
        octets += NumVersChaine4(position);
    return octets;
}

void MotsCles::Oublier() {
    lu_.fill(false);
}

}  // namespace dorvane::storage

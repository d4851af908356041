#include "storage/Commune.h"

#include "storage/Textes.h"
#include "values/Comparaison.h"
#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {

namespace {

std::string NettoyerChamp(std::string_view champ) {
    std::string propre = SansDiese(champ);
    std::replace_if(
        propre.begin(), propre.end(), [](char c) { return c == '\0' || c == '\r' || c == '\n'; },
        ' ');
    return std::string{SansBlancs(propre)};
}

/// Takes the field in front of `fin` off `reste`. False when there is none.
bool PrendreChamp(std::string_view& reste, std::string& champ, std::string_view fin) {
    const std::size_t place = reste.find(fin);
    if (place == std::string_view::npos) return false;
    champ.assign(reste.substr(0, place));
    reste.remove_prefix(place + fin.size());
    return true;
}

/// The name and what may stand behind its byte 0: four bytes of any value, "#" among them.
bool PrendreNom(std::string_view& reste, EnregistrementCommune& e) {
    const std::size_t fin = reste.find_first_of(std::string_view{"#\0", 2});
    if (fin == std::string_view::npos) return false;
    e.commune.nom.assign(reste.substr(0, fin));
    const bool avecCommentaire = reste[fin] == '\0';
    reste.remove_prefix(fin + 1);
    if (!avecCommentaire) return true;
    if (reste.size() < 5 || reste[4] != '#') return false;
    e.commentaire = Position{Chaine4VersNum(reste)};
    reste.remove_prefix(5);
    return true;
}

}  // namespace

Commune NettoyerCommune(const Commune& commune) {
    Commune propre;
    propre.nom = NettoyerChamp(commune.nom);
    propre.code = NettoyerChamp(commune.code);
    propre.autreCode = NettoyerChamp(commune.autreCode);
    propre.rattachement = NettoyerChamp(commune.rattachement);
    propre.precision = NettoyerChamp(commune.precision);
    propre.commentaire = SansDiese(commune.commentaire);
    std::replace(propre.commentaire.begin(), propre.commentaire.end(), '\0', ' ');
    propre.commentaire = SansBlancs(propre.commentaire);
    return propre;
}

bool TropLongue(const Commune& commune) {
    EnregistrementCommune e;
    e.commune = NettoyerCommune(commune);
    e.commentaire = Position{1};
    return ComposerCommune(e).size() > MaxFicheCommune;
}

std::string TexteLieu(const Commune& commune) {
    std::string lieu = commune.nom;
    for (const std::string* suite : {&commune.rattachement, &commune.precision})
        if (!suite->empty()) lieu.append(", ").append(*suite);
    return lieu;
}

std::string ComposerCommune(const EnregistrementCommune& e) {
    const Commune& c = e.commune;
    std::string octets = c.code + '#' + c.rattachement + '#' + c.nom;
    if (e.commentaire) octets.append(1, '\0').append(NumVersChaine4(e.commentaire.valeur));
    octets.append(1, '#').append(c.autreCode).append(1, '#').append(c.precision).append("##");
    return octets + NumVersChaine4(e.suivanteNom.valeur) + NumVersChaine4(e.suivanteSon.valeur);
}

std::size_t AnalyserCommune(std::string_view octets, EnregistrementCommune& e) {
    std::string_view reste = octets;
    Commune& c = e.commune;
    if (!PrendreChamp(reste, c.code, "#") || !PrendreChamp(reste, c.rattachement, "#") ||
        !PrendreNom(reste, e) || !PrendreChamp(reste, c.autreCode, "#") ||
        !PrendreChamp(reste, c.precision, "##") || reste.size() < 8)
        return std::string_view::npos;
    e.suivanteNom = NoCommune{Chaine4VersNum(reste)};
    e.suivanteSon = NoCommune{Chaine4VersNum(reste.substr(4))};
    return octets.size() - reste.size();
}

}  // namespace dorvane::storage

// What changes a base of communes: records, the two indexes and their chains.
#include "storage/BaseCommunes.h"
#include "values/Octets.h"
#include "values/Phonetique.h"

namespace dorvane::storage {

NoCommune BaseCommunes::AjouterCommune(const Commune& commune) {
    const Commune propre = NettoyerCommune(commune);
    if (propre.nom.empty() || TropLongue(propre) || Nombre() >= MaxCommunes) return {};
    const NoCommune n{Nombre() + 1};
    image_.FixerNombre(AireLgx::Communes, n.valeur);
    EnregistrementCommune e;
    EcrireFiche(n, e, propre);
    Inscrire(ParNom, CleCommune(propre.nom), n);
    Inscrire(ParSon, ClePhonetique(propre.nom), n);
    return n;
}

bool BaseCommunes::MajCommune(NoCommune n, const Commune& commune) {
    const Commune propre = NettoyerCommune(commune);
    EnregistrementCommune e;
    if (propre.nom.empty() || TropLongue(propre) || !Lire(n, e)) return false;
    const std::string ancienNom = CleCommune(e.commune.nom);
    const std::string nouveauNom = CleCommune(propre.nom);
    const std::string ancienSon = ClePhonetique(e.commune.nom);
    const std::string nouveauSon = ClePhonetique(propre.nom);
    if (ancienNom != nouveauNom) Rayer(ParNom, ancienNom, n);
    if (ancienSon != nouveauSon) Rayer(ParSon, ancienSon, n);
    static_cast<void>(Lire(n, e));  // with the links as they are now
    EcrireFiche(n, e, propre);
    if (ancienNom != nouveauNom) Inscrire(ParNom, nouveauNom, n);
    if (ancienSon != nouveauSon) Inscrire(ParSon, nouveauSon, n);
    return true;
}

bool BaseCommunes::SupprimerCommune(NoCommune n) {
    EnregistrementCommune e;
    if (!Lire(n, e)) return false;
    Rayer(ParNom, CleCommune(e.commune.nom), n);
    Rayer(ParSon, ClePhonetique(e.commune.nom), n);
    e = {};
    EcrireFiche(n, e, {});
    image_.FixerCellule(AireLgx::Communes, n.valeur, {});
    return true;
}

/// Appends the record, and the comment if it is another one. `e` brings the links.
void BaseCommunes::EcrireFiche(NoCommune n, EnregistrementCommune& e, const Commune& commune) {
    const Position ancien = image_.Cellule(AireLgx::Commentaires, n.valeur);
    const std::string garde = ancien ? LireCommune(n).commentaire : std::string{};
    e.commune = commune;
    e.commentaire = ancien;
    if (garde != commune.commentaire) {
        e.commentaire =
            commune.commentaire.empty() ? Position{} : image_.Ajouter(commune.commentaire + '#');
        image_.FixerCellule(AireLgx::Commentaires, n.valeur, e.commentaire);
        const std::uint32_t nombre = image_.Nombre(AireLgx::Commentaires);
        if (e.commentaire && !ancien) image_.FixerNombre(AireLgx::Commentaires, nombre + 1);
        if (!e.commentaire && ancien && nombre > 0)
            image_.FixerNombre(AireLgx::Commentaires, nombre - 1);
    }
    image_.FixerCellule(AireLgx::Communes, n.valeur, image_.Ajouter(ComposerCommune(e)));
    modifiee_ = true;
}

void BaseCommunes::Inscrire(const Index& index, std::string_view cle, NoCommune n) {
    const std::uint32_t i = ChercherEntree(index, cle);
    const std::uint32_t derniere = NbEntrees(index);
    if (i <= derniere && TexteEntree(index, i) == cle) {
        const std::vector<NoCommune> chaine = Chaine(index, PremiereDe(index, i));
        if (chaine.empty())
            FixerPremiere(index, i, n);
        else
            Enchainer(index, chaine.back(), n);
        return;
    }
    if (image_.Nombre(index.aire) == 0) {
        image_.FixerCellule(
            index.aire, 1, image_.Ajouter(std::string{index.sentinelle} + '#' + NumVersChaine4(0)));
        image_.FixerNombre(index.aire, 1);
    }
    if (derniere + 2 > ImageLgx::MaxCellules) return;  // the count of a damaged file
    for (std::uint32_t j = derniere + 1; j >= i; --j)  // the sentinel moves too
        image_.FixerCellule(index.aire, j + 1, image_.Cellule(index.aire, j));
    image_.FixerCellule(index.aire, i,
                        image_.Ajouter(std::string{cle} + '#' + NumVersChaine4(n.valeur)));
    image_.FixerNombre(index.aire, derniere + 2);
}

void BaseCommunes::Rayer(const Index& index, std::string_view cle, NoCommune n) {
    const std::uint32_t i = ChercherEntree(index, cle);
    if (i > NbEntrees(index) || TexteEntree(index, i) != cle) return;
    const std::vector<NoCommune> chaine = Chaine(index, PremiereDe(index, i));
    for (std::size_t k = 0; k < chaine.size(); ++k) {
        if (chaine[k] != n) continue;
        const NoCommune suivante = k + 1 < chaine.size() ? chaine[k + 1] : NoCommune{};
        if (k > 0)
            Enchainer(index, chaine[k - 1], suivante);
        else if (suivante)
            FixerPremiere(index, i, suivante);
        else
            OterEntree(index, i);
        Enchainer(index, n, {});
        return;
    }
}

void BaseCommunes::OterEntree(const Index& index, std::uint32_t i) {
    const std::uint32_t nombre = image_.Nombre(index.aire);
    for (std::uint32_t j = i; j <= nombre; ++j)
        image_.FixerCellule(index.aire, j, image_.Cellule(index.aire, j + 1));
    image_.FixerNombre(index.aire, nombre - 1);
}

void BaseCommunes::FixerPremiere(const Index& index, std::uint32_t i, NoCommune n) {
    image_.FixerCellule(
        index.aire, i,
        image_.Ajouter(std::string{TexteEntree(index, i)} + '#' + NumVersChaine4(n.valeur)));
}

void BaseCommunes::Enchainer(const Index& index, NoCommune n, NoCommune suivante) {
    EnregistrementCommune e;
    Position liens;
    if (!Lire(n, e, &liens)) return;
    image_.Remplacer(Position{liens.valeur + static_cast<std::uint32_t>(index.decalage)},
                     NumVersChaine4(suivante.valeur));
}

}  // namespace dorvane::storage

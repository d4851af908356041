#include "messages/Soin.h"
#include "records/AtelierDepannage.h"
#include "records/Filiation.h"
#include "records/Individus.h"
#include "records/Unions.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <utility>

namespace dorvane::records {
namespace {

template <class Element>
bool Contient(storage::ListeNumeros<Element>& liste, NoOrdre n, Element element) {
    const std::vector<Element> elements = liste.Elements(n);
    return std::find(elements.begin(), elements.end(), element) != elements.end();
}

/// Takes out of a list what `bon` does not let stand, and what stands twice. `noter` is told each.
template <class Element, class Bon, class Noter>
void Filtrer(AtelierDepannage& a, storage::ListeNumeros<Element>& liste, NoOrdre n, Bon bon,
             Noter noter) {
    const std::vector<Element> elements = liste.Elements(n);
    std::vector<Element> gardes;
    std::string octets;
    for (const Element element : elements) {
        const bool deja = std::find(gardes.begin(), gardes.end(), element) != gardes.end();
        if (!deja && bon(element)) {
            gardes.push_back(element);
            octets += NumVersChaine2(element.valeur);
        } else {
            noter(element);
        }
    }
    if (gardes.size() == elements.size()) return;
    liste.EcrireListe(n, octets);
    a.base.marques.AffichagePerime = true;
}

void NettoyerEnfants(AtelierDepannage& a, NoOrdre n) {
    storage::Base& b = a.base;
    Filtrer(
        a, b.R_ENFANT, n,
        [&](NoOrdre enfant) {
            // Either cell will do: a parent whose sex was entered wrongly keeps the children.
            return a.Vivant(enfant) &&
                   (b.R_PERE.LireCellule(enfant) == n || b.R_MERE.LireCellule(enfant) == n);
        },
        [&](NoOrdre enfant) {
            a.Noter("Suppression Enfant " + a.Nommer(enfant),
                    "Suppression lien enfant de " + a.Nommer(n) + " avec " + a.Nommer(enfant));
        });
}

void NettoyerUnions(AtelierDepannage& a, NoOrdre n) {
    storage::Base& b = a.base;
    Filtrer(
        a, b.R_MARIAG, n,
        [&](NoMariage m) {
            return m.valeur <= b.entete.DernierMariage &&
                   (b.R_EPOUX.LireCellule(m) == n || b.R_EPOUSE.LireCellule(m) == n);
        },
        [&](NoMariage m) {
            a.Noter("Suppression Mariage " + std::to_string(m.valeur),
                    "Suppression lien mariage de " + a.Nommer(n));
        });
}

/// Empties a union, its text with the words of the index first.
void EffacerUnion(AtelierDepannage& a, NoMariage m) {
    storage::Base& b = a.base;
    if (!b.R_TXTMAR.LireTexte(m).empty()) EcrireTexteMariage(a.session, m, {});
    if (!b.R_DEBMAR.LireCellule(m).empty()) b.R_DEBMAR.EcrireCellule(m, {});
    if (!b.R_FINMAR.LireCellule(m).empty()) b.R_FINMAR.EcrireCellule(m, {});
    b.R_EPOUX.EcrireCellule(m, {});
    b.R_EPOUSE.EcrireCellule(m, {});
    const std::string numero = std::to_string(m.valeur);
    a.Noter("Suppression Mariage " + numero,
            "Mariage " + numero + std::string{" incohérent supprimé"_1252});
}

void AjouterUnion(AtelierDepannage& a, NoMariage m, NoOrdre n, NoOrdre autre) {
    storage::ListeNumeros<NoMariage>& unions = a.base.R_MARIAG;
    if (!n || Contient(unions, n, m)) return;
    // What does not belong there makes room.
    if (unions.NbElements(n) >= storage::MaxElements) NettoyerUnions(a, n);
    if (unions.NbElements(n) >= storage::MaxElements)
        return a.Regretter(message::EtatListePleine, a.Nommer(n));
    MajMariage(a.session, n, m, storage::ActionListe::Ajouter);
    a.Noter("Ajout Mariage " + a.Nommer(n), "Lien mariage de " + a.Nommer(n) + " avec " +
                                                a.Nommer(autre) + std::string{" créé"_1252});
}

/// A partner who was deleted leaves the union to the other.
void RetirerPartenaire(AtelierDepannage& a, NoMariage m, storage::ColonnePartenaires& colonne) {
    const NoOrdre parti = colonne.LireCellule(m);
    if (!parti || a.Vivant(parti)) return;
    const std::string texte{a.base.R_TXTMAR.LireTexte(m)};
    a.base.R_INDEX.MajIndex(parti, texte, {});
    colonne.EcrireCellule(m, {});
    a.Noter("Suppression Conjoint " + std::to_string(parti.valeur),
            "Suppression conjoint du mariage " + std::to_string(m.valeur));
}

void DepannerMariage(AtelierDepannage& a, NoMariage m) {
    storage::Base& b = a.base;
    NoOrdre epoux = b.R_EPOUX.LireCellule(m);
    NoOrdre epouse = b.R_EPOUSE.LireCellule(m);
    if (!epoux && !epouse) return;
    const std::uint32_t dernier = b.entete.DernierIndividu;
    if (epoux.valeur > dernier || epouse.valeur > dernier ||
        (!a.Vivant(epoux) && !a.Vivant(epouse)))
        return EffacerUnion(a, m);
    RetirerPartenaire(a, m, b.R_EPOUX);
    RetirerPartenaire(a, m, b.R_EPOUSE);
    if (b.R_SEXE.LireCellule(epoux) == Sexe::Femme && b.R_SEXE.LireCellule(epouse) == Sexe::Homme &&
        a.Vivant(epoux) && a.Vivant(epouse)) {
        b.R_EPOUX.EcrireCellule(m, epouse);
        b.R_EPOUSE.EcrireCellule(m, epoux);
        a.Noter("Echange Mariage " + std::to_string(m.valeur),
                "Echange des conjoints " + a.Nommer(epoux) + " et " + a.Nommer(epouse));
    }
    epoux = b.R_EPOUX.LireCellule(m);
    epouse = b.R_EPOUSE.LireCellule(m);
    AjouterUnion(a, m, epoux, epouse);
    AjouterUnion(a, m, epouse, epoux);
}

void DepannerParent(AtelierDepannage& a, NoOrdre n, storage::ColonneParents& colonne,
                    std::string_view titre, std::string_view mot) {
    storage::Base& b = a.base;
    const NoOrdre parent = colonne.LireCellule(n);
    if (!parent) return;
    if (!a.Vivant(parent)) {
        colonne.EcrireCellule(n, {});
        a.Noter("Suppression " + std::string{titre} + ' ' + a.Nommer(n),
                "Suppression " + std::string{mot} + " de " + std::to_string(n.valeur));
        return;
    }
    if (Contient<NoOrdre>(b.R_ENFANT, parent, n)) return;
    if (b.R_ENFANT.NbElements(parent) >= storage::MaxElements) NettoyerEnfants(a, parent);
    if (b.R_ENFANT.NbElements(parent) >= storage::MaxElements)
        return a.Regretter(message::EtatListePleine, a.Nommer(parent));
    MajEnfant(a.session, parent, n, storage::ActionListe::Ajouter);
    a.Noter("Ajout Enfant " + a.Nommer(n),
            "Ajout lien enfant de " + a.Nommer(parent) + " avec " + a.Nommer(n));
}

}  // namespace

bool DepannerMariages(AtelierDepannage& a) {
    a.Phase("Analyse Mariages");
    const std::uint32_t dernier = a.base.entete.DernierMariage;
    for (NoMariage m{1}; m.valeur <= dernier; ++m.valeur) {
        if (!a.Continuer(m.valeur - 1, dernier)) return false;
        DepannerMariage(a, m);
    }
    return true;
}

bool DepannerPersonnes(AtelierDepannage& a) {
    a.Phase("Analyse Personnes");
    const std::uint32_t nombre = a.base.entete.NbTriIndividus;
    for (std::uint32_t rang = 1; rang <= nombre; ++rang) {
        if (!a.Continuer(rang - 1, nombre)) return false;
        const NoOrdre n = a.base.R_TRI.IndividuAuRang(rang);
        if (!n) continue;
        DepannerParent(a, n, a.base.R_PERE, "Père"_1252, "père"_1252);
        DepannerParent(a, n, a.base.R_MERE, "Mère"_1252, "mère"_1252);
        NettoyerEnfants(a, n);
        NettoyerUnions(a, n);
    }
    return true;
}

}  // namespace dorvane::records

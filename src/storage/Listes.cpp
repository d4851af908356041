// Entries of 2 bytes (Num2) or 6 bytes (Num2, Num4), then Num2 0.
#include "storage/Listes.h"

#include "storage/Evenements.h"
#include "storage/Textes.h"
#include "values/Octets.h"

#include <algorithm>
#include <utility>

namespace dorvane::storage {
namespace {

constexpr std::string_view FinDeListe{"\0\0", 2};
constexpr std::size_t MaxTexteLu = 50;

std::uint32_t NumeroA(std::string_view liste, std::size_t decalage) {
    return Chaine2VersNum(liste.substr(decalage, 2));
}

}  // namespace

std::string_view ColonneListe::ListeDe(NoOrdre n) {
    if (n && n == noMemo_) return memo_;
    const Position position = LireCellule(n);
    memo_.clear();
    noMemo_ = n;
    if (!position) return memo_;
    memo_.resize(MaxElements * tailleElement_);
    volume_.Lire(position, memo_);
    std::size_t fin = 0;
    while (fin < memo_.size() && NumeroA(memo_, fin) != 0)
        fin += tailleElement_;
    memo_.resize(fin);
    return memo_;
}

void ColonneListe::EcrireListe(NoOrdre n, std::string_view octets) {
    // The memo itself may be what is stored again.
    std::string liste{octets};
    EcrireCellule(n, liste.empty() ? Position{} : volume_.Ajouter(liste, FinDeListe));
    liste.resize(std::min(liste.size(), MaxElements * tailleElement_));
    memo_ = std::move(liste);
    noMemo_ = n;
}

void ColonneListe::InitColonne() {
    Colonne::InitColonne();
    noMemo_ = {};
    memo_.clear();
}

std::uint32_t ColonneListe::Tete(NoOrdre n, std::size_t k) {
    const std::string_view liste = ListeDe(n);
    return k - 1 < liste.size() / tailleElement_ ? NumeroA(liste, (k - 1) * tailleElement_) : 0;
}

template <class Element>
std::vector<Element> ListeNumeros<Element>::Elements(NoOrdre n) {
    const std::string_view liste = ListeDe(n);
    std::vector<Element> elements;
    elements.reserve(liste.size() / 2);
    for (std::size_t i = 0; i < liste.size(); i += 2)
        elements.emplace_back(NumeroA(liste, i));
    return elements;
}

template <class Element>
std::size_t ListeNumeros<Element>::Place(std::string_view liste, Element /*element*/) {
    return liste.size();
}

template <class Element>
void ListeNumeros<Element>::ModifierListe(NoOrdre n, Element element, ActionListe action) {
    if (perime_) marques_.AffichagePerime = true;
    std::string liste{ListeDe(n)};
    const std::string octets = NumVersChaine2(element.valeur);
    if (action == ActionListe::Ajouter) {
        liste.insert(Place(liste, element), octets);
    } else {
        std::size_t i = 0;
        while (i < liste.size() && liste.compare(i, 2, octets) != 0)
            i += 2;
        if (i >= liste.size()) return;
        liste.erase(i, 2);
    }
    EcrireListe(n, liste);
}

template class ListeNumeros<NoOrdre>;
template class ListeNumeros<NoMariage>;
template class ListeNumeros<NoDocument>;

std::size_t ListeEnfants::Place(std::string_view liste, NoOrdre enfant) {
    const std::string annee = naissances_.AnneeTri(enfant);
    std::size_t i = 0;
    while (i < liste.size() && naissances_.AnneeTri(NoOrdre{NumeroA(liste, i)}) <= annee)
        i += 2;
    return i;
}

template <class Element>
std::string ListeTextes<Element>::TexteElement(NoOrdre n, std::size_t k) {
    const std::string_view liste = ListeDe(n);
    if (k - 1 >= liste.size() / 6) return {};
    const Position texte{Chaine4VersNum(liste.substr((k - 1) * 6 + 2, 4))};
    return volume_.LireTexte(texte, MaxTexteLu);
}

template <class Element>
std::string ListeTextes<Element>::ComposerElement(Element element, std::string_view texte) {
    const std::string propre = SansDiese(texte.substr(0, MaxTexteElement));
    const Position position =
        volume_.Ajouter(std::string_view{propre}.substr(0, MaxTexteElement), "#");
    return NumVersChaine2(element.valeur) + NumVersChaine4(position.valeur);
}

template <class Element>
void ListeTextes<Element>::ModifierListe(NoOrdre n, Element element, ActionListe action,
                                         std::string_view texte) {
    marques_.AffichagePerime = true;
    std::string liste{ListeDe(n)};
    if (action == ActionListe::Ajouter) {
        EcrireListe(n, liste + ComposerElement(element, texte));
        Ranger(n);
    } else if (const std::size_t k = Chercher(n, element, texte); k != 0) {
        EcrireListe(n, liste.erase((k - 1) * 6, 6));
    }
}

template <class Element>
void ListeTextes<Element>::ChangerTexte(NoOrdre n, std::size_t k, std::string_view texte) {
    marques_.AffichagePerime = true;
    std::string liste{ListeDe(n)};
    if (k - 1 >= liste.size() / 6) return;
    const Element meme{NumeroA(liste, (k - 1) * 6)};
    EcrireListe(n, liste.replace((k - 1) * 6, 6, ComposerElement(meme, texte)));
}

template class ListeTextes<NoOrdre>;
template class ListeTextes<NoEvenement>;

std::size_t ListeLiens::Chercher(NoOrdre n, NoOrdre autre, std::string_view libelle) {
    // As it is stored: without "#", at most 49 bytes.
    const std::string propre =
        SansDiese(libelle.substr(0, MaxTexteElement)).substr(0, MaxTexteElement);
    for (std::size_t k = 1; k <= NbElements(n); ++k)
        if (ElementListe(n, k) == autre && TexteElement(n, k) == propre) return k;
    return 0;
}

std::size_t ListeEvenements::Chercher(NoOrdre n, NoEvenement evenement, std::string_view /*role*/) {
    for (std::size_t k = 1; k <= NbElements(n); ++k)
        if (ElementListe(n, k) == evenement) return k;
    return 0;
}

void ListeEvenements::TrierEvenements(NoOrdre n) {
    const std::string_view liste = ListeDe(n);
    std::vector<std::pair<std::int32_t, std::string>> entrees;
    for (std::size_t i = 0; i < liste.size(); i += 6)
        entrees.emplace_back(evenements_.CleDateEvt(NoEvenement{NumeroA(liste, i)}),
                             liste.substr(i, 6));
    const auto avant = [](const auto& a, const auto& b) { return a.first < b.first; };
    if (std::is_sorted(entrees.begin(), entrees.end(), avant)) return;
    std::stable_sort(entrees.begin(), entrees.end(), avant);
    std::string triee;
    for (const auto& entree : entrees)
        triee += entree.second;
    EcrireListe(n, triee);
}

}  // namespace dorvane::storage

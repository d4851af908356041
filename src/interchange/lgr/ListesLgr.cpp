#include "interchange/lgr/ListesLgr.h"

#include "storage/Listes.h"

#include <algorithm>
#include <span>
#include <utility>

namespace dorvane::interchange {
namespace {

using Place = ListesLgr::Place;

template <class Element>
std::span<const Element> Tranche(const std::vector<Element>& rang, const TrancheLgr& tranche) {
    return std::span{rang}.subspan(tranche.debut, tranche.nombre);
}

bool Contient(const std::vector<Place>& liste, Place place) {
    return std::ranges::find(liste, place) != liste.end();
}

bool Contient(const std::vector<ListesLgr::Lien>& liste, Place vers, std::string_view texte) {
    return std::ranges::any_of(
        liste, [&](const ListesLgr::Lien& l) { return l.vers == vers && l.texte == texte; });
}

template <class Liste>
bool EstPleine(const Liste& liste) {
    return liste.size() >= storage::MaxElements;
}

}  // namespace

/// What is read while the lists are made.
struct ListesLgr::Sources {
    const ContenuLgr& contenu;
    const NumerosLgr& individus;
    const NumerosLgr& documents;
    const NumerosLgr& evenements;
    RapportImport& rapport;

    /// The place that a number stands for, noted when there is none.
    Place Trouver(const NumerosLgr& numeros, std::uint32_t numero, std::string_view chemin,
                  std::uint32_t ligne) const {
        const Place place = numeros.Place(numero);
        if (place == Aucune && numero != 0) rapport.Noter(Constat::Reference, chemin, ligne);
        return place;
    }
};

void ListesLgr::AccorderParents(const Sources& s) {
    parents_.resize(s.contenu.individus.size());
    std::vector<std::uint8_t> enfants(s.contenu.individus.size());
    const auto donner = [&](Place enfant, std::uint32_t numero, Place dejaLa) -> Place {
        const IndividuLgr& lu = s.contenu.individus[enfant];
        const Place parent = s.Trouver(s.individus, numero, "INDIVIDUS", lu.ligne);
        if (parent == Aucune || parent == dejaLa) return parent;
        if (parent == enfant || enfants[parent] >= storage::MaxElements) {
            s.rapport.Noter(parent == enfant ? Constat::NonRepris : Constat::Limite, "INDIVIDUS",
                            lu.ligne);
            return Aucune;
        }
        ++enfants[parent];
        return parent;
    };
    for (const Place i : s.individus.Ordre()) {
        Parents& parents = parents_[i];
        parents.pere = donner(i, s.contenu.individus[i].pere, Aucune);
        parents.mere = donner(i, s.contenu.individus[i].mere, parents.pere);
    }
}

/// The lists of the persons, as far as the unions name them.
void ListesLgr::LireUnions(const Sources& s) {
    if (s.contenu.UnionsParRang()) return;
    for (const Place i : s.individus.Ordre()) {
        const IndividuLgr& lu = s.contenu.individus[i];
        for (const std::uint32_t rang : Tranche(s.contenu.numeros, lu.unions)) {
            const Place u = rang - 1;
            if (u >= couples_.size() || (couples_[u].epoux != i && couples_[u].epouse != i)) {
                s.rapport.Noter(Constat::Reference, "INDIVIDUS {Mariages}", lu.ligne);
                continue;
            }
            if (!EstPleine(unions_[i]) && !Contient(unions_[i], u)) unions_[i].push_back(u);
        }
    }
}

void ListesLgr::AccorderUnions(const Sources& s) {
    couples_.resize(s.contenu.unions.size());
    unions_.resize(s.contenu.individus.size());
    for (Place u = 0; u < couples_.size(); ++u) {
        const UnionLgr& lue = s.contenu.unions[u];
        Couple& couple = couples_[u];
        couple.epoux = s.Trouver(s.individus, lue.epoux, "MARIAGES", lue.ligne);
        couple.epouse = s.Trouver(s.individus, lue.epouse, "MARIAGES", lue.ligne);
    }
    LireUnions(s);
    for (Place u = 0; u < couples_.size(); ++u)
        for (Place* partenaire : {&couples_[u].epoux, &couples_[u].epouse}) {
            if (*partenaire == Aucune || Contient(unions_[*partenaire], u)) continue;
            if (!EstPleine(unions_[*partenaire])) {
                unions_[*partenaire].push_back(u);
                continue;
            }
            s.rapport.Noter(Constat::Limite, "MARIAGES", s.contenu.unions[u].ligne);
            *partenaire = Aucune;
        }
}

// A label may differ from one side to the other: a link is missing on a side only when that side
// says nothing of the person at all.
void ListesLgr::AccorderLiens(const Sources& s) {
    liens_.resize(s.contenu.individus.size());
    std::vector<std::pair<Place, Place>> dits;
    for (const Place i : s.individus.Ordre()) {
        const IndividuLgr& lu = s.contenu.individus[i];
        for (const RenvoiLgr& renvoi : Tranche(s.contenu.renvois, lu.liens)) {
            const Place autre = s.Trouver(s.individus, renvoi.numero, "INDIVIDUS", lu.ligne);
            if (autre == Aucune || autre == i || Contient(liens_[i], autre, renvoi.texte)) continue;
            if (EstPleine(liens_[i])) {
                s.rapport.Noter(Constat::Limite, "INDIVIDUS", lu.ligne);
                break;
            }
            liens_[i].push_back({autre, renvoi.texte});
            dits.emplace_back(i, autre);
        }
    }
    std::ranges::sort(dits);
    std::vector<std::pair<Place, Lien>> manquants;
    for (const Place i : s.individus.Ordre())
        for (const Lien& lien : liens_[i])
            if (!std::ranges::binary_search(dits, std::pair{lien.vers, i}))
                manquants.push_back({lien.vers, {i, lien.texte}});
    for (const auto& [de, lien] : manquants) {
        if (!EstPleine(liens_[de]))
            liens_[de].push_back(lien);
        else
            s.rapport.Noter(Constat::Limite, "INDIVIDUS", s.contenu.individus[de].ligne);
    }
}

void ListesLgr::AccorderDocuments(const Sources& s) {
    const auto lire = [&](const TrancheLgr& tranche, std::string_view chemin, std::uint32_t ligne,
                          std::vector<Place>& liste, bool unique) {
        for (const std::uint32_t numero : Tranche(s.contenu.numeros, tranche)) {
            const Place d = s.Trouver(s.documents, numero, chemin, ligne);
            if (d == Aucune) continue;
            if (EstPleine(liste)) {
                s.rapport.Noter(Constat::Limite, chemin, ligne);
                return;
            }
            if (!unique || !Contient(liste, d)) liste.push_back(d);
        }
    };
    documents_.resize(s.contenu.individus.size());
    for (const Place i : s.individus.Ordre()) {
        const IndividuLgr& lu = s.contenu.individus[i];
        lire(lu.documents, "INDIVIDUS", lu.ligne, documents_[i], true);
    }
    pieces_.resize(s.contenu.evenements.size());
    for (const Place e : s.evenements.Ordre()) {
        const EvenementLgr& lu = s.contenu.evenements[e];
        // Pages of one document may stand in an event several times.
        lire(lu.documents, "EVENEMENTS", lu.ligne, pieces_[e], false);
    }
}

void ListesLgr::LireRoles(const Sources& s) {
    roles_.resize(s.contenu.individus.size());
    for (const Place i : s.individus.Ordre()) {
        const IndividuLgr& lu = s.contenu.individus[i];
        for (const RenvoiLgr& renvoi : Tranche(s.contenu.renvois, lu.evenements)) {
            const Place e = s.Trouver(s.evenements, renvoi.numero, "INDIVIDUS", lu.ligne);
            if (e == Aucune || Contient(roles_[i], e, renvoi.texte)) continue;
            if (EstPleine(roles_[i])) {
                s.rapport.Noter(Constat::Limite, "INDIVIDUS", lu.ligne);
                break;
            }
            roles_[i].push_back({e, renvoi.texte});
        }
    }
}

// An event names its persons in their order, the persons know their roles. Who is named by one side
// only is entered on the other.
void ListesLgr::AccorderEvenements(const Sources& s) {
    LireRoles(s);
    personnes_.resize(s.contenu.evenements.size());
    for (const Place e : s.evenements.Ordre()) {
        const EvenementLgr& lu = s.contenu.evenements[e];
        for (const std::uint32_t numero : Tranche(s.contenu.numeros, lu.personnes)) {
            const Place i = s.Trouver(s.individus, numero, "EVENEMENTS", lu.ligne);
            if (i == Aucune) continue;
            std::vector<Lien>& siens = roles_[i];
            const auto role =
                std::ranges::find_if(siens, [&](const Lien& l) { return l.vers == e && !l.vu; });
            if (role != siens.end()) {
                role->vu = true;
                personnes_[e].push_back({i, role->texte});
                continue;
            }
            // A second mention without a second role says nothing new.
            if (std::ranges::find(siens, e, &Lien::vers) != siens.end()) continue;
            if (EstPleine(siens)) {
                s.rapport.Noter(Constat::Limite, "EVENEMENTS", lu.ligne);
                continue;
            }
            siens.push_back({e, {}, true});
            personnes_[e].push_back({i, {}});
        }
    }
    for (const Place i : s.individus.Ordre())
        for (const Lien& lien : roles_[i])
            if (!lien.vu) personnes_[lien.vers].push_back({i, lien.texte});
}

void ListesLgr::Accorder(const ContenuLgr& contenu, const NumerosLgr& individus,
                         const NumerosLgr& documents, const NumerosLgr& evenements,
                         RapportImport& rapport) {
    const Sources sources{contenu, individus, documents, evenements, rapport};
    AccorderParents(sources);
    AccorderUnions(sources);
    AccorderLiens(sources);
    AccorderDocuments(sources);
    AccorderEvenements(sources);
}

}  // namespace dorvane::interchange

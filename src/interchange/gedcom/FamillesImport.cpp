#include "interchange/gedcom/FamillesImport.h"

#include "values/Annees.h"
#include "values/Octets.h"

#include <algorithm>
#include <cassert>
#include <string>
#include <utility>

namespace dorvane::interchange {

void FamillesImport::AjouterIndividu(Sexe sexe) {
    assert(sexe != Sexe::Vide);
    personnes_.emplace_back().sexe = sexe;
}

bool FamillesImport::CorrigerSexe(NoOrdre individu, Sexe sexe) {
    Parente& personne = personnes_[individu.valeur - 1];
    if (personne.sexe == sexe) return false;
    const bool contraire = personne.sexe != Sexe::Indetermine;
    personne.sexe = sexe;
    personne.sexeCorrige = true;
    return contraire;
}

bool FamillesImport::PoserParent(NoOrdre enfant, NoOrdre parent, Cote cote,
                                 const LigneGedcom& ligne) {
    const auto rang = static_cast<std::size_t>(cote);
    Parente& fiche = personnes_[enfant.valeur - 1];
    const auto numero = static_cast<std::uint16_t>(parent.valeur);
    if (fiche.parents[rang] == numero) return false;
    if (enfant == parent) {
        contexte_.Noter(Constat::NonRepris, ligne);
        return false;
    }
    Parente& nouveau = personnes_[parent.valeur - 1];
    const bool dejaEnfant = fiche.parents[1 - rang] == numero;
    if (!dejaEnfant && nouveau.nbEnfants >= storage::MaxElements) {
        contexte_.Noter(Constat::Limite, ligne);
        return false;
    }
    if (const std::uint16_t ancien = fiche.parents[rang]; ancien != 0) {
        contexte_.Noter(Constat::Remplace, ligne);
        if (ancien != fiche.parents[1 - rang]) --personnes_[ancien - 1U].nbEnfants;
    }
    if (!dejaEnfant) ++nouveau.nbEnfants;
    fiche.parents[rang] = numero;
    fiche.rangs[rang] = ++rang_;
    return true;
}

NoMariage FamillesImport::Unir(NoOrdre epoux, NoOrdre epouse, const LigneGedcom& ligne) {
    Parente& un = personnes_[epoux.valeur - 1];
    Parente& autre = personnes_[epouse.valeur - 1];
    if (un.nbUnions >= storage::MaxElements || autre.nbUnions >= storage::MaxElements) {
        contexte_.rapport.Noter(Constat::Limite, "FAM", ligne.numero);
        return {};
    }
    const NoMariage m = contexte_.base.NouveauMariage();
    if (!m) {
        contexte_.rapport.Noter(Constat::Limite, "FAM", ligne.numero);
        return {};
    }
    ++un.nbUnions;
    if (epoux != epouse) ++autre.nbUnions;
    unions_.push_back({epoux, epouse});
    return m;
}

void FamillesImport::EcrireEnfants() {
    struct Lien {
        std::uint16_t parent;
        std::uint16_t enfant;
        std::uint32_t rang;
        QuatreOctets annee;
    };
    std::vector<Lien> liens;
    liens.reserve(personnes_.size() * 2);
    storage::Base& base = contexte_.base;
    for (std::size_t i = 0; i < personnes_.size(); ++i) {
        const Parente& p = personnes_[i];
        const NoOrdre enfant{static_cast<std::uint32_t>(i + 1)};
        if (p.parents[0] != 0) base.R_PERE.EcrireCellule(enfant, NoOrdre{p.parents[0]});
        if (p.parents[1] != 0) base.R_MERE.EcrireCellule(enfant, NoOrdre{p.parents[1]});
        if (p.parents[0] == 0 && p.parents[1] == 0) continue;
        const QuatreOctets annee = AnneeTri(base.R_NAISS.LireCellule(enfant));
        for (std::size_t cote = 0; cote < 2; ++cote) {
            if (p.parents[cote] == 0 || (cote == 1 && p.parents[1] == p.parents[0])) continue;
            liens.push_back(
                {p.parents[cote], static_cast<std::uint16_t>(enfant.valeur), p.rangs[cote], annee});
        }
    }
    std::ranges::sort(liens, [](const Lien& a, const Lien& b) {
        if (a.parent != b.parent) return a.parent < b.parent;
        const int annees = TexteDe(a.annee).compare(TexteDe(b.annee));
        return annees != 0 ? annees < 0 : a.rang < b.rang;
    });
    for (std::size_t i = 0; i < liens.size();) {
        const std::uint16_t parent = liens[i].parent;
        std::string liste;
        for (; i < liens.size() && liens[i].parent == parent; ++i)
            liste += NumVersChaine2(liens[i].enfant);
        base.R_ENFANT.EcrireListe(NoOrdre{parent}, liste);
    }
}

void FamillesImport::EcrireUnions() {
    unionsDe_.resize(personnes_.size());
    storage::Base& base = contexte_.base;
    for (std::size_t i = 0; i < unions_.size(); ++i) {
        const NoMariage m{static_cast<std::uint32_t>(i + 1)};
        const auto [epoux, epouse] = unions_[i];
        base.R_EPOUX.EcrireCellule(m, epoux);
        base.R_EPOUSE.EcrireCellule(m, epouse);
        unionsDe_[epoux.valeur - 1].push_back(m);
        if (epoux != epouse) unionsDe_[epouse.valeur - 1].push_back(m);
    }
    for (std::size_t i = 0; i < unionsDe_.size(); ++i) {
        if (unionsDe_[i].empty()) continue;
        std::string liste;
        for (const NoMariage m : unionsDe_[i])
            liste += NumVersChaine2(m.valeur);
        base.R_MARIAG.EcrireListe(NoOrdre{static_cast<std::uint32_t>(i + 1)}, liste);
    }
}

void FamillesImport::Ecrire() {
    for (std::size_t i = 0; i < personnes_.size(); ++i)
        if (personnes_[i].sexeCorrige)
            contexte_.base.R_SEXE.EcrireCellule(NoOrdre{static_cast<std::uint32_t>(i + 1)},
                                                personnes_[i].sexe);
    EcrireEnfants();
    EcrireUnions();
}

const std::vector<NoMariage>& FamillesImport::UnionsDe(NoOrdre individu) const {
    static const std::vector<NoMariage> Aucune;
    return individu.valeur - 1U < unionsDe_.size() ? unionsDe_[individu.valeur - 1] : Aucune;
}

}  // namespace dorvane::interchange

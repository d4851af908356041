#include "records/ModeleFamille.h"

#include "records/Famille.h"
#include "storage/Base.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace dorvane::records {

namespace {

using Sorte = CaseFamille::Sorte;

Generations Borner(Generations g) {
    return {std::clamp(g.ascendantes, 0, MaxGenerations),
            std::clamp(g.descendantes, 0, MaxGenerations)};
}

class Constructeur {
public:
    Constructeur(storage::Base& base, Generations generations)
        : base_{base}, generations_{generations} {}

    /// False when the chart would be too large.
    [[nodiscard]] bool Construire(NoOrdre individu) {
        Ajouter({individu});
        const double milieu = Monter(0);
        Decaler(1, cases_.size(), -milieu);
        const std::size_t premier = cases_.size();
        // The places of the descendants count from their own start.
        rang_ = 0;
        debut_ = true;
        const double hauteur = Descendre(0);
        Decaler(premier, cases_.size(), -hauteur);
        cases_[0].place = 0;
        return !trop_;
    }

    [[nodiscard]] std::vector<CaseFamille> Prendre() { return std::move(cases_); }

private:
    std::size_t Ajouter(CaseFamille nouvelle) {
        if (cases_.size() >= MaxCases) {
            trop_ = true;
            return 0;
        }
        nouvelle.repetee = nouvelle.individu && !vus_.insert(nouvelle.individu.valeur).second;
        cases_.push_back(nouvelle);
        return cases_.size() - 1;
    }

    void Decaler(std::size_t de, std::size_t a, double ecart) {
        for (std::size_t i = de; i < a; ++i)
            cases_[i].place += ecart;
    }

    /// The place of a box with nothing behind it: below the last one, a little further away when
    /// another family begins.
    double PlaceSuivante(bool autreFamille) {
        rang_ += debut_ ? 0.0 : autreFamille ? 1 + EcartFamilles : 1.0;
        debut_ = false;
        return rang_;
    }

    /// Goes up from a box; answers its place, which is also set.
    double Monter(std::size_t indice, bool autreFamille = false) {
        const CaseFamille enfant = cases_[indice];
        const auto [pere, mere] = ParentsDe(base_, enfant.individu);
        const bool parents = enfant.individu && (pere || mere);
        if (!parents || enfant.generation >= generations_.ascendantes || trop_) {
            cases_[indice].suite = parents;
            return cases_[indice].place = PlaceSuivante(autreFamille);
        }
        const NoMariage mariage = UnionDe(base_, pere, mere);
        const auto parent = [&](NoOrdre n, bool autre) {
            CaseFamille nouvelle{Existe(base_, n) ? n : NoOrdre{}, Sorte::Ascendant, indice};
            nouvelle.generation = enfant.generation + 1;
            nouvelle.mariage = mariage;
            const std::size_t i = Ajouter(nouvelle);
            return trop_ ? 0.0 : Monter(i, autre);
        };
        const double haut = parent(pere, true);
        const double bas = parent(mere, false);
        return cases_[indice].place = (haut + bas) / 2;
    }

    /// The spouses of a box, each once, beside it. Answers their boxes.
    std::vector<std::size_t> Marier(std::size_t indice) {
        std::vector<std::size_t> boites;
        const CaseFamille personne = cases_[indice];
        for (const auto& [mariage, partenaire] : CouplesDe(base_, personne.individu)) {
            CaseFamille nouvelle{Existe(base_, partenaire) ? partenaire : NoOrdre{},
                                 Sorte::Conjoint, indice, personne.generation};
            nouvelle.mariage = mariage;
            boites.push_back(Ajouter(nouvelle));
            if (trop_) break;
        }
        return boites;
    }

    /// The box where the line to a child begins.
    std::size_t DepartDe(std::size_t indice, NoOrdre enfant,
                         const std::vector<std::size_t>& conjoints) {
        const NoOrdre individu = cases_[indice].individu;
        const auto [pere, mere] = ParentsDe(base_, enfant);
        const NoOrdre autre = pere == individu ? mere : pere;
        for (const std::size_t conjoint : conjoints)
            if (autre && cases_[conjoint].individu == autre) return conjoint;
        return indice;
    }

    /// Goes down from a box; answers its place, which is also set, with those of its spouses.
    double Descendre(std::size_t indice) {
        const std::vector<std::size_t> conjoints = Marier(indice);
        const double hauteur = EcartConjoints * static_cast<double>(conjoints.size());
        const CaseFamille personne = cases_[indice];
        const std::vector<NoOrdre> enfants = base_.R_ENFANT.Elements(personne.individu);
        const bool plusBas = -personne.generation < generations_.descendantes && !trop_;
        const bool famille = !conjoints.empty() || (plusBas && !enfants.empty());
        const bool ecartee = famille || familleAvant_;
        const double debut = debut_ ? 0.0 : rang_ + (ecartee ? 1 + EcartFamilles : 1.0);
        familleAvant_ = true;
        double premier = 0;
        double dernier = 0;
        std::size_t montres = 0;
        const std::size_t avant = cases_.size();
        for (std::size_t k = 0; plusBas && k < enfants.size() && !trop_; ++k) {
            if (!Existe(base_, enfants[k])) continue;
            CaseFamille nouvelle{enfants[k], Sorte::Descendant, indice, personne.generation - 1};
            nouvelle.depart = DepartDe(indice, enfants[k], conjoints);
            const std::size_t i = Ajouter(nouvelle);
            if (trop_) break;
            dernier = Descendre(i);
            if (montres++ == 0) premier = dernier;
        }
        // The person and the spouses stand in the middle of the children, but never above the
        // place where this family may begin.
        double place = montres == 0 ? PlaceSuivante(ecartee) : (premier + dernier - hauteur) / 2;
        if (montres != 0 && place < debut) {
            // Room below the children is missing, not above: all go down together.
            const double ecart = debut - place;
            Decaler(avant, cases_.size(), ecart);
            rang_ += ecart;
            place = debut;
        }
        cases_[indice].place = place;
        cases_[indice].suite =
            cases_[indice].suite || (montres == 0 && !enfants.empty() && !plusBas);
        for (std::size_t k = 0; k < conjoints.size() && !trop_; ++k)
            cases_[conjoints[k]].place = place + EcartConjoints * static_cast<double>(k + 1);
        rang_ = std::max(rang_, place + hauteur);
        familleAvant_ = famille;
        return place;
    }

    storage::Base& base_;
    Generations generations_;
    std::vector<CaseFamille> cases_;
    std::unordered_set<std::uint32_t> vus_;
    double rang_ = 0;            ///< place of the last box that was set
    bool debut_ = true;          ///< none was set
    bool familleAvant_ = false;  ///< the last descendant had spouses or children beside it
    bool trop_ = false;
};

}  // namespace

Generations VersLaDroite(Generations generations) {
    return Borner({generations.ascendantes + 2, generations.descendantes - 1});
}

Generations VersLaGauche(Generations generations) {
    return Borner({generations.ascendantes - 1, generations.descendantes + 2});
}

ModeleFamille ConstruireFamille(storage::Base& base, NoOrdre individu, Generations generations) {
    ModeleFamille modele;
    modele.demandees = modele.montrees = Borner(generations);
    if (!individu) return modele;
    for (;;) {
        Constructeur constructeur{base, modele.montrees};
        const bool tient = constructeur.Construire(individu);
        Generations& g = modele.montrees;
        if (tient || (g.ascendantes == 0 && g.descendantes == 0)) {
            modele.cases = constructeur.Prendre();
            return modele;
        }
        // One generation fewer where there are more of them.
        --(g.ascendantes > g.descendantes ? g.ascendantes : g.descendantes);
    }
}

NoOrdre ParentDe(storage::Base& base, NoOrdre individu, Parente parente, NoOrdre apres) {
    const auto existant = [&base](NoOrdre n) { return Existe(base, n) ? n : NoOrdre{}; };
    switch (parente) {
        case Parente::Pere:
            return existant(LireParent(base, individu, Cote::Pere));
        case Parente::Mere:
            return existant(LireParent(base, individu, Cote::Mere));
        case Parente::Enfant:
            for (const NoOrdre enfant : base.R_ENFANT.Elements(individu))
                if (existant(enfant)) return enfant;
            return {};
        case Parente::ConjointSuivant:
            break;
    }
    std::vector<NoOrdre> conjoints;
    for (const auto& [mariage, partenaire] : CouplesDe(base, individu))
        if (existant(partenaire)) conjoints.push_back(partenaire);
    if (conjoints.empty()) return {};
    const auto place = std::find(conjoints.begin(), conjoints.end(), apres);
    return place == conjoints.end() || place + 1 == conjoints.end() ? conjoints.front()
                                                                    : *(place + 1);
}

std::vector<EntreeFamille> EntreesFamille(storage::Base& base, NoOrdre individu) {
    using Groupe = EntreeFamille::Groupe;
    std::vector<EntreeFamille> entrees;
    const auto ajouter = [&](Groupe groupe, NoOrdre n) {
        if (Existe(base, n)) entrees.push_back({groupe, n});
    };
    ajouter(Groupe::Personne, individu);
    for (const NoOrdre parent : ParentsDe(base, individu))
        ajouter(Groupe::Parents, parent);
    for (const auto& [mariage, partenaire] : CouplesDe(base, individu))
        ajouter(Groupe::Conjoints, partenaire);
    for (const NoOrdre enfant : base.R_ENFANT.Elements(individu))
        ajouter(Groupe::Enfants, enfant);
    for (std::size_t k = 1; k <= base.R_LIEN.NbElements(individu); ++k)
        ajouter(Groupe::Lies, base.R_LIEN.ElementListe(individu, k));
    return entrees;
}

}  // namespace dorvane::records

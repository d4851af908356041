#pragma once

#include "storage/Base.h"

#include <string>
#include <string_view>

namespace dorvane::doublures {

/// Peoples a base in words that read like a family.
class FamilleEssai {
public:
    /// `base` outlives the object.
    explicit FamilleEssai(storage::Base& base) : base_{base} {}

    /// A person in the sort table; texts in code page 1252, years as the cells hold them.
    NoOrdre Creer(Sexe sexe, std::string_view nom, std::string_view prenom,
                  std::string_view naissance = {}, std::string_view deces = {}) {
        const NoOrdre n = base_.NouvelIndividu();
        base_.R_SEXE.EcrireCellule(n, sexe);
        base_.R_NAISS.EcrireCellule(n, naissance);
        base_.R_DECES.EcrireCellule(n, deces);
        base_.R_NOM.EcrireNom(n, std::string{nom} + ';' + std::string{prenom} + ";;;");
        base_.R_TRI.AjouterIndividu(n);
        return n;
    }

    /// Both cells and both lists of children; 0 for a parent who is not known.
    void Parents(NoOrdre enfant, NoOrdre pere, NoOrdre mere) {
        base_.R_PERE.EcrireCellule(enfant, pere);
        base_.R_MERE.EcrireCellule(enfant, mere);
        if (pere) base_.R_ENFANT.ModifierListe(pere, enfant, storage::ActionListe::Ajouter);
        if (mere) base_.R_ENFANT.ModifierListe(mere, enfant, storage::ActionListe::Ajouter);
    }

    NoMariage Marier(NoOrdre epoux, NoOrdre epouse, std::string_view annee = {}) {
        const NoMariage m = base_.NouveauMariage();
        base_.R_EPOUX.EcrireCellule(m, epoux);
        base_.R_EPOUSE.EcrireCellule(m, epouse);
        base_.R_DEBMAR.EcrireCellule(m, annee);
        if (epoux) base_.R_MARIAG.ModifierListe(epoux, m, storage::ActionListe::Ajouter);
        if (epouse) base_.R_MARIAG.ModifierListe(epouse, m, storage::ActionListe::Ajouter);
        return m;
    }

    void Lier(NoOrdre individu, NoOrdre autre, std::string_view libelle) {
        base_.R_LIEN.ModifierListe(individu, autre, storage::ActionListe::Ajouter, libelle);
    }

private:
    storage::Base& base_;
};

}  // namespace dorvane::doublures

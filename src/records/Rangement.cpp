#include "records/Rangement.h"

#include <algorithm>
#include <vector>

namespace dorvane::records {

namespace {

void ReclasserEnfant(storage::Base& base, NoOrdre parent, NoOrdre enfant) {
    if (!parent) return;
    const std::vector<NoOrdre> enfants = base.R_ENFANT.Elements(parent);
    // A child that a damaged list lacks is not forced into a full one.
    if (std::find(enfants.begin(), enfants.end(), enfant) == enfants.end() &&
        enfants.size() >= storage::MaxElements)
        return;
    base.R_ENFANT.ModifierListe(parent, enfant, storage::ActionListe::Supprimer);
    base.R_ENFANT.ModifierListe(parent, enfant, storage::ActionListe::Ajouter);
}

}  // namespace

PlaceTri LirePlaceTri(storage::Base& base, NoOrdre n) {
    return {base.R_TRI.RangIndividu(n), base.R_TRI.CleDe(n)};
}

void ReplacerDansTri(storage::Base& base, NoOrdre n, const PlaceTri& place) {
    if (base.R_TRI.CleDe(n) == place.cle) return;
    if (place.rang != 0) {
        base.R_TRI.ModifierTri(place.rang, n, storage::ActionListe::Supprimer);
        base.entete.NbTriIndividus = base.R_TRI.individus.Taille();
    } else {
        base.R_TRI.RetirerIndividu(n);
    }
    base.R_TRI.AjouterIndividu(n);
    base.marques.ModifBase = true;
}

void ReclasserParAnnee(storage::Base& base, NoOrdre n) {
    ReclasserEnfant(base, base.R_PERE.LireCellule(n), n);
    ReclasserEnfant(base, base.R_MERE.LireCellule(n), n);
    base.R_INDEX.ReclasserIndex(n, std::string{base.R_TEXTE.LireTexte(n)});
    for (const NoMariage mariage : base.R_MARIAG.Elements(n))
        base.R_INDEX.ReclasserIndex(n, std::string{base.R_TXTMAR.LireTexte(mariage)});
}

}  // namespace dorvane::records

#include "storage/Renumerotation.h"

#include "messages/Soin.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace dorvane::storage {

namespace {

class Compteur final : public Observateur {
public:
    std::uint32_t documents = 0;
    std::uint32_t evenements = 0;
    void ParentChange(NoOrdre /*enfant*/, NoOrdre /*parent*/) override {}
    void Signaler(Incident incident, std::uint32_t /*numero*/) override {
        if (incident == Incident::DocumentAbime) ++documents;
        if (incident == Incident::EvenementAbime) ++evenements;
    }
};

}  // namespace

/// Counts the records without an end; the others are at hand when they are copied.
bool Renumerotation::Controler(BilanReorganisation& bilan) {
    Compteur compteur;
    Observateur* const avant = std::exchange(s_.marques.observateur, &compteur);
    const std::vector<std::uint16_t>& triDocuments = s_.R_TRI.documents.Numeros();
    const std::vector<std::uint16_t>& triEvenements = s_.R_TRI.evenements.Numeros();
    const bool fait =
        parcours_.Parcourir(
            "Contrôle Documents"_1252, triDocuments.size(),
            [&](std::uint32_t r) {
                static_cast<void>(s_.R_IMAGE.LireDoc(NoDocument{triDocuments[r - 1]}));
            }) &&
        parcours_.Parcourir("Contrôle Evénements"_1252, triEvenements.size(), [&](std::uint32_t r) {
            static_cast<void>(s_.R_EVT.Description(NoEvenement{triEvenements[r - 1]}));
        });
    s_.marques.observateur = avant;
    bilan.documentsAbimes = compteur.documents;
    bilan.evenementsAbimes = compteur.evenements;
    return fait;
}

/// The record numbers of a table that stand for something, each once, and their new numbers.
template <class EstLa>
bool Renumerotation::Numeroter(std::string_view titre, const std::vector<std::uint16_t>& table,
                               std::uint32_t dernier, Carte& carte,
                               std::vector<std::uint16_t>& vivants, EstLa estLa) {
    carte.assign(dernier + 1ULL, 0);
    return parcours_.Parcourir(titre, table.size(), [&](std::uint32_t r) {
        const std::uint16_t n = table[r - 1];
        if (n == 0 || n > dernier || carte[n] != 0 || !estLa(n)) return;
        vivants.push_back(n);
        carte[n] = static_cast<std::uint16_t>(vivants.size());
    });
}

bool Renumerotation::NumeroterDocuments() {
    return Numeroter(
        "Réorganisation Documents"_1252, s_.R_TRI.documents.Numeros(),
        std::min(s_.entete.DernierDocument, MaxDocuments), carteDocuments, documents,
        [this](std::uint16_t d) { return bool{s_.R_IMAGE.LireCellule(NoDocument{d})}; });
}

bool Renumerotation::NumeroterEvenements() {
    return Numeroter(
        "Réorganisation Evénements"_1252, s_.R_TRI.evenements.Numeros(),
        std::min(s_.entete.DernierEvenement, MaxEvenements), carteEvenements, evenements,
        [this](std::uint16_t e) { return bool{s_.R_EVT.LireCellule(NoEvenement{e})}; });
}

bool Renumerotation::LireRangs() {
    Carte rangs;
    return Numeroter("Réorganisation Indices"_1252, s_.R_TRI.individus.Numeros(),
                     s_.entete.DernierIndividu, rangs, individus,
                     [](std::uint16_t) { return true; });
}

/// A union belongs to its husband, whatever his sex cell holds. One whose living husband does
/// not list it comes behind the others; one without a living husband is dropped.
bool Renumerotation::NumeroterMariages(BilanReorganisation& bilan) {
    const std::uint32_t dernier = s_.entete.DernierMariage;
    carteMariages.assign(dernier + 1ULL, 0);
    const auto prendre = [&](NoMariage m) {
        if (carteMariages[m.valeur] != 0) return;
        mariages.push_back(static_cast<std::uint16_t>(m.valeur));
        carteMariages[m.valeur] = static_cast<std::uint16_t>(mariages.size());
    };
    const std::vector<std::uint16_t>& table = s_.R_TRI.individus.Numeros();
    std::vector<bool> vivant(std::numeric_limits<std::uint16_t>::max() + 1ULL);
    const bool fait =
        parcours_.Parcourir("Réorganisation Mariages"_1252, table.size(), [&](std::uint32_t r) {
            const NoOrdre n{table[r - 1]};
            if (!n || n.valeur > s_.entete.DernierIndividu || vivant[n.valeur]) return;
            vivant[n.valeur] = true;
            for (const NoMariage m : s_.R_MARIAG.Elements(n))
                if (m.valeur <= dernier && s_.R_EPOUX.LireCellule(m) == n) prendre(m);
        });
    if (!fait) return false;
    for (NoMariage m{1}; m.valeur <= dernier; ++m.valeur) {
        const NoOrdre epoux = s_.R_EPOUX.LireCellule(m);
        const NoOrdre epouse = s_.R_EPOUSE.LireCellule(m);
        if (epoux && vivant[epoux.valeur]) {
            prendre(m);
        } else if (epoux || epouse) {
            ++bilan.unionsSansEpoux;
            const std::string texte{s_.R_TXTMAR.LireTexte(m)};
            for (const NoOrdre n : {epoux, epouse})
                if (n) index_.Retirer(n, texte);
        }
    }
    if (bilan.unionsSansEpoux != 0)
        progression_.Phase(
            Msg(message::EtatUnionsSansEpoux, std::to_string(bilan.unionsSansEpoux)));
    return true;
}

bool Renumerotation::NumeroterIndex() {
    return parcours_.Parcourir("Réorganisation Index"_1252, index_.NbTypes(),
                               [&](std::uint32_t k) { index_.Numeroter(NoMotCle{k}); });
}

}  // namespace dorvane::storage

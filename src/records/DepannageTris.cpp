#include "messages/Soin.h"
#include "records/AtelierDepannage.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::records {
namespace {

/// Who has a sex or a name has not been deleted.
bool EstUnePersonne(storage::Base& base, NoOrdre n) {
    const Sexe sexe = base.R_SEXE.LireCellule(n);
    return (sexe != Sexe::Vide && sexe != Sexe{'\0'}) || !base.R_NOM.LireTexte(n).empty();
}

/// The entries of a table that stand for a record, each once.
template <class EstLa>
std::vector<std::uint16_t> Nettoyer(AtelierDepannage& a, const std::vector<std::uint16_t>& table,
                                    std::uint32_t nombre, EstLa estLa, std::string_view objet) {
    std::vector<std::uint16_t> garde;
    std::vector<bool> vu(1ULL << 16U);
    for (std::uint32_t rang = 1; rang <= nombre; ++rang) {
        const std::uint16_t n = rang <= table.size() ? table[rang - 1] : std::uint16_t{};
        if (n != 0 && !vu[n] && estLa(n)) {
            vu[n] = true;
            garde.push_back(n);
        } else {
            a.Noter("Suppression Indice " + std::to_string(garde.size() + 1),
                    "Suppression " + std::string{objet} + ' ' + std::to_string(n));
        }
    }
    return garde;
}

/// Adds the records that `cites` names and no rank does: a rank that was overwritten has lost its
/// record, but the lists of the persons still have it. What nobody names may have been deleted.
template <class EstLa>
void Retrouver(AtelierDepannage& a, std::vector<std::uint16_t>& garde,
               const std::vector<bool>& cites, EstLa estLa, std::string_view objet) {
    std::vector<bool> la(1ULL << 16U);
    for (const std::uint16_t n : garde)
        la[n] = true;
    for (std::uint32_t n = 1; n < cites.size(); ++n) {
        if (!cites[n] || la[n] || !estLa(static_cast<std::uint16_t>(n))) continue;
        garde.push_back(static_cast<std::uint16_t>(n));
        a.Noter("Ajout Indice " + std::to_string(garde.size()),
                "Ajout " + std::string{objet} + ' ' + std::to_string(n));
    }
}

/// The events that a person lists and that list the person.
std::vector<bool> EvenementsCites(AtelierDepannage& a) {
    storage::Base& b = a.base;
    std::vector<bool> cites(1ULL << 16U);
    for (const std::uint16_t numero : b.R_TRI.individus.Numeros()) {
        const NoOrdre n{numero};
        const std::size_t nombre = b.R_LSTEVT.NbElements(n);
        for (std::size_t k = 1; k <= nombre; ++k) {
            const NoEvenement e = b.R_LSTEVT.ElementListe(n, k);
            if (e.valeur > b.entete.DernierEvenement || cites[e.valeur]) continue;
            const std::vector<storage::LienEvenement> liens = b.R_EVT.Liens(e);
            cites[e.valeur] = std::any_of(liens.begin(), liens.end(),
                                          [n](const auto& lien) { return lien.individu == n; });
        }
    }
    return cites;
}

/// The documents of the persons and of these events.
std::vector<bool> DocumentsCites(AtelierDepannage& a,
                                 const std::vector<std::uint16_t>& evenements) {
    storage::Base& b = a.base;
    std::vector<bool> cites(1ULL << 16U);
    for (const std::uint16_t n : b.R_TRI.individus.Numeros())
        for (const NoDocument d : b.R_LSTIMG.Elements(NoOrdre{n}))
            cites[d.valeur] = true;
    for (const std::uint16_t e : evenements)
        for (const NoDocument d : b.R_EVT.Documents(NoEvenement{e}))
            cites[d.valeur] = true;
    return cites;
}

bool EstTriee(AtelierDepannage& a) {
    if (!AUneCle(a.base.entete.TypeTri)) return true;
    std::string avant;
    for (const std::uint16_t n : a.base.R_TRI.individus.Numeros()) {
        std::string cle = a.base.R_TRI.CleDe(NoOrdre{n});
        if (cle < avant) return false;
        avant = std::move(cle);
    }
    return true;
}

void DepannerIndividus(AtelierDepannage& a) {
    storage::Base& b = a.base;
    const std::uint32_t avant = a.reparations;
    std::vector<std::uint16_t> table = Nettoyer(
        a, b.R_TRI.individus.Numeros(), b.entete.NbTriIndividus,
        [&](std::uint16_t n) { return n <= b.entete.DernierIndividu; }, "individu");
    for (const std::uint16_t n : table)
        a.vivants[n] = true;
    for (NoOrdre n{1}; n.valeur <= b.entete.DernierIndividu; ++n.valeur) {
        if (a.Vivant(n) || !EstUnePersonne(b, n)) continue;
        a.vivants[n.valeur] = true;
        table.push_back(static_cast<std::uint16_t>(n.valeur));
        a.Noter("Ajout Indice " + std::to_string(table.size()), "Ajout individu " + a.Nommer(n));
    }
    if (a.reparations != avant) {
        b.entete.NbTriIndividus = static_cast<std::uint32_t>(table.size());
        b.R_TRI.individus.Remplacer(std::move(table));
        b.marques.ModifTriIndividus = true;
    }
    if (EstTriee(a)) return;
    storage::ProgressionMuette muet;
    b.R_TRI.TrierIndividus(muet);
    b.marques.ModifTriIndividus = true;
    a.Noter("Tri", "Ordre des personnes rétabli"_1252);
}

/// A table of documents or events; `cle` is what it is sorted by.
template <class Cle>
void DepannerTable(AtelierDepannage& a, storage::TableTri& table, std::uint32_t& nombre,
                   bool& modif, std::vector<std::uint16_t> garde, Cle cle) {
    using Valeur = decltype(cle(std::uint16_t{}));
    std::vector<std::pair<Valeur, std::uint16_t>> entrees;
    entrees.reserve(garde.size());
    for (const std::uint16_t n : garde)
        entrees.emplace_back(cle(n), n);
    const auto avant = [](const auto& x, const auto& y) { return x.first < y.first; };
    if (!std::is_sorted(entrees.begin(), entrees.end(), avant)) {
        std::stable_sort(entrees.begin(), entrees.end(), avant);
        std::transform(entrees.begin(), entrees.end(), garde.begin(),
                       [](const auto& entree) { return entree.second; });
        a.Noter("Tri", "Ordre des documents ou des événements rétabli"_1252);
    }
    if (garde == table.Numeros() && garde.size() == nombre) return;
    nombre = static_cast<std::uint32_t>(garde.size());
    table.Remplacer(std::move(garde));
    modif = true;
}

}  // namespace

bool DepannerTris(AtelierDepannage& a) {
    storage::Base& b = a.base;
    a.Phase(message::EtatAnalyseOrdreDeTri);
    if (!a.Continuer(0, 3)) return false;
    DepannerIndividus(a);
    const auto estDocument = [&](std::uint16_t d) {
        return d <= b.entete.DernierDocument && b.R_IMAGE.LireCellule(NoDocument{d});
    };
    const auto estEvenement = [&](std::uint16_t e) {
        return e <= b.entete.DernierEvenement && b.R_EVT.LireCellule(NoEvenement{e});
    };
    constexpr std::string_view Evenement = "événement"_1252;
    std::vector<std::uint16_t> documents =
        Nettoyer(a, b.R_TRI.documents.Numeros(), b.entete.NbTriDocuments, estDocument, "document");
    std::vector<std::uint16_t> evenements = Nettoyer(
        a, b.R_TRI.evenements.Numeros(), b.entete.NbTriEvenements, estEvenement, Evenement);
    Retrouver(a, evenements, EvenementsCites(a), estEvenement, Evenement);
    Retrouver(
        a, documents, DocumentsCites(a, evenements),
        [&](std::uint16_t d) {
            return estDocument(d) && b.R_IMAGE.LireDoc(NoDocument{d}) != storage::Document{};
        },
        "document");
    DepannerTable(a, b.R_TRI.documents, b.entete.NbTriDocuments, b.marques.ModifTriDocuments,
                  std::move(documents),
                  [&](std::uint16_t d) { return Replie(b.R_IMAGE.TitreDoc(NoDocument{d})); });
    DepannerTable(a, b.R_TRI.evenements, b.entete.NbTriEvenements, b.marques.ModifTriEvenements,
                  std::move(evenements),
                  [&](std::uint16_t e) { return b.R_EVT.CleDateEvt(NoEvenement{e}); });
    return true;
}

}  // namespace dorvane::records

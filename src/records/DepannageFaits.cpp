#include "messages/Soin.h"
#include "records/AtelierDepannage.h"
#include "storage/ConstruireIndex.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>

namespace dorvane::records {
namespace {

using storage::LienEvenement;

/// Which documents and events the tables name, and what the user has made since.
class Presents {
public:
    explicit Presents(storage::Base& base)
        : base_{base},
          dernierDocument_{base.entete.DernierDocument},
          dernierEvenement_{base.entete.DernierEvenement} {
        for (const std::uint16_t d : base.R_TRI.documents.Numeros())
            documents_[d] = true;
        for (const std::uint16_t e : base.R_TRI.evenements.Numeros())
            evenements_[e] = true;
    }

    [[nodiscard]] bool Contient(NoDocument d) const {
        if (d.valeur > dernierDocument_) return d.valeur <= base_.entete.DernierDocument;
        return documents_[d.valeur];
    }
    [[nodiscard]] bool Contient(NoEvenement e) const {
        if (e.valeur > dernierEvenement_) return e.valeur <= base_.entete.DernierEvenement;
        return evenements_[e.valeur];
    }

private:
    storage::Base& base_;
    std::uint32_t dernierDocument_;
    std::uint32_t dernierEvenement_;
    std::vector<bool> documents_ = std::vector<bool>(1ULL << 16U);
    std::vector<bool> evenements_ = std::vector<bool>(1ULL << 16U);
};

/// The entries of a list of numbers with texts.
template <class Element>
std::vector<std::pair<Element, std::string>> Entrees(storage::ListeTextes<Element>& liste,
                                                     NoOrdre n) {
    std::vector<std::pair<Element, std::string>> entrees;
    const std::size_t nombre = liste.NbElements(n);
    for (std::size_t k = 1; k <= nombre; ++k)
        entrees.emplace_back(liste.ElementListe(n, k), liste.TexteElement(n, k));
    return entrees;
}

/// Takes out of such a list what `bon` does not let stand, and what stands twice. Answers what is
/// left. `noter` is told each.
template <class Element, class Bon, class Noter>
std::vector<std::pair<Element, std::string>> Filtrer(storage::ListeTextes<Element>& liste,
                                                     NoOrdre n, Bon bon, Noter noter) {
    std::vector<std::pair<Element, std::string>> gardees;
    const std::string octets{liste.ListeDe(n)};
    if (octets.empty()) return gardees;
    const auto entrees = Entrees(liste, n);
    std::string nouveaux;
    for (std::size_t i = 0; i < entrees.size(); ++i) {
        const bool deja = std::find(gardees.begin(), gardees.end(), entrees[i]) != gardees.end();
        if (!deja && bon(entrees[i].first)) {
            gardees.push_back(entrees[i]);
            nouveaux += octets.substr(i * 6, 6);
        } else {
            noter(entrees[i].first);
        }
    }
    if (nouveaux != octets) liste.EcrireListe(n, nouveaux);
    return gardees;
}

void DepannerLiens(AtelierDepannage& a, NoOrdre n) {
    storage::ListeLiens& liens = a.base.R_LIEN;
    const auto gardes = Filtrer<NoOrdre>(
        liens, n, [&](NoOrdre autre) { return a.Vivant(autre); },
        [&](NoOrdre autre) {
            a.Noter("Suppression Lien " + a.Nommer(n),
                    "Suppression lien avec " + std::to_string(autre.valeur));
        });
    // A label may have been changed on one side since: any link back will do.
    for (const auto& [autre, libelle] : gardes) {
        const auto retours = Entrees<NoOrdre>(liens, autre);
        if (std::any_of(retours.begin(), retours.end(),
                        [n](const auto& retour) { return retour.first == n; }))
            continue;
        if (retours.size() >= storage::MaxElements) {
            a.Regretter(message::EtatListePleine, a.Nommer(autre));
            continue;
        }
        liens.ModifierListe(autre, n, storage::ActionListe::Ajouter, libelle);
        a.Noter("Ajout Lien " + a.Nommer(autre), "Ajout lien avec " + a.Nommer(n));
    }
}

void DepannerDocuments(AtelierDepannage& a, const Presents& presents, NoOrdre n) {
    const std::vector<NoDocument> documents = a.base.R_LSTIMG.Elements(n);
    std::vector<NoDocument> gardes;
    std::string octets;
    for (const NoDocument d : documents) {
        if (presents.Contient(d) && std::find(gardes.begin(), gardes.end(), d) == gardes.end()) {
            gardes.push_back(d);
            octets += NumVersChaine2(d.valeur);
        } else {
            a.Noter("Suppression Document " + std::to_string(d.valeur),
                    "Suppression lien document de " + a.Nommer(n));
        }
    }
    if (gardes.size() != documents.size()) a.base.R_LSTIMG.EcrireListe(n, octets);
}

/// The events of a person: each is known, and knows the person in that role.
void DepannerEvenementsDe(AtelierDepannage& a, const Presents& presents, NoOrdre n) {
    storage::Base& b = a.base;
    const auto gardes = Filtrer<NoEvenement>(
        b.R_LSTEVT, n, [&](NoEvenement e) { return presents.Contient(e); },
        [&](NoEvenement e) {
            a.Noter(std::string{"Suppression Evénement "_1252} + std::to_string(e.valeur),
                    std::string{"Suppression lien événement de "_1252} + a.Nommer(n));
        });
    for (const auto& [e, role] : gardes) {
        std::vector<LienEvenement> liens = b.R_EVT.Liens(e);
        const LienEvenement lien{n, role};
        if (std::find(liens.begin(), liens.end(), lien) != liens.end()) continue;
        liens.push_back(lien);
        b.R_EVT.EcrireEvt(e, {.liens = std::move(liens)});
        a.Noter("Ajout Personne " + a.Nommer(n),
                std::string{"Ajout à l'événement "_1252} + std::to_string(e.valeur));
    }
}

/// The persons of an event live and know it; its documents exist.
void DepannerEvenement(AtelierDepannage& a, const Presents& presents, NoEvenement e) {
    storage::Base& b = a.base;
    const std::string numero = std::to_string(e.valeur);
    const std::vector<LienEvenement> liens = b.R_EVT.Liens(e);
    std::vector<LienEvenement> gardes;
    std::set<std::pair<std::uint32_t, std::string_view>> vus;
    for (const LienEvenement& lien : liens) {
        if (a.Vivant(lien.individu) && vus.emplace(lien.individu.valeur, lien.role).second)
            gardes.push_back(lien);
        else
            a.Noter("Suppression Personne " + std::to_string(lien.individu.valeur),
                    std::string{"Suppression de l'événement "_1252} + numero);
    }
    if (gardes != liens) b.R_EVT.EcrireEvt(e, {.liens = gardes});
    for (const LienEvenement& lien : gardes) {
        const auto entrees = Entrees<NoEvenement>(b.R_LSTEVT, lien.individu);
        if (std::find(entrees.begin(), entrees.end(), std::pair{e, lien.role}) != entrees.end())
            continue;
        if (entrees.size() >= storage::MaxElements) {
            a.Regretter(message::EtatListePleine, a.Nommer(lien.individu));
            continue;
        }
        b.R_LSTEVT.ModifierListe(lien.individu, e, storage::ActionListe::Ajouter, lien.role);
        a.Noter(std::string{"Ajout Evénement "_1252} + numero,
                std::string{"Ajout lien événement de "_1252} + a.Nommer(lien.individu));
    }
    std::vector<NoDocument> documents = b.R_EVT.Documents(e);
    const std::size_t nombre = documents.size();
    std::erase_if(documents, [&](NoDocument d) { return !presents.Contient(d); });
    if (documents.size() == nombre) return;
    b.R_EVT.EcrireEvt(e, {.documents = std::move(documents)});
    a.Noter("Suppression Documents",
            std::string{"Suppression lien document de l'événement "_1252} + numero);
}

/// How often a word stands, and for whom, in whatever order.
struct Compte {
    std::uint64_t nombre = 0;
    std::uint64_t somme = 0;
    void Ajouter(NoOrdre n) {
        ++nombre;
        // Spread, so that other persons hardly ever add up to the same.
        somme += n.valeur * 0x9E3779B97F4A7C15ULL ^ (n.valeur * 0xC2B2AE3D27D4EB4FULL) >> 29U;
    }
    friend bool operator==(const Compte&, const Compte&) = default;
};
/// By symbol and word.
using Comptes = std::unordered_map<std::string, Compte>;

/// The words of a text behind the symbols of indexed keywords.
void Compter(Comptes& comptes, std::string_view texte, const std::string& symboles, NoOrdre n) {
    for (const char symbole : symboles) {
        if (texte.find(symbole) == std::string_view::npos) continue;
        for (const std::string& mot : storage::MotsDuTexte(texte, symbole))
            comptes[symbole + mot].Ajouter(n);
    }
}

/// The list of keyword `k` holds the words of the texts, in order, with their persons.
bool ListeJuste(storage::Base& b, NoMotCle k, const Comptes& comptes) {
    const char symbole = b.motsCles.LibelleType(k).symbole;
    const auto voulus = static_cast<std::size_t>(
        std::count_if(comptes.begin(), comptes.end(),
                      [symbole](const auto& entree) { return entree.first[0] == symbole; }));
    const std::vector<NoIndex> liste = b.R_INDEX.ListeMots(k);
    if (liste.size() != voulus) return false;
    std::string avant;
    for (const NoIndex e : liste) {
        if (!e || e.valeur > b.entete.NbIndex) return false;
        std::string mot = b.R_INDEX.MotIndex(e);
        const auto voulu = comptes.find(symbole + mot);
        if (voulu == comptes.end() || mot <= avant) return false;
        Compte compte;
        for (const NoOrdre n : b.R_INDEX.PersonnesIndex(e))
            compte.Ajouter(n);
        if (compte != voulu->second) return false;
        avant = std::move(mot);
    }
    return true;
}

}  // namespace

bool DepannerFaits(AtelierDepannage& a) {
    a.Phase(message::EtatAnalyseLiensEtFaits);
    const Presents presents{a.base};
    const std::uint32_t nombre = a.base.entete.NbTriIndividus;
    for (std::uint32_t rang = 1; rang <= nombre; ++rang) {
        if (!a.Continuer(rang - 1, nombre)) return false;
        const NoOrdre n = a.base.R_TRI.IndividuAuRang(rang);
        if (!n) continue;
        DepannerLiens(a, n);
        DepannerDocuments(a, presents, n);
        DepannerEvenementsDe(a, presents, n);
    }
    const std::uint32_t evenements = a.base.entete.NbTriEvenements;
    for (std::uint32_t rang = 1; rang <= evenements; ++rang) {
        if (!a.Continuer(rang - 1, evenements)) return false;
        DepannerEvenement(a, presents, a.base.R_TRI.EvtAuRang(rang));
    }
    return true;
}

bool DepannerIndex(AtelierDepannage& a) {
    storage::Base& b = a.base;
    a.Phase(message::EtatAnalyseIndex);
    std::string symboles;
    std::vector<NoMotCle> types;
    for (NoMotCle k{1}; k.valeur <= std::min(b.motsCles.Nombre(), storage::MaxMotsCles);
         ++k.valeur) {
        if (!b.motsCles.PosMotsType(k)) continue;
        types.push_back(k);
        const char symbole = b.motsCles.LibelleType(k).symbole;
        if (symboles.find(symbole) == std::string::npos) symboles += symbole;
    }
    Comptes comptes;
    const std::uint32_t nombre = b.entete.NbTriIndividus;
    for (std::uint32_t rang = 1; rang <= nombre; ++rang) {
        if (!a.Continuer(rang - 1, nombre)) return false;
        const NoOrdre n = b.R_TRI.IndividuAuRang(rang);
        if (!n) continue;
        Compter(comptes, b.R_TEXTE.LireTexte(n), symboles, n);
        for (const NoMariage m : b.R_MARIAG.Elements(n))
            Compter(comptes, b.R_TXTMAR.LireTexte(m), symboles, n);
    }
    std::erase_if(types, [&](NoMotCle k) { return ListeJuste(b, k, comptes); });
    if (types.empty()) return true;
    // Entries that die leave no room before the reorganisation.
    if (comptes.size() > storage::MaxIndex - std::min(b.entete.NbIndex, storage::MaxIndex)) {
        a.Regretter(message::EtatIndexPlein, {});
        return true;
    }
    storage::ProgressionMuette muet;
    static_cast<void>(storage::ConstruireIndex(b, types, muet));
    for (const NoMotCle k : types)
        a.Noter("Index",
                std::string{"Liste de mots refaite : "_1252} + b.motsCles.LibelleType(k).libelle);
    return true;
}

}  // namespace dorvane::records

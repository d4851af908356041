#include "storage/R_TRI.h"

#include "values/Comparaison.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t PasCompteur = 100;

/// The key of one person during a full sort, in an arena of all keys.
struct Cle {
    std::uint64_t tete = 0;  ///< first 8 bytes, most significant first: settles most comparisons
    std::uint32_t rang = 0;
    std::uint32_t debut = 0;
    std::uint32_t taille = 0;
};

std::uint64_t TeteDe(std::string_view cle) {
    std::uint64_t tete = 0;
    for (std::size_t i = 0; i < 8; ++i)
        tete = tete << 8U | (i < cle.size() ? static_cast<unsigned char>(cle[i]) : 0U);
    return tete;
}

/// Keys of all ranks; false when the user gave up.
bool PreparerCles(const std::vector<std::uint16_t>& numeros, FournisseurNoms& noms,
                  dorvane::TypeTri tri, const ReglesNoms& regles, Progression& progression,
                  std::vector<Cle>& cles, std::string& arene) {
    // By number: names then come nearly in the order in which they stand in the file.
    std::vector<std::uint32_t> ordre(numeros.size());
    std::iota(ordre.begin(), ordre.end(), 0U);
    std::sort(ordre.begin(), ordre.end(), [&](std::uint32_t a, std::uint32_t b) {
        return std::pair{numeros[a], a} < std::pair{numeros[b], b};
    });
    const auto total = static_cast<std::uint32_t>(numeros.size());
    cles.resize(total);
    std::uint32_t fait = 0;
    for (const std::uint32_t rang : ordre) {
        if (fait % PasCompteur == 0 && !progression.Avancer(fait, total)) return false;
        ++fait;
        const ElementTri element = noms.ElementDe(NoOrdre{numeros[rang]});
        const std::size_t debut = arene.size();
        CleTriDans(arene, element.nom, element.prenom, element.annee, tri, regles);
        const std::string_view cle = std::string_view{arene}.substr(debut);
        cles[rang] = {TeteDe(cle), rang, static_cast<std::uint32_t>(debut),
                      static_cast<std::uint32_t>(cle.size())};
    }
    return true;
}

/// Names and years as the base has them.
class NomsDeLaBase final : public FournisseurNoms {
public:
    NomsDeLaBase(ColonneNoms& noms, ColonneAnnees<NoOrdre>& naissances)
        : noms_{noms}, naissances_{naissances} {}
    [[nodiscard]] ElementTri ElementDe(NoOrdre n) override {
        annee_ = naissances_.LireCellule(n);
        const LigneNom ligne = noms_.LireNom(n);
        return {ligne.nom, ligne.prenom, annee_};
    }

private:
    ColonneNoms& noms_;
    ColonneAnnees<NoOrdre>& naissances_;
    std::string annee_;
};

std::uint32_t RangDe(const TableTri& table, std::uint32_t numero) {
    const auto& numeros = table.Numeros();
    const auto place = std::find(numeros.begin(), numeros.end(), numero);
    if (numero == 0 || place == numeros.end()) return 0;
    return static_cast<std::uint32_t>(place - numeros.begin()) + 1;
}

/// Rank behind all entries whose key is not above `cle`, in a table in order.
template <class Cle_, class CleDeNumero>
std::uint32_t RangDerriere(const TableTri& table, const Cle_& cle, CleDeNumero cleDe) {
    std::uint32_t bas = 1;
    std::uint32_t haut = table.Taille() + 1;
    while (bas < haut) {
        const std::uint32_t milieu = (bas + haut) / 2;
        if (cle < cleDe(table.AuRang(milieu)))
            haut = milieu;
        else
            bas = milieu + 1;
    }
    return bas;
}

template <class CleDeNumero>
void TrierParCle(TableTri& table, CleDeNumero cleDe) {
    using CleTriee = decltype(cleDe(0U));
    std::vector<std::pair<CleTriee, std::uint16_t>> entrees;
    for (const std::uint16_t numero : table.Numeros())
        entrees.emplace_back(cleDe(numero), numero);
    std::stable_sort(entrees.begin(), entrees.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::uint16_t> numeros;
    numeros.reserve(entrees.size());
    for (const auto& entree : entrees)
        numeros.push_back(entree.second);
    table.Remplacer(std::move(numeros));
}

}  // namespace

TablesTri::TablesTri(Volume& volume, Marques& marques, EnTete& entete, ReglesNoms& regles,
                     ColonneNoms& noms, ColonneAnnees<NoOrdre>& naissances,
                     Evenements& evenementsDeBase, Documents& documentsDeBase)
    : individus{volume, 64},
      documents{volume, 32},
      evenements{volume, 32},
      marques_{marques},
      entete_{entete},
      regles_{regles},
      noms_{noms},
      naissances_{naissances},
      evt_{evenementsDeBase},
      doc_{documentsDeBase} {}

void TablesTri::ChargerTris() {
    individus.Charger(entete_.NbTriIndividus);
    documents.Charger(entete_.NbTriDocuments);
    evenements.Charger(entete_.NbTriEvenements);
    noMemo_ = {};
}

NoOrdre TablesTri::IndividuAuRang(std::uint32_t rang) const {
    return NoOrdre{rang <= entete_.NbTriIndividus ? individus.AuRang(rang) : 0};
}

NoEvenement TablesTri::EvtAuRang(std::uint32_t rang) const {
    return NoEvenement{rang <= entete_.NbTriEvenements ? evenements.AuRang(rang) : 0};
}

NoDocument TablesTri::DocumentAuRang(std::uint32_t rang) const {
    return NoDocument{rang <= entete_.NbTriDocuments ? documents.AuRang(rang) : 0};
}

void TablesTri::FixerRang(std::uint32_t rang, NoOrdre n) {
    individus.Fixer(rang, n.valeur);
    marques_.ModifTriIndividus = true;
}

void TablesTri::FixerRang(std::uint32_t rang, NoEvenement e) {
    evenements.Fixer(rang, e.valeur);
    marques_.ModifTriEvenements = true;
}

void TablesTri::FixerRang(std::uint32_t rang, NoDocument d) {
    documents.Fixer(rang, d.valeur);
    marques_.ModifTriDocuments = true;
}

const ReglesNoms& TablesTri::Regles() {
    regles_.deplacer = entete_.OptParticules;
    return regles_;
}

std::string TablesTri::CleDe(NoOrdre n) {
    const LigneNom ligne = noms_.LireNom(n);
    return CleTri(ligne.nom, ligne.prenom, naissances_.LireCellule(n), entete_.TypeTri, Regles());
}

std::uint32_t TablesTri::RangIndividu(NoOrdre n) {
    if (!n) return 0;
    if (noMemo_ == n && individus.AuRang(rangMemo_) == n.valeur) return rangMemo_;
    std::uint32_t rang = 0;
    if (!AUneCle(entete_.TypeTri)) {
        rang = RangDe(individus, n.valeur);
    } else {
        const std::string cle = CleDe(n);
        rang = RangDerriere(individus, cle,
                            [this](std::uint32_t numero) { return CleDe(NoOrdre{numero}); }) -
               1;
        // All equal keys stand in front of that rank.
        while (rang != 0 && individus.AuRang(rang) != n.valeur)
            rang = CleDe(NoOrdre{individus.AuRang(rang)}) == cle ? rang - 1 : 0;
    }
    noMemo_ = n;
    rangMemo_ = rang;
    return rang;
}

std::uint32_t TablesTri::RangEvt(NoEvenement e) const {
    return RangDe(evenements, e.valeur);
}

std::uint32_t TablesTri::RangDocument(NoDocument d) const {
    return RangDe(documents, d.valeur);
}

std::uint32_t TablesTri::RangInsertion(NoOrdre n) {
    if (!AUneCle(entete_.TypeTri)) return individus.Taille() + 1;
    return RangDerriere(individus, CleDe(n),
                        [this](std::uint32_t numero) { return CleDe(NoOrdre{numero}); });
}

void TablesTri::ModifierTri(std::uint32_t rang, NoOrdre n, ActionListe action) {
    if (action == ActionListe::Supprimer) {
        if (individus.AuRang(rang) != n.valeur) marques_.Signaler(Incident::TableDeTri, 0);
        individus.Retirer(rang);
    } else {
        individus.Inserer(rang, n.valeur);
    }
}

void TablesTri::AjouterIndividu(NoOrdre n) {
    ModifierTri(RangInsertion(n), n, ActionListe::Ajouter);
    entete_.NbTriIndividus = individus.Taille();
    marques_.ModifTriIndividus = true;
}

void TablesTri::RetirerIndividu(NoOrdre n) {
    std::uint32_t rang = RangIndividu(n);
    // Under a name that has changed since, the key leads nowhere.
    if (rang == 0) rang = RangDe(individus, n.valeur);
    if (rang == 0) return;
    ModifierTri(rang, n, ActionListe::Supprimer);
    entete_.NbTriIndividus = individus.Taille();
    marques_.ModifTriIndividus = true;
}

void TablesTri::RetirerEvt(NoEvenement e) {
    evenements.Retirer(RangEvt(e));
    entete_.NbTriEvenements = evenements.Taille();
    marques_.ModifTriEvenements = true;
}

void TablesTri::RetirerDocument(NoDocument d) {
    documents.Retirer(RangDocument(d));
    entete_.NbTriDocuments = documents.Taille();
    marques_.ModifTriDocuments = true;
}

void TablesTri::AjouterEvt(NoEvenement e) {
    const auto cleDe = [this](std::uint32_t numero) {
        return evt_.CleDateEvt(NoEvenement{numero});
    };
    evenements.Inserer(RangDerriere(evenements, cleDe(e.valeur), cleDe), e.valeur);
    entete_.NbTriEvenements = evenements.Taille();
    marques_.ModifTriEvenements = true;
}

void TablesTri::AjouterDocument(NoDocument d) {
    const auto cleDe = [this](std::uint32_t numero) {
        return Replie(doc_.TitreDoc(NoDocument{numero}));
    };
    documents.Inserer(RangDerriere(documents, cleDe(d.valeur), cleDe), d.valeur);
    entete_.NbTriDocuments = documents.Taille();
    marques_.ModifTriDocuments = true;
}

bool TablesTri::TrierIndividus(Progression& progression) {
    NomsDeLaBase noms{noms_, naissances_};
    return TrierIndividus(noms, progression);
}

bool TablesTri::TrierIndividus(FournisseurNoms& noms, Progression& progression) {
    std::vector<std::uint16_t> numeros = individus.Numeros();
    if (!AUneCle(entete_.TypeTri)) {
        std::sort(numeros.begin(), numeros.end());
    } else {
        std::vector<Cle> cles;
        std::string arene;
        const bool fait = PreparerCles(individus.Numeros(), noms, entete_.TypeTri, Regles(),
                                       progression, cles, arene);
        progression.Phase(Litteral("Constitution du tri"));
        if (!fait) return false;
        std::sort(cles.begin(), cles.end(), [&arene](const Cle& a, const Cle& b) {
            if (a.tete != b.tete) return a.tete < b.tete;
            const int ordre = std::string_view{arene.data() + a.debut, a.taille}.compare(
                {arene.data() + b.debut, b.taille});
            return ordre != 0 ? ordre < 0 : a.rang < b.rang;
        });
        std::transform(cles.begin(), cles.end(), numeros.begin(),
                       [this](const Cle& cle) { return individus.Numeros()[cle.rang]; });
    }
    individus.Remplacer(std::move(numeros));
    marques_.ModifTriIndividus = true;
    return true;
}

void TablesTri::TrierEvenements() {
    TrierParCle(evenements,
                [this](std::uint32_t numero) { return evt_.CleDateEvt(NoEvenement{numero}); });
    marques_.ModifTriEvenements = true;
}

void TablesTri::TrierDocuments() {
    TrierParCle(documents,
                [this](std::uint32_t numero) { return Replie(doc_.TitreDoc(NoDocument{numero})); });
    marques_.ModifTriDocuments = true;
}

void TablesTri::EcrireTriIndividus() {
    if (marques_.ModifTriIndividus) individus.Vider(entete_.NbTriIndividus);
    marques_.ModifTriIndividus = false;
}

void TablesTri::EcrireTriEvenements() {
    if (marques_.ModifTriEvenements) evenements.Vider(entete_.NbTriEvenements);
    marques_.ModifTriEvenements = false;
}

void TablesTri::EcrireTriDocuments() {
    if (marques_.ModifTriDocuments) documents.Vider(entete_.NbTriDocuments);
    marques_.ModifTriDocuments = false;
}

}  // namespace dorvane::storage

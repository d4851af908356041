#include "shell/Numerotation.h"

#include "storage/Base.h"
#include "storage/Famille.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace dorvane::shell {

namespace {

constexpr int DerniereGeneration = 13;
constexpr int DerniereProfondeur = 9;
constexpr std::size_t MaxUnions = 26;
constexpr std::size_t MaxEnfants = 50;
// No family comes near: a damaged base in which everybody is a child of everybody would be walked
// for years.
constexpr int MaxVisites = 2'000'000;

/// One numbering while it is made. Every walk is bounded by its depth, so that a person who is an
/// ancestor of himself in a damaged base ends it like any other.
class Numeroteur {
public:
    Numeroteur(storage::Base& base, DeCujus& cujus) : base_{base}, cujus_{cujus} {}

    void Numeroter() {
        cujus_.sosa.assign(std::size_t{base_.entete.DernierIndividu} + 1, 0);
        cujus_.numerosAsc.assign(1, 0);
        cujus_.numerosDesc.assign(1, {});
        if (!Existe(cujus_.individu)) return;
        storage::ParcourirFamille(Ascendant{cujus_.individu, 1, 0},
                                  [this](const Ascendant& a, std::vector<Ascendant>& suivants) {
                                      Monter(a, suivants);
                                      return true;
                                  });
        storage::ParcourirFamille(Descendant{cujus_.individu, {}, 0, false},
                                  [this](const Descendant& d, std::vector<Descendant>& suivants) {
                                      if (d.profondeur == 0 || Inscrire(d)) Descendre(d, suivants);
                                      return true;
                                  });
    }

private:
    struct Union {
        NoOrdre conjoint{};
        int compteur = 0;
    };
    struct Ascendant {
        NoOrdre individu;
        std::int32_t numero;
        int generation;
    };
    struct Descendant {
        NoOrdre individu;
        std::string numero;
        int profondeur;
        bool parentHomme;
    };

    [[nodiscard]] bool Existe(NoOrdre n) const { return n && n.valeur < cujus_.sosa.size(); }
    [[nodiscard]] std::int32_t& Pointeur(NoOrdre n) { return cujus_.sosa[n.valeur]; }

    void Monter(const Ascendant& a, std::vector<Ascendant>& suivants) {
        std::int32_t& pointeur = Pointeur(a.individu);
        if (pointeur > 0) {
            std::int32_t& deja = cujus_.numerosAsc[static_cast<std::size_t>(pointeur)];
            if (deja < a.numero) return;
            deja = a.numero;
        } else {
            pointeur = static_cast<std::int32_t>(cujus_.numerosAsc.size());
            cujus_.numerosAsc.push_back(a.numero);
        }
        if (a.generation >= DerniereGeneration) return;
        const auto [pere, mere] = storage::ParentsDe(base_, a.individu);
        if (Existe(pere)) suivants.push_back({pere, 2 * a.numero, a.generation + 1});
        if (Existe(mere)) suivants.push_back({mere, 2 * a.numero + 1, a.generation + 1});
    }

    [[nodiscard]] std::vector<Union> UnionsDe(NoOrdre n, bool homme) {
        std::vector<Union> unions;
        for (const NoMariage mariage : base_.R_MARIAG.Elements(n)) {
            if (unions.size() == MaxUnions) break;
            unions.push_back(
                {homme ? base_.R_EPOUSE.LireCellule(mariage) : base_.R_EPOUX.LireCellule(mariage)});
        }
        return unions;
    }

    void Descendre(const Descendant& parent, std::vector<Descendant>& suivants) {
        if (parent.profondeur > DerniereProfondeur || ++visites_ > MaxVisites) return;
        const bool homme = base_.R_SEXE.LireCellule(parent.individu) == Sexe::Homme;
        std::vector<Union> unions = UnionsDe(parent.individu, homme);
        int commun = 0;
        const std::vector<NoOrdre> enfants = base_.R_ENFANT.Elements(parent.individu);
        for (std::size_t i = 0; i < std::min(enfants.size(), MaxEnfants); ++i) {
            const NoOrdre enfant = enfants[i];
            if (!Existe(enfant)) continue;
            const NoOrdre autre =
                storage::LireParent(base_, enfant, homme ? Cote::Mere : Cote::Pere);
            const auto sienne = std::find_if(unions.begin(), unions.end(), [autre](const Union& u) {
                return u.conjoint == autre;
            });
            std::string numero = parent.numero;
            if (sienne == unions.end()) {
                numero += '*' + std::to_string(++commun);
            } else {
                numero +=
                    unions.size() == 1 ? '.' : static_cast<char>('a' + (sienne - unions.begin()));
                numero += std::to_string(++sienne->compteur);
            }
            suivants.push_back({enfant, std::move(numero), parent.profondeur + 1, homme});
        }
    }

    /// Gives a descendant its string. False when the walk does not go on below.
    bool Inscrire(const Descendant& enfant) {
        std::int32_t& pointeur = Pointeur(enfant.individu);
        if (pointeur != 0 && !enfant.parentHomme) return false;
        if (pointeur < 0) {
            cujus_.numerosDesc[static_cast<std::size_t>(-pointeur)] = enfant.numero;
            return true;
        }
        // The reference person and the ascendants keep their Sosa number: a child of one's own who
        // is also one's ancestor stands in a base that is wrong.
        if (pointeur > 0) return false;
        pointeur = -static_cast<std::int32_t>(cujus_.numerosDesc.size());
        cujus_.numerosDesc.push_back(enfant.numero);
        return true;
    }

    storage::Base& base_;
    DeCujus& cujus_;
    int visites_ = 0;
};

std::string Libelle(Session& session, const DeCujus& cujus, bool premier) {
    std::string nom = "...";
    if (session.base && cujus.individu) {
        const storage::LigneNom ligne = session.base->R_NOM.LireNom(cujus.individu);
        nom = std::string{ligne.nom} + ' ' + std::string{ligne.prenom};
    }
    return premier ? "[" + nom + "]" : "{" + nom + "}";
}

}  // namespace

void NumeroterDeCujus(Session& session, int k) {
    assert(k == 1 || k == 2);
    DeCujus& cujus = session.deCujus[k == 1 ? 0 : 1];
    cujus.perime = false;
    cujus.sosa.clear();
    cujus.numerosAsc.clear();
    cujus.numerosDesc.clear();
    if (session.base && cujus.individu.valeur > session.base->entete.DernierIndividu)
        cujus.individu = NoOrdre{};
    if (session.base && cujus.individu) Numeroteur{*session.base, cujus}.Numeroter();
    cujus.libelle = Libelle(session, cujus, k == 1);
}

bool MnuDeCujus(Session& session, int k) {
    if (!session.base) return false;
    DeCujus& cujus = session.deCujus[k == 1 ? 0 : 1];
    const NoOrdre choisi = session.dialogue.ChoisirPersonne(
        {cujus.individu ? cujus.individu : session.PersonneEnCours, {}, {}});
    if (!choisi) return false;
    cujus.individu = choisi;
    NumeroterDeCujus(session, k);
    session.base->marques.AffichagePerime = true;
    session.ecran.Actualiser();
    return true;
}

void AgrandirNumerotations(Session& session) {
    if (!session.base) return;
    const std::size_t taille = std::size_t{session.base->entete.DernierIndividu} + 1;
    for (DeCujus& cujus : session.deCujus)
        if (!cujus.sosa.empty() && cujus.sosa.size() < taille) cujus.sosa.resize(taille, 0);
}

}  // namespace dorvane::shell

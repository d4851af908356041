// A base of communes written dense, from its communes in memory.
#include "storage/BaseCommunes.h"
#include "values/Octets.h"
#include "values/Phonetique.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <utility>

namespace dorvane::storage {

namespace {

constexpr std::uint32_t PasCompteur = 1000;

/// One key of an index and the communes that have it, chained by their numbers.
struct Cle {
    std::string texte;
    NoCommune n{};
};

class Constructeur {
public:
    Constructeur(std::span<const Commune> communes, Progression& progression)
        : communes_{communes}, progression_{progression}, fiches_(communes.size()) {}

    bool Ecrire(std::string& octets) {
        const std::string_view titre = "Réorganisation communes"_1252;
        const CadreProgression cadre{progression_, Litteral(titre),
                                     Litteral("Réorganisation Communes"_1252)};
        const bool fait = Composer();
        if (fait) octets = image_.Octets();
        return fait;
    }

private:
    bool Composer() {
        // The links are known once the keys are sorted, the positions of the comments once the
        // records stand: these are patched at the end.
        const std::vector<Cle> noms = Trier(CleCommune, &EnregistrementCommune::suivanteNom);
        const std::vector<Cle> sons = Trier(ClePhonetique, &EnregistrementCommune::suivanteSon);
        if (!EcrireFiches()) return false;
        progression_.Phase(Litteral("Réorganisation Index"_1252));
        if (!EcrireIndex(AireLgx::Noms, noms, "Zzzzzzzzzz")) return false;
        progression_.Phase(Litteral("Réorganisation Soundex"_1252));
        if (!EcrireIndex(AireLgx::Sons, sons, "Zzzz")) return false;
        progression_.Phase(Litteral("Réorganisation Commentaire"_1252));
        return EcrireCommentaires();
    }

    [[nodiscard]] std::uint32_t Total() const {
        return static_cast<std::uint32_t>(communes_.size());
    }
    bool Avancer(std::uint32_t fait, std::uint32_t total) {
        return fait % PasCompteur != 0 || progression_.Avancer(fait, total);
    }

    /// The keys in ascending order, each once with its first commune; the further ones are linked.
    template <class Fonction>
    std::vector<Cle> Trier(Fonction cleDe, NoCommune EnregistrementCommune::*suivante) {
        std::vector<Cle> toutes;
        toutes.reserve(communes_.size());
        for (std::uint32_t n = 1; n <= Total(); ++n)
            if (!communes_[n - 1].nom.empty())
                toutes.push_back({cleDe(communes_[n - 1].nom), NoCommune{n}});
        std::stable_sort(toutes.begin(), toutes.end(),
                         [](const Cle& a, const Cle& b) { return a.texte < b.texte; });
        std::vector<Cle> cles;
        NoCommune avant;
        for (Cle& cle : toutes) {
            const NoCommune n = cle.n;
            if (!cles.empty() && cles.back().texte == cle.texte)
                fiches_[avant.valeur - 1].*suivante = n;
            else
                cles.push_back(std::move(cle));
            avant = n;
        }
        return cles;
    }

    bool EcrireFiches() {
        image_.FixerNombre(AireLgx::Communes, Total());
        for (std::uint32_t n = 1; n <= Total(); ++n) {
            if (!Avancer(n, Total())) return false;
            if (communes_[n - 1].nom.empty()) continue;
            EnregistrementCommune& e = fiches_[n - 1];
            e.commune = communes_[n - 1];
            if (!e.commune.commentaire.empty()) e.commentaire = Position{1};  // patched later
            image_.FixerCellule(AireLgx::Communes, n, image_.Ajouter(ComposerCommune(e)));
            e.commune = {};
        }
        return true;
    }

    bool EcrireIndex(AireLgx aire, const std::vector<Cle>& cles, std::string_view sentinelle) {
        std::uint32_t i = 0;
        for (const Cle& cle : cles) {
            if (!Avancer(++i, static_cast<std::uint32_t>(cles.size()))) return false;
            image_.FixerCellule(aire, i,
                                image_.Ajouter(cle.texte + '#' + NumVersChaine4(cle.n.valeur)));
        }
        image_.FixerCellule(aire, i + 1,
                            image_.Ajouter(std::string{sentinelle} + '#' + NumVersChaine4(0)));
        image_.FixerNombre(aire, i + 1);
        return true;
    }

    bool EcrireCommentaires() {
        std::uint32_t nombre = 0;
        for (std::uint32_t n = 1; n <= Total(); ++n) {
            if (!Avancer(n, Total())) return false;
            const Commune& commune = communes_[n - 1];
            if (commune.nom.empty() || commune.commentaire.empty()) continue;
            const Position place = image_.Ajouter(commune.commentaire + '#');
            image_.FixerCellule(AireLgx::Commentaires, n, place);
            image_.Remplacer(ApresNom(n, commune), NumVersChaine4(place.valeur));
            ++nombre;
        }
        image_.FixerNombre(AireLgx::Commentaires, nombre);
        return true;
    }

    /// Where the record keeps the position of the comment: behind the name and its byte 0.
    [[nodiscard]] Position ApresNom(std::uint32_t n, const Commune& c) const {
        const std::size_t avant = c.code.size() + c.rattachement.size() + c.nom.size() + 3;
        return Position{image_.Cellule(AireLgx::Communes, n).valeur +
                        static_cast<std::uint32_t>(avant)};
    }

    std::span<const Commune> communes_;
    Progression& progression_;
    ImageLgx image_;
    std::vector<EnregistrementCommune> fiches_;  ///< the links; texts only while one is written
};

}  // namespace

bool ComposerLgx(std::span<const Commune> communes, Progression& progression, std::string& octets) {
    return communes.size() <= BaseCommunes::MaxCommunes &&
           Constructeur{communes, progression}.Ecrire(octets);
}

}  // namespace dorvane::storage

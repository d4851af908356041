#include "storage/ConstruireIndex.h"

#include "messages/Messages.h"
#include "storage/Base.h"
#include "values/Annees.h"
#include "values/Octets.h"
#include "values/TexteRiche.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <numeric>
#include <string>
#include <string_view>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t PasCompteur = 100;
constexpr std::size_t MaxPersonnes = 65535;

/// Texts given once each, with a number in the order of their arrival.
class Recueil {
public:
    Recueil() : places_(TailleInitiale) {}

    struct Reponse {
        std::uint32_t numero;
        bool nouveau;
    };
    /// The number of `texte` within `groupe`.
    Reponse Ranger(std::uint32_t groupe, std::string_view texte) {
        const std::size_t empreinte =
            std::hash<std::string_view>{}(texte) ^ groupe * 0x9E3779B97F4A7C15ULL;
        std::size_t place = empreinte & (places_.size() - 1);
        while (places_[place] != 0) {
            const Entree& entree = entrees_[places_[place] - 1];
            if (entree.empreinte == empreinte && entree.groupe == groupe &&
                Texte(places_[place] - 1) == texte)
                return {places_[place] - 1, false};
            place = (place + 1) & (places_.size() - 1);
        }
        entrees_.push_back(
            {empreinte, arene_.size(), static_cast<std::uint32_t>(texte.size()), groupe});
        arene_ += texte;
        places_[place] = static_cast<std::uint32_t>(entrees_.size());
        if (entrees_.size() * 2 > places_.size()) Agrandir();
        return {static_cast<std::uint32_t>(entrees_.size() - 1), true};
    }
    [[nodiscard]] std::string_view Texte(std::uint32_t numero) const {
        const Entree& entree = entrees_[numero];
        return {arene_.data() + entree.debut, entree.taille};
    }
    [[nodiscard]] std::uint32_t Groupe(std::uint32_t numero) const {
        return entrees_[numero].groupe;
    }
    [[nodiscard]] std::size_t Nombre() const { return entrees_.size(); }

private:
    static constexpr std::size_t TailleInitiale = 4096;
    struct Entree {
        std::size_t empreinte;
        std::size_t debut;
        std::uint32_t taille;
        std::uint32_t groupe;
    };
    void Agrandir() {
        places_.assign(places_.size() * 2, 0);
        for (std::uint32_t i = 0; i < entrees_.size(); ++i) {
            std::size_t place = entrees_[i].empreinte & (places_.size() - 1);
            while (places_[place] != 0)
                place = (place + 1) & (places_.size() - 1);
            places_[place] = i + 1;
        }
    }

    std::vector<std::uint32_t> places_;  // number + 1; 0 free; a power of two of them
    std::vector<Entree> entrees_;
    std::string arene_;
};

/// Reads the texts of all persons and remembers who carries which word.
class Moisson {
public:
    Moisson(Base& base, std::span<const NoMotCle> types) {
        groupes_.fill(SansGroupe);
        for (const NoMotCle k : types) {
            const auto symbole = static_cast<unsigned char>(base.motsCles.LibelleType(k).symbole);
            if (groupes_[symbole] == SansGroupe) groupes_[symbole] = nbGroupes_++;
        }
        ListerPersonnes(base);
    }

    bool Lire(FournisseurTextes& textes, Progression& progression) {
        std::vector<std::uint32_t> ordre(personnes_.size());
        std::iota(ordre.begin(), ordre.end(), 0U);
        // By number: texts then come nearly in the order in which they stand in the file.
        std::sort(ordre.begin(), ordre.end(), [this](std::uint32_t a, std::uint32_t b) {
            return personnes_[a].no < personnes_[b].no;
        });
        const auto total = static_cast<std::uint32_t>(ordre.size());
        std::vector<std::string_view> vues;
        std::uint32_t fait = 0;
        for (const std::uint32_t i : ordre) {
            if (fait % PasCompteur == 0 && !progression.Avancer(fait, total)) return false;
            ++fait;
            personnes_[i].debut = static_cast<std::uint32_t>(jetons_.size());
            vues.clear();
            textes.TextesDe(personnes_[i].no, vues);
            for (const std::string_view texte : vues)
                LireTexte(TexteSansRtf(texte, tampon_));
            personnes_[i].fin = static_cast<std::uint32_t>(jetons_.size());
        }
        Distribuer();
        return true;
    }

    /// The words of one symbol in order.
    [[nodiscard]] std::vector<std::uint32_t> MotsDe(char symbole) const {
        const int groupe = groupes_[static_cast<unsigned char>(symbole)];
        std::vector<std::uint32_t> choisis;
        for (std::uint32_t mot = 0; mot < mots_.Nombre(); ++mot)
            if (static_cast<int>(mots_.Groupe(mot)) == groupe) choisis.push_back(mot);
        std::sort(choisis.begin(), choisis.end(), [this](std::uint32_t a, std::uint32_t b) {
            return mots_.Texte(a) < mots_.Texte(b);
        });
        return choisis;
    }
    [[nodiscard]] std::string_view Texte(std::uint32_t mot) const { return mots_.Texte(mot); }
    /// Who carries the word, by year of birth, as `Num2`.
    [[nodiscard]] std::string_view PersonnesDe(std::uint32_t mot) const {
        return std::string_view{listes_}.substr(debuts_[mot] * 2ULL,
                                                (debuts_[mot + 1] - debuts_[mot]) * 2ULL);
    }

private:
    static constexpr int SansGroupe = -1;
    struct Personne {
        NoOrdre no;
        std::uint32_t annee;      // `AnneeTri`, most significant byte first
        std::uint32_t debut = 0;  // its words in `jetons_`
        std::uint32_t fin = 0;
    };

    void ListerPersonnes(Base& base) {
        std::vector<bool> vue(MaxIndividus + 1);
        std::vector<std::uint32_t> annees(base.entete.DernierIndividu + 1);
        for (NoOrdre n{1}; n.valeur <= base.entete.DernierIndividu; ++n.valeur)
            annees[n.valeur] = Chaine4VersNum(base.R_NAISS.AnneeTri(n));
        for (std::uint32_t rang = 1; rang <= base.entete.NbTriIndividus; ++rang) {
            const NoOrdre n = base.R_TRI.IndividuAuRang(rang);
            if (!n || n.valeur > base.entete.DernierIndividu || vue[n.valeur]) continue;
            vue[n.valeur] = true;
            personnes_.push_back({n, annees[n.valeur]});
        }
    }

    void LireTexte(std::string_view texte) {
        CoupeJetons coupe{texte};
        for (std::size_t i = 0; i < texte.size(); ++i) {
            const int groupe = groupes_[static_cast<unsigned char>(texte[i])];
            if (groupe == SansGroupe) continue;
            const std::string_view jeton = coupe.JetonA(i + 1);
            if (jeton.empty()) continue;
            const auto g = static_cast<std::uint32_t>(groupe);
            // As written first: most tokens come again and need no folding then.
            const Recueil::Reponse brut = bruts_.Ranger(g, jeton);
            if (brut.nouveau) motDuBrut_.push_back(mots_.Ranger(g, FormeIndexee(jeton)).numero);
            jetons_.push_back(motDuBrut_[brut.numero]);
        }
    }

    /// Puts the persons under their words, by year of birth, equal years as they were walked.
    void Distribuer() {
        debuts_.assign(mots_.Nombre() + 1, 0);
        for (const std::uint32_t mot : jetons_)
            ++debuts_[mot + 1];
        std::partial_sum(debuts_.begin(), debuts_.end(), debuts_.begin());
        std::stable_sort(personnes_.begin(), personnes_.end(),
                         [](const Personne& a, const Personne& b) { return a.annee < b.annee; });
        std::vector<std::uint32_t> suivants{debuts_};
        listes_.resize(jetons_.size() * 2);
        for (const Personne& personne : personnes_)
            for (std::uint32_t i = personne.debut; i < personne.fin; ++i) {
                const std::size_t place = suivants[jetons_[i]]++ * 2ULL;
                listes_[place] = static_cast<char>(personne.no.valeur >> 8U);
                listes_[place + 1] = static_cast<char>(personne.no.valeur & 0xFFU);
            }
    }

    std::array<int, 256> groupes_{};  // by symbol
    int nbGroupes_ = 0;
    std::vector<Personne> personnes_;
    Recueil bruts_;
    Recueil mots_;
    std::vector<std::uint32_t> motDuBrut_;
    std::vector<std::uint32_t> jetons_;
    std::vector<std::uint32_t> debuts_;
    std::string listes_;
    std::string tampon_;
};

/// Writes the word list of `k`, then each word with its persons and its cell, then the keyword.
void EcrireType(Base& base, NoMotCle k, const Moisson& moisson) {
    MotCle type = base.motsCles.LibelleType(k);
    std::vector<std::uint32_t> mots = moisson.MotsDe(type.symbole);
    const std::vector<NoIndex> anciens = base.R_INDEX.ListeMots(k);
    if (mots.empty() && anciens.empty() && type.mots) return;
    for (const NoIndex e : anciens)
        base.R_INDEX.EcrireCelluleIndex(e, {});
    const std::size_t libres = MaxIndex - base.entete.NbIndex;
    if (mots.size() > libres) {
        mots.resize(libres);
        base.R_INDEX.SignalerPlein();
    }
    std::string liste = NumVersChaine2(static_cast<std::uint32_t>(mots.size()));
    for (std::uint32_t i = 1; i <= mots.size(); ++i)
        liste += NumVersChaine2(base.entete.NbIndex + i);
    type.indexe = true;
    type.mots = base.volume.Ajouter(liste);
    for (const std::uint32_t mot : mots) {
        CelluleMot cellule;
        cellule.mot = base.volume.Ajouter(moisson.Texte(mot), "#");
        std::string_view personnes = moisson.PersonnesDe(mot);
        if (personnes.size() > MaxPersonnes * 2) {
            personnes = personnes.substr(0, MaxPersonnes * 2);
            base.R_INDEX.SignalerPlein();
        }
        cellule.nombre = static_cast<std::uint32_t>(personnes.size() / 2);
        cellule.personnes = base.volume.Ajouter(personnes);
        base.R_INDEX.EcrireCelluleIndex(base.R_INDEX.NouvelleEntree(), cellule);
    }
    base.motsCles.CreerType(k, type);
}

/// The texts as the base has them.
class TextesDeLaBase final : public FournisseurTextes {
public:
    explicit TextesDeLaBase(Base& base) : base_{base} {}
    void TextesDe(NoOrdre n, std::vector<std::string_view>& textes) override {
        textes.push_back(base_.R_TEXTE.LireTexte(n));
        const std::size_t nbUnions = base_.R_MARIAG.NbElements(n);
        // Views of these must not move while they are filled.
        if (unions_.size() < nbUnions) unions_.resize(MaxElements);
        for (std::size_t i = 0; i < nbUnions; ++i) {
            unions_[i] = base_.R_TXTMAR.LireTexte(base_.R_MARIAG.ElementListe(n, i + 1));
            textes.emplace_back(unions_[i]);
        }
    }

private:
    Base& base_;
    std::vector<std::string> unions_;
};

}  // namespace

bool ConstruireIndex(Base& base, std::span<const NoMotCle> types, FournisseurTextes& textes,
                     Progression& progression) {
    if (types.empty()) return true;
    Moisson moisson{base, types};
    const bool fait = moisson.Lire(textes, progression);
    if (!fait) return false;
    for (const NoMotCle k : types)
        EcrireType(base, k, moisson);
    return true;
}

bool ConstruireIndex(Base& base, std::span<const NoMotCle> types, Progression& progression) {
    TextesDeLaBase textes{base};
    return ConstruireIndex(base, types, textes, progression);
}

bool ConstruireIndex(Base& base, char symbole, Progression& progression) {
    const NoMotCle k = base.motsCles.TypeDuSymbole(symbole);
    return k ? ConstruireIndex(base, std::span{&k, 1}, progression) : true;
}

}  // namespace dorvane::storage

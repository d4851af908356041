// Cell: Num4 word record, Num2 count, Num4 person list. Word record: folded word, "#". Person list:
// count times Num2. Word list of a keyword: Num2 count, count times Num2 entry.
#include "storage/R_INDEX.h"

#include "values/Annees.h"
#include "values/Comparaison.h"
#include "values/Octets.h"
#include "values/TexteRiche.h"

#include <algorithm>
#include <unordered_map>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t TailleCellule = 10;
constexpr std::uint32_t CellulesParBloc = 400;
constexpr std::uint32_t NbBlocsIndex = 160;
constexpr std::size_t MaxPersonnes = 65535;
// What is longer is no word. A run full of symbols is a token for each of them: the limit also
// bounds what comes of it.
constexpr std::size_t MaxMot = 1023;
constexpr std::size_t MaxMotLu = 4096;  // of what other programs have indexed

template <class N>
std::vector<N> LireNumeros(Volume& volume, Position position, std::uint32_t nombre) {
    std::string octets(nombre * 2ULL, '\0');
    const std::size_t lus = volume.Lire(position, octets) / 2;
    std::vector<N> numeros;
    numeros.reserve(lus);
    for (std::size_t i = 0; i < lus; ++i)
        numeros.emplace_back(Chaine2VersNum(std::string_view{octets}.substr(i * 2, 2)));
    return numeros;
}

template <class N>
std::string OctetsDe(const std::vector<N>& numeros) {
    std::string octets;
    octets.reserve(numeros.size() * 2);
    for (const N numero : numeros)
        octets += NumVersChaine2(numero.valeur);
    return octets;
}

/// Takes out of both lists the words that they have in common, one for one, the first ones first.
void AnnulerPaires(std::vector<std::string>& anciens, std::vector<std::string>& nouveaux) {
    std::unordered_map<std::string_view, std::size_t> libres;
    for (const std::string& mot : nouveaux)
        ++libres[mot];
    std::unordered_map<std::string, std::size_t> annules;
    std::erase_if(anciens, [&](const std::string& mot) {
        const auto pareil = libres.find(mot);
        if (pareil == libres.end() || pareil->second == 0) return false;
        --pareil->second;
        ++annules[mot];
        return true;
    });
    std::erase_if(nouveaux, [&](const std::string& mot) {
        const auto annule = annules.find(mot);
        if (annule == annules.end() || annule->second == 0) return false;
        --annule->second;
        return true;
    });
}

/// The folded text. Rich text may spell a "#", which would end the word record: it counts as a
/// dash.
std::string PlierJetons(std::string_view texte) {
    std::string replie = Replie(texte);
    std::replace(replie.begin(), replie.end(), '#', ' ');
    return replie;
}

/// The word of a token that is not empty, given its folded form.
std::string MotDuJeton(std::string_view jeton, std::string_view replie) {
    const std::string_view mot = SansBlancsADroite(replie);
    if (!mot.empty()) return std::string{mot};
    // Of dots alone nothing would be left: the token then stands for itself.
    std::string brut{jeton};
    std::replace(brut.begin(), brut.end(), '#', '-');
    return brut;
}

}  // namespace

std::string_view CoupeJetons::JetonA(std::size_t debut) {
    if (fin_ < debut) {
        fin_ = debut;
        while (fin_ < texte_.size() && texte_[fin_] != ' ' && texte_[fin_] != '\r')
            ++fin_;
    }
    return fin_ - debut > MaxMot ? std::string_view{} : texte_.substr(debut, fin_ - debut);
}

std::string FormeIndexee(std::string_view jeton) {
    return MotDuJeton(jeton, PlierJetons(jeton));
}

std::vector<std::string> MotsDuTexte(std::string_view texte, char symbole) {
    std::vector<std::string> mots;
    std::string tampon;
    const std::string_view brut = TexteSansRtf(texte, tampon);
    std::size_t i = brut.find(symbole);
    if (i == std::string_view::npos) return mots;
    const std::string replie = PlierJetons(brut);
    CoupeJetons coupe{brut};
    for (; i != std::string_view::npos; i = brut.find(symbole, i + 1)) {
        const std::string_view jeton = coupe.JetonA(i + 1);
        if (!jeton.empty())
            mots.push_back(MotDuJeton(jeton, std::string_view{replie}.substr(i + 1, jeton.size())));
    }
    return mots;
}

MotsIndex::MotsIndex(Volume& volume, Marques& marques, EnTete& entete, MotsCles& motsCles,
                     ColonneAnnees<NoOrdre>& naissances)
    : ColonneBrute{volume, marques, {TailleCellule, NbBlocsIndex, '\0', CellulesParBloc}},
      entete_{entete},
      motsCles_{motsCles},
      naissances_{naissances} {}

void MotsIndex::InitColonne() {
    ColonneBrute::InitColonne();
    pleinSignale_ = false;
}

CelluleMot MotsIndex::CelluleIndex(NoIndex e) {
    const std::string_view octets{Cellule(e.valeur), TailleCellule};
    return {Position{Chaine4VersNum(octets)}, Chaine2VersNum(octets.substr(4)),
            Position{Chaine4VersNum(octets.substr(6))}};
}

void MotsIndex::EcrireCelluleIndex(NoIndex e, const CelluleMot& cellule) {
    char* place = CelluleEcrite(e.valeur);
    if (place == nullptr) return;
    const std::string octets = NumVersChaine4(cellule.mot.valeur) + NumVersChaine2(cellule.nombre) +
                               NumVersChaine4(cellule.personnes.valeur);
    std::copy(octets.begin(), octets.end(), place);
}

std::vector<NoIndex> MotsIndex::ListeMots(NoMotCle k) {
    const Position position = motsCles_.PosMotsType(k);
    if (!position) return {};
    std::string nombre(2, '\0');
    volume_.Lire(position, nombre);
    return LireNumeros<NoIndex>(volume_, Position{position.valeur + 2}, Chaine2VersNum(nombre));
}

std::string MotsIndex::MotIndex(NoIndex e) {
    return volume_.LireTexte(CelluleIndex(e).mot, MaxMotLu);
}

std::vector<NoOrdre> MotsIndex::PersonnesIndex(NoIndex e) {
    const CelluleMot cellule = CelluleIndex(e);
    if (!cellule.personnes) return {};
    return LireNumeros<NoOrdre>(volume_, cellule.personnes, cellule.nombre);
}

MotsIndex::Recherche MotsIndex::Chercher(const std::vector<NoIndex>& mots, std::string_view mot) {
    std::size_t bas = 0;
    std::size_t haut = mots.size();
    while (bas < haut) {
        const std::size_t milieu = (bas + haut) / 2;
        const int ordre = MotIndex(mots[milieu]).compare(mot);
        if (ordre == 0) return {milieu, true};
        if (ordre > 0)
            haut = milieu;
        else
            bas = milieu + 1;
    }
    return {bas, false};
}

NoIndex MotsIndex::ChercherMot(NoMotCle k, std::string_view mot) {
    const std::vector<NoIndex> mots = ListeMots(k);
    const Recherche recherche = Chercher(mots, mot);
    return recherche.trouve ? mots[recherche.place] : NoIndex{};
}

NoIndex MotsIndex::NouvelleEntree() {
    if (entete_.NbIndex >= MaxIndex) {
        SignalerPlein();
        return {};
    }
    marques_.ModifBase = true;
    return NoIndex{++entete_.NbIndex};
}

void MotsIndex::SignalerPlein() {
    if (!pleinSignale_) marques_.Signaler(Incident::IndexPlein, 0);
    pleinSignale_ = true;
}

void MotsIndex::EcrireListeMots(NoMotCle k, const std::vector<NoIndex>& mots) {
    MotCle type = motsCles_.LibelleType(k);
    type.indexe = true;
    type.mots =
        volume_.Ajouter(NumVersChaine2(static_cast<std::uint32_t>(mots.size())), OctetsDe(mots));
    motsCles_.CreerType(k, type);
}

void MotsIndex::EcrirePersonnes(NoIndex e, CelluleMot cellule,
                                const std::vector<NoOrdre>& personnes) {
    cellule.nombre = static_cast<std::uint32_t>(personnes.size());
    cellule.personnes = volume_.Ajouter(OctetsDe(personnes));
    EcrireCelluleIndex(e, cellule);
}

void MotsIndex::PlacerPersonne(std::vector<NoOrdre>& personnes, NoOrdre n) {
    const std::string annee = naissances_.AnneeTri(n);
    std::size_t i = personnes.size();
    while (i > 0 && naissances_.AnneeTri(personnes[i - 1]) > annee)
        --i;
    personnes.insert(personnes.begin() + static_cast<std::ptrdiff_t>(i), n);
}

void MotsIndex::RetirerMot(std::vector<NoIndex>& mots, NoOrdre n, std::string_view mot) {
    const Recherche recherche = Chercher(mots, mot);
    if (!recherche.trouve) return;
    const NoIndex e = mots[recherche.place];
    std::vector<NoOrdre> personnes = PersonnesIndex(e);
    const auto place = std::find(personnes.begin(), personnes.end(), n);
    if (place == personnes.end()) return;
    if (personnes.size() == 1) {
        mots.erase(mots.begin() + static_cast<std::ptrdiff_t>(recherche.place));
        EcrireCelluleIndex(e, {});
        return;
    }
    personnes.erase(place);
    EcrirePersonnes(e, CelluleIndex(e), personnes);
}

void MotsIndex::AjouterMot(std::vector<NoIndex>& mots, NoOrdre n, std::string_view mot) {
    const Recherche recherche = Chercher(mots, mot);
    if (recherche.trouve) {
        const NoIndex e = mots[recherche.place];
        std::vector<NoOrdre> personnes = PersonnesIndex(e);
        if (personnes.size() >= MaxPersonnes) return SignalerPlein();
        PlacerPersonne(personnes, n);
        EcrirePersonnes(e, CelluleIndex(e), personnes);
        return;
    }
    const NoIndex e = NouvelleEntree();
    if (!e) return;
    EcrirePersonnes(e, {volume_.Ajouter(mot, "#"), 0, {}}, {n});
    mots.insert(mots.begin() + static_cast<std::ptrdiff_t>(recherche.place), e);
}

void MotsIndex::MajIndex(NoOrdre n, std::string_view ancien, std::string_view nouveau) {
    if (ancien == nouveau) return;
    for (NoMotCle k{1}; k.valeur <= motsCles_.Nombre(); ++k.valeur) {
        if (!motsCles_.PosMotsType(k)) continue;
        const char symbole = motsCles_.LibelleType(k).symbole;
        std::vector<std::string> partis = MotsDuTexte(ancien, symbole);
        std::vector<std::string> venus = MotsDuTexte(nouveau, symbole);
        AnnulerPaires(partis, venus);
        if (partis.empty() && venus.empty()) continue;
        const std::vector<NoIndex> avant = ListeMots(k);
        std::vector<NoIndex> mots = avant;
        for (const std::string& mot : partis)
            RetirerMot(mots, n, mot);
        for (const std::string& mot : venus)
            AjouterMot(mots, n, mot);
        if (mots != avant) EcrireListeMots(k, mots);
    }
}

void MotsIndex::ReclasserIndex(NoOrdre n, std::string_view texte) {
    for (NoMotCle k{1}; k.valeur <= motsCles_.Nombre(); ++k.valeur) {
        if (!motsCles_.PosMotsType(k)) continue;
        const std::vector<std::string> motsTexte =
            MotsDuTexte(texte, motsCles_.LibelleType(k).symbole);
        for (const std::string& mot : motsTexte) {
            const NoIndex e = ChercherMot(k, mot);
            const std::vector<NoOrdre> avant = e ? PersonnesIndex(e) : std::vector<NoOrdre>{};
            std::vector<NoOrdre> apres = avant;
            const auto fois = std::erase(apres, n);
            for (std::size_t i = 0; i < fois; ++i)
                PlacerPersonne(apres, n);
            if (apres != avant) EcrirePersonnes(e, CelluleIndex(e), apres);
        }
    }
}

}  // namespace dorvane::storage

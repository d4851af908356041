#include "storage/BaseCommunes.h"

#include "values/Comparaison.h"
#include "values/Octets.h"
#include "values/Phonetique.h"

#include <algorithm>
#include <functional>
#include <unordered_set>
#include <utility>

namespace dorvane::storage {

namespace {

/// More than any country needs; a file above it is no base of communes.
constexpr std::uint64_t MaxTaille = 256U << 20U;

std::size_t MarqueDe(std::string_view octets) {
    return std::hash<std::string_view>{}(octets);
}

bool LireFichier(Disque& disque, const std::filesystem::path& chemin, std::string& octets) {
    const std::unique_ptr<Fichier> fichier = disque.Ouvrir(chemin, ModeOuverture::LectureSeule);
    if (!fichier) return false;
    const std::uint64_t taille = fichier->Taille();
    octets.resize(static_cast<std::size_t>(std::min(taille, MaxTaille + 1)));
    octets.resize(fichier->Lire(Position{1}, octets));
    return true;
}

}  // namespace

const BaseCommunes::Index BaseCommunes::ParNom{AireLgx::Noms, &EnregistrementCommune::suivanteNom,
                                               0, "Zzzzzzzzzz"};
const BaseCommunes::Index BaseCommunes::ParSon{AireLgx::Sons, &EnregistrementCommune::suivanteSon,
                                               4, "Zzzz"};

std::string CleCommune(std::string_view nom) {
    const std::string replie = Replie(nom);
    return std::string{SansBlancs(replie)};
}

BaseCommunes::BaseCommunes(Disque& disque, std::filesystem::path chemin, ImageLgx image,
                           std::size_t marque)
    : disque_{disque}, chemin_{std::move(chemin)}, image_{std::move(image)}, marque_{marque} {}

ResultatCommunes BaseCommunes::OuvrirCommunes(Disque& disque, const std::filesystem::path& chemin) {
    std::string octets;
    if (!LireFichier(disque, chemin, octets)) return {};
    if (octets.size() > MaxTaille) return {OuvertureCommunes::Illisible, nullptr};
    const std::size_t marque = MarqueDe(octets);
    ImageLgx image{std::move(octets)};
    if (!image.Valide()) return {OuvertureCommunes::Illisible, nullptr};
    return {OuvertureCommunes::Faite, std::unique_ptr<BaseCommunes>{new BaseCommunes{
                                          disque, chemin, std::move(image), marque}}};
}

bool BaseCommunes::Lire(NoCommune n, EnregistrementCommune& e, Position* liens) const {
    if (n.valeur > Nombre()) return false;
    const Position debut = image_.Cellule(AireLgx::Communes, n.valeur);
    const std::size_t place = AnalyserCommune(image_.Depuis(debut).substr(0, MaxFicheCommune), e);
    if (place == std::string_view::npos) return false;
    // With the position of a comment too it must be short enough to be read again.
    if (place + 8 + (e.commentaire ? 0 : 5) > MaxFicheCommune) return false;
    if (liens != nullptr) *liens = Position{debut.valeur + static_cast<std::uint32_t>(place)};
    return true;
}

Commune BaseCommunes::LireCommune(NoCommune n) const {
    EnregistrementCommune e;
    if (!Lire(n, e)) return {};
    const std::string_view texte = image_.Depuis(image_.Cellule(AireLgx::Commentaires, n.valeur));
    e.commune.commentaire.assign(texte.substr(0, std::min(texte.find('#'), texte.size())));
    return e.commune;
}

std::optional<std::vector<Commune>> BaseCommunes::Toutes() const {
    std::vector<Commune> communes;
    communes.reserve(Nombre());
    // No two of them share a byte of a sound file.
    std::size_t reste = image_.Depuis(Position{1}).size();
    for (NoCommune n{1}; n.valeur <= Nombre(); ++n.valeur) {
        const Commune& c = communes.emplace_back(LireCommune(n));
        const std::size_t taille = c.nom.size() + c.code.size() + c.autreCode.size() +
                                   c.rattachement.size() + c.precision.size() +
                                   c.commentaire.size();
        if (taille > reste) return std::nullopt;
        reste -= taille;
    }
    return communes;
}

std::uint32_t BaseCommunes::NbEntrees(const Index& index) const {
    const std::uint32_t nombre = image_.Nombre(index.aire);
    return nombre == 0 ? 0 : nombre - 1;  // the sentinel counts, and is no entry
}

std::string_view BaseCommunes::TexteEntree(const Index& index, std::uint32_t i) const {
    const std::string_view octets =
        image_.Depuis(image_.Cellule(index.aire, i)).substr(0, MaxFicheCommune);
    const std::size_t fin = octets.find('#');
    return fin == std::string_view::npos ? std::string_view{} : octets.substr(0, fin);
}

NoCommune BaseCommunes::PremiereDe(const Index& index, std::uint32_t i) const {
    const std::string_view octets =
        image_.Depuis(image_.Cellule(index.aire, i)).substr(0, MaxFicheCommune);
    const std::size_t fin = octets.find('#');
    if (fin == std::string_view::npos) return {};
    return NoCommune{Chaine4VersNum(octets.substr(fin + 1))};
}

std::uint32_t BaseCommunes::ChercherEntree(const Index& index, std::string_view cle) const {
    std::uint32_t bas = 1;
    std::uint32_t haut = NbEntrees(index) + 1;
    while (bas < haut) {
        const std::uint32_t milieu = bas + (haut - bas) / 2;
        if (TexteEntree(index, milieu) < cle)
            bas = milieu + 1;
        else
            haut = milieu;
    }
    return bas;
}

std::vector<NoCommune> BaseCommunes::Chaine(const Index& index, NoCommune premiere) const {
    std::vector<NoCommune> chaine;
    std::unordered_set<std::uint32_t> vues;  // a damaged chain may come back to itself
    EnregistrementCommune e;
    for (NoCommune n = premiere; n && vues.insert(n.valeur).second; n = e.*(index.suivante)) {
        e = {};
        if (!Lire(n, e)) break;
        chaine.push_back(n);
    }
    return chaine;
}

std::vector<NoCommune> BaseCommunes::ChercherCle(const Index& index, std::string_view cle) const {
    const std::uint32_t i = ChercherEntree(index, cle);
    if (i > NbEntrees(index) || TexteEntree(index, i) != cle) return {};
    return Chaine(index, PremiereDe(index, i));
}

std::vector<NoCommune> BaseCommunes::ChercherCommune(std::string_view nom) const {
    return ChercherCle(ParNom, CleCommune(nom));
}

std::vector<NoCommune> BaseCommunes::ChercherSoundex(std::string_view cle) const {
    return ChercherCle(ParSon, cle);
}

std::vector<NoCommune> BaseCommunes::ChercherDebut(std::string_view debut, std::size_t max) const {
    const std::string cle = CleCommune(debut);
    std::vector<NoCommune> trouvees;
    for (std::uint32_t i = ChercherEntree(ParNom, cle); i <= NbEntrees(ParNom); ++i) {
        if (!TexteEntree(ParNom, i).starts_with(cle)) break;
        for (const NoCommune n : Chaine(ParNom, PremiereDe(ParNom, i))) {
            if (trouvees.size() == max) return trouvees;
            trouvees.push_back(n);
        }
    }
    return trouvees;
}

EcritureCommunes BaseCommunes::EnregistrerCommunes() {
    if (!modifiee_) return EcritureCommunes::Faite;
    std::string presents;
    if (LireFichier(disque_, chemin_, presents) && MarqueDe(presents) != marque_)
        return EcritureCommunes::ChangeeAilleurs;
    const std::string& octets = image_.Octets();
    std::filesystem::path voisin = chemin_;
    voisin += ".nouveau";
    if (!EcrireLgx(disque_, chemin_, voisin, octets)) return EcritureCommunes::Refusee;
    marque_ = MarqueDe(octets);
    modifiee_ = false;
    return EcritureCommunes::Faite;
}

EcritureCommunes BaseCommunes::ReorganiserCommunes(Progression& progression) {
    const std::optional<std::vector<Commune>> communes = Toutes();
    if (!communes || communes->size() > MaxCommunes) return EcritureCommunes::Refusee;
    std::string octets;
    if (!ComposerLgx(*communes, progression, octets)) return EcritureCommunes::Abandonnee;
    if (!EcrireLgx(disque_, chemin_, chemin_.parent_path() / "Commune.reo", octets))
        return EcritureCommunes::Refusee;
    marque_ = MarqueDe(octets);
    image_ = ImageLgx{std::move(octets)};
    modifiee_ = false;
    return EcritureCommunes::Faite;
}

bool EcrireLgx(Disque& disque, const std::filesystem::path& chemin,
               const std::filesystem::path& voisin, std::string_view octets) {
    std::unique_ptr<Fichier> fichier = disque.Ouvrir(voisin, ModeOuverture::Creer);
    if (!fichier) return false;
    fichier->Ecrire(Position{1}, octets);
    fichier->Vider();
    const bool ecrit = !fichier->EnDefaut();
    fichier.reset();
    if (ecrit && disque.Renommer(voisin, chemin)) {
        disque.ViderDossier(chemin);
        return true;
    }
    static_cast<void>(disque.Supprimer(voisin));
    return false;
}

}  // namespace dorvane::storage

#include "shell/Magasin.h"

#include "shell/FichierSur.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <nlohmann/json.hpp>

namespace dorvane::shell {

namespace {

using Json = nlohmann::ordered_json;

/// No settings of ours come near: what is larger is something else.
constexpr std::uintmax_t TailleMaximum = 64U << 20U;

std::filesystem::path AvecSuffixe(std::filesystem::path chemin, std::string_view suffixe) {
    chemin += suffixe;
    return chemin;
}

/// Keeps other programs out while the file is read again and replaced. It lies on a file of its
/// own, because the settings file is renamed over.
class VerrouMagasin {
public:
    explicit VerrouMagasin(const std::filesystem::path& fichier)
        : no_{open(AvecSuffixe(fichier, ".verrou").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)} {
        if (no_ >= 0 && flock(no_, LOCK_EX) != 0) {
            close(no_);
            no_ = -1;
        }
    }
    ~VerrouMagasin() {
        if (no_ >= 0) close(no_);
    }
    VerrouMagasin(const VerrouMagasin&) = delete;
    VerrouMagasin& operator=(const VerrouMagasin&) = delete;

    [[nodiscard]] bool Tenu() const { return no_ >= 0; }

private:
    int no_;
};

/// The text of a JSON value; nothing for an object, an array or null.
std::optional<std::string> TexteDeValeur(const Json& valeur) {
    if (valeur.is_string()) return valeur.get_ref<const std::string&>();
    if (valeur.is_boolean()) return valeur.get<bool>() ? "1" : "0";
    if (valeur.is_number()) return valeur.dump();
    return std::nullopt;
}

std::string VersJson(
    const std::vector<std::pair<std::string, std::vector<Magasin::Entree>>>& tout) {
    Json racine = Json::object();
    for (const auto& [nom, entrees] : tout) {
        Json section = Json::object();
        for (const auto& [cle, valeur] : entrees)
            section[cle] = valeur;
        racine[nom] = std::move(section);
    }
    return racine.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace

Magasin::Etat Magasin::Charger() {
    contenu_.clear();
    changes_.clear();
    misDeCote_.clear();
    const Etat etat = LireFichier(contenu_);
    fige_ = etat == Etat::Illisible;
    if (etat != Etat::Abime) return etat;

    // Another program may be setting the same file aside: look again with the lock held.
    const VerrouMagasin verrou{fichier_};
    Contenu relu;
    if (LireFichier(relu) == Etat::Lu) {
        contenu_ = std::move(relu);
        return Etat::Lu;
    }
    if (MettreDeCote()) return Etat::Abime;
    fige_ = true;
    return Etat::Illisible;
}

Magasin::Etat Magasin::LireFichier(Contenu& contenu) const {
    contenu.clear();
    std::error_code erreur;
    const std::filesystem::file_status statut = std::filesystem::status(fichier_, erreur);
    if (statut.type() == std::filesystem::file_type::not_found) return Etat::Absent;
    if (!std::filesystem::is_regular_file(statut)) return Etat::Illisible;
    if (std::filesystem::file_size(fichier_, erreur) > TailleMaximum) return Etat::Abime;
    const std::optional<std::string> octets = LireTout(fichier_);
    if (!octets) return Etat::Illisible;

    const Json racine = Json::parse(*octets, nullptr, false);
    if (!racine.is_object()) return Etat::Abime;
    for (const auto& [nom, json] : racine.items()) {
        if (!json.is_object()) return Etat::Abime;
        Section section{nom, {}};
        for (const auto& [cle, valeur] : json.items()) {
            const std::optional<std::string> texte = TexteDeValeur(valeur);
            if (!texte) return Etat::Abime;
            section.entrees.emplace_back(cle, *texte);
        }
        contenu.push_back(std::move(section));
    }
    return Etat::Lu;
}

bool Magasin::MettreDeCote() {
    std::error_code erreur;
    for (int essai = 1; essai < 1000; ++essai) {
        const std::filesystem::path cible =
            AvecSuffixe(fichier_, essai == 1 ? ".abime" : ".abime-" + std::to_string(essai));
        if (std::filesystem::exists(std::filesystem::symlink_status(cible, erreur))) continue;
        std::filesystem::rename(fichier_, cible, erreur);
        if (erreur) return false;
        misDeCote_ = cible;
        return true;
    }
    return false;
}

void Magasin::Relire(std::string_view section, const std::vector<std::string>& cles) {
    Contenu relu;
    if (LireFichier(relu) != Etat::Lu) return;
    for (const Change& change : changes_)
        Poser(relu, change);

    const auto meme = [section](const Section& s) { return s.nom == section; };
    const auto frais = std::find_if(relu.begin(), relu.end(), meme);
    const auto tenu = std::find_if(contenu_.begin(), contenu_.end(), meme);
    if (cles.empty()) {
        if (tenu != contenu_.end()) contenu_.erase(tenu);
        if (frais != relu.end()) contenu_.push_back(*frais);
        return;
    }
    for (const std::string& cle : cles) {
        Change pris{std::string{section}, cle, std::nullopt};
        if (frais != relu.end())
            for (const auto& [nom, valeur] : frais->entrees)
                if (nom == cle) pris.valeur = valeur;
        Poser(contenu_, pris);
    }
}

const Magasin::Section* Magasin::Trouver(std::string_view section) const {
    const auto trouvee =
        std::find_if(contenu_.begin(), contenu_.end(),
                     [section](const Section& candidate) { return candidate.nom == section; });
    return trouvee == contenu_.end() ? nullptr : &*trouvee;
}

std::string Magasin::Lire(std::string_view section, std::string_view cle) const {
    return Chercher(section, cle).value_or(std::string{});
}

std::optional<std::string> Magasin::Chercher(std::string_view section, std::string_view cle) const {
    if (const Section* trouvee = Trouver(section))
        for (const auto& [nom, valeur] : trouvee->entrees)
            if (nom == cle) return valeur;
    return std::nullopt;
}

std::vector<Magasin::Entree> Magasin::LireSection(std::string_view section) const {
    const Section* trouvee = Trouver(section);
    return trouvee == nullptr ? std::vector<Entree>{} : trouvee->entrees;
}

std::vector<std::string> Magasin::Sections() const {
    std::vector<std::string> noms;
    for (const Section& section : contenu_)
        noms.push_back(section.nom);
    return noms;
}

void Magasin::Poser(Contenu& contenu, const Change& change) {
    auto section = std::find_if(
        contenu.begin(), contenu.end(),
        [&change](const Section& candidate) { return candidate.nom == change.section; });
    if (section == contenu.end()) {
        if (!change.valeur) return;
        section = contenu.insert(contenu.end(), {change.section, {}});
    }
    const auto entree =
        std::find_if(section->entrees.begin(), section->entrees.end(),
                     [&change](const Entree& candidate) { return candidate.first == change.cle; });
    if (change.valeur && entree != section->entrees.end()) {
        entree->second = *change.valeur;
    } else if (change.valeur) {
        section->entrees.emplace_back(change.cle, *change.valeur);
    } else if (entree != section->entrees.end()) {
        section->entrees.erase(entree);
        if (section->entrees.empty()) contenu.erase(section);
    }
}

void Magasin::Changer(Change change) {
    Poser(contenu_, change);
    const auto meme = [&change](const Change& c) {
        return c.section == change.section && c.cle == change.cle;
    };
    // A key that was taken away and comes back stands at the end, on disk as in memory: its removal
    // is kept.
    if (!change.valeur) std::erase_if(changes_, meme);
    const auto deja = std::find_if(changes_.rbegin(), changes_.rend(), meme);
    if (deja != changes_.rend() && deja->valeur)
        deja->valeur = std::move(change.valeur);
    else
        changes_.push_back(std::move(change));
}

void Magasin::Ecrire(std::string_view section, std::string_view cle, std::string_view valeur) {
    if (Chercher(section, cle) == valeur) return;
    Changer({std::string{section}, std::string{cle}, std::string{valeur}});
}

void Magasin::Supprimer(std::string_view section, std::string_view cle) {
    if (Chercher(section, cle)) Changer({std::string{section}, std::string{cle}, std::nullopt});
}

void Magasin::RemplacerSection(std::string_view section, const std::vector<Entree>& entrees) {
    for (const auto& [cle, valeur] : LireSection(section))
        if (std::none_of(entrees.begin(), entrees.end(),
                         [&nom = cle](const Entree& e) { return e.first == nom; }))
            Supprimer(section, cle);
    for (const auto& [cle, valeur] : entrees)
        Ecrire(section, cle, valeur);
}

void Magasin::SupprimerSection(std::string_view section) {
    RemplacerSection(section, {});
}

bool Magasin::Enregistrer() {
    if (changes_.empty()) return true;
    if (fige_) return false;
    std::error_code erreur;
    std::filesystem::create_directories(fichier_.parent_path(), erreur);
    const VerrouMagasin verrou{fichier_};
    if (!verrou.Tenu()) return false;

    Contenu surDisque;
    const Etat etat = LireFichier(surDisque);
    if (etat == Etat::Illisible) return false;
    if (etat == Etat::Abime && !MettreDeCote()) return false;
    // Whoever damaged the file or took it away did not mean to lose what we read from it.
    if (etat != Etat::Lu) surDisque = contenu_;
    for (const Change& change : changes_)
        Poser(surDisque, change);

    std::vector<std::pair<std::string, std::vector<Entree>>> tout;
    for (Section& section : surDisque)
        tout.emplace_back(std::move(section.nom), std::move(section.entrees));
    if (!EcrireTout(fichier_, VersJson(tout))) return false;
    changes_.clear();
    return true;
}

}  // namespace dorvane::shell

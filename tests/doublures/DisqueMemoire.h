#pragma once

#include "storage/Disque.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace dorvane::storage {

/// What goes wrong at the operation chosen.
enum class Panne {
    Aucune,
    Refus,         ///< this one operation fails
    Plein,         ///< this one and all later ones fail
    Dechirure,     ///< a write is done by half, then fails, and so does all that follows
    Arret,         ///< the process dies just before
    ArretDechire,  ///< the process dies in the middle of a write
};

/// A disk in memory that counts what is asked of it, fails at an operation chosen, and knows what
/// would be left after a power cut.
class DisqueMemoire final : public Disque {
public:
    int operations = 0;  ///< creations, writes, flushes, truncations, removals, renamings
    int vidages = 0;     ///< flushes of files and folders
    int ecritures = 0;
    int lectures = 0;
    std::uint64_t octetsLus = 0;
    Panne panne = Panne::Aucune;
    int lectureRefusee = 0;  ///< the reading that fails, counted from 1 in `lectures`; 0: none
    int panneA = 0;          ///< the operation that fails, counted from 1; 0: none
    std::uint64_t capacite = 512ULL << 20U;  ///< a write past this is refused

    [[nodiscard]] bool Mort() const { return mort_; }
    /// There is room again.
    void FaireDeLaPlace() { plein_ = false; }

    [[nodiscard]] std::string Octets(const std::filesystem::path& chemin) const {
        const auto place = noms_.find(chemin.string());
        return place == noms_.end() ? std::string{} : place->second->octets;
    }
    void Poser(const std::filesystem::path& chemin, std::string octets) {
        auto contenu = std::make_shared<Contenu>();
        contenu->octets = contenu->durable = std::move(octets);
        noms_[chemin.string()] = durables_[chemin.string()] = std::move(contenu);
    }
    /// The disk as a new process finds it once this one is dead.
    [[nodiscard]] std::unique_ptr<DisqueMemoire> Survivre() const {
        auto autre = std::make_unique<DisqueMemoire>();
        for (const auto& [nom, contenu] : noms_)
            autre->Poser(nom, contenu->octets);
        return autre;
    }
    /// The disk after a power cut: of what was not flushed, each sector of 512 bytes and each
    /// change of a name is there or not, by chance.
    [[nodiscard]] std::unique_ptr<DisqueMemoire> CouperCourant(std::uint32_t graine) const {
        std::mt19937 hasard{graine};
        auto autre = std::make_unique<DisqueMemoire>();
        std::set<std::string> tous;
        for (const auto& nom : noms_)
            tous.insert(nom.first);
        for (const auto& nom : durables_)
            tous.insert(nom.first);
        for (const std::string& nom : tous) {
            const auto maintenant = noms_.find(nom);
            const auto durable = durables_.find(nom);
            const bool meme = maintenant != noms_.end() && durable != durables_.end() &&
                              maintenant->second == durable->second;
            const bool nouveau = meme || hasard() % 2 == 0;
            if (nouveau && maintenant != noms_.end())
                autre->Poser(nom, ApresCoupure(*maintenant->second, hasard));
            else if (!nouveau && durable != durables_.end())
                autre->Poser(nom, ApresCoupure(*durable->second, hasard));
        }
        return autre;
    }

    [[nodiscard]] std::unique_ptr<Fichier> Ouvrir(const std::filesystem::path& chemin,
                                                  ModeOuverture mode) override {
        const auto place = noms_.find(chemin.string());
        if (mode == ModeOuverture::Neuf && place != noms_.end()) return nullptr;
        if (mode != ModeOuverture::Creer && mode != ModeOuverture::Neuf)
            return place == noms_.end() ? nullptr
                                        : std::make_unique<FichierMemoire>(*this, place->second);
        if (!Agir()) return nullptr;
        auto contenu = std::make_shared<Contenu>();
        noms_[chemin.string()] = contenu;
        return std::make_unique<FichierMemoire>(*this, contenu);
    }
    [[nodiscard]] bool Existe(const std::filesystem::path& chemin) override {
        return noms_.contains(chemin.string());
    }
    [[nodiscard]] bool Supprimer(const std::filesystem::path& chemin) override {
        return Agir() && noms_.erase(chemin.string()) != 0;
    }
    [[nodiscard]] bool Renommer(const std::filesystem::path& de,
                                const std::filesystem::path& vers) override {
        if (!Agir() || !noms_.contains(de.string())) return false;
        noms_[vers.string()] = noms_[de.string()];
        noms_.erase(de.string());
        return true;
    }
    [[nodiscard]] bool Copier(const std::filesystem::path& de,
                              const std::filesystem::path& vers) override {
        if (!Agir() || !noms_.contains(de.string())) return false;
        Poser(vers, noms_[de.string()]->octets);
        return true;
    }
    void DonnerDroits(const std::filesystem::path& /*chemin*/,
                      const std::filesystem::path& /*comme*/) override {}
    bool ViderDossier(const std::filesystem::path& /*fichier*/) override {
        ++vidages;
        if (!Agir()) return false;
        durables_ = noms_;
        return true;
    }
    [[nodiscard]] ResultatVerrou Verrouiller(const std::filesystem::path& base) override {
        if (!verrous_.insert(base.string()).second) return {EtatVerrou::Occupe, nullptr};
        return {EtatVerrou::Pris, std::make_unique<VerrouMemoire>(*this, base.string())};
    }

private:
    struct Ecriture {
        std::uint64_t decalage;
        std::string octets;
        bool tronquer;  ///< to `decalage` bytes
    };
    struct Contenu {
        std::string octets;             ///< as the process sees it
        std::string durable;            ///< as the last flush left it
        std::vector<Ecriture> attente;  ///< since then
    };

    static void Appliquer(std::string& octets, std::uint64_t decalage, std::string_view morceau) {
        if (octets.size() < decalage + morceau.size()) octets.resize(decalage + morceau.size());
        octets.replace(decalage, morceau.size(), morceau);
    }

    static std::string ApresCoupure(const Contenu& contenu, std::mt19937& hasard) {
        constexpr std::uint64_t Secteur = 512;
        std::string octets = contenu.durable;
        for (const Ecriture& ecriture : contenu.attente) {
            if (ecriture.tronquer) {
                if (hasard() % 2 == 0) octets.resize(ecriture.decalage);
                continue;
            }
            const std::uint64_t fin = ecriture.decalage + ecriture.octets.size();
            for (std::uint64_t i = ecriture.decalage; i < fin;) {
                const std::uint64_t suite = std::min(fin, (i / Secteur + 1) * Secteur);
                if (hasard() % 2 == 0)
                    Appliquer(
                        octets, i,
                        std::string_view{ecriture.octets}.substr(i - ecriture.decalage, suite - i));
                i = suite;
            }
        }
        return octets;
    }

    /// Counts an operation and says whether it is done. `*moitie`: it is, by half.
    bool Agir(bool* moitie = nullptr) {
        if (mort_ || plein_) return false;
        if (++operations != panneA) return true;
        switch (panne) {
            case Panne::Aucune:
                return true;
            case Panne::Refus:
                return false;
            case Panne::Plein:
                plein_ = true;
                return false;
            case Panne::Dechirure:
                plein_ = true;
                if (moitie != nullptr) *moitie = true;
                return false;
            case Panne::Arret:
                mort_ = true;
                return false;
            case Panne::ArretDechire:
                mort_ = true;
                if (moitie != nullptr) *moitie = true;
                return false;
        }
        return true;
    }

    class FichierMemoire final : public Fichier {
    public:
        FichierMemoire(DisqueMemoire& disque, std::shared_ptr<Contenu> contenu)
            : disque_{disque}, contenu_{std::move(contenu)} {}
        std::size_t Lire(Position debut, std::span<char> octets) override {
            if (++disque_.lectures == disque_.lectureRefusee) {
                defaut_ = Defaut::Lecture;
                std::fill(octets.begin(), octets.end(), '\0');
                return 0;
            }
            const std::string& tout = contenu_->octets;
            const std::size_t decalage = std::min<std::size_t>(debut.valeur - 1U, tout.size());
            const std::size_t lus = std::min(octets.size(), tout.size() - decalage);
            disque_.octetsLus += lus;
            std::copy_n(tout.begin() + static_cast<std::ptrdiff_t>(decalage), lus, octets.begin());
            std::fill(octets.begin() + static_cast<std::ptrdiff_t>(lus), octets.end(), '\0');
            return lus;
        }
        void Ecrire(Position debut, std::span<const char> octets) override {
            if (EnDefaut()) return;
            ++disque_.ecritures;
            bool moitie = false;
            std::string_view vue{octets.data(), octets.size()};
            const std::uint64_t decalage = debut.valeur - 1ULL;
            const bool tient = decalage + vue.size() <= disque_.capacite;
            if (!tient || !disque_.Agir(&moitie)) {
                Retenir(Defaut::Ecriture);
                if (!moitie) return;
                vue = vue.substr(0, vue.size() / 2);
            }
            Appliquer(contenu_->octets, decalage, vue);
            contenu_->attente.push_back({decalage, std::string{vue}, false});
        }
        void Vider() override {
            if (EnDefaut()) return;
            ++disque_.vidages;
            if (!disque_.Agir()) {
                Retenir(Defaut::Vidage);
                return;
            }
            contenu_->durable = contenu_->octets;
            contenu_->attente.clear();
        }
        [[nodiscard]] std::uint64_t Taille() override { return contenu_->octets.size(); }
        [[nodiscard]] Defaut DefautDe() const override { return defaut_; }
        void Reprendre() override {
            if (defaut_ != Defaut::Lecture) defaut_ = Defaut::Aucun;
        }

    private:
        void Retenir(Defaut defaut) { defaut_ = std::max(defaut_, defaut); }

        DisqueMemoire& disque_;
        std::shared_ptr<Contenu> contenu_;
        Defaut defaut_ = Defaut::Aucun;
    };

    class VerrouMemoire final : public Verrou {
    public:
        VerrouMemoire(DisqueMemoire& disque, std::string nom)
            : disque_{disque}, nom_{std::move(nom)} {}
        ~VerrouMemoire() override { disque_.verrous_.erase(nom_); }

    private:
        DisqueMemoire& disque_;
        std::string nom_;
    };

    std::map<std::string, std::shared_ptr<Contenu>> noms_;
    std::map<std::string, std::shared_ptr<Contenu>> durables_;
    std::set<std::string> verrous_;
    bool mort_ = false;
    bool plein_ = false;
};

}  // namespace dorvane::storage

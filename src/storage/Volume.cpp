#include "storage/Volume.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace dorvane::storage {
namespace {

constexpr std::uint64_t TailleMax = 0xFFFFFFFFU;  // positions have 4 bytes

}  // namespace

Volume::Volume(Disque& disque, std::unique_ptr<Fichier> fichier, const std::filesystem::path& base,
               std::uint32_t finFichier, bool nouveau)
    : fichier_{std::move(fichier)},
      journal_{disque, base},
      finFichier_{finFichier},
      finCommise_{nouveau ? 0 : finFichier},
      pages_{std::make_unique_for_overwrite<char[]>(TaillePage * NbPages)},
      noPage_(NbPages),
      taillePage_(NbPages) {}

Volume::~Volume() = default;

bool Volume::EnDefaut() const {
    return refuse_ || plein_ || fichier_->EnDefaut();
}

void Volume::OublierPages(std::uint64_t debut, std::uint64_t longueur) {
    if (longueur == 0) return;
    std::uint64_t page = debut / TaillePage;
    const std::uint64_t derniere = (debut + longueur - 1) / TaillePage;
    if (derniere - page >= NbPages) {
        std::fill(noPage_.begin(), noPage_.end(), 0);
        return;
    }
    for (; page <= derniere; ++page)
        if (noPage_[page % NbPages] == page + 1) noPage_[page % NbPages] = 0;
}

std::string_view Volume::Page(std::uint64_t decalage) {
    const auto page = static_cast<std::uint32_t>(decalage / TaillePage);
    const std::size_t place = page % NbPages;
    if (noPage_[place] != page + 1) {
        // A walk through the file reads ahead; a lone record costs one page.
        const std::size_t nombre =
            page == suivante_ ? std::min(PagesParLecture, NbPages - place) : 1;
        std::size_t lus =
            fichier_->Lire(Position{static_cast<std::uint32_t>(page * TaillePage + 1)},
                           std::span{pages_.get() + place * TaillePage, nombre * TaillePage});
        for (std::size_t i = 0; i < nombre; ++i) {
            const std::size_t taille = std::min(lus, TaillePage);
            noPage_[place + i] = page + static_cast<std::uint32_t>(i) + 1;
            taillePage_[place + i] = static_cast<std::uint16_t>(taille);
            lus -= taille;
        }
        suivante_ = page + static_cast<std::uint32_t>(nombre);
    }
    const std::size_t debut = decalage % TaillePage;
    if (debut >= taillePage_[place]) return {};
    return std::string_view{pages_.get() + place * TaillePage, taillePage_[place]}.substr(debut);
}

std::string_view Volume::Morceau(std::uint64_t decalage) {
    const std::uint64_t debutQueue = finFichier_ - queue_.size();
    if (!queue_.empty() && decalage >= debutQueue)
        return decalage < finFichier_ ? std::string_view{queue_}.substr(decalage - debutQueue)
                                      : std::string_view{};
    if (decalage >= TailleMax) return {};
    std::string_view morceau = Page(decalage);
    if (!queue_.empty() && morceau.size() > debutQueue - decalage)
        morceau = morceau.substr(0, debutQueue - decalage);
    return morceau;
}

std::size_t Volume::Lire(Position debut, std::span<char> octets) {
    std::size_t lus = 0;
    if (debut) {
        while (lus < octets.size()) {
            const std::string_view morceau = Morceau(debut.valeur - 1ULL + lus);
            if (morceau.empty()) break;
            const std::size_t n = std::min(morceau.size(), octets.size() - lus);
            std::memcpy(octets.data() + lus, morceau.data(), n);
            lus += n;
        }
    }
    std::fill(octets.begin() + static_cast<std::ptrdiff_t>(lus), octets.end(), '\0');
    return lus;
}

bool Volume::LireTexteDans(std::string& sortie, Position debut, std::size_t limite, char fin) {
    if (!debut) return false;
    std::uint64_t decalage = debut.valeur - 1ULL;
    while (limite > 0) {
        const std::string_view morceau = Morceau(decalage).substr(0, limite);
        if (morceau.empty()) return false;
        const std::size_t place = morceau.find(fin);
        sortie.append(morceau.substr(0, place));
        if (place != std::string_view::npos) return true;
        decalage += morceau.size();
        limite -= morceau.size();
    }
    return false;
}

std::string Volume::LireTexte(Position debut, std::size_t limite, bool* trouve, char fin) {
    std::string texte;
    const bool vu = LireTexteDans(texte, debut, limite, fin);
    if (trouve != nullptr) *trouve = vu;
    return texte;
}

Position Volume::Ajouter(std::string_view debut, std::string_view suite) {
    const std::uint64_t taille = aTerminer_.size() + debut.size() + suite.size();
    if (finFichier_ + taille >= TailleMax || (EnDefaut() && queue_.size() + taille > MaxRefus))
        plein_ = true;
    if (plein_) return {};
    const Position position{finFichier_ + static_cast<std::uint32_t>(aTerminer_.size()) + 1};
    queue_.append(aTerminer_).append(debut).append(suite);
    aTerminer_.clear();
    finFichier_ += static_cast<std::uint32_t>(taille);
    if (queue_.size() >= maxQueue_ && !EnDefaut()) ViderQueue();
    return position;
}

Position Volume::Ajouter(std::string_view octets) {
    return Ajouter(octets, {});
}

void Volume::EcrireFichier(Position debut, std::string_view octets) {
    OublierPages(debut.valeur - 1ULL, octets.size());
    fichier_->Ecrire(debut, octets);
}

void Volume::ViderQueue() {
    if (queue_.empty()) return;
    EcrireFichier(Position{finFichier_ - static_cast<std::uint32_t>(queue_.size()) + 1}, queue_);
    if (!fichier_->EnDefaut()) queue_.clear();
}

void Volume::EcrireBloc(Position debut, std::string_view octets) {
    if (!debut || octets.empty()) return;
    OublierBloc(debut);
    if (debut.valeur <= finCommise_ || blocs_.contains(debut.valeur)) {
        Retenir(debut, octets);
        if (tailleBlocs_ > maxAttente_ && !EnDefaut()) ViderBlocs();
        return;
    }
    // Allocated in this transaction: in the tail, or already written beyond the last commit.
    const std::uint64_t debutQueue = finFichier_ - queue_.size();
    const std::uint64_t decalage = debut.valeur - 1ULL;
    if (decalage < debutQueue) {
        const std::string_view avant = octets.substr(0, debutQueue - decalage);
        EcrireFichier(debut, avant);
        if (fichier_->EnDefaut()) Retenir(debut, octets);
        octets.remove_prefix(avant.size());
        if (!octets.empty()) queue_.replace(0, std::min(octets.size(), queue_.size()), octets);
    } else if (decalage + octets.size() <= finFichier_) {
        queue_.replace(decalage - debutQueue, octets.size(), octets);
    }
}

void Volume::LireBloc(Position debut, std::span<char> octets) {
    const auto servir = [&octets](const std::string& bloc) {
        if (bloc.size() != octets.size()) return false;
        std::copy(bloc.begin(), bloc.end(), octets.begin());
        return true;
    };
    if (const auto bloc = blocs_.find(debut.valeur); bloc != blocs_.end() && servir(bloc->second))
        return;
    if (const auto lu = blocsLus_.find(debut.valeur); lu != blocsLus_.end() && servir(lu->second))
        return;
    Lire(debut, octets);
    if (tailleBlocsLus_ + octets.size() > MaxBlocsLus) {
        blocsLus_.clear();
        tailleBlocsLus_ = 0;
    }
    const bool nouveau =
        blocsLus_.emplace(debut.valeur, std::string{octets.data(), octets.size()}).second;
    if (nouveau) tailleBlocsLus_ += octets.size();
}

void Volume::Retenir(Position debut, std::string_view octets) {
    std::string& bloc = blocs_[debut.valeur];
    tailleBlocs_ = tailleBlocs_ - bloc.size() + octets.size();
    bloc = octets;
}

void Volume::OublierBloc(Position debut) {
    const auto lu = blocsLus_.find(debut.valeur);
    if (lu == blocsLus_.end()) return;
    tailleBlocsLus_ -= lu->second.size();
    blocsLus_.erase(lu);
}

bool Volume::Protegee(Position debut, std::size_t longueur) const {
    return std::any_of(zones_.begin(), zones_.end(), [&](const Zone& zone) {
        return debut >= zone.debut && debut.valeur - zone.debut.valeur + longueur <= zone.longueur;
    });
}

bool Volume::Journaliser() {
    if (journal_.Vide())
        for (const Zone& zone : zones_)
            journal_.Prendre(*fichier_, zone.debut, zone.longueur);
    for (const auto& [position, octets] : blocs_) {
        const Position debut{position};
        if (position <= finCommise_ && !journal_.Contient(debut) && !Protegee(debut, octets.size()))
            journal_.Prendre(*fichier_, debut, static_cast<std::uint32_t>(octets.size()));
    }
    // A file cut short by others ends before the commit that it tells of.
    const auto fin =
        static_cast<std::uint32_t>(std::min<std::uint64_t>(finCommise_, fichier_->Taille()));
    if (fichier_->EnDefaut() || !journal_.Ecrire(fin)) refuse_ = true;
    return !refuse_;
}

void Volume::EcrireBlocs() {
    for (const auto& [position, octets] : blocs_)
        EcrireFichier(Position{position}, octets);
    if (fichier_->EnDefaut()) return;
    blocs_.clear();
    tailleBlocs_ = 0;
}

void Volume::ViderBlocs() {
    if (Journaliser()) EcrireBlocs();
}

bool Volume::Commettre(std::string_view entete) {
    if (EnDefaut()) {
        if (plein_ || fichier_->DefautDe() > Defaut::Ecriture) return false;
        refuse_ = false;
        fichier_->Reprendre();
        journal_.Reprendre();
    }
    if (!Journaliser()) return false;
    ViderQueue();
    EcrireBlocs();
    EcrireFichier(Position{1}, entete);
    fichier_->Vider();
    if (EnDefaut()) return false;
    if (!journal_.Supprimer()) {
        refuse_ = true;
        return false;
    }
    finCommise_ = finFichier_;
    return true;
}

bool Volume::CopierVers(Disque& disque, const std::filesystem::path& chemin,
                        std::string_view entete) {
    // What was taken for the content of a cell may come from a reading that failed.
    if (plein_ || fichier_->DefautDe() == Defaut::Lecture) return false;
    const std::unique_ptr<Fichier> copie = disque.Ouvrir(chemin, ModeOuverture::Creer);
    if (!copie) return false;
    std::string tampon(1U << 18U, '\0');
    std::uint64_t fait = 0;
    while (fait < finFichier_ && !copie->EnDefaut()) {
        const Position ici{static_cast<std::uint32_t>(fait + 1)};
        const std::size_t taille = std::min<std::uint64_t>(tampon.size(), finFichier_ - fait);
        const std::size_t lus = Lire(ici, std::span{tampon}.first(taille));
        if (lus == 0) break;
        copie->Ecrire(ici, std::span{tampon}.first(lus));
        fait += lus;
    }
    for (const auto& [position, octets] : blocs_)
        copie->Ecrire(Position{position}, octets);
    copie->Ecrire(Position{1}, entete);
    copie->Vider();
    const bool entiere = fait == finFichier_ && fichier_->DefautDe() != Defaut::Lecture;
    if (entiere && !copie->EnDefaut() && copie->Taille() == finFichier_) return true;
    static_cast<void>(disque.Supprimer(chemin));
    return false;
}

}  // namespace dorvane::storage

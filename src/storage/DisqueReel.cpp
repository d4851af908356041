#include "storage/DisqueReel.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

namespace dorvane::storage {
namespace {

class Descripteur {
public:
    explicit Descripteur(int fd) : fd_{fd} {}
    ~Descripteur() {
        if (fd_ >= 0) ::close(fd_);
    }
    Descripteur(Descripteur&& autre) noexcept : fd_{std::exchange(autre.fd_, -1)} {}
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    [[nodiscard]] explicit operator bool() const { return fd_ >= 0; }
    [[nodiscard]] int Fd() const { return fd_; }

private:
    int fd_;
};

/// Positions count from 1, offsets from 0.
off_t DecalageDe(Position debut) {
    return static_cast<off_t>(debut.valeur) - 1;
}

class FichierReel final : public Fichier {
public:
    explicit FichierReel(Descripteur descripteur) : descripteur_{std::move(descripteur)} {}

    std::size_t Lire(Position debut, std::span<char> octets) override {
        std::size_t lus = 0;
        while (lus < octets.size()) {
            const ssize_t n = ::pread(descripteur_.Fd(), octets.data() + lus, octets.size() - lus,
                                      DecalageDe(debut) + static_cast<off_t>(lus));
            if (n < 0 && errno == EINTR) continue;
            // A commit made of bytes that could not be read would be worse than none.
            const std::uint64_t ici = debut.valeur - 1ULL + lus;
            if (n < 0 || (n == 0 && ici < Taille())) Retenir(Defaut::Lecture);
            if (n <= 0) break;
            lus += static_cast<std::size_t>(n);
        }
        std::fill(octets.begin() + static_cast<std::ptrdiff_t>(lus), octets.end(), '\0');
        return lus;
    }

    void Ecrire(Position debut, std::span<const char> octets) override {
        std::size_t ecrits = 0;
        while (!EnDefaut() && ecrits < octets.size()) {
            const ssize_t n =
                ::pwrite(descripteur_.Fd(), octets.data() + ecrits, octets.size() - ecrits,
                         DecalageDe(debut) + static_cast<off_t>(ecrits));
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0)
                Retenir(Defaut::Ecriture);
            else
                ecrits += static_cast<std::size_t>(n);
        }
    }

    void Vider() override {
        if (!EnDefaut() && ::fsync(descripteur_.Fd()) != 0) Retenir(Defaut::Vidage);
    }

    [[nodiscard]] std::uint64_t Taille() override {
        struct stat etat {};
        if (::fstat(descripteur_.Fd(), &etat) != 0) {
            Retenir(Defaut::Lecture);
            return 0;
        }
        return static_cast<std::uint64_t>(etat.st_size);
    }

    [[nodiscard]] Defaut DefautDe() const override { return defaut_; }

    void Reprendre() override {
        if (defaut_ != Defaut::Lecture) defaut_ = Defaut::Aucun;
    }

private:
    void Retenir(Defaut defaut) { defaut_ = std::max(defaut_, defaut); }

    Descripteur descripteur_;
    Defaut defaut_ = Defaut::Aucun;
};

class VerrouReel final : public Verrou {
public:
    VerrouReel(Descripteur descripteur, std::filesystem::path chemin)
        : descripteur_{std::move(descripteur)}, chemin_{std::move(chemin)} {}
    /// Removed while still held, so that nobody's newer file is taken away.
    ~VerrouReel() override { ::unlink(chemin_.c_str()); }

private:
    Descripteur descripteur_;
    std::filesystem::path chemin_;
};

/// The file that was opened may have been removed by the one who held it before: the lock counts
/// only if the name still leads to it.
bool EncoreEnPlace(int fd, const std::filesystem::path& chemin) {
    struct stat ouvert {};
    struct stat nomme {};
    return ::fstat(fd, &ouvert) == 0 && ::stat(chemin.c_str(), &nomme) == 0 &&
           ouvert.st_dev == nomme.st_dev && ouvert.st_ino == nomme.st_ino;
}

constexpr mode_t Droits = 0666;  // less what the user's mask takes away
constexpr mode_t DroitsGardes = 0777;

/// For writing, as network file systems ask; only to read where a dead program of another user left
/// the file. A pipe that stands there holds nobody up.
Descripteur OuvrirVerrou(const std::filesystem::path& chemin) {
    constexpr int Toujours = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int fd = ::open(chemin.c_str(), O_RDWR | O_CREAT | Toujours, Droits);
    return Descripteur{fd < 0 && errno == EACCES ? ::open(chemin.c_str(), O_RDONLY | Toujours)
                                                 : fd};
}

}  // namespace

std::unique_ptr<Fichier> DisqueReel::Ouvrir(const std::filesystem::path& chemin,
                                            ModeOuverture mode) {
    const int acces = mode == ModeOuverture::LectureSeule ? O_RDONLY : O_RDWR;
    const bool nouveau = mode == ModeOuverture::Creer || mode == ModeOuverture::Neuf;
    const int creation = nouveau ? O_CREAT | O_EXCL | O_NOFOLLOW : 0;
    if (mode == ModeOuverture::Creer) ::unlink(chemin.c_str());
    Descripteur descripteur{
        ::open(chemin.c_str(), acces | creation | O_CLOEXEC | O_NONBLOCK, Droits)};
    struct stat etat {};
    if (!descripteur || ::fstat(descripteur.Fd(), &etat) != 0 || !S_ISREG(etat.st_mode))
        return nullptr;
    return std::make_unique<FichierReel>(std::move(descripteur));
}

bool DisqueReel::Existe(const std::filesystem::path& chemin) {
    std::error_code erreur;
    return std::filesystem::exists(chemin, erreur);
}

bool DisqueReel::Supprimer(const std::filesystem::path& chemin) {
    return ::unlink(chemin.c_str()) == 0;
}

bool DisqueReel::Renommer(const std::filesystem::path& de, const std::filesystem::path& vers) {
    return ::rename(de.c_str(), vers.c_str()) == 0;
}

bool DisqueReel::Copier(const std::filesystem::path& de, const std::filesystem::path& vers) {
    const std::unique_ptr<Fichier> source = Ouvrir(de, ModeOuverture::LectureSeule);
    if (!source) return false;
    const std::unique_ptr<Fichier> copie = Ouvrir(vers, ModeOuverture::Creer);
    if (!copie) return false;
    std::vector<char> tampon(1U << 20U);
    const std::uint64_t taille = source->Taille();
    if (taille >= 0xFFFFFFFFU) return false;  // no base: positions have 4 bytes
    for (std::uint64_t fait = 0; fait < taille;) {
        const Position ici{static_cast<std::uint32_t>(fait + 1)};
        const std::size_t lus = source->Lire(ici, tampon);
        if (lus == 0) return false;
        copie->Ecrire(ici, std::span{tampon}.first(lus));
        fait += lus;
    }
    DonnerDroits(vers, de);
    copie->Vider();
    return !source->EnDefaut() && !copie->EnDefaut();
}

void DisqueReel::DonnerDroits(const std::filesystem::path& chemin,
                              const std::filesystem::path& comme) {
    struct stat etat {};
    if (::stat(comme.c_str(), &etat) != 0) return;
    // The owner first: giving a file away takes special rights off it.
    static_cast<void>(::lchown(chemin.c_str(), etat.st_uid, etat.st_gid));
    static_cast<void>(::chmod(chemin.c_str(), etat.st_mode & DroitsGardes));
}

bool DisqueReel::ViderDossier(const std::filesystem::path& fichier) {
    std::filesystem::path dossier = fichier.parent_path();
    if (dossier.empty()) dossier = ".";
    const Descripteur descripteur{::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    return descripteur && ::fsync(descripteur.Fd()) == 0;
}

ResultatVerrou DisqueReel::Verrouiller(const std::filesystem::path& base) {
    // One base reached by two names has one lock.
    std::error_code erreur;
    std::filesystem::path chemin = std::filesystem::weakly_canonical(base, erreur);
    if (erreur) chemin = base;
    chemin += ".verrou";
    constexpr int Essais = 100;
    for (int essai = 0; essai < Essais; ++essai) {
        Descripteur descripteur = OuvrirVerrou(chemin);
        struct stat etat {};
        if (!descripteur || ::fstat(descripteur.Fd(), &etat) != 0 || !S_ISREG(etat.st_mode))
            return {EtatVerrou::Refuse, nullptr};
        if (::flock(descripteur.Fd(), LOCK_EX | LOCK_NB) != 0) {
            if (errno == EINTR) continue;
            return {errno == EWOULDBLOCK ? EtatVerrou::Occupe : EtatVerrou::Refuse, nullptr};
        }
        if (EncoreEnPlace(descripteur.Fd(), chemin))
            return {EtatVerrou::Pris,
                    std::make_unique<VerrouReel>(std::move(descripteur), std::move(chemin))};
    }
    return {EtatVerrou::Occupe, nullptr};
}

}  // namespace dorvane::storage

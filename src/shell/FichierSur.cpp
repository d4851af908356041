#include "shell/FichierSur.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace dorvane::shell {

namespace {

constexpr std::size_t TailleTampon = 1U << 18U;

/// An open file that closes itself.
class Descripteur {
public:
    Descripteur(const std::filesystem::path& chemin, int mode, mode_t droits = 0)
        : no_{open(chemin.c_str(), mode | O_CLOEXEC, droits)} {}
    ~Descripteur() {
        if (no_ >= 0) close(no_);
    }
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;

    [[nodiscard]] bool Ouvert() const { return no_ >= 0; }
    [[nodiscard]] int No() const { return no_; }

    [[nodiscard]] bool Ecrire(std::string_view octets) const {
        while (!octets.empty()) {
            const ssize_t n = write(no_, octets.data(), octets.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) return false;
            octets.remove_prefix(static_cast<std::size_t>(n));
        }
        return true;
    }

    /// Bytes read, 0 at the end, negative when refused.
    [[nodiscard]] ssize_t Lire(char* octets, std::size_t taille) const {
        for (;;) {
            const ssize_t n = read(no_, octets, taille);
            if (n >= 0 || errno != EINTR) return n;
        }
    }

    [[nodiscard]] bool Vider() const { return fsync(no_) == 0; }

    /// Some systems tell a full disk only at this call.
    [[nodiscard]] bool Fermer() {
        const int no = no_;
        no_ = -1;
        return close(no) == 0;
    }

private:
    int no_;
};

/// The file that a name leads to, so that a link stays a link.
std::filesystem::path Resoudre(const std::filesystem::path& chemin) {
    std::error_code erreur;
    if (!std::filesystem::is_symlink(chemin, erreur)) return chemin;
    const std::filesystem::path reel = std::filesystem::canonical(chemin, erreur);
    return erreur ? chemin : reel;
}

/// Runs `remplir` on a new file beside `chemin`, then puts it in its place.
template <class Remplir>
bool Remplacer(const std::filesystem::path& chemin, std::string_view suffixe, Remplir remplir) {
    const std::filesystem::path cible = Resoudre(chemin);
    std::filesystem::path aCote = cible;
    aCote += suffixe;

    struct stat ancien {};
    const mode_t droits = stat(cible.c_str(), &ancien) == 0 ? ancien.st_mode & 0777U : 0666U;
    Descripteur sortie{aCote, O_WRONLY | O_CREAT | O_TRUNC, droits};
    if (!sortie.Ouvert()) return false;
    const bool ecrit = remplir(sortie) && sortie.Vider();
    if (!sortie.Fermer() || !ecrit || rename(aCote.c_str(), cible.c_str()) != 0) {
        unlink(aCote.c_str());
        return false;
    }
    // The new name itself must reach the disk. A system that cannot flush a folder has still
    // renamed the file.
    const std::filesystem::path dossier = cible.has_parent_path() ? cible.parent_path() : ".";
    const Descripteur porteur{dossier, O_RDONLY | O_DIRECTORY};
    if (porteur.Ouvert()) static_cast<void>(porteur.Vider());
    return true;
}

}  // namespace

std::optional<std::string> LireTout(const std::filesystem::path& chemin) {
    // Without O_NONBLOCK a pipe that nobody writes to would hold the program for ever.
    const Descripteur entree{chemin, O_RDONLY | O_NONBLOCK};
    struct stat etat {};
    if (!entree.Ouvert() || fstat(entree.No(), &etat) != 0 || !S_ISREG(etat.st_mode))
        return std::nullopt;
    std::string octets;
    const auto taille = static_cast<std::uintmax_t>(etat.st_size);
    if (taille <= octets.max_size() / 2) octets.reserve(taille);
    std::array<char, 65536> tampon;
    for (;;) {
        const ssize_t n = entree.Lire(tampon.data(), tampon.size());
        if (n < 0) return std::nullopt;
        if (n == 0) return octets;
        octets.append(tampon.data(), static_cast<std::size_t>(n));
    }
}

bool EcrireTout(const std::filesystem::path& chemin, std::string_view octets,
                std::string_view suffixe) {
    return Remplacer(chemin, suffixe,
                     [octets](const Descripteur& sortie) { return sortie.Ecrire(octets); });
}

std::filesystem::path CheminPartiel(const std::filesystem::path& chemin) {
    std::filesystem::path partiel = chemin;
    return partiel += ".partiel";
}

bool CopierTout(const std::filesystem::path& source, const std::filesystem::path& cible) {
    const Descripteur entree{source, O_RDONLY};
    if (!entree.Ouvert()) return false;
    return Remplacer(cible, ".nouveau", [&entree](const Descripteur& sortie) {
        std::string tampon(TailleTampon, '\0');
        for (;;) {
            const ssize_t n = entree.Lire(tampon.data(), tampon.size());
            if (n < 0) return false;
            if (n == 0) return true;
            if (!sortie.Ecrire({tampon.data(), static_cast<std::size_t>(n)})) return false;
        }
    });
}

}  // namespace dorvane::shell

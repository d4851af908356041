#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

namespace dorvane::storage {
class BaseCommunes;
class Disque;
}  // namespace dorvane::storage

namespace dorvane::shell {

class Parametres;

/// The communes with which places are completed: the file of the settings, read at its first use
/// and again when the setting or the file has changed. A file that is missing or cannot be read
/// is none, without a word: only the window of the communes tells.
class Communes {
public:
    /// Both outlive the object.
    Communes(storage::Disque& disque, const Parametres& parametres);
    ~Communes();
    Communes(const Communes&) = delete;
    Communes& operator=(const Communes&) = delete;

    /// The base, only to be searched; null when there is none. It lives until the next call. While
    /// nothing has changed a call costs one look at the file.
    [[nodiscard]] const storage::BaseCommunes* Base();

private:
    /// By what a file is known to be the one that was read.
    struct Etat {
        std::filesystem::path chemin;
        std::filesystem::file_time_type date;
        std::uintmax_t taille = 0;

        friend bool operator==(const Etat&, const Etat&) = default;
    };
    [[nodiscard]] Etat EtatDuFichier() const;

    storage::Disque& disque_;
    const Parametres& parametres_;
    Etat lu_;
    std::unique_ptr<storage::BaseCommunes> base_;
};

}  // namespace dorvane::shell

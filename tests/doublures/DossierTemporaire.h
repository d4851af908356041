#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace dorvane::doublures {

/// A folder of its own for one test, gone with the object.
class DossierTemporaire {
public:
    DossierTemporaire() {
        std::string modele = (std::filesystem::temp_directory_path() / "dorvane-XXXXXX").string();
        if (mkdtemp(modele.data()) == nullptr) std::abort();
        chemin = modele;
    }
    ~DossierTemporaire() {
        std::error_code erreur;
        std::filesystem::remove_all(chemin, erreur);
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;

    [[nodiscard]] std::filesystem::path operator/(const std::filesystem::path& nom) const {
        return chemin / nom;
    }

    std::filesystem::path chemin;
};

inline void EcrireFichier(const std::filesystem::path& chemin, std::string_view octets) {
    std::filesystem::create_directories(chemin.parent_path());
    std::ofstream{chemin, std::ios::binary}.write(octets.data(),
                                                  static_cast<std::streamsize>(octets.size()));
}

[[nodiscard]] inline std::string LireFichier(const std::filesystem::path& chemin) {
    std::ifstream flux{chemin, std::ios::binary};
    return {std::istreambuf_iterator<char>{flux}, {}};
}

}  // namespace dorvane::doublures

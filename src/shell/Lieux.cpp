#include "shell/Parametres.h"
#include "values/Texte1252.h"

#include <unistd.h>

#include <cstdlib>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

/// Bytes of a path that are no UTF-8 are kept as the private characters U+F700 to U+F7FF.
constexpr char32_t Prive = 0xF700;

fs::path DeVariable(const char* nom) {
    const char* valeur = std::getenv(nom);
    return valeur == nullptr ? fs::path{} : fs::path{valeur};
}

/// A folder of the user: a variable that holds an absolute path, else a folder of the home.
fs::path DossierUtilisateur(const char* variable, const char* sinon) {
    const fs::path dossier = DeVariable(variable);
    if (dossier.is_absolute()) return dossier / "dorvane";
    return DeVariable("HOME") / sinon / "dorvane";
}

bool TientUnCatalogue(const fs::path& dossier) {
    std::error_code erreur;
    for (fs::directory_iterator i{dossier, erreur}, fin; !erreur && i != fin; i.increment(erreur))
        if (i->path().extension() == ".mes") return true;
    return false;
}

/// The length of the UTF-8 character at the head of `octets`, 0 when there is none.
std::size_t LongueurUtf8(std::string_view octets) {
    const auto premier = static_cast<unsigned char>(octets[0]);
    if (premier < 0x80) return 1;
    const std::size_t longueur = premier < 0xC2   ? 0
                                 : premier < 0xE0 ? 2
                                 : premier < 0xF0 ? 3
                                 : premier < 0xF5 ? 4
                                                  : 0;
    if (longueur == 0 || longueur > octets.size()) return 0;
    for (std::size_t i = 1; i < longueur; ++i)
        if ((static_cast<unsigned char>(octets[i]) & 0xC0U) != 0x80) return 0;
    // Spelt too long, a surrogate, or past the last character.
    const auto second = static_cast<unsigned char>(octets[1]);
    if ((premier == 0xE0 && second < 0xA0) || (premier == 0xED && second > 0x9F) ||
        (premier == 0xF0 && second < 0x90) || (premier == 0xF4 && second > 0x8F))
        return 0;
    return longueur;
}

}  // namespace

Lieux LieuxDuSysteme() {
    Lieux lieux;
    lieux.configuration = DossierUtilisateur("XDG_CONFIG_HOME", ".config");
    lieux.cache = DossierUtilisateur("XDG_CACHE_HOME", ".cache");
    lieux.repertoire = DeVariable("DORVANE_PARTAGE");
    if (lieux.repertoire.empty()) {
        std::error_code erreur;
        const fs::path executable = fs::read_symlink("/proc/self/exe", erreur);
        const fs::path dossier = erreur ? fs::current_path(erreur) : executable.parent_path();
        lieux.repertoire =
            TientUnCatalogue(dossier) ? dossier : (dossier / "../share/dorvane").lexically_normal();
    }
    return lieux;
}

fs::path Parametres::DossierTemp() const {
    std::error_code erreur;
    for (const fs::path& parent : {lieux.repertoire, lieux.cache}) {
        if (parent.empty()) continue;
        fs::path dossier = parent / "Temp";
        fs::create_directories(dossier, erreur);
        if (fs::is_directory(dossier, erreur) && access(dossier.c_str(), W_OK | X_OK) == 0)
            return dossier;
    }
    return {};
}

std::int32_t NombreIndulgent(std::string_view texte) {
    std::size_t i = texte.find_first_not_of(" \t");
    if (i == std::string_view::npos) return 0;
    const bool negatif = texte[i] == '-';
    if (negatif || texte[i] == '+') ++i;
    std::int64_t nombre = 0;
    for (; i < texte.size() && texte[i] >= '0' && texte[i] <= '9'; ++i)
        if (nombre <= INT32_MAX) nombre = nombre * 10 + (texte[i] - '0');
    nombre = nombre > INT32_MAX ? INT32_MAX : nombre;
    return static_cast<std::int32_t>(negatif ? -nombre : nombre);
}

std::string CheminVersUtf8(const fs::path& chemin) {
    const std::string& octets = chemin.native();
    std::string utf8;
    for (std::size_t i = 0; i < octets.size();) {
        const std::size_t longueur = LongueurUtf8(std::string_view{octets}.substr(i));
        if (longueur == 0) {
            const char32_t code = Prive + static_cast<unsigned char>(octets[i]);
            utf8 += static_cast<char>(0xE0U | (code >> 12U));
            utf8 += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
            utf8 += static_cast<char>(0x80U | (code & 0x3FU));
            ++i;
        } else {
            utf8.append(octets, i, longueur);
            i += longueur;
        }
    }
    return utf8;
}

fs::path Utf8VersChemin(std::string_view utf8) {
    std::string octets;
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t longueur = LongueurUtf8(utf8.substr(i));
        const auto a = [&](std::size_t k) {
            return static_cast<unsigned>(static_cast<unsigned char>(utf8[i + k]));
        };
        // U+F700 to U+F7FF: EF 9C 80 to EF 9F BF.
        if (longueur == 3 && a(0) == 0xEF && a(1) >= 0x9C && a(1) <= 0x9F) {
            octets += static_cast<char>((((a(1) & 0x3FU) << 6U) | (a(2) & 0x3FU)) & 0xFFU);
            i += 3;
        } else {
            const std::size_t n = longueur == 0 ? 1 : longueur;
            octets.append(utf8, i, n);
            i += n;
        }
    }
    return fs::path{octets};
}

std::string CheminAffiche(const fs::path& chemin) {
    return Utf8VersTexte(chemin.native()).octets;
}

}  // namespace dorvane::shell

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
        const CodeLu lu = LireUtf8(std::string_view{octets}.substr(i));
        if (lu.rompu) {
            const char32_t code = Prive + static_cast<unsigned char>(octets[i]);
            utf8 += static_cast<char>(0xE0U | (code >> 12U));
            utf8 += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
            utf8 += static_cast<char>(0x80U | (code & 0x3FU));
            ++i;
        } else {
            utf8.append(octets, i, lu.longueur);
            i += lu.longueur;
        }
    }
    return utf8;
}

fs::path Utf8VersChemin(std::string_view utf8) {
    std::string octets;
    for (std::size_t i = 0; i < utf8.size();) {
        const CodeLu lu = LireUtf8(utf8.substr(i));
        if (lu.code >= Prive && lu.code <= Prive + 0xFF)
            octets += static_cast<char>(lu.code & 0xFFU);
        else
            octets.append(utf8, i, lu.longueur);
        i += lu.longueur;
    }
    return fs::path{octets};
}

std::string CheminAffiche(const fs::path& chemin) {
    return Utf8VersTexte(chemin.native()).octets;
}

}  // namespace dorvane::shell

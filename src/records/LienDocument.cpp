// A link file is a text: the path of the file that it stands for, UTF-8, and a line end.
#include "records/FicheDocument.h"
#include "shell/FichierSur.h"
#include "shell/Session.h"

#include <algorithm>
#include <optional>
#include <system_error>

namespace dorvane::records {
namespace {

constexpr std::size_t MaxLien = 4096;  // bytes of a path, and more than any
constexpr int MaxEssais = 1000;        // names tried for a new link file

std::filesystem::path DossierBase(const shell::Session& session) {
    std::error_code erreur;
    const std::filesystem::path base = std::filesystem::absolute(session.CheminBase, erreur);
    return (erreur ? session.CheminBase : base).parent_path().lexically_normal();
}

}  // namespace

std::filesystem::path CheminPourDocument(const shell::Session& session,
                                         const std::filesystem::path& fichier) {
    std::error_code erreur;
    const std::filesystem::path absolu = std::filesystem::absolute(fichier, erreur);
    const std::filesystem::path entier = (erreur ? fichier : absolu).lexically_normal();
    const std::filesystem::path relatif = entier.lexically_relative(DossierBase(session));
    return relatif.empty() || *relatif.begin() == ".." || relatif == "." ? entier : relatif;
}

std::filesystem::path CreerLien(const shell::Session& session, const std::filesystem::path& cible) {
    const std::string contenu = CheminPourDocument(session, cible).string() + '\n';
    const std::filesystem::path dossier = DossierBase(session);
    const std::string nom = cible.stem().string();
    for (int essai = 1; essai <= MaxEssais; ++essai) {
        const std::string suite = essai == 1 ? std::string{} : ' ' + std::to_string(essai);
        std::filesystem::path lien = dossier / (nom + suite + ".LGO");
        std::error_code erreur;
        if (!std::filesystem::exists(lien, erreur)) {
            if (!shell::EcrireTout(lien, contenu)) return {};
            return lien;
        }
        // The same link made twice is one file; any other file is left alone.
        if (shell::LireTout(lien) == contenu) return lien;
    }
    return {};
}

std::filesystem::path LireLien(const std::filesystem::path& lien) {
    std::error_code erreur;
    const std::uintmax_t taille = std::filesystem::file_size(lien, erreur);
    if (erreur || taille == 0 || taille > MaxLien) return {};
    std::string texte = shell::LireTout(lien).value_or("");
    if (texte.find('\0') != std::string::npos) return {};
    texte.resize(std::min(texte.find_first_of("\r\n"), texte.size()));
    if (texte.empty()) return {};
    const std::filesystem::path cible{texte};
    return cible.is_absolute() ? cible : lien.parent_path() / cible;
}

}  // namespace dorvane::records

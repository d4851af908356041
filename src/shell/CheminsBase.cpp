#include "shell/CopiesDatees.h"
#include "shell/CycleDeVie.h"
#include "storage/Journal.h"
#include "values/Comparaison.h"

#include <algorithm>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

/// A path with its last three letters replaced.
fs::path AvecTroisLettres(const fs::path& chemin, std::string_view lettres) {
    std::string texte = chemin.native();
    texte.resize(texte.size() - std::min<std::size_t>(3, texte.size()));
    return fs::path{texte.append(lettres)};
}

/// A path cut at the first dot of the file name. A dot in a folder does not count.
fs::path AuPremierPoint(const fs::path& chemin, std::string_view extension) {
    std::string nom = chemin.filename().native();
    nom.resize(std::min(nom.find('.'), nom.size()));
    return chemin.parent_path() / fs::path{nom.append(extension)};
}

}  // namespace

fs::path CheminEntier(const fs::path& chemin) {
    std::error_code erreur;
    const fs::path reel = fs::weakly_canonical(fs::absolute(chemin, erreur), erreur);
    return erreur ? fs::absolute(chemin, erreur).lexically_normal() : reel;
}

std::string ExtensionDe(const fs::path& chemin) {
    return EnMinuscules(chemin.extension().native());
}

bool EstFichierDeBase(const fs::path& fichier, const fs::path& base) {
    if (base.empty()) return false;
    fs::path verrou = base;
    verrou += ".verrou";
    const fs::path siens[] = {base, storage::CheminJournal(base), CheminSauvegarde(base), verrou};
    return std::ranges::any_of(siens, [&fichier](const fs::path& sien) {
        std::error_code erreur;
        return fichier == sien || fs::equivalent(fichier, sien, erreur);
    });
}

CheminsBase DeriverChemins(const fs::path& base) {
    return {AvecTroisLettres(base, "LGR"), AvecTroisLettres(base, "LOG"),
            AvecTroisLettres(base, "GED"), CheminAffiche(base.stem())};
}

fs::path CheminSauvegarde(const fs::path& base) {
    return AuPremierPoint(base, ".SAV");
}

fs::path CheminRestauration(const fs::path& sauvegarde) {
    return AuPremierPoint(SansDate(sauvegarde), ".LGD");
}

fs::path FichierTemporaire(const Session& session, std::string_view debut) {
    std::string nom{debut};
    nom += session.CheminBase.stem().native();
    return session.Travail() / fs::path{nom.append(".tmp")};
}

}  // namespace dorvane::shell

#include "records/FichierDeDocument.h"

#include "messages/Faits.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <system_error>

namespace dorvane::records {

namespace {

bool EstFichier(const std::filesystem::path& chemin) {
    std::error_code erreur;
    return std::filesystem::is_regular_file(chemin, erreur);
}

}  // namespace

std::filesystem::path FichierDeDocument(const std::filesystem::path& base,
                                        const std::string& fichier) {
    std::string nom = TexteVersUtf8(fichier);
    if (nom.empty()) return {};
    const std::filesystem::path dossier = base.parent_path();
    if (EstFichier(dossier / nom)) return dossier / nom;
    std::replace(nom.begin(), nom.end(), '\\', '/');
    if (EstFichier(dossier / nom)) return dossier / nom;
    const std::filesystem::path aCote = dossier / std::filesystem::path{nom}.filename();
    return EstFichier(aCote) ? aCote : std::filesystem::path{};
}

std::filesystem::path FichierDeDocument(const shell::Session& session, NoDocument document) {
    return FichierDeDocument(session.CheminBase, session.base->R_IMAGE.FichierDoc(document));
}

EtatDocument EtatDe(const std::filesystem::path& base, const storage::Document& document) {
    return {NatureDe(document), FichierDeDocument(base, document.fichier)};
}

NoMessage MessageDEtat(const EtatDocument& etat) {
    switch (etat.nature) {
        case NatureDocument::Rien:
            return message::SansFichier;
        case NatureDocument::Adresse:
            return message::AdresseWeb;
        case NatureDocument::Courriel:
            return message::AdresseElectronique;
        case NatureDocument::Lien:
        case NatureDocument::Fichier:
            break;
    }
    return etat.Absent() ? message::FichierAbsent : NoMessage{};
}

}  // namespace dorvane::records

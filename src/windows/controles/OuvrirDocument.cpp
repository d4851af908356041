#include "windows/controles/OuvrirDocument.h"

#include <QDesktopServices>
#include <QUrl>

#include "messages/Faits.h"
#include "records/FicheDocument.h"
#include "records/FichierDeDocument.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Unicode.h"

#include <system_error>

namespace dorvane::windows {

void OuvrirDocument(shell::Session& session, NoDocument document) {
    if (!session.base || !document) return;
    const storage::Document valeurs = session.base->R_IMAGE.LireDoc(document);
    OuvrirDocument(session, valeurs);
}

void OuvrirDocument(shell::Session& session, const storage::Document& valeurs) {
    const std::string adresse = records::AdresseDe(valeurs);
    QUrl url;
    if (!adresse.empty()) {
        url = QUrl{TexteVersQt(adresse)};
    } else {
        std::filesystem::path chemin =
            records::FichierDeDocument(session.CheminBase, valeurs.fichier);
        if (!chemin.empty() && records::NatureDe(valeurs) == records::NatureDocument::Lien)
            chemin = records::LireLien(chemin);
        std::error_code erreur;
        if (chemin.empty() || !std::filesystem::exists(chemin, erreur)) {
            session.dialogue.Informer(
                shell::Msg(message::FichierDocumentIntrouvable, valeurs.fichier),
                shell::Litteral(records::TitreAffiche(valeurs)));
            return;
        }
        url = QUrl::fromLocalFile(CheminVersQt(std::filesystem::absolute(chemin, erreur)));
    }
    if (!QDesktopServices::openUrl(url))
        session.dialogue.Informer(shell::Msg(message::AucunProgrammePourOuvrir, valeurs.fichier),
                                  shell::Litteral(records::TitreAffiche(valeurs)));
}

}  // namespace dorvane::windows

#include "windows/controles/Vignettes.h"

#include <QImageReader>
#include <QPixmapCache>

#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Texte1252.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <system_error>

namespace dorvane::windows {

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

QPixmap VignetteDeFichier(const std::filesystem::path& chemin, int cote) {
    if (chemin.empty()) return {};
    std::error_code erreur;
    const auto heure = std::filesystem::last_write_time(chemin, erreur).time_since_epoch().count();
    const QString cle =
        QStringLiteral("vignette/%1/%2/").arg(cote).arg(erreur ? 0 : heure) + CheminVersQt(chemin);
    QPixmap image;
    if (QPixmapCache::find(cle, &image)) return image.width() > 1 ? image : QPixmap{};
    QImageReader lecteur{CheminVersQt(chemin)};
    lecteur.setAutoTransform(true);
    lecteur.setDecideFormatFromContent(true);
    const QSize taille = lecteur.size();
    if (taille.isValid() && (taille.width() > cote || taille.height() > cote))
        lecteur.setScaledSize(taille.scaled(cote, cote, Qt::KeepAspectRatio));
    image = QPixmap::fromImage(lecteur.read());
    // One pixel stands for a file that is no picture: it is not tried again.
    QPixmapCache::insert(cle, image.isNull() ? QPixmap{1, 1} : image);
    return image;
}

QPixmap VignetteDe(const shell::Session& session, NoOrdre individu, int cote) {
    const NoDocument document = session.base->R_LSTIMG.ElementListe(individu, 1);
    return document ? VignetteDeFichier(FichierDeDocument(session, document), cote) : QPixmap{};
}

}  // namespace dorvane::windows

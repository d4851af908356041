#include "windows/controles/Vignettes.h"

#include <QImageReader>
#include <QPixmapCache>

#include "records/FichierDeDocument.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Unicode.h"

#include <system_error>

namespace dorvane::windows {

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
    return document ? VignetteDeFichier(records::FichierDeDocument(session, document), cote)
                    : QPixmap{};
}

}  // namespace dorvane::windows

#include <QApplication>
#include <QCommandLineParser>
#include <QMetaObject>

#include "windows/cadre/ImageGraphe.h"
#include "windows/cadre/Programme.h"
#include "windows/controles/Unicode.h"

#include <cstring>
#include <iostream>
#include <string_view>

namespace {

using namespace dorvane;

constexpr const char* Usage =
    "Usage: dorvane [FICHIER]\n"
    "       dorvane --image SORTIE.png [--taille LxH] [--densite D] [--sombre] FICHIER\n";

/// The density and the platform are settled before Qt starts.
void ReglerAvantQt(int argc, char** argv) {
    bool image = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument{argv[i]};
        if (argument == "--image" || argument.starts_with("--image=")) image = true;
        if (argument == "--densite" && i + 1 < argc) qputenv("QT_SCALE_FACTOR", argv[i + 1]);
        if (argument.starts_with("--densite="))
            qputenv("QT_SCALE_FACTOR", argv[i] + std::strlen("--densite="));
    }
    if (image && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// "1280x800"; an invalid size for anything else.
QSize LireTaille(const QString& texte) {
    const QStringList parts = texte.split(u'x');
    if (parts.size() != 2) return {};
    constexpr int Max = 8000;
    const QSize taille{parts[0].toInt(), parts[1].toInt()};
    const bool juste = taille.width() > 0 && taille.height() > 0 && taille.width() <= Max &&
                       taille.height() <= Max;
    return juste ? taille : QSize{};
}

int MauvaisUsage(const QString& raison) {
    if (!raison.isEmpty()) std::cerr << raison.toStdString() << '\n';
    std::cerr << Usage;
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    ReglerAvantQt(argc, argv);
    QApplication application{argc, argv};
    QApplication::setApplicationName(QStringLiteral("dorvane"));
    QApplication::setApplicationDisplayName(QString{});
    QApplication::setDesktopFileName(QStringLiteral("dorvane"));

    QCommandLineParser parseur;
    const QCommandLineOption image{QStringLiteral("image"), {}, QStringLiteral("png")};
    const QCommandLineOption taille{
        QStringLiteral("taille"), {}, QStringLiteral("LxH"), QStringLiteral("1280x800")};
    const QCommandLineOption densite{
        QStringLiteral("densite"), {}, QStringLiteral("D"), QStringLiteral("1")};
    const QCommandLineOption sombre{QStringLiteral("sombre")};
    parseur.addOptions({image, taille, densite, sombre});
    if (!parseur.parse(QApplication::arguments())) return MauvaisUsage(parseur.errorText());
    const QStringList fichiers = parseur.positionalArguments();
    if (fichiers.size() > 1) return MauvaisUsage({});
    const std::filesystem::path fichier =
        fichiers.isEmpty() ? std::filesystem::path{} : windows::QtVersChemin(fichiers.constFirst());

    if (parseur.isSet(image)) {
        const QSize dimensions = LireTaille(parseur.value(taille));
        bool nombre = false;
        const double facteur = parseur.value(densite).toDouble(&nombre);
        if (fichier.empty() || dimensions.isEmpty() || !nombre || facteur < 0.5 || facteur > 4)
            return MauvaisUsage({});
        return windows::ImagerFenetre({windows::QtVersChemin(parseur.value(image)), fichier,
                                       dimensions, parseur.isSet(sombre)})
                   ? 0
                   : 1;
    }

    windows::Programme programme{shell::LieuxDuSysteme()};
    programme.Demarrer(fichier);
    QMetaObject::invokeMethod(
        &programme.fenetre, [&programme] { programme.fenetre.DemanderPalette(); },
        Qt::QueuedConnection);
    return QApplication::exec();
}

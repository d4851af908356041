// The chapters of the manual speak the words of the screen.
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "windows/Essai.h"
#include "windows/controles/Legendes.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// A caption as it stands inside a sentence: without mnemonic, dots, colon and no-break spaces.
QString Epurer(QString texte) {
    texte = SansMnemonique(texte.replace(QChar{0xA0}, u' ').replace(QChar{0x202F}, u' '));
    static const QRegularExpression Fin{QStringLiteral("[ :.…]+$")};
    return texte.remove(Fin).simplified();
}

}  // namespace

TEST_CASE_FIXTURE(FenetreEssai, "Manual: every name in bold is a caption of the program") {
    Demarrer({});
    QSet<QString> legendes;
    for (std::uint32_t no = 1; no < 5000; ++no)
        legendes << Epurer(TexteEcran(S(), NoMessage{no}));
    static const QRegularExpression Gras{QStringLiteral("\\*\\*([^*]+)\\*\\*")};
    const QDir manuel{QStringLiteral(RACINE_SOURCES "/docs/manuel")};
    const QStringList chapitres = manuel.entryList({QStringLiteral("*.md")});
    REQUIRE(chapitres.size() >= 3);
    int noms = 0;
    for (const QString& chapitre : chapitres) {
        QFile fichier{manuel.filePath(chapitre)};
        REQUIRE(fichier.open(QIODevice::ReadOnly));
        const QString texte = QString::fromUtf8(fichier.readAll());
        for (auto i = Gras.globalMatch(texte); i.hasNext();) {
            const QString nom = i.next().captured(1);
            if (nom == QStringLiteral("gras")) continue;  // tells how names are written
            CAPTURE(chapitre.toStdString());
            CAPTURE(nom.toStdString());
            CHECK(legendes.contains(Epurer(nom)));
            ++noms;
        }
    }
    CHECK(noms > 60);
}

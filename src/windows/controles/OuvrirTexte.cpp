#include "windows/controles/OuvrirTexte.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringDecoder>

#include "shell/FichierSur.h"
#include "shell/Session.h"
#include "windows/controles/FrmRapport.h"
#include "windows/controles/Unicode.h"

#include <functional>
#include <optional>
#include <string>

namespace dorvane::windows {

namespace {

/// ms: an opener that fails later than that has shown the file before.
constexpr qint64 DelaiRefus = 10000;

/// What a menu entry of the desktop says of its program.
struct EntreeBureau {
    QString programme;  ///< file name without its folder
    bool terminal = false;
};

EntreeBureau LireEntree(const QString& chemin) {
    EntreeBureau entree;
    QFile fichier{chemin};
    if (!fichier.open(QIODevice::ReadOnly | QIODevice::Text)) return entree;
    bool principale = false;
    while (!fichier.atEnd()) {
        const QString ligne = QString::fromUtf8(fichier.readLine()).trimmed();
        if (ligne.startsWith(u'['))
            principale = ligne == QStringLiteral("[Desktop Entry]");
        else if (principale && ligne.startsWith(QStringLiteral("Exec=")))
            entree.programme = QFileInfo{QProcess::splitCommand(ligne.mid(5)).value(0)}.fileName();
        else if (principale && ligne.startsWith(QStringLiteral("Terminal=")))
            entree.terminal = ligne.mid(9) == QStringLiteral("true");
    }
    return entree;
}

/// An editor that the desktop does not offer, or offers in a terminal, would wait unseen.
bool AUneFenetre(const QString& programme) {
    const QString nom = QFileInfo{programme}.fileName();
    const QStringList dossiers =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString& dossier : dossiers) {
        QDirIterator entrees{dossier, {QStringLiteral("*.desktop")}, QDir::Files};
        while (entrees.hasNext()) {
            const EntreeBureau entree = LireEntree(entrees.next());
            if (entree.programme == nom) return !entree.terminal;
        }
    }
    return false;
}

/// The editor of the user with its arguments; empty when there is none with a window.
QStringList EditeurChoisi() {
    for (const char* variable : {"VISUAL", "EDITOR"}) {
        QStringList commande = QProcess::splitCommand(qEnvironmentVariable(variable));
        if (commande.isEmpty()) continue;
        const QString programme = QStandardPaths::findExecutable(commande.constFirst());
        if (programme.isEmpty() || !AUneFenetre(programme)) continue;
        commande[0] = programme;
        return commande;
    }
    return {};
}

/// Starts a program that lives on when this one ends. `refus` is called when it cannot be started,
/// or gives up at once.
void Lancer(const QStringList& commande, QWidget& parent, const std::function<void()>& refus) {
    // Nobody's child: destroyed with a parent it would end the program that it runs.
    auto* processus = new QProcess;
    processus->setProgram(commande.constFirst());
    processus->setArguments(commande.mid(1));
    processus->setStandardInputFile(QProcess::nullDevice());
    processus->setStandardOutputFile(QProcess::nullDevice());
    processus->setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer depuis;
    depuis.start();
    QObject::connect(processus, &QProcess::finished, processus, &QObject::deleteLater);
    QObject::connect(processus, &QProcess::finished, &parent,
                     [refus, depuis](int statut, QProcess::ExitStatus fin) {
                         const bool bon = statut == 0 && fin == QProcess::NormalExit;
                         if (!bon && depuis.elapsed() < DelaiRefus) refus();
                     });
    QObject::connect(processus, &QProcess::errorOccurred, &parent,
                     [refus, processus](QProcess::ProcessError erreur) {
                         if (erreur != QProcess::FailedToStart) return;
                         processus->deleteLater();
                         refus();
                     });
    processus->start();
}

}  // namespace

void OuvrirTexte(shell::Session& session, const std::filesystem::path& fichier,
                 const QString& titre, QWidget& parent) {
    const auto montrer = [&session, fichier, titre, &parent] {
        const std::optional<std::string> texte = shell::LireTout(fichier);
        if (!texte) return;
        // A tool of old may have written it in the code page.
        QStringDecoder utf8{QStringDecoder::Utf8, QStringDecoder::Flag::Stateless};
        QString lu = utf8.decode(QByteArray::fromStdString(*texte));
        if (utf8.hasError()) lu = TexteVersQt(*texte);
        auto* rapport = new FrmRapport{session, titre, lu, &parent};
        rapport->show();
    };
    const auto parLeBureau = [montrer, fichier, &parent] {
        const QString ouvreur = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
        if (ouvreur.isEmpty()) return montrer();
        Lancer({ouvreur, CheminVersQt(fichier)}, parent, montrer);
    };
    const QStringList editeur = EditeurChoisi();
    if (editeur.isEmpty()) return parLeBureau();
    Lancer(editeur + QStringList{CheminVersQt(fichier)}, parent, parLeBureau);
}

}  // namespace dorvane::windows

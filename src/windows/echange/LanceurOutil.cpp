#include "windows/echange/LanceurOutil.h"

#include <QProcess>

#include "messages/Releve.h"
#include "shell/Progression.h"
#include "shell/Session.h"

namespace dorvane::windows {

namespace {

constexpr int PasMs = 50;           ///< how often the frame is served; a cancel answers within it
constexpr int DelaiArretMs = 2000;  ///< what an ended program gets to close its files

}  // namespace

bool LancerEtAttendre(shell::Session& session, const interchange::AppelOutil& appel) {
    QProcess outil;
    outil.setProgram(QString::fromStdString(appel.programme));
    QStringList arguments;
    for (const std::string& argument : appel.arguments)
        arguments << QString::fromStdString(argument);
    outil.setArguments(arguments);
    outil.setWorkingDirectory(QString::fromStdString(appel.dossier.string()));
    outil.setStandardInputFile(QProcess::nullDevice());
    outil.setStandardOutputFile(QProcess::nullDevice());
    outil.setStandardErrorFile(QProcess::nullDevice());
    outil.start();
    if (!outil.waitForStarted()) return false;

    const shell::CadreProgression cadre{session.progression,
                                        shell::Msg(message::TitreRemiseGeneanet),
                                        shell::Msg(message::OutilDeConversionEnCours)};
    while (!outil.waitForFinished(PasMs) && outil.state() != QProcess::NotRunning) {
        if (session.progression.Avancer(0, 0)) continue;
        outil.terminate();
        if (!outil.waitForFinished(DelaiArretMs)) outil.kill();
        outil.waitForFinished(DelaiArretMs);
        return true;
    }
    return outil.exitStatus() == QProcess::NormalExit;
}

}  // namespace dorvane::windows

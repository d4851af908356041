#include "windows/controles/GlisserPersonne.h"

#include <QCoreApplication>
#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "records/Famille.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

const QString Type = QStringLiteral("application/x-dorvane-personne");

/// Numbers mean nothing in another base, nor in another copy of the program.
QByteArray Provenance(const shell::Session& session) {
    return QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
           QByteArray::fromStdString(session.CheminBase.string());
}

}  // namespace

QMimeData* PersonneVersMime(shell::Session& session, NoOrdre individu) {
    auto* donnees = new QMimeData;
    donnees->setData(Type, QByteArray::number(individu.valeur) + ' ' + Provenance(session));
    donnees->setText(TexteVersQt(records::NomEtDates(session, individu)));
    return donnees;
}

NoOrdre PersonneDeMime(const shell::Session& session, const QMimeData* donnees) {
    if (donnees == nullptr || !session.base || !donnees->hasFormat(Type)) return {};
    const QByteArray octets = donnees->data(Type);
    const qsizetype blanc = octets.indexOf(' ');
    if (blanc < 0 || octets.mid(blanc + 1) != Provenance(session)) return {};
    const NoOrdre individu{octets.left(blanc).toUInt()};
    return records::Existe(*session.base, individu) ? individu : NoOrdre{};
}

std::vector<std::filesystem::path> FichiersDeMime(const QMimeData* donnees) {
    std::vector<std::filesystem::path> fichiers;
    if (donnees == nullptr) return fichiers;
    for (const QUrl& url : donnees->urls())
        if (url.isLocalFile()) fichiers.push_back(QtVersChemin(url.toLocalFile()));
    return fichiers;
}

void GlisserPersonne(QWidget& source, shell::Session& session, NoOrdre individu) {
    if (!individu) return;
    auto* glisse = new QDrag{&source};
    glisse->setMimeData(PersonneVersMime(session, individu));
    const Sexe sexe = session.base->R_SEXE.LireCellule(individu);
    glisse->setPixmap(IconeSexe(sexe).pixmap(24, 24));
    glisse->exec(Qt::CopyAction);
}

}  // namespace dorvane::windows

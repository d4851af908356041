#include "windows/controles/EnTeteListe.h"

#include <QHeaderView>
#include <QMenu>
#include <QTableView>

#include "shell/Session.h"

namespace dorvane::windows {

namespace {

constexpr const char* Section = "Colonnes";

void MontrerMenu(QTableView& liste, const QPoint& point) {
    QHeaderView& entete = *liste.horizontalHeader();
    QMenu menu{&liste};
    const int montrees = entete.count() - entete.hiddenSectionCount();
    for (int colonne = 0; colonne < entete.count(); ++colonne) {
        QString titre =
            liste.model()->headerData(colonne, Qt::Horizontal, Qt::DisplayRole).toString();
        titre.replace(u'&', QStringLiteral("&&"));
        QAction* action = menu.addAction(titre);
        action->setCheckable(true);
        action->setChecked(!entete.isSectionHidden(colonne));
        action->setEnabled(montrees > 1 || entete.isSectionHidden(colonne));
        QObject::connect(action, &QAction::toggled, &liste, [&entete, colonne](bool montree) {
            entete.setSectionHidden(colonne, !montree);
        });
    }
    menu.exec(entete.mapToGlobal(point));
}

}  // namespace

void PreparerEntete(QTableView& liste, shell::Session& session, const QString& nom) {
    QHeaderView& entete = *liste.horizontalHeader();
    entete.setSectionsMovable(true);
    entete.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&entete, &QWidget::customContextMenuRequested, &liste,
                     [&liste](const QPoint& point) { MontrerMenu(liste, point); });
    const std::string texte = session.parametres.Valeur(Section, nom.toStdString());
    if (!texte.empty())
        entete.restoreState(QByteArray::fromBase64(QByteArray::fromStdString(texte)));
    // The order of the rows is that of the base again.
    entete.setSortIndicator(-1, Qt::AscendingOrder);
}

void MemoriserEntete(const QTableView& liste, shell::Session& session, const QString& nom) {
    // A refusal is told when the settings are saved at the end; a width is not worth a message.
    static_cast<void>(session.parametres.SauverValeur(
        Section, nom.toStdString(),
        liste.horizontalHeader()->saveState().toBase64().toStdString()));
}

}  // namespace dorvane::windows

#include "windows/controles/Legendes.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QWidget>

#include "shell/Session.h"
#include "windows/controles/TablesLegendes.h"
#include "windows/controles/Unicode.h"

#include <cstring>
#include <string>

namespace dorvane::windows {

namespace {

using enum Propriete;

void Poser(QObject& controle, const Legende& legende, const QString& texte) {
    auto* widget = qobject_cast<QWidget*>(&controle);
    switch (legende.propriete) {
        case Texte:
            PoserTexte(controle, texte);
            return;
        case Bulle:
            if (widget != nullptr) widget->setToolTip(texte);
            return;
        case Acces:
            if (widget != nullptr) widget->setAccessibleName(SansMnemonique(texte));
            return;
        case Invite:
            if (auto* champ = qobject_cast<QLineEdit*>(&controle)) champ->setPlaceholderText(texte);
            return;
        case Ligne:
            if (auto* liste = qobject_cast<QComboBox*>(&controle)) {
                if (legende.indice < liste->count())
                    liste->setItemText(legende.indice, texte);
                else
                    liste->addItem(texte);
            }
            return;
        case Colonne:
            return;
    }
}

}  // namespace

const std::vector<Legende>& TableLegendes() {
    static const std::vector<Legende> Toutes = [] {
        std::vector<Legende> toutes;
        for (const auto groupe :
             {LegendesPrincipales(), LegendesSoin(), LegendesMots(), LegendesReglages(),
              LegendesFamille(), LegendesFiche(), LegendesFaits(), LegendesReleve(),
              LegendesEchange(), LegendesCommunes()})
            toutes.insert(toutes.end(), groupe.begin(), groupe.end());
        return toutes;
    }();
    return Toutes;
}

void TraduireFenetre(QWidget& fenetre, const shell::Session& session) {
    const QByteArray nom = fenetre.objectName().toUtf8();
    for (const Legende& legende : TableLegendes()) {
        if (nom != legende.fenetre) continue;
        QObject* controle = legende.controle[0] == '\0'
                                ? &fenetre
                                : fenetre.findChild<QObject*>(QString::fromUtf8(legende.controle));
        if (controle != nullptr) Poser(*controle, legende, TexteEcran(session, legende.message));
    }
}

void PoserTexte(QObject& controle, const QString& texte) {
    if (auto* action = qobject_cast<QAction*>(&controle)) {
        action->setText(texte);
        // No tip without its shortcut.
        const QString touches = action->shortcut().toString(QKeySequence::NativeText);
        const QString seul = SansMnemonique(texte);
        action->setToolTip(touches.isEmpty() ? seul : seul + QStringLiteral(" (") + touches + u')');
    } else if (auto* menu = qobject_cast<QMenu*>(&controle)) {
        menu->setTitle(texte);
    } else if (auto* bouton = qobject_cast<QAbstractButton*>(&controle)) {
        bouton->setText(texte);
    } else if (auto* etiquette = qobject_cast<QLabel*>(&controle)) {
        etiquette->setText(texte);
    } else if (auto* groupe = qobject_cast<QGroupBox*>(&controle)) {
        groupe->setTitle(texte);
    } else if (auto* fenetre = qobject_cast<QWidget*>(&controle)) {
        fenetre->setWindowTitle(texte);
    }
}

QString TitreColonne(const shell::Session& session, const char* fenetre, const char* controle,
                     int colonne) {
    for (const Legende& legende : TableLegendes())
        if (legende.propriete == Colonne && legende.indice == colonne &&
            std::strcmp(legende.fenetre, fenetre) == 0 &&
            std::strcmp(legende.controle, controle) == 0)
            return TexteEcran(session, legende.message);
    return {};
}

QString TexteEcran(const std::string& texte) {
    QString rendu = TexteVersQt(texte);
    static const QRegularExpression Devant{QStringLiteral(" (?=[:;?!»])")};
    rendu.replace(Devant, QStringLiteral("\u00A0"));
    rendu.replace(QStringLiteral("« "), QStringLiteral("«\u00A0"));
    return rendu;
}

QString TexteEcran(const shell::Session& session, NoMessage message) {
    return TexteEcran(session.Message(message));
}

QString SansMnemonique(QString legende) {
    static const QRegularExpression Marque{QStringLiteral("&(.)")};
    legende.replace(Marque, QStringLiteral("\\1"));
    while (legende.endsWith(u'.') || legende.endsWith(u':') || legende.endsWith(QChar{0x00A0}))
        legende.chop(1);
    return legende;
}

}  // namespace dorvane::windows

#include "windows/controles/FenetreFille.h"

#include <QAction>
#include <QKeyEvent>
#include <QShowEvent>

#include "shell/Session.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"

namespace dorvane::windows {

namespace {

constexpr const char* Section = "Fenêtres";

bool EstTouche(const QEvent& evenement, Qt::Key touche) {
    const auto& appui = static_cast<const QKeyEvent&>(evenement);
    return appui.key() == touche && appui.modifiers() == Qt::ControlModifier;
}

/// Triggers a command of the main window once the key has been dealt with.
void Declencher(const QWidget& fenetre, const char* nom) {
    for (const QWidget* w = fenetre.parentWidget(); w != nullptr; w = w->parentWidget())
        if (auto* commande =
                w->findChild<QAction*>(QString::fromLatin1(nom), Qt::FindDirectChildrenOnly)) {
            QMetaObject::invokeMethod(commande, &QAction::trigger, Qt::QueuedConnection);
            return;
        }
}

}  // namespace

bool RestaurerPlace(QWidget& fenetre, const shell::Session& session) {
    const std::string texte =
        session.parametres.Valeur(Section, fenetre.objectName().toStdString());
    return !texte.empty() &&
           fenetre.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(texte)));
}

void MemoriserPlace(const QWidget& fenetre, shell::Session& session) {
    // A refusal is told when the settings are saved at the end; a place is not worth a message.
    static_cast<void>(
        session.parametres.SauverValeur(Section, fenetre.objectName().toStdString(),
                                        fenetre.saveGeometry().toBase64().toStdString()));
}

FenetreFille::FenetreFille(shell::Session& session, const QString& nom, QWidget* parent)
    : QDialog{parent}, session_{session} {
    setObjectName(nom);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

void FenetreFille::Traduire() {
    TraduireFenetre(*this, session_);
}

void FenetreFille::showEvent(QShowEvent* evenement) {
    if (!placee_) {
        placee_ = true;
        RestaurerPlace(*this, session_);
    }
    QDialog::showEvent(evenement);
}

bool FenetreFille::QuitterSaisie(const shell::Phrase& question,
                                 const std::function<bool()>& enregistrer,
                                 const std::function<void()>& abandonner) {
    switch (
        session_.dialogue.Demander({.texte = question, .boutons = shell::Boutons::OuiNonAnnuler})) {
        case shell::Reponse::Oui:
            return enregistrer();
        case shell::Reponse::Non:
            abandonner();
            return true;
        case shell::Reponse::Annuler:
            break;
    }
    return false;
}

void FenetreFille::Renoncer(const shell::Phrase& question,
                            const std::function<void()>& enregistrer) {
    static_cast<void>(QuitterSaisie(
        question,
        [&enregistrer] {
            enregistrer();
            return true;
        },
        [this] { QDialog::reject(); }));
}

void FenetreFille::ChangerLangue(const MotsDeLangue& avant) {
    TraduireSaisies(*this, avant, session_);
    Traduire();
    if (isVisible()) Recharger();
}

/// The keys of the main window that hold in all windows come here before they are looked for in
/// its menus, which a modal window closes off.
bool FenetreFille::event(QEvent* evenement) {
    if (evenement->type() == QEvent::ShortcutOverride &&
        (EstTouche(*evenement, Qt::Key_S) || EstTouche(*evenement, Qt::Key_Q))) {
        evenement->accept();
        return true;
    }
    return QDialog::event(evenement);
}

void FenetreFille::keyPressEvent(QKeyEvent* evenement) {
    if (EstTouche(*evenement, Qt::Key_S)) {
        if (EnregistrerSaisie()) Declencher(*this, "MnuEnregistrer");
        return;
    }
    if (EstTouche(*evenement, Qt::Key_Q)) return QuitterProgramme();
    QDialog::keyPressEvent(evenement);
}

/// Modal windows go first, from the front to the back, each with its own question.
void FenetreFille::QuitterProgramme() {
    if (!isModal()) return Declencher(*this, "MnuQuitter");
    reject();
    if (isVisible()) return;
    if (auto* dessous = qobject_cast<FenetreFille*>(parentWidget()))
        QMetaObject::invokeMethod(
            dessous, [dessous] { dessous->QuitterProgramme(); }, Qt::QueuedConnection);
    else
        Declencher(*this, "MnuQuitter");
}

void FenetreFille::done(int resultat) {
    MemoriserPlace(*this, session_);
    QDialog::done(resultat);
}

}  // namespace dorvane::windows

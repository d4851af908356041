#include "windows/controles/FenetreFille.h"

#include <QShowEvent>

#include "shell/Session.h"
#include "windows/controles/Legendes.h"

namespace dorvane::windows {

namespace {

constexpr const char* Section = "Fenêtres";

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

void FenetreFille::Renoncer(NoMessage question, const std::function<void()>& enregistrer) {
    switch (session_.dialogue.Demander(
        {.texte = shell::Msg(question), .boutons = shell::Boutons::OuiNonAnnuler})) {
        case shell::Reponse::Oui:
            return enregistrer();
        case shell::Reponse::Non:
            return QDialog::reject();
        case shell::Reponse::Annuler:
            return;
    }
}

void FenetreFille::done(int resultat) {
    MemoriserPlace(*this, session_);
    QDialog::done(resultat);
}

}  // namespace dorvane::windows

#include "windows/controles/ChampSuivi.h"

#include <QPalette>
#include <QVariant>

#include "messages/Fiche.h"
#include "shell/Session.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

constexpr const char* Stocke = "stocke";

QColor Teinte(const QPalette& palette) {
    constexpr int Part = 28;  // per cent of the selection colour
    const QColor fond = palette.color(QPalette::Active, QPalette::Base);
    const QColor vive = palette.color(QPalette::Active, QPalette::Highlight);
    const auto meler = [](int a, int b) { return (a * (100 - Part) + b * Part) / 100; };
    return {meler(fond.red(), vive.red()), meler(fond.green(), vive.green()),
            meler(fond.blue(), vive.blue())};
}

}  // namespace

bool EstMarque(const QWidget& widget) {
    return !widget.accessibleDescription().isEmpty();
}

void MarquerModifie(QWidget& widget, bool modifie, const shell::Session& session) {
    if (modifie == EstMarque(widget)) return;
    // The palette of the desktop again, and not one of a moment ago.
    QPalette palette;
    if (modifie) {
        palette.setColor(QPalette::Base, Teinte(palette));
        palette.setColor(QPalette::Button, Teinte(palette));
    }
    widget.setPalette(palette);
    const QString texte =
        modifie ? TexteEcran(session, message::BulleChampNonEnregistre) : QString{};
    widget.setAccessibleDescription(texte);
    widget.setToolTip(texte);
}

void PoserChamp(QLineEdit& champ, std::string_view texte) {
    const QString rendu = TexteVersQt(texte);
    champ.setProperty(Stocke, rendu);
    // The undo list of the field goes with the text that it belonged to.
    champ.setText(rendu);
    champ.setCursorPosition(0);
}

void RelireChamp(QLineEdit& champ, std::string_view texte, bool garder) {
    if (garder && champ.text() != champ.property(Stocke).toString())
        champ.setProperty(Stocke, TexteVersQt(texte));
    else
        PoserChamp(champ, texte);
}

void ReecrireChamp(QLineEdit& champ, const std::function<QString(const QString&)>& reecrire) {
    const QVariant stocke = champ.property(Stocke);
    if (stocke.isValid()) champ.setProperty(Stocke, reecrire(stocke.toString()));
    const QString texte = reecrire(champ.text());
    if (texte == champ.text()) return;
    const int curseur = champ.cursorPosition();
    champ.setText(texte);
    champ.setCursorPosition(curseur);
}

void MarquerChamp(QLineEdit& champ, const shell::Session& session) {
    MarquerModifie(champ, champ.text() != champ.property(Stocke).toString(), session);
}

std::string LireChamp(const QString& texte, std::size_t& remplaces) {
    TexteRecu recu = QtVersTexte(texte);
    remplaces += recu.remplaces;
    return recu.octets;
}

void Avertir(QWidget& etiquette) {
    const bool sombre = etiquette.palette().color(QPalette::Window).lightness() < 128;
    QPalette palette = etiquette.palette();
    palette.setColor(QPalette::WindowText,
                     sombre ? QColor{0xFF, 0xB4, 0x70} : QColor{0x8A, 0x4B, 0x00});
    etiquette.setPalette(palette);
}

}  // namespace dorvane::windows

#include "windows/controles/SuiviLieu.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QVariant>

namespace dorvane::windows {

namespace {

constexpr const char* Marque = "lieu";

}  // namespace

void MarquerLieu(QLineEdit& champ) {
    champ.setProperty(Marque, true);
}

SuiviLieu::SuiviLieu(QObject* parent) : QObject{parent} {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*avant*/, QWidget* ici) {
        auto* champ = qobject_cast<QLineEdit*>(ici);
        if (champ == nullptr || !champ->property(Marque).toBool() || champ == champ_) return;
        champ_ = champ;
        Q_EMIT change();
    });
}

QLineEdit* SuiviLieu::Champ() const {
    return champ_ != nullptr && champ_->isVisible() && champ_->isEnabled() && !champ_->isReadOnly()
               ? champ_
               : nullptr;
}

bool SuiviLieu::Poser(const QString& lieu) const {
    QLineEdit* champ = Champ();
    if (champ == nullptr) return false;
    champ->window()->raise();
    champ->window()->activateWindow();
    champ->setFocus();
    champ->selectAll();
    champ->insert(lieu);
    // It is a whole place: nothing needs to be proposed.
    if (QCompleter* mots = champ->completer(); mots != nullptr) mots->popup()->hide();
    return true;
}

}  // namespace dorvane::windows

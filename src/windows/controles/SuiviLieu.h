#pragma once

#include <QObject>
#include <QPointer>

class QLineEdit;

namespace dorvane::windows {

/// Marks a field as one that takes a place.
void MarquerLieu(QLineEdit& champ);

/// Knows the field of a place in which the user was last, so that another window can fill it. One
/// lives under the main window.
class SuiviLieu final : public QObject {
    Q_OBJECT

public:
    explicit SuiviLieu(QObject* parent);

    /// The field; null when it has gone, or cannot be seen or changed now.
    [[nodiscard]] QLineEdit* Champ() const;
    /// Replaces what the field says, as if it had been typed, and goes to it. False when there is
    /// no field.
    bool Poser(const QString& lieu) const;

Q_SIGNALS:
    /// The user is in a field of a place.
    void change();

private:
    QPointer<QLineEdit> champ_;
};

}  // namespace dorvane::windows

#pragma once

#include <QToolButton>

#include "values/Numeros.h"

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// A relative on the sheet: name and dates on a button that leads there. Can be dragged; takes a
/// person who is dropped on it.
class BoutonPersonne final : public QToolButton {
    Q_OBJECT

public:
    explicit BoutonPersonne(QWidget* parent);

    /// `session` outlives the button.
    void Attacher(shell::Session& session) { session_ = &session; }
    /// `inconnu`: what it says for person 0.
    void Poser(NoOrdre individu, const QString& inconnu);
    [[nodiscard]] NoOrdre Individu() const { return individu_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void deposee(quint32 individu);

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    shell::Session* session_ = nullptr;
    NoOrdre individu_{};
    QString texte_;
    QPoint prise_;
};

}  // namespace dorvane::windows

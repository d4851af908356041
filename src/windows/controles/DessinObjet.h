#pragma once

#include <QObject>
#include <QTextFormat>
#include <QTextObjectInterface>

namespace dorvane::windows {

/// Draws in an editor what a note holds and the editor keeps as it is: its text, or dots, in a
/// frame.
class DessinObjet final : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// The property of the format that holds the text shown.
    static constexpr int Texte = QTextFormat::UserProperty + 3;

    explicit DessinObjet(QObject* parent) : QObject{parent} {}

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* peintre, const QRectF& cadre, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};

}  // namespace dorvane::windows

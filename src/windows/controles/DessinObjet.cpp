#include "windows/controles/DessinObjet.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>

namespace dorvane::windows {

namespace {

constexpr int Marge = 4;  ///< pixels on either side of the text
constexpr int Arrondi = 3;

QString TexteDe(const QTextFormat& format) {
    const QString texte = format.stringProperty(DessinObjet::Texte).simplified();
    return texte.isEmpty() ? QStringLiteral("…") : texte;
}

}  // namespace

QSizeF DessinObjet::intrinsicSize(QTextDocument* document, int /*position*/,
                                  const QTextFormat& format) {
    const QFontMetricsF mesure{document->defaultFont()};
    return {mesure.horizontalAdvance(TexteDe(format)) + 2 * Marge, mesure.height()};
}

void DessinObjet::drawObject(QPainter* peintre, const QRectF& cadre, QTextDocument* document,
                             int /*position*/, const QTextFormat& format) {
    peintre->save();
    peintre->setFont(document->defaultFont());
    QPen trait = peintre->pen();
    trait.setStyle(Qt::DotLine);
    peintre->setPen(trait);
    peintre->drawRoundedRect(cadre.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
    trait.setStyle(Qt::SolidLine);
    peintre->setPen(trait);
    peintre->drawText(cadre, Qt::AlignCenter, TexteDe(format));
    peintre->restore();
}

}  // namespace dorvane::windows

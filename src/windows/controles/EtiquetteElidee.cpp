#include "windows/controles/EtiquetteElidee.h"

#include <QPainter>

namespace dorvane::windows {

void EtiquetteElidee::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre{this};
    peintre.setPen(palette().color(foregroundRole()));
    peintre.drawText(contentsRect(), Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
}

}  // namespace dorvane::windows

#pragma once

#include <QPointF>
#include <QRectF>

#include "records/DessinFamille.h"

namespace dorvane::windows {

/// The places of a drawing as the scene takes them: in the same measures, y growing downward.
[[nodiscard]] inline QPointF EnQt(const records::Point& point) {
    return {point.x, point.y};
}
[[nodiscard]] inline QRectF EnQt(const records::Rectangle& r) {
    return {r.gauche, r.haut, r.largeur, r.hauteur};
}

}  // namespace dorvane::windows

#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include "records/DessinFamille.h"

#include <array>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

using records::MesuresDe;
using records::MesuresGraphe;

/// A line between two boxes: from a side, along the middle between generations, to a side.
using Trait = std::array<QPointF, 4>;

/// The year of a union, in the middle of `centre`.
struct EtiquetteUnion {
    QPointF centre;
    QString annee;
};

/// The drawing in the points of Qt. Descendants are on the left, ascendants on the right of the
/// current person, whose box has its middle at the origin.
struct DessinQt {
    std::vector<QRectF> boites;  ///< one for each box of the model
    std::vector<Trait> traits;
    std::vector<EtiquetteUnion> unions;
    QRectF cadre;  ///< around all boxes
};

[[nodiscard]] DessinQt DessinerEnQt(storage::Base& base, const records::ModeleFamille& modele,
                                    const MesuresGraphe& mesures);

}  // namespace dorvane::windows

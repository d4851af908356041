#include "windows/graphe/DessinQt.h"

#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

QPointF EnQt(const records::Point& point) {
    return {point.x, point.y};
}

QRectF EnQt(const records::Rectangle& r) {
    return {r.gauche, r.haut, r.largeur, r.hauteur};
}

}  // namespace

DessinQt DessinerEnQt(storage::Base& base, const records::ModeleFamille& modele,
                      const MesuresGraphe& mesures) {
    const records::DessinFamille lu = records::DessinerFamille(base, modele, mesures);
    DessinQt dessin;
    for (const records::Rectangle& boite : lu.boites)
        dessin.boites.push_back(EnQt(boite));
    for (const auto& [de, a, b, vers] : lu.traits)
        dessin.traits.push_back({EnQt(de), EnQt(a), EnQt(b), EnQt(vers)});
    for (const records::EtiquetteUnion& etiquette : lu.unions)
        dessin.unions.push_back({EnQt(etiquette.centre), TexteVersQt(etiquette.annee)});
    dessin.cadre = EnQt(lu.cadre);
    return dessin;
}

}  // namespace dorvane::windows

#include "windows/graphe/CaseGraphique.h"

#include <QCursor>
#include <QFontMetricsF>
#include <QPainter>

#include "windows/controles/Unicode.h"
#include "windows/graphe/EnQt.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace dorvane::windows {

namespace {

constexpr double Rayon = 7;
constexpr double Marge = 8;         ///< inside a box
constexpr double MargeSuite = 14;   ///< outside a box, for the mark of more family
constexpr double PlusPetit = 0.72;  ///< a proportional name is never written smaller than this

/// A colour between two: 0 is `a`, 1 is `b`.
QColor Meler(const QColor& a, const QColor& b, double part) {
    const auto canal = [part](float x, float y) { return x + (y - x) * static_cast<float>(part); };
    return QColor::fromRgbF(canal(a.redF(), b.redF()), canal(a.greenF(), b.greenF()),
                            canal(a.blueF(), b.blueF()));
}

/// A line with its corners rounded as far as there is room.
void AjouterTrait(QPainterPath& chemin, const records::Trait& trait) {
    constexpr double Arrondi = 9;
    chemin.moveTo(EnQt(trait[0]));
    const double vertical = trait[2].y - trait[1].y;
    const double r = std::min({Arrondi, std::abs(vertical) / 2, std::abs(trait[1].x - trait[0].x),
                               std::abs(trait[3].x - trait[2].x)});
    if (r < 1) {
        for (std::size_t i = 1; i < trait.size(); ++i)
            chemin.lineTo(EnQt(trait[i]));
        return;
    }
    const double sens = vertical > 0 ? r : -r;
    const double avant = trait[1].x > trait[0].x ? r : -r;
    const double apres = trait[3].x > trait[2].x ? r : -r;
    chemin.lineTo(trait[1].x - avant, trait[1].y);
    chemin.quadTo(EnQt(trait[1]), QPointF{trait[1].x, trait[1].y + sens});
    chemin.lineTo(trait[2].x, trait[2].y - sens);
    chemin.quadTo(EnQt(trait[2]), QPointF{trait[2].x + apres, trait[2].y});
    chemin.lineTo(EnQt(trait[3]));
}

}  // namespace

CaseGraphique::CaseGraphique(std::size_t indice, const records::CaseFamille& modele,
                             const QRectF& boite, ContenuCase contenu, const StyleGraphe& style)
    : indice_{indice},
      modele_{modele},
      boite_{boite},
      contenu_{std::move(contenu)},
      style_{style},
      policeNom_{style.nom} {
    setToolTip(contenu_.bulle);
    if (modele_.individu) {
        setCursor(Qt::PointingHandCursor);
        PreparerTextes();
    }
}

void CaseGraphique::PreparerTextes() {
    const records::MesuresGraphe& m = style_.mesures;
    const double cote = m.tailleNom + 2.0;
    QRectF reste = boite_.adjusted(Marge, 0, -Marge, 0);
    if (!contenu_.vignette.isNull()) reste.setLeft(reste.left() + m.hauteur - 2 * Marge + Marge);
    signe_ = {reste.left(), 0, cote, cote};
    reste.setLeft(signe_.right() + 4);

    const QFontMetricsF dates{style_.dates};
    if (!contenu_.numeros.isEmpty() || modele_.repetee) {
        const QString texte =
            contenu_.numeros + (modele_.repetee ? QStringLiteral(" =") : QString{});
        contenu_.numeros = texte.trimmed();
        const double largeur = dates.horizontalAdvance(contenu_.numeros) + 6;
        cadreNumeros_ = {boite_.right() - largeur - 4, boite_.top() + 2, largeur,
                         m.uneLigne ? boite_.height() - 4 : dates.height()};
    }
    QFontMetricsF nom{policeNom_};
    const double ligneDates = contenu_.dates.isEmpty() ? 0 : dates.height();
    const double bloc = m.uneLigne ? nom.height() : nom.height() + ligneDates;
    const double haut = boite_.center().y() - bloc / 2;
    cadreNom_ = {reste.left(), haut, reste.width(), nom.height()};
    if (m.uneLigne) {
        if (!cadreNumeros_.isNull()) reste.setRight(cadreNumeros_.left() - 4);
        const double largeurDates = dates.horizontalAdvance(contenu_.dates);
        cadreDates_ = {reste.right() - largeurDates, boite_.top(), largeurDates, boite_.height()};
        cadreNom_.setRight(cadreDates_.left() - 6);
    } else {
        cadreDates_ = {reste.left(), cadreNom_.bottom(), reste.width(), ligneDates};
        // The numbers stand in the corner: beside the dates when the box is low.
        if (!cadreNumeros_.isNull()) {
            cadreNumeros_.moveTop(cadreDates_.top());
            if (ligneDates == 0) cadreNom_.setRight(cadreNumeros_.left() - 4);
            if (ligneDates == 0) cadreNumeros_.moveTop(cadreNom_.top());
        }
    }
    signe_.moveTop(cadreNom_.center().y() - cote / 2);

    const double largeur = nom.horizontalAdvance(contenu_.nom);
    if (style_.proportionnel && largeur > cadreNom_.width()) {
        const double part = std::max(PlusPetit, cadreNom_.width() / largeur);
        policeNom_.setPixelSize(std::max(1, static_cast<int>(m.tailleNom * part)));
        nom = QFontMetricsF{policeNom_};
    }
    contenu_.nom = nom.elidedText(contenu_.nom, Qt::ElideRight, cadreNom_.width() + 0.5);
}

QRectF CaseGraphique::boundingRect() const {
    return boite_.adjusted(-MargeSuite, -4, MargeSuite, 4);
}

void CaseGraphique::paint(QPainter* peintre, const QStyleOptionGraphicsItem* /*option*/,
                          QWidget* /*widget*/) {
    peintre->setRenderHint(QPainter::Antialiasing);
    if (!modele_.individu) {
        PeindreInconnu(*peintre);
        return;
    }
    PeindreFond(*peintre);
    PeindreTextes(*peintre);
    if (modele_.suite) PeindreSuite(*peintre);
}

void CaseGraphique::PeindreFond(QPainter& peintre) const {
    const CouleursSexe& couleurs = style_.palette.DeSexe(contenu_.sexe);
    peintre.setBrush(couleurs.fond);
    QPen plume{couleurs.cadre, 1.2};
    if (modele_.repetee) plume.setStyle(Qt::DashLine);
    peintre.setPen(plume);
    peintre.drawRoundedRect(boite_.adjusted(0.6, 0.6, -0.6, -0.6), Rayon, Rayon);
    if (EnCours()) {
        peintre.setBrush(Qt::NoBrush);
        peintre.setPen(QPen{style_.palette.accent, 3});
        peintre.drawRoundedRect(boite_.adjusted(-1.5, -1.5, 1.5, 1.5), Rayon + 2, Rayon + 2);
    }
}

void CaseGraphique::PeindreInconnu(QPainter& peintre) const {
    QPen plume{style_.palette.inconnu, 1.2, Qt::DotLine};
    peintre.setPen(plume);
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(boite_.adjusted(0.6, 0.6, -0.6, -0.6), Rayon, Rayon);
    peintre.setFont(style_.nom);
    peintre.setPen(style_.palette.inconnu);
    peintre.drawText(boite_, Qt::AlignCenter, QStringLiteral("?"));
}

void CaseGraphique::PeindreTextes(QPainter& peintre) const {
    const CouleursSexe& couleurs = style_.palette.DeSexe(contenu_.sexe);
    // Colours of the settings may be near one another: they are taken as they are.
    const QColor doux =
        style_.palette.policesReglees ? couleurs.texte : Meler(couleurs.texte, couleurs.fond, 0.22);
    if (!contenu_.vignette.isNull()) {
        const double cote = style_.mesures.hauteur - 2 * Marge;
        const QRectF place{boite_.left() + Marge, boite_.top() + Marge, cote, cote};
        const QSizeF taille =
            QSizeF{contenu_.vignette.size()}.scaled(place.size(), Qt::KeepAspectRatio);
        QRectF image{QPointF{}, taille};
        image.moveCenter(place.center());
        peintre.setRenderHint(QPainter::SmoothPixmapTransform);
        peintre.drawPixmap(image, contenu_.vignette, QRectF{contenu_.vignette.rect()});
    }
    PeindreSigne(peintre, doux);
    peintre.setPen(couleurs.texte);
    peintre.setFont(policeNom_);
    peintre.drawText(cadreNom_, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     contenu_.nom);
    peintre.setPen(doux);
    peintre.setFont(style_.dates);
    peintre.drawText(cadreDates_, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     contenu_.dates);
    if (!contenu_.numeros.isEmpty())
        peintre.drawText(cadreNumeros_, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                         contenu_.numeros);
}

/// The sign of the sex: a circle, with an arrow for a man, a cross below for a woman.
void CaseGraphique::PeindreSigne(QPainter& peintre, const QColor& couleur) const {
    const double u = signe_.width() / 16;
    const auto point = [&](double x, double y) {
        return QPointF{signe_.left() + x * u, signe_.top() + y * u};
    };
    peintre.setPen(QPen{couleur, 1.5 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    peintre.setBrush(Qt::NoBrush);
    if (contenu_.sexe == Sexe::Homme) {
        peintre.drawEllipse(point(6, 10), 4 * u, 4 * u);
        peintre.drawLine(point(9, 7), point(14, 2));
        peintre.drawLine(point(10, 2), point(14, 2));
        peintre.drawLine(point(14, 2), point(14, 6));
    } else if (contenu_.sexe == Sexe::Femme) {
        peintre.drawEllipse(point(8, 5.5), 4 * u, 4 * u);
        peintre.drawLine(point(8, 9.5), point(8, 15));
        peintre.drawLine(point(5, 12.5), point(11, 12.5));
    } else {
        peintre.drawEllipse(point(8, 8), 4 * u, 4 * u);
    }
}

/// Three dots outside the box, on the side where the family goes on.
void CaseGraphique::PeindreSuite(QPainter& peintre) const {
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(style_.palette.trait);
    const bool droite = modele_.generation > 0 || (EnCours() && modele_.suite);
    for (int i = 0; i < 3; ++i) {
        const double ecart = 3.5 + 4.0 * i;
        const double x = droite ? boite_.right() + ecart : boite_.left() - ecart;
        peintre.drawEllipse(QPointF{x, boite_.center().y()}, 1.3, 1.3);
    }
}

FondGraphique::FondGraphique(const records::DessinFamille& dessin, const StyleGraphe& style)
    : cadre_{EnQt(dessin.cadre).adjusted(-80, -40, 80, 40)}, style_{style} {
    for (const records::Trait& trait : dessin.traits)
        AjouterTrait(chemin_, trait);
    for (const records::EtiquetteUnion& etiquette : dessin.unions)
        unions_.push_back({EnQt(etiquette.centre), TexteVersQt(etiquette.annee)});
}

void FondGraphique::paint(QPainter* peintre, const QStyleOptionGraphicsItem* /*option*/,
                          QWidget* /*widget*/) {
    peintre->setRenderHint(QPainter::Antialiasing);
    peintre->setPen(QPen{style_.palette.trait, 1.5});
    peintre->setBrush(Qt::NoBrush);
    peintre->drawPath(chemin_);
    for (const EtiquetteUnion& etiquette : unions_)
        PeindreUnion(*peintre, etiquette);
}

/// Two rings and the year.
void FondGraphique::PeindreUnion(QPainter& peintre, const EtiquetteUnion& etiquette) const {
    const QFontMetricsF mesure{style_.dates};
    const double r = style_.mesures.tailleDates * 0.3;
    const double anneaux = 3.2 * r;
    const double texte =
        etiquette.annee.isEmpty() ? 0 : mesure.horizontalAdvance(etiquette.annee) + 4;
    QRectF cadre{0, 0, anneaux + texte + 8, mesure.height() + 1};
    cadre.moveCenter(etiquette.centre);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(style_.palette.etiquette);
    peintre.drawRoundedRect(cadre, 5, 5);
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen{style_.palette.texteLibre, 1.2});
    const double y = cadre.center().y();
    const double x = cadre.left() + 4;
    peintre.drawEllipse(QPointF{x + r, y}, r, r);
    peintre.drawEllipse(QPointF{x + 2.2 * r, y}, r, r);
    peintre.setFont(style_.dates);
    peintre.drawText(QRectF{x + anneaux + 4, cadre.top(), texte + 4, cadre.height()},
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, etiquette.annee);
}

}  // namespace dorvane::windows

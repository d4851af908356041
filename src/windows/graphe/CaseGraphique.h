#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QPainterPath>
#include <QPixmap>
#include <QString>

#include "records/DessinFamille.h"
#include "values/Sexe.h"
#include "windows/graphe/PaletteGraphe.h"

namespace dorvane::windows {

/// What all boxes of a chart share.
struct StyleGraphe {
    PaletteGraphe palette;
    records::MesuresGraphe mesures{};
    QFont nom;
    QFont dates;
    bool proportionnel = true;  ///< a name too long for its box is written smaller
};

/// What one box shows, ready for painting.
struct ContenuCase {
    QString nom;
    QString dates;
    QString numeros;  ///< those of the `De Cujus`; empty when there is none
    QString bulle;
    Sexe sexe = Sexe::Vide;
    QPixmap vignette;
};

/// One box of the chart (`Circle1`).
class CaseGraphique final : public QGraphicsItem {
public:
    /// `style` outlives the item. `boite` is in pixels of the scene.
    CaseGraphique(std::size_t indice, const records::CaseFamille& modele, const QRectF& boite,
                  ContenuCase contenu, const StyleGraphe& style);

    [[nodiscard]] std::size_t Indice() const { return indice_; }
    [[nodiscard]] NoOrdre Individu() const { return modele_.individu; }
    [[nodiscard]] const ContenuCase& Contenu() const { return contenu_; }

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* peintre, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    [[nodiscard]] bool EnCours() const {
        return modele_.sorte == records::CaseFamille::Sorte::EnCours;
    }
    void PreparerTextes();
    void PeindreFond(QPainter& peintre) const;
    void PeindreInconnu(QPainter& peintre) const;
    void PeindreTextes(QPainter& peintre) const;
    void PeindreSigne(QPainter& peintre, const QColor& couleur) const;
    void PeindreSuite(QPainter& peintre) const;

    std::size_t indice_;
    records::CaseFamille modele_;
    QRectF boite_;
    ContenuCase contenu_;
    const StyleGraphe& style_;
    QRectF signe_;
    QRectF cadreNom_;
    QRectF cadreDates_;
    QRectF cadreNumeros_;
    QFont policeNom_;
};

/// The years of unions and the lines between boxes, as one item below the boxes.
class FondGraphique final : public QGraphicsItem {
public:
    /// `style` outlives the item.
    FondGraphique(const records::DessinFamille& dessin, const StyleGraphe& style);

    [[nodiscard]] QRectF boundingRect() const override { return cadre_; }
    void paint(QPainter* peintre, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    /// The year of a union, in the middle of `centre`; empty when it is not known.
    struct EtiquetteUnion {
        QPointF centre;
        QString annee;
    };
    void PeindreUnion(QPainter& peintre, const EtiquetteUnion& etiquette) const;

    QPainterPath chemin_;
    std::vector<EtiquetteUnion> unions_;
    QRectF cadre_;
    const StyleGraphe& style_;
};

}  // namespace dorvane::windows

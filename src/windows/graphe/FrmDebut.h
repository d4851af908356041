#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QVariantAnimation>

#include "records/DessinFamille.h"
#include "records/ModeleFamille.h"
#include "values/Sexe.h"
#include "windows/graphe/CaseGraphique.h"
#include "windows/graphe/EnQt.h"
#include "windows/graphe/PaletteGraphe.h"

#include <vector>

class QGestureEvent;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// The family chart around the current person.
///
/// It shows what the model says and tells what the user wants; the moves are the main window's.
/// Its name is "FrmDébut".
class FrmDebut final : public QGraphicsView {
    Q_OBJECT

public:
    /// `session` outlives the window.
    FrmDebut(shell::Session& session, QWidget* parent);
    ~FrmDebut() override;

    /// Draws the family of the current person again. When another person has become current, the
    /// chart glides there.
    void Actualiser();

    /// A base was opened, or another presentation chosen: its generations and its scale.
    void AppliquerPresentation();

    /// Scales by 1.5 and back. False when the surface would reach 32000 units or the boxes would
    /// shrink to dots.
    bool Agrandir();
    bool Diminuer();

    /// The whole chart in the window.
    void Ajuster();

    void ChangerGenerations(records::Generations generations);
    [[nodiscard]] records::Generations Generations() const { return generations_; }

    void PoserPalette(Palette palette);

    [[nodiscard]] const records::ModeleFamille& Modele() const { return modele_; }
    [[nodiscard]] const records::DessinFamille& Dessin() const { return dessin_; }

    /// `Circle1`: the boxes in the order of the model.
    [[nodiscard]] const std::vector<CaseGraphique*>& Cases() const { return cases_; }

    /// Where a box stands in the scene, and in the viewport.
    [[nodiscard]] QRectF CaseScene(std::size_t indice) const {
        return EnQt(dessin_.boites[indice]);
    }
    [[nodiscard]] QRect CaseEcran(std::size_t indice) const;

    [[nodiscard]] double Echelle() const { return transform().m11(); }

    /// Movement may be turned off, for users and for tests.
    void Glisser(bool oui) { glisse_ = oui; }

    /// Texts that depend on the language.
    void Traduire();

Q_SIGNALS:
    /// A double click on a box, or a person dropped on the ground.
    void personneDemandee(quint32 individu);
    /// A double click on the current person, or Enter.
    void ficheDemandee(quint32 individu);
    /// A click on the box of a parent who is not known, on that side, at a point of the screen.
    void parentDemande(quint32 enfant, Cote cote, const QPoint& point);
    /// A person was dropped on such a box.
    void parentDepose(quint32 enfant, Cote cote, quint32 parent);
    /// The right button, or the menu key, at a point of the screen.
    void menuDemande(quint32 individu, const QPoint& point);
    /// An arrow key.
    void pasDemande(dorvane::records::Parente parente);

protected:
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dragMoveEvent(QDragMoveEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void drawBackground(QPainter* peintre, const QRectF& cadre) override;
    bool viewportEvent(QEvent* evenement) override;

private:
    /// What of the scene is seen.
    struct Vue {
        QPointF centre;
        double echelle = 1;
    };

    void Construire();
    /// Around all boxes, in the scene.
    [[nodiscard]] QRectF Cadre() const { return EnQt(dessin_.cadre); }
    [[nodiscard]] StyleGraphe FaireStyle() const;
    [[nodiscard]] ContenuCase LireCase(const records::CaseFamille& modele) const;
    [[nodiscard]] CaseGraphique* CaseSous(const QPoint& point) const;
    /// A parent who is not known: of whom, and on which side. Empty for other boxes.
    struct PlaceParent {
        NoOrdre enfant{};
        Cote cote = Cote::Pere;
    };
    [[nodiscard]] PlaceParent ParentInconnu(const CaseGraphique* boite) const;
    [[nodiscard]] QPointF CentreVoulu() const;
    [[nodiscard]] double EchelleVoulue() const;
    void Etendre();
    [[nodiscard]] double EchelleEntiere() const;
    bool Echelonner(double facteur);
    bool EchelonnerAuCentre(double facteur);
    bool Pincer(QGestureEvent& evenement);
    void Centrer(const Vue& depuis, bool glisser);
    void Placer(double part);
    void Poser(const Vue& vue);
    void Arreter();

    shell::Session& session_;
    QGraphicsScene scene_;
    records::ModeleFamille modele_;
    records::DessinFamille dessin_;
    StyleGraphe style_;
    Palette palette_ = Palette::Claire;
    records::Generations generations_;
    std::vector<CaseGraphique*> cases_;
    NoOrdre montree_{};
    NoOrdre saisie_{};    ///< person under the pressed button
    QPoint pointSaisie_;  ///< where it was pressed
    QVariantAnimation glissement_{this};
    Vue depuis_;
    Vue vers_;
    bool glisse_ = true;
    bool ajuste_ = true;  ///< the program chooses the scale, until the user does
};

}  // namespace dorvane::windows

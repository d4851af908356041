#include "windows/graphe/FrmPalette.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "shell/Session.h"

namespace dorvane::windows {

namespace {

/// A small chart in the colours of a palette.
class Echantillon final : public QWidget {
public:
    Echantillon(const PaletteGraphe& palette, QWidget* parent)
        : QWidget{parent}, palette_{palette} {
        setFixedSize(150, 96);
    }

protected:
    void paintEvent(QPaintEvent* /*evenement*/) override {
        QPainter peintre{this};
        peintre.setRenderHint(QPainter::Antialiasing);
        QLinearGradient fond{QPointF{}, QPointF{0, static_cast<qreal>(height())}};
        fond.setColorAt(0, palette_.fond);
        fond.setColorAt(1, palette_.fondBas);
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(fond);
        peintre.drawRoundedRect(rect(), 6, 6);
        peintre.setPen(QPen{palette_.trait, 1.5});
        peintre.drawPolyline(QPolygonF{{62, 48}, {78, 48}, {78, 24}, {92, 24}});
        peintre.drawPolyline(QPolygonF{{78, 48}, {78, 72}, {92, 72}});
        Boite(peintre, {10, 36, 52, 24}, palette_.femme, true);
        Boite(peintre, {92, 12, 48, 24}, palette_.homme, false);
        Boite(peintre, {92, 60, 48, 24}, palette_.femme, false);
    }

private:
    void Boite(QPainter& peintre, const QRectF& cadre, const CouleursSexe& couleurs,
               bool enCours) const {
        peintre.setBrush(couleurs.fond);
        peintre.setPen(enCours ? QPen{palette_.accent, 2.5} : QPen{couleurs.cadre, 1.2});
        peintre.drawRoundedRect(cadre, 4, 4);
        peintre.setPen(QPen{couleurs.texte, 2});
        const double y = cadre.center().y();
        peintre.drawLine(QPointF{cadre.left() + 8, y - 3}, QPointF{cadre.right() - 10, y - 3});
        peintre.setPen(QPen{couleurs.texte, 1});
        peintre.drawLine(QPointF{cadre.left() + 8, y + 4}, QPointF{cadre.right() - 22, y + 4});
    }

    PaletteGraphe palette_;
};

constexpr const char* Options[] = {"OptClassique", "OptClaire", "OptSombre"};

}  // namespace

FrmPalette::FrmPalette(shell::Session& session, Palette depart, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmPalette"), parent}, choix_{new QButtonGroup{this}} {
    auto* grille = new QGridLayout{this};
    grille->setContentsMargins(12, 12, 12, 12);
    grille->setHorizontalSpacing(18);
    grille->setVerticalSpacing(6);
    auto* question = new QLabel{this};
    question->setObjectName(QStringLiteral("LblQuestion"));
    question->setWordWrap(true);
    grille->addWidget(question, 0, 0, 1, 3);
    grille->setRowMinimumHeight(1, 6);
    for (int i = 0; i < 3; ++i) {
        const auto palette = static_cast<Palette>(i);
        grille->addWidget(
            new Echantillon{FairePalette(palette, session.parametres.base.affichage), this}, 2, i,
            Qt::AlignHCenter);
        auto* option = new QRadioButton{this};
        option->setObjectName(QString::fromLatin1(Options[i]));
        option->setChecked(palette == depart);
        choix_->addButton(option, i);
        grille->addWidget(option, 3, i, Qt::AlignHCenter);
    }
    grille->setRowMinimumHeight(4, 6);
    auto* valider = new QPushButton{this};
    valider->setObjectName(QStringLiteral("CmdValider"));
    valider->setDefault(true);
    grille->addWidget(valider, 5, 0, 1, 3, Qt::AlignRight);
    connect(valider, &QPushButton::clicked, this, &QDialog::accept);
    connect(choix_, &QButtonGroup::idToggled, this, [this](int /*rang*/, bool oui) {
        if (oui) Q_EMIT paletteEssayee(Choix());
    });
    Traduire();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

Palette FrmPalette::Choix() const {
    return static_cast<Palette>(choix_->checkedId());
}

}  // namespace dorvane::windows
